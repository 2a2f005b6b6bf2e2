#pragma once
// Fixed-end forces of one span, in the local axes of its bar, given as equivalent joint
// loads: moments MI, MJ (both positive for a load acting with gravity), shears VI, VJ and
// axial forces NI, NJ. Units: metres, kgf, kgf-m.
//
// Positions of the loads are horizontal distances from the left joint of the span; each
// routine turns them into distances along the bar by dividing by c = CosX, and splits a load
// w into w x c across the bar and w x s (s = CosY) along it. L is the true bar length.
// The order in which the terms are added is fixed: it decides the last bit of the results.
//
// Errors: 11 (division by zero) for a bar of no length or a position on a bar with c = 0;
// 6 (overflow) when a rounded intensity leaves the 32-bit range; 9 for a type number
// beyond the beam types.

#include <cstdint>

#include "model/Viga.h"

namespace trevalo {

struct FuerzasExtremos {
    double MI = 0;
    double MJ = 0;
    double VI = 0;
    double VJ = 0;
    double NI = 0;
    double NJ = 0;
};

// n / d, raising error 11 when d is zero, as the classic runtime did.
double Dividir(double n, double d);

// Adds the fixed-end forces of every load of span t, in this order: uniform load with the
// own weight folded in, point loads, partial uniform loads, triangle, trapezoid of kind 1,
// right triangles, left triangles, trapezoids of kind 2. The outputs are zero on entry.
void FuerzasEmpotramientoTramo(const ProyectoActual& proyecto, const VigaActual& viga,
                               std::int16_t t, double L, double s, double c, FuerzasExtremos& f);

// Uniform load w over the whole bar. gravedad 0: vertical load (w x c across, w x s along);
// otherwise perpendicular to the bar. Overwrites the outputs.
void FEUniforme(double w, std::uint8_t gravedad, double s, double c, double L, FuerzasExtremos& f);
// Point load P at horizontal distance x.
void FEPuntual(double P, double x, double s, double c, double L, FuerzasExtremos& f);
// Uniform load w from xa to xb (a negative loaded length gives a negative effect).
void FEParcial(double w, double xa, double xb, double s, double c, double L, FuerzasExtremos& f);
// Load rising from zero at xa to w at xb. The intensities across and along the bar are
// rounded to whole kgf/m (ties to even) first.
void FETriangularDerecha(double w, double xa, double xb, double s, double c, double L,
                         FuerzasExtremos& f);
// Load falling from w at xa to zero at xb, rounded as the right triangle.
void FETriangularIzquierda(double w, double xa, double xb, double s, double c, double L,
                           FuerzasExtremos& f);
// Symmetric triangle, peak w at mid-span. The half lengths are bar lengths that are divided
// by c once more, so on an inclined bar the halves do not meet (kept: users rely on the
// results as they always were).
void FETriangular(double w, double s, double c, double L, FuerzasExtremos& f);
// Symmetric trapezoid: w on the plateau, rising over la at each end of the horizontal span.
void FETrapecio1(double w, double la, double s, double c, double L, FuerzasExtremos& f);
// Straight-line load from wi at xa to wd at xb: the sloped part, then the rectangle.
void FETrapecio2(double wi, double wd, double xa, double xb, double s, double c, double L,
                 FuerzasExtremos& f);

} // namespace trevalo
