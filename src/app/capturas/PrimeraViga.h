#pragma once
// The beam of the manual's worked example, "Su primera viga", as its steps type it into the
// editor: two spans of 5 m of the new beam's type 0.30 x 0.50, a pin at joint 1 and rollers
// at joints 2 and 3, 1625 kgf/m on both spans. The screenshot tour pictures it; the help's
// tests solve it and find its results in the topic.

#include "model/Viga.h"

namespace trevalo {

inline const char* const NombrePrimeraViga = "PRIMERA VIGA";

inline VigaActual PrimeraViga() {
    VigaActual v;
    v.NombreVigaActual = NombrePrimeraViga;
    NuevaVigaDefecto(v);
    v.NT = 2;
    RedimensionarViga(v);
    for (long t = 1; t <= 2; ++t) {
        v.LT(t) = 5.0;
        v.VT(t) = 1.0;
        v.FMayorTramo(t) = v.FMayoracion;
        v.W1(t) = 1625;
    }
    v.NombreEje(3) = "3";
    v.LDer(3) = v.LDer(2);
    v.LIzq(3) = v.LIzq(2);
    v.HC(3) = v.HC(2);
    v.NJRest = 3;
    v.R1.Redim(3);
    v.Apoyo.Redim(3);
    const Apoyos apoyos[] = {ApoyoFijo, RodilloEnX, RodilloEnX};
    for (long j = 1; j <= 3; ++j) {
        v.R1(j) = static_cast<std::int16_t>(j);
        v.Apoyo(j) = apoyos[j - 1];
    }
    return v;
}

} // namespace trevalo
