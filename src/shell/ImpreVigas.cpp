#include "shell/ImpreVigas.h"

#include "shell/TextoQt.h"
#include "ui_ImpreVigas.h"

namespace trevalo {

ImpreVigas::ImpreVigas(Programa& programa, const std::vector<std::string>& nombres, QWidget* parent)
    : QDialog(parent), programa_(programa), ui_(std::make_unique<Ui::ImpreVigas>()) {
    ui_->setupUi(this);
    ui_->Combo1->addItem(QStringLiteral("TODAS LAS VIGAS"));
    for (const auto& nombre : nombres) ui_->Combo1->addItem(Qs(nombre));
    ui_->Combo1->setCurrentIndex(0);
    const auto& opciones = programa_.Impresion;
    ui_->Check1->setChecked(opciones.ConDiagramas == 1);
    ui_->Check2->setChecked(opciones.ConReacciones == 1);
    ui_->Check2->setEnabled(ui_->Check1->isChecked());
    connect(ui_->Check1, &QCheckBox::toggled, ui_->Check2, &QWidget::setEnabled);
    connect(ui_->Command1, &QPushButton::clicked, this, &ImpreVigas::Aceptar);
}

ImpreVigas::~ImpreVigas() = default;

void ImpreVigas::Aceptar() {
    auto& opciones = programa_.Impresion;
    opciones.VigaReporte = static_cast<std::int16_t>(ui_->Combo1->currentIndex());
    opciones.ConDiagramas = ui_->Check1->isChecked() ? 1 : 0;
    opciones.ConReacciones = ui_->Check2->isChecked() ? 1 : 0;
    accept();
}

} // namespace trevalo
