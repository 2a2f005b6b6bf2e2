// Solves beams whose answers are known in closed form and checks the results against the
// textbook expressions (Euler-Bernoulli and, with shear deformation, Timoshenko).

#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "analysis/AnalisisPrueba.h"
#include "analysis/AnalisisVigasP.h"
#include "analysis/CorteMomentoTramo.h"

namespace trevalo {
namespace {

using namespace prueba;

const double w = 1200;  // kgf/m
const double L = 6;     // m
const double Pc = 5000; // kgf
const double E = ModuloConcreto(250);
const double I = InerciaRectangular(0.3, 0.5);
const double A = 0.3 * 0.5;
const double G = E / 2.4;

struct Esperado {
    Arreglo<double> ResultadosViga::*campo;
    long i;
    double valor;
};

struct Caso {
    std::string nombre;
    Filas apoyos;
    void (*preparar)(VigaActual&, ProyectoActual&);
    std::vector<Esperado> esperados;
};

using R = ResultadosViga;

void Uniforme(VigaActual& v, ProyectoActual&) {
    for (long t = 1; t <= v.NT; ++t) v.W1(t) = static_cast<std::int32_t>(w);
}

// Moment at a rotational spring of stiffness k on the left end of a simply supported span.
double MomentoResorte(double k) {
    return k * (w * L * L * L / (24 * E * I)) / (1 + k * L / (3 * E * I));
}
const double kGiro = 2.0e6;   // kgf-m/rad
const double kVertical = 5e5; // kgf/m
const double deltaResorte = Pc / (kVertical + 3 * E * I / (L * L * L));

std::vector<Caso> Casos() {
    return {
        {"SimplementeApoyada",
         {{1, ApoyoFijo}, {2, ApoyoFijo}},
         Uniforme,
         {{&R::ReacV, 1, w * L / 2},
          {&R::CorJ, 1, w * L / 2},
          {&R::MomJ, 1, 0},
          {&R::GiroZ, 1, -w * L * L * L / (24 * E * I)},
          {&R::GiroZ, 2, w * L * L * L / (24 * E * I)}}},
        // A joint moment at a fixed end never enters ReacM.
        {"Empotrada",
         {{1, Empotramiento}, {2, Empotramiento}},
         [](auto& v, auto& p) {
             PonerAcciones(v, {{1, 4000, 0, 0}});
             Uniforme(v, p);
         },
         {{&R::MomI, 1, -w * L * L / 12},
          {&R::MomJ, 1, -w * L * L / 12},
          {&R::ReacM, 1, w * L * L / 12},
          {&R::ReacM, 2, -w * L * L / 12}}},
        {"EmpotradaApoyada",
         {{1, Empotramiento}, {2, RodilloEnX}},
         Uniforme,
         {{&R::ReacV, 1, 5 * w * L / 8},
          {&R::ReacV, 2, 3 * w * L / 8},
          {&R::MomI, 1, -w * L * L / 8},
          {&R::ReacM, 1, w * L * L / 8},
          {&R::GiroZ, 2, w * L * L * L / (48 * E * I)}}},
        {"Voladizo",
         {{1, Empotramiento}},
         Uniforme,
         {{&R::DespY, 2, w * L * L * L * L / (8 * E * I)},
          {&R::GiroZ, 2, -w * L * L * L / (6 * E * I)},
          {&R::MomI, 1, -w * L * L / 2},
          {&R::ReacM, 1, w * L * L / 2},
          {&R::ReacV, 1, w * L},
          {&R::CorJ, 1, 0}}},
        {"DosTramosIguales",
         {{1, ApoyoFijo}, {2, RodilloEnX}, {3, RodilloEnX}},
         Uniforme,
         {{&R::ReacV, 1, 0.375 * w * L},
          {&R::ReacV, 2, 1.25 * w * L},
          {&R::MomJ, 1, -w * L * L / 8},
          {&R::GiroZ, 2, 0}}},
        {"PuntualCentrada",
         {{1, ApoyoFijo}, {2, RodilloEnX}},
         [](auto& v, auto&) {
             PonerCargas(v, 1, 2, {{Pc, L / 2}});
         },
         {{&R::ReacV, 1, Pc / 2}, {&R::GiroZ, 1, -Pc * L * L / (16 * E * I)}}},
        {"ResorteVertical",
         {{1, Empotramiento}},
         [](auto& v, auto&) {
             PonerResortes(v, {{2, 0, kVertical, 0}});
             PonerAcciones(v, {{2, 0, Pc, 0}});
         },
         {{&R::DespY, 2, deltaResorte},
          {&R::ReacV, 2, kVertical * deltaResorte},
          {&R::ReacV, 1, Pc - kVertical * deltaResorte},
          {&R::ReacM, 1, (Pc - kVertical * deltaResorte) * L}}},
        {"ResorteGiro",
         {{1, ApoyoFijo}, {2, RodilloEnX}},
         [](auto& v, auto& p) {
             PonerResortes(v, {{1, 0, 0, kGiro}});
             Uniforme(v, p);
         },
         {{&R::MomI, 1, -MomentoResorte(kGiro)},
          {&R::ReacM, 1, MomentoResorte(kGiro)},
          {&R::GiroZ, 1, -MomentoResorte(kGiro) / kGiro},
          {&R::ReacV, 1, w * L / 2 + MomentoResorte(kGiro) / L}}},
        // A steel type reads B1 as area in cm2 and T1 as inertia in cm4, E from ModuloAcero.
        {"Acero",
         {{1, ApoyoFijo}, {2, RodilloEnX}},
         [](auto& v, auto& p) {
             v.OpcionConcreto = 2; // any value but 0 is steel
             v.B1(1) = 53.8;
             v.T1(1) = 8360;
             p.ModuloAcero = 2.1e6;
             Uniforme(v, p);
         },
         {{&R::GiroZ, 1, -w * L * L * L / (24 * 2.1e10 * 8360e-8)}}},
        {"VoladizoConCortante",
         {{1, Empotramiento}},
         [](auto& v, auto& p) {
             p.DEFCOR = true;
             PonerAcciones(v, {{2, 0, Pc, 0}});
         },
         {{&R::DespY, 2, Pc * L * L * L / (3 * E * I) + Pc * L * 1.2 / (G * A)},
          {&R::GiroZ, 2, -Pc * L * L / (2 * E * I)},
          {&R::MomI, 1, -Pc * L},
          {&R::ReacV, 1, Pc}}},
    };
}

void PrintTo(const Caso& c, std::ostream* os) {
    *os << c.nombre;
}

class FormasCerradas : public ::testing::TestWithParam<Caso> {};

TEST_P(FormasCerradas, CoincidenConLaTeoria) {
    const Caso& caso = GetParam();
    const long tramos = caso.nombre == "DosTramosIguales" ? 2 : 1;
    VigaActual v = VigaDeTramos(std::vector<double>(static_cast<std::size_t>(tramos), L));
    ProyectoActual p = ProyectoPrueba();
    PonerApoyos(v, caso.apoyos);
    caso.preparar(v, p);
    ResultadosViga r;
    AnalizarViga({}, p, v, r);
    for (const Esperado& e : caso.esperados) {
        const double obtenido = (r.*e.campo)(e.i);
        const bool desplazamiento =
            e.campo == &R::DespX || e.campo == &R::DespY || e.campo == &R::GiroZ;
        // Forces against the size of the load; displacements against their own size.
        const double escala =
            desplazamiento ? std::fabs(e.valor) : std::max(std::fabs(e.valor), w * L * L);
        EXPECT_NEAR(obtenido, e.valor, std::max(1e-9 * escala, 1e-15)) << "slot " << e.i;
    }
}

INSTANTIATE_TEST_SUITE_P(Vigas, FormasCerradas, ::testing::ValuesIn(Casos()),
                         [](const auto& info) { return info.param.nombre; });

// A supported joint reads exactly zero, not the tiny residue of the penalty, and as a
// positive zero.
TEST(FormasCerradas, ApoyoSinResiduo) {
    VigaActual v = VigaDeTramos({L, L});
    ProyectoActual p = ProyectoPrueba();
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}, {3, Empotramiento}});
    Uniforme(v, p);
    ResultadosViga r;
    AnalizarViga({}, p, v, r);
    for (double d : {r.DespX(1), r.DespY(1), r.DespY(2), r.DespX(3), r.DespY(3), r.GiroZ(3)}) {
        EXPECT_EQ(d, 0.0);
        EXPECT_FALSE(std::signbit(d));
    }
    EXPECT_NE(r.GiroZ(1), 0.0);
}

