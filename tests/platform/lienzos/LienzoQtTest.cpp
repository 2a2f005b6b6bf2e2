// The Qt canvases: what lands on the pixels of an image, and what a PDF and an SVG hold.

#include <gtest/gtest.h>

#include <QFile>
#include <QFontInfo>
#include <filesystem>

#include "AplicacionQtPrueba.h"
#include "VerificaError.h"
#include "platform/lienzos/LienzosArchivo.h"

using namespace trevalo;

namespace {

class LienzoImagenTest : public ::testing::Test {
  protected:
    void SetUp() override { prueba::AsegurarAplicacionQt(); }

    // Bounding box of the pixels that are not white.
    static QRect Tinta(const QImage& imagen) {
        QRect caja;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                if (imagen.pixelColor(x, y) != QColor(Qt::white)) caja |= QRect(x, y, 1, 1);
        return caja;
    }
};

TEST_F(LienzoImagenTest, ColoresEnOrdenAzulVerdeRojo) {
    LienzoImagen lienzo(40, 40);
    lienzo.FillStyle = RellenoSolido;
    lienzo.FillColor = 0x0000FF;                      // red
    lienzo.SelectObject({EstiloSolido, 1, 0xFF0000}); // blue pen
    lienzo.Polygon({{5, 5}, {35, 5}, {35, 35}, {5, 35}});
    EXPECT_EQ(lienzo.Imagen().pixelColor(20, 20), QColor(255, 0, 0));
    EXPECT_EQ(lienzo.Imagen().pixelColor(5, 20), QColor(0, 0, 255));
    EXPECT_EQ(lienzo.Imagen().pixelColor(2, 2), QColor(Qt::white));
}

TEST_F(LienzoImagenTest, RellenoTransparenteDejaElFondo) {
    LienzoImagen lienzo(40, 40);
    lienzo.FillColor = 0x0000FF;
    lienzo.Ellipse(30, 30, 5, 5); // a reversed box is drawn all the same
    EXPECT_EQ(lienzo.Imagen().pixelColor(17, 17), QColor(Qt::white));
    const QRect caja = Tinta(lienzo.Imagen());
    EXPECT_NEAR(caja.left(), 5, 1);
    EXPECT_NEAR(caja.right(), 30, 1);
}

TEST_F(LienzoImagenTest, MascaraEsYBitABit) {
    LienzoImagen lienzo(30, 30);
    lienzo.FillStyle = RellenoSolido;
    lienzo.FillColor = 0x00FFFF; // yellow
    lienzo.SelectObject({EstiloSolido, 1, 0x00FFFF});
    lienzo.Polygon({{0, 0}, {29, 0}, {29, 29}, {0, 29}});
    lienzo.DrawMode = DrawModeMascara;
    lienzo.FillColor = 0xFFFF00; // cyan
    lienzo.SelectObject({EstiloSolido, 1, 0xFFFF00});
    lienzo.Polygon({{10, 10}, {20, 10}, {20, 20}, {10, 20}});
    EXPECT_EQ(lienzo.Imagen().pixelColor(15, 15), QColor(0, 255, 0)); // yellow AND cyan
    lienzo.DrawMode = DrawModeCopiar;
    lienzo.Polygon({{22, 22}, {27, 22}, {27, 27}, {22, 27}});
    EXPECT_EQ(lienzo.Imagen().pixelColor(25, 25), QColor(0, 255, 255));
}

TEST_F(LienzoImagenTest, LineaGuionPuntoPuntoTieneHuecos) {
    LienzoImagen lienzo(200, 10);
    lienzo.SelectObject({EstiloGuionPuntoPunto, 1, 0x0000FF});
    lienzo.MoveToEx(0, 5);
    lienzo.LineTo(200, 5);
    int tinta = 0;
    for (int x = 0; x < 200; ++x) tinta += lienzo.Imagen().pixelColor(x, 5) != QColor(Qt::white);
    EXPECT_GT(tinta, 60);
    EXPECT_LT(tinta, 180);
    EXPECT_EQ(lienzo.PosicionActual(), (PuntoApi{200, 5}));
}

TEST_F(LienzoImagenTest, FuentesSustitutasYMedidas) {
    LienzoImagen lienzo(100, 100);
    EXPECT_EQ(QFontInfo(lienzo.FuenteActual()).family(), QStringLiteral("Liberation Sans"));
    // Arial 8 at 96 dpi: a capital W is near 10 pixels wide, a line near 14 high.
    EXPECT_NEAR(lienzo.TextWidth("WW"), 20, 3);
    EXPECT_NEAR(lienzo.TextHeight("WW"), 13, 2);
    lienzo.FontSize = 16; // the size follows the zoom
    EXPECT_NEAR(lienzo.TextWidth("WW"), 40, 5);
    lienzo.FontName = "Tahoma";
    EXPECT_EQ(QFontInfo(lienzo.FuenteActual()).family(), QStringLiteral("DejaVu Sans"));
}

TEST_F(LienzoImagenTest, TextoGiraSobreSuEsquinaSuperiorIzquierda) {
    const std::string texto = "123456";
    LienzoImagen plano(200, 200);
    plano.TextOutA(100, 100, texto);
    const QRect a = Tinta(plano.Imagen());
    EXPECT_GE(a.top(), 100);
    EXPECT_GE(a.left(), 100);
    EXPECT_NEAR(a.width(), plano.TextWidth(texto), 4);

    LienzoImagen girado(200, 200);
    girado.TextOutA(100, 100, texto, 90); // reads upward, lies right of x and above y
    const QRect b = Tinta(girado.Imagen());
    EXPECT_GE(b.left(), 100);
    EXPECT_LE(b.bottom(), 100);
    EXPECT_NEAR(b.height(), girado.TextWidth(texto), 4);
    EXPECT_LE(b.width(), girado.TextHeight(texto));
}

TEST_F(LienzoImagenTest, TextoEnRectanguloCentrado) {
    LienzoImagen lienzo(200, 60);
    lienzo.DrawTextA("5.00", {40, 0, 160, 60}, TextoCentrado);
    const QRect caja = Tinta(lienzo.Imagen());
    EXPECT_NEAR(caja.center().x(), 100, 2);
    EXPECT_NEAR(caja.center().y(), 30, 3);
    LienzoImagen izquierda(200, 60);
    izquierda.DrawTextA("V-1", {40, 0, 160, 60}, TextoIzquierda);
    EXPECT_NEAR(Tinta(izquierda.Imagen()).left(), 40, 2);
}

TEST_F(LienzoImagenTest, ArcoUnidoALaPosicion) {
    LienzoImagen lienzo(100, 100);
    lienzo.MoveToEx(10, 50);
    lienzo.AngleArc(50, 50, 20, 0, 180); // joined from (10, 50) to (70, 50), then over the top
    EXPECT_EQ(lienzo.PosicionActual(), (PuntoApi{30, 50}));
    EXPECT_NE(lienzo.Imagen().pixelColor(40, 50), QColor(Qt::white)); // the straight join
    EXPECT_NE(lienzo.Imagen().pixelColor(50, 30), QColor(Qt::white)); // the arc's top
    EXPECT_EQ(lienzo.Imagen().pixelColor(50, 70), QColor(Qt::white)); // no lower half
}

TEST_F(LienzoImagenTest, AResolucionDeImpresionMismoDibujoEscalado) {
    LienzoImagen lienzo(50, 50, 3.0);
    EXPECT_EQ(lienzo.Imagen().size(), QSize(150, 150));
    EXPECT_EQ(lienzo.ScaleWidth(), 50);
    lienzo.FillStyle = RellenoSolido;
    lienzo.FillColor = 0x000000;
    lienzo.Polygon({{10, 10}, {20, 10}, {20, 20}, {10, 20}});
    EXPECT_EQ(lienzo.Imagen().pixelColor(45, 45), QColor(0, 0, 0));
    EXPECT_EQ(lienzo.Imagen().pixelColor(65, 65), QColor(Qt::white));
    EXPECT_NEAR(lienzo.TextWidth("WW"), 20, 3); // metrics stay in canvas pixels
}

TEST_F(LienzoImagenTest, ClsPintaElFondo) {
    LienzoImagen lienzo(20, 20);
    lienzo.BackColor = 0x00FF00;
    lienzo.Cls();
    EXPECT_EQ(lienzo.Imagen().pixelColor(10, 10), QColor(0, 255, 0));
}

TEST_F(LienzoImagenTest, ArchivosVectoriales) {
    const auto dir = std::filesystem::temp_directory_path() / "trevalo_lienzo";
    std::filesystem::create_directories(dir);
    auto pintar = [](Lienzo& l) {
        l.FillStyle = RellenoSolido;
        l.FillColor = 0xCFCFFA;
        l.Polygon({{10, 10}, {100, 10}, {100, 40}, {10, 40}});
        l.DrawMode = DrawModeMascara;
        l.Ellipse(20, 20, 60, 60);
        l.DrawMode = DrawModeCopiar;
        l.TextOutA(10, 60, "Tramo 1");
    };
    const auto pdf = dir / "prueba.pdf", svg = dir / "prueba.svg", png = dir / "prueba.png";
    PintarEnArchivo(pdf.string(), 710, 810, pintar);
    PintarEnArchivo(svg.string(), 710, 810, pintar);
    PintarEnArchivo(png.string(), 710, 810, pintar);
    QFile f(QString::fromStdString(pdf.string()));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_TRUE(f.read(5).startsWith("%PDF"));
    QFile s(QString::fromStdString(svg.string()));
    ASSERT_TRUE(s.open(QIODevice::ReadOnly));
    const QByteArray contenido = s.readAll();
    EXPECT_TRUE(contenido.contains("viewBox=\"0 0 710 810\""));
    EXPECT_TRUE(contenido.contains("Tramo 1"));
    EXPECT_TRUE(contenido.contains("Liberation Sans"));
    EXPECT_EQ(QImage(QString::fromStdString(png.string())).size(), QSize(710, 810));
    EXPECT_TREVALO_ERROR(PintarEnArchivo("/no/existe/x.png", 10, 10, pintar), ErrAccesoArchivo,
                         "Error de acceso a la ruta o el archivo");
    std::filesystem::remove_all(dir);
}

} // namespace
