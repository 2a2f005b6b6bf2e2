#pragma once
// The general data of the project: the title block and the materials of the one row of
// GeneralProyecto, held in the program's ProyectoActual. A new project, or one whose row is
// missing, gets a row of defaults as soon as the window opens, saved or not. " Salvar"
// writes the row; every way out (" Retorno", the close button, Esc) asks to save a change.

#include <QDialog>
#include <memory>

#include "shell/Programa.h"

namespace Ui {
class DatosG;
}

namespace trevalo {

class DatosG : public QDialog {
    Q_OBJECT

  public:
    explicit DatosG(Programa& programa, QWidget* parent = nullptr);
    ~DatosG() override;

    // The way out of every path: with a change, the question to save it.
    void reject() override;

  private:
    void Cargar();
    void MostrarProyecto();
    void ElegirFecha();
    // Writes the row; false, with the error shown, when the store refused it.
    bool Salvar();

    Programa& programa_;
    std::unique_ptr<Ui::DatosG> ui_;
    bool modificado_ = false;
};

} // namespace trevalo
