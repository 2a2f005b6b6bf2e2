#pragma once
// Asks which beams a report holds ("TODAS LAS VIGAS" or one of the list) and which pictures
// besides the design sheet: the force diagrams, and with them the reactions. Accepting keeps
// the choice in the program's report settings; cancelling leaves those of the last
// acceptance in force.

#include <QDialog>
#include <memory>
#include <string>
#include <vector>

#include "shell/Programa.h"

namespace Ui {
class ImpreVigas;
}

namespace trevalo {

class ImpreVigas : public QDialog {
    Q_OBJECT

  public:
    // `nombres`: the beams of the project window's list, in its order.
    ImpreVigas(Programa& programa, const std::vector<std::string>& nombres,
               QWidget* parent = nullptr);
    ~ImpreVigas() override;

  private:
    void Aceptar();

    Programa& programa_;
    std::unique_ptr<Ui::ImpreVigas> ui_;
};

} // namespace trevalo
