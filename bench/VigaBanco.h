#pragma once
// The beam of the drawing and window benchmarks.

#include <string>

#include "model/Viga.h"

namespace trevalo {

// `tramos` spans of 3 to 6 m, a hinge, rollers and a built-in end, a spring, joint actions
// and on every span all eight load kinds.
inline VigaActual VigaTodasLasCargas(std::int16_t tramos) {
    VigaActual v;
    NuevaVigaDefecto(v);
    v.NombreVigaActual = "V-" + std::to_string(tramos);
    v.NT = tramos;
    RedimensionarViga(v);
    v.B1(1) = 0.3;
    v.T1(1) = 0.6;
    for (long i = 1; i <= v.NT; ++i) {
        v.LT(i) = 3.0 + static_cast<double>(i % 4);
        v.VT(i) = 1;
        v.FMayorTramo(i) = v.FMayoracion;
        v.W1(i) = 1500;
        v.CantW2(i) = 2;
        v.P(i, 1) = 2000;
        v.LP(i, 1) = 1.0;
        v.P(i, 2) = -500;
        v.LP(i, 2) = 2.5;
        v.CantW3(i) = 1;
        v.W3_(i, 1) = 800;
        v.La3_(i, 1) = 0.5;
        v.Lb3_(i, 1) = 2.0;
        v.W4(i) = 600;
        v.W5(i) = 500;
        v.la5(i) = 1.0;
        v.CantW6(i) = 1;
        v.W6_(i, 1) = 400;
        v.La6_(i, 1) = 0.5;
        v.Lb6_(i, 1) = 2.0;
        v.CantW7(i) = 1;
        v.W7_(i, 1) = 300;
        v.La7_(i, 1) = 0.5;
        v.Lb7_(i, 1) = 1.5;
        v.CantW8(i) = 1;
        v.WIzq8_(i, 1) = 200;
        v.WDer8_(i, 1) = 600;
        v.La8_(i, 1) = 1.0;
        v.Lb8_(i, 1) = 2.8;
    }
    const std::int16_t juntas = tramos + 1;
    v.NJRest = juntas;
    v.R1.Redim(juntas);
    v.Apoyo.Redim(juntas);
    for (long j = 1; j <= juntas; ++j) {
        v.R1(j) = static_cast<std::int16_t>(j);
        v.Apoyo(j) = j == 1 ? ApoyoFijo : j == juntas ? Empotramiento : RodilloEnX;
    }
    v.NJRes = 1;
    v.R10.Redim(1);
    v.SH10.Redim(1);
    v.SV10.Redim(1);
    v.SM10.Redim(1);
    v.R10(1) = static_cast<std::int16_t>(tramos / 2 + 1);
    v.SV10(1) = 5e6;
    v.NAcc = 1;
    v.R2.Redim(1);
    v.QC1.Redim(1);
    v.QC2.Redim(1);
    v.QC3.Redim(1);
    v.R2(1) = 4;
    v.QC1(1) = 1000;
    v.QC2(1) = 3000;
    v.QC3(1) = 500;
    return v;
}

} // namespace trevalo
