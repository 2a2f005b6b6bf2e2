#pragma once
// The report's fixed layout, painted with QPainter on any surface: the screen viewer, the
// printer and the PDF writer all go through these two procedures, so every output looks
// the same. An A4 portrait page; page 1 is the head with the row of Generales, then one
// picture a page in Numero order. Every page carries "Página k de N".

#include <QPagedPaintDevice>
#include <QPainter>
#include <QRectF>
#include <vector>

#include "output/ContenidoInforme.h"

namespace trevalo {

// The page in points (1/72 inch): A4 portrait.
inline constexpr double AnchoPaginaPuntos = 595.28;
inline constexpr double AltoPaginaPuntos = 841.89;

// A zone of a picture that holds paint: where it lies in the picture, its own copy of the
// pixels, and a digest of them by which a writer finds a zone it has written already.
struct ZonaGrafico {
    QRect Lugar;
    QImage Imagen;
    std::size_t Huella = 0;
};

// A picture ready for its page: its size, and the zones of it that hold paint.
struct GraficoPreparado {
    QSize Tamano;
    std::vector<ZonaGrafico> Zonas;
};

// Decodes a picture of the report; a picture that does not decode has no bands.
GraficoPreparado PrepararGrafico(const GraficoInforme& grafico);

// Pages of a report: the head and one per picture.
int CantidadPaginasInforme(const ContenidoInforme& contenido);

// The picture of page `pagina` prepared (nothing for the head).
GraficoPreparado PrepararPagina(const ContenidoInforme& contenido, int pagina);

// Paints page `pagina` (1-based) scaled to fit `destino` (device units), centred in it, with
// its picture as PrepararPagina gives it (the first overload prepares it).
// Precondition: 1 <= pagina <= CantidadPaginasInforme(contenido).
void PintarPaginaInforme(QPainter& pintor, const QRectF& destino, const ContenidoInforme& contenido,
                         int pagina);
void PintarPaginaInforme(QPainter& pintor, const QRectF& destino, const ContenidoInforme& contenido,
                         int pagina, const GraficoPreparado& preparado);

// Paints every page on a paged device (a PDF writer or a printer), set to A4 portrait with
// no margins by the caller; the pictures of the pages ahead are prepared on other threads. Returns
// false if the device cannot be painted on (a file that cannot be written).
bool PintarInforme(QPagedPaintDevice& dispositivo, const ContenidoInforme& contenido);

} // namespace trevalo
