#include "shell/ImpreReport.h"

#include <QDesktopServices>
#include <QRadioButton>
#include <QUrl>
#include <utility>

#include "shell/CristalReport.h"
#include "shell/TextoQt.h"
#include "shell/VerReportes.h"
#include "ui_ImpreReport.h"

namespace trevalo {

ImpreReport::ImpreReport(Programa& programa, QWidget* parent)
    : QDialog(parent), programa_(programa), ui_(std::make_unique<Ui::ImpreReport>()) {
    ui_->setupUi(this);
    for (const auto& s : SalidasInforme) {
        auto* opcion = new QRadioButton(QString::fromUtf8(s.Leyenda), ui_->Frame1);
        opcion->setObjectName(QString::fromUtf8(s.Opcion));
        ui_->opciones->addWidget(opcion);
        opciones_.push_back(opcion);
    }
    opciones_.front()->setChecked(true);
    connect(ui_->Command1, &QPushButton::clicked, this, &ImpreReport::Aceptar);
    connect(ui_->Directorio, &QPushButton::clicked, this, [this] { ExplorarReportes(programa_); });
}

ImpreReport::~ImpreReport() = default;

void ImpreReport::Aceptar() {
    std::size_t tipo = 0;
    for (std::size_t i = 0; i < opciones_.size(); ++i)
        if (opciones_[i]->isChecked()) tipo = i;
    const SalidaInforme& salida = SalidasInforme.at(tipo);
    ArchivoElegido archivo;
    if (salida.Archivo) {
        archivo = programa_.Dialogo().Archivo(DialogoSalida(programa_, salida));
        if (archivo.Cancelado) return;
    }
    hide();
    try {
        Salida(salida, archivo);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    accept();
}

void ImpreReport::Salida(const SalidaInforme& salida, const ArchivoElegido& archivo) {
    auto contenido = AbrirReporte(programa_);
    if (salida.TipoSalida == 0) {
        VerReportes visor(programa_, std::move(contenido), parentWidget());
        visor.exec();
        return;
    }
    if (!salida.Archivo) return AsistenteExportacion(programa_, contenido);
    if (!EscribirReporte(programa_, contenido, archivo.FileName, *salida.Archivo)) return;
    if (programa_.Dialogo().Mensaje({PreguntaAbrirArchivo(archivo.FileTitle),
                                     "Abrir el Archivo Exportado", BotonesMensaje::SiNo,
                                     IconoMensaje::Pregunta, 1}) == RespuestaSi)
        QDesktopServices::openUrl(QUrl::fromLocalFile(Qs(archivo.FileName)));
}

} // namespace trevalo
