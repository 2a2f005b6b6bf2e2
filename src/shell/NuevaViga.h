#pragma once
// Asks for the name of a new beam and creates it with the defaults of a new beam, closing with
// Accepted once the file holds it. Its scroll
// bar walks the project's beams in the project window, so the user can look at them while
// choosing the name.

#include <QDialog>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "shell/Programa.h"

namespace Ui {
class NuevaViga;
}

namespace trevalo {

class NuevaViga : public QDialog {
    Q_OBJECT

  public:
    // What the project window hands over: its active row (from 1; 0 with no beams), the names
    // of its list in their rows, and how it shows the beam of a row and makes it the active
    // row (RsGeneralViga already moved there).
    NuevaViga(Programa& programa, int filaActiva, std::vector<std::string> nombres,
              std::function<void(int fila)> mostrarFila, QWidget* parent = nullptr);
    ~NuevaViga() override;

  private:
    void Aceptar();
    void Recorrer(int fila);

    Programa& programa_;
    std::unique_ptr<Ui::NuevaViga> ui_;
    std::vector<std::string> nombres_;
    std::function<void(int)> mostrarFila_;
    bool activo_ = false;
};

} // namespace trevalo
