// A project opened from outside the menu's dialog: named on the command line, dropped on the
// main window, chosen among the last projects at the foot of the "Proyecto" menu; and opens
// that fail, after which nothing may write into the project open before.

#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <filesystem>

#include "VentanasPrueba.h"
#include "shell/DatosG.h"
#include "shell/MenuP.h"
#include "shell/ProyectosRecientes.h"
#include "shell/Splash.h"
#include "shell/VigasProyecto.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

std::string Proyectos(ProgramaPrueba& p, const std::string& nombre) {
    return p.programa.Carpetas.RutaProyectos + "/" + nombre;
}

// The start-up as the command line starts it, up to the main window.
MenuP* Iniciar(ProgramaPrueba& p, const QString& proyecto) {
    auto* splash = new Splash(p.programa, p.entorno, proyecto);
    splash->Timer1().setInterval(10);
    splash->show();
    return QTest::qWaitFor([] { return VentanaAbierta<MenuP>() != nullptr; })
               ? VentanaAbierta<MenuP>()
               : nullptr;
}

// The title of the main window and whether "save as" is on: which project it says is open.
QString Estado(MenuP& menu) {
    const bool salvarComo = menu.Accion(QStringLiteral("ID_Proyecto_Salvarcomo"))->isEnabled();
    return menu.windowTitle() + (salvarComo ? QStringLiteral(" +") : QStringLiteral(" -"));
}

Pregunta ErrorStore(long numero, const std::string& texto) {
    return {texto, "Error: " + std::to_string(numero), BotonesMensaje::Aceptar,
            IconoMensaje::Advertencia, 1};
}

// Drags `urls` over the main window and drops them; whether the window took the drag.
bool Soltar(MenuP& menu, const QList<QUrl>& urls) {
    QMimeData datos;
    datos.setUrls(urls);
    const QPoint punto = menu.rect().center();
    QDragEnterEvent entrada(punto, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    entrada.setAccepted(false);
    QApplication::sendEvent(&menu, &entrada);
    if (!entrada.isAccepted()) return false;
    QDropEvent suelta(QPointF(punto), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&menu, &suelta);
    QTest::qWait(20); // the project opens once the drop has ended
    return true;
}

QStringList Textos(const QList<QAction*>& acciones) {
    QStringList textos;
    for (QAction* a : acciones) textos << a->text() + QStringLiteral(" | ") + a->toolTip();
    return textos;
}

// Any project window or general data that opens is used as a person would, in ways that
// write into its project: the first beam deleted, the general data saved.
class UsoDeVentanas : public QObject {
  public:
    explicit UsoDeVentanas(ProgramaPrueba& p) : p_(p) {
        connect(&sondeo_, &QTimer::timeout, this, &UsoDeVentanas::Mirar);
        sondeo_.start(20);
    }
    QStringList abiertas;

  private:
    void Mirar() {
        QWidget* w = QApplication::activeModalWidget();
        if (auto* v = qobject_cast<VigasProyecto*>(w)) {
            abiertas << QStringLiteral("VigasProyecto");
            p_.dialogos->respuestas = {RespuestaSi, RespuestaSi};
            QTest::mouseClick(v->Boton(QStringLiteral("LSButton22")), Qt::LeftButton);
            v->reject();
        } else if (auto* d = qobject_cast<DatosG*>(w)) {
            abiertas << QStringLiteral("DatosG");
            Pulsar(*d, "LSButton2");
            d->reject();
        }
    }
    ProgramaPrueba& p_;
    QTimer sondeo_;
};

} // namespace

class AbrirProyectoTest : public QObject {
    Q_OBJECT

