#pragma once
// Runs trevalo-calc as its command line does, and gives each test a folder of its own
// (ctest runs the tests side by side).

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>

#include "app/tools/Comandos.h"

namespace trevalo::calc {

struct Salida {
    int codigo;
    std::string salida, errores;
};

inline Salida Calc(const Argumentos& args) {
    std::ostringstream s, e;
    const int codigo = EjecutarCalc(args, s, e);
    return {codigo, s.str(), e.str()};
}

class ConCarpeta : public ::testing::Test {
  protected:
    void SetUp() override {
        std::string prueba = ::testing::UnitTest::GetInstance()->current_test_info()->name();
        std::replace(prueba.begin(), prueba.end(), '/', '_');
        carpeta = std::filesystem::temp_directory_path() /
                  ("trevalo_calc_" + std::to_string(::getpid()) + "_" + prueba);
        std::filesystem::remove_all(carpeta);
        std::filesystem::create_directories(carpeta);
    }
    void TearDown() override { std::filesystem::remove_all(carpeta); }
    std::string Ruta(const std::string& nombre) const { return (carpeta / nombre).string(); }

    std::filesystem::path carpeta;
};

} // namespace trevalo::calc
