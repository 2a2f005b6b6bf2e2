#pragma once
// A fresh report database for each test, in a folder of its own: a copy of the empty
// template that the installation ships.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace trevalo {

class BaseTemporalTest : public testing::Test {
  protected:
    void SetUp() override {
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        std::string nombre = std::string(info->test_suite_name()) + "_" + info->name();
        for (char& c : nombre)
            if (c == '/') c = '_';
        carpeta = std::filesystem::temp_directory_path() / ("trevalo_informe_" + nombre);
        std::filesystem::remove_all(carpeta);
        std::filesystem::create_directories(carpeta);
        ruta = (carpeta / "Temporal.mdb").string();
        std::filesystem::copy_file(TREVALO_RUTA_PROGRAMA "/Imagen/Temporal.kvl", ruta);
    }
    void TearDown() override { std::filesystem::remove_all(carpeta); }

    std::filesystem::path carpeta;
    std::string ruta;
};

} // namespace trevalo
