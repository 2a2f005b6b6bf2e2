#pragma once
// What the eight load dialogs of the beam editor share: the spans they apply to, a frame for
// their fields, the buttons " Aceptar" and " Cancelar", and the load entered. The dialog
// writes nothing: on acceptance the editor writes Entrada() to every marked span at once;
// Cancel, Esc and the close button leave nothing to write. Return never closes a load dialog: in a
// field it ends the entry of that field, on a button it presses the button.

#include <QDialog>
#include <cstdint>
#include <functional>
#include <optional>

#include "editing/EdicionViga.h"
#include "shell/Programa.h"

class QFormLayout;
class QGroupBox;
class QLineEdit;
class QPushButton;

namespace trevalo {

class DialogoCarga : public QDialog {
    Q_OBJECT

  public:
    // The load as entered, once the dialog was accepted.
    const EntradaCarga& Entrada() const { return *entrada_; }

  protected:
    // tramoCarga: slots 1..NT, 1 for each span the load is written to.
    DialogoCarga(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, const char* titulo,
                 const char* marco, QWidget* parent);

    // The fields of the frame, one row each: caption and input.
    QFormLayout& Campos() { return *campos_; }
    QGroupBox& Marco() { return *marco_; }

    bool Marcado(long tramo) const { return tramoCarga_(tramo) == 1; }
    long Tramos() const { return tramoCarga_.Ubound(); }
    // The last marked span, whose values the dialog shows; 0 with none.
    long UltimoMarcado() const;

    // Calls `fin(true)` on Return in `campo` and `fin(false)` when the user leaves it for
    // another control of the dialog (not when a message box takes the focus).
    void AlTerminar(QLineEdit* campo, std::function<void(bool retorno)> fin);

    // Ends the loading of the form: the buttons come after `ultimoCampo` in the Tab order,
    // and Activo() turns true.
    void FinCarga(QWidget* ultimoCampo);
    bool Activo() const { return activo_; }

    // The dialog's values as they are to be written. " Aceptar" closes the dialog only when
    // the beam can take them; a refusal's message shows and the dialog stays open.
    virtual EntradaCarga Tomar() = 0;

    void keyPressEvent(QKeyEvent* evento) override;

    Programa& programa_;

  private:
    void Aceptar();

    Arreglo<std::int16_t> tramoCarga_;
    QGroupBox* marco_;
    QFormLayout* campos_;
    QPushButton* aceptar_;
    QPushButton* cancelar_;
    bool activo_ = false;
    std::optional<EntradaCarga> entrada_;
};

} // namespace trevalo
