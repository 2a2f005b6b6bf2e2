#include "shell/VigaSalvarComo.h"

#include "shell/TextoQt.h"
#include "store/BaseDatos.h"
#include "store/CicloProyecto.h"
#include "ui_VigaSalvarComo.h"

namespace trevalo {

VigaSalvarComo::VigaSalvarComo(Programa& programa, int filaActiva, QWidget* parent)
    : QDialog(parent), programa_(programa), ui_(std::make_unique<Ui::VigaSalvarComo>()),
      filaActiva_(filaActiva) {
    ui_->setupUi(this);
    connect(ui_->Command1, &QPushButton::clicked, this, &VigaSalvarComo::Aceptar);
    ui_->Text1->setFocus();
}

VigaSalvarComo::~VigaSalvarComo() = default;

// The selected beam into the model. A beam that does not read shows its error and leaves the
// default beam of its name, which is then what is copied.
std::string VigaSalvarComo::LeerSeleccionada() {
    EstadoProyecto& estado = programa_.Estado;
    Recordset& lista = ListaVigasAbierta(estado);
    lista.AbsolutePosition(filaActiva_ - 1);
    programa_.Viga.NombreVigaActual = lista.Campo("NombreViga").Texto();
    try {
        LeerViga(estado, programa_.Viga);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    return programa_.Viga.NombreVigaActual;
}

void VigaSalvarComo::Aceptar() {
    EstadoProyecto& estado = programa_.Estado;
    try {
        if (AceptarSalvarComoViga(
                Std(ui_->Text1->text()), BuscarEnProyecto(estado),
                [this] { return LeerSeleccionada(); }, estado, programa_.Dialogo())) {
            CopiarViga(estado, programa_.Viga);
            accept();
            return;
        }
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    ui_->Text1->setFocus();
}

} // namespace trevalo
