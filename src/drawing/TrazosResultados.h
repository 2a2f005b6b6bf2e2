#pragma once
// Small painting steps shared by the result views (diagrams, design sheet, reactions).
// Positions arrive as doubles in pixels and are rounded by CI (ties to even) only here, at
// the moment they reach the canvas.

#include <initializer_list>
#include <string>
#include <utility>

#include "drawing/Lienzo.h"

namespace trevalo {

using PuntoPlot = std::pair<double, double>; // x, y in pixels, not yet rounded

// Polygon with the canvas's current pen, fill style and fill colour.
void PoligonoEn(Lienzo& lienzo, std::initializer_list<PuntoPlot> puntos);

// Axis-parallel rectangle as a four-point polygon, corners (x1, y1) and (x2, y2).
void RectanguloEn(Lienzo& lienzo, double x1, double y1, double x2, double y2);

// Polygon with a pen of its own, made for it and put back afterwards.
void PoligonoConPluma(Lienzo& lienzo, const Pluma& pluma, std::initializer_list<PuntoPlot> puntos);

} // namespace trevalo
