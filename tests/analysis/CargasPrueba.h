#pragma once
// One span of every load kind, with the load also described as straight pieces and point
// loads: an independent picture of the load for the oracles of the tests.

#include <algorithm>
#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "analysis/VigasPrueba.h"

namespace trevalo::prueba {

// A straight piece of load: q0 at x0 rising or falling linearly to q1 at x1 (kgf/m).
struct Pieza {
    double x0, x1, q0, q1;
};
struct Puntual {
    double P, x;
};

// Length of the horizontal test span, m.
inline const double LCarga = 7.5;

struct CasoCarga {
    std::string nombre;
    void (*cargar)(VigaActual&);
    std::vector<Pieza> piezas;
    std::vector<Puntual> puntuales;
};

inline void PrintTo(const CasoCarga& c, std::ostream* os) {
    *os << c.nombre;
}

// Loads of one kind on span 1, one row per load: {W, La, Lb}, {P, LP} and so on.
template <class... Columnas>
void PonerCargas(std::int16_t& cantidad, const Filas& filas, Columnas&... columnas) {
    Llenar(
        cantidad, filas, [](auto& col, long k) -> auto& { return col(1, k); }, columnas...);
}

inline std::vector<CasoCarga> CasosCarga() {
    return {
        {"Uniforme", [](auto& v) { v.W1(1) = 1800; }, {{0, LCarga, 1800, 1800}}, {}},
        {"Puntuales",
         [](auto& v) {
             PonerCargas(v.CantW2(1), {{4000, 1.2}, {-1500, 3.75}, {2500, 6.9}}, v.P, v.LP);
         },
         {},
         {{4000, 1.2}, {-1500, 3.75}, {2500, 6.9}}},
        {"Parciales",
         [](auto& v) {
             PonerCargas(v.CantW3(1), {{900, 0.5, 3}, {1300, 2, 7.5}}, v.W3_, v.La3_, v.Lb3_);
         },
         {{0.5, 3, 900, 900}, {2, 7.5, 1300, 1300}},
         {}},
        {"Triangular",
         [](auto& v) { v.W4(1) = 2400; },
         {{0, LCarga / 2, 0, 2400}, {LCarga / 2, LCarga, 2400, 0}},
         {}},
        {"Trapecio1",
         [](auto& v) {
             v.W5(1) = 2000;
             v.la5(1) = 1.5;
         },
         {{0, 1.5, 0, 2000}, {1.5, LCarga - 1.5, 2000, 2000}, {LCarga - 1.5, LCarga, 2000, 0}},
         {}},
        {"TriangularDerecha",
         [](auto& v) {
             PonerCargas(v.CantW6(1), {{1700, 1, 4}, {600, 0, LCarga}}, v.W6_, v.La6_, v.Lb6_);
         },
         {{1, 4, 0, 1700}, {0, LCarga, 0, 600}},
         {}},
        {"TriangularIzquierda",
         [](auto& v) {
             PonerCargas(v.CantW7(1), {{2100, 2.5, 6}}, v.W7_, v.La7_, v.Lb7_);
         },
         {{2.5, 6, 2100, 0}},
         {}},
        {"Trapecio2",
         [](auto& v) {
             PonerCargas(v.CantW8(1), {{500, 1900, 0.5, 5}, {2200, 800, 3, 7}, {700, 700, 1, 2}},
                         v.WIzq8_, v.WDer8_, v.La8_, v.Lb8_);
         },
         {{0.5, 5, 500, 1900}, {3, 7, 2200, 800}, {1, 2, 700, 700}},
         {}},
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
    for (const Puntual& p : caso.puntuales)
        if (hasta >= p.x) sumar(p.x, p.P);
}

} // namespace trevalo::prueba
