#pragma once
// Shear and bending moment at a point of a span by statics, from the end forces of the
// analysis at the left end of the bar. Service values: the caller multiplies by
// FMayorTramo.

#include <cstdint>

#include "model/Viga.h"

namespace trevalo {

// t: span; Wp: own weight of the span in kgf/m (0 when PPV is False); L: true bar length;
// x: distance from the left joint along the bar; c, s: direction cosines of the bar (s is
// accepted and not used). M (sagging positive) and V are assigned at the end.
// Loads placed by position are found along the bar by dividing by c (error 11 when c = 0);
// a trapezoid of kind 1 with no rising part (la5 = 0) adds nothing at x = 0.
// Error 9 for a span beyond the lists.
void CorteMomentoTramo(const VigaActual& viga, const ResultadosViga& resultados, std::int16_t t,
                       std::int32_t Wp, double L, double x, double c, double s, double& M,
                       double& V);

// Own weight of span t in kgf/m, 0 when PPV is False: concrete round(B1 x T1 x
// PesoConcreto), steel round(PesoAcero x B1 / 10000), ties to even, of the type VT(t).
// Error 9 for a type beyond the beam types, 6 beyond the 32-bit range.
std::int32_t PesoPropioTramo(const ProyectoActual& proyecto, const VigaActual& viga,
                             std::int16_t t);

} // namespace trevalo
