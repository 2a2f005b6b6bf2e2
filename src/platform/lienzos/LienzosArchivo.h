#pragma once
// Canvases with a surface of their own: a raster image, and the vector files PDF and SVG.
// The canvas's pixel is 1/96 inch on the vector files; the image may hold `escala` image
// pixels per canvas pixel (pictures at print resolution keep the same layout).

#include <QImage>
#include <QPainter>
#include <functional>
#include <memory>
#include <string>

#include "platform/lienzos/LienzoQt.h"

namespace trevalo {

namespace detalle {
struct SuperficieImagen {
    SuperficieImagen(int ancho, int alto, double escala);
    QImage imagen;
    QPainter painter;
};
struct SuperficieVectorial {
    SuperficieVectorial(const std::string& ruta, int ancho, int alto, bool pdf);
    std::unique_ptr<QPaintDevice> dispositivo;
    QPainter painter;
};
} // namespace detalle

class LienzoImagen : private detalle::SuperficieImagen, public LienzoQt {
  public:
    LienzoImagen(int ancho, int alto, double escala = 1.0);
    // The picture as painted so far; painting may go on.
    const QImage& Imagen() const { return imagen; }
    // Writes the picture (PNG by the extension). Error 75 when it cannot be written.
    void Guardar(const std::string& ruta) const;
};

class LienzoVectorial : private detalle::SuperficieVectorial, public LienzoQt {
  public:
    enum class Formato { Pdf, Svg };
    // Opens the file for writing. Error 75 when it cannot be opened.
    LienzoVectorial(const std::string& ruta, int ancho, int alto, Formato formato);
    // Closes the file; nothing may be painted after it. Also done on destruction.
    void Terminar();
    ~LienzoVectorial() override { Terminar(); }
};

// The SVG document (UTF-8) of what `pintar` paints on a canvas of `ancho` by `alto` pixels, with
// `titulo` as its title; texts stay text.
std::string PintarSvg(int ancho, int alto, const std::string& titulo,
                      const std::function<void(Lienzo&)>& pintar);

// Paints through `pintar` into the file, PNG, SVG or PDF by its extension (any other: PNG).
// Error 75 when the file cannot be written.
void PintarEnArchivo(const std::string& ruta, int ancho, int alto,
                     const std::function<void(Lienzo&)>& pintar);

} // namespace trevalo
