// Reactions and joint displacements on the recording canvas.

#include <gtest/gtest.h>

#include "VigasConResultados.h"
#include "drawing/PlotearReacciones.h"

namespace trevalo::prueba {
namespace {

LienzoGrabador Pintar(CasoViga& c) {
    LienzoGrabador l(1000, 800);
    PlotearReacciones(l, c.estado, c.proyecto, c.viga, c.r);
    return l;
}

// Polygons with a vertex at (x, y).
long ConVertice(const LienzoGrabador& l, PuntoApi p) {
    long n = 0;
    for (const auto& o : Poligonos(l)) n += std::count(o.Puntos.begin(), o.Puntos.end(), p) > 0;
    return n;
}

TEST(PlotearReacciones, FilasUltimaYServicio) {
    // Two spans of 4 m, 1000 kgf/m: reactions 1500, 5000, 1500; factor 1.5.
    CasoViga c = VigaUniforme(2, 4.0, 1000, 1.5);
    const LienzoGrabador l = Pintar(c);
    EXPECT_EQ(Veces(l, "2250"), 2);
    EXPECT_EQ(Veces(l, "7500"), 1);
    EXPECT_EQ(Veces(l, "1500"), 2);
    EXPECT_EQ(Veces(l, "5000"), 1);
    // Joint 1 at x 100; row 1 at 200 + 75. "2250" is 24 by 14 at size 8.
    const OperacionGrabada* t = l.BuscarTexto("2250");
    EXPECT_EQ(t->Puntos[0], (PuntoApi{100 + 7 - 2, 275 + 24 + 8}));
    // Up arrows with the tip on the row.
    const auto p = Poligonos(l);
    ASSERT_EQ(p.size(), 12u); // 3 joints x 2 rows x (head + shaft)
    EXPECT_EQ(p[0].Puntos, (std::vector<PuntoApi>{{100, 275}, {94, 281}, {106, 281}}));
    EXPECT_EQ(p[6].Puntos[0], (PuntoApi{100, 335}));
    EXPECT_EQ(Veces(l, "GR = 0.000000"), 3); // displacements of every joint
}

TEST(PlotearReacciones, ReaccionesPequenasAparecenODesaparecen) {
    struct Caso {
        double reacV, reacH;
        long flechasAbajo;     // rows with a down arrow at joint 1 (tip 25 under the row)
        long flechasH;         // horizontal arrow heads at joint 1
        long textos0, textos1; // labels "0" and "1" written at joint 1
    };
    const Caso casos[] = {
        // 0.4 rounds to 0: both rows point down; 1.5 x 0.4 = 0.6 reads "1", service "0".
        {0.4, 0, 2, 0, 1, 1},
        // Exactly 0: no arrow, no number in either row.
        {0.0, 0, 0, 0, 0, 0},
        // A horizontal 0.4 rounds to 0 and draws nothing.
        {0.0, 0.4, 0, 0, 0, 0},
        {0.0, 0.6, 0, 2, 0, 2},
    };
    for (const Caso& k : casos) {
        CasoViga c = VigaUniforme(1, 4.0, 1000, 1.5);
        c.r.ReacV(1) = k.reacV;
        c.r.ReacH(1) = k.reacH;
        const LienzoGrabador l = Pintar(c);
        EXPECT_EQ(ConVertice(l, {300, 275 + 25}) + ConVertice(l, {300, 335 + 25}), k.flechasAbajo)
            << k.reacV;
        EXPECT_EQ(ConVertice(l, {300 - 5, 275}) + ConVertice(l, {300 - 5, 335}), k.flechasH)
            << k.reacH;
        // Joint 2 keeps its 3000 and 2000 either way.
        EXPECT_EQ(Veces(l, "3000"), 1);
        EXPECT_EQ(Veces(l, "2000"), 1);
        EXPECT_EQ(Veces(l, "0"), k.textos0) << k.reacV << " " << k.reacH;
        EXPECT_EQ(Veces(l, "1"), k.textos1) << k.reacV << " " << k.reacH;
    }
}

TEST(PlotearReacciones, NegativosEnRojo) {
    CasoViga c = VigaUniforme(1, 4.0, 1000, 1.0);
    c.r.DespY(1) = -0.0012345;
    c.r.DespX(1) = 0.5;
    c.r.GiroZ(2) = -1e-7; // shows as -0.000000 and is still negative
    LienzoGrabador l(1000, 800);
    l.ForeColor = 0x123456;
    PlotearReacciones(l, c.estado, c.proyecto, c.viga, c.r);
    EXPECT_EQ(l.BuscarTexto("DY = -0.001235")->ForeColor, 0x0000FFu);
    EXPECT_EQ(l.BuscarTexto("DX = 0.500000")->ForeColor, 0x123456u);
    EXPECT_EQ(l.BuscarTexto("GR = -0.000000")->ForeColor, 0x0000FFu);
    EXPECT_EQ(l.BuscarTexto("DY = 0.000000")->ForeColor, 0x123456u);
    EXPECT_EQ(l.ForeColor, 0x123456u);
    // The three columns of a joint end level: DX and GR take the base of the DY text.
    const auto dy = l.BuscarTexto("DY = -0.001235")->Puntos[0];
    EXPECT_EQ(l.BuscarTexto("DX = 0.500000")->Puntos[0].y, dy.y);
    EXPECT_EQ(dy.y, 200 + 195 + 14 * 6); // 14 characters of 6 pixels
}

TEST(PlotearReacciones, FactorLetraSoloEnTextos) {
    CasoViga c = VigaUniforme(1, 4.0, 1000, 1.0);
    const LienzoGrabador normal = Pintar(c);
    c.estado.FactorLetra = 1.5;
    const LienzoGrabador grande = Pintar(c);
    EXPECT_EQ(normal.BuscarTexto("2000")->FontSize, 8);
    EXPECT_EQ(grande.BuscarTexto("2000")->FontSize, 12);
    const auto a = Poligonos(normal), b = Poligonos(grande);
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_EQ(a[i].Puntos, b[i].Puntos);
}

} // namespace
} // namespace trevalo::prueba
