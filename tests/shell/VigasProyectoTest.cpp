// Journeys of a person through the project window on the sample project: the list, the
// four tabs and their tools, the moves from beam to beam, the canvas under keys and wheel, a
// project with no beams, and a beam whose analysis faults.

#include <QAction>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QWheelEvent>

#include "VentanasPrueba.h"
#include "drawing/OperacionesVista.h"
#include "shell/ListaVigas.h"
#include "shell/NuevaViga.h"
#include "shell/PantallaViga.h"
#include "shell/Renombrar.h"
#include "shell/VigaDatos.h"
#include "shell/VigaSalvarComo.h"
#include "shell/VigasProyecto.h"
#include "store/BaseDatos.h"
#include "store/CicloProyecto.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

// Whether the canvas shows anything but the background and the grid: the beam is drawn.
bool HayDibujo(const PantallaViga& pantalla) {
    const QImage& imagen = pantalla.Imagen();
    for (int y = 0; y < imagen.height(); y += 2)
        for (int x = 0; x < imagen.width(); x += 2) {
            const QRgb c = imagen.pixel(x, y);
            if (c != qRgb(255, 255, 255) && c != qRgb(0xD9, 0xE1, 0xEA)) return true;
        }
    return false;
}

// Names the beam in the dialog of type T once it is on screen.
template <typename T> void Nombrar(const QString& nombre, const char* aceptar) {
    AlAbrirse<T>([nombre, aceptar](T& d) { Proponer(d, nombre, aceptar); });
}

// The beams of the project file, in name order.
std::vector<std::string> VigasEnArchivo(Programa& programa) {
    EstadoProyecto otro;
    otro.BDProyecto = BaseDatos::Abrir(RutaProyectoActual(programa.Carpetas, programa.Estado));
    AbrirRsGeneralViga(otro, ConsultaListaVigas);
    std::vector<std::string> nombres;
    for (auto& rs = *otro.RsGeneralViga; !rs.AlFinal(); rs.MoveNext())
        nombres.push_back(rs.Campo("NombreViga").Texto());
    return nombres;
}

bool Habilitada(VigasProyecto& v, const char* clave) {
    return v.Accion(QString::fromUtf8(clave))->isEnabled();
}

} // namespace

class VigasProyectoTest : public QObject {
    Q_OBJECT

  private slots:
    // The list the project window and the editor share: the moves each row allows, the moves
    // with their signals, and the current row when the names change.
    void ListaDeVigas() {
        ListaVigas lista;
        QSignalSpy cambios(&lista, &ListaVigas::ActualCambiada);
        QSignalSpy movidas(&lista, &ListaVigas::Movida);
        QVERIFY(!lista.Mover(1));
        lista.Colocar({"A", "B", "C"});
        QCOMPARE(lista.rowCount(), 3);
        QCOMPARE(lista.data(lista.index(1, 0), Qt::DisplayRole).toString(), QStringLiteral("B"));
        QCOMPARE(lista.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(),
                 QStringLiteral("Nombre de la Viga"));
        const struct {
            int actual;
            bool anterior, siguiente;
        } casos[] = {{0, false, true}, {1, false, true}, {2, true, true}, {3, true, false}};
        for (const auto& c : casos) {
            lista.FijarActual(c.actual);
            QCOMPARE(lista.Permitido(0), c.anterior);
            QCOMPARE(lista.Permitido(1), c.siguiente);
        }
        QCOMPARE(cambios.count(), 3);
        QVERIFY(!lista.Mover(1));
        QVERIFY(lista.Mover(0));
        QCOMPARE(lista.Actual(), 2);
        QCOMPARE(cambios.count(), 4);
        QCOMPARE(movidas.count(), 1);
        QCOMPARE(movidas.front().front().toInt(), 2);

        lista.Colocar({"A", "B", "C", "D"});
        QCOMPARE(lista.Actual(), 2);
        lista.FijarActual(4);
        lista.Colocar({"A", "B"});
        QCOMPARE(lista.Actual(), 0);
        lista.Agregar("Z");
        lista.FijarActual(3);
        lista.Quitar(3);
        QCOMPARE(lista.Actual(), 2);
        QCOMPARE(lista.Nombres(), (std::vector<std::string>{"A", "B"}));
        QCOMPARE(movidas.count(), 1);
    }

