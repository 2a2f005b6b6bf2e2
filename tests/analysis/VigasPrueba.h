#pragma once
// Beams built for the analysis tests: straight concrete beams of given spans, with supports,
// springs, displaced joints and joint actions listed as the beam editor would store them.

#include <cmath>
#include <cstring>
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

struct ApoyoPrueba {
    std::int16_t junta;
    std::int16_t apoyo;
};
inline void PonerApoyos(VigaActual& v, const std::vector<ApoyoPrueba>& lista) {
    v.NJRest = static_cast<std::int16_t>(lista.size());
    v.R1.Redim(v.NJRest);
    v.Apoyo.Redim(v.NJRest);
    long k = 0;
    for (const auto& a : lista) {
        ++k;
        v.R1(k) = a.junta;
        v.Apoyo(k) = a.apoyo;
    }
}

struct ResortePrueba {
    std::int16_t junta;
    double SH, SV, SM;
};
inline void PonerResortes(VigaActual& v, const std::vector<ResortePrueba>& lista) {
    v.NJRes = static_cast<std::int16_t>(lista.size());
    v.R10.Redim(v.NJRes);
    v.SH10.Redim(v.NJRes);
    v.SV10.Redim(v.NJRes);
    v.SM10.Redim(v.NJRes);
    long k = 0;
    for (const auto& r : lista) {
        ++k;
        v.R10(k) = r.junta;
        v.SH10(k) = r.SH;
        v.SV10(k) = r.SV;
        v.SM10(k) = r.SM;
    }
}

struct AccionPrueba {
    std::int16_t junta;
    double QC1, QC2, QC3;
};
inline void PonerAcciones(VigaActual& v, const std::vector<AccionPrueba>& lista) {
    v.NAcc = static_cast<std::int16_t>(lista.size());
    v.R2.Redim(v.NAcc);
    v.QC1.Redim(v.NAcc);
    v.QC2.Redim(v.NAcc);
    v.QC3.Redim(v.NAcc);
    long k = 0;
    for (const auto& a : lista) {
        ++k;
        v.R2(k) = a.junta;
        v.QC1(k) = a.QC1;
        v.QC2(k) = a.QC2;
        v.QC3(k) = a.QC3;
    }
}

struct DesplazadaPrueba {
    std::int16_t junta;
    double XX, YY;
};
inline void PonerDesplazadas(VigaActual& v, const std::vector<DesplazadaPrueba>& lista) {
    v.NJDesp = static_cast<std::int16_t>(lista.size());
    v.R3.Redim(v.NJDesp);
    v.XX.Redim(v.NJDesp);
    v.YY.Redim(v.NJDesp);
    long k = 0;
    for (const auto& d : lista) {
        ++k;
        v.R3(k) = d.junta;
        v.XX(k) = d.XX;
        v.YY(k) = d.YY;
    }
}

// Same values bit for bit (so 0.0 and -0.0 differ, and a NaN equals itself).
inline bool MismosBits(const Arreglo<double>& a, const Arreglo<double>& b) {
    if (a.Ubound() != b.Ubound()) return false;
    for (long i = 1; i <= a.Ubound(); ++i)
        if (std::memcmp(&a(i), &b(i), sizeof(double)) != 0) return false;
    return true;
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

inline bool MismosResultados(const ResultadosViga& a, const ResultadosViga& b) {
    if (a.NJuntas != b.NJuntas) return false;
    for (const auto& [nombre, campo] : kCamposResultado)
        if (!MismosBits(a.*campo, b.*campo)) return false;
    return true;
}

} // namespace trevalo::prueba
