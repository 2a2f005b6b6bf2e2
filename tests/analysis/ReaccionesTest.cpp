// The reaction passes and the readings of the beam that users rely on as they always were:
// springs whose stiffness is exactly 1.0, springs of no stiffness, joints both supported and
// on a spring, joint moments at fixed ends, steel types, type numbers rounded to even.

#include <cmath>

#include <gtest/gtest.h>

#include "analysis/AnalisisVigasP.h"
#include "analysis/VigasPrueba.h"

namespace trevalo {
namespace {

using namespace prueba;

ResultadosViga Resolver(const VigaActual& v, ProyectoActual p = ProyectoPrueba()) {
    ResultadosViga r;
    AnalizarViga({}, p, v, r);
    return r;
}

// A horizontal action at a spring joint reaches ReacH only when the horizontal stiffness is
// exactly 1.0; with any other stiffness it still moves the joint.
TEST(Reacciones, AccionHorizontalEnResorte) {
    const double QC3 = 1000;
    const auto reaccion = [&](double SH, double& despX) {
        VigaActual v = VigaRecta({6});
        PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}});
        PonerResortes(v, {{2, SH, 0, 0}});
        PonerAcciones(v, {{2, 0, 0, QC3}});
        const ResultadosViga r = Resolver(v);
        despX = r.DespX(2);
        EXPECT_DOUBLE_EQ(r.ReacH(2), r.AxiJ(1) - (SH == 1.0 ? QC3 : 0)) << "SH10 = " << SH;
        return r.ReacH(2);
    };
    double d2, d1;
    const double h2 = reaccion(2, d2);
    const double h1 = reaccion(1, d1);
    // The bar carries the action in compression: AxiJ is -QC3 to 1e-7.
    EXPECT_NEAR(h2, -QC3, 1e-4);
    EXPECT_NEAR(h1, -2 * QC3, 1e-4);
    const double EA_L = ModuloConcreto(250) * 0.15 / 6;
    EXPECT_NEAR(d2, -QC3 / (EA_L + 2), 1e-9 * QC3 / EA_L);
}

// A spring of no stiffness changes nothing, and its ReacV stays exactly zero.
TEST(Reacciones, ResorteSinRigidez) {
    VigaActual v = VigaRecta({5});
    v.W1(1) = 2000;
    PonerApoyos(v, {{1, Empotramiento}});
    const ResultadosViga sin = Resolver(v);
    PonerResortes(v, {{2, 0, 0, 0}});
    const ResultadosViga con = Resolver(v);
    EXPECT_TRUE(MismosResultados(sin, con));
    EXPECT_EQ(con.ReacV(2), 0.0);
    EXPECT_NE(con.DespY(2), 0.0);
}

// A joint both supported and on a spring collects the bar terms of both passes.
TEST(Reacciones, ApoyoYResorteEnLaMismaJunta) {
    const double w = 1500, L = 5;
    VigaActual v = VigaRecta({L});
    v.W1(1) = static_cast<std::int32_t>(w);
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}});
    PonerResortes(v, {{2, 0, 1e6, 0}});
    const ResultadosViga r = Resolver(v);
    EXPECT_NEAR(r.ReacV(1), w * L / 2, 1e-6);
    EXPECT_NEAR(r.ReacV(2), w * L, 1e-6);
}

// A support listed twice contributes twice; a support kind outside 1..4 holds nothing.
TEST(Reacciones, ListasRepetidasYTiposDesconocidos) {
    const double w = 1500, L = 5;
    VigaActual v = VigaRecta({L});
    v.W1(1) = static_cast<std::int32_t>(w);
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}, {2, RodilloEnX}});
    EXPECT_NEAR(Resolver(v).ReacV(2), w * L, 1e-6);

    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}});
    const ResultadosViga base = Resolver(v);
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}, {1, 7}});
    EXPECT_TRUE(MismosResultados(base, Resolver(v)));
}

