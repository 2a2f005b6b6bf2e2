#include "app/tools/ProyectoCalc.h"

#include <filesystem>

#include "store/BaseDatos.h"
#include "store/CarpetasPrograma.h"

namespace trevalo::calc {

void CargarVigaCalc(EstadoProyecto& estado, const std::string& nombre, ProyectoActual& proyecto,
                    VigaActual& viga) {
    viga.NombreVigaActual = NombreVigaGuardado(*estado.BDProyecto, nombre);
    if (estado.BDProyecto->AbrirRecordset("GeneralProyecto").RecordCount() == 0)
        throw ErrorTrevalo(ErrSinRegistroActual, "El proyecto no tiene datos generales.");
    LeerGeneralProyecto(*estado.BDProyecto, proyecto);
    LeerViga(estado, viga);
}

std::string RutaProgramaCalc() {
    return CarpetaInstalacion(
        std::filesystem::read_symlink("/proc/self/exe").parent_path().string());
}

} // namespace trevalo::calc
