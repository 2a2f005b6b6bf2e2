// A person starts the program: the start-up window, then the main menu with its commands,
// hints and icon bar; a project chosen, the project window opened and left, the exit.

#include <QAction>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QToolBar>

#include "VentanasPrueba.h"
#include "shell/DatosG.h"
#include "shell/DialogosQt.h"
#include "shell/MenuP.h"
#include "shell/NuevaViga.h"
#include "shell/Sobre.h"
#include "shell/Splash.h"
#include "shell/VigaDatos.h"
#include "shell/VigasProyecto.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

// The menus as the user reads them: title, then each command's key, caption and hint; "-"
// is a separator.
struct Linea {
    const char* clave;
    const char* titulo;
    const char* pista;
};

const std::vector<std::pair<QString, std::vector<Linea>>> MenusEsperados = {
    {QStringLiteral("Proyecto"),
     {{"ID_Proyecto_Nuevo", "&NUEVO PROYECTO...", " CREAR NUEVO PROYECTO"},
      {"ID_Proyecto_Abrir", "&ABRIR PROYECTO EXISTENTE...", " ABRIR UN PROYECTO EXISTENTE"},
      {"ID_Proyecto_Modificar", "&EDITAR LOS DATOS GENERLAES...", " EDITAR LOS DATOS GENERLAES"},
      {"-", "", ""},
      {"ID_Proyecto_Salvarcomo", "SALVAR EL PROYECTO COMO...", " SALVAR EL PROYECTO COMO"},
      {"-", "", ""},
      {"ID_Proyecto_Eliminar", "&ELIMINAR PROYECTOS...", ""},
      {"-", "", ""},
      {"ID_ConfigurarPantalla", "&CONFIGURAR EL PROGRAMA...", " CONFIGURAR EL PROGRAMA"},
      {"-", "", ""},
      {"ID_Salida", "&SALIDA DEL PROGRAMA", ""}}},
    {QStringLiteral("&ANÁLISIS_DISEÑO"),
     {{"ID_AnalizarVigas", "&ANÁLISIS Y DISEÑO DE VIGAS CONTINUAS...",
       "  ANÁLISIS Y DISEÑO DE VIGAS CONTINUAS"}}},
    {QStringLiteral("&PERFILES_METÁLICOS"),
     {{"ID_BaseDatos_Perfiles", "TABLA DE PERFILES METÁLICOS...", " TABLA DE PERFILES METÁLICOS"}}},
    {QStringLiteral("&MANTENIMIENTO"),
     {{"ID_Mantenimiento_Reparar", "&REPARAR Y COMPACTAR ARCHIVOS...", ""},
      {"-", "", ""},
      {"ID_Explorador", "EXPLORADOR DE ARCHIVOS...", " Explorador de Windows"}}},
    {QStringLiteral("&AYUDA"),
     {{"ID_Ayuda_Temas", "TEMAS DE AYUDA...", " TEMAS DE AYUDA"},
      {"-", "", ""},
      {"ID_Manual", "MANUAL DEL PROGRAMA...", " MANUAL DEL PROGRAMA"},
      {"-", "", ""},
      {"ID_Acerca", "SOBRE TREVALO...", ""}}},
};

} // namespace

class MenuPTest : public QObject {
    Q_OBJECT

