#pragma once
// A fresh report database for each test, in a folder of its own.

#include <gtest/gtest.h>

#include <SQLiteCpp/SQLiteCpp.h>

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
        SQLite::Database bd(ruta, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        bd.exec("CREATE TABLE Generales (Usuario TEXT, Version TEXT, TiTulo TEXT, "
                "Proyecto TEXT, Propietario TEXT, Calculista TEXT, FC REAL, FY REAL, D8 REAL);"
                "CREATE TABLE Graficos (Numero INTEGER, Grafico BLOB);");
    }
    void TearDown() override { std::filesystem::remove_all(carpeta); }

    std::filesystem::path carpeta;
    std::string ruta;
};

} // namespace trevalo
