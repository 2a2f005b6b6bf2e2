// What the user does to the view: zoom steps, pans, the tools of stations and text factor,
// and the selection of spans by a band with its five tests.

#include <gtest/gtest.h>

#include <set>

#include "comun/Vigas.h"
#include "drawing/OperacionesVista.h"

using namespace trevalo;

namespace {

TEST(Zoom, DiezPasosAfueraLleganADecimoYSeQuedan) {
    EstadoPloteos e;
    for (int i = 0; i < 9; ++i) EjecuteZoomOut(e);
    EXPECT_NEAR(e.FactorZoom, 0.1, 1e-12);
    EjecuteZoomOut(e);
    EXPECT_EQ(e.FactorZoom, 0.1);
    for (int i = 0; i < 31; ++i) EjecuteZoomIn(e); // steps add, no upper limit
    EXPECT_NEAR(e.FactorZoom, 3.2, 1e-9);
}

TEST(Herramientas, TeclasBotonesYArrastreMuevenLaVista) {
    struct Caso {
        int tecla;
        Direccion boton;
        double panX, panY;
    };
    // Keys move 0.4 m against their sense (20 pixels at 50 px/m); the editor's buttons 10
    // pixels whatever the scale.
    for (const auto& c : {Caso{TeclaIzquierda, Direccion::Izquierda, 20, 0},
                          Caso{TeclaDerecha, Direccion::Derecha, -20, 0},
                          Caso{TeclaArriba, Direccion::Arriba, 0, 20},
                          Caso{TeclaAbajo, Direccion::Abajo, 0, -20}}) {
        EstadoPloteos e;
        e.Escala = 50;
        EXPECT_TRUE(TeclaLienzo(e, c.tecla, true));
        EXPECT_DOUBLE_EQ(e.PanX, c.panX) << c.tecla;
        EXPECT_DOUBLE_EQ(e.PanY, c.panY) << c.tecla;
        EstadoPloteos b;
        b.Escala = 300;
        DesplazarVista(b, c.boton);
        EXPECT_DOUBLE_EQ(b.PanX, -c.panX / 2) << c.tecla;
        EXPECT_DOUBLE_EQ(b.PanY, c.panY / 2) << c.tecla;
    }
    EstadoPloteos e;
    EXPECT_TRUE(TeclaLienzo(e, TeclaMasNumerico, true));
    EXPECT_NEAR(e.FactorZoom, 1.1, 1e-12);
    EXPECT_TRUE(TeclaLienzo(e, TeclaIzquierda, true));
    EXPECT_TRUE(TeclaLienzo(e, TeclaEscape, true));
    EXPECT_EQ(e.PanX, 0.0);
    EXPECT_EQ(e.FactorZoom, 1.0);
    EXPECT_FALSE(TeclaLienzo(e, 65, true)); // 'A' does nothing
    // Dragging moves a pixel per pixel.
    double ux = 100, uy = 100;
    EXPECT_FALSE(ArrastrarVista(e, ux, uy, 100, 100));
    EXPECT_TRUE(ArrastrarVista(e, ux, uy, 130, 90));
    EXPECT_TRUE(ArrastrarVista(e, ux, uy, 131, 95));
    EXPECT_EQ(e.PanX, 31.0);
    EXPECT_EQ(e.PanY, -5.0);
    EXPECT_EQ(ux, 131.0);
}

TEST(Herramientas, EstacionesYLetraConSusLimites) {
    EstadoPloteos e;
    for (int i = 0; i < 20; ++i) DisminuirEstaciones(e, 2);
    EXPECT_EQ(e.EstacionesDiagrama, 2);
    for (int i = 0; i < 20; ++i) DisminuirEstaciones(e, 3);
    EXPECT_EQ(e.EstacionesDiseno, 1);
    AumentarEstaciones(e, 2);
    AumentarEstaciones(e, 3);
    AumentarEstaciones(e, 1); // the elevation has no stations
    AumentarEstaciones(e, 4);
    EXPECT_EQ(e.EstacionesDiagrama, 3);
    EXPECT_EQ(e.EstacionesDiseno, 2);
    for (int i = 0; i < 20; ++i) LetraMenos(e);
    EXPECT_EQ(e.FactorLetra, 0.3);
    LetraMas(e);
    EXPECT_NEAR(e.FactorLetra, 0.4, 1e-12);
    LetraR(e);
    EXPECT_EQ(e.FactorLetra, 1.0);
}

TEST(Reinicios, ExtensionYPestanasReinicianSoloLoSuyo) {
    struct Caso {
        void (*accion)(EstadoPloteos&);
        bool diagramas, diseno, reacciones;
        double zoom;
        std::int16_t estDiagrama, estDiseno;
        double letra;
    };
    // Before: zoom 2.3, pans, 14 and 5 stations, text factor 1.7. Only the project window's
    // zoom to extents and the design tab put the text factor back.
    const Caso casos[] = {
        {[](EstadoPloteos& e) { EjecuteZoomExtents(e, true); }, false, false, false, 1, 10, 2, 1},
        {[](EstadoPloteos& e) { EjecuteZoomExtents(e, false); }, false, false, false, 1, 14, 5,
         1.7},
        {[](EstadoPloteos& e) { ElegirPestana(e, 1); }, false, false, false, 2.3, 14, 5, 1.7},
        {[](EstadoPloteos& e) { ElegirPestana(e, 2); }, true, false, false, 2.3, 10, 2, 1.7},
        {[](EstadoPloteos& e) { ElegirPestana(e, 3); }, false, true, false, 2.3, 10, 2, 1},
        {[](EstadoPloteos& e) { ElegirPestana(e, 4); }, false, false, true, 2.3, 14, 5, 1.7}};
    int n = 0;
    for (const auto& c : casos) {
        EstadoPloteos e;
        e.EnPantalla = false;
        e.FactorZoom = 2.3;
        e.PanX = 5;
        e.EstacionesDiagrama = 14;
        e.EstacionesDiseno = 5;
        e.FactorLetra = 1.7;
        c.accion(e);
        SCOPED_TRACE(++n);
        EXPECT_EQ(e.VerDiagramas, c.diagramas);
        EXPECT_EQ(e.VerDiseno, c.diseno);
        EXPECT_EQ(e.VerReacciones, c.reacciones);
        EXPECT_EQ(e.FactorZoom, c.zoom);
        EXPECT_EQ(e.PanX, c.zoom == 1 ? 0 : 5);
        EXPECT_EQ(e.EstacionesDiagrama, c.estDiagrama);
        EXPECT_EQ(e.EstacionesDiseno, c.estDiseno);
        EXPECT_EQ(e.FactorLetra, c.letra);
    }
}

// Two spans at 100 px/m with the origin at (0, 0): span 1 level from (0, 0) to (100, 0),
// span 2 rising from (100, 0) to (200, -100), slope -1 on the screen.
EstadoPloteos DosTramos() {
    EstadoPloteos e;
    e.Escala = 100;
    e.XPlot.Redim(3);
    e.YPlot.Redim(3);
    e.XPlot(2) = 1;
    e.XPlot(3) = 2;
    e.YPlot(3) = -1;
    return e;
}

struct CasoBanda {
    const char* nombre;
    BandaSeleccion banda;
    std::set<long> tomados;
};

class SeleccionPorBanda : public ::testing::TestWithParam<CasoBanda> {};

TEST_P(SeleccionPorBanda, CincoPruebas) {
    const auto& c = GetParam();
    const auto e = DosTramos();
    auto viga = prueba::VigaDeTramos({1, 1.4142135623730951});
    const auto tomados = SeleccioneZoom(e, viga, c.banda);
    EXPECT_EQ(std::set<long>(tomados.begin(), tomados.end()), c.tomados);
    for (long i = 1; i <= 2; ++i) EXPECT_EQ(viga.TramoMarcado(i), c.tomados.count(i) == 1) << i;
}

INSTANTIATE_TEST_SUITE_P(
    Banda, SeleccionPorBanda,
    ::testing::Values(
        // 1 and 4: the level span wholly inside; span 2 starts beyond the right edge.
        CasoBanda{"Entero", {-10, -10, 100, 20}, {1}},
        // 2: the level span crosses the band's left edge at the band's height.
        CasoBanda{"BordeIzquierdoHorizontal", {40, -5, 20, 10}, {1}},
        // 2 on the slope: at x = 140 the span is at y = -40, inside -60..-20.
        CasoBanda{"BordeIzquierdoInclinado", {140, -60, 20, 40}, {2}},
        // 5: the second end of span 2 inside.
        CasoBanda{"SegundoExtremo", {190, -110, 20, 20}, {2}},
        // Kept: the right-edge test reuses the left edge's offset with the opposite sign, so
        // it misses span 2 that plainly runs through the band (y = -25 at x = 125) ...
        CasoBanda{"BordeDerechoNoVe", {110, -32, 20, 10}, {}},
        // ... and takes it from a band far below it (the span is at -20..-40 there).
        CasoBanda{"BordeDerechoVeDeMas", {120, 10, 20, 20}, {2}},
        // A level span: the tests reduce to the band's height against the line.
        CasoBanda{"HorizontalFueraDeAltura", {40, 5, 20, 10}, {}}),
    [](const auto& info) { return std::string(info.param.nombre); });

TEST(Banda, SoloAgregaYSaltaTramosSinAncho) {
    const auto b = BandaDeArrastre(50, 40, 20, 70); // the lesser corner, absolute sizes
    EXPECT_EQ(std::vector<float>({b.Left, b.Top, b.Width, b.Height}),
              std::vector<float>({20, 40, 30, 30}));
    auto e = DosTramos();
    auto viga = prueba::VigaDeTramos({1, 1});
    viga.TramoMarcado(2) = true;
    EXPECT_EQ(SeleccioneZoom(e, viga, {40, -5, 20, 10}), std::vector<long>{1});
    EXPECT_TRUE(viga.TramoMarcado(1));
    EXPECT_TRUE(viga.TramoMarcado(2));
    // A span whose ends share x is never taken, even by a band over its ends.
    e.XPlot(3) = 1;
    auto otra = prueba::VigaDeTramos({1, 1});
    EXPECT_EQ(SeleccioneZoom(e, otra, {90, -110, 20, 120}), std::vector<long>{1});
}

} // namespace
