// Journeys of a person through the beam editor: a five-span beam typed from the default new
// beam with the keyboard, saved with Ctrl+S and read back from the file; the limits of the
// count boxes and of the cells; the block entry, the paste of a block with bad cells; the
// moves between pages on a steel beam; every way out; a save the file refuses; and a seeded
// storm of keys and clicks after which the beam saved is the beam in the model.

#include <QAction>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QTableView>
#include <algorithm>

#include "VentanasPrueba.h"
#include "comun/Proyecto.h"
#include "shell/Carga01.h"
#include "shell/ListaVigas.h"
#include "shell/PantallaViga.h"
#include "shell/VigaDatos.h"
#include "shell/VigasMetalicas.h"
#include "shell/VigasProyecto.h"
#include "store/BaseDatos.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

const std::string Proyecto = "Editor.trv";

Pregunta Aviso(const std::string& texto, const std::string& titulo) {
    return {texto, titulo, BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1};
}

Pregunta PreguntaSalir(bool conCancelar) {
    return {"Viga: V-1        \nDesea Salvar las Modificaciones en la Viga?       \n",
            "Datos Generales de la Viga",
            conCancelar ? BotonesMensaje::SiNoCancelar : BotonesMensaje::SiNo,
            IconoMensaje::Pregunta, 1};
}

// The project Editor.trv with the one beam V-1 (the default of a new beam unless given), open
// in the program's state as the project window leaves it.
void PrepararProyecto(ProgramaPrueba& p, VigaActual viga) {
    viga.NombreVigaActual = "V-1";
    const std::string ruta = p.programa.Carpetas.RutaProyectos + "/" + Proyecto;
    CrearProyecto(ruta, {viga}, AjustesPrueba());
    EstadoProyecto& estado = p.programa.Estado;
    estado.NombreProyecto = Proyecto;
    estado.BDProyecto = BaseDatos::Abrir(ruta);
    AbrirRsGeneralViga(estado, ConsultaListaVigas);
    LeerGeneralProyecto(*estado.BDProyecto, p.programa.Proyecto);
    p.programa.Viga.NombreVigaActual = "V-1";
    p.programa.Viga.VigaNueva = true; // the editor reads the beam
}

VigaActual VigaNuevaDefecto() {
    VigaActual v;
    NuevaVigaDefecto(v);
    return v;
}

// The beam V-1 as the file holds it now.
VigaActual EnArchivo(ProgramaPrueba& p) {
    EstadoProyecto otro;
    otro.BDProyecto = BaseDatos::Abrir(p.programa.Carpetas.RutaProyectos + "/" + Proyecto);
    AbrirRsGeneralViga(otro, ConsultaListaVigas);
    VigaActual v;
    v.NombreVigaActual = "V-1";
    LeerViga(otro, v);
    return v;
}

std::unique_ptr<VigaDatos> Abrir(ProgramaPrueba& p) {
    auto editor = std::make_unique<VigaDatos>(p.programa);
    editor->show();
    QApplication::setActiveWindow(editor.get());
    if (!QTest::qWaitForWindowActive(editor.get()))
        QTest::qFail("editor sin mostrar", __FILE__, __LINE__);
    return editor;
}

// A count typed into a box and entered with Return.
void Contar(VigaDatos& e, int n, const QString& cuenta) {
    Escribir(e, QStringLiteral("Long%1").arg(n).toLatin1().constData(), cuenta);
    QTest::keyClick(&e.Long(n), Qt::Key_Return);
}

// Rows typed into a grid from its cell (fila, columna) on: each value keyed into the cell and
// entered with Return (which moves down) or Tab-free moves to the next column of the row.
void Teclear(QTableView& g, int fila, int columna, const std::vector<const char*>& filas) {
    g.setFocus();
    for (int i = 0; i < static_cast<int>(filas.size()); ++i) {
        const QStringList celdas =
            QString::fromUtf8(filas[static_cast<std::size_t>(i)]).split(QLatin1Char('|'));
        for (int j = 0; j < celdas.size(); ++j) {
            g.setCurrentIndex(g.model()->index(fila - 1 + i, columna - 1 + j));
            QTest::keyClick(&g, Qt::Key_F2);
            auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            if (!editor) return QTest::qFail("sin editor de celda", __FILE__, __LINE__);
            editor->selectAll();
            QTest::keyClicks(editor, celdas[j]);
            QTest::keyClick(editor, Qt::Key_Return);
        }
    }
}

