#include "platform/lienzos/LienzoQt.h"

#include <QPainterPath>

namespace trevalo {

namespace {

QString FamiliaSustituta(const std::string& nombre) {
    if (nombre == "Arial") return QStringLiteral("Liberation Sans");
    if (nombre == "Tahoma") return QStringLiteral("DejaVu Sans");
    return QString::fromStdString(nombre);
}

QRectF Caja(long izquierda, long arriba, long derecha, long abajo) {
    return QRectF(QPointF(izquierda, arriba), QPointF(derecha, abajo)).normalized();
}

} // namespace

QColor ColorQt(Color color) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

LienzoQt::LienzoQt(QPainter& painter, double ancho, double alto, bool raster, double anchoExterior,
                   double altoExterior)
    : painter_(painter), ancho_(ancho), alto_(alto), raster_(raster),
      anchoExterior_(anchoExterior > 0 ? anchoExterior : ancho),
      altoExterior_(altoExterior > 0 ? altoExterior : alto) {
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setRenderHint(QPainter::TextAntialiasing, true);
}

const QFont& LienzoQt::FuenteActual() const {
    const ClaveFuente clave{FontName, FontSize, FontBold, FontUnderline};
    if (clave_ == clave) return fuente_;
    fuente_ = QFont(FamiliaSustituta(FontName));
    const int dpi = painter_.device() ? painter_.device()->logicalDpiY() : 96;
    fuente_.setPointSizeF(std::max(0.5, FontSize * 96.0 / (dpi > 0 ? dpi : 96)));
    fuente_.setBold(FontBold);
    fuente_.setUnderline(FontUnderline);
    medidas_.emplace(fuente_, painter_.device());
    clave_ = clave;
    return fuente_;
}

const QFontMetricsF& LienzoQt::Medidas() const {
    FuenteActual();
    return *medidas_;
}

void LienzoQt::Cls() {
    painter_.save();
    painter_.setCompositionMode(QPainter::CompositionMode_Source);
    painter_.fillRect(QRectF(0, 0, anchoExterior_, altoExterior_), ColorQt(BackColor));
    painter_.restore();
}

void LienzoQt::PrepararTrazo(bool relleno) {
    const Pluma& p = PlumaActual();
    QPen pen(ColorQt(p.Tinta));
    pen.setWidthF(std::max(1, p.Ancho));
    pen.setStyle(p.Estilo == EstiloGuionPuntoPunto ? Qt::DashDotDotLine : Qt::SolidLine);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    painter_.setPen(pen);
    painter_.setBrush(relleno && FillStyle == RellenoSolido ? QBrush(ColorQt(FillColor))
                                                            : QBrush(Qt::NoBrush));
    if (DrawMode == DrawModeMascara)
        painter_.setCompositionMode(raster_ ? QPainter::RasterOp_SourceAndDestination
                                            : QPainter::CompositionMode_Multiply);
    else
        painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void LienzoQt::TrazarLinea(PuntoApi desde, PuntoApi hasta) {
    PrepararTrazo(false);
    painter_.drawLine(QPointF(desde.x, desde.y), QPointF(hasta.x, hasta.y));
}

void LienzoQt::TrazarArco(PuntoApi desde, long x, long y, long radio, double inicio,
                          double barrido) {
    PrepararTrazo(false);
    QPainterPath camino(QPointF(desde.x, desde.y));
    camino.arcTo(QRectF(x - radio, y - radio, 2.0 * radio, 2.0 * radio), inicio, barrido);
    painter_.drawPath(camino);
}

void LienzoQt::Polygon(const std::vector<PuntoApi>& puntos) {
    PrepararTrazo(true);
    QPolygonF poligono;
    for (const auto& p : puntos) poligono << QPointF(p.x, p.y);
    painter_.drawPolygon(poligono);
}

void LienzoQt::Ellipse(long izquierda, long arriba, long derecha, long abajo) {
    PrepararTrazo(true);
    painter_.drawEllipse(Caja(izquierda, arriba, derecha, abajo));
}

void LienzoQt::TextOutA(long x, long y, const std::string& texto, double angulo) {
    const QFont& fuente = FuenteActual();
    painter_.save();
    painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter_.setFont(fuente);
    painter_.setPen(ColorQt(ForeColor));
    painter_.translate(x, y);
    painter_.rotate(-angulo); // counter-clockwise on the screen
    painter_.drawText(QPointF(0, Medidas().ascent()), QString::fromStdString(texto));
    painter_.restore();
}

void LienzoQt::DrawTextA(const std::string& texto, const Rect& r, int formato) {
    const int horizontal = formato == TextoCentrado ? Qt::AlignHCenter : Qt::AlignLeft;
    painter_.save();
    painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter_.setFont(FuenteActual());
    painter_.setPen(ColorQt(ForeColor));
    painter_.drawText(Caja(r.Left, r.Top, r.Right, r.Bottom),
                      horizontal | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                      QString::fromStdString(texto));
    painter_.restore();
}

double LienzoQt::TextWidth(const std::string& texto) {
    return Medidas().horizontalAdvance(QString::fromStdString(texto));
}

double LienzoQt::TextHeight(const std::string&) {
    return Medidas().height();
}

} // namespace trevalo
