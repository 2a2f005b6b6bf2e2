// Journeys of a person through the export to the drawing program, from the project window on
// the sample project: the form with its grid, marks and colours, the message when nothing is
// marked, a new project with the beam of the active row, a row that stands beyond the list
// of concrete beams, and the project window's beam back on screen afterwards.

#include <QAction>
#include <QFrame>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

#include "VentanasPrueba.h"
#include "shell/ExportarCAD.h"
#include "shell/PantallaViga.h"
#include "shell/ToolTipTrevalo.h"
#include "shell/VigasProyecto.h"
#include "store/BaseDatos.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

QTableView& Grilla(ExportarCAD& f) {
    return *Hijo<QTableView>(f, QStringLiteral("Spread1"));
}

// A cell of the grid (row and column from 1).
QVariant Celda(ExportarCAD& f, int fila, int columna, int rol = Qt::DisplayRole) {
    return Grilla(f).model()->index(fila - 1, columna - 1).data(rol);
}

QColor Fondo(ExportarCAD& f, int fila) {
    return Celda(f, fila, 2, Qt::BackgroundRole).value<QColor>();
}

// A click on the check cell of the row (from 1).
void Tildar(QTableView& g, int fila) {
    QTest::mouseClick(g.viewport(), Qt::LeftButton, {},
                      g.visualRect(g.model()->index(fila - 1, 0)).center());
}

long Filas(const std::string& ruta, const std::string& sql, const Parametros& p = {}) {
    return BaseDatos::Abrir(ruta).AbrirRecordset(sql, p).RecordCount();
}

const QColor Crema(0xFF, 0xEF, 0xC4);

} // namespace

class ExportarCADTest : public QObject {
    Q_OBJECT

