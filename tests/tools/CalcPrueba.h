#pragma once
// Runs trevalo-calc as its command line does, each test in a folder of its own (ctest runs
// the tests side by side).

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "app/tools/Comandos.h"
#include "comun/Carpeta.h"

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
    std::string Ruta(const std::string& nombre) const { return tmp / nombre; }

    prueba::CarpetaTemporal tmp;
};

} // namespace trevalo::calc
