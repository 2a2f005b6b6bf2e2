#pragma once
// A fresh report database for each test, in a folder of its own: a copy of the empty one
// that the installation ships.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "comun/Carpeta.h"

namespace trevalo {

class BaseTemporalTest : public testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::copy_file(TREVALO_RUTA_PROGRAMA "/Imagen/Temporal.kvl", ruta);
    }

    prueba::CarpetaTemporal carpeta;
    std::string ruta = carpeta / "Temporal.mdb";
};

} // namespace trevalo