  private slots:
    void ExportaLaVigaActivaAUnProyectoNuevo() {
        ProgramaPrueba p;
        auto ventana = VentanaProyecto(p, Ejemplo);
        VigasProyecto& v = *ventana;
        v.BtoMove_Click(1);
        v.ElegirPestana(3);
        const auto nombres = v.NombresLista();
        const std::string destino = p.carpeta / "Obra.Cad";
        bool visto = false;
        EnVentana<ExportarCAD>([&](ExportarCAD& f) {
            visto = true;
            QCOMPARE(f.windowTitle(), QStringLiteral("Exportar a Korvel-CAD Estructural"));
            QTableView& g = Grilla(f);
            const int filas = g.model()->rowCount();
            QCOMPARE(filas, static_cast<int>(nombres.size()));
            for (int r = 1; r <= filas; ++r) {
                QCOMPARE(Std(Celda(f, r, 2).toString()), nombres[static_cast<std::size_t>(r - 1)]);
                QVERIFY(!f.Marcada(r));
                QCOMPARE(Fondo(f, r), QColor(Qt::white));
            }
            QVERIFY(Hijo<QRadioButton>(f, QStringLiteral("Option1"))->isChecked());
            QVERIFY(Hijo<QRadioButton>(f, QStringLiteral("Option3"))->isChecked());
            QVERIFY(!Hijo<QFrame>(f, QStringLiteral("LSFrameP"))->isVisible());
            QCOMPARE(ToolTipTrevalo::Titulo(f.Boton(QStringLiteral("LSButton1"))),
                     QStringLiteral("Exportar a Korvel-CAD"));
            QCOMPARE(ToolTipTrevalo::Texto(f.Boton(QStringLiteral("KorvelButton1"))),
                     QStringLiteral("Visualizar el directorio de\nKorvel-CAD Estructural 8.0 "));

            // Nothing marked: the message, no file dialog.
            Pulsar(f, "LSButton1");
            const Pregunta nada{
                "No ha Seleccionado Vigas para Exportar a Korvel-CAD Estructural!        \n",
                "Exportar Viga a Korvel-CAD Estructural 8.0", BotonesMensaje::Aceptar,
                IconoMensaje::Advertencia, 1};
            QCOMPARE(p.dialogos->preguntas, std::vector<Pregunta>{nada});
            QVERIFY(p.dialogos->dialogosArchivo.empty());
            QCOMPARE(f.focusWidget(), &g);

            Pulsar(f, "SSCommand1");
            for (int r = 1; r <= filas; ++r) {
                QVERIFY(f.Marcada(r));
                QCOMPARE(Fondo(f, r), Crema);
            }
            Pulsar(f, "SSCommand2");
            QVERIFY(!f.Marcada(1));
            QCOMPARE(Fondo(f, 1), QColor(Qt::white));

            // The second row: its beam in the preview, marked, to a new project.
            g.setCurrentIndex(g.model()->index(1, 0));
            QCOMPARE(p.programa.Viga.NombreVigaActual, nombres[1]);
            // The space bar ticks the row's mark and takes it off again; a click ticks it.
            QTest::keyClick(&g, Qt::Key_Space);
            QVERIFY(f.Marcada(2));
            QTest::keyClick(&g, Qt::Key_Space);
            QCOMPARE(Fondo(f, 2), QColor(Qt::white));
            Tildar(g, 2);
            QVERIFY(f.Marcada(2));
            QCOMPARE(Fondo(f, 2), Crema);
            QCOMPARE(Celda(f, 2, 1, Qt::CheckStateRole).toInt(), int(Qt::Checked));
            auto* nuevo = Hijo<QRadioButton>(f, QStringLiteral("Option2"));
            QTest::mouseClick(nuevo, Qt::LeftButton, {}, QPoint(8, nuevo->height() / 2));
            QVERIFY(nuevo->isChecked());
            p.dialogos->preguntas.clear();
            p.dialogos->archivos.push_back({false, destino, "Obra.Cad"});
            Pulsar(f, "LSButton1");
            QCOMPARE(p.dialogos->dialogosArchivo.size(), 1u);
            QCOMPARE(p.dialogos->preguntas.size(), 2u); // the question to append, the count
            QVERIFY(!Hijo<QFrame>(f, QStringLiteral("LSFrameP"))->isVisible());
            Pulsar(f, "LSButton9");
            QVERIFY(!f.isVisible());
        });
        QTest::mouseClick(v.Boton(QStringLiteral("KorvelButton1")), Qt::LeftButton);
        QVERIFY(visto);

        QCOMPARE(Filas(destino, "SELECT * FROM Proyecto"), 1L);
        QCOMPARE(Filas(destino, "SELECT * FROM VigaDatos WHERE Nombre=?", {nombres[1]}), 1L);
        QCOMPARE(Filas(destino, "SELECT * FROM VigaDatos"), 1L);
        QVERIFY(Filas(destino, "SELECT * FROM VigaRefTeorico WHERE Nombre=?", {nombres[1]}) > 0);
        // The project window's beam back on screen, solved for its tab.
        QCOMPARE(v.FilaActiva(), 2);
        QCOMPARE(p.programa.Viga.NombreVigaActual, nombres[1]);
        QVERIFY(p.programa.Vista.VerDiseno);
        QVERIFY(p.programa.Resultados.NJuntas > 0);
        QCOMPARE(v.focusWidget(), &v.Lienzo());
    }

    // The sample's steel beam is the fourth of six: the last row stands beyond the five
    // concrete beams, and its export fails with the target left as the template made it.
    void UnaFilaMasAllaDeLasVigasDeConcretoAvisaYNoEscribe() {
        ProgramaPrueba p;
        auto ventana = VentanaProyecto(p, Ejemplo);
        const std::string destino = p.carpeta / "Anexo.Cad";
        EnVentana<ExportarCAD>([&](ExportarCAD& f) {
            QTableView& g = Grilla(f);
            Tildar(g, g.model()->rowCount());
            p.dialogos->archivos.push_back({false, destino, "Anexo.Cad"});
            p.dialogos->respuestas.push_back(RespuestaSi);
            Pulsar(f, "LSButton1");
            QCOMPARE(p.dialogos->preguntas.back().Titulo, std::string("Error: 3021"));
            QVERIFY(!Hijo<QFrame>(f, QStringLiteral("LSFrameP"))->isVisible());
            f.reject();
        });
        ventana->Accion(QStringLiteral("ID_KorvelCAD"))->trigger();
        QCOMPARE(LeerArchivo(destino),
                 LeerArchivo(p.programa.Carpetas.RutaPrograma + "/Imagen/ImagenCAD8.kvl"));
        QCOMPARE(p.programa.Viga.NombreVigaActual, ventana->NombresLista()[0]);
    }
};

TREVALO_PRUEBA_VENTANAS(ExportarCADTest)
#include "ExportarCADTest.moc"
