#include "output/PaginaInforme.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cassert>
#include <cstring>
#include <deque>
#include <functional>
#include <future>
#include <string_view>
#include <vector>

#include "output/GraficoPng.h"
#include "output/HilosTrabajo.h"
#include "output/LlenarImpreDatos.h"

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

// The painted zones of a picture, found by cutting it along white gaps of at least
// BandaBlanca rows, then each piece along white gaps of as many columns, and so on until no
// piece can be cut; each zone is trimmed to its paint. Only these go to the page, which looks
// the same on white paper and spares a PDF the compression of the blank parts of every
// picture; zones never touch, so no seam can show between them.
constexpr int BandaBlanca = 12;

// The runs of painted lines of `zona` (rows, or columns when `porColumnas`) separated by
// more than BandaBlanca white ones, as offsets from the zone's edge.
std::vector<std::pair<int, int>> TramosPintados(const QImage& rgb, const QRect& zona,
                                                bool porColumnas) {
    const QRgb blanco = qRgb(255, 255, 255);
    std::vector<char> pintada(static_cast<std::size_t>(porColumnas ? zona.width() : zona.height()));
    for (int y = zona.top(); y <= zona.bottom(); ++y) {
        const auto* fila = reinterpret_cast<const QRgb*>(rgb.constScanLine(y));
        for (int x = zona.left(); x <= zona.right(); ++x) {
            if (fila[x] == blanco) continue;
            if (!porColumnas) {
                pintada[static_cast<std::size_t>(y - zona.top())] = 1;
                break;
            }
            pintada[static_cast<std::size_t>(x - zona.left())] = 1;
        }
    }
    std::vector<std::pair<int, int>> tramos;
    for (int i = 0; i < static_cast<int>(pintada.size()); ++i) {
        if (!pintada[static_cast<std::size_t>(i)]) continue;
        if (tramos.empty() || i - tramos.back().second > BandaBlanca)
            tramos.emplace_back(i, i);
        else
            tramos.back().second = i;
    }
    return tramos;
}

// Cuts `zona` across its rows or its columns; `otraEntera` says the other direction left it
// whole, so a zone that neither direction cuts is final.
void Cortar(const QImage& rgb, const QRect& zona, bool porColumnas, bool otraEntera,
            std::vector<QRect>& zonas) {
    const auto tramos = TramosPintados(rgb, zona, porColumnas);
    for (const auto& [desde, hasta] : tramos) {
        const QRect pieza =
            porColumnas ? QRect(zona.left() + desde, zona.top(), hasta - desde + 1, zona.height())
                        : QRect(zona.left(), zona.top() + desde, zona.width(), hasta - desde + 1);
        const bool entera = pieza == zona;
        if (entera && otraEntera)
            zonas.push_back(pieza);
        else
            Cortar(rgb, pieza, !porColumnas, entera, zonas);
    }
}

std::vector<QRect> ZonasPintadas(const QImage& rgb) {
    std::vector<QRect> zonas;
    if (!rgb.isNull()) Cortar(rgb, rgb.rect(), false, false, zonas);
    return zonas;
}

// A digest of a zone: its size and every sixteenth row. Zones with equal digests are
// compared whole before one stands for the other.
std::size_t Huella(const QImage& zona) {
    constexpr int Paso = 16;
    std::size_t h = std::hash<long long>()(static_cast<long long>(zona.width()) << 32 |
                                           static_cast<unsigned>(zona.height()));
    const auto bytes = static_cast<std::size_t>(zona.width()) * sizeof(QRgb);
    for (int y = 0; y < zona.height(); y += Paso) {
        const std::string_view fila(reinterpret_cast<const char*>(zona.constScanLine(y)), bytes);
        h = h * 1099511628211u ^ std::hash<std::string_view>()(fila);
    }
    return h;
}

bool MismosPixeles(const QImage& a, const QImage& b) {
    if (a.size() != b.size() || a.format() != b.format()) return false;
    const auto bytes = static_cast<std::size_t>(a.width()) * sizeof(QRgb);
    for (int y = 0; y < a.height(); ++y)
        if (std::memcmp(a.constScanLine(y), b.constScanLine(y), bytes) != 0) return false;
    return true;
}

