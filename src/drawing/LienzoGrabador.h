#pragma once
// A canvas that paints nothing and records every operation with the surface's state at that
// moment. Tests read the recording; a report keeps each picture as one, painted again
// (Reproducir) on the raster picture of the report database, the PDF, the HTML page and the
// viewer. Without a canvas to measure with, its text metrics are fixed so that positions can
// be worked out by hand: a character is 0.75 * FontSize pixels wide, a line 1.75 * FontSize
// pixels high (Arial 8 gives 6 by 14, close to the real font at 96 dpi).

#include <string>
#include <utility>
#include <vector>

#include "drawing/Lienzo.h"

namespace trevalo {

enum class TipoOperacion { Cls, Linea, Poligono, Elipse, Arco, Texto, TextoEnRectangulo };

struct OperacionGrabada {
    TipoOperacion Tipo{};
    std::vector<PuntoApi> Puntos; // line: from, to; polygon: its points; ellipse: two corners;
                                  // arc: the join's start and the centre; text: the corner
    std::string Texto;
    double Angulo = 0;  // text; the arc's start angle
    double Barrido = 0; // arc
    long Radio = 0;     // arc
    Rect Rectangulo;    // text in a rectangle
    int Formato = 0;    // text in a rectangle
    Pluma PlumaUsada;
    int FillStyle = RellenoTransparente;
    Color FillColor = 0;
    int DrawMode = DrawModeCopiar;
    Color ForeColor = 0;
    Color BackColor = ColorBlanco; // what Cls paints
    std::string FontName;
    double FontSize = 0;
    bool FontBold = false;
    bool FontUnderline = false;
};

class LienzoGrabador : public Lienzo {
  public:
    // `medidas`, if given, measures the texts (it takes the recorder's font properties first),
    // so that the recording is laid out as a painting on that canvas would be; it outlives
    // the recorder.
    LienzoGrabador(double ancho, double alto, Lienzo* medidas = nullptr)
        : ancho_(ancho), alto_(alto), medidas_(medidas) {}

    double ScaleWidth() const override { return ancho_; }
    double ScaleHeight() const override { return alto_; }

    void Cls() override;
    void Refresh() override { ++refrescos_; }
    void LockWindowUpdate(bool congelar) override { congelado_ = congelar; }
    void Polygon(const std::vector<PuntoApi>& puntos) override;
    void Ellipse(long izquierda, long arriba, long derecha, long abajo) override;
    void TextOutA(long x, long y, const std::string& texto, double angulo = 0) override;
    void DrawTextA(const std::string& texto, const Rect& rectangulo, int formato) override;
    double TextWidth(const std::string& texto) override;
    double TextHeight(const std::string& texto) override;

    const std::vector<OperacionGrabada>& Operaciones() const { return operaciones_; }
    // The operations of one kind, in order.
    std::vector<OperacionGrabada> DelTipo(TipoOperacion tipo) const;
    // The texts written (by TextOutA and DrawTextA), in order.
    std::vector<std::string> Textos() const;
    // The first text operation with this exact text; fails the caller's lookup with a
    // null pointer when there is none.
    const OperacionGrabada* BuscarTexto(const std::string& texto) const;
    void Borrar() { operaciones_.clear(); }
    // The recording, taken out of the recorder (which is left empty).
    std::vector<OperacionGrabada> Soltar() { return std::move(operaciones_); }

    bool Congelado() const { return congelado_; }
    int Refrescos() const { return refrescos_; }

  protected:
    void TrazarLinea(PuntoApi desde, PuntoApi hasta) override;
    void TrazarArco(PuntoApi desde, long x, long y, long radio, double inicio,
                    double barrido) override;

  private:
    OperacionGrabada Nueva(TipoOperacion tipo) const;
    // The measuring canvas with this canvas's font.
    Lienzo& Medidor();

    double ancho_;
    double alto_;
    Lienzo* medidas_;
    bool congelado_ = false;
    int refrescos_ = 0;
    std::vector<OperacionGrabada> operaciones_;
};

// Paints `operaciones` on `lienzo`, each with the state it was recorded with: the same calls in
// the same order as the painting recorded, so a raster canvas gets the same pixels. The
// canvas's pen is the last one recorded afterwards.
void Reproducir(const std::vector<OperacionGrabada>& operaciones, Lienzo& lienzo);

} // namespace trevalo