  private slots:
    void LaLineaDeOrdenesTomaUnSoloProyecto() {
        const QString uso = QStringLiteral("\nUso: trevalo [PROYECTO.trv]\n");
        const std::tuple<QStringList, bool, QString, QString> casos[] = {
            {{}, true, {}, {}},
            {{QStringLiteral("Obra.trv")},
             true,
             QDir::current().absoluteFilePath(QStringLiteral("Obra.trv")),
             {}},
            {{QStringLiteral("/datos/Mi Obra.trv")},
             true,
             QStringLiteral("/datos/Mi Obra.trv"),
             {}},
            {{QStringLiteral("a.trv"), QStringLiteral("b.trv")},
             false,
             {},
             QStringLiteral("trevalo: se espera un solo archivo de proyecto y se dieron 2 "
                            "argumentos.") +
                 uso},
            {{QStringLiteral("--help")},
             false,
             {},
             QStringLiteral("trevalo: opción no válida: «--help».") + uso},
            {{QStringLiteral("-")},
             false,
             {},
             QStringLiteral("trevalo: opción no válida: «-».") + uso},
        };
        for (const auto& [argumentos, valida, proyecto, error] : casos) {
            const LineaOrdenes linea = LeerLineaOrdenes(argumentos);
            QCOMPARE(linea.Valida, valida);
            QCOMPARE(linea.Proyecto, proyecto);
            QCOMPARE(linea.Error, error);
        }

        // The program itself refuses them with the line on the error stream and code 2,
        // before it needs a display.
        for (const QStringList& argumentos :
             {QStringList{QStringLiteral("a.trv"), QStringLiteral("b.trv")},
              QStringList{QStringLiteral("--version")}}) {
            QProcess programa;
            programa.start(QStringLiteral(TREVALO_PROGRAMA), argumentos);
            QVERIFY(programa.waitForFinished(10000));
            QCOMPARE(programa.exitStatus(), QProcess::NormalExit);
            QCOMPARE(programa.exitCode(), 2);
            QCOMPARE(QString::fromUtf8(programa.readAllStandardError()),
                     LeerLineaOrdenes(argumentos).Error);
            QVERIFY(programa.readAllStandardOutput().isEmpty());
        }
    }

    void UnProyectoEnLaLineaDeOrdenesQuedaAbiertoComoConElMenu() {
        ProgramaPrueba p;
        const std::string ejemplo = Proyectos(p, Ejemplo);
        MenuP* menu = Iniciar(p, Qs(ejemplo));
        QVERIFY(menu);
        QTRY_COMPARE(Estado(*menu),
                     QStringLiteral("Trevalo 6.0  Proyecto: [Ejemplo Demostrativo.trv] +"));
        QCOMPARE(p.programa.Estado.NombreProyecto, Ejemplo);
        QCOMPARE(RutaProyectoActual(p.programa.Carpetas, p.programa.Estado), ejemplo);
        QVERIFY(p.dialogos->preguntas.empty());
        QVERIFY(!QApplication::overrideCursor());
        int vigas = 0;
        AlAbrirse<VigasProyecto>([&](VigasProyecto& v) {
            vigas = v.Filas();
            v.reject();
        });
        menu->Accion(QStringLiteral("ID_AnalizarVigas"))->trigger();
        QCOMPARE(vigas, 6);
        QVERIFY(p.dialogos->dialogosArchivo.empty()); // nothing asked
        menu->close();
    }

    // Named on the command line, a missing file and a file that is not a project give the
    // messages of the menu's dialog, and no project is open.
    void UnArchivoQueFaltaONoEsProyectoDaElMensajeDelMenuYNingunProyecto() {
        ProgramaPrueba p;
        const std::string falta = Proyectos(p, "Falta.trv"), notas = Proyectos(p, "Notas.trv");
        EscribirArchivo(notas, "no es un proyecto");
        const std::pair<std::string, Pregunta> casos[] = {
            {falta, ErrorStore(53, "No existe el archivo: " + falta)},
            {notas, ErrorStore(3343, "El archivo no es un proyecto de vigas: " + notas +
                                         " (file is not a database)")}};
        for (const auto& [ruta, mensaje] : casos) {
            p.dialogos->preguntas.clear();
            MenuP* inicio = Iniciar(p, Qs(ruta));
            QVERIFY(inicio);
            QTRY_COMPARE(p.dialogos->preguntas, std::vector<Pregunta>{mensaje});
            QCOMPARE(Estado(*inicio), QStringLiteral("Trevalo 6.0  Proyecto: [] -"));
            QCOMPARE(p.programa.Estado.NombreProyecto, std::string());
            inicio->close();
            QTRY_VERIFY(!VentanaAbierta<MenuP>());
        }
    }

