#pragma once
// The start-up window: while it shows, the program's folders are made and its start-up files
// copied (DatosUsuario); 2.8 seconds after it comes on screen the main window replaces it.

#include <QTimer>
#include <QWidget>

#include "shell/Programa.h"

namespace trevalo {

class MenuP;

class Splash : public QWidget {
    Q_OBJECT

  public:
    Splash(Programa& programa, const EntornoInicio& entorno);

    // The start-up pause: 2.8 seconds from the first showing.
    QTimer& Timer1() { return timer1_; }

  protected:
    void showEvent(QShowEvent* evento) override;

  private:
    void AbrirMenu();

    Programa& programa_;
    QTimer timer1_;
    MenuP* menu_ = nullptr;
};

// What the start-up needs to know of this machine: the executable's folder, the home and the
// documents folders, the number format.
EntornoInicio EntornoDelSistema();

} // namespace trevalo
