#pragma once
// The plot geometry: one point per joint in the length unit of the beam, centred on the
// drawing, y pointing down the screen.

#include "model/Viga.h"

namespace trevalo {

struct GeometriaJuntas {
    Arreglo<double> XPlot; // 1..NT+1
    Arreglo<double> YPlot; // 1..NT+1, screen direction (the one flip from model axes)
    double AltoTotal = 0;
};

// Joint positions from the span lengths and the displaced joints (XX, YY at true scale,
// moving only the joint named), centred on their bounding box. Sets viga.LongTotal to the
// box's width.
void GeometriaPlot(VigaActual& viga, GeometriaJuntas& geometria);

} // namespace trevalo
