#include "shell/Ayuda.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QPointer>

#include "shell/TextoQt.h"
#include "shell/VentanaAyuda.h"

namespace trevalo {

namespace {

QPointer<VentanaAyuda> ayudaAbierta;

// The class name of a window without its namespace.
QString Clase(const QWidget& ventana) {
    const QString nombre = QString::fromLatin1(ventana.metaObject()->className());
    return nombre.mid(nombre.lastIndexOf(QLatin1Char(':')) + 1);
}

// Watches the whole application for F1.
class TeclaAyuda : public QObject {
  public:
    TeclaAyuda(Programa& programa, QObject* dueno) : QObject(dueno), programa_(programa) {}

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::KeyPress ||
            static_cast<QKeyEvent*>(evento)->key() != Qt::Key_F1 || !objeto->isWidgetType())
            return false;
        QWidget* ventana = static_cast<QWidget*>(objeto)->window();
        if (qobject_cast<VentanaAyuda*>(ventana)) return false;
        while (ventana && TemaDeVentana(*ventana).isEmpty())
            ventana = ventana->parentWidget() ? ventana->parentWidget()->window() : nullptr;
        if (!ventana) return false;
        AbrirAyuda(programa_, TemaDeVentana(*ventana), ventana);
        return true;
    }

  private:
    Programa& programa_;
};

} // namespace

const std::vector<std::pair<QString, QString>>& TemasVentanas() {
    static const std::vector<std::pair<QString, QString>> temas = [] {
        std::vector<std::pair<QString, QString>> t;
        const auto tema = [&t](const char* clase, const char* archivo) {
            t.emplace_back(QString::fromLatin1(clase), QString::fromLatin1(archivo));
        };
        tema("Splash", "Introduccion.html");
        tema("MenuP", "MenuP.html");
        tema("DatosG", "DatosG.html");
        tema("Calendario", "Calendario.html");
        tema("VigasProyecto", "VigasProyecto.html");
        tema("NuevaViga", "NuevaViga.html");
        tema("VigaSalvarComo", "VigaSalvarComo.html");
        tema("Renombrar", "Renombrar.html");
        tema("VigaDatos", "VigaDatos.html");
        for (const char* carga : {"Carga01", "Carga02", "Carga03", "Carga04", "Carga05", "Carga06",
                                  "Carga07", "Carga08"})
            t.emplace_back(QString::fromLatin1(carga),
                           QString::fromLatin1(carga) + QStringLiteral(".html"));
        tema("VigasMetalicas", "VigasMetalicas.html");
        tema("OpcionPerfil", "OpcionPerfil.html");
        for (const char* tabla :
             {"TablaDobleTee", "TablaSeccionU", "TablaTubularCuadrada", "TablaTubularRectangular"})
            tema(tabla, "TablasPerfiles.html");
        tema("DobleTee", "DobleTee.html");
        tema("ImpreVigas", "ImpreVigas.html");
        tema("ImpreReport", "ImpreReport.html");
        tema("VerReportes", "VerReportes.html");
        tema("ExportarCAD", "ExportarCAD.html");
        tema("ConfigurarPrograma", "ConfigurarPrograma.html");
        tema("Compactar1", "Compactar1.html");
        tema("Sobre", "Sobre.html");
        return t;
    }();
    return temas;
}

QString TemaDeVentana(const QWidget& ventana) {
    // One class may serve several windows, told apart by their object names.
    for (const QString& nombre : {Clase(ventana), ventana.objectName()})
        for (const auto& [ventanaTema, tema] : TemasVentanas())
            if (ventanaTema == nombre) return tema;
    return {};
}

VentanaAyuda* AbrirAyuda(Programa& programa, const QString& tema, QWidget* frente) {
    const QString archivo = Qs(programa.ArchivoAyuda);
    if (!QFile::exists(archivo)) {
        programa.Dialogo().Mensaje(
            {"No se encuentra el archivo de ayuda: " + programa.ArchivoAyuda + "      ",
             "Temas de Ayuda", BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1});
        return nullptr;
    }
    // The window open over the same window only changes its topic; over another one (a
    // modal dialog in front) it is made again, as that window's child, so it takes input.
    if (ayudaAbierta && ayudaAbierta->parentWidget() != frente) {
        ayudaAbierta->close();
        ayudaAbierta = nullptr;
    }
    if (!ayudaAbierta)
        ayudaAbierta = new VentanaAyuda(
            archivo, Qs(programa.Carpetas.RutaBase + "/Trabajo/AyudaTrevalo.qhc"), frente);
    ayudaAbierta->MostrarTema(tema);
    ayudaAbierta->show();
    ayudaAbierta->raise();
    return ayudaAbierta;
}

void InstalarTeclaAyuda(Programa& programa, QObject& dueno) {
    qApp->installEventFilter(new TeclaAyuda(programa, &dueno));
}

} // namespace trevalo
