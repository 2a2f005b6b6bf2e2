#include "store/Compactar.h"

#include "platform/motor/MotorDatos.h"

namespace trevalo {

std::string TemporalCompactar(const std::string& carpeta) {
    return carpeta + "DatosKorvel.mdb";
}

void CompactarArchivo(const std::string& ruta, const std::string& temporal) {
    ReemplazarPorCopia(ruta, temporal);
}

} // namespace trevalo
