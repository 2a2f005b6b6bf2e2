#include "design/SeccionConcreto.h"

#include "model/Redondeo.h"

namespace trevalo {

SeccionConcreto SeccionDelTramo(const ProyectoActual& proyecto, const VigaActual& viga,
                                std::int16_t t) {
    const long tipo = CI(viga.VT(t));
    SeccionConcreto s;
    s.b = viga.B1(tipo) * 100;
    s.h = viga.T1(tipo) * 100;
    s.dp = proyecto.D8 * 100;
    s.d = s.h - s.dp;
    return s;
}

} // namespace trevalo
