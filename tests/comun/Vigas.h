#pragma once
// Beams built in code for the tests of every layer: spans of given lengths on one type, then
// each list of joints, of types and of loads given as a table, one row per entry, as the
// beam editor stores them.

#include <cstdint>
#include <stdexcept>
#include <type_traits>
#include <vector>

#include "model/Viga.h"

namespace trevalo::prueba {

// Spans of the given lengths (m), all of type 1 (b x h, concrete in metres), joints without
// names, no support and no load.
inline VigaActual VigaDeTramos(const std::vector<double>& luces, double b = 0.3, double h = 0.5) {
    VigaActual v;
    v.NombreVigaActual = "V-1";
    v.NT = static_cast<std::int16_t>(luces.size());
    ReiniciarArreglosViga(v);
    v.B1(1) = b;
    v.T1(1) = h;
    for (long t = 1; t <= v.NT; ++t) {
        v.LT(t) = luces[static_cast<std::size_t>(t - 1)];
        v.VT(t) = 1;
    }
    return v;
}

// One row per entry; the columns are those of the list.
using Filas = std::vector<std::vector<double>>;

// Sets the count and fills, for each row, one cell of every column: celda(columna, k).
template <class Celda, class... Columnas>
void Llenar(std::int16_t& cantidad, const Filas& filas, Celda celda, Columnas&... columnas) {
    cantidad = static_cast<std::int16_t>(filas.size());
    for (long k = 1; k <= cantidad; ++k) {
        std::size_t c = 0;
        const auto& fila = filas[static_cast<std::size_t>(k - 1)];
        ((celda(columnas, k) =
              static_cast<std::remove_reference_t<decltype(celda(columnas, k))>>(fila[c++])),
         ...);
    }
}

// A list of the beam: its columns are sized to the rows.
template <class... Columnas>
void PonerLista(std::int16_t& cantidad, const Filas& filas, Columnas&... columnas) {
    (columnas.Redim(static_cast<long>(filas.size())), ...);
    Llenar(
        cantidad, filas, [](auto& col, long k) -> auto& { return col(k); }, columnas...);
}

// {joint, support kind}
inline void PonerApoyos(VigaActual& v, const Filas& f) {
    PonerLista(v.NJRest, f, v.R1, v.Apoyo);
}
// {joint, SH, SV, SM}
inline void PonerResortes(VigaActual& v, const Filas& f) {
    PonerLista(v.NJRes, f, v.R10, v.SH10, v.SV10, v.SM10);
}
// {joint, QC1 moment, QC2 vertical, QC3 horizontal}
inline void PonerAcciones(VigaActual& v, const Filas& f) {
    PonerLista(v.NAcc, f, v.R2, v.QC1, v.QC2, v.QC3);
}
// {joint, XX, YY}
inline void PonerDesplazadas(VigaActual& v, const Filas& f) {
    PonerLista(v.NJDesp, f, v.R3, v.XX, v.YY);
}
// {B1, T1}: concrete width and depth in m, steel area in cm2 and inertia in cm4.
inline void PonerTipos(VigaActual& v, const Filas& f) {
    v.Designacion.Redim(static_cast<long>(f.size()));
    PonerLista(v.NTipos, f, v.B1, v.T1);
}

// The loads of one kind on span t, one row per load: kinds 1 and 4 {W}, kind 5 {W, la5}, each
// one row at most; kind 2 {P, LP}; kinds 3, 6 and 7 {W, La, Lb}; kind 8 {WIzq, WDer, La, Lb}.
inline void PonerCargas(VigaActual& v, long t, int tipo, const Filas& f) {
    const auto celda = [t](auto& col, long k) -> auto& {
        return col(t, k);
    };
    const auto w = [&f](std::size_t c) { return f.empty() ? 0 : f[0][c]; };
    switch (tipo) {
    case 1:
        v.W1(t) = static_cast<std::int32_t>(w(0));
        return;
    case 4:
        v.W4(t) = static_cast<std::int32_t>(w(0));
        return;
    case 5:
        v.W5(t) = static_cast<std::int32_t>(w(0));
        v.la5(t) = w(1);
        return;
    case 2:
        return Llenar(v.CantW2(t), f, celda, v.P, v.LP);
    case 3:
        return Llenar(v.CantW3(t), f, celda, v.W3_, v.La3_, v.Lb3_);
    case 6:
        return Llenar(v.CantW6(t), f, celda, v.W6_, v.La6_, v.Lb6_);
    case 7:
        return Llenar(v.CantW7(t), f, celda, v.W7_, v.La7_, v.Lb7_);
    case 8:
        return Llenar(v.CantW8(t), f, celda, v.WIzq8_, v.WDer8_, v.La8_, v.Lb8_);
    }
    throw std::invalid_argument("kinds of load go from 1 to 8");
}

// Loads of several kinds and spans, each as for PonerCargas.
struct Cargas {
    long tramo;
    int tipo;
    Filas filas;
};
inline void PonerCargas(VigaActual& v, const std::vector<Cargas>& lista) {
    for (const Cargas& c : lista) PonerCargas(v, c.tramo, c.tipo, c.filas);
}

} // namespace trevalo::prueba