    void UnTrvSoltadoSobreLaVentanaSeAbre() {
        ProgramaPrueba p;
        const std::string ejemplo = Proyectos(p, Ejemplo);
        EscribirArchivo(Proyectos(p, "notas.txt"), "texto");
        MenuP menu(p.programa);
        menu.show();
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        // Only one local project file is taken.
        const auto url = [&](const std::string& nombre) {
            return QUrl::fromLocalFile(Qs(Proyectos(p, nombre)));
        };
        QVERIFY(!Soltar(menu, {url("notas.txt")}));
        QVERIFY(!Soltar(menu, {url(Ejemplo), url(Ejemplo)}));
        QVERIFY(!Soltar(menu, {QUrl(QStringLiteral("https://ejemplo.org/Obra.trv"))}));
        QCOMPARE(Estado(menu), QStringLiteral("Trevalo 6.0  Proyecto: [] -"));

        std::filesystem::copy_file(ejemplo, Proyectos(p, "COPIA.TRV"));
        QVERIFY(Soltar(menu, {url("COPIA.TRV")}));
        QCOMPARE(Estado(menu), QStringLiteral("Trevalo 6.0  Proyecto: [COPIA.TRV] +"));
        QVERIFY(Soltar(menu, {url(Ejemplo)}));
        QCOMPARE(Estado(menu),
                 QStringLiteral("Trevalo 6.0  Proyecto: [Ejemplo Demostrativo.trv] +"));
        QCOMPARE(RutaProyectoActual(p.programa.Carpetas, p.programa.Estado), ejemplo);
        // A file dropped that is missing: the message of the menu's dialog, no project.
        QVERIFY(Soltar(menu, {url("Falta.trv")}));
        QCOMPARE(Estado(menu), QStringLiteral("Trevalo 6.0  Proyecto: [] -"));
        QVERIFY(p.dialogos->preguntas.back() ==
                ErrorStore(53, "No existe el archivo: " + Proyectos(p, "Falta.trv")));
    }

