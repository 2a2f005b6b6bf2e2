#pragma once
// What the analysis tests share: project settings for closed forms, the stiffness of a
// concrete type worked out independently, and a bit-for-bit comparison of results.

#include <cmath>
#include <cstring>
#include <utility>

#include "comun/Vigas.h"

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
