#pragma once
// The about box: the program, its version and its folders, and the system's information
// (operating system, Qt, screens) on request.

#include <QDialog>
#include <memory>

#include "shell/Programa.h"

namespace Ui {
class Sobre;
}

namespace trevalo {

class Sobre : public QDialog {
    Q_OBJECT

  public:
    explicit Sobre(Programa& programa, QWidget* parent = nullptr);
    ~Sobre() override;

  private:
    void MostrarSistema();

    Programa& programa_;
    std::unique_ptr<Ui::Sobre> ui_;
};

} // namespace trevalo
