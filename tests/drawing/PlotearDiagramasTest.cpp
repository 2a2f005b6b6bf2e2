// Force diagrams on the recording canvas, against beams solved by hand.

#include <gtest/gtest.h>

#include <cmath>

#include "VigasConResultados.h"
#include "comun/Aserciones.h"
#include "drawing/PlotearDiagramas.h"

namespace trevalo::prueba {
namespace {

LienzoGrabador Pintar(CasoViga& c) {
    LienzoGrabador l(1000, 800);
    PlotearDiagramas(l, c.estado, c.proyecto, c.viga, c.r);
    return l;
}

TEST(PlotearDiagramas, DosPoligonosPorEstacionYAlturaFija) {
    struct Caso {
        std::int16_t estaciones;
        long poligonos; // 4 m: 4 x stations moment and as many shear polygons
    };
    // 0 stations are taken as 10.
    for (const Caso caso : {Caso{10, 80}, Caso{11, 88}, Caso{2, 16}, Caso{0, 80}}) {
        CasoViga c = VigaUniforme(1, 4.0, 1000, 1.0);
        c.estado.EstacionesDiagrama = caso.estaciones;
        const LienzoGrabador l = Pintar(c);
        const auto p = Poligonos(l);
        ASSERT_EQ(static_cast<long>(p.size()), caso.poligonos) << caso.estaciones;
        // The largest ordinate of each diagram is 60 pixels at zoom 1, whatever the stations.
        long maxM = 0, maxV = 0;
        for (const auto& o : p) {
            const long ord = std::max(std::labs(o.Puntos[1].y - o.Puntos[0].y),
                                      std::labs(o.Puntos[2].y - o.Puntos[3].y));
            (o.DrawMode == DrawModeMascara ? maxV : maxM) =
                std::max(o.DrawMode == DrawModeMascara ? maxV : maxM, ord);
        }
        EXPECT_EQ(maxM, 60) << caso.estaciones;
        EXPECT_EQ(maxV, 60) << caso.estaciones;
        EXPECT_DOUBLE_EQ(c.estado.MaxMomento, 2000); // wL^2/8
        EXPECT_DOUBLE_EQ(c.estado.MaxCorte, 2000);   // wL/2
    }
}

TEST(PlotearDiagramas, Lados) {
    CasoViga c = VigaUniforme(1, 4.0, 1000, 1.0);
    const auto p = Poligonos(Pintar(c));
    ASSERT_EQ(p.size(), 80u);
    // Moment first, then the shear with the mask pen. Moment base line 210 below the axis
    // (y 200), shear base 110 lower; sagging moment hangs below its base (tension side),
    // positive shear at the left end rises.
    EXPECT_EQ(p[1].DrawMode, DrawModeMascara);
    EXPECT_EQ(p[0].Puntos[0], (PuntoApi{300, 410}));
    EXPECT_EQ(p[1].Puntos[0], (PuntoApi{300, 520}));
    EXPECT_EQ(p[1].Puntos[1].y, 520 - 60);
    EXPECT_EQ(p[40].Puntos[0], (PuntoApi{500, 410})); // station at x = 2 m: the peak
    EXPECT_EQ(p[40].Puntos[1], (PuntoApi{500, 470}));
}

TEST(PlotearDiagramas, EtiquetasDeDosTramos) {
    // Two spans of 4 m under 1000 kgf/m: support moment -2000, end shears 1500 and 2500,
    // span peaks wL^2 x 9/128 = 1125 at 1.5 m from the outer supports.
    CasoViga c = VigaUniforme(2, 4.0, 1000, 1.0);
    const LienzoGrabador l = Pintar(c);
    EXPECT_EQ(Veces(l, "-2000"), 1); // the interior joint is labelled once, by span 2
    EXPECT_EQ(Veces(l, "0"), 2);     // outer ends
    EXPECT_EQ(Veces(l, "+1125"), 2);
    EXPECT_EQ(Veces(l, "1500"), 2);
    EXPECT_EQ(Veces(l, "2500"), 2);
    // -2000 x 60 / 2000 = -60: at the tip of the ordinate, 2 above it, on the joint.
    const OperacionGrabada* apoyo = l.BuscarTexto("-2000");
    EXPECT_EQ(apoyo->Puntos[0], (PuntoApi{500, 200 + 210 - 2 - 60}));
    // Peak of span 1 at x = 1.5 m: on the joint's side of the base line, lifted 4.
    const OperacionGrabada* pico = l.BuscarTexto("+1125");
    EXPECT_EQ(pico->Puntos[0], (PuntoApi{250, 406}));
    // Margin: "MOMENTOS" (8 characters, 48 by 14 pixels) left of the beam.
    EXPECT_EQ(l.BuscarTexto("MOMENTOS")->Puntos[0], (PuntoApi{100 - 14 - 35, 434}));
}

TEST(PlotearDiagramas, SinPicoCuandoSoloHayMomentoNegativo) {
    // Propped by statics only: M(x) = -500 (x - 4)^2 on a 4 m span, never positive.
    CasoViga c = VigaUniforme(1, 4.0, 1000, 1.0);
    c.r.MomI(1) = -8000;
    c.r.CorI(1) = 4000;
    c.r.CorJ(1) = 0;
    const LienzoGrabador l = Pintar(c);
    for (const auto& t : l.Textos()) EXPECT_NE(t.front(), '+') << t;
    EXPECT_EQ(Veces(l, "-8000"), 1);
}

TEST(PlotearDiagramas, TramoSinEstaciones) {
    // 0.04 m at 10 per metre: CI(0.4) = 0 stations, no polygon and no label for that span.
    CasoViga c = VigaUniforme(2, 4.0, 1000, 1.0);
    c.viga.LT(2) = 0.04;
    GeometriaPlot(c.viga, c.estado);
    const LienzoGrabador l = Pintar(c);
    EXPECT_EQ(Poligonos(l).size(), 80u);
}

TEST(PlotearDiagramas, VigaSinCargaEsDivisionPorCero) {
    CasoViga c = VigaUniforme(1, 4.0, 0, 1.0);
    c.r.CorI(1) = c.r.CorJ(1) = 0;
    LienzoGrabador l(1000, 800);
    EXPECT_TREVALO_ERROR(PlotearDiagramas(l, c.estado, c.proyecto, c.viga, c.r), 11,
                         "División por cero");
}

TEST(PlotearDiagramas, ZoomDosDuplicaAlturasYLetra) {
    CasoViga c = VigaUniforme(1, 4.0, 1000, 1.0);
    c.estado.Escala = 200;
    c.estado.FactorSimbolo = 2;
    const LienzoGrabador l = Pintar(c);
    EXPECT_EQ(l.BuscarTexto("CORTES")->FontSize, 16);
    const auto p = Poligonos(l);
    EXPECT_EQ(p[0].Puntos[0].y, 200 + 420);
    EXPECT_EQ(p[40].Puntos[1].y - p[40].Puntos[0].y, 120);
}

} // namespace
} // namespace trevalo::prueba
