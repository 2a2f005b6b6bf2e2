#pragma once
// The design sheet under the elevation: steel, stirrups, forces and positions by station.

#include "design/TablaDiseno.h"
#include "drawing/EstadoPloteos.h"
#include "drawing/Lienzo.h"
#include "model/Viga.h"

namespace trevalo {

void PlotearDiseno(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                   const VigaActual& viga, const ResultadosViga& resultados);

// The same, leaving the sheet's six summary values per span in `resumen` (cm2, unrounded).
// Row heights below BaseY: reactions at 50 k, then from H0 (115 k concrete, 30 k steel) the
// stirrups, top and bottom steel (concrete only), moments, shear and the distance from the
// nearer joint; ExtraDiseno moves the lower rows on a report picture, where a concrete beam
// also gets the empty "DESPIECE" strip for hand detailing. Texts at 7 k FactorLetra.
void PlotearDiseno(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                   const VigaActual& viga, const ResultadosViga& resultados, ResumenAcero& resumen);

} // namespace trevalo
