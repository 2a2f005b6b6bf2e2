// The span design table: station counts and positions, the factored forces at the joints,
// the summary rules of the sheet and of the export walk, and the texts of a station.

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/AnalisisVigasP.h"
#include "design/AceroFlexion.h"
#include "design/TablaDiseno.h"
#include "model/Redondeo.h"

namespace trevalo {
namespace {

struct CasoSegmentos {
    double dX, porMetro;
    long n;
};

class Segmentos : public ::testing::TestWithParam<CasoSegmentos> {};

TEST_P(Segmentos, RedondeoAlPar) {
    EXPECT_EQ(SegmentosTramo(GetParam().dX, GetParam().porMetro), GetParam().n);
}

INSTANTIATE_TEST_SUITE_P(Casos, Segmentos,
                         ::testing::Values(CasoSegmentos{4, 2, 8}, CasoSegmentos{0.2, 2, 1},
                                           CasoSegmentos{2.25, 2, 4}, // 4.5 to the even 4
                                           CasoSegmentos{2.75, 2, 6}, // 5.5 to the even 6
                                           CasoSegmentos{1.25, 2, 2}, CasoSegmentos{0.3, 2, 1},
                                           CasoSegmentos{6, 10, 60}, CasoSegmentos{5, 1, 5}));

// A solved beam with its plot positions, as the sheet gets them.
struct VigaResuelta {
    ProyectoActual p;
    VigaActual v;
    ResultadosViga r;
    Arreglo<double> X, Y;

