#include "output/PaginaInforme.h"

#include <QFontMetricsF>

#include <QPaintEngine>

#include <algorithm>
#include <cassert>

#include "drawing/LienzoGrabador.h"
#include "platform/lienzos/LienzoQt.h"

namespace trevalo {

namespace {

// Layout in points: 20 mm at the sides and the top, 15 mm at the foot.
constexpr double Izquierda = 56.7;
constexpr double Derecha = AnchoPaginaPuntos - 56.7;
constexpr double Arriba = 56.7;
constexpr double Pie = AltoPaginaPuntos - 42.5;
constexpr double AnchoUtil = Derecha - Izquierda;

const QColor ColorTexto(0x1a, 0x1a, 0x1a);
const QColor ColorEtiqueta(0x55, 0x55, 0x55);
const QColor ColorRaya(0x99, 0x99, 0x99);

QString Q(const std::string& texto) {
    return QString::fromStdString(texto);
}

void Letra(QPainter& p, int tamano, bool negrita, const QColor& color) {
    QFont letra(QStringLiteral("Arial"));
    letra.setPixelSize(tamano);
    letra.setBold(negrita);
    p.setFont(letra);
    p.setPen(color);
}

void Raya(QPainter& p, double y, double grueso, const QColor& color) {
    p.setPen(QPen(color, grueso));
    p.drawLine(QPointF(Izquierda, y), QPointF(Derecha, y));
}

// One line of text in a box, cut with an ellipsis if it does not fit.
void Texto(QPainter& p, const QRectF& caja, int alineacion, const QString& texto) {
    const QString corto = QFontMetricsF(p.font()).elidedText(texto, Qt::ElideRight, caja.width());
    p.drawText(caja, alineacion | Qt::AlignVCenter | Qt::TextSingleLine, corto);
}

void PintarPie(QPainter& p, const ContenidoInforme& c, int pagina) {
    Raya(p, Pie - 16, 0.5, ColorRaya);
    Letra(p, 8, false, ColorEtiqueta);
    const QRectF caja(Izquierda, Pie - 14, AnchoUtil, 14);
    Texto(p, caja, Qt::AlignLeft, QStringLiteral("Trevalo versión ") + Q(c.Generales.Version));
    Texto(p, caja, Qt::AlignRight,
          QStringLiteral("Página %1 de %2").arg(pagina).arg(CantidadPaginasInforme(c)));
}

// A titled group of lines of the head; returns the height used.
double PintarGrupo(QPainter& p, double y, const char* titulo,
                   const std::vector<LineaCabecera>& lineas, std::size_t desde,
                   std::size_t cuantas) {
    constexpr double AltoFila = 21;
    constexpr double AnchoEtiqueta = 200;
    Letra(p, 9, true, ColorEtiqueta);
    Texto(p, QRectF(Izquierda, y, AnchoUtil, 16), Qt::AlignLeft, QString::fromUtf8(titulo));
    double fila = y + 18;
    Raya(p, fila, 0.5, ColorRaya);
    for (std::size_t i = desde; i < desde + cuantas && i < lineas.size(); ++i) {
        Letra(p, 10, false, ColorEtiqueta);
        Texto(p, QRectF(Izquierda + 4, fila, AnchoEtiqueta - 8, AltoFila), Qt::AlignLeft,
              Q(lineas[i].Etiqueta));
        Letra(p, 10, false, ColorTexto);
        Texto(p, QRectF(Izquierda + AnchoEtiqueta, fila, AnchoUtil - AnchoEtiqueta - 4, AltoFila),
              Qt::AlignLeft, Q(lineas[i].Valor));
        fila += AltoFila;
        Raya(p, fila, 0.3, QColor(0xcc, 0xcc, 0xcc));
    }
    return fila - y;
}

void PintarCabecera(QPainter& p, const ContenidoInforme& c) {
    const auto& g = c.Generales;
    Raya(p, Arriba, 1.5, ColorTexto);
    Letra(p, 16, true, ColorTexto);
    Texto(p, QRectF(Izquierda, Arriba + 14, AnchoUtil, 26), Qt::AlignHCenter, Q(g.TiTulo));
    Letra(p, 10, false, ColorEtiqueta);
    Texto(p, QRectF(Izquierda, Arriba + 40, AnchoUtil, 16), Qt::AlignHCenter,
          QStringLiteral("Memoria de cálculo"));
    Raya(p, Arriba + 66, 0.5, ColorTexto);

    // The lines come as project (3), materials (3), program (2).
    const auto lineas = LineasCabecera(c);
    double y = Arriba + 92;
    y += PintarGrupo(p, y, "DATOS DEL PROYECTO", lineas, 0, 3) + 24;
    y += PintarGrupo(p, y, "MATERIALES", lineas, 3, 3) + 24;
    y += PintarGrupo(p, y, "PROGRAMA", lineas, 6, 2) + 24;

    Letra(p, 9, true, ColorEtiqueta);
    Texto(p, QRectF(Izquierda, y, AnchoUtil, 16), Qt::AlignLeft, QStringLiteral("CONTENIDO"));
    Letra(p, 10, false, ColorTexto);
    const auto n = static_cast<int>(c.Graficos.size());
    const QString contenido =
        n == 0   ? QStringLiteral("Sin gráficos.")
        : n == 1 ? QStringLiteral("1 gráfico, en la página 2.")
                 : QStringLiteral("%1 gráficos, en las páginas 2 a %2.").arg(n).arg(n + 1);
    Texto(p, QRectF(Izquierda + 4, y + 18, AnchoUtil - 4, 18), Qt::AlignLeft, contenido);

    // Signature block of the engineer, bottom right.
    const QRectF firma(Derecha - 210, Pie - 120, 210, 60);
    p.setPen(QPen(ColorTexto, 0.7));
    p.drawLine(firma.topLeft(), firma.topRight());
    Letra(p, 10, false, ColorTexto);
    Texto(p, QRectF(firma.left(), firma.top() + 4, firma.width(), 16), Qt::AlignHCenter,
          Q(g.Calculista));
    Letra(p, 8, false, ColorEtiqueta);
    Texto(p, QRectF(firma.left(), firma.top() + 20, firma.width(), 14), Qt::AlignHCenter,
          QStringLiteral("Calculista"));
}

// The picture in the frame `marco`: its drawing painted again on the page, or its raster
// image when it has none.
void PintarDibujo(QPainter& p, const GraficoInforme& grafico, const QRectF& marco) {
    p.save();
    p.setClipRect(marco);
    p.translate(marco.topLeft());
    p.scale(marco.width() / AnchoGraficoPantalla, marco.height() / AltoGraficoPantalla);
    if (grafico.Dibujo) {
        const bool raster = p.paintEngine() && p.paintEngine()->type() == QPaintEngine::Raster;
        LienzoQt lienzo(p, AnchoGraficoPantalla, AltoGraficoPantalla, raster);
        Reproducir(*grafico.Dibujo, lienzo);
    } else {
        const QImage imagen = QImage::fromData(grafico.Grafico.data(),
                                               static_cast<int>(grafico.Grafico.size()), "PNG");
        p.drawImage(QRectF(0, 0, AnchoGraficoPantalla, AltoGraficoPantalla), imagen);
    }
    p.restore();
}

void PintarGrafico(QPainter& p, const ContenidoInforme& c, const GraficoInforme& grafico) {
    Letra(p, 8, true, ColorEtiqueta);
    const QRectF cabeza(Izquierda, Arriba, AnchoUtil, 14);
    Texto(p, QRectF(cabeza.left(), cabeza.top(), AnchoUtil * 0.55, 14), Qt::AlignLeft,
          Q(c.Generales.TiTulo));
    Letra(p, 8, false, ColorEtiqueta);
    Texto(p, QRectF(cabeza.left() + AnchoUtil * 0.55, cabeza.top(), AnchoUtil * 0.45, 14),
          Qt::AlignRight, Q(c.Generales.Proyecto));
    Raya(p, Arriba + 17, 0.5, ColorRaya);

    // The picture as large as the page allows, its proportions kept.
    const double arriba = Arriba + 30;
    const double altoLibre = Pie - 40 - arriba;
    const double escala =
        std::min(AnchoUtil / AnchoGraficoPantalla, altoLibre / AltoGraficoPantalla);
    const QSizeF tamano(AnchoGraficoPantalla * escala, AltoGraficoPantalla * escala);
    const QRectF marco(Izquierda + (AnchoUtil - tamano.width()) / 2, arriba, tamano.width(),
                       tamano.height());
    PintarDibujo(p, grafico, marco);
    p.setPen(QPen(ColorRaya, 0.5));
    p.setBrush(Qt::NoBrush);
    p.drawRect(marco);
    Letra(p, 9, false, ColorTexto);
    Texto(p, QRectF(marco.left(), marco.bottom() + 6, marco.width(), 14), Qt::AlignHCenter,
          QStringLiteral("Gráfico %1").arg(grafico.Numero));
}

} // namespace

void PintarPaginaInforme(QPainter& p, const QRectF& destino, const ContenidoInforme& c,
                         int pagina) {
    assert(pagina >= 1 && pagina <= CantidadPaginasInforme(c));
    const double escala =
        std::min(destino.width() / AnchoPaginaPuntos, destino.height() / AltoPaginaPuntos);
    p.save();
    p.translate(destino.left() + (destino.width() - AnchoPaginaPuntos * escala) / 2,
                destino.top() + (destino.height() - AltoPaginaPuntos * escala) / 2);
    p.scale(escala, escala);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                     QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    p.fillRect(QRectF(0, 0, AnchoPaginaPuntos, AltoPaginaPuntos), Qt::white);
    if (pagina == 1)
        PintarCabecera(p, c);
    else
        PintarGrafico(p, c, c.Graficos[static_cast<std::size_t>(pagina - 2)]);
    PintarPie(p, c, pagina);
    p.restore();
}

int CantidadPaginasInforme(const ContenidoInforme& contenido) {
    return 1 + static_cast<int>(contenido.Graficos.size());
}

bool PintarInforme(QPagedPaintDevice& dispositivo, const ContenidoInforme& contenido) {
    QPainter pintor;
    if (!pintor.begin(&dispositivo)) return false;
    const QRectF pagina(0, 0, dispositivo.width(), dispositivo.height());
    for (int k = 1; k <= CantidadPaginasInforme(contenido); ++k) {
        if (k > 1) dispositivo.newPage();
        PintarPaginaInforme(pintor, pagina, contenido, k);
    }
    return pintor.end();
}

} // namespace trevalo
