// The fill over the real program: beams loaded from a project file, solved and painted at
// print resolution. Every picture decodes, has the report's size and shows a drawing, the
// very pixels of a painting straight on the image; the three views of a beam differ; a beam
// that cannot be solved is told and the walk goes on. The PDF read back by poppler's tools
// holds the pictures' texts as text and no image.

#include <gtest/gtest.h>

#include <QImage>

#include <set>

#include "BaseTemporal.h"
#include "comun/AplicacionQt.h"
#include "comun/DialogosGuion.h"
#include "comun/Proyecto.h"
#include "drawing/LienzoGrabador.h"
#include "drawing/Ploteos.h"
#include "output/BaseInforme.h"
#include "output/EscritoresInforme.h"
#include "output/PasosPrograma.h"
#include "platform/lienzos/LienzosArchivo.h"

namespace trevalo {
namespace {

using namespace prueba;

QImage Imagen(const GraficoInforme& g) {
    return QImage::fromData(g.Grafico.data(), static_cast<int>(g.Grafico.size()), "PNG")
        .convertToFormat(QImage::Format_RGB32);
}

// Share of pixels that are not white.
double Tinta(const QImage& imagen) {
    long pintados = 0;
    for (int y = 0; y < imagen.height(); y += 3)
        for (int x = 0; x < imagen.width(); x += 3)
            if (imagen.pixel(x, y) != qRgb(255, 255, 255)) ++pintados;
    return static_cast<double>(pintados) / ((imagen.width() / 3.0) * (imagen.height() / 3.0));
}

class ProgramaInformeTest : public BaseTemporalTest {
  protected:
    void SetUp() override {
        BaseTemporalTest::SetUp();
        prueba::AsegurarAplicacionQt();
    }

    // Runs the fill on the project with the given options; returns the messages shown.
    std::vector<std::string> Llenar(const std::vector<std::string>& vigas,
                                    const OpcionesImpresion& opciones, int hilos = 1) {
        estado.BDProyecto = BaseDatos::Abrir(proyecto);
        LeerGeneralProyecto(*estado.BDProyecto, ajustes);
        prueba::DialogosGuion dialogos;
        auto pasos = PasosPrograma(modelo, dialogos);
        dibujos = LlenarImpreDatos(ruta, FilaGeneralesDe(ajustes, "usuario", "6.0"), vigas,
                                   opciones, pasos, hilos);
        std::vector<std::string> avisos;
        for (const auto& p : dialogos.preguntas) avisos.push_back(p.Titulo + "|" + p.Texto);
        return avisos;
    }

