#pragma once
// The report's fixed layout, painted with QPainter on any surface: the screen viewer, the
// printer, the print preview and the PDF writer all go through these two procedures, so every
// output looks the same. An A4 portrait page; page 1 is the head with the row of Generales, then
// one picture a page in Numero order. Every page carries "Página k de N".

#include <QPagedPaintDevice>
#include <QPainter>
#include <QRectF>

#include "output/ContenidoInforme.h"

namespace trevalo {

// The page in points (1/72 inch): A4 portrait.
inline constexpr double AnchoPaginaPuntos = 595.28;
inline constexpr double AltoPaginaPuntos = 841.89;

// Pages of a report: the head and one per picture.
int CantidadPaginasInforme(const ContenidoInforme& contenido);

// Paints page `pagina` (1-based) scaled to fit `destino` (device units), centred in it. The
// picture is painted from its drawing, as vectors and text, sharp at any scale; a picture
// without one (a report read from the database alone) as its raster image.
// Precondition: 1 <= pagina <= CantidadPaginasInforme(contenido).
void PintarPaginaInforme(QPainter& pintor, const QRectF& destino, const ContenidoInforme& contenido,
                         int pagina);

// Paints every page on a paged device (a PDF writer or a printer), set to A4 portrait with
// no margins by the caller. Returns false if the device cannot be painted on (a file that
// cannot be written).
bool PintarInforme(QPagedPaintDevice& dispositivo, const ContenidoInforme& contenido);

} // namespace trevalo
