#include "design/SeparacionEstribos.h"

#include <algorithm>
#include <cmath>

#include "design/Cociente.h"
#include "design/SeccionConcreto.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

constexpr double AreaRama = 0.71; // cm2, one leg of a 3/8" bar
constexpr double FactorCorte = 0.85;
constexpr double SeparacionMinimaDosRamas = 8; // cm

// 1 when the span has a support at its outer end: always for an interior span; for the first
// or last span, when its outer joint is restrained (springs do not count). A one-span beam
// takes either joint.
bool ApoyoExtremo(const VigaActual& v, std::int16_t t) {
    if (t != 1 && t != v.NT) return true;
    for (long k = 1; k <= v.NJRest; ++k) {
        if (t == 1 && v.R1(k) == t) return true;
        if (t == v.NT && v.R1(k) == t + 1) return true;
    }
    return false;
}

// The first restraint of the joint that is a fixed support or a built-in end; rollers are
// passed over.
bool JuntaConfinada(const VigaActual& v, long junta) {
    for (long k = 1; k <= v.NJRest; ++k)
        if (v.R1(k) == junta && (v.Apoyo(k) == ApoyoFijo || v.Apoyo(k) == Empotramiento))
            return true;
    return false;
}

} // namespace

void SeparacionEstribos(const ProyectoActual& proyecto, const VigaActual& viga, std::int16_t t,
                        double Vu, double x, double L, std::string& Texto) {
    const double Vn = std::fabs(Vu) / FactorCorte;
    const SeccionConcreto s = SeccionDelTramo(proyecto, viga, t);
    if (proyecto.FC < 0) throw ErrorTrevalo::LlamadaNoValida();
    const double Vc = 0.53 * std::sqrt(proyecto.FC) * s.b * s.d;
    const double Vs = Vn - Vc;
    int Ramas = 2;
    double S;
    if (Vs > 0) {
        S = Cociente(AreaRama * Ramas * proyecto.FY * s.d, Vs);
        if (S < SeparacionMinimaDosRamas) {
            Ramas = 4;
            S = Cociente(AreaRama * Ramas * proyecto.FY * s.d, Vs);
        }
        if (s.d / 2 < S) S = s.d / 2;
    } else {
        S = s.d / 2;
    }

    if (proyecto.OpcionEstribos && ApoyoExtremo(viga, t)) {
        const double T1 = viga.T1(CI(viga.VT(t)));
        const bool izquierda = x < 2 * T1 && JuntaConfinada(viga, t);
        const bool derecha = x > L - 2 * T1 && JuntaConfinada(viga, t + 1);
        if (izquierda || derecha) S = std::min(S, s.d / 4);
    }

    Texto = "@" + Formato(S, "00");
    if (Ramas != 2) Texto += " (" + std::to_string(Ramas) + "R)";
}

} // namespace trevalo
