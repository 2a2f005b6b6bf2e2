#include "shell/NuevaViga.h"

#include "shell/TextoQt.h"
#include "store/BaseDatos.h"
#include "store/Nombres.h"
#include "ui_NuevaViga.h"

namespace trevalo {

namespace {

// The name a new beam takes from the text typed: trimmed, in upper case, and each double
// quote as two single quotes (2"X4 -> 2''X4), as the names of the project are kept.
std::string NombreNuevaViga(const std::string& texto) {
    std::string nombre = Mayusculas(Recortado(texto));
    for (auto i = nombre.find('"'); i != std::string::npos; i = nombre.find('"', i + 2))
        nombre.replace(i, 1, "''");
    return nombre;
}

} // namespace

NuevaViga::NuevaViga(Programa& programa, int filaActiva, std::vector<std::string> nombres,
                     std::function<void(int fila)> mostrarFila, QWidget* parent)
    : QDialog(parent), programa_(programa), ui_(std::make_unique<Ui::NuevaViga>()),
      nombres_(std::move(nombres)), mostrarFila_(std::move(mostrarFila)) {
    ui_->setupUi(this);
    const auto& lista = programa_.Estado.RsGeneralViga;
    const int vigas = lista ? static_cast<int>(lista->RecordCount()) : 0;
    ui_->VScroll1->setRange(vigas > 0 ? 1 : 0, vigas);
    if (vigas > 0) ui_->VScroll1->setValue(filaActiva);
    ui_->VScroll1->setEnabled(vigas > 1);
    connect(ui_->VScroll1, &QScrollBar::valueChanged, this, &NuevaViga::Recorrer);
    connect(ui_->Button1, &QPushButton::clicked, this, &NuevaViga::Aceptar);
    ui_->Text1->setFocus();
    activo_ = true;
}

NuevaViga::~NuevaViga() = default;

void NuevaViga::Recorrer(int fila) {
    if (!activo_) return;
    ListaVigasAbierta(programa_.Estado).AbsolutePosition(fila - 1);
    mostrarFila_(fila);
}

void NuevaViga::Aceptar() {
    const std::string texto = Std(ui_->Text1->text());
    if (Recortado(texto).empty()) {
        ui_->Text1->setFocus();
        return;
    }
    const std::string nombre = NombreNuevaViga(texto);
    for (const std::string& fila : nombres_) {
        if (Mayusculas(Recortado(fila)) != nombre) continue;
        programa_.Dialogo().Mensaje(
            {"Nombre de la Viga: " + nombre +
                 "\n\nExiste una Viga con el mismo Nombre en el Proyecto!      ",
             "Creando una Nueva Viga", BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1});
        ui_->Text1->setFocus();
        return;
    }
    VigaActual& viga = programa_.Viga;
    viga.NombreVigaActual = nombre;
    NuevaVigaDefecto(viga);
    viga.VigaNueva = true;
    try {
        SalvarViga(programa_.Estado, viga);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
        return;
    }
    accept();
}

} // namespace trevalo
