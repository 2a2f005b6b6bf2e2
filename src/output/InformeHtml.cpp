// The report as one self-contained HTML page: the head as a table, then every picture as
// inline SVG drawn from its drawing (text as text), at most its screen size (710 by 810), one
// to a printed page. A picture without a drawing goes as a PNG data URI.

#include <QByteArray>
#include <QRegularExpression>
#include <QString>

#include "drawing/LienzoGrabador.h"
#include "output/EscritoresInforme.h"
#include "platform/lienzos/LienzosArchivo.h"

namespace trevalo {

namespace {

std::string Escapar(const std::string& texto) {
    std::string r;
    for (char c : texto) {
        switch (c) {
        case '&':
            r += "&amp;";
            break;
        case '<':
            r += "&lt;";
            break;
        case '>':
            r += "&gt;";
            break;
        case '"':
            r += "&quot;";
            break;
        default:
            r += c;
        }
    }
    return r;
}

constexpr const char* Estilo = R"(<style>
body { font-family: Arial, "Liberation Sans", Helvetica, sans-serif; color: #1a1a1a;
       margin: 0; background: #eee; }
.pagina { background: #fff; max-width: 760px; margin: 24px auto; padding: 32px 40px;
          box-shadow: 0 1px 4px rgba(0,0,0,.25); }
h1 { font-size: 20px; text-align: center; margin: 0 0 4px; border-top: 3px solid #1a1a1a;
     padding-top: 14px; }
.subtitulo { text-align: center; color: #555; margin: 0 0 20px; font-size: 13px;
             border-bottom: 1px solid #1a1a1a; padding-bottom: 12px; }
table { border-collapse: collapse; width: 100%; font-size: 14px; }
td { border-bottom: 1px solid #ccc; padding: 5px 4px; }
td.etiqueta { color: #555; width: 42%; }
figure { margin: 0; text-align: center; }
figure img, figure svg { max-width: 100%; height: auto; border: 1px solid #999; }
figure svg { width: 710px; }
svg [font-family="Liberation Sans"] { font-family: "Liberation Sans", Arial, sans-serif; }
svg [font-family="DejaVu Sans"] { font-family: "DejaVu Sans", Tahoma, sans-serif; }
figcaption { font-size: 13px; margin-top: 6px; }
.cabeza { font-size: 11px; color: #555; border-bottom: 1px solid #999; margin-bottom: 14px;
          display: flex; justify-content: space-between; padding-bottom: 3px; }
@media print { body { background: #fff; } .pagina { box-shadow: none; margin: 0 auto;
               page-break-after: always; } }
</style>
)";

// The SVG element of a document, without the XML declaration and with less of what the
// generator repeats: groups left empty by a change of pen, the identity transform, and the
// font of groups (each text carries its own).
std::string ElementoSvg(const std::string& documento) {
    static const QRegularExpression vacio(QStringLiteral("<g [^>]*>\\s*</g>\\s*"));
    static const QRegularExpression letra(
        QStringLiteral("(<g [^>]*?)\\s*font-family=\"[^\"]*\" font-size=\"[^\"]*\" "
                       "font-weight=\"[^\"]*\" font-style=\"[^\"]*\"\\s*>"));
    QString svg = QString::fromStdString(
        documento.substr(std::min(documento.find("<svg"), documento.size())));
    svg.remove(vacio);
    svg.remove(QStringLiteral(" transform=\"matrix(1,0,0,1,0,0)\""));
    svg.replace(letra, QStringLiteral("\\1>"));
    return svg.toStdString();
}

// The picture as inline SVG, or as an image of its PNG when it has no drawing.
std::string Figura(const GraficoInforme& grafico, const std::string& titulo) {
    if (grafico.Dibujo)
        return ElementoSvg(PintarSvg(AnchoGraficoPantalla, AltoGraficoPantalla, titulo,
                                     [&](Lienzo& l) { Reproducir(*grafico.Dibujo, l); }));
    const QByteArray base64 = QByteArray(reinterpret_cast<const char*>(grafico.Grafico.data()),
                                         static_cast<qsizetype>(grafico.Grafico.size()))
                                  .toBase64();
    return "<img src=\"data:image/png;base64," + base64.toStdString() + "\" width=\"" +
           std::to_string(AnchoGraficoPantalla) + "\" height=\"" +
           std::to_string(AltoGraficoPantalla) + "\" alt=\"" + titulo + "\">";
}

} // namespace

void EscribirInformeHtml(const ContenidoInforme& c, const std::string& ruta) {
    const auto& g = c.Generales;
    std::string h = "<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\">\n";
    h += "<title>" + Escapar(g.TiTulo + " - " + g.Proyecto) + "</title>\n";
    h += Estilo;
    h += "</head>\n<body>\n<section class=\"pagina\">\n<h1>" + Escapar(g.TiTulo) + "</h1>\n";
    h += "<p class=\"subtitulo\">Memoria de cálculo</p>\n<table>\n";
    for (const auto& linea : LineasCabecera(c))
        h += "<tr><td class=\"etiqueta\">" + Escapar(linea.Etiqueta) + "</td><td>" +
             Escapar(linea.Valor) + "</td></tr>\n";
    h += "</table>\n</section>\n";
    for (const auto& grafico : c.Graficos) {
        const std::string titulo = "Gráfico " + std::to_string(grafico.Numero);
        h += "<section class=\"pagina\">\n<div class=\"cabeza\"><span>" + Escapar(g.TiTulo) +
             "</span><span>" + Escapar(g.Proyecto) + "</span></div>\n<figure>" +
             Figura(grafico, titulo) + "\n<figcaption>" + titulo +
             "</figcaption></figure>\n</section>\n";
    }
    h += "</body>\n</html>\n";
    GuardarArchivo(ruta, h);
}

} // namespace trevalo
