#pragma once
// The application object of the program. An exception that leaves a window's handler and
// reaches the event loop would end the program, with every open window and unsaved edit;
// here it becomes the program's error, shown as a fault message, and the program goes on.

#include <QApplication>

#include "store/Dialogos.h"

namespace trevalo {

class AplicacionTrevalo : public QApplication {
  public:
    AplicacionTrevalo(int& argc, char** argv);

    // The dialogs of the program that owns the windows; with none, a fault is written to
    // the error stream only. The caller keeps them alive while they are set.
    void FijarDialogos(Dialogos* dialogos) { dialogos_ = dialogos; }

    // The application of the running program, if it is one of this kind.
    static AplicacionTrevalo* Actual();

    bool notify(QObject* receptor, QEvent* evento) override;

  private:
    void MostrarFalla(const ErrorTrevalo& error);

    Dialogos* dialogos_ = nullptr;
    bool mostrando_ = false; // a fault while its message is up is not shown again
};

} // namespace trevalo
