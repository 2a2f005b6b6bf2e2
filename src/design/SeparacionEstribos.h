#pragma once
// Stirrup spacing at one point of a span for one factored shear, as the text of the sheet's
// row "E(3/8)": "@" and the spacing in cm with "00", and " (4R)" when four legs are needed.
// Bars of 3/8 inch, 0.71 cm2 per leg; two legs, four when two would need less than 8 cm.
// The spacing is at most d/2; with OpcionEstribos, at most d/4 within 2 T1 of an outer-end
// supported joint with a fixed support or a built-in end.
//
// t: span. Vu: factored shear in kgf, any sign. x: distance of the point from the left joint
// along the bar, L the true bar length, both in metres.
// Errors: 5 for a negative FC; 11 (or 6) for d of zero; 9 for a span or type beyond the lists.

#include <cstdint>
#include <string>

#include "model/Viga.h"

namespace trevalo {

void SeparacionEstribos(const ProyectoActual& proyecto, const VigaActual& viga, std::int16_t t,
                        double Vu, double x, double L, std::string& Texto);

} // namespace trevalo
