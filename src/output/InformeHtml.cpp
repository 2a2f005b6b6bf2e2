// The report as one self-contained HTML page: the head as a table, then every picture as
// a PNG data URI at its screen size (710 by 810), one to a printed page.

#include <QByteArray>
#include <QString>

#include "output/EscritoresInforme.h"

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
figure img { max-width: 100%; height: auto; border: 1px solid #999; }
figcaption { font-size: 13px; margin-top: 6px; }
.cabeza { font-size: 11px; color: #555; border-bottom: 1px solid #999; margin-bottom: 14px;
          display: flex; justify-content: space-between; padding-bottom: 3px; }
@media print { body { background: #fff; } .pagina { box-shadow: none; margin: 0 auto;
               page-break-after: always; } }
</style>
)";

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
        const QByteArray base64 = QByteArray(reinterpret_cast<const char*>(grafico.Grafico.data()),
                                             static_cast<qsizetype>(grafico.Grafico.size()))
                                      .toBase64();
        const std::string numero = std::to_string(grafico.Numero);
        h += "<section class=\"pagina\">\n<div class=\"cabeza\"><span>" + Escapar(g.TiTulo) +
             "</span><span>" + Escapar(g.Proyecto) +
             "</span></div>\n<figure><img src=\"data:"
             "image/png;base64," +
             base64.toStdString() + "\" width=\"" + std::to_string(AnchoGraficoPantalla) +
             "\" height=\"" + std::to_string(AltoGraficoPantalla) + "\" alt=\"Gráfico " + numero +
             "\">\n<figcaption>Gráfico " + numero + "</figcaption></figure>\n</section>\n";
    }
    h += "</body>\n</html>\n";
    GuardarArchivo(ruta, h);
}

} // namespace trevalo
