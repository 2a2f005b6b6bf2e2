#include "drawing/PlotearDiseno.h"

namespace trevalo {

// Placeholder until the view is built: the elevation shows alone.
void PlotearDiseno(Lienzo&, EstadoPloteos&, const ProyectoActual&, const VigaActual&,
                   const ResultadosViga&) {}

} // namespace trevalo
