// The four writers and the page layout on a report of known content: every picture reaches
// each file, as its drawing in the PDF and the HTML page and as its PNG whole in the others;
// the PDF has a page for the head and one per picture, the texts survive their encodings,
// and a file that cannot be written is error 75.

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "comun/AplicacionQt.h"
#include "comun/Aserciones.h"
#include "comun/Carpeta.h"
#include "drawing/LienzoGrabador.h"
#include "output/EscritoresInforme.h"
#include "output/GraficoPng.h"
#include "output/PaginaInforme.h"
#include "output/SalidasInforme.h"
#include "platform/lienzos/LienzosArchivo.h"

namespace trevalo {
namespace {

// A picture of the report's size, white with a solid block of the given colour (0xBBGGRR) in
// the middle third, so that its place on a page can be found again, and a caption; its PNG
// painted from its drawing, as the fill does.
GraficoInforme Grafico(int numero, Color color) {
    LienzoGrabador l(AnchoGraficoPantalla, AltoGraficoPantalla);
    l.Cls();
    l.FillStyle = RellenoSolido;
    l.FillColor = color;
    l.SelectObject({EstiloSolido, 1, color});
    constexpr long a = AnchoGraficoPantalla / 3, h = AltoGraficoPantalla / 3;
    l.Polygon({{a, h}, {2 * a, h}, {2 * a, 2 * h}, {a, 2 * h}});
    l.TextOutA(20, 20, "Viga V-" + std::to_string(100 + numero) + " d=0.45");
    auto dibujo = std::make_shared<const DibujoInforme>(l.Soltar());
    LienzoImagen imagen(AnchoGraficoPantalla, AltoGraficoPantalla, FactorImpresion);
    Reproducir(*dibujo, imagen);
    return {static_cast<std::int16_t>(numero), CodificarPng(imagen.Imagen()), std::move(dibujo)};
}

ContenidoInforme Contenido(int graficos) {
    ContenidoInforme c;
    c.Generales.Usuario = "Ing. Núñez";
    c.Generales.Version = "6.0";
    c.Generales.Proyecto = "Edificio Ñandú {torre} \\ <norte> & sur";
    c.Generales.Propietario = "Constructora Peña";
    c.Generales.Calculista = "María José";
    c.Generales.FC = 250;
    c.Generales.FY = 4200;
    c.Generales.D8 = 0.05;
    const Color colores[] = {0x0000FF, 0x00A000, 0xFF0000}; // red, green, blue
    for (int k = 1; k <= graficos; ++k) c.Graficos.push_back(Grafico(k, colores[(k - 1) % 3]));
    return c;
}

// The same report read from the database alone: pictures without their drawings.
ContenidoInforme SinDibujos(ContenidoInforme c) {
    for (auto& g : c.Graficos) g.Dibujo = nullptr;
    return c;
}

std::size_t Contar(const std::string& texto, const std::string& trozo) {
    std::size_t n = 0;
    for (auto i = texto.find(trozo); i != std::string::npos; i = texto.find(trozo, i + 1)) ++n;
    return n;
}

// The pieces of `texto` between each `inicio` and the next `fin`.
std::vector<std::string> Trozos(const std::string& texto, const std::string& inicio,
                                const std::string& fin) {
    std::vector<std::string> r;
    for (auto i = texto.find(inicio); i != std::string::npos; i = texto.find(inicio, i)) {
        i += inicio.size();
        const auto j = texto.find(fin, i);
        if (j == std::string::npos) break;
        r.push_back(texto.substr(i, j - i));
        i = j;
    }
    return r;
}

std::vector<std::uint8_t> DeHex(const std::string& hex) {
    std::vector<std::uint8_t> r;
    std::string digitos;
    for (char c : hex)
        if (std::isxdigit(static_cast<unsigned char>(c))) digitos += c;
    for (std::size_t i = 0; i + 1 < digitos.size(); i += 2)
        r.push_back(static_cast<std::uint8_t>(std::stoi(digitos.substr(i, 2), nullptr, 16)));
    return r;
}

class EscritoresTest : public testing::Test {
  protected:
    void SetUp() override { prueba::AsegurarAplicacionQt(); }
    prueba::CarpetaTemporal carpeta;
};

TEST_F(EscritoresTest, HeadLinesShowMaterialsWithTheMachinesSeparators) {
    auto c = Contenido(0);
    c.Generales.FY = 4200.005;
    c.SeparadorDecimal = ',';
    c.SeparadorMiles = '.';
    const auto lineas = LineasCabecera(c);
    ASSERT_EQ(lineas.size(), 8u);
    EXPECT_EQ(lineas[0].Valor, c.Generales.Proyecto);
    EXPECT_EQ(lineas[2].Valor, "María José");
    EXPECT_EQ(lineas[3].Valor, "250,00 kgf/cm²");
    EXPECT_EQ(lineas[4].Valor, "4.200,01 kgf/cm²"); // half away from zero
    EXPECT_EQ(lineas[5].Valor, "0,050 m");
    EXPECT_DOUBLE_EQ(*lineas[4].Numero, 4200.005);
    EXPECT_EQ(lineas[6].Valor, "Ing. Núñez");
    EXPECT_EQ(lineas[7].Valor, "6.0");
}

// A file chosen through a kind's Save dialog is written by that kind's writer; the extension
// decides in any case, and only the four extensions have a writer.
TEST_F(EscritoresTest, EachDialogsFilterLeadsToItsOwnWriter) {
    int conArchivo = 0;
    for (const auto& s : SalidasInforme) {
        const std::string filtro = s.Filtro;
        EXPECT_EQ(s.Archivo.has_value(), !filtro.empty()) << int(s.TipoSalida);
        EXPECT_EQ(s.Archivo.has_value(), !std::string(s.TituloDialogo).empty());
        if (!s.Archivo) continue;
        ++conArchivo;
        const auto patron = filtro.substr(0, filtro.find('|'));
        EXPECT_EQ(filtro, patron + "|" + patron);
        EXPECT_EQ(ArchivoPorExtension("informe" + patron.substr(1)), s.Archivo) << filtro;
    }
    EXPECT_EQ(conArchivo, 4);
    EXPECT_EQ(ArchivoPorExtension("a/b.PDF"), ArchivoInforme::Pdf);
    EXPECT_EQ(ArchivoPorExtension("b.Html"), ArchivoInforme::Html);
    EXPECT_EQ(ArchivoPorExtension("b.xls"), std::nullopt);
    EXPECT_EQ(ArchivoPorExtension("pdf"), std::nullopt);
    EXPECT_EQ(PreguntaAbrirArchivo("Obra.pdf"), "¿Desea Abrir el Archivo Obra.pdf?    ");
}

// Pictures with their drawings go as vectors and text, no image; a picture without one as its
// PNG, lossless (no JPEG stream).
TEST_F(EscritoresTest, PdfHasTheHeadAndOnePagePerPicture) {
    struct Caso {
        ContenidoInforme contenido;
        std::size_t paginas, imagenes;
    };
    const Caso casos[] = {
        {Contenido(0), 1, 0}, {Contenido(3), 4, 0}, {SinDibujos(Contenido(2)), 3, 2}};
    int k = 0;
    for (const Caso& c : casos) {
        const auto ruta = carpeta / ("r" + std::to_string(++k) + ".pdf");
        EscribirInformePdf(c.contenido, ruta);
        const std::string pdf = prueba::LeerArchivo(ruta);
        EXPECT_EQ(pdf.rfind("%PDF-", 0), 0u);
        EXPECT_EQ(Contar(pdf, "/Type /Page\n"), c.paginas) << k;
        EXPECT_EQ(Contar(pdf, "/Subtype /Image"), c.imagenes) << k;
        EXPECT_EQ(pdf.find("/DCTDecode"), std::string::npos);
    }
}

// Each picture inline as SVG, its text as text; without drawings, each PNG whole.
TEST_F(EscritoresTest, HtmlDrawsEveryPictureAsSvgOrEmbedsItWholeAndEscapesTexts) {
    const auto ruta = carpeta / "r.htm";
    EscribirInformeHtml(Contenido(3), ruta);
    std::string html = prueba::LeerArchivo(ruta);
    EXPECT_EQ(Contar(html, "<svg "), 3u);
    EXPECT_EQ(Contar(html, "</svg>"), 3u);
    EXPECT_EQ(html.find("data:image"), std::string::npos);
    EXPECT_EQ(html.find("<?xml"), std::string::npos);
    for (int k = 1; k <= 3; ++k) {
        EXPECT_EQ(Contar(html, ">Viga V-" + std::to_string(100 + k) + " d=0.45</text>"), 1u) << k;
        EXPECT_EQ(Contar(html, "<title>Gráfico " + std::to_string(k) + "</title>"), 1u) << k;
    }
    EXPECT_NE(html.find("fill=\"#ff0000\""), std::string::npos); // picture 1's block
    EXPECT_NE(html.find("Edificio Ñandú {torre} \\ &lt;norte&gt; &amp; sur"), std::string::npos);
    EXPECT_NE(html.find("<h1>ANALISIS Y DISEÑO DE VIGAS CONTINUAS</h1>"), std::string::npos);
    EXPECT_NE(html.find("<meta charset=\"utf-8\">"), std::string::npos);

    const auto c = SinDibujos(Contenido(3));
    EscribirInformeHtml(c, ruta);
    html = prueba::LeerArchivo(ruta);
    EXPECT_EQ(html.find("<svg"), std::string::npos);
    const auto uris = Trozos(html, "src=\"data:image/png;base64,", "\"");
    ASSERT_EQ(uris.size(), 3u);
    for (std::size_t k = 0; k < uris.size(); ++k) {
        const QByteArray png = QByteArray::fromBase64(QByteArray::fromStdString(uris[k]),
                                                      QByteArray::AbortOnBase64DecodingErrors);
        EXPECT_EQ(std::vector<std::uint8_t>(png.begin(), png.end()), c.Graficos[k].Grafico);
    }
}

TEST_F(EscritoresTest, RtfEmbedsEveryPictureAsPngAndEncodesTexts) {
    const auto c = Contenido(2);
    const auto ruta = carpeta / "r.rtf";
    EscribirInformeTexto(c, ruta);
    const std::string rtf = prueba::LeerArchivo(ruta);
    EXPECT_EQ(rtf.rfind("{\\rtf1", 0), 0u);
    const auto picts = Trozos(rtf, "\\pngblip", "}");
    ASSERT_EQ(picts.size(), 2u);
    for (std::size_t k = 0; k < picts.size(); ++k) {
        const auto datos = picts[k].substr(picts[k].find('\n'));
        EXPECT_EQ(datos.find_first_not_of("0123456789abcdef\n"), std::string::npos);
        EXPECT_EQ(DeHex(datos), c.Graficos[k].Grafico);
    }
    EXPECT_EQ(Contar(rtf, "\\page\n"), 2u);
    // Ñ is U+00D1 = 209, ú U+00FA = 250; braces and backslash escaped.
    EXPECT_NE(rtf.find("Edificio \\u209?and\\u250? \\{torre\\} \\\\ <norte> & sur"),
              std::string::npos);
    // The braces of the whole document balance.
    int nivel = 0;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == '\\')
            ++i;
        else if (rtf[i] == '{')
            ++nivel;
        else if (rtf[i] == '}')
            --nivel;
        ASSERT_GE(nivel, 0);
    }
    EXPECT_EQ(nivel, 0);
}