// An inclined span (horizontal 8 m, rise 6 m, true length 10 m) pinned at the foot and on a
// roller in X at the head, under W1 per metre of bar: vertical load (Gravedad 0) gives equal
// vertical reactions wL/2 and a mid-span moment of w c L^2 / 8; a load perpendicular to the
// bar (Gravedad 1) gives wL^2 / 2H at the head by moments about the foot.
TEST(FormasCerradas, TramoInclinado) {
    const double wi = 1000, H = 8, Li = 10, c = 0.8;
    for (std::uint8_t gravedad : {0, 1}) {
        VigaActual v = VigaDeTramos({H});
        ProyectoActual p = ProyectoPrueba();
        PonerDesplazadas(v, {{2, 0, -6}});
        PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}});
        v.W1(1) = static_cast<std::int32_t>(wi);
        v.Gravedad(1) = gravedad;
        ResultadosViga r;
        AnalizarViga({}, p, v, r);
        ASSERT_DOUBLE_EQ(r.LBarra(1), Li);
        const double cabeza = gravedad == 0 ? wi * Li / 2 : wi * Li * Li / (2 * H);
        const double escala = 1e-9 * wi * Li;
        EXPECT_NEAR(r.ReacV(2), cabeza, escala) << "Gravedad " << int(gravedad);
        EXPECT_NEAR(r.ReacV(1) + r.ReacV(2), gravedad == 0 ? wi * Li : wi * Li * c, escala);
        EXPECT_NEAR(r.ReacH(2), 0, escala);
        EXPECT_NEAR(r.MomI(1), 0, escala);
        EXPECT_NEAR(r.MomJ(1), 0, escala);
        double M = 0, V = 0;
        CorteMomentoTramo(v, r, 1, 0, Li, Li / 2, r.CosX(1), r.CosY(1), M, V);
        const double q = gravedad == 0 ? wi * c : wi;
        EXPECT_NEAR(M, q * Li * Li / 8, 1e-9 * q * Li * Li);
        EXPECT_NEAR(V, 0, escala);
    }
}

} // namespace
} // namespace trevalo
