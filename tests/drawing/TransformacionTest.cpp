// The transform from plot metres to pixels and the sequence of a redraw, on the recording
// canvas. Expected scales are worked by hand from the canvas width, the share of it by span
// count (0.35, 0.5, 0.7, 0.75) and the beam's extent, rounded ties to even.

#include <gtest/gtest.h>

#include "comun/Aserciones.h"
#include "comun/Vigas.h"
#include "drawing/LienzoGrabador.h"
#include "drawing/Ploteos.h"

using namespace trevalo;
using prueba::VigaDeTramos;

namespace {

struct Redibujo {
    ProyectoActual proyecto;
    ResultadosViga resultados;
    EstadoPloteos estado;

    void Plotear(Lienzo& lienzo, VigaActual& viga) {
        PlotearViga(lienzo, estado, proyecto, viga, resultados);
    }
};

struct CasoEscala {
    double ancho, alto;
    std::vector<double> tramos;
    bool editor;
    double escala, origenX, origenY;
};

class EscalaBase : public ::testing::TestWithParam<CasoEscala> {};

TEST_P(EscalaBase, SegunAnchoYTramos) {
    const auto& c = GetParam();
    auto viga = VigaDeTramos(c.tramos);
    LienzoGrabador lienzo(c.ancho, c.alto);
    Redibujo r;
    r.estado.ModoEditor = c.editor;
    ASSERT_NO_THROW(r.Plotear(lienzo, viga));
    EXPECT_DOUBLE_EQ(r.estado.Escala, c.escala);
    EXPECT_DOUBLE_EQ(r.estado.OrigenX, c.origenX);
    EXPECT_DOUBLE_EQ(r.estado.OrigenY, c.origenY);
    EXPECT_DOUBLE_EQ(r.estado.BaseY, c.origenY); // a level beam has no height
}

INSTANTIATE_TEST_SUITE_P(
    Transformacion, EscalaBase,
    ::testing::Values(CasoEscala{1000, 600, {5}, false, 70, 500, 138},              // 350 / 5
                      CasoEscala{1000, 600, {4, 4}, false, 62, 500, 138},           // 62.5 -> 62
                      CasoEscala{700, 400, {60, 40}, false, 4, 350, 92},            // 3.5 -> 4
                      CasoEscala{900, 500, {3, 3, 3}, false, 70, 450, 115},         // 630 / 9
                      CasoEscala{1000, 600, {2, 2, 2, 2}, false, 94, 500, 138},     // 93.75
                      CasoEscala{1000, 660, {2, 2, 2, 2, 2}, true, 75, 500, 300})); // editor

TEST(Transformacion, AlturaDeJuntasDesplazadasRestaAncho) {
    // One span of 4 m whose right joint is lifted 1 m: extent 4 + 1, scale CI(350 / 5).
    auto viga = VigaDeTramos({4});
    prueba::PonerDesplazadas(viga, {{2, 0, 1}});
    LienzoGrabador lienzo(1000, 600);
    Redibujo r;
    r.Plotear(lienzo, viga);
    EXPECT_DOUBLE_EQ(r.estado.Escala, 70);
    EXPECT_DOUBLE_EQ(r.estado.AltoTotal, 1);
    // Centred box: the left joint at +0.5 (down the screen), the right one at -0.5.
    EXPECT_DOUBLE_EQ(YJuntaPantalla(r.estado, 1), 138 + 35);
    EXPECT_DOUBLE_EQ(YJuntaPantalla(r.estado, 2), 138 - 35);
    EXPECT_DOUBLE_EQ(r.estado.BaseY, 138 + 35);
    FijarAnguloTramo(r.estado, 1);
    EXPECT_NEAR(r.estado.AnguloGrados, 14.0362434679, 1e-9); // atan(1 / 4), rising
}

TEST(Transformacion, FactorSimboloSigueAlZoomDesdeLaUltimaCalibracion) {
    auto viga = VigaDeTramos({5});
    LienzoGrabador lienzo(1000, 600);
    Redibujo r;
    r.Plotear(lienzo, viga);
    EXPECT_DOUBLE_EQ(r.estado.EscalaInversa, 1.0 / 70);
    r.estado.FactorZoom = 2.0;
    r.Plotear(lienzo, viga);
    EXPECT_DOUBLE_EQ(r.estado.Escala, 140);
    EXPECT_DOUBLE_EQ(r.estado.FactorSimbolo, 2.0);
    // A wider canvas at zoom 2 keeps the calibration of zoom 1: 200 / 70, not 2.
    LienzoGrabador ancho(2000, 600);
    r.Plotear(ancho, viga);
    EXPECT_DOUBLE_EQ(r.estado.Escala, 280);
    EXPECT_DOUBLE_EQ(r.estado.FactorSimbolo, 4.0);
    r.estado.FactorZoom = 0.0; // taken as 1
    r.Plotear(ancho, viga);
    EXPECT_DOUBLE_EQ(r.estado.FactorZoom, 1.0);
    EXPECT_DOUBLE_EQ(r.estado.FactorSimbolo, 1.0);
}

TEST(Transformacion, CoordenadasRedondeanAlPar) {
    // Span ends at 500 + pan -/+ 175: with half-pixel pans the band's corners fall on
    // halves, which go to the even neighbour.
    struct Caso {
        double pan;
        long x1, x2;
    };
    for (const auto& c : {Caso{0.5, 326, 676}, Caso{1.5, 326, 676}, Caso{-0.5, 324, 674}}) {
        auto viga = VigaDeTramos({5});
        LienzoGrabador lienzo(1000, 600);
        Redibujo r;
        r.estado.PanX = c.pan;
        r.Plotear(lienzo, viga);
        const auto poligonos = lienzo.DelTipo(TipoOperacion::Poligono);
        ASSERT_FALSE(poligonos.empty());
        const auto& banda = poligonos.front().Puntos;
        ASSERT_EQ(banda.size(), 4u);
        EXPECT_EQ(banda[0], (PuntoApi{c.x1, 138 + 12})) << c.pan;
        EXPECT_EQ(banda[1], (PuntoApi{c.x2, 138 + 12})) << c.pan;
        EXPECT_EQ(banda[2], (PuntoApi{c.x2, 138 - 12})) << c.pan;
    }
}

TEST(Cuadricula, CuarentaYCuatroLineasEnCadaSentido) {
    LienzoGrabador lienzo(2500, 2100);
    DibujarCuadricula(lienzo, 45);
    const auto lineas = lienzo.DelTipo(TipoOperacion::Linea);
    ASSERT_EQ(lineas.size(), 88u);
    EXPECT_EQ(lineas[0].Puntos, (std::vector<PuntoApi>{{45, 0}, {45, 2100}}));
    EXPECT_EQ(lineas[43].Puntos, (std::vector<PuntoApi>{{1980, 0}, {1980, 2100}}));
    EXPECT_EQ(lineas[44].Puntos, (std::vector<PuntoApi>{{0, 45}, {2500, 45}}));
    EXPECT_EQ(lineas[87].Puntos, (std::vector<PuntoApi>{{0, 1980}, {2500, 1980}}));
    EXPECT_EQ(lienzo.PlumaActual(), Pluma{}); // the canvas's pen is put back
}

TEST(Redibujo, SinTramosOSinLongitudQuedaLaCuadriculaYElLienzoCongelado) {
    for (const std::vector<double>& tramos : {std::vector<double>{}, std::vector<double>{0, 0}}) {
        auto viga = VigaDeTramos(tramos);
        LienzoGrabador lienzo(800, 600);
        Redibujo r;
        r.estado.Escala = 123; // untouched
        r.estado.FactorZoom = 0.0;
        r.Plotear(lienzo, viga);
        EXPECT_EQ(lienzo.Operaciones().size(), 89u); // Cls and the grid's 88, nothing else
        EXPECT_TRUE(lienzo.Congelado());
        EXPECT_EQ(r.estado.Escala, 123);
        EXPECT_EQ(r.estado.FactorZoom, 0.0);
    }
}

TEST(Redibujo, CuadriculaSoloEnPantallaYSiSeVe) {
    auto viga = VigaDeTramos({5});
    for (const auto& [enPantalla, ver] : {std::pair{true, true}, {true, false}, {false, true}}) {
        LienzoGrabador lienzo(800, 600);
        Redibujo r;
        r.estado.EnPantalla = enPantalla;
        r.estado.VerCuadricula = ver;
        r.Plotear(lienzo, viga);
        const auto lineas = lienzo.DelTipo(TipoOperacion::Linea);
        EXPECT_EQ(std::count_if(lineas.begin(), lineas.end(),
                                [](const auto& l) { return l.PlumaUsada.Tinta == 0xEAE1D9; }),
                  enPantalla && ver ? 88 : 0);
        EXPECT_EQ(lienzo.Refrescos(), 1);
    }
}

TEST(Redibujo, UnaFallaDescongelaYSeLevantaConSuNumero) {
    auto viga = VigaDeTramos({5});
    LienzoGrabador lienzo(1e12, 600); // the base scale overflows a 32-bit integer
    Redibujo r;
    EXPECT_TREVALO_ERROR(r.Plotear(lienzo, viga), 6, "Desbordamiento");
    EXPECT_FALSE(lienzo.Congelado());
    EXPECT_EQ(lienzo.Refrescos(), 1);
}

} // namespace