TEST_F(EscritoresTest, SpreadsheetHoldsOneImagePerPicture) {
    const auto ruta = carpeta / "r.xlsx";
    EscribirInformeHoja(Contenido(3), ruta);
    const std::string xlsx = prueba::LeerArchivo(ruta);
    EXPECT_EQ(xlsx.rfind("PK", 0), 0u);
    // Each member's name stands in its local header and in the central directory.
    for (int k = 1; k <= 3; ++k)
        EXPECT_EQ(Contar(xlsx, "xl/media/image" + std::to_string(k) + ".png"), 2u);
    EXPECT_EQ(Contar(xlsx, "xl/media/image4.png"), 0u);
}

TEST_F(EscritoresTest, AnUnwritableFileIsError75ForEveryKind) {
    const auto ruta = carpeta / "no existe/r";
    for (auto tipo :
         {ArchivoInforme::Pdf, ArchivoInforme::Html, ArchivoInforme::Hoja, ArchivoInforme::Texto})
        EXPECT_TREVALO_ERROR(EscribirInforme(Contenido(1), ruta, tipo), ErrAccesoArchivo,
                             "Error de acceso a la ruta o el archivo");
}

// The page painter: the picture of page k + 1 is graphic k, large, centred across the
// page; the head page has its title band and no picture.
TEST_F(EscritoresTest, PagesPlaceEachPictureLargeAndCentred) {
    for (const auto& c : {Contenido(3), SinDibujos(Contenido(3))}) {
        ASSERT_EQ(CantidadPaginasInforme(c), 4);
        const int ancho = 595, alto = 842; // one pixel a point
        const QRgb colores[] = {qRgb(255, 0, 0), qRgb(0, 160, 0), qRgb(0, 0, 255)};
        for (int pagina = 1; pagina <= 4; ++pagina) {
            QImage imagen(ancho, alto, QImage::Format_RGB32);
            imagen.fill(Qt::gray);
            QPainter p(&imagen);
            PintarPaginaInforme(p, QRectF(0, 0, ancho, alto), c, pagina);
            p.end();
            EXPECT_EQ(imagen.pixel(5, 5), qRgb(255, 255, 255)) << pagina; // the page is white
            if (pagina == 1) {
                EXPECT_LT(qGray(imagen.pixel(ancho / 2, 56)), 100); // the dark top rule
                continue;
            }
            const QRgb color = colores[(pagina - 2) % 3];
            // The picture spans the text width (481.9 of 595 points): its middle third is the
            // block, found at the page's centre line and a little off it.
            const double escala = (595.28 - 2 * 56.7) / AnchoGraficoPantalla;
            const int y = static_cast<int>(56.7 + 30 + AltoGraficoPantalla * escala / 2);
            EXPECT_EQ(imagen.pixel(ancho / 2, y), color) << pagina;
            EXPECT_EQ(imagen.pixel(ancho / 2 - 70, y), color) << pagina;
            EXPECT_EQ(imagen.pixel(ancho / 2 - 100, y), qRgb(255, 255, 255)) << pagina;
        }
    }
}

