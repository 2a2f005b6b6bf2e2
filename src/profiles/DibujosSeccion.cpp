#include "profiles/DibujosSeccion.h"

#include <algorithm>
#include <cmath>

#include "drawing/Ploteos.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

constexpr Color ColorFondo = 0xEFE8E2; // RGB 226, 232, 239
constexpr Color RellenoSeccion = 0xB6B19C;
constexpr Color BordeSeccion = 0x3F3D2E;
constexpr Color RojoCota = 255;
constexpr Color TextoBoton = ColorNegro; // the system's button text colour
constexpr double Pi = 3.14159265358979;

struct Dimensiones {
    double D, bf, tf, tw;
};

void Linea(Lienzo& l, double x1, double y1, double x2, double y2) {
    l.MoveToEx(CI(x1), CI(y1));
    l.LineTo(CI(x2), CI(y2));
}

// A leader of 15 pixels from (x, y) away from the face in `sentido` (-1 left, +1 right), with
// a two-line arrow head of 5 pixels pointing at the face.
void Guia(Lienzo& l, double x, double y, double sentido) {
    Linea(l, x, y, x + 15 * sentido, y);
    Linea(l, x, y, x + 5 * sentido, y - 3);
    Linea(l, x, y, x + 5 * sentido, y + 3);
}

// Text of the given height-centred position: `x` its left edge (or its centre when
// `centrado`), `y` its vertical centre; `angulo` in degrees.
void Texto(Lienzo& l, const std::string& t, double x, double y, bool centrado, double angulo) {
    const double w = l.TextWidth(t), e = l.TextHeight(t);
    const double cx = centrado ? x : x + w / 2;
    const PuntoDoble esquina = EsquinaTextoCentrado(cx, y, w, e, angulo * Pi / 180);
    TextoRotado(l, t, esquina.x, esquina.y, angulo);
}

using Contorno = std::vector<std::pair<double, double>>;

// Outlines in mm from the top left corner, clockwise: a double tee, and a channel open to
// the right.
Contorno ContornoDobleTee(const Dimensiones& m) {
    const double b = m.bf, D = m.D, t = m.tf, izq = (b - m.tw) / 2, der = (b + m.tw) / 2;
    return {{0, 0}, {b, 0}, {b, t},     {der, t},     {der, D - t}, {b, D - t},
            {b, D}, {0, D}, {0, D - t}, {izq, D - t}, {izq, t},     {0, t}};
}

Contorno ContornoU(const Dimensiones& m) {
    const double b = m.bf, D = m.D, t = m.tf, w = m.tw;
    return {{0, 0}, {b, 0}, {b, t}, {w, t}, {w, D - t}, {b, D - t}, {b, D}, {0, D}};
}

// Draws the outline (points in mm relative to the top left corner) and the dimensions. The
// web's faces are at `almaIzq` and `almaDer` mm from the left.
void DibujeSeccion(Lienzo& l, const Dimensiones& m, double fraccion, const Contorno& contorno,
                   double almaIzq, double almaDer) {
    const double s = l.ScaleHeight() * fraccion / m.D;
    const double x0 = static_cast<double>(CI((l.ScaleWidth() - m.bf * s) / 2));
    const double y0 = static_cast<double>(CI((l.ScaleHeight() - m.D * s) / 2));
    const double ancho = m.bf * s, alto = m.D * s, ala = m.tf * s, medio = y0 + alto / 2;

    std::vector<PuntoApi> puntos;
    for (const auto& [x, y] : contorno) puntos.push_back({CI(x0 + x * s), CI(y0 + y * s)});
    l.FillColor = RellenoSeccion;
    l.FillStyle = RellenoSolido;
    Pluma anterior = l.SelectObject({EstiloMarcoInterior, 1, BordeSeccion});
    l.Polygon(puntos);

    l.SelectObject({EstiloSolido, 1, RojoCota});
    l.FillStyle = RellenoTransparente;
    // Depth, left of the section.
    Linea(l, x0 - 13, y0 - 5, x0 - 13, y0 + alto + 5);
    Linea(l, x0 - 15, y0, x0 - 3, y0);
    Linea(l, x0 - 15, y0 + alto, x0 - 3, y0 + alto);
    // Flange width, under the section.
    const double yb = y0 + alto + 15;
    Linea(l, x0 - 5, yb, x0 + ancho + 5, yb);
    Linea(l, x0, yb - 9, x0, yb + 5);
    Linea(l, x0 + ancho, yb - 9, x0 + ancho, yb + 5);
    // Web thickness, leaders at its two faces at mid-height.
    Guia(l, x0 + almaIzq * s, medio, -1);
    Guia(l, x0 + almaDer * s, medio, 1);
    // Flange thickness, right of the upper flange.
    Linea(l, x0 + ancho + 15, y0 - 5, x0 + ancho + 15, y0 + ala + 5);
    Linea(l, x0 + ancho + 6, y0, x0 + ancho + 18, y0);
    Linea(l, x0 + ancho + 6, y0 + ala, x0 + ancho + 18, y0 + ala);
    l.SelectObject(anterior);

    l.FontName = "Arial";
    l.FontSize = 7;
    l.ForeColor = TextoBoton;
    const std::string tD = Formato(m.D, "0");
    Texto(l, tD, x0 - 15 - l.TextHeight(tD) / 2, medio, true, 90);
    Texto(l, Formato(m.bf, "0"), x0 + ancho / 2, yb + 3 + l.TextHeight("0") / 2, true, 0);
    Texto(l, Formato(m.tw, "0.0"), x0 + almaDer * s + 15 + 10, medio, false, 0);
    Texto(l, Formato(m.tf, "0.0"), x0 + ancho + 20, y0 + ala / 2, false, 0);
}