// A list of the beam as sorted rows: the file keeps the rows ordered by joint.
template <typename A, typename... B> Filas Lista(long n, const A& a, const B&... b) {
    Filas filas;
    for (long i = 1; i <= n; ++i)
        filas.push_back({static_cast<double>(a(i)), static_cast<double>(b(i))...});
    std::sort(filas.begin(), filas.end());
    return filas;
}

void Siguiente(VigaDatos& e, int veces = 1) {
    for (int i = 0; i < veces; ++i) Pulsar(e, "Button2");
}

} // namespace

class VigaDatosTest : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaPrueba> p;
    DialogosGuion& dialogos() { return *p->dialogos; }

  private slots:
    void init() { p = std::make_unique<ProgramaPrueba>(); }

    // A five-span beam typed on the default new beam: axes, lengths, a displaced joint, four
    // supports through the buttons, a spring, two types with a block entry, the load factor,
    // a joint action and the dimensions at a support; Ctrl+S, and the file holds what was typed.
    void VigaDeCincoTramos() {
        PrepararProyecto(*p, VigaNuevaDefecto());
        auto editor = Abrir(*p);
        VigaDatos& e = *editor;
        QCOMPARE(e.windowTitle(), QStringLiteral("Datos Generales de la Viga: [ V-1 ]"));
        QCOMPARE(e.Pagina(), 1);
        const std::pair<int, const char*> esquinas[] = {{1, "No"},     {2, "Tramo"}, {6, "Tipo"},
                                                        {7, "Tramo"},  {8, "Tipo"},  {9, "Tramo"},
                                                        {10, "Tramo"}, {12, "Junta"}};
        for (const auto& [n, rotulo] : esquinas)
            QCOMPARE(e.Spread(n).findChild<QAbstractButton*>()->accessibleName(),
                     QString::fromUtf8(rotulo));
        QVERIFY(!Hijo<QPushButton>(e, QStringLiteral("Button1"))->isEnabled());

        Contar(e, 1, QStringLiteral("5"));
        QVERIFY(e.Modificada()); // the beam differs from the file
        Teclear(e.Spread(1), 1, 1, {"A", "B", "C", "D", "E", "F"});
        Teclear(e.Spread(2), 1, 1, {"4", "5.5", "3", "6.25", "4.5"});
        QCOMPARE(e.Spread(2).model()->headerData(1, Qt::Vertical).toString(),
                 QStringLiteral("B - C"));
        Siguiente(e);
        QCOMPARE(e.Pagina(), 2);
        QVERIFY(e.Accion(QStringLiteral("ID_NJuntas"))->isChecked());
        QVERIFY(p->programa.Vista.VerJuntas);

        Contar(e, 2, QStringLiteral("1"));
        Teclear(e.Spread(3), 1, 1, {"3|0|-0.015"});
        Siguiente(e);
        Contar(e, 3, QStringLiteral("4"));
        Teclear(e.Spread(4), 1, 1, {"1", "2", "4", "6"});
        e.Spread(4).setCurrentIndex(e.Spread(4).model()->index(0, 1));
        for (const char* apoyo : {"ButtonP4", "ButtonP3", "ButtonP3", "ButtonP1"}) Pulsar(e, apoyo);
        Siguiente(e);
        Contar(e, 4, QStringLiteral("1"));
        Teclear(e.Spread(5), 1, 1, {"5|0|250000|0"});
        Siguiente(e);
        QCOMPARE(e.Pagina(), 5);
        Contar(e, 5, QStringLiteral("2"));
        Teclear(e.Spread(6), 2, 1, {"0.25|0.45"});
        dialogos().entradas.push_back("2");
        e.Spread(7).selectionModel()->select(
            QItemSelection(e.Spread(7).model()->index(1, 0), e.Spread(7).model()->index(2, 0)),
            QItemSelectionModel::Select);
        QTest::mouseRelease(e.Spread(7).viewport(), Qt::LeftButton, {},
                            e.Spread(7).visualRect(e.Spread(7).model()->index(2, 0)).center());
        QCOMPARE(dialogos().pedidos.back(),
                 (PedidoTexto{"\n\n\n\n\nTipos de Vigas:", "Tipos de Viga", "0"}));
        Siguiente(e);
        QCOMPARE(e.Pagina(), 7);
        Escribir(e, "Double1", QStringLiteral("1.6"));
        QTest::keyClick(Control(e, "Double1"), Qt::Key_Return);
        Siguiente(e);
        Contar(e, 7, QStringLiteral("1"));
        Teclear(e.Spread(11), 1, 1, {"3|100|2000|-50"});
        Siguiente(e);
        QCOMPARE(e.Pagina(), 9);
        Teclear(e.Spread(12), 1, 1, {"0.2|0.25|0.6"});
        QVERIFY(e.Modificada());

        QTest::keyClick(&e, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!e.Modificada());
        QVERIFY(dialogos().preguntas.empty());

        const VigaActual f = EnArchivo(*p);
        QCOMPARE(f.NT, 5);
        QCOMPARE(f.NombreEje(6), std::string("F"));
        const double luces[] = {4, 5.5, 3, 6.25, 4.5};
        const double tipos[] = {1, 2, 2, 1, 1};
        for (long t = 1; t <= 5; ++t) {
            QCOMPARE(f.LT(t), luces[t - 1]);
            QCOMPARE(f.VT(t), tipos[t - 1]);
        }
        QCOMPARE(f.YY(1), -0.02); // two decimals, half away from zero
        QCOMPARE(Lista(f.NJRest, f.R1, f.Apoyo), (Filas{{1, 4}, {2, 3}, {4, 3}, {6, 1}}));
        QCOMPARE(Lista(f.NJRes, f.R10, f.SV10), (Filas{{5, 250000}}));
        QCOMPARE(Lista(f.NTipos, f.B1, f.T1), (Filas{{0.25, 0.45}, {0.3, 0.5}}));
        QCOMPARE(f.FMayoracion, 1.6);
        QCOMPARE(Lista(f.NAcc, f.R2, f.QC1, f.QC2, f.QC3), (Filas{{3, 100, 2000, -50}}));
        QCOMPARE(Lista(f.NT + 1, f.LIzq, f.LDer, f.HC).back(),
                 (std::vector<double>{0.2, 0.25, 0.6}));
    }

    // Counts: a box applies its edit alike on Return and on leaving it, shows the refusal's
    // message and then the old count; a count clamped by the edit shows the count kept.
    // Fewer spans keep a restraint on a joint past the end, and the drawing faults on it.
    void CuentasYSusLimites() {
        VigaActual v = VigaDeTramos({4, 4, 4, 4, 4});
        PonerApoyos(v, {{1, ApoyoFijo}, {6, Empotramiento}});
        PrepararProyecto(*p, v);
        auto editor = Abrir(*p);
        VigaDatos& e = *editor;

        Siguiente(e, 2);
        for (const Qt::Key salida : {Qt::Key_Return, Qt::Key_Tab}) {
            dialogos().preguntas.clear();
            Escribir(e, "Long3", QStringLiteral("7"));
            QTest::keyClick(&e.Long(3), salida);
            QCOMPARE(dialogos().preguntas,
                     std::vector<Pregunta>{Aviso("El Número de Juntas ser mayor que 6    ",
                                                 "Juntas Totalmente restringidas")});
            QCOMPARE(e.Long(3).text(), QStringLiteral("2"));
        }
        Siguiente(e, 2);
        Contar(e, 5, QStringLiteral("0"));
        QCOMPARE(e.Long(5).text(), QStringLiteral("1"));

        Contar(e, 1, QStringLiteral("3"));
        QCOMPARE(e.Spread(2).model()->rowCount(), 3);
        QCOMPARE(dialogos().preguntas.back().Titulo, std::string("Error Número: 9"));
    }

    // Cells: a zero length is taken by the cell and refused by " Siguiente "; " Salvar " then
    // saves it. A factor the edit clamps shows clamped; a block's value that is not a number,
    // its message.
    void CeldasYSusReglas() {
        VigaActual v = VigaDeTramos({4, 5, 6});
        PonerTipos(v, {{0.3, 0.5}, {0.3, 0.6}, {0.4, 0.7}});
        PonerApoyos(v, {{1, ApoyoFijo}});
        PrepararProyecto(*p, v);
        auto editor = Abrir(*p);
        VigaDatos& e = *editor;

        Teclear(e.Spread(2), 2, 1, {"0"});
        Siguiente(e);
        QCOMPARE(e.Pagina(), 1);
        QCOMPARE(dialogos().preguntas.back(),
                 Aviso("¡No pueden existir Tramos con Longitud igual a Cero (0)!",
                       "Longitud de los Tramos"));
        QCOMPARE(e.Spread(2).currentIndex().row(), 1);
        Pulsar(e, "LSButton3");
        QCOMPARE(EnArchivo(*p).LT(2), 0.0);
        Teclear(e.Spread(2), 2, 1, {"5"});

        dialogos().entradas.push_back("abc");
        e.Spread(2).horizontalHeader()->sectionClicked(0);
        QCOMPARE(dialogos().preguntas.back(),
                 Aviso("Debe Introducir un Número...    ", "Longitud de los Tramos"));

        Escribir(e, "Double1", QStringLiteral("6"));
        QLineEdit* factor = Control(e, "Double1");
        QTest::keyClick(factor, Qt::Key_Return);
        QCOMPARE(factor->text(), QStringLiteral("1.50"));
    }

    // Undo and redo through the real keys and the toolbar's tips: a count, a cell and a paste
    // each one step, the grids following; back at the beam of the file nothing is
    // asked, and a save moves the point the question is measured from.
    void DeshacerYRehacer() {
        PrepararProyecto(*p, VigaDeTramos({4, 5, 6}));
        auto editor = Abrir(*p);
        VigaDatos& e = *editor;
        const auto& viga = p->programa.Viga;
        QAction* deshacer = e.Accion(QStringLiteral("ID_Deshacer"));
        QAction* rehacer = e.Accion(QStringLiteral("ID_Rehacer"));
        QVERIFY(!deshacer->isEnabled() && !rehacer->isEnabled());
        const auto teclas = [&](Qt::KeyboardModifiers mod, Qt::Key tecla = Qt::Key_Z) {
            e.Spread(2).setFocus();
            QTest::keyClick(&e.Spread(2), tecla, mod);
        };

        Contar(e, 1, QStringLiteral("5"));
        QCOMPARE(deshacer->toolTip(), QStringLiteral("Deshacer: Número de Tramos"));
        Teclear(e.Spread(2), 1, 1, {"7"});
        QCOMPARE(deshacer->toolTip(), QStringLiteral("Deshacer: Longitud de los Tramos"));
        e.Spread(2).setCurrentIndex(e.Spread(2).model()->index(2, 0));
        QGuiApplication::clipboard()->setText(QStringLiteral("1\n2\n3\n4\n"));
        QTest::keyClick(&e.Spread(2), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(viga.LT(4), 2.0);
        QCOMPARE(e.Spread(2).model()->rowCount(), 5); // spans grow through their count only

        teclas(Qt::ControlModifier); // the paste, both cells
        QCOMPARE(viga.LT(3), 6.0);
        QCOMPARE(viga.LT(4), 0.0);
        QCOMPARE(rehacer->toolTip(), QStringLiteral("Rehacer: Pegar: Longitud de los Tramos"));
        teclas(Qt::ControlModifier);
        QCOMPARE(ValorCelda(e.Spread(2), 1, 1), 4.0);
        teclas(Qt::ControlModifier);
        QCOMPARE(viga.NT, 3);
        QCOMPARE(e.Long(1).text(), QStringLiteral("3"));
        QCOMPARE(e.Spread(2).model()->rowCount(), 3);
        QVERIFY(!e.Modificada()); // the beam of the file
        teclas(Qt::ControlModifier, Qt::Key_Y);
        teclas(Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(viga.NT, 5);
        QCOMPARE(viga.LT(1), 7.0);
        QCOMPARE(ValorCelda(e.Spread(2), 1, 1), 7.0);
        teclas(Qt::ControlModifier, Qt::Key_Y);
        QCOMPARE(ValorCelda(e.Spread(2), 5, 1), 3.0);
        QVERIFY(!rehacer->isEnabled());

        QTest::keyClick(&e, Qt::Key_S, Qt::ControlModifier);
        teclas(Qt::ControlModifier);
        QVERIFY(e.Modificada());
        teclas(Qt::ControlModifier, Qt::Key_Y);
        QVERIFY(!e.Modificada());

        e.close();
        QVERIFY(!e.isVisible());
        QVERIFY(dialogos().preguntas.empty());
    }

    // A block pasted from a spreadsheet: the joint beyond the beam shows its message once and
    // keeps its old value, the list grows through its count.
    void PegarUnBloque() {
        PrepararProyecto(*p, VigaDeTramos({4, 5, 6}));
        auto editor = Abrir(*p);
        VigaDatos& e = *editor;
        const auto& viga = p->programa.Viga;

        Siguiente(e, 6);
        QCOMPARE(e.Pagina(), 8);
        QTableView& acciones = e.Spread(11);
        acciones.setFocus();
        acciones.setCurrentIndex(acciones.model()->index(0, 0));
        QGuiApplication::clipboard()->setText(
            QStringLiteral("2\t100\t0\t0\r\n9\t200\t0\t0\r\n12\t300\t0\t0\r\n3\t400\t5\t0\r\n"));
        dialogos().preguntas.clear();
        QTest::keyClick(&acciones, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(viga.NAcc, 4);
        QCOMPARE(e.Long(7).text(), QStringLiteral("4"));
        QCOMPARE(viga.QC2(4), 5.0);
        QCOMPARE(dialogos().preguntas,
                 std::vector<Pregunta>{Aviso("El Número de la Junta no puede ser mayor que 4    ",
                                             "Acciones Nodales")});
    }

    // A steel beam: the support buttons act at once on page 3 reached by " Siguiente " (the
    // first row is the active one); the pages go from 4 to 6 and end at 8, and back from 8
    // the move forward stays off until page 6; a profile captured there changes the beam,
    // so " Retorno " asks.
    void VigaMetalicaApoyosYPerfil() {
        VigaActual v = VigaDeTramos({4, 5});
        v.OpcionConcreto = 1;
        PonerApoyos(v, {{1, ApoyoFijo}, {3, ApoyoFijo}});
        PrepararProyecto(*p, v);
        auto editor = Abrir(*p);
        VigaDatos& e = *editor;
        const VigaActual& viga = p->programa.Viga;
        QVERIFY(Hijo<QRadioButton>(e, QStringLiteral("Option2"))->isChecked());
        Siguiente(e, 2);
        QCOMPARE(e.Pagina(), 3);
        Pulsar(e, "ButtonP4");
        QCOMPARE(viga.Apoyo(1), Empotramiento);
        QCOMPARE(ValorCelda(e.Spread(4), 1, 2), 4.0);
        QCOMPARE(e.Spread(4).currentIndex().row(), 1);
        QTest::keyClick(&e, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!e.Modificada());

        auto* siguiente = Hijo<QPushButton>(e, QStringLiteral("Button2"));
        std::vector<int> paginas;
        for (int i = 0; i < 8; ++i) {
            if (siguiente->isEnabled()) Siguiente(e);
            paginas.push_back(e.Pagina());
        }
        QCOMPARE(paginas, (std::vector<int>{4, 6, 7, 8, 8, 8, 8, 8}));
        Pulsar(e, "Button1");
        QCOMPARE(e.Pagina(), 7);
        QVERIFY(!siguiente->isEnabled());
        Pulsar(e, "Button1");
        QCOMPARE(e.Pagina(), 6);
        QVERIFY(siguiente->isEnabled());
        QVERIFY(!e.Modificada());

        ListaPerfiles& lista = p->programa.ListaPerfil;
        lista.ListaPerfilesN = 1;
        lista.ListaDesignacion = Arreglo<std::string>(1);
        lista.ListaArea = lista.ListaInercia = Arreglo<double>(1);
        lista.ListaDesignacion(1) = "1 IPE 300";
        lista.ListaArea(1) = 53.8;
        lista.ListaInercia(1) = 8356;
        const std::string previa = viga.Designacion(1);
        EnVentana<VigasMetalicas>([this](VigasMetalicas& m) {
            auto* perfiles = Control<QTableView>(m, "Spread1");
            perfiles->setCurrentIndex(perfiles->model()->index(0, 0));
            dialogos().respuestas = {RespuestaSi};
            Pulsar(m, "LSButton4");
        });
        Pulsar(e, "LSButton5");
        QCOMPARE(viga.Designacion(1), std::string("1 IPE 300"));
        QCOMPARE(ValorCelda(e.Spread(8), 1, 2), 53.8);
        QVERIFY(e.Modificada());
        // The capture is one step of the history.
        QAction* deshacer = e.Accion(QStringLiteral("ID_Deshacer"));
        QCOMPARE(deshacer->toolTip(), QStringLiteral("Deshacer: Capturar Perfil Metálico"));
        deshacer->trigger();
        QCOMPARE(viga.Designacion(1), previa);
        QVERIFY(!e.Modificada());
        e.Accion(QStringLiteral("ID_Rehacer"))->trigger();
        QCOMPARE(ValorCelda(e.Spread(8), 1, 2), 53.8);
        dialogos().respuestas = {RespuestaNo};
        Pulsar(e, "LSButton2");
        QCOMPARE(dialogos().preguntas.back(), PreguntaSalir(true));
        QVERIFY(!e.isVisible());
    }

    // Every way out asks about a changed beam, a length still being typed in its cell
    // included: cancel keeps the window, no drops the edits, yes saves; a save the file
    // refuses shows its error and keeps the beam changed.
    void SalidasYSalvarRechazado() {
        PrepararProyecto(*p, VigaDeTramos({4, 5}));
        auto editor = Abrir(*p);
        VigaDatos& e = *editor;
        QTableView& luces = e.Spread(2);
        luces.setFocus();
        luces.setCurrentIndex(luces.model()->index(0, 0));
        QTest::keyClick(&luces, Qt::Key_F2);
        auto* celda = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(celda);
        celda->selectAll();
        QTest::keyClicks(celda, QStringLiteral("4.75"));

        dialogos().respuestas = {RespuestaCancelar, RespuestaCancelar, RespuestaCancelar};
        e.close(); // the window's close button, the cell still open
        QCOMPARE(p->programa.Viga.LT(1), 4.75);
        QCOMPARE(ValorCelda(luces, 1, 1), 4.75);
        Pulsar(e, "LSButton2");
        QTest::keyClick(&e, Qt::Key_Escape);
        QVERIFY(e.isVisible());
        QCOMPARE(dialogos().preguntas, std::vector<Pregunta>(3, PreguntaSalir(true)));
        QCOMPARE(EnArchivo(*p).LT(1), 4.0);

        // The file refuses: a table of the beam is gone underneath.
        BaseDatos::Abrir(p->programa.Carpetas.RutaProyectos + "/" + Proyecto)
            .Ejecutar("DROP TABLE Tramos");
        dialogos().respuestas = {RespuestaSi};
        Pulsar(e, "LSButton2");
        QVERIFY(e.isVisible());
        QVERIFY(e.Modificada());
        QVERIFY(dialogos().preguntas.back().Titulo.rfind("Error: ", 0) == 0);

        dialogos().respuestas = {RespuestaNo};
        e.close();
        QVERIFY(!e.isVisible());
        QVERIFY(!p->programa.Vista.ModoEditor);
    }

    // From the project window, the moves to the next and previous beam ask about a changed
    // beam with yes and no, then show the other beam; the moves follow the list's ends.
    void MoverseEntreVigas() {
        p->programa.Estado.NombreProyecto = "Ejemplo Demostrativo.trv";
        VigasProyecto ventana(p->programa);
        const auto nombres = ventana.NombresLista();
        VigaDatos editor(p->programa, &ventana.Lista(), &ventana);
        auto* anterior = Hijo<QPushButton>(editor, QStringLiteral("BtoMove0"));
        auto* siguiente = Hijo<QPushButton>(editor, QStringLiteral("BtoMove1"));
        QVERIFY(!anterior->isEnabled());
        QVERIFY(siguiente->isEnabled());
        editor.show();
        QApplication::setActiveWindow(&editor);
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        Teclear(editor.Spread(2), 1, 1, {"7.5"});
        dialogos().respuestas = {RespuestaNo};
        QTest::mouseClick(siguiente, Qt::LeftButton);
        const Pregunta pregunta{
            "Viga: " + nombres[0] +
                "        \nDesea Salvar las Modificaciones en la Viga?       \n",
            "Datos Generales de la Viga", BotonesMensaje::SiNo, IconoMensaje::Pregunta, 1};
        QCOMPARE(dialogos().preguntas, std::vector<Pregunta>{pregunta});
        QCOMPARE(p->programa.Viga.NombreVigaActual, nombres[1]);
        QCOMPARE(editor.windowTitle(), Qs("Datos Generales de la Viga: [ " + nombres[1] + " ]"));
        QCOMPARE(ValorCelda(editor.Spread(2), 1, 1), p->programa.Viga.LT(1));
        QVERIFY(!editor.Modificada());
        QVERIFY(anterior->isEnabled());
        QTest::mouseClick(anterior, Qt::LeftButton);
        QCOMPARE(p->programa.Viga.NombreVigaActual, nombres[0]);
        QVERIFY(p->programa.Viga.LT(1) != 7.5); // the edit was dropped
        QCOMPARE(dialogos().preguntas.size(), std::size_t(1));
        QVERIFY(p->programa.Vista.ModoEditor);
    }

    // Loads: with no span marked the load button warns; the band on the canvas marks spans;
    // the marks and " Eliminar las cargas de la viga. " act on the model.
    void CargasYMarcas() {
        VigaActual v = VigaDeTramos({4, 5, 6});
        PonerCargas(v, {{1, 1, {{500}}}, {2, 2, {{900, 1.5}}}, {3, 8, {{10, 20, 0.5, 2}}}});
        PrepararProyecto(*p, v);
        auto editor = Abrir(*p);
        VigaDatos& e = *editor;
        Siguiente(e, 5);
        QCOMPARE(e.Pagina(), 7);
        Pulsar(e, "LSButton25");
        QCOMPARE(dialogos().preguntas.back(), Aviso("\nNo ha seleccionado ningún Tramo...       ",
                                                    "Carga Uniforme en los Tramos"));
        Pulsar(e, "LSButton27");
        QCOMPARE(dialogos().preguntas.back(),
                 Aviso("No ha seleccionado ningún Tramo...    ", "Cargas en los Tramos"));

        // A band over the whole canvas takes every span.
        PantallaViga& lienzo = e.Lienzo();
        QTest::mousePress(&lienzo, Qt::LeftButton, {}, QPoint(2, 2));
        QTest::mouseMove(&lienzo, QPoint(lienzo.width() - 2, lienzo.height() - 2));
        QTest::mouseRelease(&lienzo, Qt::LeftButton, {},
                            QPoint(lienzo.width() - 2, lienzo.height() - 2));
        for (int t = 1; t <= 3; ++t) {
            QVERIFY(p->programa.Viga.TramoMarcado(t));
            QVERIFY(CeldaMarcada(e.Spread(10), t, 1));
        }
        Pulsar(e, "SSCommand2");
        QVERIFY(!CeldaMarcada(e.Spread(10), 2, 1));
        QVERIFY(!p->programa.Viga.TramoMarcado(2));

        // A uniform load on the marked span 2: the dialog writes it, the marks are cleared.
        QTableView& marcas = e.Spread(10);
        QTest::mouseClick(marcas.viewport(), Qt::LeftButton, {},
                          marcas.visualRect(marcas.model()->index(1, 0)).center());
        QVERIFY(p->programa.Viga.TramoMarcado(2));
        QVERIFY(!e.Modificada());
        AlAbrirse<Carga01>([](Carga01& d) {
            Escribir(d, "Long1", QStringLiteral("750"));
            Pulsar(d, "LSButton1");
        });
        Pulsar(e, "LSButton24");
        QCOMPARE(p->programa.Viga.W1(2), 750);
        QVERIFY(!CeldaMarcada(marcas, 2, 1));
        QVERIFY(e.Modificada());
        // The accepted dialog is one step of the history.
        QAction* deshacer = e.Accion(QStringLiteral("ID_Deshacer"));
        QCOMPARE(deshacer->toolTip(), QStringLiteral("Deshacer: Carga Uniforme"));
        // The keys reach the editor once the dialog has closed: Ctrl+Z on the spans.
        QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&marcas));
        QTest::keyClick(&marcas, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(p->programa.Viga.W1(2), 0);
        QVERIFY(!e.Modificada());
        e.Accion(QStringLiteral("ID_Rehacer"))->trigger();
        QCOMPARE(p->programa.Viga.W1(2), 750);

        dialogos().respuestas = {RespuestaNo, RespuestaSi};
        Pulsar(e, "ButtonE");
        QCOMPARE(
            dialogos().preguntas.back(),
            (Pregunta{"Eliminar todas las Cargas en la Viga!        \nEsta Usted Seguro?        ",
                      "Cargas en los Tramos", BotonesMensaje::SiNo, IconoMensaje::Pregunta, 2}));
        QCOMPARE(p->programa.Viga.W1(1), 500);
        Pulsar(e, "ButtonE");
        QCOMPARE(p->programa.Viga.W1(1), 0);
        QCOMPARE(p->programa.Viga.CantW2(2), 0);
        QCOMPARE(p->programa.Viga.CantW8(3), 0);
    }

    // A few thousand seeded keys and clicks on the editor's controls of a loaded beam: no
    // crash, no hang; then " Salvar ", and the file holds the beam the model held.
    void TormentaDeTeclasYClics() {
        VigaActual v = VigaPrueba("V-1", 3);
        PrepararProyecto(*p, v);
        auto editor = Abrir(*p);
        VigaDatos& e = *editor;
        QRandomGenerator azar(20261123);
        // The storm stays inside the window: " Retorno " cannot be reached, by click or by key.
        Hijo<QPushButton>(e, QStringLiteral("LSButton2"))->setEnabled(false);
        // The load dialogs and the profile window it opens are let go as they come up.
        QTimer cierre;
        cierre.setInterval(20);
        QObject::connect(&cierre, &QTimer::timeout, [] {
            if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                modal->reject();
        });
        cierre.start();
        const QList<QWidget*> controles = [&] {
            QList<QWidget*> lista;
            for (QWidget* w : e.findChildren<QWidget*>())
                if (w->objectName() != QStringLiteral("LSButton2") && !w->objectName().isEmpty() &&
                    (qobject_cast<QPushButton*>(w) || qobject_cast<QLineEdit*>(w) ||
                     qobject_cast<QTableView*>(w) || qobject_cast<QRadioButton*>(w) ||
                     qobject_cast<PantallaViga*>(w)))
                    lista << w;
            return lista;
        }();
        const int teclas[] = {Qt::Key_0,      Qt::Key_1,     Qt::Key_5,         Qt::Key_9,
                              Qt::Key_Period, Qt::Key_Minus, Qt::Key_A,         Qt::Key_Return,
                              Qt::Key_Tab,    Qt::Key_Up,    Qt::Key_Down,      Qt::Key_Left,
                              Qt::Key_Right,  Qt::Key_F2,    Qt::Key_Backspace, Qt::Key_Delete,
                              Qt::Key_Space};
        QElapsedTimer reloj;
        reloj.start();
        for (int i = 0; i < 3000 && reloj.elapsed() < 8000; ++i) {
            QWidget* w = controles[azar.bounded(static_cast<int>(controles.size()))];
            if (!w->isVisible() || !w->isEnabled()) continue;
            QWidget* destino =
                qobject_cast<QTableView*>(w) ? static_cast<QTableView*>(w)->viewport() : w;
            if (azar.bounded(3) == 0) {
                const QPoint punto(azar.bounded(std::max(destino->width(), 1)),
                                   azar.bounded(std::max(destino->height(), 1)));
                QTest::mouseClick(destino, Qt::LeftButton, {}, punto);
            } else {
                QWidget* foco = QApplication::focusWidget() ? QApplication::focusWidget() : w;
                QTest::keyClick(foco, static_cast<Qt::Key>(teclas[azar.bounded(17)]));
            }
        }
        QVERIFY(e.isVisible());
        e.setFocus();
        QVERIFY(e.Salvar());
        const VigaActual f = EnArchivo(*p);
        const VigaActual& m = p->programa.Viga;
        QCOMPARE(f.NT, m.NT);
        QCOMPARE(f.LT, m.LT);
        QCOMPARE(f.VT, m.VT);
        QCOMPARE(f.NombreEje, m.NombreEje);
        QCOMPARE(Lista(f.NTipos, f.B1, f.T1), Lista(m.NTipos, m.B1, m.T1));
        QCOMPARE(Lista(f.NJRest, f.R1, f.Apoyo), Lista(m.NJRest, m.R1, m.Apoyo));
        QCOMPARE(Lista(f.NJDesp, f.R3, f.XX, f.YY), Lista(m.NJDesp, m.R3, m.XX, m.YY));
        QCOMPARE(Lista(f.NJRes, f.R10, f.SH10, f.SV10, f.SM10),
                 Lista(m.NJRes, m.R10, m.SH10, m.SV10, m.SM10));
        QCOMPARE(Lista(f.NAcc, f.R2, f.QC1, f.QC2, f.QC3),
                 Lista(m.NAcc, m.R2, m.QC1, m.QC2, m.QC3));
        QCOMPARE(f.FMayoracion, m.FMayoracion);
        QCOMPARE(f.OpcionConcreto, m.OpcionConcreto);
        QCOMPARE(f.W1, m.W1);
    }
};

TREVALO_PRUEBA_VENTANAS(VigaDatosTest)
#include "VigaDatosTest.moc"
