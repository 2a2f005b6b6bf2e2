#include "shell/Renombrar.h"

#include "shell/TextoQt.h"
#include "store/BaseDatos.h"
#include "store/CicloProyecto.h"
#include "ui_Renombrar.h"

namespace trevalo {

Renombrar::Renombrar(Programa& programa, QWidget* parent)
    : QDialog(parent), programa_(programa), ui_(std::make_unique<Ui::Renombrar>()) {
    ui_->setupUi(this);
    try {
        actual_ = ListaVigasAbierta(programa_.Estado).Campo("NombreViga").Texto();
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    ui_->LabelN->setText(Qs(actual_));
    connect(ui_->Command2, &QPushButton::clicked, this, &Renombrar::Aceptar);
    ui_->Text1->setFocus();
}

Renombrar::~Renombrar() = default;

void Renombrar::Aceptar() {
    EstadoProyecto& estado = programa_.Estado;
    try {
        if (AceptarRenombrarViga(Std(ui_->Text1->text()), actual_, BuscarEnProyecto(estado), estado,
                                 programa_.Dialogo())) {
            accept();
            return;
        }
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    ui_->Text1->setFocus();
}

} // namespace trevalo
