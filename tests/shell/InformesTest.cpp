// Journeys of a person from the project window to a report: the choice of beams and pictures,
// each kind of output with its Save dialog and the question to open the file, Cancel at each
// dialog, the viewer's pages, zoom, print to a PDF printer, preview and export, a file that
// cannot be written; and the beam on screen as it was afterwards.

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QUrl>

#include "VentanasPrueba.h"
#include "output/BaseInforme.h"
#include "shell/CristalReport.h"
#include "shell/ImpreReport.h"
#include "shell/ImpreVigas.h"
#include "shell/PantallaViga.h"
#include "shell/VerReportes.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

QByteArray Leer(const std::string& ruta) {
    QFile archivo(Qs(ruta));
    return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray();
}

// Pages of a PDF written by the program: its page objects.
int PaginasPdf(const std::string& ruta) {
    static const QRegularExpression pagina(QStringLiteral("/Type\\s*/Page[^s]"));
    return static_cast<int>(QString::fromLatin1(Leer(ruta)).count(pagina));
}

// Acts on the modal window of type T once on screen; a check that failed half way closes it,
// so that the journey ends instead of waiting.
template <typename T> void Responder(std::function<void(T&)> accion) {
    AlAbrirse<T>([accion](T& d) {
        accion(d);
        if (QTest::currentTestFailed() && d.isVisible()) d.reject();
    });
}

// The choice of the print dialog: a row of Combo1 and the two checks, then Aceptar; or
// Cancelar after the checks were changed.
void ElegirVigas(int fila, bool diagramas, bool reacciones, bool aceptar = true) {
    Responder<ImpreVigas>([=](ImpreVigas& d) {
        auto* combo = Hijo<QComboBox>(d, QStringLiteral("Combo1"));
        auto* check1 = Hijo<QCheckBox>(d, QStringLiteral("Check1"));
        auto* check2 = Hijo<QCheckBox>(d, QStringLiteral("Check2"));
        QCOMPARE(combo->currentIndex(), 0);
        combo->setCurrentIndex(fila);
        check1->setChecked(false);
        QVERIFY(!check2->isEnabled()); // the reactions only with the diagrams
        check1->setChecked(diagramas);
        QCOMPARE(check2->isEnabled(), diagramas);
        check2->setChecked(reacciones);
        QTest::mouseClick(
            Hijo<QPushButton>(d, aceptar ? QStringLiteral("Command1") : QStringLiteral("Command2")),
            Qt::LeftButton);
    });
}

// The output kind of ImpreReport, then Aceptar; `despues` runs on the window afterwards.
void ElegirSalida(const char* opcion, std::function<void(ImpreReport&)> despues = {}) {
    Responder<ImpreReport>([=](ImpreReport& d) {
        QVERIFY(Hijo<QRadioButton>(d, QStringLiteral("LSOption1"))->isChecked());
        Hijo<QRadioButton>(d, QString::fromLatin1(opcion))->setChecked(true);
        QTest::mouseClick(Hijo<QPushButton>(d, QStringLiteral("Command1")), Qt::LeftButton);
        if (despues) despues(d);
    });
}

// Records the files and folders the program opens instead of opening them.
class Abiertos : public QObject {
    Q_OBJECT

  public:
    Abiertos() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Abrir"); }
    ~Abiertos() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    QStringList rutas;

  public slots:
    void Abrir(const QUrl& url) { rutas << url.toLocalFile(); }
};

} // namespace

class InformesTest : public QObject {
    Q_OBJECT

