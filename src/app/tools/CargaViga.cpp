#include "app/tools/CargaViga.h"

#include "analysis/AnalisisVigasP.h"
#include "app/tools/VigaJson.h"

namespace trevalo::calc {

namespace {

bool EsJson(const std::string& ruta) {
    return ruta.size() >= 5 && ruta.compare(ruta.size() - 5, 5, ".json") == 0;
}

} // namespace

VigaCargada CargarYResolver(const std::string& archivo, const std::string& nombreViga) {
    VigaCargada c;
    if (!EsJson(archivo))
        throw ErrorTrevalo(ErrArchivoNoEncontrado, "No se puede leer el proyecto \"" + archivo +
                                                       "\" (viga " + nombreViga + ").");
    LeerVigaJsonArchivo(archivo, c.proyecto, c.viga);
    // The settings came with the beam: the analysis has nothing to read again.
    AnalizarViga([](ProyectoActual&) {}, c.proyecto, c.viga, c.resultados);
    return c;
}

} // namespace trevalo::calc
