#pragma once
// What the eight load dialogs of the beam editor share: the spans they apply to, a frame for
// their fields, the buttons " Aceptar" and " Cancelar", and whether the load was accepted.
// The model is written only on acceptance, to every marked span at once; Cancel, Esc and the
// close button leave it as it was. Return never closes a load dialog: in a field it ends the
// entry of that field, on a button it presses the button.

#include <QDialog>
#include <cstdint>
#include <functional>

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
    bool CargaAceptada() const { return result() == QDialog::Accepted; }

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

    // Writes the dialog's values to the marked spans through the beam's edits; a refusal
    // leaves the model as it was and the dialog open, with the refusal's message.
    virtual Veredicto Aplicar() = 0;
    const Arreglo<std::int16_t>& TramoCarga() const { return tramoCarga_; }

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
};

} // namespace trevalo