  private slots:
    // Every kind with a file, all beams with every picture, from the third beam on tab 3; the
    // Save dialog and the question as the user reads them; the file holds every picture.
    void CadaTipoDeArchivoConTodasLasVigas() {
        ProgramaPrueba p;
        auto ventana = VentanaProyecto(p, Ejemplo);
        VigasProyecto& v = *ventana;
        v.FijarFilaActiva(3);
        v.ColoqueVigasSpread(3);
        v.ElegirPestana(3);
        const auto nombres = v.NombresLista();
        const std::string carpeta = CarpetaReportes(p.programa.Carpetas);
        Abiertos abiertos;

        // Each kind's Save dialog (whose title, filter and folder the real dialog shows) asks
        // before it replaces a file.
        const std::pair<const char*, const char*> casos[] = {{"Option1", "Informe ñ.pdf"},
                                                             {"Option2", "informe.htm"},
                                                             {"Option7", "informe.xlsx"},
                                                             {"Option4", "informe.rtf"}};
        for (const auto& [opcion, archivo] : casos) {
            const std::string ruta = carpeta + "/" + archivo;
            p.dialogos->archivos = {{false, ruta, archivo}};
            p.dialogos->respuestas = {opcion == casos[0].first ? RespuestaSi : RespuestaNo};
            p.dialogos->preguntas.clear();
            ElegirVigas(0, true, true);
            ElegirSalida(opcion);
            QTest::mouseClick(v.Boton(QStringLiteral("LSButton15")), Qt::LeftButton);

            const DialogoArchivo& guardar = p.dialogos->dialogosArchivo.back();
            QVERIFY(guardar.Modo == ModoDialogo::Salvar && guardar.PreguntarReemplazo);
            QCOMPARE(p.dialogos->preguntas.size(), 1u);
            QVERIFY(p.dialogos->preguntas[0] ==
                    (Pregunta{"¿Desea Abrir el Archivo " + std::string(archivo) + "?    ",
                              "Abrir el Archivo Exportado", BotonesMensaje::SiNo,
                              IconoMensaje::Pregunta, 1}));
        }
        // Yes opened the PDF, No opened nothing.
        QCOMPARE(abiertos.rutas, QStringList{Qs(carpeta + "/Informe ñ.pdf")});
        // The head and a page a picture: six beams, three pictures each.
        QCOMPARE(PaginasPdf(carpeta + "/Informe ñ.pdf"), 1 + 18);
        // The pictures reach the page as the drawings the fill kept.
        QCOMPARE(Leer(carpeta + "/informe.htm").count("<svg "), 18);
        QVERIFY(Leer(carpeta + "/informe.xlsx").startsWith("PK"));
        QCOMPARE(Leer(carpeta + "/informe.rtf").count("\\pngblip"), 18);

        // The progress told each beam, and the panel is gone.
        QCOMPARE(Hijo<QLabel>(v, QStringLiteral("LSLabel4"))->text(),
                 Qs("Exportando la Viga: " + nombres.back()));
        QCOMPARE(Hijo<QProgressBar>(v, QStringLiteral("ProgressBar1"))->value(), 100);
        QVERIFY(!Hijo<QWidget>(v, QStringLiteral("LSPanelP"))->isVisible());
        // The beam on screen is the one chosen before, on its tab, solved.
        QCOMPARE(v.FilaActiva(), 3);
        QCOMPARE(p.programa.Viga.NombreVigaActual, nombres[2]);
        QCOMPARE(v.Pestana(), 3);
        QVERIFY(p.programa.Vista.VerDiseno && !p.programa.Vista.VerReacciones);
        QVERIFY(p.programa.Vista.EnPantalla);
        QVERIFY(p.programa.Resultados.NJuntas > 0);
        QVERIFY(v.focusWidget() == &v.Lienzo());
    }

    // Cancel of the print dialog leaves the last accepted choice in force (at first: all
    // beams, the design sheet alone); Cancel of a Save dialog or of the export assistant
    // leaves its window in place and writes nothing.
    void CancelarEnCadaDialogo() {
        ProgramaPrueba p;
        auto ventana = VentanaProyecto(p, Ejemplo);
        VigasProyecto& v = *ventana;
        const std::string carpeta = CarpetaReportes(p.programa.Carpetas);
        const auto graficos = [&] {
            return LeerBaseInforme(RutaTemporal(p.programa.Carpetas)).Graficos.size();
        };
        const auto cancelarGuardar = [](ImpreReport& d) {
            QVERIFY(d.isVisible());
            QTest::mouseClick(Hijo<QPushButton>(d, QStringLiteral("Command2")), Qt::LeftButton);
        };

        ElegirVigas(2, true, true, false);
        ElegirSalida("Option1", cancelarGuardar);
        QTest::mouseClick(v.Boton(QStringLiteral("LSButton15")), Qt::LeftButton);
        QCOMPARE(graficos(), 6u);
        QCOMPARE(p.dialogos->dialogosArchivo.size(), 1u);

        ElegirVigas(2, true, false);
        ElegirSalida("Option5");
        QTest::mouseClick(v.Boton(QStringLiteral("LSButton15")), Qt::LeftButton);
        QVERIFY(p.dialogos->dialogosArchivo.back().Titulo == "Asistente de Exportación");

        ElegirVigas(0, false, false, false);
        ElegirSalida("Option4", cancelarGuardar);
        QTest::mouseClick(v.Boton(QStringLiteral("LSButton15")), Qt::LeftButton);
        const auto c = LeerBaseInforme(RutaTemporal(p.programa.Carpetas));
        QCOMPARE(c.Graficos.size(), 2u); // the second beam, with its diagrams
        QVERIFY(QDir(Qs(carpeta)).isEmpty());
        QVERIFY(p.dialogos->preguntas.empty());
    }

