#pragma once
// Flexural steel of one rectangular concrete section for one factored moment, by the strength
// method: singly reinforced up to the fixed steel index w = 0.18, doubly reinforced beyond.
//
// t selects the section through VT(t) (B1, T1 in metres; D8 the cover of both layers).
// Mu: factored moment in kgf-m, sagging positive. AsSup, AsInf: steel at the top and bottom
// face in cm2, never below Amin = 14/FY b d on either face, even for no moment. Excede: the
// tension steel of a doubly reinforced section exceeds the code's limit.
// Uses FC, FY in kgf/cm2 and steel modulus 2,100,000 (fs = 6300 per unit strain ratio).
// Errors: 11 (or 6 for 0/0) for FC, FY, b or d of zero and for d = D8 when doubly reinforced;
// 9 for a span or type beyond the lists.

#include <cstdint>

#include "model/Viga.h"

namespace trevalo {

void AceroFlexion(const ProyectoActual& proyecto, const VigaActual& viga, std::int16_t t, double Mu,
                  double& AsSup, double& AsInf, bool& Excede);

} // namespace trevalo
