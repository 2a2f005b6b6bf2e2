#pragma once
// What every window journey needs: a program whose data folder is a fresh temporary folder
// (made by the start-up as the program makes it, so the sample project is there), dialogs
// answered from a script, and a way to act on a modal window once it is on screen.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <type_traits>

#include "comun/Carpeta.h"
#include "comun/DialogosGuion.h"
#include "shell/AplicacionTrevalo.h"
#include "shell/Programa.h"
#include "shell/TextoQt.h"
#include "shell/VigasProyecto.h"

// The main of a window test: that of Qt Test with the program's own application object, so
// that a fault reaching the event loop is shown to the scripted dialogs as the program
// shows it.
#define TREVALO_PRUEBA_VENTANAS(Clase)                                                             \
    QTEST_MAIN_WRAPPER(Clase, QTEST_QAPP_SETUP(::trevalo::AplicacionTrevalo)                       \
                                  QTEST_DISABLE_KEYPAD_NAVIGATION)

namespace trevalo::prueba {

class ProgramaPrueba {
  public:
    ProgramaPrueba() : programa(Nuevo(dialogos)) {
        entorno.RutaAplicacion = TREVALO_RUTA_PROGRAMA;
        entorno.CarpetaPersonal = carpeta.Ruta();
        entorno.CarpetaDocumentos = carpeta / "Documentos";
        entorno.Local = std::locale::classic();
        DatosUsuario(entorno, programa.Carpetas);
        // The program's settings (the last projects opened) in the test's own folder.
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Qs(carpeta / "ajustes"));
        if (auto* aplicacion = AplicacionTrevalo::Actual()) aplicacion->FijarDialogos(dialogos);
    }
    ~ProgramaPrueba() {
        if (auto* aplicacion = AplicacionTrevalo::Actual()) aplicacion->FijarDialogos(nullptr);
    }
    ProgramaPrueba(const ProgramaPrueba&) = delete;
    ProgramaPrueba& operator=(const ProgramaPrueba&) = delete;

    CarpetaTemporal carpeta;
    EntornoInicio entorno;             // the machine as the start-up sees it
    DialogosGuion* dialogos = nullptr; // owned by the program
    Programa programa;

  private:
    static Programa Nuevo(DialogosGuion*& dialogos) {
        auto d = std::make_unique<DialogosGuion>();
        dialogos = d.get();
        return Programa(std::move(d));
    }
};

// Runs `accion` on the first modal window of type T that comes on screen (within five
// seconds), from the event loop of whatever opened it. Returns at once; the action runs
// while the caller is blocked in exec().
template <typename T> void AlAbrirse(std::function<void(T&)> accion) {
    auto* reloj = new QElapsedTimer;
    reloj->start();
    auto* sondeo = new QTimer;
    sondeo->setInterval(10);
    QObject::connect(sondeo, &QTimer::timeout, [sondeo, reloj, accion] {
        auto* ventana = qobject_cast<T*>(QApplication::activeModalWidget());
        if (!ventana && reloj->elapsed() < 5000) return;
        sondeo->stop();
        sondeo->deleteLater();
        delete reloj;
        if (!ventana) {
            QTest::qFail("no se abrió la ventana esperada", __FILE__, __LINE__);
            return;
        }
        accion(*ventana);
    });
    sondeo->start();
}

// As AlAbrirse, for a window that the code under test opens: a window the action left open (a
// check failed half way) fails the test and is closed, so that a failing journey ends.
template <typename T> void EnVentana(std::type_identity_t<std::function<void(T&)>> accion) {
    AlAbrirse<T>([accion](T& v) {
        // Focus moves, and the ends of entries with it, only in the active window.
        if (!QTest::qWaitForWindowActive(&v))
            QTest::qFail("la ventana no se activó", __FILE__, __LINE__);
        accion(v);
        if (!v.isVisible()) return;
        QTest::qFail("la ventana quedó abierta", __FILE__, __LINE__);
        v.done(QDialog::Rejected);
    });
}

// Shows the modal window, runs `accion` on it once it is on screen and returns what exec()
// gave. A window the action left open (a check failed half way) fails the test and is
// closed, so that a failing journey ends instead of waiting.
template <typename T>
int Ejecutar(T& ventana, std::type_identity_t<std::function<void(T&)>> accion) {
    EnVentana<T>(accion);
    return ventana.exec();
}

// Cells by the forms' numbering: the value a cell holds (0 for an empty or text cell) and
// whether a check cell is ticked.
inline double ValorCelda(const QAbstractItemView& grid, int fila, int columna) {
    return grid.model()->index(fila - 1, columna - 1).data(Qt::EditRole).toDouble();
}
inline bool CeldaMarcada(const QAbstractItemView& grid, int fila, int columna) {
    return grid.model()->index(fila - 1, columna - 1).data(Qt::CheckStateRole).toInt() ==
           Qt::Checked;
}

// Types `texto` into `w` key by key, as keyClicks does, letters beyond ASCII (ñ, á) included.
inline void Teclear(QWidget* w, const QString& texto) {
    for (const QChar c : texto)
        QTest::sendKeyEvent(QTest::Click, w, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

// The child of `ventana` whose accessible name or object name is `nombre`.
template <typename T> T* Hijo(QWidget& ventana, const QString& nombre) {
    for (T* w : ventana.findChildren<T*>())
        if (w->objectName() == nombre || w->accessibleName() == nombre) return w;
    return nullptr;
}

// The child of `ventana` named `nombre`, which the journey cannot go on without.
template <typename T = QLineEdit> T* Control(QWidget& ventana, const char* nombre) {
    T* w = Hijo<T>(ventana, QString::fromUtf8(nombre));
    if (!w) qFatal("falta el control %s", nombre);
    return w;
}

// Replaces the text of a field as a person does: into the field, all selected, deleted, typed.
inline void Escribir(QWidget& ventana, const char* campo, const QString& texto) {
    QLineEdit* w = Control(ventana, campo);
    w->setFocus();
    w->selectAll();
    QTest::keyClick(w, Qt::Key_Backspace);
    Teclear(w, texto);
}

inline void Pulsar(QWidget& ventana, const char* boton) {
    QTest::mouseClick(Control<QAbstractButton>(ventana, boton), Qt::LeftButton);
}

// Replaces the text of a dialog's name box (Text1) and presses the accept button.
inline void Proponer(QWidget& ventana, const QString& nombre, const char* aceptar) {
    QLineEdit* texto = Control(ventana, "Text1");
    texto->clear();
    Teclear(texto, nombre);
    Pulsar(ventana, aceptar);
}

// The window of type T on screen, if any.
template <typename T> T* VentanaAbierta() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* v = qobject_cast<T*>(w); v && v->isVisible()) return v;
    return nullptr;
}

// The sample project the start-up copies into the data folder.
inline const std::string Ejemplo = "Ejemplo Demostrativo.trv";

// The project window on a project of the data folder, on screen.
inline std::unique_ptr<VigasProyecto> VentanaProyecto(ProgramaPrueba& p,
                                                      const std::string& proyecto) {
    p.programa.Estado.NombreProyecto = proyecto;
    auto v = std::make_unique<VigasProyecto>(p.programa);
    v->show();
    if (!QTest::qWaitForWindowExposed(v.get()))
        QTest::qFail("ventana sin mostrar", __FILE__, __LINE__);
    return v;
}

} // namespace trevalo::prueba
