// The elevation on the recording canvas. One level span of 5 m on a 1000 x 600 canvas gives
// 70 px/m, joints at x = 325 and 675, the axis at y = 138 (600 * 0.23); these and the base
// sizes of the symbols give every expected pixel below.

#include <gtest/gtest.h>

#include <algorithm>

#include "comun/Vigas.h"
#include "drawing/LienzoGrabador.h"
#include "drawing/Ploteos.h"
#include "model/Redondeo.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

constexpr long Eje = 138;

struct Dibujado {
    LienzoGrabador lienzo{1000, 600};
    EstadoPloteos estado;
};

Dibujado Plotear(VigaActual viga, double zoom = 1, EstadoPloteos estado = {},
                 ProyectoActual proyecto = {}) {
    Dibujado d;
    d.estado = estado;
    ResultadosViga resultados;
    if (zoom != 1) { // the symbol factor is calibrated by a redraw at zoom 1
        PlotearViga(d.lienzo, d.estado, proyecto, viga, resultados);
        d.estado.FactorZoom = zoom;
    }
    d.lienzo.Borrar();
    try {
        PlotearViga(d.lienzo, d.estado, proyecto, viga, resultados);
    } catch (const ErrorTrevalo&) {
        // A result view over a beam never solved faults after the elevation is drawn; these
        // tests look at the elevation only.
    }
    return d;
}

std::vector<OperacionGrabada> Rellenos(const LienzoGrabador& l, Color fondo) {
    std::vector<OperacionGrabada> r;
    for (const auto& op : l.DelTipo(TipoOperacion::Poligono))
        if (op.FillStyle == RellenoSolido && op.FillColor == fondo) r.push_back(op);
    return r;
}

long MenorY(const OperacionGrabada& op) {
    return std::min_element(op.Puntos.begin(), op.Puntos.end(),
                            [](PuntoApi a, PuntoApi b) { return a.y < b.y; })
        ->y;
}

VigaActual UnTramo() {
    auto v = VigaDeTramos({5});
    v.NombreEje(1) = "A";
    v.NombreEje(2) = "B";
    return v;
}

TEST(Elevacion, ApoyoYLetraSiguenAlFactorDeSimbolo) {
    auto v = UnTramo();
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}});
    for (double zoom : {1.0, 2.0}) {
        const auto d = Plotear(v, zoom);
        const double k = zoom;
        const long x1 = 500 - CI(175 * k), x2 = 500 + CI(175 * k), h = CI(12 * k);
        const auto triangulos = Rellenos(d.lienzo, 0xAAC6FF);
        ASSERT_EQ(triangulos.size(), 2u);
        EXPECT_EQ(triangulos[0].Puntos,
                  (std::vector<PuntoApi>{{x1, Eje + h},
                                         {x1 - CI(12 * k), Eje + h + CI(12 * k)},
                                         {x1 + CI(12 * k), Eje + h + CI(12 * k)}}));
        // The roller's wheel keeps 15 x 13 plain pixels; its triangle grows.
        const auto ruedas = d.lienzo.DelTipo(TipoOperacion::Elipse);
        ASSERT_FALSE(ruedas.empty());
        EXPECT_EQ(ruedas[0].Puntos,
                  (std::vector<PuntoApi>{{x2 - 7, Eje + h + 5}, {x2 + 8, Eje + h + 18}}));
        EXPECT_EQ(triangulos[1].Puntos[1], (PuntoApi{x2 - CI(10 * k), Eje + h + CI(10 * k)}));
        EXPECT_DOUBLE_EQ(d.lienzo.BuscarTexto("5.00")->FontSize, 8 * k);
    }
}

TEST(Elevacion, CargasSeApilanComoSuTabla) {
    auto v = UnTramo();
    PonerCargas(v, {{1, 1, {{1000}}},
                    {1, 3, {{500, 1, 2}}},
                    {1, 4, {{700}}},
                    {1, 5, {{600, 1}}},
                    {1, 6, {{400, 3, 4}}},
                    {1, 8, {{300, 300, 0.5, 4.5}}},
                    {1, 2, {{2500, 2.5}}}});
    const auto d = Plotear(v);
    const auto& l = d.lienzo;
    // Kinds in order of painting, each lifted by the kinds before it on the span: the top
    // of the i-th polygon of a fill.
    const auto tope = [&l](Color fondo, std::size_t i) {
        const auto r = Rellenos(l, fondo);
        return i < r.size() ? MenorY(r[i]) : 0;
    };
    EXPECT_EQ(tope(0xCFCFFA, 0), Eje - 40); // W1, W6, W8
    EXPECT_EQ(tope(0xCFCFFA, 1), Eje - 16 - (28 + 32 + 40 + 20) - 35);
    EXPECT_EQ(tope(0xCFCFFA, 2), Eje - (38 + 27 + 40 + 24 + 27) - 31);
    EXPECT_EQ(tope(0xDCE1D0, 0), Eje - 40 - 27);
    EXPECT_EQ(tope(0xB9ECFF, 0), Eje - 55 - (28 + 28 + 28));
    EXPECT_EQ(tope(0xCDE4DC, 0), Eje - 16 - 24 - (28 + 28));
    EXPECT_EQ(tope(0x9F9EF0, 0), Eje - 34 - 45); // shaft, then head
    EXPECT_EQ(Rellenos(l, 0x9F9EF0).at(1).Puntos[0], (PuntoApi{500, Eje - 34 - 9})); // mid-span
    // Own weight 0.30 x 0.50 x 2500 on the axis; every pen put back at the end.
    EXPECT_NE(l.BuscarTexto("375"), nullptr);
    EXPECT_EQ(l.PlumaActual(), Pluma{});
}

