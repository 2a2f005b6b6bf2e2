#pragma once
// Beams built for the analysis tests: straight concrete beams of given spans, with supports,
// springs, displaced joints and joint actions listed as the beam editor would store them.

#include <cmath>
#include <cstring>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/Viga.h"

namespace trevalo::prueba {

// Project settings for closed forms: no own weight, no shear deformation.
inline ProyectoActual ProyectoPrueba() {
    ProyectoActual p;
    p.PPV = false;
    p.DEFCOR = false;
    p.FC = 250;
    p.CFormaConcreto = 1.2;
    p.CFormaAcero = 1.2;
    return p;
}

// Modulus (kgf/m2) and inertia (m4) of the concrete type b x h under FC, computed here from
// the textbook expressions, independently of the analysis.
inline double ModuloConcreto(double fc) {
    return 15100.0 * std::sqrt(fc) * 1.0e4;
}
inline double InerciaRectangular(double b, double h) {
    return b * h * h * h / 12.0;
}

// A straight beam with the given span lengths, all of type 1 (b x h), no supports.
inline VigaActual VigaRecta(std::vector<double> luces, double b = 0.3, double h = 0.5) {
    VigaActual v;
    NuevaVigaDefecto(v);
    v.NT = static_cast<std::int16_t>(luces.size());
    RedimensionarViga(v);
    for (long t = 1; t <= v.NT; ++t) {
        v.LT(t) = luces[static_cast<std::size_t>(t - 1)];
        v.VT(t) = 1;
        v.FMayorTramo(t) = 1.5;
    }
    v.B1(1) = b;
    v.T1(1) = h;
    v.NJRest = 0;
    v.R1.Redim(0);
    v.Apoyo.Redim(0);
    return v;
}

// One row per listed joint: the joint, then the values of the list's other columns.
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

// A list of joints: the columns are sized to the rows.
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
// {joint, QC1, QC2, QC3}
inline void PonerAcciones(VigaActual& v, const Filas& f) {
    PonerLista(v.NAcc, f, v.R2, v.QC1, v.QC2, v.QC3);
}
// {joint, XX, YY}
inline void PonerDesplazadas(VigaActual& v, const Filas& f) {
    PonerLista(v.NJDesp, f, v.R3, v.XX, v.YY);
}

// Every result list of ResultadosViga, by name.
inline const std::pair<const char*, Arreglo<double> ResultadosViga::*> kCamposResultado[] = {
    {"XJunta", &ResultadosViga::XJunta}, {"YJunta", &ResultadosViga::YJunta},
    {"LBarra", &ResultadosViga::LBarra}, {"CosX", &ResultadosViga::CosX},
    {"CosY", &ResultadosViga::CosY},     {"DespX", &ResultadosViga::DespX},
    {"DespY", &ResultadosViga::DespY},   {"GiroZ", &ResultadosViga::GiroZ},
    {"AxiI", &ResultadosViga::AxiI},     {"AxiJ", &ResultadosViga::AxiJ},
    {"CorI", &ResultadosViga::CorI},     {"CorJ", &ResultadosViga::CorJ},
    {"MomI", &ResultadosViga::MomI},     {"MomJ", &ResultadosViga::MomJ},
    {"ReacV", &ResultadosViga::ReacV},   {"ReacH", &ResultadosViga::ReacH},
    {"ReacM", &ResultadosViga::ReacM}};

// Same values bit for bit (so 0.0 and -0.0 differ, and a NaN equals itself); the name of the
// first list that differs, or null.
inline const char* PrimeraDiferencia(const ResultadosViga& a, const ResultadosViga& b) {
    if (a.NJuntas != b.NJuntas) return "NJuntas";
    for (const auto& [nombre, campo] : kCamposResultado) {
        const Arreglo<double>&x = a.*campo, &y = b.*campo;
        if (x.Ubound() != y.Ubound()) return nombre;
        for (long i = 1; i <= x.Ubound(); ++i)
            if (std::memcmp(&x(i), &y(i), sizeof(double)) != 0) return nombre;
    }
    return nullptr;
}

} // namespace trevalo::prueba