// A joint moment at a fixed end never enters ReacM.
TEST(Reacciones, MomentoEnEmpotramiento) {
    const double w = 1000, L = 6;
    VigaActual v = VigaRecta({L});
    v.W1(1) = static_cast<std::int32_t>(w);
    PonerApoyos(v, {{1, Empotramiento}, {2, Empotramiento}});
    PonerAcciones(v, {{1, 4000, 0, 0}});
    const ResultadosViga r = Resolver(v);
    EXPECT_NEAR(r.ReacM(1), w * L * L / 12, 1e-6);
    EXPECT_NEAR(r.MomI(1), -w * L * L / 12, 1e-6);
}

// Shear deformation needs an area: a steel type of area 0 keeps p = 0.
TEST(Reacciones, CortanteSinArea) {
    VigaActual v = VigaRecta({5, 4});
    v.OpcionConcreto = 1;
    v.B1(1) = 0;
    v.T1(1) = 25000;
    v.W1(1) = 900;
    v.W1(2) = 1400;
    PonerApoyos(v, {{1, ApoyoFijo}, {2, ApoyoFijo}, {3, Empotramiento}});
    ProyectoActual p = ProyectoPrueba();
    const ResultadosViga sin = Resolver(v, p);
    p.DEFCOR = true;
    EXPECT_TRUE(MismosResultados(sin, Resolver(v, p)));
}

// A steel type reads B1 as area in cm2 and T1 as inertia in cm4, E from ModuloAcero.
TEST(Reacciones, VigaDeAcero) {
    const double w = 800, L = 7, I = 8360e-8, E = 2.1e6 * 1e4;
    VigaActual v = VigaRecta({L});
    v.OpcionConcreto = 2; // any value but 0 is steel
    v.B1(1) = 53.8;
    v.T1(1) = 8360;
    v.W1(1) = static_cast<std::int32_t>(w);
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}});
    ProyectoActual p = ProyectoPrueba();
    p.ModuloAcero = 2.1e6;
    const ResultadosViga r = Resolver(v, p);
    const double giro = w * L * L * L / (24 * E * I);
    EXPECT_NEAR(r.GiroZ(1), -giro, 1e-9 * giro);
    p.PPV = true; // 7850 x 53.8 / 10000 = 42.2 -> 42 kgf/m
    EXPECT_NEAR(Resolver(v, p).ReacV(1), (w + 42) * L / 2, 1e-6);
}

// VT is a double rounded to even: 2.5 selects type 2 and 3.5 type 4.
TEST(Reacciones, TipoRedondeadoAlPar) {
    VigaActual v = VigaRecta({6});
    v.NTipos = 4;
    v.B1.Redim(4);
    v.T1.Redim(4);
    v.Designacion.Redim(4);
    const double alturas[] = {0.3, 0.4, 0.5, 0.6};
    for (long k = 1; k <= 4; ++k) {
        v.B1(k) = 0.3;
        v.T1(k) = alturas[k - 1];
    }
    v.W1(1) = 1000;
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}});
    const double E = ModuloConcreto(250), giroBase = 1000 * 216 / (24 * E);
    const std::pair<double, double> casos[] = {{2.5, 0.4}, {3.5, 0.6}, {1.4, 0.3}};
    for (const auto& [vt, h] : casos) {
        v.VT(1) = vt;
        const double esperado = -giroBase / InerciaRectangular(0.3, h);
        EXPECT_NEAR(Resolver(v).GiroZ(1), esperado, 1e-9 * std::fabs(esperado)) << "VT " << vt;
    }
}

// A joint listed twice among the displaced joints moves twice.
TEST(Reacciones, JuntaDesplazadaDosVeces) {
    VigaActual v = VigaRecta({4, 4});
    PonerApoyos(v, {{1, ApoyoFijo}, {3, ApoyoFijo}});
    PonerDesplazadas(v, {{2, 0.1, -0.3}, {2, 0.1, -0.3}});
    const ResultadosViga r = Resolver(v);
    EXPECT_DOUBLE_EQ(r.XJunta(2), 4.2);
    EXPECT_DOUBLE_EQ(r.YJunta(2), -0.6);
    EXPECT_DOUBLE_EQ(r.LBarra(1), std::sqrt(4.2 * 4.2 + 0.36));
    EXPECT_DOUBLE_EQ(r.CosY(2), 0.6 / std::sqrt(3.8 * 3.8 + 0.36));
}

} // namespace
} // namespace trevalo
