#include "app/tools/ProyectoCalc.h"

#include "store/BaseDatos.h"

namespace trevalo::calc {

void CargarVigaCalc(EstadoProyecto& estado, const std::string& nombre, ProyectoActual& proyecto,
                    VigaActual& viga) {
    viga.NombreVigaActual = NombreVigaGuardado(*estado.BDProyecto, nombre);
    if (estado.BDProyecto->AbrirRecordset("GeneralProyecto").RecordCount() == 0)
        throw ErrorTrevalo(ErrSinRegistroActual, "El proyecto no tiene datos generales.");
    LeerGeneralProyecto(*estado.BDProyecto, proyecto);
    LeerViga(estado, viga);
}

} // namespace trevalo::calc
