#pragma once
// The canvas on a QPainter: a window, an image, a PDF or an SVG. Sizes are in the canvas's
// own pixels; the painter may scale them (report pictures at print resolution). Fonts:
// "Arial" is painted with Liberation Sans and "Tahoma" with DejaVu Sans, sized so that one
// point is 96/72 canvas pixels whatever the device's resolution.
//
// DrawMode 9 (mask pen) is the raster operation destination AND source on a raster device;
// a vector device has no raster operations, so it multiplies the colours instead, which
// gives the same result on the white background and close to it over other fills.

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <optional>
#include <string>

#include "drawing/Lienzo.h"

namespace trevalo {

class LienzoQt : public Lienzo {
  public:
    // `painter` is active on its device for the life of the canvas. `ancho` and `alto` are
    // the canvas's inner size; `anchoExterior`, `altoExterior` its outer size (0: the same).
    LienzoQt(QPainter& painter, double ancho, double alto, bool raster, double anchoExterior = 0,
             double altoExterior = 0);

    double ScaleWidth() const override { return ancho_; }
    double ScaleHeight() const override { return alto_; }
    double Width() const override { return anchoExterior_; }
    double Height() const override { return altoExterior_; }

    void Cls() override;
    void Polygon(const std::vector<PuntoApi>& puntos) override;
    void Ellipse(long izquierda, long arriba, long derecha, long abajo) override;
    void TextOutA(long x, long y, const std::string& texto, double angulo = 0) override;
    void DrawTextA(const std::string& texto, const Rect& rectangulo, int formato) override;
    double TextWidth(const std::string& texto) override;
    double TextHeight(const std::string& texto) override;

    // The font of the canvas's font properties, for this painter's device.
    const QFont& FuenteActual() const;

  protected:
    void TrazarLinea(PuntoApi desde, PuntoApi hasta) override;
    void TrazarArco(PuntoApi desde, long x, long y, long radio, double inicio,
                    double barrido) override;

  private:
    // Pen, brush and composition of the canvas's current state.
    void PrepararTrazo(bool relleno);
    const QFontMetricsF& Medidas() const;

    // The last font made and its metrics, made again only when a font property changes:
    // a redraw measures and writes hundreds of texts in a few fonts.
    struct ClaveFuente {
        std::string nombre;
        double tamano = 0;
        bool negrita = false, subrayada = false;
        bool operator==(const ClaveFuente&) const = default;
    };
    mutable std::optional<ClaveFuente> clave_;
    mutable QFont fuente_;
    mutable std::optional<QFontMetricsF> medidas_;

    QPainter& painter_;
    double ancho_;
    double alto_;
    bool raster_;
    double anchoExterior_;
    double altoExterior_;
};

// 0xBBGGRR to a Qt colour.
QColor ColorQt(Color color);

} // namespace trevalo
