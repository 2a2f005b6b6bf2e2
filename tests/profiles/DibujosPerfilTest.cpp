// Section sketches on the recording canvas (a character 0.75 * FontSize pixels wide, a line
// 1.75 * FontSize high). Positions worked out by hand from the scale rules.

#include <gtest/gtest.h>

#include "drawing/LienzoGrabador.h"
#include "profiles/DibujePerfil.h"
#include "profiles/DibujosSeccion.h"

namespace trevalo {
namespace {

using Puntos = std::vector<PuntoApi>;

// Canvas 420 x 380, section 300 x 150: e = min(330 / 150, 290 / 300) = 0.96667 px/mm,
// centre (210, 190). Half the flange is 72.5 px: 137.5 and 282.5 round to the even 138, 282.
TEST(DibujePerfil, ContornoAEscalaConRedondeoAlPar) {
    LienzoGrabador l(420, 380);
    EtiquetasPerfil e;
    ASSERT_TRUE(DibujePerfil(l, 300, 8, 150, 12, 150, 12, e));
    const auto poligonos = l.DelTipo(TipoOperacion::Poligono);
    ASSERT_EQ(poligonos.size(), 1u);
    // Flange inner face: 190 - 138 * 0.96667 = 56.6; web faces 210 -/+ 3.87.
    const Puntos esperado = {{138, 45},  {282, 45},  {282, 57},  {214, 57},  {214, 323}, {282, 323},
                             {282, 335}, {138, 335}, {138, 323}, {206, 323}, {206, 57},  {138, 57}};
    EXPECT_EQ(poligonos[0].Puntos, esperado);
    EXPECT_EQ(poligonos[0].FillStyle, RellenoSolido);
    EXPECT_EQ(poligonos[0].FillColor, 0xEFCBBAu);
    EXPECT_EQ(l.FillStyle, RellenoTransparente);
    EXPECT_EQ(e.LSLabel(1), "58.08");
}

TEST(DibujePerfil, EtiquetasEnSuOrdenYLugar) {
    LienzoGrabador l(420, 380);
    EtiquetasPerfil e;
    DibujePerfil(l, 300, 8, 150, 12, 150, 12, e);
    const std::vector<std::string> textos = {"d = 300.0", "bf = 150.0", "bf = 150.0",
                                             "tw = 8.0",  "tf = 12.0",  "tf = 12.0"};
    EXPECT_EQ(l.Textos(), textos);
    const auto t = l.DelTipo(TipoOperacion::Texto);
    ASSERT_EQ(t.size(), 6u);
    // d: x = 72.5 + 210 + 20 - 14 = 288.5 -> 288, y = 190 + 54 / 2 = 217, turned 90.
    EXPECT_EQ(t[0].Puntos[0], (PuntoApi{288, 217}));
    EXPECT_EQ(t[0].Angulo, 90);
    // Upper bf: x = 210 - 30 = 180, y = 190 - 145 - 21 - 14 = 10.
    EXPECT_EQ(t[1].Puntos[0], (PuntoApi{180, 10}));
    // Lower bf: y = 145 + 190 + 22 = 357.
    EXPECT_EQ(t[2].Puntos[0], (PuntoApi{180, 357}));
    // tw adds its 8 mm to the pixels: 4 + 210 + 3 = 217, y = 194.
    EXPECT_EQ(t[3].Puntos[0], (PuntoApi{217, 194}));
    // tf: x = 210 - 72.5 - 27 = 110.5 -> 110; y = 190 - 133.4 + 2 = 58.6 -> 59 and
    // 133.4 + 190 - 14 = 309.4 -> 309.
    EXPECT_EQ(t[4].Puntos[0], (PuntoApi{110, 59}));
    EXPECT_EQ(t[5].Puntos[0], (PuntoApi{110, 309}));
}

// 300 wide and 100 deep on 400 x 400: e = 310 / 300, so the section spans 45 to 355.
TEST(DibujePerfil, SeccionMasAnchaQueAltaSeEscalaPorElAncho) {
    LienzoGrabador l(400, 400);
    EtiquetasPerfil e;
    ASSERT_TRUE(DibujePerfil(l, 100, 10, 300, 10, 300, 10, e));
    const Puntos p = l.DelTipo(TipoOperacion::Poligono)[0].Puntos;
    EXPECT_EQ(p[0].x, 45);
    EXPECT_EQ(p[1].x, 355);
    // 100 mm at 1.0333 px/mm: 200 -/+ 51.67 round to 148 and 252.
    EXPECT_EQ(p[1].y, 148);
    EXPECT_EQ(p[6].y, 252);
}

TEST(DibujePerfil, AlasIgualesDanContornoSimetrico) {
    LienzoGrabador l(500, 300);
    EtiquetasPerfil e;
    DibujePerfil(l, 203, 7.7, 133.4, 9.6, 133.4, 9.6, e);
    const Puntos p = l.DelTipo(TipoOperacion::Poligono)[0].Puntos;
    ASSERT_EQ(p.size(), 12u);
    const long cx = 250, cy = 150;
    // 0-based pairs mirrored about the web's axis, and about mid-depth.
    const std::pair<int, int> vertical[] = {{0, 1}, {2, 11}, {3, 10}, {4, 9}, {5, 8}, {6, 7}};
    for (const auto& [a, b] : vertical) {
        EXPECT_EQ(p[a].x - cx, cx - p[b].x) << a;
        EXPECT_EQ(p[a].y, p[b].y) << a;
    }
    const std::pair<int, int> horizontal[] = {{0, 7}, {1, 6}, {2, 5}, {3, 4}, {10, 9}, {11, 8}};
    for (const auto& [a, b] : horizontal) {
        EXPECT_EQ(p[a].y - cy, cy - p[b].y) << a;
        EXPECT_EQ(p[a].x, p[b].x) << a;
    }
}

TEST(DibujePerfil, AnchoCeroEsErrorDeGeometriaSinTocarEtiquetas) {
    LienzoGrabador l(420, 380);
    EtiquetasPerfil e;
    e.LSLabel(1) = "viejo";
    EXPECT_FALSE(DibujePerfil(l, 300, 8, 0, 12, 0, 12, e));
    EXPECT_EQ(e.LSLabel(1), "viejo");
    EXPECT_TRUE(l.DelTipo(TipoOperacion::Poligono).empty());
}

TEST(CalcularPerfil, PuertaFallaYCalculo) {
    EtiquetasPerfil e;
    LienzoGrabador l(420, 380);
    e.LSLabel(1) = "viejo";
    EXPECT_EQ(CalcularPerfil(l, 300, 8, 150, 0, e), ResultadoCalculo::SinCambio);
    EXPECT_TRUE(l.Operaciones().empty()); // not even cleared
    EXPECT_EQ(e.LSLabel(1), "viejo");

    EXPECT_EQ(CalcularPerfil(l, 4, 80, 90, 8, e), ResultadoCalculo::FallaGeometria);
    EXPECT_EQ(l.Operaciones().front().Tipo, TipoOperacion::Cls);
    EXPECT_EQ(e.LSLabel(7), "2.46");
    EXPECT_EQ(e.LSLabel(8), "");

    EXPECT_EQ(CalcularPerfil(l, 300, 8, 150, 12, e), ResultadoCalculo::Calculado);
    EXPECT_EQ(e.LSLabel(12), "139.4");
}

FilaPerfil Fila(FamiliaPerfil familia, double D, double bf, double tf, double tw) {
    FilaPerfil f{1, "P", std::vector<double>(Familia(familia).Campos.size(), 0.0)};
    const auto& c = Familia(familia).Campos;
    for (std::size_t i = 0; i < c.size(); ++i) {
        if (c[i] == "DimensionD") f.Valores[i] = D;
        if (c[i] == "DimensionBF") f.Valores[i] = bf;
        if (c[i] == "DimensionTF") f.Valores[i] = tf;
        if (c[i] == "DimensionTw") f.Valores[i] = tw;
    }
    return f;
}

TEST(DibujosSeccion, FondoCadaTreintaPixelesMasTreinta) {
    LienzoGrabador l(200, 100);
    DibujarFondoP(l, 30);
    const auto lineas = l.DelTipo(TipoOperacion::Linea);
    // Vertical at 0..210 (8), horizontal at 0..120 (5), each 30 beyond the picture.
    ASSERT_EQ(lineas.size(), 13u);
    EXPECT_EQ(lineas[7].Puntos, (Puntos{{210, 0}, {210, 130}}));
    EXPECT_EQ(lineas[12].Puntos, (Puntos{{0, 120}, {230, 120}}));
    EXPECT_EQ(lineas[0].PlumaUsada.Tinta, 0xEFE8E2u);
}

// IPE 300 on 200 x 200: s = 200 * 0.58 / 300 = 0.38667 px/mm; x0 = CI(71), y0 = CI(42).
TEST(DibujosSeccion, DobleTeeAEscala) {
    LienzoGrabador l(200, 200);
    DibujeDobleTee(l, Fila(FamiliaPerfil::DobleTee, 300, 150, 10.7, 7.1));
    const auto p = l.DelTipo(TipoOperacion::Poligono);
    ASSERT_EQ(p.size(), 1u);
    // tf 10.7 -> 4.14 px; web faces at 71 + 71.45 * s = 98.6 and 71 + 78.55 * s = 101.4.
    const Puntos esperado = {{71, 42},   {129, 42}, {129, 46}, {101, 46}, {101, 154}, {129, 154},
                             {129, 158}, {71, 158}, {71, 154}, {99, 154}, {99, 46},   {71, 46}};
    EXPECT_EQ(p[0].Puntos, esperado);
    EXPECT_EQ(p[0].FillColor, 0xB6B19Cu);
    EXPECT_EQ(p[0].PlumaUsada.Tinta, 0x3F3D2Eu);
    EXPECT_EQ(l.Textos(), (std::vector<std::string>{"300", "150", "7.1", "10.7"}));
    const auto t = l.DelTipo(TipoOperacion::Texto);
    EXPECT_EQ(t[0].Angulo, 90);
    EXPECT_EQ(t[0].FontName, "Arial");
    EXPECT_EQ(t[0].FontSize, 7);
}

TEST(DibujosSeccion, CanalAbiertoALaDerecha) {
    LienzoGrabador l(200, 200);
    DibujeSeccionU(l, Fila(FamiliaPerfil::SeccionU, 200, 75, 11.5, 8.5));
    const auto p = l.DelTipo(TipoOperacion::Poligono);
    ASSERT_EQ(p.size(), 1u);
    // s = 120 / 200 = 0.6: 45 px wide, x0 = CI(77.5) = 78, y0 = 40; tf 6.9 px, tw 5.1 px.
    const Puntos esperado = {{78, 40},  {123, 40},  {123, 47},  {83, 47},
                             {83, 153}, {123, 153}, {123, 160}, {78, 160}};
    EXPECT_EQ(p[0].Puntos, esperado);
}

TEST(DibujosSeccion, DimensionCeroSoloDejaElFondo) {
    LienzoGrabador l(200, 200);
    DibujeDobleTee(l, Fila(FamiliaPerfil::DobleTee, 300, 150, 10.7, 0));
    EXPECT_TRUE(l.DelTipo(TipoOperacion::Poligono).empty());
    EXPECT_EQ(l.DelTipo(TipoOperacion::Linea).size(), 16u);
    EXPECT_TRUE(l.Textos().empty());
}

} // namespace
} // namespace trevalo