TEST(Elevacion, TrapecioIgualUnaEtiquetaDistintoDosVerticales) {
    auto iguales = UnTramo();
    PonerCargas(iguales, 1, 8, {{800, 800, 1, 4}});
    auto d = Plotear(iguales);
    const auto textos = d.lienzo.Textos();
    EXPECT_EQ(std::count(textos.begin(), textos.end(), "800"), 1);
    EXPECT_EQ(d.lienzo.BuscarTexto("800")->Angulo, 0);

    auto distintos = UnTramo();
    PonerCargas(distintos, 1, 8, {{800, 1200, 1, 4}});
    d = Plotear(distintos);
    ASSERT_NE(d.lienzo.BuscarTexto("1200"), nullptr);
    EXPECT_EQ(d.lienzo.BuscarTexto("800")->Angulo, 90);
    // The right end is the higher one (46 against 36) when its value is larger.
    const auto trapecio = Rellenos(d.lienzo, 0xCFCFFA).front().Puntos;
    EXPECT_EQ(trapecio[2].y, Eje - 46);
    EXPECT_EQ(trapecio[3].y, Eje - 36);
}

TEST(Elevacion, VerticeDeTrianguloDesplazaTreintaYCincoPixelesFijos) {
    // A 4 m span rising 3 m: sin 0.6, cos 0.8; 1000 * 0.35 / 7 = 50 px/m.
    auto v = VigaDeTramos({4});
    PonerDesplazadas(v, {{2, 0, 3}});
    PonerCargas(v, 1, 6, {{900, 1, 3}});
    for (double zoom : {1.0, 2.0}) {
        const auto d = Plotear(v, zoom);
        const double e = 50 * zoom, k = zoom;
        const double xLb = e * (-2 + 3) + 500, yLb = e * (1.5 - 0.75 * 3) + Eje;
        const auto tri = Rellenos(d.lienzo, 0xCFCFFA);
        ASSERT_EQ(tri.size(), 1u);
        EXPECT_EQ(tri[0].Puntos[2],
                  (PuntoApi{CI(xLb - 21), CI(yLb - 16 * k - 35 * k + 35 * k * 0.2)}))
            << zoom;
    }
}

TEST(Elevacion, TramoSinAnchoNoDibujaNada) {
    auto v = VigaDeTramos({2, 4});
    PonerDesplazadas(v, {{2, -2, 0}}); // joint 2 back over joint 1
    v.W1(1) = 900;
    v.W1(2) = 600;
    const auto d = Plotear(v);
    EXPECT_EQ(Rellenos(d.lienzo, 0xF3DBCF).size(), 1u); // the band of span 2 alone
    EXPECT_EQ(Rellenos(d.lienzo, 0xCFCFFA).size(), 1u);
    EXPECT_EQ(d.lienzo.BuscarTexto("900"), nullptr);
    EXPECT_EQ(d.lienzo.BuscarTexto("0.00"), nullptr);
    EXPECT_NE(d.lienzo.BuscarTexto("6.00"), nullptr); // the plot's width, not LT
}

TEST(Elevacion, EtiquetasDeTipo) {
    struct Caso {
        std::uint8_t acero;
        double b1, t1;
        const char* esperado;
    };
    for (const auto& c : {Caso{0, 0.25, 0.6, "0.25x0.60"}, Caso{0, 0.25, 0, "0x0"},
                          Caso{1, 28.5, 1940, "IPE 200"}, Caso{1, 0, 1940, ""}}) {
        auto v = UnTramo();
        v.OpcionConcreto = c.acero;
        v.B1(1) = c.b1;
        v.T1(1) = c.t1;
        v.Designacion(1) = "IPE 200";
        ProyectoActual sinPeso;
        sinPeso.PPV = false;
        const auto d = Plotear(v, 1, {}, sinPeso);
        const auto textos = d.lienzo.DelTipo(TipoOperacion::Texto);
        ASSERT_FALSE(textos.empty());
        EXPECT_EQ(textos.front().Texto, c.esperado);
        // Centred 22 below the axis of a level span (text 8 pt: 0.75 * 8 by 14 per char).
        const double w = 6.0 * std::string(c.esperado).size();
        EXPECT_EQ(textos.front().Puntos[0], (PuntoApi{CI(500 - w / 2), CI(Eje + 22 - 7)}));
    }
}