    std::string proyecto = carpeta / "Prueba.trv";
    EstadoProyecto estado;
    ProyectoActual ajustes;
    VigaActual viga;
    ResultadosViga resultados;
    EstadoPloteos vista;
    ModeloInforme modelo{estado, ajustes, viga, resultados, vista};
    DibujosInforme dibujos;
};

TEST_F(ProgramaInformeTest, EveryPictureDecodesAtTheReportsSizeAndTheViewsDiffer) {
    CrearProyecto(proyecto, {VigaPrueba("V-101", 1), VigaPrueba("V-102", 2)}, AjustesPrueba());
    const auto avisos = Llenar({"V-101", "V-102"}, {0, 1, 1});
    EXPECT_TRUE(avisos.empty()) << avisos.front();
    const auto c = LeerBaseInforme(ruta);
    EXPECT_EQ(c.Generales.Proyecto, "Edificio de prueba");
    EXPECT_EQ(c.Generales.Calculista, "Calculista de prueba");
    EXPECT_DOUBLE_EQ(c.Generales.FC, 210);
    ASSERT_EQ(c.Graficos.size(), 6u);
    std::set<std::vector<std::uint8_t>> distintos;
    for (const auto& g : c.Graficos) {
        const QImage imagen = Imagen(g);
        ASSERT_FALSE(imagen.isNull()) << g.Numero;
        // The hidden canvas of 710 by 810 pixels, at print resolution.
        EXPECT_EQ(imagen.width(), 710 * FactorImpresion);
        EXPECT_EQ(imagen.height(), 810 * FactorImpresion);
        EXPECT_GT(Tinta(imagen), 0.005) << "picture " << g.Numero << " is blank";
        distintos.insert(g.Grafico);
    }
    EXPECT_EQ(distintos.size(), 6u);
    // The model holds the last beam reported, solved; the view is that of the last picture.
    EXPECT_EQ(viga.NombreVigaActual, "V-102");
    EXPECT_EQ(viga.NT, 3);
    EXPECT_EQ(resultados.NJuntas, 4);
    EXPECT_TRUE(vista.VerReacciones);
    EXPECT_FALSE(vista.EnPantalla);
    // The pictures of V-102 are those of a painting straight on the image canvas.
    ASSERT_EQ(dibujos.size(), 6u);
    const VistaInforme pasos[] = {VistaInforme::Diseno, VistaInforme::Diagramas,
                                  VistaInforme::Reacciones};
    for (std::size_t k = 0; k < 3; ++k) {
        EstadoPloteos v = vista;
        VistaDeInforme(v, pasos[k]);
        LienzoImagen directo(AnchoGraficoPantalla, AltoGraficoPantalla, FactorImpresion);
        directo.Cls();
        PlotearViga(directo, v, ajustes, viga, resultados);
        EXPECT_TRUE(Imagen(c.Graficos[3 + k]) == directo.Imagen()) << "picture " << 4 + k;
    }
}

// The report as PDF: each beam's name and every number of its design sheet are text on the
// picture's page; pdfimages finds no image at all.
TEST_F(ProgramaInformeTest, PdfCarriesThePicturesAsTextAndVectors) {
    CrearProyecto(proyecto, {VigaPrueba("V-101", 1), VigaPrueba("V-102", 2)}, AjustesPrueba());
    EXPECT_TRUE(Llenar({"V-101", "V-102"}, {0, 1, 1}).empty());
    auto c = LeerBaseInforme(ruta);
    UnirDibujos(c, dibujos);
    ASSERT_EQ(c.Graficos.size(), 6u);
    const std::string pdf = carpeta / "Informe.pdf";
    EscribirInformePdf(c, pdf);
    // Only the two heading lines of the list.
    const std::string imagenes = SalidaOrden("pdfimages -list '" + pdf + "'");
    EXPECT_EQ(std::count(imagenes.begin(), imagenes.end(), '\n'), 2) << imagenes;
    for (int viga = 0; viga < 2; ++viga) {
        const int pagina = 2 + 3 * viga; // the design sheet
        const std::string texto = SalidaOrden("pdftotext -f " + std::to_string(pagina) + " -l " +
                                              std::to_string(pagina) + " '" + pdf + "' -");
        EXPECT_NE(texto.find(viga == 0 ? "V-101" : "V-102"), std::string::npos) << texto;
        int numeros = 0;
        for (const auto& op : *c.Graficos[static_cast<std::size_t>(3 * viga)].Dibujo) {
            const bool numero = !op.Texto.empty() &&
                                op.Texto.find_first_not_of("-0123456789.,") == std::string::npos;
            if (!numero || op.Angulo != 0) continue;
            ++numeros;
            EXPECT_NE(texto.find(op.Texto), std::string::npos) << op.Texto << " on page " << pagina;
        }
        EXPECT_GE(numeros, 5) << pagina;
    }
}

TEST_F(ProgramaInformeTest, TheViewOfEachStepIsResetForTheReport) {
    EstadoPloteos v;
    v.FactorZoom = 2.5;
    v.PanX = 30;
    v.PanY = -4;
    v.FactorLetra = 0.4;
    v.EstacionesDiagrama = 3;
    v.EstacionesDiseno = 7;
    v.VerJuntas = true;
    v.ModoEditor = true;
    struct Caso {
        VistaInforme paso;
        bool diagramas, diseno, reacciones;
    };
    for (const auto& caso : {Caso{VistaInforme::Diseno, false, true, false},
                             Caso{VistaInforme::Diagramas, true, false, false},
                             Caso{VistaInforme::Reacciones, false, false, true}}) {
        VistaDeInforme(v, caso.paso);
        EXPECT_EQ(v.VerDiagramas, caso.diagramas);
        EXPECT_EQ(v.VerDiseno, caso.diseno);
        EXPECT_EQ(v.VerReacciones, caso.reacciones);
        EXPECT_EQ(v.FactorZoom, 1.0);
        EXPECT_EQ(v.PanX, 0.0);
        EXPECT_EQ(v.PanY, 0.0);
        EXPECT_EQ(v.FactorLetra, 1.0);
        EXPECT_EQ(v.EstacionesDiagrama, 10);
        EXPECT_EQ(v.EstacionesDiseno, 2);
        EXPECT_FALSE(v.EnPantalla);
        EXPECT_FALSE(v.VerJuntas);
        EXPECT_TRUE(v.ModoEditor); // the caller's, untouched
    }
}

// A beam that cannot be solved is told and the walk goes on. Painting on several threads
// stores the very bytes of a painting one by one, in the same order, and shows the same
// messages in the same order.
TEST_F(ProgramaInformeTest, PaintingOnSeveralThreadsStoresTheSamePicturesInTheSameOrder) {
    auto mala = VigaPrueba("V-3 mala", 0);
    mala.LT(1) = 0;
    std::vector<VigaActual> vigas;
    std::vector<std::string> nombres;
    for (int i = 0; i < 7; ++i) {
        vigas.push_back(i == 2 ? mala : VigaPrueba("V-" + std::to_string(i + 1), i));
        nombres.push_back(vigas.back().NombreVigaActual);
    }
    CrearProyecto(proyecto, vigas, AjustesPrueba());
    const auto avisosUno = Llenar(nombres, {0, 1, 1}, 1);
    const auto uno = LeerBaseInforme(ruta);
    ASSERT_EQ(uno.Graficos.size(), 21u);
    ASSERT_FALSE(avisosUno.empty());
    EXPECT_EQ(avisosUno.front().rfind("Error Número: ", 0), 0u) << avisosUno.front();
    for (const auto& g : uno.Graficos) EXPECT_FALSE(Imagen(g).isNull());
    EXPECT_GT(Tinta(Imagen(uno.Graficos[9])), 0.005); // V-4, after the one that failed
    for (const int hilos : {2, 3}) {
        EXPECT_EQ(Llenar(nombres, {0, 1, 1}, hilos), avisosUno) << hilos;
        const auto varios = LeerBaseInforme(ruta);
        ASSERT_EQ(varios.Graficos.size(), uno.Graficos.size());
        for (std::size_t k = 0; k < uno.Graficos.size(); ++k) {
            EXPECT_EQ(varios.Graficos[k].Numero, uno.Graficos[k].Numero);
            EXPECT_TRUE(varios.Graficos[k].Grafico == uno.Graficos[k].Grafico)
                << "picture " << k + 1 << " with " << hilos << " threads";
        }
    }
}

} // namespace
} // namespace trevalo
