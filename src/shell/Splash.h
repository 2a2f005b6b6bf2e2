#pragma once
// The start-up window: while it shows, the program's folders are made and its start-up files
// copied (DatosUsuario); 2.8 seconds after it comes on screen the main window replaces it,
// with the project given on the command line open.

#include <QTimer>
#include <QWidget>

#include "shell/Programa.h"

namespace trevalo {

class MenuP;

class Splash : public QWidget {
    Q_OBJECT

  public:
    // `proyecto`: the full path of a project file to open once the main window is up.
    Splash(Programa& programa, const EntornoInicio& entorno, const QString& proyecto = {});

    // The start-up pause: 2.8 seconds from the first showing.
    QTimer& Timer1() { return timer1_; }

  protected:
    void showEvent(QShowEvent* evento) override;

  private:
    void AbrirMenu();

    Programa& programa_;
    QString proyecto_;
    QTimer timer1_;
    MenuP* menu_ = nullptr;
};

// What the start-up needs to know of this machine: the executable's folder, the home and the
// documents folders, the number format.
EntornoInicio EntornoDelSistema();

// The command line of the program: nothing, or the one project file to open (what a file
// manager passes on a double click). Anything else is refused with the line to write on the
// error stream.
struct LineaOrdenes {
    bool Valida = true;
    QString Proyecto; // full path; empty: none given
    QString Error;
};
LineaOrdenes LeerLineaOrdenes(const QStringList& argumentos);

} // namespace trevalo
