#pragma once
// "Renombrar Vigas": asks for a new name of the beam where RsGeneralViga stands (the caller
// moved it to the selected row). On yes NombreRenombrar takes the name and the window closes
// with Accepted; the caller renames. A name taken, even in another case, or a
// question answered no leaves it open.

#include <QDialog>
#include <memory>

#include "shell/Programa.h"

namespace Ui {
class Renombrar;
}

namespace trevalo {

class Renombrar : public QDialog {
    Q_OBJECT

  public:
    explicit Renombrar(Programa& programa, QWidget* parent = nullptr);
    ~Renombrar() override;

  private:
    void Aceptar();

    Programa& programa_;
    std::unique_ptr<Ui::Renombrar> ui_;
    std::string actual_; // the beam's name now
};

} // namespace trevalo
