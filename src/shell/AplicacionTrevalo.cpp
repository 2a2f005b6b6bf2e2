#include "shell/AplicacionTrevalo.h"

#include <iostream>

#include "model/Conversiones.h"

namespace trevalo {

AplicacionTrevalo::AplicacionTrevalo(int& argc, char** argv) : QApplication(argc, argv) {}

AplicacionTrevalo* AplicacionTrevalo::Actual() {
    return dynamic_cast<AplicacionTrevalo*>(QCoreApplication::instance());
}

bool AplicacionTrevalo::notify(QObject* receptor, QEvent* evento) {
    try {
        return QApplication::notify(receptor, evento);
    } catch (...) {
        MostrarFalla(ErrorDeExcepcion(std::current_exception()));
        return false;
    }
}

void AplicacionTrevalo::MostrarFalla(const ErrorTrevalo& error) {
    std::cerr << "Error " << error.Numero() << ": " << error.Descripcion() << "\n";
    if (!dialogos_ || mostrando_) return;
    mostrando_ = true;
    try {
        dialogos_->Mensaje(MensajeFalla(error));
    } catch (...) {
        // The box itself failed: the error stream has the fault already.
    }
    mostrando_ = false;
}

} // namespace trevalo
