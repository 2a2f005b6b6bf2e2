// The design sheet on the recording canvas.

#include <gtest/gtest.h>

#include "VigasConResultados.h"
#include "drawing/PlotearDiseno.h"

namespace trevalo::prueba {
namespace {

LienzoGrabador Pintar(CasoViga& c, ResumenAcero* resumen = nullptr) {
    LienzoGrabador l(1000, 800);
    ResumenAcero r;
    PlotearDiseno(l, c.estado, c.proyecto, c.viga, c.r, resumen ? *resumen : r);
    return l;
}

CasoViga Acero(double L) {
    CasoViga c = VigaUniforme(1, L, 1000, 1.0);
    c.viga.OpcionConcreto = 1;
    c.viga.B1(1) = 50;   // cm2
    c.viga.T1(1) = 5000; // cm4
    return c;
}

// Texts whose corner is at height y: one per station on a row without width terms.
long EnFila(const LienzoGrabador& l, long y) {
    long n = 0;
    for (const auto& o : l.DelTipo(TipoOperacion::Texto)) n += o.Puntos[0].y == y;
    return n;
}

TEST(PlotearDiseno, EstacionesPorTramo) {
    struct Caso {
        double L;
        std::int16_t porMetro;
        long estaciones;
    };
    // 4 m at 2 per metre: 8 segments; 2.25 m: 4.5 rounds to 4 (ties to even); 0.2 m: 0
    // becomes 1.
    for (const Caso k : {Caso{4.0, 2, 9}, Caso{2.25, 2, 5}, Caso{0.2, 2, 2}, Caso{2.25, 3, 8}}) {
        CasoViga c = VigaUniforme(1, k.L, 1000, 1.0);
        c.estado.EstacionesDiseno = k.porMetro;
        const LienzoGrabador l = Pintar(c);
        // VU row of a concrete sheet: BaseY + 115 + 175 + 3 x 4.
        EXPECT_EQ(EnFila(l, 200 + 115 + 175 + 12), k.estaciones) << k.L << " " << k.porMetro;
    }
}

TEST(PlotearDiseno, TextosDeUnaVigaDeAcero) {
    // 2.25 m, 1000 kgf/m, simply supported: M(x) = 1125 x - 500 x^2, V = 1125 - 1000 x.
    CasoViga c = Acero(2.25);
    c.estado.Escala = 80;
    const LienzoGrabador l = Pintar(c);
    EXPECT_EQ(Veces(l, "475"), 2); // M at 0.5625 m
    EXPECT_EQ(Veces(l, "633"), 1); // M at mid-span
    EXPECT_EQ(Veces(l, "563"), 1); // V at 0.5625 m, half away from zero
    EXPECT_EQ(Veces(l, "-563"), 1);
    EXPECT_EQ(Veces(l, "0.56"), 2); // distance from the nearer joint climbs, then falls
    EXPECT_EQ(Veces(l, "1.13"), 1);
    EXPECT_EQ(Veces(l, "0.00"), 2);
    EXPECT_EQ(Veces(l, "AS(S)"), 0); // no steel rows on a steel beam
    // Columns spread between points 9 pixels in from the joints (x 410 and 590), centred:
    // TH of a 7-point text is 12.
    std::vector<long> columnas;
    for (const auto& o : l.DelTipo(TipoOperacion::Texto))
        if (o.Puntos[0].y == 200 + 30 + 175 + 12) columnas.push_back(o.Puntos[0].x);
    ASSERT_EQ(columnas.size(), 5u);
    EXPECT_EQ(columnas.front(), 410 + 9 - 6);
    EXPECT_EQ(columnas.back(), 590 - 9 - 6);
}

TEST(PlotearDiseno, EncabezadosDeConcreto) {
    CasoViga c = VigaUniforme(1, 4.0, 1000, 1.0);
    const LienzoGrabador l = Pintar(c);
    // Names 35 out and units 23 out from the beam's left end (x 300), less TH (12).
    EXPECT_EQ(l.BuscarTexto("REACCION")->Puntos[0], (PuntoApi{300 - 12 - 35, 275}));
    EXPECT_EQ(l.BuscarTexto("@cm")->Puntos[0], (PuntoApi{300 - 12 - 23, 315}));
}

TEST(PlotearDiseno, ReaccionesQueAparecenODesaparecen) {
    struct Caso {
        double reacV, reacH;
        bool flechaAbajo, texto0, flechaH;
    };
    // 0.4 rounds to 0 and the test is "greater than 0": the arrow points down, reading "0".
    for (const Caso k :
         {Caso{0.4, 0, true, true, false}, Caso{0.0, 0, false, false, false},
          Caso{0.0, 0.4, false, false, false}, Caso{0.0, -0.6, false, false, true}}) {
        CasoViga c = Acero(4.0);
        c.r.ReacV(1) = k.reacV;
        c.r.ReacH(1) = k.reacH;
        const LienzoGrabador l = Pintar(c);
        long abajo = 0, cerca = 0, horizontal = 0;
        for (const auto& o : Poligonos(l))
            for (const auto& p : o.Puntos) {
                abajo += p == PuntoApi{300, 250 + 25};
                horizontal += p == PuntoApi{300 + 5, 250};
                cerca += p.x >= 290 && p.x <= 310;
            }
        EXPECT_EQ(abajo, k.flechaAbajo ? 1 : 0) << k.reacV;
        EXPECT_EQ(horizontal, k.flechaH ? 1 : 0) << k.reacH;
        if (!k.flechaAbajo && !k.flechaH) {
            EXPECT_EQ(cerca, 0) << k.reacV << " " << k.reacH;
        }
        bool hay0 = false;
        for (const auto& o : l.DelTipo(TipoOperacion::Texto))
            hay0 |= o.Texto == "0" && o.Puntos[0] == PuntoApi{304, 263};
        EXPECT_EQ(hay0, k.texto0) << k.reacV;
    }
}

TEST(PlotearDiseno, DespieceSoloEnReportesDeConcreto) {
    struct Caso {
        bool acero, enPantalla, despiece;
    };
    for (const Caso k :
         {Caso{false, false, true}, Caso{false, true, false}, Caso{true, false, false}}) {
        CasoViga c = k.acero ? Acero(4.0) : VigaUniforme(1, 4.0, 1000, 1.0);
        c.estado.EnPantalla = k.enPantalla;
        c.estado.ExtraDiseno = k.enPantalla || k.acero ? 0 : 160;
        const LienzoGrabador l = Pintar(c);
        EXPECT_EQ(Veces(l, "DESPIECE"), k.despiece ? 1 : 0);
        const auto lineas = l.DelTipo(TipoOperacion::Linea);
        ASSERT_EQ(lineas.size(), k.despiece ? 1u : 0u);
        if (!k.despiece) continue;
        // The axis 10 beyond the end joints, half way between the AS(I) row (200 + 115 + 63
        // + 4 = 382) and the MU(S) row (200 + 115 + 105 + 8 + 160 = 588), less 10.
        const long y = 382 + (588 - 382) / 2 - 10;
        EXPECT_EQ(lineas[0].Puntos[0], (PuntoApi{290, y}));
        EXPECT_EQ(lineas[0].Puntos[1], (PuntoApi{710, y}));
    }
}

TEST(PlotearDiseno, FactorLetraSoloCambiaElTamano) {
    CasoViga c = VigaUniforme(1, 4.0, 1000, 1.0);
    const LienzoGrabador normal = Pintar(c);
    c.estado.FactorLetra = 2;
    const LienzoGrabador grande = Pintar(c);
    EXPECT_EQ(grande.BuscarTexto("REACCION")->FontSize, 14);
    EXPECT_EQ(grande.BuscarTexto("REACCION")->Puntos[0].y,
              normal.BuscarTexto("REACCION")->Puntos[0].y);
    const auto a = Poligonos(normal), b = Poligonos(grande);
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_EQ(a[i].Puntos, b[i].Puntos);
}

TEST(PlotearDiseno, ResumenDeLaHoja) {
    // 20000 kgf/m on spans of 4 m: 22500 kgf-m of sagging and 40000 of hogging, well above
    // the minimum steel of a 0.30 x 0.50 section. A span of one segment has no interior
    // station.
    CasoViga c = VigaUniforme(2, 4.0, 20000, 1.0);
    c.viga.LT(2) = 0.2;
    GeometriaPlot(c.viga, c.estado);
    ResumenAcero r;
    Pintar(c, &r);
    ASSERT_EQ(r.AsInfCentro.Ubound(), 2);
    EXPECT_GT(r.AsInfCentro(1), r.AsInfIzquierda(1));
    EXPECT_EQ(r.AsInfCentro(2), 0);
    EXPECT_EQ(r.AsSupCentro(2), 0);
    EXPECT_GT(r.AsSupDerecha(1), r.AsSupIzquierda(1)); // hogging over the middle support
}

} // namespace
} // namespace trevalo::prueba
