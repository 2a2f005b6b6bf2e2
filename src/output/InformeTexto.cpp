// The report as a word-processing file (.rtf): A4 portrait with 20 mm margins, the head as
// a two-column table, then each picture embedded as PNG (\pngblip) on a page of its own,
// scaled to the text width; page numbers in the footer.

#include <QString>

#include <cmath>

#include "output/EscritoresInforme.h"

namespace trevalo {

namespace {

// A4 and its margins in twips.
constexpr int AnchoPapel = 11906;
constexpr int AltoPapel = 16838;
constexpr int Margen = 1134;
constexpr int AnchoTexto = AnchoPapel - 2 * Margen;

// Text in RTF: control characters escaped, everything beyond ASCII as \uN? (UTF-16 units,
// signed).
std::string Rtf(const std::string& texto) {
    std::string r;
    for (const QChar ch : QString::fromStdString(texto)) {
        const char16_t u = ch.unicode();
        if (u == '\\' || u == '{' || u == '}')
            r += std::string("\\") + static_cast<char>(u);
        else if (u >= 0x20 && u < 0x80)
            r += static_cast<char>(u);
        else
            r += "\\u" + std::to_string(static_cast<std::int16_t>(u)) + "?";
    }
    return r;
}

std::string Hex(const std::vector<std::uint8_t>& bytes) {
    static constexpr char Digitos[] = "0123456789abcdef";
    std::string r;
    r.reserve(bytes.size() * 2 + bytes.size() / 64);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        r += Digitos[bytes[i] >> 4];
        r += Digitos[bytes[i] & 0xf];
        if (i % 64 == 63) r += '\n';
    }
    return r;
}

std::string FilaTabla(const LineaCabecera& linea) {
    const std::string borde = "\\clbrdrb\\brdrs\\brdrw5\\brdrcf3";
    return "\\trowd\\trgaph108" + borde + "\\cellx3800" + borde + "\\cellx" +
           std::to_string(AnchoTexto) + "\n\\pard\\intbl\\sb60\\sa60\\cf2 " + Rtf(linea.Etiqueta) +
           "\\cell\\cf1 " + Rtf(linea.Valor) + "\\cell\\row\n";
}

std::string Imagen(const GraficoInforme& grafico) {
    const int alto =
        static_cast<int>(std::lround(AnchoTexto * static_cast<double>(AltoGrafico) / AnchoGrafico));
    return "\\pard\\qc{\\pict\\pngblip\\picw" + std::to_string(AnchoGrafico) + "\\pich" +
           std::to_string(AltoGrafico) + "\\picwgoal" + std::to_string(AnchoTexto) + "\\pichgoal" +
           std::to_string(alto) + "\n" + Hex(grafico.Grafico) + "}\\par\n";
}

} // namespace

void EscribirInformeTexto(const ContenidoInforme& c, const std::string& ruta) {
    const auto& g = c.Generales;
    std::string r = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n"
                    "{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}}\n"
                    "{\\colortbl;\\red26\\green26\\blue26;\\red85\\green85\\blue85;"
                    "\\red204\\green204\\blue204;}\n"
                    "{\\info{\\title " +
                    Rtf(g.TiTulo + " - " + g.Proyecto) + "}{\\author " + Rtf(g.Calculista) +
                    "}}\n\\paperw" + std::to_string(AnchoPapel) + "\\paperh" +
                    std::to_string(AltoPapel) + "\\margl" + std::to_string(Margen) + "\\margr" +
                    std::to_string(Margen) + "\\margt" + std::to_string(Margen) + "\\margb" +
                    std::to_string(Margen) + "\n";
    r += "{\\footer\\pard\\tqr\\tx" + std::to_string(AnchoTexto) + "\\f0\\fs16\\cf2 " +
         Rtf("Trevalo versión " + g.Version) + "\\tab " + Rtf("Página ") +
         "{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}" + " de " +
         "{\\field{\\*\\fldinst NUMPAGES}{\\fldrslt 1}}\\par}\n";
    r += "\\pard\\qc\\f0\\b\\fs32\\cf1\\brdrt\\brdrs\\brdrw30\\brsp120 " + Rtf(g.TiTulo) +
         "\\b0\\par\n\\pard\\qc\\fs20\\cf2\\sa360\\brdrb\\brdrs\\brdrw10\\brsp120 " +
         Rtf("Memoria de cálculo") + "\\par\n\\pard\\fs20\n";
    for (const auto& linea : LineasCabecera(c)) r += FilaTabla(linea);
    r += "\\pard\\par\n";
    for (const auto& grafico : c.Graficos) {
        // The running head: title left, project right, a rule under them.
        r += "\\page\n\\pard\\tqr\\tx" + std::to_string(AnchoTexto) +
             "\\fs16\\cf2\\sa240\\brdrb\\brdrs\\brdrw5\\brdrcf3 " + Rtf(g.TiTulo) + "\\tab " +
             Rtf(g.Proyecto) + "\\par\n";
        if (!grafico.Grafico.empty()) r += Imagen(grafico);
        r +=
            "\\pard\\qc\\fs18\\cf1 " + Rtf("Gráfico " + std::to_string(grafico.Numero)) + "\\par\n";
    }
    r += "}\n";
    GuardarArchivo(ruta, r);
}

} // namespace trevalo
