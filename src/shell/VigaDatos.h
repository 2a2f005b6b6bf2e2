#pragma once
// The beam editor. For now it shows the beam as the editor draws it (its elevation, zoom and
// pan on the canvas) under the editor's title, and " Retorno "; the pages of grids, the load
// dialogs and the save come with the full editor.

#include <QDialog>

#include "shell/Programa.h"

namespace trevalo {

class PantallaViga;

class VigaDatos : public QDialog {
    Q_OBJECT

  public:
    VigaDatos(Programa& programa, QWidget* parent = nullptr);

    PantallaViga& Lienzo() { return *pantalla_; }

  private:
    Programa& programa_;
    PantallaViga* pantalla_;
};

} // namespace trevalo