    // The viewer on one beam's report: pages, zoom, the inert button, print to a PDF printer,
    // the preview, export through the assistant, the folder, and Retorno.
    void ElVisorNavegaImprimeYExporta() {
        ProgramaPrueba p;
        auto ventana = VentanaProyecto(p, Ejemplo);
        VigasProyecto& v = *ventana;
        const std::string carpeta = CarpetaReportes(p.programa.Carpetas);
        const std::string impreso = carpeta + "/impreso.pdf";
        Abiertos abiertos;
        p.dialogos->archivos = {{false, carpeta + "/visor.rtf", "visor.rtf"}};
        bool visto = false;
        ElegirVigas(1, true, true);
        ElegirSalida("LSOption1");
        Responder<VerReportes>([&](VerReportes& r) {
            visto = true;
            QCOMPARE(r.windowTitle(), QStringLiteral("Korvel-Visualizador de Reportes"));
            QCOMPARE(r.Paginas(), 4); // the head and three pictures
            QCOMPARE(r.Pagina(), 1);
            QCOMPARE(r.Zoom(), 100);
            auto* anterior = Hijo<QPushButton>(r, QStringLiteral("Página Anterior"));
            QVERIFY(!anterior->isEnabled());
            QTest::mouseClick(Hijo<QPushButton>(r, QStringLiteral("Página Siguiente")),
                              Qt::LeftButton);
            QCOMPARE(r.Pagina(), 2);
            QTest::mouseClick(Hijo<QPushButton>(r, QStringLiteral("Última Página")),
                              Qt::LeftButton);
            QCOMPARE(r.Pagina(), 4);
            QVERIFY(!Hijo<QPushButton>(r, QStringLiteral("Página Siguiente"))->isEnabled());
            QTest::mouseClick(anterior, Qt::LeftButton);
            QCOMPARE(r.Pagina(), 3);
            auto* hoja = Hijo<QWidget>(r, QStringLiteral("CRViewer1"));
            const int ancho = hoja->width();
            Hijo<QComboBox>(r, QStringLiteral("Zoom"))->setCurrentText(QStringLiteral("200 %"));
            QCOMPARE(r.Zoom(), 200);
            QVERIFY(std::abs(hoja->width() - 2 * ancho) <= 1);

            QTest::mouseClick(r.Boton(QStringLiteral("LSButton5")), Qt::LeftButton);
            QVERIFY(r.isVisible());

            r.Impresora().setOutputFormat(QPrinter::PdfFormat);
            r.Impresora().setOutputFileName(Qs(impreso));
            AlAbrirse<QPrintDialog>([](QPrintDialog& d) { d.accept(); });
            QTest::mouseClick(r.Boton(QStringLiteral("LSButton4")), Qt::LeftButton);

            Responder<QPrintPreviewDialog>([](QPrintPreviewDialog& d) {
                QCOMPARE(d.findChild<QPrintPreviewWidget*>()->pageCount(), 4);
                d.reject();
            });
            QTest::mouseClick(r.Boton(QStringLiteral("VistaPreliminar")), Qt::LeftButton);

            QTest::mouseClick(r.Boton(QStringLiteral("LSButton3")), Qt::LeftButton);
            QTest::mouseClick(r.Boton(QStringLiteral("SSCommand2")), Qt::LeftButton);
            QTest::mouseClick(r.Boton(QStringLiteral("LSButton2")), Qt::LeftButton);
        });
        QTest::mouseClick(v.Boton(QStringLiteral("LSButton15")), Qt::LeftButton);
        QVERIFY(visto);
        QCOMPARE(PaginasPdf(impreso), 4);
        QVERIFY(p.dialogos->dialogosArchivo.back().Filtro ==
                "Adobe Acrobat (PDF)|*.pdf|HTML 4.0 (Para la Web)|*.htm|Microsoft Excel "
                "Normal|*.xlsx|Microsoft Word (RTF)|*.rtf");
        QCOMPARE(Leer(carpeta + "/visor.rtf").count("\\pngblip"), 3);
        QCOMPARE(abiertos.rutas, QStringList{Qs(carpeta)});
        QVERIFY(p.dialogos->preguntas.empty());
    }

    // A file that cannot be written: the writer's message, no question, the report database
    // untouched.
    void UnArchivoQueNoSePuedeEscribir() {
        ProgramaPrueba p;
        auto ventana = VentanaProyecto(p, Ejemplo);
        const std::string temporal = RutaTemporal(p.programa.Carpetas);
        p.dialogos->archivos = {{false, p.carpeta / "no existe/informe.pdf", "informe.pdf"}};
        QByteArray antes;
        ElegirVigas(0, false, false);
        Responder<ImpreReport>([&](ImpreReport& d) {
            antes = Leer(temporal);
            Hijo<QRadioButton>(d, QStringLiteral("Option1"))->setChecked(true);
            QTest::mouseClick(Hijo<QPushButton>(d, QStringLiteral("Command1")), Qt::LeftButton);
        });
        QTest::mouseClick(ventana->Boton(QStringLiteral("LSButton15")), Qt::LeftButton);
        QCOMPARE(p.dialogos->preguntas.size(), 1u);
        QVERIFY(p.dialogos->preguntas[0] ==
                (Pregunta{"Error de acceso a la ruta o el archivo", "Error: 75",
                          BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1}));
        QVERIFY(!antes.isEmpty());
        QVERIFY(Leer(temporal) == antes);
    }
};

TREVALO_PRUEBA_VENTANAS(InformesTest)
#include "InformesTest.moc"
