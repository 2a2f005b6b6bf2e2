#include "drawing/PlotearDiagramas.h"

namespace trevalo {

// Placeholder until the view is built: the elevation shows alone.
void PlotearDiagramas(Lienzo&, EstadoPloteos&, const ProyectoActual&, const VigaActual&,
                      const ResultadosViga&) {}

} // namespace trevalo
