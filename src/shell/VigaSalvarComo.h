#pragma once
// "Salvar Como...": creates a beam under a new name from the beam selected in the project
// window. On " Aceptar " the questions of the lifecycle are asked; on yes the selected beam
// (now in the model) is copied under the name and the window closes with Accepted. A name
// refused, a question answered no or a copy the file refuses leaves it open.

#include <QDialog>
#include <memory>

#include "shell/Programa.h"

namespace Ui {
class VigaSalvarComo;
}

namespace trevalo {

class VigaSalvarComo : public QDialog {
    Q_OBJECT

  public:
    // `filaActiva`: the row selected in the project window's list, from 1.
    VigaSalvarComo(Programa& programa, int filaActiva, QWidget* parent = nullptr);
    ~VigaSalvarComo() override;

  private:
    void Aceptar();
    std::string LeerSeleccionada();

    Programa& programa_;
    std::unique_ptr<Ui::VigaSalvarComo> ui_;
    int filaActiva_;
};

} // namespace trevalo
