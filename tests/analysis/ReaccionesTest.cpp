// The reaction passes and the readings of the beam that users rely on as they always were:
// springs whose stiffness is exactly 1.0, springs of no stiffness, joints both supported and
// on a spring, type numbers rounded to even, joints displaced twice.

#include <cmath>

#include <gtest/gtest.h>

#include "analysis/AnalisisPrueba.h"
#include "analysis/AnalisisVigasP.h"
#include "comun/Aserciones.h"

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
    const double QC3 = 1000, EA_L = ModuloConcreto(250) * 0.15 / 6;
    for (const double SH : {1.0, 2.0}) {
        VigaActual v = VigaDeTramos({6});
        PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}});
        PonerResortes(v, {{2, SH, 0, 0}});
        PonerAcciones(v, {{2, 0, 0, QC3}});
        const ResultadosViga r = Resolver(v);
        // The bar carries the action in compression: AxiJ is -QC3 to 1e-7.
        EXPECT_NEAR(r.ReacH(2), SH == 1.0 ? -2 * QC3 : -QC3, 1e-4) << "SH10 = " << SH;
        EXPECT_NEAR(r.DespX(2), -QC3 / (EA_L + SH), 1e-9 * QC3 / EA_L) << "SH10 = " << SH;
    }
}

// A spring of no stiffness changes nothing, and its ReacV stays exactly zero; a support
// kind outside 1..4 holds nothing.
TEST(Reacciones, EntradasSinEfecto) {
    VigaActual v = VigaDeTramos({5});
    v.W1(1) = 2000;
    PonerApoyos(v, {{1, Empotramiento}});
    const ResultadosViga sin = Resolver(v);
    PonerResortes(v, {{2, 0, 0, 0}});
    PonerApoyos(v, {{1, Empotramiento}, {2, 7}});
    const ResultadosViga con = Resolver(v);
    EXPECT_STREQ(PrimeraDiferencia(sin, con), nullptr);
    EXPECT_EQ(con.ReacV(2), 0.0);
    EXPECT_NE(con.DespY(2), 0.0);
}

// A joint both supported and on a spring collects the bar terms of both passes, and so does
// a support listed twice.
TEST(Reacciones, JuntaContadaDosVeces) {
    const double w = 1500, L = 5;
    VigaActual v = VigaDeTramos({L});
    v.W1(1) = static_cast<std::int32_t>(w);
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}});
    PonerResortes(v, {{2, 0, 1e6, 0}});
    const ResultadosViga r = Resolver(v);
    EXPECT_NEAR(r.ReacV(1), w * L / 2, 1e-6);
    EXPECT_NEAR(r.ReacV(2), w * L, 1e-6);
    PonerResortes(v, {});
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}, {2, RodilloEnX}});
    EXPECT_NEAR(Resolver(v).ReacV(2), w * L, 1e-6);
}

// Shear deformation needs an area: a steel type of area 0 keeps p = 0.
TEST(Reacciones, CortanteSinArea) {
    VigaActual v = VigaDeTramos({5, 4});
    v.OpcionConcreto = 1;
    v.B1(1) = 0;
    v.T1(1) = 25000;
    v.W1(1) = 900;
    v.W1(2) = 1400;
    PonerApoyos(v, {{1, ApoyoFijo}, {2, ApoyoFijo}, {3, Empotramiento}});
    ProyectoActual p = ProyectoPrueba();
    const ResultadosViga sin = Resolver(v, p);
    p.DEFCOR = true;
    EXPECT_STREQ(PrimeraDiferencia(sin, Resolver(v, p)), nullptr);
}

// VT is a double rounded to even: 2.5 selects type 2 and 3.5 type 4.
TEST(Reacciones, TipoRedondeadoAlPar) {
    VigaActual v = VigaDeTramos({6});
    PonerTipos(v, {{0.3, 0.3}, {0.3, 0.4}, {0.3, 0.5}, {0.3, 0.6}});
    v.W1(1) = 1000;
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}});
    const double giroBase = 1000 * 216 / (24 * ModuloConcreto(250));
    for (const auto& [vt, h] : {std::pair{2.5, 0.4}, std::pair{3.5, 0.6}}) {
        v.VT(1) = vt;
        const double esperado = -giroBase / InerciaRectangular(0.3, h);
        EXPECT_CERCA(Resolver(v).GiroZ(1), esperado, 1e-9) << "VT " << vt;
    }
}

// A joint listed twice among the displaced joints moves twice.
TEST(Reacciones, JuntaDesplazadaDosVeces) {
    VigaActual v = VigaDeTramos({4, 4});
    PonerApoyos(v, {{1, ApoyoFijo}, {3, ApoyoFijo}});
    PonerDesplazadas(v, {{2, 0.1, -0.3}, {2, 0.1, -0.3}});
    const ResultadosViga r = Resolver(v);
    EXPECT_DOUBLE_EQ(r.XJunta(2), 4.2);
    EXPECT_DOUBLE_EQ(r.YJunta(2), -0.6);
    EXPECT_DOUBLE_EQ(r.LBarra(1), std::sqrt(4.2 * 4.2 + 0.36));
}

} // namespace
} // namespace trevalo
