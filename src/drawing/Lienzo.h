#pragma once
// The canvas: every picture of a beam is painted through these operations and nothing else
// reaches the painting surface. Coordinates are integer pixels, origin top left, y growing
// downward; angles are degrees, counter-clockwise positive; colours are 0xBBGGRR.
//
// The surface's properties (font, fill, draw mode, fore colour) are plain fields that every
// painting operation reads at the moment it paints, as on a picture box. The pen is a value:
// SelectObject makes one current and hands back the previous one, which the caller puts
// back before it returns.
//
// Implementations: the Qt canvases of platform/ (raster image or window, PDF, SVG) and the
// recording canvas LienzoGrabador with fixed text metrics for tests.

#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <vector>

#include "model/Redondeo.h"

namespace trevalo {

using Color = std::uint32_t; // 0xBBGGRR

inline constexpr Color ColorNegro = 0x000000;
inline constexpr Color ColorBlanco = 0xFFFFFF;

// Pen styles.
inline constexpr int EstiloSolido = 0;
inline constexpr int EstiloGuionPuntoPunto = 4;
inline constexpr int EstiloMarcoInterior = 6; // drawn as solid

// DrawMode: 13 copies the pen, 9 masks (destination AND pen colour).
inline constexpr int DrawModeCopiar = 13;
inline constexpr int DrawModeMascara = 9;

// FillStyle: 0 fills polygons and ellipses with FillColor, 1 leaves them transparent.
inline constexpr int RellenoSolido = 0;
inline constexpr int RellenoTransparente = 1;

// Format flags of DrawTextA (centre 1, vertical centre 4, single line 32).
inline constexpr int TextoCentrado = 37;  // centred both ways, one line
inline constexpr int TextoIzquierda = 36; // left, vertically centred, one line

struct PuntoApi {
    long x = 0;
    long y = 0;
    bool operator==(const PuntoApi&) const = default;
};

struct Rect {
    long Left = 0;
    long Top = 0;
    long Right = 0;
    long Bottom = 0;
    bool operator==(const Rect&) const = default;
};

struct Pluma {
    int Estilo = EstiloSolido;
    int Ancho = 1; // pixels
    Color Tinta = ColorNegro;
    bool operator==(const Pluma&) const = default;
};

class Lienzo {
  public:
    virtual ~Lienzo() = default;

    // Properties of the surface. A new canvas has the drawing font, a white background,
    // black ink, transparent fills and copy mode.
    std::string FontName = "Arial";
    double FontSize = 8; // points; 1 point is 96/72 pixels
    bool FontBold = false;
    bool FontUnderline = false;
    int FillStyle = RellenoTransparente;
    Color FillColor = ColorNegro;
    int DrawMode = DrawModeCopiar;
    Color ForeColor = ColorNegro;
    Color BackColor = ColorBlanco;

    // Inner size, the basis of the transform, and outer size (the far end of the grid
    // lines, which may exceed the inner one), in pixels.
    virtual double ScaleWidth() const = 0;
    virtual double ScaleHeight() const = 0;
    virtual double Width() const { return ScaleWidth(); }
    virtual double Height() const { return ScaleHeight(); }

    // Paints the whole surface with BackColor.
    virtual void Cls() = 0;
    // Shows what was drawn; a canvas without a screen does nothing.
    virtual void Refresh() {}
    // Freezes (true) and releases (false) painting on the screen.
    virtual void LockWindowUpdate(bool /*congelar*/) {}

    // Makes a pen current and returns the one that was.
    Pluma SelectObject(const Pluma& pluma) {
        Pluma anterior = pluma_;
        pluma_ = pluma;
        return anterior;
    }
    const Pluma& PlumaActual() const { return pluma_; }

    void MoveToEx(long x, long y) { posicion_ = {x, y}; }
    // Line from the current position to (x, y) with the current pen; (x, y) becomes the
    // current position.
    void LineTo(long x, long y) {
        TrazarLinea(posicion_, {x, y});
        posicion_ = {x, y};
    }
    PuntoApi PosicionActual() const { return posicion_; }

    // Closed outline with the current pen, filled by FillStyle and FillColor.
    virtual void Polygon(const std::vector<PuntoApi>& puntos) = 0;
    // Ellipse in the box, with the current pen, filled likewise; the box may be reversed.
    virtual void Ellipse(long izquierda, long arriba, long derecha, long abajo) = 0;
    // Arc about (x, y) from `inicio` through `barrido` degrees, joined to the current
    // position by a straight line; the current position moves to the arc's end.
    void AngleArc(long x, long y, long radio, double inicio, double barrido) {
        TrazarArco(posicion_, x, y, radio, inicio, barrido);
        const double fin = (inicio + barrido) * std::numbers::pi / 180.0;
        posicion_ = {CI(x + radio * std::cos(fin)), CI(y - radio * std::sin(fin))};
    }

    // Text with its top-left corner at (x, y) in the current font and ForeColor, no box,
    // turned by `angulo` degrees about that corner.
    virtual void TextOutA(long x, long y, const std::string& texto, double angulo = 0) = 0;
    // Text inside a rectangle; `formato` TextoCentrado or TextoIzquierda.
    virtual void DrawTextA(const std::string& texto, const Rect& rectangulo, int formato) = 0;
    // Size of the text in pixels in the current font.
    virtual double TextWidth(const std::string& texto) = 0;
    virtual double TextHeight(const std::string& texto) = 0;

  protected:
    virtual void TrazarLinea(PuntoApi desde, PuntoApi hasta) = 0;
    // The arc itself, from the current position's straight join onwards; the end point of
    // the arc is computed by AngleArc.
    virtual void TrazarArco(PuntoApi desde, long x, long y, long radio, double inicio,
                            double barrido) = 0;

  private:
    Pluma pluma_;
    PuntoApi posicion_;
};

} // namespace trevalo
