// trevalo-guion SALIDA GUION.sql: builds a database file of the installation (a template)
// from a readable SQL script, through the program's own engine so that the name collation
// is known while the tables are made. An existing SALIDA is replaced.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "model/Errores.h"
#include "platform/motor/MotorDatos.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Uso: trevalo-guion SALIDA GUION.sql\n";
        return 2;
    }
    std::ifstream entrada(argv[2]);
    if (!entrada) {
        std::cerr << "No se puede leer el guion: " << argv[2] << "\n";
        return 1;
    }
    std::ostringstream guion;
    guion << entrada.rdbuf();
    const std::filesystem::path salida(argv[1]);
    const auto temporal = std::filesystem::path(salida).concat(".nuevo");
    try {
        std::filesystem::remove(temporal);
        {
            auto bd = trevalo::BaseDatos::Crear(temporal.string());
            bd.EjecutarGuion(guion.str());
        }
        std::filesystem::rename(temporal, salida);
    } catch (const trevalo::ErrorTrevalo& e) {
        std::cerr << argv[2] << ": error " << e.Numero() << ": " << e.Descripcion() << "\n";
        std::filesystem::remove(temporal);
        return 1;
    }
    return 0;
}