    void RecorreLasVigasYLasPestanas() {
        ProgramaPrueba p;
        auto ventana = VentanaProyecto(p, Ejemplo);
        VigasProyecto& v = *ventana;

        QCOMPARE(v.windowTitle(),
                 QStringLiteral("Trevalo 5.0  Proyecto:[Ejemplo Demostrativo.trv]"));
        const auto nombres = v.NombresLista();
        QCOMPARE(nombres.size(), 6u);
        QVERIFY(std::is_sorted(nombres.begin(), nombres.end()));
        QCOMPARE(v.FilaActiva(), 1);
        QCOMPARE(p.programa.Viga.NombreVigaActual, nombres[0]);
        QVERIFY(!v.findChild<QPushButton*>(QStringLiteral("BtoMove0"))->isEnabled());
        QVERIFY(v.findChild<QPushButton*>(QStringLiteral("BtoMove1"))->isEnabled());
        QVERIFY(HayDibujo(v.Lienzo()));

        // Each tab: its one result view, its tools, and a solve of the beam as it stands.
        struct Caso {
            int pestana;
            bool diagramas, diseno, reacciones, estaciones, letra;
        };
        for (const Caso& c :
             {Caso{2, true, false, false, true, false}, Caso{3, false, true, false, true, true},
              Caso{4, false, false, true, false, false},
              Caso{1, false, false, false, false, false}}) {
            LimpiarResultados(p.programa.Resultados);
            v.ElegirPestana(c.pestana);
            const auto& vista = p.programa.Vista;
            QCOMPARE(vista.VerDiagramas, c.diagramas);
            QCOMPARE(vista.VerDiseno, c.diseno);
            QCOMPARE(vista.VerReacciones, c.reacciones);
            QCOMPARE(Habilitada(v, "ID_Aumentar"), c.estaciones);
            QCOMPARE(Habilitada(v, "ID_Disminuir"), c.estaciones);
            QCOMPARE(Habilitada(v, "ID_LetraMas"), c.letra);
            QCOMPARE(Habilitada(v, "ID_LetraR"), c.letra);
            QCOMPARE(p.programa.Resultados.NJuntas > 0, c.pestana > 1);
            QVERIFY(v.Lienzo().hasFocus());
        }
        QVERIFY(p.dialogos->preguntas.empty());

        // To the last beam and one back: the move forward stops at the end.
        v.ElegirPestana(2);
        for (int i = 0; i < 5; ++i)
            QTest::mouseClick(v.findChild<QPushButton*>(QStringLiteral("BtoMove1")),
                              Qt::LeftButton);
        QCOMPARE(v.FilaActiva(), 6);
        QCOMPARE(p.programa.Viga.NombreVigaActual, nombres[5]);
        QVERIFY(p.programa.Resultados.NJuntas > 0);
        QVERIFY(!v.findChild<QPushButton*>(QStringLiteral("BtoMove1"))->isEnabled());
        v.BtoMove_Click(0);
        QCOMPARE(p.programa.Viga.NombreVigaActual, nombres[4]);

        // A row chosen in the list loads that beam.
        auto* lista = v.findChild<QTableView*>(QStringLiteral("Spread1"));
        lista->setCurrentIndex(lista->model()->index(3, 0));
        QCOMPARE(p.programa.Viga.NombreVigaActual, nombres[3]);
        QCOMPARE(v.FilaActiva(), 4);
    }

