#include "shell/Sobre.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>

#include "shell/TextoQt.h"
#include "ui_Sobre.h"

namespace trevalo {

namespace {

// The operating system and its kernel, the Qt version, and each screen with its name, size
// in device-independent pixels and pixel ratio, a line each.
std::string InformacionSistema() {
    QStringList lineas{QStringLiteral("Sistema operativo: ") + QSysInfo::prettyProductName(),
                       QStringLiteral("Núcleo: ") + QSysInfo::kernelType() + QLatin1Char(' ') +
                           QSysInfo::kernelVersion(),
                       QStringLiteral("Qt: ") + QString::fromLatin1(qVersion())};
    for (const QScreen* pantalla : QGuiApplication::screens()) {
        const QSize tamano = pantalla->size();
        lineas << QStringLiteral("Pantalla %1: %2 x %3, escala %4")
                      .arg(pantalla->name())
                      .arg(tamano.width())
                      .arg(tamano.height())
                      .arg(pantalla->devicePixelRatio());
    }
    return Std(lineas.join(QLatin1Char('\n')));
}

} // namespace

Sobre::Sobre(Programa& programa, QWidget* parent)
    : QDialog(parent), programa_(programa), ui_(std::make_unique<Ui::Sobre>()) {
    ui_->setupUi(this);
    const CarpetasPrograma& c = programa_.Carpetas;
    ui_->LabelVersion->setText(Qs("Versión " + c.VersionPrograma));
    ui_->RutaPrograma->setText(Qs(c.RutaPrograma));
    ui_->RutaBase->setText(Qs(c.RutaBase));
    ui_->RutaProyectos->setText(Qs(c.RutaProyectos));
    ui_->RutaPerfiles->setText(Qs(c.RutaPerfiles));
    connect(ui_->Command2, &QPushButton::clicked, this, &Sobre::MostrarSistema);
    ui_->Command1->setFocus();
}

Sobre::~Sobre() = default;

void Sobre::MostrarSistema() {
    programa_.Dialogo().Mensaje({InformacionSistema(), "Información del Sistema",
                                 BotonesMensaje::Aceptar, IconoMensaje::Informacion, 1});
}

} // namespace trevalo