bool Preparar(Lienzo& l, FamiliaPerfil familia, const FilaPerfil& fila, Dimensiones& m) {
    l.Cls();
    DibujarFondoP(l, 30);
    m = {ValorCampo(familia, fila, "DimensionD"), ValorCampo(familia, fila, "DimensionBF"),
         ValorCampo(familia, fila, "DimensionTF"), ValorCampo(familia, fila, "DimensionTw")};
    return m.D != 0 && m.bf != 0 && m.tf != 0 && m.tw != 0;
}

// A rectangle of w by h mm at (x, y), clockwise.
Contorno Rectangulo(double x, double y, double w, double h) {
    return {{x, y}, {x + w, y}, {x + w, y + h}, {x, y + h}};
}

Contorno Desplazado(Contorno c, double dx, bool espejo, double ancho) {
    for (auto& [x, y] : c) x = (espejo ? ancho - x : x) + dx;
    return c;
}

// The outlines of a family picture in mm, and which of them are holes (painted with the
// background): the section alone or two of them side by side.
struct Figura {
    std::vector<Contorno> contornos;
    std::vector<bool> huecos;
    double ancho, alto;
};

// Two sections side by side with a gap between them; either may be mirrored.
Figura Pareja(const Contorno& c, double ancho, double alto, bool espejoIzq, bool espejoDer) {
    constexpr double Separacion = 12;
    return {
        {Desplazado(c, 0, espejoIzq, ancho), Desplazado(c, ancho + Separacion, espejoDer, ancho)},
        {false, false},
        2 * ancho + Separacion,
        alto};
}

Figura FiguraFamilia(int item) {
    const Dimensiones tee{200, 120, 16, 10}, canal{200, 80, 16, 12};
    switch (item) {
    case 1:
        return {{ContornoDobleTee(tee)}, {false}, tee.bf, tee.D};
    case 2: // two double tees side by side
        return Pareja(ContornoDobleTee(tee), tee.bf, tee.D, false, false);
    case 3:
        return {{ContornoU(canal)}, {false}, canal.bf, canal.D};
    case 4: // back to back
        return Pareja(ContornoU(canal), canal.bf, canal.D, true, false);
    case 5: // toe to toe
        return Pareja(ContornoU(canal), canal.bf, canal.D, false, true);
    case 6:
        return {
            {Rectangulo(0, 0, 160, 160), Rectangulo(16, 16, 128, 128)}, {false, true}, 160, 160};
    default: // 7
        return {{Rectangulo(0, 0, 120, 200), Rectangulo(14, 14, 92, 172)}, {false, true}, 120, 200};
    }
}

} // namespace

void DibujeFamiliaPerfil(Lienzo& lienzo, int item) {
    lienzo.Cls();
    const Figura f = FiguraFamilia(item);
    const double margen = 6;
    const double s = std::min((lienzo.ScaleWidth() - 2 * margen) / f.ancho,
                              (lienzo.ScaleHeight() - 2 * margen) / f.alto);
    const double x0 = (lienzo.ScaleWidth() - f.ancho * s) / 2;
    const double y0 = (lienzo.ScaleHeight() - f.alto * s) / 2;
    const Pluma anterior = lienzo.SelectObject({EstiloMarcoInterior, 1, BordeSeccion});
    lienzo.FillStyle = RellenoSolido;
    for (std::size_t i = 0; i < f.contornos.size(); ++i) {
        std::vector<PuntoApi> puntos;
        for (const auto& [x, y] : f.contornos[i])
            puntos.push_back({CI(x0 + x * s), CI(y0 + y * s)});
        lienzo.FillColor = f.huecos[i] ? lienzo.BackColor : RellenoSeccion;
        lienzo.Polygon(puntos);
    }
    lienzo.FillStyle = RellenoTransparente;
    lienzo.SelectObject(anterior);
}

void DibujarFondoP(Lienzo& lienzo, int paso) {
    const Pluma anterior = lienzo.SelectObject({EstiloSolido, 1, ColorFondo});
    const double ancho = lienzo.Width() + 30, alto = lienzo.Height() + 30;
    for (double x = 0; x <= ancho; x += paso) Linea(lienzo, x, 0, x, alto);
    for (double y = 0; y <= alto; y += paso) Linea(lienzo, 0, y, ancho, y);
    lienzo.SelectObject(anterior);
}

void DibujeDobleTee(Lienzo& lienzo, const FilaPerfil& fila) {
    Dimensiones m{};
    if (!Preparar(lienzo, FamiliaPerfil::DobleTee, fila, m)) return;
    DibujeSeccion(lienzo, m, 0.58, ContornoDobleTee(m), (m.bf - m.tw) / 2, (m.bf + m.tw) / 2);
}

void DibujeSeccionU(Lienzo& lienzo, const FilaPerfil& fila) {
    Dimensiones m{};
    if (!Preparar(lienzo, FamiliaPerfil::SeccionU, fila, m)) return;
    DibujeSeccion(lienzo, m, 0.6, ContornoU(m), 0, m.tw);
}

} // namespace trevalo
