// After a solve the reactions balance the loads: forces in both directions and moments about
// the origin, over many random beams.

#include <cmath>

#include <gtest/gtest.h>

#include "analysis/AnalisisVigasP.h"
#include "analysis/CorteMomentoTramo.h"
#include "analysis/FuerzasEmpotramiento.h"
#include "analysis/VigasAleatorias.h"

namespace trevalo {
namespace {

using namespace prueba;

// Sums of forces and of moments about the origin, moments in the sense of positive GiroZ
// (from +Y towards +X): a force (Fx, Fy) at (x, y) gives y Fx - x Fy.
struct Balance {
    double FX = 0, FY = 0, M = 0, magnitud = 0;
    void Fuerza(double x, double y, double Fx, double Fy) {
        FX += Fx;
        FY += Fy;
        M += y * Fx - x * Fy;
        magnitud += std::fabs(Fx) + std::fabs(Fy);
    }
};

// The loads of a level span from their shapes alone, each resultant at its centroid.
void CargasDelTramo(const ProyectoActual& p, const VigaActual& v, double x0, long t, Balance& b) {
    const double L = v.LT(t);
    const auto fuerza = [&](double f, double x) { b.Fuerza(x0 + x, 0, 0, f); };
    fuerza((v.W1(t) + PesoPropioTramo(p, v, static_cast<std::int16_t>(t))) * L, L / 2);
    for (long k = 1; k <= v.CantW2(t); ++k) fuerza(v.P(t, k), v.LP(t, k));
    for (long k = 1; k <= v.CantW3(t); ++k) {
        const double a = v.La3_(t, k), b = v.Lb3_(t, k);
        fuerza(v.W3_(t, k) * (b - a), (a + b) / 2);
    }
    fuerza(v.W4(t) * L / 2, L / 2);
    if (v.W5(t) != 0) fuerza(v.W5(t) * (L - v.la5(t)), L / 2);
    for (long k = 1; k <= v.CantW6(t); ++k) {
        const double a = v.La6_(t, k), e = v.Lb6_(t, k) - a;
        fuerza(v.W6_(t, k) * e / 2, a + 2 * e / 3);
    }
    for (long k = 1; k <= v.CantW7(t); ++k) {
        const double a = v.La7_(t, k), e = v.Lb7_(t, k) - a;
        fuerza(v.W7_(t, k) * e / 2, a + e / 3);
    }
    for (long k = 1; k <= v.CantW8(t); ++k) {
        const double a = v.La8_(t, k), e = v.Lb8_(t, k) - a;
        const double wi = v.WIzq8_(t, k), wd = v.WDer8_(t, k);
        fuerza(wi * e, a + e / 2);
        fuerza((wd - wi) * e / 2, a + 2 * e / 3);
    }
}

// Inclined spans: the loads enter as the equivalent joint loads of each bar.
void CargasDeBarra(const ProyectoActual& p, const VigaActual& v, const ResultadosViga& r, long t,
                   Balance& b) {
    const double c = r.CosX(t), s = r.CosY(t);
    FuerzasExtremos f;
    FuerzasEmpotramientoTramo(p, v, static_cast<std::int16_t>(t), r.LBarra(t), s, c, f);
    const long i = r.JuntaI(t), j = r.JuntaJ(t);
    b.Fuerza(r.XJunta(i), r.YJunta(i), c * f.NI - s * f.VI, s * f.NI + c * f.VI);
    b.Fuerza(r.XJunta(j), r.YJunta(j), c * f.NJ - s * f.VJ, s * f.NJ + c * f.VJ);
    b.M += f.MJ - f.MI;
}

// Level beams with vertical springs at free joints, then beams with displaced joints.
TEST(Equilibrio, ReaccionesContraCargas) {
    for (const bool inclinadas : {false, true}) {
        GeneradorVigas gen(inclinadas ? 11 : 7);
        for (int caso = 0; caso < 200; ++caso) {
            ProyectoActual p = gen.Proyecto();
            const VigaActual v =
                gen.Viga({.inclinadas = inclinadas, .resortes = !inclinadas, .libre = false});
            ResultadosViga r;
            AnalizarViga({}, p, v, r);
            Balance b;
            for (long t = 1; t <= v.NT; ++t)
                inclinadas ? CargasDeBarra(p, v, r, t, b) : CargasDelTramo(p, v, r.XJunta(t), t, b);
            for (long k = 1; k <= v.NAcc; ++k) {
                const long n = v.R2(k);
                b.Fuerza(r.XJunta(n), r.YJunta(n), -v.QC3(k), v.QC2(k));
                b.M -= v.QC1(k);
            }
            for (long n = 1; n <= r.NJuntas; ++n) {
                b.Fuerza(r.XJunta(n), r.YJunta(n), -r.ReacH(n), -r.ReacV(n));
                b.M += r.ReacM(n);
            }
            const double tol = 1e-9 * b.magnitud;
            EXPECT_NEAR(b.FX, 0, tol) << "caso " << caso << (inclinadas ? " inclinada" : "");
            EXPECT_NEAR(b.FY, 0, tol) << "caso " << caso << (inclinadas ? " inclinada" : "");
            EXPECT_NEAR(b.M, 0, tol * r.XJunta(r.NJuntas)) << "caso " << caso;
        }
    }
}

} // namespace
} // namespace trevalo