    void Resolver() {
        const ProyectoActual leido = p;
        AnalizarViga([&leido](ProyectoActual& d) { d = leido; }, p, v, r);
        X.Redim(v.NT + 1);
        Y.Redim(v.NT + 1);
        double x = 0;
        for (long j = 1; j <= v.NT + 1; ++j) {
            X(j) = x;
            if (j <= v.NT) x += v.LT(j);
        }
    }
};

// One span of 4 m, 30 x 50, f'c 210, no own weight; built-in at the left, fixed support at
// the right; service load 3333 kgf/m, factor 1.5: factored wL^2/8 = 10,000 kgf-m at the
// built-in end, 9/128 wL^2 = 5,625 in the span (below the moment of Amin).
VigaResuelta Apuntalada() {
    VigaResuelta b;
    b.p.FC = 210;
    b.p.PPV = false;
    NuevaVigaDefecto(b.v);
    b.v.Apoyo(1) = Empotramiento;
    b.v.W1(1) = 3333;
    b.Resolver();
    return b;
}

TEST(TablaDiseno, EstacionesEnLasJuntas) {
    VigaResuelta b = Apuntalada();
    ResumenAcero res;
    const auto tabla = TablaDiseno(b.p, b.v, b.r, b.X, b.Y, 2, res);
    ASSERT_EQ(tabla.size(), 1u);
    const TramoDiseno& tr = tabla[0];
    ASSERT_EQ(tr.n, 8);
    ASSERT_EQ(tr.Estaciones.size(), 9u);
    const EstacionDiseno& primera = tr.Estaciones.front();
    const EstacionDiseno& ultima = tr.Estaciones.back();
    EXPECT_EQ(primera.x, 0);
    EXPECT_EQ(ultima.x, 4);
    EXPECT_NEAR(ultima.M, b.r.MomJ(1), 1e-6);
    // Closed form of the propped cantilever: -wL^2/8 at the built-in end, 5wL/8 of shear.
    EXPECT_NEAR(primera.Mu, -1.5 * 3333 * 16 / 8, 1e-6);
    EXPECT_NEAR(primera.Vu, 1.5 * 5 * 3333 * 4 / 8.0, 1e-6);
    EXPECT_NEAR(tr.Estaciones[4].x, 2, 1e-12);
}

TEST(TablaDiseno, ResumenDeLaHojaYDelCAD) {
    VigaResuelta b = Apuntalada();
    ResumenAcero hoja, cad;
    const auto tabla = TablaDiseno(b.p, b.v, b.r, b.X, b.Y, 10, hoja);
    DisenoParaCAD(b.p, b.v, b.r, b.X, b.Y, 10, cad);
    const auto& e = tabla[0].Estaciones;
    ASSERT_EQ(e.size(), 41u);
    const double Amin = 4.5;
    // Every interior station has the bottom steel at Amin: the first one wins the tie, and
    // it is the one of greatest top steel (next to the built-in end).
    EXPECT_DOUBLE_EQ(hoja.AsInfCentro(1), Amin);
    EXPECT_DOUBLE_EQ(hoja.AsSupCentro(1), e[1].AsSup);
    EXPECT_GT(e[1].AsSup, Amin + 0.5);
    EXPECT_DOUBLE_EQ(hoja.AsSupIzquierda(1), e[0].AsSup);
    EXPECT_DOUBLE_EQ(hoja.AsInfDerecha(1), e[40].AsInf);
    // The export rounds to two decimals and crosses the centre faces.
    EXPECT_EQ(cad.AsInfCentro(1), RoundKorvel(e[1].AsSup, 2));
    EXPECT_EQ(cad.AsSupCentro(1), RoundKorvel(Amin, 2));
    EXPECT_EQ(cad.AsSupIzquierda(1), RoundKorvel(e[0].AsSup, 2));
    EXPECT_NE(cad.AsSupIzquierda(1), hoja.AsSupIzquierda(1));
    EXPECT_EQ(cad.AsSupDerecha(1), RoundKorvel(e[40].AsSup, 2));
}

TEST(TablaDiseno, CentroConMayorAceroInferior) {
    // Simply supported, 8000 kgf/m on 4 m: the interior maximum of bottom steel is at
    // mid-span, with Amin at the top there.
    VigaResuelta b;
    b.p.FC = 210;
    b.p.PPV = false;
    NuevaVigaDefecto(b.v);
    b.v.W1(1) = 8000;
    b.Resolver();
    ResumenAcero hoja;
    const auto tabla = TablaDiseno(b.p, b.v, b.r, b.X, b.Y, 2, hoja);
    double sup = 0, inf = 0;
    bool excede = false;
    AceroFlexion(b.p, b.v, 1, 1.5 * 8000 * 16 / 8, sup, inf, excede);
    EXPECT_NEAR(hoja.AsInfCentro(1), inf, 1e-9);
    EXPECT_NEAR(hoja.AsSupCentro(1), 4.5, 1e-9);
    EXPECT_GT(inf, 10);
}

TEST(TablaDiseno, UnSegmentoDejaElCentroEnCero) {
    VigaResuelta b = Apuntalada();
    b.v.LT(1) = 0.2;
    b.Resolver();
    ResumenAcero hoja, cad;
    const auto tabla = TablaDiseno(b.p, b.v, b.r, b.X, b.Y, 2, hoja);
    DisenoParaCAD(b.p, b.v, b.r, b.X, b.Y, 2, cad);
    EXPECT_EQ(tabla[0].Estaciones.size(), 2u);
    EXPECT_EQ(hoja.AsSupCentro(1), 0);
    EXPECT_EQ(hoja.AsInfCentro(1), 0);
    EXPECT_EQ(cad.AsInfCentro(1), 0);
    EXPECT_GT(hoja.AsSupIzquierda(1), 0);
}

TEST(TablaDiseno, VigaDeAceroSoloFuerzasEnLaHoja) {
    VigaResuelta b = Apuntalada();
    b.v.OpcionConcreto = 1;
    b.v.B1(1) = 53.8;
    b.v.T1(1) = 8356;
    b.Resolver();
    ResumenAcero hoja, cad;
    const auto tabla = TablaDiseno(b.p, b.v, b.r, b.X, b.Y, 2, hoja);
    for (const auto& e : tabla[0].Estaciones) {
        EXPECT_EQ(e.AsSup, 0);
        EXPECT_EQ(e.Estribos, "");
    }
    EXPECT_EQ(hoja.AsSupIzquierda(1), 0);
    EXPECT_NEAR(tabla[0].Estaciones[0].Mu, -1.5 * 3333 * 16 / 8, 1e-6); // forces stay
    // The export designs every beam as concrete.
    DisenoParaCAD(b.p, b.v, b.r, b.X, b.Y, 2, cad);
    EXPECT_GT(cad.AsSupIzquierda(1), 0);
}

TEST(TablaDiseno, TramoInclinado) {
    // A right joint raised 0.3 m on a 4 m span: 2 stations a metre over the horizontal 4 m,
    // the last at the bar's true length 5 x 0.1 x sqrt(1609).
    VigaResuelta b = Apuntalada();
    b.Resolver();
    b.Y(2) = -0.3;
    ResumenAcero hoja;
    const auto tabla = TablaDiseno(b.p, b.v, b.r, b.X, b.Y, 2, hoja);
    ASSERT_EQ(tabla[0].n, 8);
    EXPECT_NEAR(tabla[0].L, std::sqrt(16.09), 1e-12);
    EXPECT_NEAR(tabla[0].Estaciones.back().x, std::sqrt(16.09), 1e-12);
    EXPECT_NEAR(tabla[0].Estaciones[4].h, 2, 1e-12);
}

TEST(TablaDiseno, TextosDeUnaEstacion) {
    TramoDiseno tr;
    tr.dX = 5;
    EstacionDiseno e;
    e.h = 3.2;
    e.Mu = -1234.5;
    e.Vu = -987.5;
    e.AsSup = 3.456;
    e.AsInf = 2.0;
    e.Estribos = "@22";
    TextosEstacion t = TextosDeEstacion(tr, e);
    EXPECT_EQ(t.E, "@22");
    EXPECT_EQ(t.AsS, "3.46");
    EXPECT_EQ(t.AsI, "2.00");
    EXPECT_EQ(t.MuS, "-1235"); // half away from zero
    EXPECT_EQ(t.MuI, "0");
    EXPECT_EQ(t.Vu, "-988");
    EXPECT_EQ(t.Progresiva, "1.80"); // from the nearer (right) joint
    e.h = 2.5;
    e.Mu = 700.4;
    e.Excede = true;
    t = TextosDeEstacion(tr, e, ',', '.');
    EXPECT_EQ(t.AsS, ">FMáx");
    EXPECT_EQ(t.AsI, ">FMáx");
    EXPECT_EQ(t.MuS, "0");
    EXPECT_EQ(t.MuI, "700");
    EXPECT_EQ(t.Progresiva, "2,50"); // mid-span counts from the left
}

} // namespace
} // namespace trevalo
