// The desktop program: builds the application and shows the start-up window, with the project
// file given on the command line, if any; everything else lives in the windows' library.

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "shell/AplicacionTrevalo.h"
#include "shell/DialogosQt.h"
#include "shell/Splash.h"

namespace {

// A display to open windows on: X11, Wayland, or a platform named by hand.
bool HayPantalla() {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* valor = std::getenv(variable);
        if (valor && *valor) return true;
    }
    return false;
}

} // namespace

int main(int argc, char** argv) {
    QStringList argumentos;
    for (int i = 1; i < argc; ++i) argumentos << QString::fromLocal8Bit(argv[i]);
    const trevalo::LineaOrdenes linea = trevalo::LeerLineaOrdenes(argumentos);
    if (!linea.Valida) {
        std::cerr << linea.Error.toStdString();
        return 2;
    }
    if (!HayPantalla()) {
        std::cerr << "Trevalo necesita una pantalla gráfica y no encontró ninguna (DISPLAY o "
                     "WAYLAND_DISPLAY no están definidas).\n";
        return 1;
    }
    trevalo::AplicacionTrevalo aplicacion(argc, argv);
    // The toolkit takes the user's locale for the C library too; numbers are read and written
    // by the program's own rules with its separators, never by the C library's locale.
    std::setlocale(LC_NUMERIC, "C");
    trevalo::TraducirAlEspanol();
    trevalo::Programa programa(std::make_unique<trevalo::DialogosQt>());
    aplicacion.FijarDialogos(&programa.Dialogo());
    auto* splash = new trevalo::Splash(programa, trevalo::EntornoDelSistema(), linea.Proyecto);
    splash->show();
    const int codigo = aplicacion.exec();
    aplicacion.FijarDialogos(nullptr);
    return codigo;
}
