#pragma once
// The elevation of the beam, painted in this order so that later items lie over earlier
// ones: spans, support lines, dimension line, span lengths, supports, springs, type labels,
// span loads, axis bubbles, joint loads; then the title and the joint numbers. Every size is
// a base number in pixels at zoom 1 times FactorSimbolo, unless said otherwise.
// Precondition: the geometry and the transform of `estado` are those of this redraw.

#include "drawing/EstadoPloteos.h"
#include "drawing/Lienzo.h"
#include "model/Viga.h"

namespace trevalo {

void PlotearElevacion(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                      const VigaActual& viga);

// The beam's name under the drawing, at a height that depends on the result view.
void PlotearTitulo(Lienzo& lienzo, EstadoPloteos& estado, const VigaActual& viga);

// Numbered bubbles on the joints.
void PlotearNumerosJuntas(Lienzo& lienzo, EstadoPloteos& estado, const VigaActual& viga);

} // namespace trevalo
