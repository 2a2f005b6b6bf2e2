#pragma once
// The reactions and joint displacements under the elevation.

#include "drawing/EstadoPloteos.h"
#include "drawing/Lienzo.h"
#include "model/Viga.h"

namespace trevalo {

void PlotearReacciones(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                       const VigaActual& viga, const ResultadosViga& resultados);

} // namespace trevalo
