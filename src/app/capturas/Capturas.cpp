// trevalo-capturas CARPETA: opens every window of the program on the sample project, the way
// a person would reach it, and writes a PNG of each into CARPETA, so that they can be looked
// at. Run under a display (scripts/capturas uses Xvfb); the data folder is the user's.

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <clocale>
#include <functional>
#include <iostream>

#include "app/capturas/Capturas.h"
#include "shell/Calendario.h"
#include "shell/DatosG.h"
#include "shell/DialogosQt.h"
#include "shell/ListaVigas.h"
#include "shell/MenuP.h"
#include "shell/NuevaViga.h"
#include "shell/PantallaViga.h"
#include "shell/Renombrar.h"
#include "shell/Sobre.h"
#include "shell/Splash.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"
#include "shell/VigaDatos.h"
#include "shell/VigaSalvarComo.h"
#include "shell/VigasProyecto.h"
#include "store/BaseDatos.h"
#include "store/CicloProyecto.h"

namespace trevalo {

QString carpeta;

void Esperar(int ms) {
    QEventLoop espera;
    QTimer::singleShot(ms, &espera, &QEventLoop::quit);
    espera.exec();
}

namespace {

// A window's picture under a title bar with its title, as a desktop frames it; a tool tip or
// a window without title as it is.
QPixmap ConTitulo(QWidget& ventana) {
    const QPixmap contenido = ventana.grab();
    const QString titulo = ventana.windowTitle();
    if (!ventana.isWindow() || titulo.isEmpty() || ventana.windowType() == Qt::ToolTip)
        return contenido;
    const QSize tamano = contenido.deviceIndependentSize().toSize();
    const int barra = 26;
    QPixmap marco(QSize(tamano.width() + 2, tamano.height() + barra + 1) *
                  contenido.devicePixelRatio());
    marco.setDevicePixelRatio(contenido.devicePixelRatio());
    marco.fill(QColor(0x2b, 0x4a, 0x78));
    QPainter pintor(&marco);
    pintor.drawPixmap(1, barra, contenido);
    QFont letra = ventana.font();
    letra.setBold(true);
    pintor.setFont(letra);
    pintor.setPen(Qt::white);
    pintor.drawText(QRect(10, 0, tamano.width() - 20, barra), Qt::AlignVCenter | Qt::AlignLeft,
                    titulo);
    return marco;
}

} // namespace

void Guardar(QWidget& ventana, const QString& nombre) {
    Esperar(150);
    const QString ruta = carpeta + QLatin1Char('/') + nombre + QStringLiteral(".png");
    if (!ConTitulo(ventana).save(ruta)) std::cerr << "no se pudo escribir " << Std(ruta) << "\n";
    std::cout << Std(ruta) << "\n";
}

void Capturar(QDialog& dialogo, const QString& nombre) {
    dialogo.show();
    Guardar(dialogo, nombre);
    dialogo.hide();
}

void CapturarMensaje(Programa& programa, const Pregunta& pregunta, const QString& nombre) {
    QTimer::singleShot(300, [nombre] {
        if (QWidget* caja = QApplication::activeModalWidget()) {
            Guardar(*caja, nombre);
            caja->close();
        }
    });
    programa.Dialogo().Mensaje(pregunta);
}

namespace {

void Recorrido(Programa& programa) {
    auto* splash = new Splash(programa, EntornoDelSistema());
    splash->Timer1().setInterval(400);
    splash->show();
    Guardar(*splash, QStringLiteral("01_splash"));
    // The start-up window gives way to the main window, and is gone.
    MenuP* principal = nullptr;
    while (!principal) {
        Esperar(100);
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* m = qobject_cast<MenuP*>(w)) principal = m;
    }
    MenuP& menu = *principal;
    Esperar(500);
    Guardar(menu, QStringLiteral("02_menu"));

    programa.Estado.NombreProyecto = "Ejemplo Demostrativo.trv";
    menu.setWindowTitle(Qs(TituloMenu(programa.Estado.NombreProyecto)));
    VigasProyecto ventana(programa, &menu);
    ventana.show();
    Esperar(500);
    for (int pestana = 1; pestana <= 4; ++pestana) {
        ventana.ElegirPestana(pestana);
        Guardar(ventana, QStringLiteral("03_proyecto_pestana%1").arg(pestana));
    }
    ventana.BtoMove_Click(1);
    ventana.ElegirPestana(3);
    Guardar(ventana, QStringLiteral("04_proyecto_siguiente_diseno"));
    ventana.ElegirPestana(1);
    ventana.ToolTip().Mostrar(ventana.Boton(QStringLiteral("KorvelButton1")));
    Esperar(200);
    if (QWidget* globo = ventana.ToolTip().Globo()) Guardar(*globo, QStringLiteral("05_tooltip"));
    ventana.ToolTip().Ocultar();

    {
        VigaDatos editor(programa, &ventana.Lista(), &ventana);
        CapturasCargas(programa, editor);
    }
    CapturasEditor(programa, ventana);
    programa.Vista.ModoEditor = false;

    DatosG datos(programa, &menu);
    Capturar(datos, QStringLiteral("07_datos_generales"));
    Calendario calendario(QDate(2024, 3, 15), &datos);
    Capturar(calendario, QStringLiteral("07_calendario"));
    NuevaViga nueva(
        programa, ventana.FilaActiva(), ventana.NombresLista(), [](int) {}, &ventana);
    Capturar(nueva, QStringLiteral("08_nueva_viga"));
    VigaSalvarComo salvarComo(programa, ventana.FilaActiva(), &ventana);
    Capturar(salvarComo, QStringLiteral("09_salvar_como"));
    // As the project window does: the beam list on the selected beam first.
    programa.Estado.RsGeneralViga->AbsolutePosition(ventana.FilaActiva() - 1);
    Renombrar renombrar(programa, &ventana);
    Capturar(renombrar, QStringLiteral("10_renombrar"));
    Sobre sobre(programa, &menu);
    Capturar(sobre, QStringLiteral("11_sobre"));
    CapturarMensaje(
        programa,
        {"Viga: V-101\nLa Viga Seleccionada Será Eliminada!       \n¿Esta Usted Seguro?    ",
         "Eliminando Vigas del Proyecto", BotonesMensaje::SiNo, IconoMensaje::Advertencia, 2},
        QStringLiteral("12_mensaje"));
    CapturasPerfiles(programa, ventana);
    CapturasExportar(programa, ventana);
    CapturasInformes(programa, ventana);
    CapturasPrimeraViga(programa, ventana);
    ventana.hide();
    CapturasAjustes(programa, menu);
    menu.close();
}

} // namespace
} // namespace trevalo

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Uso: trevalo-capturas CARPETA\n";
        return 2;
    }
    QApplication aplicacion(argc, argv);
    // The toolkit takes the user's locale for the C library too; numbers are read and written
    // by the program's own rules with its separators, never by the C library's locale.
    std::setlocale(LC_NUMERIC, "C");
    trevalo::TraducirAlEspanol();
    trevalo::carpeta = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(trevalo::carpeta);
    trevalo::Programa programa(std::make_unique<trevalo::DialogosQt>());
    QTimer::singleShot(0, [&] {
        trevalo::Recorrido(programa);
        QApplication::quit();
    });
    return aplicacion.exec();
}
