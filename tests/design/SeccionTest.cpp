// Section design against hand calculations (strength method, kgf and cm). The expected
// areas were worked out independently of this code from the textbook formulas: singly
// reinforced As = Mn / (fy j2 d), doubly reinforced As = Mlim / (fy j d) + M2 / ((d - d') fy),
// compression steel M2 / ((d - d') fs), minimum 14/fy b d.

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>

#include "comun/Aserciones.h"
#include "comun/Vigas.h"
#include "design/AceroFlexion.h"
#include "design/SeparacionEstribos.h"

namespace trevalo {
namespace {

struct Caso {
    ProyectoActual proyecto;
    VigaActual viga;
};

// One span of 5 m, type b x h in metres, fixed supports at both joints.
Caso Seccion(double fc, double fy, double d8, double b1, double t1) {
    Caso c;
    c.proyecto.FC = fc;
    c.proyecto.FY = fy;
    c.proyecto.D8 = d8;
    NuevaVigaDefecto(c.viga);
    c.viga.LT(1) = 5;
    c.viga.B1(1) = b1;
    c.viga.T1(1) = t1;
    return c;
}

struct CasoFlexion {
    const char* nombre;
    double fc, fy, d8, b1, t1, Mu;
    double AsSup, AsInf;
    bool Excede;
};

class Flexion : public ::testing::TestWithParam<CasoFlexion> {};

TEST_P(Flexion, AreasDeAcero) {
    const CasoFlexion& k = GetParam();
    Caso c = Seccion(k.fc, k.fy, k.d8, k.b1, k.t1);
    double sup = -1, inf = -1;
    bool excede = !k.Excede;
    AceroFlexion(c.proyecto, c.viga, 1, k.Mu, sup, inf, excede);
    EXPECT_CERCA(sup, k.AsSup, 1e-9) << k.nombre;
    EXPECT_CERCA(inf, k.AsInf, 1e-9) << k.nombre;
    EXPECT_EQ(excede, k.Excede) << k.nombre;
}

// Section 30 x 50 cm, d = 45 cm unless said: Amin = 14/4200 x 30 x 45 = 4.5 cm2; the limit
// moment at w = 0.18 is Mu = 18,472.3 kgf-m at f'c 210.
INSTANTIATE_TEST_SUITE_P(
    Casos, Flexion,
    ::testing::Values(
        CasoFlexion{"sin momento: Amin en ambas caras", 210, 4200, .05, .3, .5, 0, 4.5, 4.5, false},
        CasoFlexion{"0.4 se redondea a 0", 210, 4200, .05, .3, .5, 0.4, 4.5, 4.5, false},
        CasoFlexion{"Amin con otra seccion", 210, 2800, .06, .25, .45, 0, 4.875, 4.875, false},
        CasoFlexion{"simple positivo", 210, 4200, .05, .3, .5, 10000, 4.5, 6.21663636054, false},
        CasoFlexion{"0.4 de mas no cambia nada", 210, 4200, .05, .3, .5, 10000.4, 4.5,
                    6.21663636054, false},
        CasoFlexion{"simple negativo", 210, 4200, .05, .3, .5, -10000, 6.21663636054, 4.5, false},
        CasoFlexion{"simple, seccion baja", 210, 4200, .1, .3, .3, 3000, 2, 4.33829286425, false},
        CasoFlexion{"doble positivo", 210, 4200, .05, .3, .5, 30000, 9.1744539037, 19.7741410913,
                    false},
        CasoFlexion{"doble negativo: traccion arriba", 210, 4200, .05, .3, .5, -30000,
                    19.7741410913, 9.1744539037, false},
        CasoFlexion{"doble muy cargado", 210, 4200, .05, .3, .5, 150000, 104.677836315,
                    99.1392204563, false},
        CasoFlexion{"fc 280: beta 0.85", 280, 4200, .05, .3, .5, 40000, 12.2326052049, 26.365521455,
                    false},
        CasoFlexion{"fc 350: beta 0.80", 350, 4200, .05, .3, .5, 40000, 7.00063491641, 26.343145205,
                    false},
        CasoFlexion{"fc 420: beta 0.75", 420, 4200, .05, .3, .5, 60000, 16.7614704907,
                    39.5482821825, false},
        // d = 20, d' = 10: the compression steel's stress comes out negative and is kept,
        // which makes the limit smaller than the tension steel.
        CasoFlexion{"fs negativo se conserva", 210, 4200, .1, .3, .3, 5000, 2, 8.97447322751, true},
        CasoFlexion{"fs negativo, momento negativo", 210, 4200, .1, .3, .3, -5000, 8.97447322751, 2,
                    true}),
    [](const auto& info) { return "caso" + std::to_string(info.index); });

// f'c chosen so that the limit moment equals Mn = 10000 x 100 / 0.9 to the last bit: there
// the section stays singly reinforced; one unit of the last place less and it is doubly
// reinforced, with a slightly greater area.
TEST(FlexionFrontera, MnIgualAMlimEsSimple) {
    const double fc = 113.68374004316594;
    for (const auto& [f, esperado] :
         {std::pair{fc, 6.57710147987132}, std::pair{std::nextafter(fc, 0.0), 6.57741638821174}}) {
        Caso c = Seccion(f, 4200, .05, .3, .5);
        double sup = 0, inf = 0;
        bool excede = true;
        AceroFlexion(c.proyecto, c.viga, 1, 10000, sup, inf, excede);
        EXPECT_NEAR(inf, esperado, 1e-12);
        EXPECT_DOUBLE_EQ(sup, 4.5);
        EXPECT_FALSE(excede);
    }
}

TEST(FlexionFallos, DivisionesSinSentido) {
    double sup = 0, inf = 0;
    bool excede = false;
    // fy = 0 with a moment: 11. f'c = 0 without a moment: Mn = Mlim = 0 stays singly
    // reinforced and divides 0 by 0, which is the overflow of the runtime.
    Caso sinFy = Seccion(210, 0, .05, .3, .5);
    EXPECT_TREVALO_ERROR(AceroFlexion(sinFy.proyecto, sinFy.viga, 1, 10000, sup, inf, excede), 11,
                         "División por cero");
    Caso sinFc = Seccion(0, 4200, .05, .3, .5);
    EXPECT_TREVALO_ERROR(AceroFlexion(sinFc.proyecto, sinFc.viga, 1, 0, sup, inf, excede), 6,
                         "Desbordamiento");
    // d = d' = 5 cm: the lever arm of the compression steel is nil.
    Caso plana = Seccion(210, 4200, .05, .3, .1);
    EXPECT_TREVALO_ERROR(AceroFlexion(plana.proyecto, plana.viga, 1, 1000, sup, inf, excede), 11,
                         "División por cero");
    // A beam type beyond the list.
    Caso sinTipo = Seccion(210, 4200, .05, .3, .5);
    sinTipo.viga.VT(1) = 2;
    EXPECT_TREVALO_ERROR(AceroFlexion(sinTipo.proyecto, sinTipo.viga, 1, 0, sup, inf, excede), 9,
                         "El subíndice está fuera del intervalo");
}

std::string Estribos(const Caso& c, std::int16_t t, double Vu, double x, double L) {
    std::string texto = "sin valor";
    SeparacionEstribos(c.proyecto, c.viga, t, Vu, x, L, texto);
    return texto;
}

struct CasoCortante {
    double d8, b1, t1, Vu;
    const char* texto;
};

class Cortante : public ::testing::TestWithParam<CasoCortante> {};

// Without confinement: Vc = 0.53 sqrt(210) b d = 10,368.6 kgf for 30 x 45; two legs while
// 0.71 x 2 x 4200 x d / Vs is 8 cm or more, d/2 at most.
TEST_P(Cortante, TextoDeSeparacion) {
    const CasoCortante& k = GetParam();
    Caso c = Seccion(210, 4200, k.d8, k.b1, k.t1);
    EXPECT_EQ(Estribos(c, 1, k.Vu, 2.5, 5), k.texto) << "Vu = " << k.Vu;
}

INSTANTIATE_TEST_SUITE_P(
    Casos, Cortante,
    ::testing::Values(CasoCortante{.06, .3, .5, 0, "@22"},           // d = 44
                      CasoCortante{.05, .3, .5, 0, "@23"},           // 22.5: half away from zero
                      CasoCortante{.05, .3, .5, 15000, "@23"},       // Vs small: d/2
                      CasoCortante{.05, .3, .5, 25000, "@14"},       // 14.09
                      CasoCortante{.05, .3, .5, -25000, "@14"},      // the sign plays no part
                      CasoCortante{.05, .3, .5, 37000, "@08"},       // 8.09: still two legs
                      CasoCortante{.05, .3, .5, 40000, "@15 (4R)"},  // two legs 7.31
                      CasoCortante{.05, .3, .5, 100000, "@05 (4R)"}, // four legs below 8 stay
                      // d = 25: four legs give 15.7, capped at d/2 = 12.5.
                      CasoCortante{.05, .25, .3, 20230, "@13 (4R)"}));

// Three spans of 5 m, section 30 x 50 (d/2 = 22.5, d/4 = 11.25), Vu = 0, so the text shows
// the cap alone: "@11" capped, "@23" not. The zone reaches 2 T1 = 1 m from a joint.
class Confinamiento : public ::testing::Test {
  protected:
    void SetUp() override {
        c = Seccion(210, 4200, .05, .3, .5);
        c.proyecto.OpcionEstribos = true;
        c.viga = prueba::VigaDeTramos({5, 5, 5});
        Apoyos({{1, ApoyoFijo}, {2, ApoyoFijo}, {3, ApoyoFijo}, {4, ApoyoFijo}});
    }
    void Apoyos(const prueba::Filas& filas) { prueba::PonerApoyos(c.viga, filas); }
    std::string En(std::int16_t t, double x) { return Estribos(c, t, 0, x, 5); }
    Caso c;
};

TEST_F(Confinamiento, BordesDeLaZona) {
    EXPECT_EQ(En(2, 0), "@11");
    EXPECT_EQ(En(2, 0.999), "@11");
    EXPECT_EQ(En(2, 1.0), "@23"); // exactly 2 T1: no longer capped
    EXPECT_EQ(En(2, 2.5), "@23");
    EXPECT_EQ(En(2, 4.0), "@23"); // exactly L - 2 T1: not yet capped
    EXPECT_EQ(En(2, 4.001), "@11");
    EXPECT_EQ(En(2, 5), "@11");
}

TEST_F(Confinamiento, SinOpcionNoHayTope) {
    c.proyecto.OpcionEstribos = false;
    EXPECT_EQ(En(2, 0), "@23");
    EXPECT_EQ(En(1, 5), "@23");
}

TEST_F(Confinamiento, SoloApoyoFijoYEmpotramiento) {
    Apoyos({{1, Empotramiento}, {2, RodilloEnX}, {3, RodilloEnY}, {4, ApoyoFijo}});
    EXPECT_EQ(En(1, 0.5), "@11"); // built-in end
    EXPECT_EQ(En(1, 4.5), "@23"); // roller in X
    EXPECT_EQ(En(2, 0.5), "@23");
    EXPECT_EQ(En(2, 4.5), "@23"); // roller in Y
    EXPECT_EQ(En(3, 4.5), "@11");
}

TEST_F(Confinamiento, VoladizoQuitaElTopeDeSuTramo) {
    // Joint 1 free: the first span has no support at its outer end, so neither of its
    // joints caps, though joint 2 is a fixed support; the second span still caps there.
    Apoyos({{2, ApoyoFijo}, {3, ApoyoFijo}, {4, ApoyoFijo}});
    EXPECT_EQ(En(1, 0.5), "@23");
    EXPECT_EQ(En(1, 4.5), "@23");
    EXPECT_EQ(En(2, 0.5), "@11");
    // Joint 4 free: the last span the same way.
    Apoyos({{1, ApoyoFijo}, {2, ApoyoFijo}, {3, ApoyoFijo}});
    EXPECT_EQ(En(3, 0.5), "@23");
    EXPECT_EQ(En(1, 0.5), "@11");
}

TEST_F(Confinamiento, UnTramoConUnaSolaJuntaApoyada) {
    c.viga = prueba::VigaDeTramos({5});
    Apoyos({{2, Empotramiento}});
    EXPECT_EQ(En(1, 4.5), "@11");
    EXPECT_EQ(En(1, 0.5), "@23"); // joint 1 is free
    Apoyos({{1, Empotramiento}});
    EXPECT_EQ(En(1, 0.5), "@11");
    EXPECT_EQ(En(1, 4.5), "@23");
}

} // namespace
} // namespace trevalo