TEST(Elevacion, AlturasSegunLaVista) {
    struct Caso {
        bool diagramas, diseno, reacciones;
        std::vector<long> finesLineas; // support lines of joint 1, from the band's lower edge
        long cota, burbuja, titulo;
    };
    for (const auto& c :
         {Caso{false, false, false, {Eje + 78}, Eje + 55, Eje + 90, Eje + 120},
          Caso{true, false, false, {Eje + 370}, Eje + 55, Eje + 90, Eje + 370},
          Caso{false, true, false, {Eje + 45, Eje - 85, Eje + 380}, Eje + 35, Eje - 95, Eje + 368},
          Caso{false, false, true, {Eje + 75, Eje - 85}, Eje + 55, Eje - 95, Eje + 300}}) {
        EstadoPloteos e;
        e.VerDiagramas = c.diagramas;
        e.VerDiseno = c.diseno;
        e.VerReacciones = c.reacciones;
        const auto d = Plotear(UnTramo(), 1, e);
        std::vector<long> fines;
        long cota = 0;
        for (const auto& op : d.lienzo.DelTipo(TipoOperacion::Linea)) {
            if (op.PlumaUsada == Pluma{EstiloGuionPuntoPunto, 1, 0x0000FF} && op.Puntos[0].x == 325)
                fines.push_back(op.Puntos[1].y);
            if (op.PlumaUsada == Pluma{EstiloMarcoInterior, 1, 0x0000FF} && cota == 0)
                cota = op.Puntos[0].y;
        }
        EXPECT_EQ(fines, c.finesLineas) << c.titulo;
        EXPECT_EQ(cota, c.cota) << c.titulo;
        const auto burbuja = d.lienzo.DelTipo(TipoOperacion::Elipse).front().Puntos;
        EXPECT_EQ((burbuja[0].y + burbuja[1].y) / 2, c.burbuja) << c.titulo;
        EXPECT_EQ(d.lienzo.BuscarTexto("V-1")->Rectangulo.Top, c.titulo);
    }
}

TEST(Elevacion, HojaDeDisenoCreceEnElReporteDeConcreto) {
    struct Caso {
        bool enPantalla;
        std::uint8_t acero;
        std::vector<double> tramos;
        double extra;
    };
    // 1000 * 0.35 / 5 = 70 px/m gives 350, capped at 160; 1000 * 0.75 / 50 = 15 gives 75.
    for (const auto& c : {Caso{false, 0, {5}, 160}, Caso{false, 0, {10, 10, 10, 10, 10}, 75},
                          Caso{true, 0, {5}, 0}, Caso{false, 1, {5}, 0}}) {
        auto v = VigaDeTramos(c.tramos);
        v.OpcionConcreto = c.acero;
        EstadoPloteos e;
        e.EnPantalla = c.enPantalla;
        e.VerDiseno = true;
        const auto d = Plotear(v, 1, e);
        EXPECT_DOUBLE_EQ(d.estado.ExtraDiseno, c.extra);
        EXPECT_EQ(d.lienzo.BuscarTexto("V-1")->Rectangulo.Top, CI(d.estado.BaseY + 368 + c.extra));
    }
}

TEST(Elevacion, AccionesDeJunta) {
    auto v = UnTramo();
    PonerAcciones(v, {{2, -1500, 2000, 0}});
    for (bool juntas : {false, true}) {
        EstadoPloteos e;
        e.VerJuntas = juntas;
        const auto d = Plotear(v, 1, e);
        // Two half circles of radius 14, a pixel either side of the joint, 26 above it.
        const auto arcos = d.lienzo.DelTipo(TipoOperacion::Arco);
        ASSERT_EQ(arcos.size(), 2u);
        EXPECT_EQ(arcos[0].Puntos[1], (PuntoApi{674, Eje - 26}));
        EXPECT_EQ(arcos[1].Puntos[1], (PuntoApi{676, Eje - 26}));
        // Negative moment: head on the left. The force's tip comes nearer the beam by the
        // joint numbers' offset: 16 with them, 22 without, less 2.
        const auto p = Rellenos(d.lienzo, 0x9F9EF0);
        ASSERT_EQ(p.size(), 3u);
        EXPECT_EQ(p[0].Puntos[0], (PuntoApi{675 - 14, Eje - 20}));
        EXPECT_EQ(p[1].Puntos[0], (PuntoApi{675, Eje - 36 + (juntas ? 16 : 22) - 2}));
    }
}

} // namespace

// Rows the editor has just added name joint 0 until their joint is typed: they draw nothing.
TEST(Elevacion, FilasSinJuntaNoDibujanNada) {
    const auto operaciones = [](const VigaActual& viga) {
        LienzoGrabador lienzo{1000, 600};
        EstadoPloteos estado;
        ResultadosViga resultados;
        VigaActual v = viga;
        EXPECT_NO_THROW(PlotearViga(lienzo, estado, ProyectoActual{}, v, resultados));
        return lienzo.Operaciones().size();
    };
    const VigaActual base = UnTramo();
    VigaActual v = base;
    PonerDesplazadas(v, {{0, 0.5, 0.5}});
    PonerResortes(v, {{0, 0, 1000, 0}});
    PonerAcciones(v, {{0, 100, 200, 300}});
    EXPECT_EQ(operaciones(v), operaciones(base));
}