    void CreaCopiaRenombraYEliminaVigas() {
        ProgramaPrueba p;
        auto ventana = VentanaProyecto(p, Ejemplo);
        VigasProyecto& v = *ventana;
        auto* anterior = v.findChild<QPushButton*>(QStringLiteral("BtoMove0"));
        auto* siguiente = v.findChild<QPushButton*>(QStringLiteral("BtoMove1"));

        // A new beam goes on the last row although it sorts first, and opens in the editor.
        Nombrar<NuevaViga>(QStringLiteral("a-1 \"Ñandú\" d'Ángel"), "Button1");
        QString tituloEditor;
        AlAbrirse<VigaDatos>([&](VigaDatos& e) {
            tituloEditor = e.windowTitle();
            e.reject();
        });
        QTest::mouseClick(v.Boton(QStringLiteral("LSButton3")), Qt::LeftButton);
        const std::string nueva = "A-1 ''ÑANDÚ'' D'ÁNGEL";
        QCOMPARE(tituloEditor, Qs("Datos Generales de la Viga: [ " + nueva + " ]"));
        QCOMPARE(v.Filas(), 7);
        QCOMPARE(v.NombresLista().back(), nueva);
        QCOMPARE(v.FilaActiva(), 7);
        QVERIFY(anterior->isEnabled() && !siguiente->isEnabled());
        QCOMPARE(VigasEnArchivo(p.programa).front(), nueva);
        QVERIFY(p.dialogos->preguntas.empty());

        // A copy of the first beam, answered yes, also goes last.
        v.FijarFilaActiva(1);
        Nombrar<VigaSalvarComo>(QStringLiteral(" B-2 Copia "), "Command1");
        QTest::mouseClick(v.Boton(QStringLiteral("LSButton20")), Qt::LeftButton);
        QCOMPARE(p.dialogos->preguntas.back().Titulo, std::string("Salvar Como"));
        QCOMPARE(v.Filas(), 8);
        QCOMPARE(v.NombresLista().back(), std::string("B-2 Copia"));
        QCOMPARE(p.programa.Viga.NombreVigaActual, std::string("B-2 Copia"));
        QCOMPARE(v.Pestana(), 1);

        // A rename sorts the list again and shows its first beam.
        v.FijarFilaActiva(8);
        Nombrar<Renombrar>(QStringLiteral("Z-9 Renombrada"), "Command2");
        QTest::mouseClick(v.Boton(QStringLiteral("LSButton21")), Qt::LeftButton);
        QCOMPARE(p.dialogos->preguntas.back().Titulo, std::string("Renombrar"));
        auto nombres = v.NombresLista();
        QVERIFY(std::is_sorted(nombres.begin(), nombres.end()));
        QCOMPARE(nombres.back(), std::string("Z-9 Renombrada"));
        QCOMPARE(nombres, VigasEnArchivo(p.programa));
        QCOMPARE(v.FilaActiva(), 1);
        QCOMPARE(p.programa.Viga.NombreVigaActual, nombres.front());

        // The last row deleted after both questions: the new last row is the active one.
        v.FijarFilaActiva(8);
        p.dialogos->preguntas.clear();
        p.dialogos->respuestas = {RespuestaSi, RespuestaSi};
        QTest::mouseClick(v.Boton(QStringLiteral("LSButton22")), Qt::LeftButton);
        QCOMPARE(p.dialogos->preguntas.size(), 2u); // both name the beam of the row
        for (const Pregunta& pregunta : p.dialogos->preguntas)
            QVERIFY(pregunta.Texto.starts_with("Viga: Z-9 Renombrada\n"));
        nombres.pop_back();
        QCOMPARE(v.NombresLista(), nombres);
        QCOMPARE(VigasEnArchivo(p.programa), nombres);
        QCOMPARE(v.FilaActiva(), 7);
        QCOMPARE(p.programa.Viga.NombreVigaActual, nombres.back());
        QVERIFY(!siguiente->isEnabled());

        // A "no" to the first question deletes nothing.
        p.dialogos->respuestas = {RespuestaNo};
        QTest::mouseClick(v.Boton(QStringLiteral("LSButton22")), Qt::LeftButton);
        QCOMPARE(VigasEnArchivo(p.programa), nombres);
    }

