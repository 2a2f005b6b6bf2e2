#include "design/AceroFlexion.h"

#include <cmath>

#include "design/Cociente.h"
#include "design/SeccionConcreto.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

constexpr double IndiceAcero = 0.18; // w of the limit moment
constexpr double FactorFlexion = 0.9;
constexpr double EsPorDeformacion = 6300; // Es x 0.003, kgf/cm2

struct Flexion {
    double AsTraccion = 0;
    double AsCompresion = 0;
    bool Excede = false;
};

double Beta1(double fc) {
    return fc > 280 ? 0.85 - (fc - 280) * 0.05 / 70 : 0.85;
}

Flexion DobleArmado(const ProyectoActual& p, const SeccionConcreto& s, double Mn, double Mlim,
                    double j) {
    const double FY = p.FY, d = s.d, dp = s.dp;
    const double M2 = Mn - Mlim;
    const double As1 = Cociente(Mlim, FY * j * d);
    const double As2 = Cociente(M2, (d - dp) * FY);
    const double As = As1 + As2;
    const double beta = Beta1(p.FC);
    const double a = IndiceAcero * d / 0.85;
    const double c = Cociente(a, beta);
    double fs = Cociente(c - dp, c) * EsPorDeformacion;
    if (fs > FY) fs = FY; // a negative fs is kept
    const double Asp = Cociente(M2, (d - dp) * fs);
    const double rho = Cociente(As, s.b * d);
    const double rhop = Cociente(Asp, s.b * d);
    const double rhob =
        0.85 * beta * Cociente(EsPorDeformacion, EsPorDeformacion + FY) * Cociente(p.FC, FY);
    const double T = EsPorDeformacion - Cociente(dp, d) * (EsPorDeformacion + FY);
    const double rhomax = 0.5 * rhob + rhop * Cociente(T, FY);
    return {As, Asp, rho > rhomax};
}

Flexion SimpleArmado(const ProyectoActual& p, const SeccionConcreto& s, double Mn) {
    const double m = Cociente(Mn, s.d * s.d * p.FC * s.b);
    const double g = 1 - 2 * m / 0.85;
    if (g < 0) return {};
    const double w2 = (1 - std::sqrt(g)) * 0.85;
    const double j2 = 1 - 0.59 * w2;
    return {Cociente(Mn, p.FY * j2 * s.d), 0, false};
}

} // namespace

void AceroFlexion(const ProyectoActual& proyecto, const VigaActual& viga, std::int16_t t, double Mu,
                  double& AsSup, double& AsInf, bool& Excede) {
    const double Mn = RoundKorvel(std::fabs(Mu), 0) * 100 / FactorFlexion;
    const SeccionConcreto s = SeccionDelTramo(proyecto, viga, t);
    const double j = 1 - 0.59 * IndiceAcero;
    const double R = proyecto.FC * IndiceAcero * j;
    const double Mlim = s.d * s.d * R * s.b;

    const Flexion f =
        Mn <= Mlim ? SimpleArmado(proyecto, s, Mn) : DobleArmado(proyecto, s, Mn, Mlim, j);
    Excede = f.Excede;
    if (Mu < 0) {
        AsSup = f.AsTraccion;
        AsInf = f.AsCompresion;
    } else {
        AsSup = f.AsCompresion;
        AsInf = f.AsTraccion;
    }
    // Both faces get the minimum in every case, a section with no moment included.
    const double Amin = Cociente(14, proyecto.FY) * s.b * s.d;
    if (AsSup < Amin) AsSup = Amin;
    if (AsInf < Amin) AsInf = Amin;
}

} // namespace trevalo
