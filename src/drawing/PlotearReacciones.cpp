#include "drawing/PlotearReacciones.h"

namespace trevalo {

// Placeholder until the view is built: the elevation shows alone.
void PlotearReacciones(Lienzo&, EstadoPloteos&, const ProyectoActual&, const VigaActual&,
                       const ResultadosViga&) {}

} // namespace trevalo
