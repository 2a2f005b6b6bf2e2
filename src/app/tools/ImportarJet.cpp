#include <string>

#include "app/tools/Comandos.h"
#include "platform/jet/ImportadorJet.h"

namespace trevalo::calc {

// importar-jet ANTIGUO NUEVO [--familia proyecto|perfiles]: copies a Jet file of the earlier
// program into a new file of the program's engine and lists the tables copied.
int ComandoImportarJet(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    FamiliaJet familia = FamiliaJet::Cualquiera;
    std::vector<std::string> archivos;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--familia" && i + 1 < args.size()) {
            const std::string& f = args[++i];
            if (f == "proyecto") {
                familia = FamiliaJet::Proyecto;
            } else if (f == "perfiles") {
                familia = FamiliaJet::TablaPerfiles;
            } else {
                errores << "Familia desconocida: \"" << f << "\" (proyecto o perfiles).\n";
                return 2;
            }
        } else {
            archivos.push_back(args[i]);
        }
    }
    if (archivos.size() != 2) {
        errores << "Uso: trevalo-calc importar-jet ANTIGUO NUEVO [--familia proyecto|perfiles]\n";
        return 2;
    }
    try {
        const ResultadoImportacion r = ImportarJet(archivos[0], archivos[1], familia);
        salida << "Importado de " << r.Version << ": " << archivos[1] << "\n";
        for (const auto& [tabla, filas] : r.Tablas)
            salida << "  " << tabla << ": " << filas << " filas\n";
        return 0;
    } catch (const ErrorTrevalo& e) {
        errores << "Error " << e.Numero() << ": " << e.Descripcion() << "\n";
        return 1;
    }
}

} // namespace trevalo::calc
