#include "app/tools/CargaViga.h"

#include "analysis/AnalisisVigasP.h"
#include "app/tools/ProyectoCalc.h"
#include "app/tools/VigaJson.h"
#include "store/BaseDatos.h"

namespace trevalo::calc {

bool EsArchivoJson(const std::string& ruta) {
    return ruta.size() >= 5 && ruta.compare(ruta.size() - 5, 5, ".json") == 0;
}

VigaCargada CargarYResolver(const std::string& archivo, const std::string& nombreViga) {
    VigaCargada c;
    if (EsArchivoJson(archivo)) {
        LeerVigaJsonArchivo(archivo, c.proyecto, c.viga);
    } else {
        EstadoProyecto estado;
        AbrirProyectoArchivo(archivo, estado);
        CargarVigaCalc(estado, nombreViga, c.proyecto, c.viga);
    }
    // The settings were read with the beam: the analysis has nothing to read again.
    AnalizarViga([](ProyectoActual&) {}, c.proyecto, c.viga, c.resultados);
    return c;
}

} // namespace trevalo::calc