  private slots:
    void DelInicioAlMenuYSusComandos() {
        ProgramaPrueba p;
        QPointer<Splash> splash = new Splash(p.programa, p.entorno);
        QCOMPARE(splash->windowTitle(), QStringLiteral("Trevalo versión: 6.0"));
        QCOMPARE(splash->Timer1().interval(), 2800);
        QVERIFY(QFile::exists(Qs(p.programa.Carpetas.RutaProyectos + "/Ejemplo Demostrativo.trv")));
        splash->Timer1().setInterval(10);
        splash->show();
        QTRY_VERIFY(VentanaAbierta<MenuP>());
        MenuP& menu = *VentanaAbierta<MenuP>();
        QTRY_VERIFY(splash.isNull()); // the start-up window is gone

        QCOMPARE(menu.windowTitle(), QStringLiteral("Trevalo 6.0  Proyecto: []"));
        QVERIFY(!menu.Accion(QStringLiteral("ID_Proyecto_Salvarcomo"))->isEnabled());
        QVERIFY(p.programa.Vista.VerCuadricula);

        // Every menu, caption, hint and separator, in order.
        const auto menus = menu.menuBar()->actions();
        QCOMPARE(menus.size(), qsizetype(MenusEsperados.size()));
        for (qsizetype m = 0; m < menus.size(); ++m) {
            QCOMPARE(menus[m]->text(), MenusEsperados[m].first);
            const auto lineas = menus[m]->menu()->actions();
            const auto& esperadas = MenusEsperados[m].second;
            QCOMPARE(lineas.size(), qsizetype(esperadas.size()));
            for (qsizetype i = 0; i < lineas.size(); ++i) {
                if (QString::fromUtf8(esperadas[i].clave) == QStringLiteral("-")) {
                    QVERIFY(lineas[i]->isSeparator());
                    continue;
                }
                QCOMPARE(lineas[i]->objectName(), QString::fromUtf8(esperadas[i].clave));
                QCOMPARE(lineas[i]->text(), QString::fromUtf8(esperadas[i].titulo));
                QCOMPARE(lineas[i]->statusTip(), QString::fromUtf8(esperadas[i].pista));
            }
        }
        QStringList barra;
        for (QAction* a : menu.findChild<QToolBar*>(QStringLiteral("ToolBar2"))->actions())
            barra << (a->isSeparator() ? QStringLiteral("-") : a->objectName());
        QCOMPARE(barra.join(QLatin1Char(' ')),
                 QStringLiteral("ID_Proyecto_Nuevo ID_Proyecto_Abrir ID_Proyecto_Modificar - "
                                "ID_AnalizarVigas - ID_Ayuda_Temas - ID_Explorador"));

        // A project chosen by its dialog: the title names it and "save as" is enabled.
        const std::string ejemplo = p.programa.Carpetas.RutaProyectos + "/Ejemplo Demostrativo.trv";
        p.dialogos->archivos = {{false, ejemplo, "Ejemplo Demostrativo.trv"}};
        menu.Despachar(QStringLiteral("ID_Proyecto_Abrir"));
        QCOMPARE(menu.windowTitle(),
                 QStringLiteral("Trevalo 6.0  Proyecto: [Ejemplo Demostrativo.trv]"));
        QVERIFY(menu.Accion(QStringLiteral("ID_Proyecto_Salvarcomo"))->isEnabled());

        // The project window over the menu, left by " Retorno ". Once a window is up and
        // waits for the user, the pointer is the normal one: the project window, the editor,
        // the name of a new beam, the general data.
        int vigas = 0;
        QStringList conEspera;
        const auto anotarPuntero = [&conEspera](QWidget& w) {
            if (QApplication::overrideCursor())
                conEspera << QString::fromLatin1(w.metaObject()->className());
        };
        AlAbrirse<VigasProyecto>([&](VigasProyecto& v) {
            vigas = v.Filas();
            anotarPuntero(v);
            AlAbrirse<VigaDatos>([&](VigaDatos& e) {
                anotarPuntero(e);
                e.reject();
            });
            QTest::mouseClick(v.Boton(QStringLiteral("LSButton19")), Qt::LeftButton);
            AlAbrirse<NuevaViga>([&](NuevaViga& n) {
                anotarPuntero(n);
                n.reject();
            });
            QTest::mouseClick(v.Boton(QStringLiteral("LSButton3")), Qt::LeftButton);
            QTest::mouseClick(v.Boton(QStringLiteral("LSButton2")), Qt::LeftButton);
        });
        menu.Accion(QStringLiteral("ID_AnalizarVigas"))->trigger();
        QCOMPARE(vigas, 6);
        AlAbrirse<DatosG>([&](DatosG& d) {
            anotarPuntero(d);
            d.reject();
        });
        menu.Accion(QStringLiteral("ID_Proyecto_Modificar"))->trigger();
        QCOMPARE(conEspera, QStringList());
        QVERIFY(!QApplication::overrideCursor());

        bool sobre = false;
        AlAbrirse<Sobre>([&](Sobre& s) {
            sobre = true;
            s.reject();
        });
        menu.Accion(QStringLiteral("ID_Acerca"))->trigger();
        QVERIFY(sobre);

        // The exit asks nothing, with a project chosen.
        menu.Despachar(QStringLiteral("ID_Desconocida")); // an unknown key does nothing
        QVERIFY(menu.isVisible());
        menu.Accion(QStringLiteral("ID_Salida"))->trigger();
        QTRY_VERIFY(!VentanaAbierta<MenuP>());
        QVERIFY(p.dialogos->preguntas.empty());
    }

    // A message that comes in the middle of work waits for the user under the normal pointer;
    // the hourglass comes back when it goes.
    void UnMensajeDuranteElTrabajoMuestraElPunteroNormal() {
        DialogosQt dialogos;
        QApplication::setOverrideCursor(Qt::WaitCursor);
        Qt::CursorShape forma = Qt::BlankCursor;
        QTimer::singleShot(50, [&forma] {
            auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!caja) return;
            forma = QApplication::overrideCursor()->shape();
            caja->defaultButton()->click();
        });
        const int respuesta = dialogos.Mensaje(
            {"Texto", "Título", BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1});
        QCOMPARE(respuesta, RespuestaAceptar);
        QCOMPARE(forma, Qt::ArrowCursor);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QApplication::restoreOverrideCursor();
        QVERIFY(!QApplication::overrideCursor());
    }

    void ElTapizSeColocaSegunSusOpciones() {
        // A window of 1000 x 700 with a panel of 20 at the bottom.
        const QSize interior(1000, 700);
        ConfiguracionTapiz t;
        struct Caso {
            int vertical, horizontal, ajustar;
            QSize imagen;
            QRect esperado;
        };
        for (const Caso& c : {
                 // Natural size: centred vertically by a shift, at the left.
                 Caso{0, 0, 0, {400, 301}, {0, 199, 400, 301}},
                 Caso{1, 1, 0, {400, 300}, {300, 0, 400, 300}},
                 Caso{2, 2, 0, {400, 300}, {600, 400, 400, 300}},
                 // Larger than the window: cut by its edges, not scaled.
                 Caso{0, 1, 0, {1280, 800}, {-140, -50, 1280, 800}},
                 // Fitted: a smaller picture is centred above the panel and not enlarged.
                 Caso{0, 0, 1, {400, 300}, {300, 190, 400, 300}},
                 // Fitted: 1280 x 800 into 1000 x 680: r = max(800/680, 1.28) = 1.28.
                 Caso{0, 0, 1, {1280, 800}, {0, 27, 1000, 625}},
             }) {
            t.TapizVertical = static_cast<std::int16_t>(c.vertical);
            t.TapizHorizontal = static_cast<std::int16_t>(c.horizontal);
            t.TapizAjustar = static_cast<std::int16_t>(c.ajustar);
            QCOMPARE(GeometriaTapiz(interior, 20, c.imagen, t), c.esperado);
        }
    }
};

TREVALO_PRUEBA_VENTANAS(MenuPTest)
#include "MenuPTest.moc"
