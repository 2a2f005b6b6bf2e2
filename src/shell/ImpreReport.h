#pragma once
// Asks for the kind of output of the report filled in the report database: the viewer, a
// PDF, HTML, spreadsheet or RTF file (each through its Save dialog, then the question
// whether to open it), or the export assistant. A cancelled Save dialog leaves the window
// in place and writes nothing. Each report starts on the viewer.

#include <QDialog>
#include <memory>

#include "shell/Programa.h"

class QRadioButton;

namespace Ui {
class ImpreReport;
}

namespace trevalo {

struct SalidaInforme;

class ImpreReport : public QDialog {
    Q_OBJECT

  public:
    explicit ImpreReport(Programa& programa, QWidget* parent = nullptr);
    ~ImpreReport() override;

  private:
    void Aceptar();
    // The output of the kind chosen, once the file (if any) is known.
    void Salida(const SalidaInforme& salida, const ArchivoElegido& archivo);

    Programa& programa_;
    std::unique_ptr<Ui::ImpreReport> ui_;
    std::vector<QRadioButton*> opciones_; // by kind of output
};

} // namespace trevalo