// Every pixel back by the toolkit's PNG reader (libpng), with the print resolution; also a
// picture too wide for the drawing compressor.
TEST_F(EscritoresTest, PngKeepsEveryPixelAndCarriesThePrintResolution) {
    auto patron = [](int ancho, int alto) {
        QImage imagen(ancho, alto, QImage::Format_RGB32);
        for (int y = 0; y < alto; ++y)
            for (int x = 0; x < ancho; ++x)
                imagen.setPixel(x, y, qRgb(x % 256, y % 256, (x * y) % 256));
        return imagen;
    };
    auto leer = [](const std::vector<std::uint8_t>& png) {
        return QImage::fromData(png.data(), static_cast<int>(png.size()), "PNG");
    };
    const QImage imagen = patron(AnchoGrafico, AltoGrafico);
    const QImage vuelta = leer(CodificarPng(imagen));
    EXPECT_EQ(vuelta.convertToFormat(QImage::Format_RGB32), imagen);
    EXPECT_NEAR(vuelta.dotsPerMeterX() * 0.0254, 96 * FactorImpresion, 0.5);
    EXPECT_EQ(vuelta.dotsPerMeterY(), vuelta.dotsPerMeterX());
    const QImage ancha = patron(11000, 3);
    EXPECT_EQ(leer(CodificarPng(ancha)).convertToFormat(QImage::Format_RGB32), ancha);
}

} // namespace
} // namespace trevalo