    void LaListaDeRecientesGuardaLosCuatroUltimos() {
        // A path given relative is kept whole.
        QCOMPARE(AgregarReciente({}, QStringLiteral("x.trv")),
                 QStringList{QDir::current().absoluteFilePath(QStringLiteral("x.trv"))});

        ProgramaPrueba p;
        for (const char* n : {"P1.trv", "P2.trv", "P3.trv", "P4.trv", "P5.trv"})
            std::filesystem::copy_file(Proyectos(p, Ejemplo), Proyectos(p, n));
        auto menu = std::make_unique<MenuP>(p.programa);
        QVERIFY(menu->Recientes().isEmpty());
        auto* proyecto = menu->menuBar()->actions().front()->menu();
        const qsizetype comandos = proyecto->actions().size();
        for (const char* n : {"P1.trv", "P2.trv", "P3.trv", "P4.trv", "P5.trv"})
            menu->AbrirArchivoProyecto(Qs(Proyectos(p, n)));
        const auto linea = [&](const char* n, int i) {
            return QStringLiteral("&%1 %2 | ").arg(i).arg(QString::fromUtf8(n)) +
                   Qs(Proyectos(p, n));
        };
        const QStringList esperada = {linea("P5.trv", 1), linea("P4.trv", 2), linea("P3.trv", 3),
                                      linea("P2.trv", 4)};
        QCOMPARE(Textos(menu->Recientes()), esperada);
        // At the foot of the menu, after a separator, with the full path as the hint too.
        QCOMPARE(proyecto->actions().size(), comandos + 5);
        QVERIFY(proyecto->actions()[comandos]->isSeparator());
        QCOMPARE(proyecto->actions().mid(comandos + 1), menu->Recientes());
        QCOMPARE(menu->Recientes()[0]->statusTip(), Qs(Proyectos(p, "P5.trv")));
        QVERIFY(proyecto->toolTipsVisible());

        // Kept in the settings: the next start shows the same list.
        menu = std::make_unique<MenuP>(p.programa);
        QCOMPARE(Textos(menu->Recientes()), esperada);

        // A project that has gone: the message, and it leaves the list; the project open stays.
        std::filesystem::remove(Proyectos(p, "P4.trv"));
        menu->Recientes()[1]->trigger();
        QVERIFY(p.dialogos->preguntas.back() ==
                (Pregunta{"El proyecto ya no existe:    \n" + Proyectos(p, "P4.trv") +
                              "    \n\nSe quitó de la lista de los últimos proyectos.    ",
                          "Abrir un Proyecto Existente", BotonesMensaje::Aceptar,
                          IconoMensaje::Advertencia, 1}));
        QCOMPARE(p.programa.Estado.NombreProyecto, std::string("P5.trv"));
        QCOMPARE(Textos(menu->Recientes()),
                 QStringList({linea("P5.trv", 1), linea("P3.trv", 2), linea("P2.trv", 3)}));
        // One chosen opens and comes first.
        menu->Recientes()[2]->trigger();
        QCOMPARE(Estado(*menu), QStringLiteral("Trevalo 6.0  Proyecto: [P2.trv] +"));
        QCOMPARE(Textos(menu->Recientes()),
                 QStringList({linea("P2.trv", 1), linea("P5.trv", 2), linea("P3.trv", 3)}));
        QCOMPARE(p.dialogos->preguntas.size(), 1u);
    }

    // A project chosen, then moved away before its window opens: the project window fails
    // to open it and writes nothing into the sample looked at before. A file that is not a
    // project and a template that cannot be copied clear the project in the lifecycle tests.
    void UnaAperturaFallidaNoEscribeEnElProyectoAnterior() {
        ProgramaPrueba p;
        const std::string ejemplo = Proyectos(p, Ejemplo);
        const std::string antes = LeerArchivo(ejemplo);
        MenuP menu(p.programa);
        menu.show();
        // The sample looked at in the project window: its database is the one held.
        menu.AbrirArchivoProyecto(Qs(ejemplo));
        AlAbrirse<VigasProyecto>([](VigasProyecto& v) { v.reject(); });
        menu.Accion(QStringLiteral("ID_AnalizarVigas"))->trigger();
        UsoDeVentanas uso(p);

        std::filesystem::copy_file(ejemplo, Proyectos(p, "Movido.trv"));
        p.dialogos->archivos = {{false, Proyectos(p, "Movido.trv"), "Movido.trv"}};
        menu.Despachar(QStringLiteral("ID_Proyecto_Abrir"));
        std::filesystem::remove(Proyectos(p, "Movido.trv"));
        menu.Accion(QStringLiteral("ID_AnalizarVigas"))->trigger();
        QVERIFY(p.dialogos->preguntas.back() ==
                ErrorStore(53, "No existe el archivo: " + Proyectos(p, "Movido.trv")));
        QCOMPARE(Estado(menu), QStringLiteral("Trevalo 6.0  Proyecto: [] -"));
        menu.Accion(QStringLiteral("ID_Proyecto_Modificar"))->trigger(); // asks: cancelled

        QCOMPARE(uso.abiertas, QStringList());
        QVERIFY(LeerArchivo(ejemplo) == antes);
        QVERIFY(!QApplication::overrideCursor());
    }
};

TREVALO_PRUEBA_VENTANAS(AbrirProyectoTest)
#include "AbrirProyectoTest.moc"
