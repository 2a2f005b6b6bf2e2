#pragma once
// The design sheet under the elevation: steel, stirrups, forces and positions by station.

#include "drawing/EstadoPloteos.h"
#include "drawing/Lienzo.h"
#include "model/Viga.h"

namespace trevalo {

void PlotearDiseno(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                   const VigaActual& viga, const ResultadosViga& resultados);

} // namespace trevalo