    void ElLienzoSigueTeclasRuedaYHerramientas() {
        ProgramaPrueba p;
        auto ventana = VentanaProyecto(p, Ejemplo);
        VigasProyecto& v = *ventana;
        auto& vista = p.programa.Vista;
        PantallaViga& lienzo = v.Lienzo();

        // The wheel zooms only while the canvas has the focus.
        v.findChild<QTableView*>(QStringLiteral("Spread1"))->setFocus();
        const QPointF centro(lienzo.width() / 2.0, lienzo.height() / 2.0);
        QWheelEvent rueda(centro, lienzo.mapToGlobal(centro), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&lienzo, &rueda);
        QCOMPARE(vista.FactorZoom, 1.0);
        lienzo.setFocus();
        QApplication::sendEvent(&lienzo, &rueda);
        QCOMPARE(vista.FactorZoom, 1.1);

        // The keys reach the view: an arrow moves the drawing 0.4 m against its direction, the
        // numeric pad's plus zooms, Escape resets the view.
        QTest::keyClick(&lienzo, Qt::Key_Right);
        QCOMPARE(vista.PanX, -0.4 * vista.Escala);
        QTest::keyClick(&lienzo, Qt::Key_Plus, Qt::KeypadModifier);
        QVERIFY(std::abs(vista.FactorZoom - 1.2) < 1e-12);
        QTest::keyClick(&lienzo, Qt::Key_Plus); // not the numeric pad's
        QVERIFY(std::abs(vista.FactorZoom - 1.2) < 1e-12);

        // The pan tool: a left drag moves the drawing pixel for pixel; Escape lets it go.
        QAction* pan = v.Accion(QStringLiteral("ID_PanRealtime"));
        pan->trigger();
        QVERIFY(lienzo.EnPan());
        const double panX = vista.PanX;
        QTest::mousePress(&lienzo, Qt::LeftButton, {}, QPoint(100, 100));
        QMouseEvent mover(QEvent::MouseMove, QPointF(130, 90), lienzo.mapToGlobal(QPointF(130, 90)),
                          Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&lienzo, &mover);
        QTest::mouseRelease(&lienzo, Qt::LeftButton, {}, QPoint(130, 90));
        QCOMPARE(vista.PanX, panX + 30);
        QTest::keyClick(&lienzo, Qt::Key_Escape);
        QCOMPARE(vista.FactorZoom, 1.0);
        QVERIFY(!pan->isChecked());
        QVERIFY(!lienzo.EnPan());

        // Stations and text size by tab; the grid tool.
        v.ElegirPestana(3);
        v.Accion(QStringLiteral("ID_Aumentar"))->trigger();
        QCOMPARE(vista.EstacionesDiseno, std::int16_t{3});
        v.Accion(QStringLiteral("ID_LetraMenos"))->trigger();
        QVERIFY(std::abs(vista.FactorLetra - 0.9) < 1e-12);
        v.ElegirPestana(2);
        for (int i = 0; i < 12; ++i) v.Accion(QStringLiteral("ID_Disminuir"))->trigger();
        QCOMPARE(vista.EstacionesDiagrama, std::int16_t{2});
        v.Accion(QStringLiteral("ID_Cuadricula"))->trigger();
        QVERIFY(!vista.VerCuadricula);
        QVERIFY(p.dialogos->preguntas.empty());
    }

    void UnProyectoSinVigasMuestraSoloLaCuadricula() {
        ProgramaPrueba p;
        const std::string vacio = p.programa.Carpetas.RutaProyectos + "/Vacío.trv";
        QVERIFY(QFile::copy(Qs(p.programa.Carpetas.RutaPrograma + "/Imagen/ImagenViga.kvl"),
                            Qs(vacio)));
        auto ventana = VentanaProyecto(p, "Vacío.trv");
        VigasProyecto& v = *ventana;
        QCOMPARE(v.Filas(), 0);
        QVERIFY(!HayDibujo(v.Lienzo()));
        QVERIFY(!v.findChild<QPushButton*>(QStringLiteral("BtoMove0"))->isEnabled());
        QVERIFY(!v.findChild<QPushButton*>(QStringLiteral("BtoMove1"))->isEnabled());
        for (const char* boton : {"LSButton19", "LSButton20", "LSButton21", "LSButton22"})
            QTest::mouseClick(v.Boton(QString::fromUtf8(boton)), Qt::LeftButton);
        for (int pestana : {2, 3, 4, 1}) v.ElegirPestana(pestana);
        v.Accion(QStringLiteral("ID_ZoomIN"))->trigger();
        QVERIFY(!HayDibujo(v.Lienzo()));
        // The project has no general data either: that is said once, and nothing else.
        QCOMPARE(p.dialogos->preguntas.size(), 1u);
        QCOMPARE(p.dialogos->preguntas[0].Titulo, std::string("Error: 3021"));
    }

    void UnaVigaQueFallaAvisaEnCadaPestana() {
        ProgramaPrueba p;
        const std::string ruta = p.programa.Carpetas.RutaProyectos + "/" + Ejemplo;
        BaseDatos::Abrir(ruta).Ejecutar(
            "UPDATE JuntasRestringidas SET R1=99 WHERE NombreViga=? AND R1=1",
            {std::string("V-101 Entrepiso Eje B")});
        auto ventana = VentanaProyecto(p, Ejemplo);
        VigasProyecto& v = *ventana;
        v.BtoMove_Click(1); // V-101: its support on a joint it lacks faults the drawing too
        const Pregunta falla{"El subíndice está fuera del intervalo    ", "Error Número: 9",
                             BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1};
        for (int vez = 1; vez <= 2; ++vez) {
            p.dialogos->preguntas.clear();
            v.ElegirPestana(2);
            QVERIFY(!p.dialogos->preguntas.empty());
            QVERIFY(p.dialogos->preguntas.front() == falla);
            QCOMPARE(p.programa.Resultados.NJuntas, std::int16_t{0}); // no results are shown
            v.ElegirPestana(1);
        }
    }
};

TREVALO_PRUEBA_VENTANAS(VigasProyectoTest)
#include "VigasProyectoTest.moc"
