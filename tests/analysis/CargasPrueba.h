#pragma once
// One span of every load kind, with the load also described as straight pieces and point
// loads: an independent picture of the load for the oracles of the tests.

#include <algorithm>
#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "analysis/AnalisisPrueba.h"

namespace trevalo::prueba {

// A straight piece of load: q0 at x0 rising or falling linearly to q1 at x1 (kgf/m).
struct Pieza {
    double x0, x1, q0, q1;
};

// Length of the horizontal test span, m.
inline const double LCarga = 7.5;

// A load of one kind on span 1, as its rows for PonerCargas, and the same load described as
// straight pieces (point loads, kind 2, are their own description).
struct CasoCarga {
    std::string nombre;
    int tipo;
    Filas filas;
    std::vector<Pieza> piezas;
};

inline void PrintTo(const CasoCarga& c, std::ostream* os) {
    *os << c.nombre;
}

inline std::vector<CasoCarga> CasosCarga() {
    const double L = LCarga;
    return {
        {"Uniforme", 1, {{1800}}, {{0, L, 1800, 1800}}},
        {"Puntuales", 2, {{4000, 1.2}, {-1500, 3.75}, {2500, 6.9}}, {}},
        {"Parciales",
         3,
         {{900, 0.5, 3}, {1300, 2, 7.5}},
         {{0.5, 3, 900, 900}, {2, 7.5, 1300, 1300}}},
        {"Triangular", 4, {{2400}}, {{0, L / 2, 0, 2400}, {L / 2, L, 2400, 0}}},
        {"Trapecio1",
         5,
         {{2000, 1.5}},
         {{0, 1.5, 0, 2000}, {1.5, L - 1.5, 2000, 2000}, {L - 1.5, L, 2000, 0}}},
        {"TriangularDerecha", 6, {{1700, 1, 4}, {600, 0, L}}, {{1, 4, 0, 1700}, {0, L, 0, 600}}},
        {"TriangularIzquierda", 7, {{2100, 2.5, 6}}, {{2.5, 6, 2100, 0}}},
        {"Trapecio2",
         8,
         {{500, 1900, 0.5, 5}, {2200, 800, 3, 7}, {700, 700, 1, 2}},
         {{0.5, 5, 500, 1900}, {3, 7, 2200, 800}, {1, 2, 700, 700}}},
    };
}

// Sums sumar(x, load) over the load up to `hasta`: three-point Gauss on each straight piece
// (exact for a piece times a cubic), and every point load at or before `hasta`.
template <class F> void IntegrarCarga(const CasoCarga& caso, double hasta, F sumar) {
    const double nodos[3] = {-std::sqrt(0.6), 0, std::sqrt(0.6)};
    const double pesos[3] = {5.0 / 9, 8.0 / 9, 5.0 / 9};
    for (const Pieza& p : caso.piezas) {
        const double fin = std::min(hasta, p.x1);
        if (fin <= p.x0) continue;
        const double mitad = (fin - p.x0) / 2, centro = (p.x0 + fin) / 2;
        for (int i = 0; i < 3; ++i) {
            const double x = centro + mitad * nodos[i];
            sumar(x, (p.q0 + (p.q1 - p.q0) * (x - p.x0) / (p.x1 - p.x0)) * pesos[i] * mitad);
        }
    }
    if (caso.tipo == 2)
        for (const auto& p : caso.filas)
            if (hasta >= p[1]) sumar(p[1], p[0]);
}

} // namespace trevalo::prueba
