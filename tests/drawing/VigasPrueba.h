#pragma once
// Beams built in code for the drawing tests.

#include <vector>

#include "model/Viga.h"

namespace trevalo::prueba {

// Spans of the given lengths, one concrete type 0.30 x 0.50 on every span, nothing else.
inline VigaActual VigaDeTramos(const std::vector<double>& longitudes) {
    VigaActual v;
    v.NombreVigaActual = "V-1";
    v.NT = static_cast<std::int16_t>(longitudes.size());
    ReiniciarArreglosViga(v);
    v.B1(1) = 0.3;
    v.T1(1) = 0.5;
    for (long i = 1; i <= v.NT; ++i) {
        v.LT(i) = longitudes[static_cast<std::size_t>(i - 1)];
        v.VT(i) = 1;
    }
    return v;
}

} // namespace trevalo::prueba
