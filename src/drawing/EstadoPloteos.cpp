#include "drawing/EstadoPloteos.h"

namespace trevalo {

void ReiniciarVista(EstadoPloteos& estado) {
    estado.FactorZoom = 1.0;
    estado.PanX = 0.0;
    estado.PanY = 0.0;
    estado.EstacionesDiagrama = 10;
    estado.EstacionesDiseno = 2;
    estado.FactorLetra = 1.0;
}

} // namespace trevalo