// The zones of the last pictures written. A zone with the pixels of one of them takes that
// one's image, which a PDF writer recognises and stores once: the elevation of a beam heads
// several of its pictures.
class ZonasEscritas {
  public:
    void Reusar(GraficoPreparado& preparado) {
        for (ZonaGrafico& zona : preparado.Zonas) {
            const auto igual =
                std::find_if(zonas_.begin(), zonas_.end(), [&](const ZonaGrafico& z) {
                    return z.Huella == zona.Huella && MismosPixeles(z.Imagen, zona.Imagen);
                });
            if (igual != zonas_.end()) zona.Imagen = igual->Imagen;
        }
        cuantas_.push_back(preparado.Zonas.size());
        zonas_.insert(zonas_.end(), preparado.Zonas.begin(), preparado.Zonas.end());
        if (cuantas_.size() > Ventana) {
            zonas_.erase(zonas_.begin(), zonas_.begin() + static_cast<long>(cuantas_.front()));
            cuantas_.pop_front();
        }
    }

  private:
    static constexpr std::size_t Ventana = 6; // the pictures of two beams
    std::deque<ZonaGrafico> zonas_;
    std::deque<std::size_t> cuantas_;
};

void PintarGrafico(QPainter& p, const ContenidoInforme& c, const GraficoInforme& grafico,
                   const GraficoPreparado& preparado) {
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
    const double e = marco.width() / preparado.Tamano.width();
    for (const ZonaGrafico& zona : preparado.Zonas) {
        const QRect& z = zona.Lugar;
        p.drawImage(QRectF(marco.left() + z.left() * e, marco.top() + z.top() * e, z.width() * e,
                           z.height() * e),
                    zona.Imagen);
    }
    p.setPen(QPen(ColorRaya, 0.5));
    p.setBrush(Qt::NoBrush);
    p.drawRect(marco);
    Letra(p, 9, false, ColorTexto);
    Texto(p, QRectF(marco.left(), marco.bottom() + 6, marco.width(), 14), Qt::AlignHCenter,
          QStringLiteral("Gráfico %1").arg(grafico.Numero));
}

} // namespace

void PintarPaginaInforme(QPainter& p, const QRectF& destino, const ContenidoInforme& c, int pagina,
                         const GraficoPreparado& preparado) {
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
        PintarGrafico(p, c, c.Graficos[static_cast<std::size_t>(pagina - 2)], preparado);
    PintarPie(p, c, pagina);
    p.restore();
}

int CantidadPaginasInforme(const ContenidoInforme& contenido) {
    return 1 + static_cast<int>(contenido.Graficos.size());
}

GraficoPreparado PrepararGrafico(const GraficoInforme& grafico) {
    GraficoPreparado preparado;
    const QImage imagen = DecodificarPng(grafico.Grafico).convertToFormat(QImage::Format_RGB32);
    if (imagen.isNull()) return preparado;
    preparado.Tamano = imagen.size();
    for (const QRect& lugar : ZonasPintadas(imagen)) {
        QImage pixeles = imagen.copy(lugar);
        const std::size_t huella = Huella(pixeles);
        preparado.Zonas.push_back({lugar, std::move(pixeles), huella});
    }
    return preparado;
}

GraficoPreparado PrepararPagina(const ContenidoInforme& c, int pagina) {
    return pagina == 1 ? GraficoPreparado()
                       : PrepararGrafico(c.Graficos[static_cast<std::size_t>(pagina - 2)]);
}

void PintarPaginaInforme(QPainter& p, const QRectF& destino, const ContenidoInforme& c,
                         int pagina) {
    PintarPaginaInforme(p, destino, c, pagina, PrepararPagina(c, pagina));
}

bool PintarInforme(QPagedPaintDevice& dispositivo, const ContenidoInforme& contenido) {
    const MemoriaGraficos memoria;
    QPainter pintor;
    if (!pintor.begin(&dispositivo)) return false;
    const QRectF pagina(0, 0, dispositivo.width(), dispositivo.height());
    // The pictures of the next pages are decoded on other threads while a page is painted.
    HilosTrabajo<GraficoPreparado> lectores(HilosPintura());
    const auto adelante = static_cast<std::size_t>(2 * HilosPintura());
    std::deque<std::future<GraficoPreparado>> preparados;
    std::size_t siguiente = 0;
    ZonasEscritas escritas;
    for (int k = 1; k <= CantidadPaginasInforme(contenido); ++k) {
        for (; siguiente < contenido.Graficos.size() && preparados.size() < adelante; ++siguiente)
            preparados.push_back(lectores.Encargar(
                [&grafico = contenido.Graficos[siguiente]] { return PrepararGrafico(grafico); }));
        GraficoPreparado preparado;
        if (k > 1) {
            preparado = preparados.front().get();
            preparados.pop_front();
            escritas.Reusar(preparado);
            dispositivo.newPage();
        }
        PintarPaginaInforme(pintor, pagina, contenido, k, preparado);
    }
    return pintor.end();
}

} // namespace trevalo
