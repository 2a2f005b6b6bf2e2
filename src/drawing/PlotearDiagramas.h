#pragma once
// The force diagrams under the elevation: factored moment and shear along each span.

#include "drawing/EstadoPloteos.h"
#include "drawing/Lienzo.h"
#include "model/Viga.h"

namespace trevalo {

void PlotearDiagramas(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                      const VigaActual& viga, const ResultadosViga& resultados);

} // namespace trevalo
