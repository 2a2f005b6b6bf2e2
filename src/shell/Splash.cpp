#include "shell/Splash.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPixmap>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "shell/MenuP.h"
#include "shell/TextoQt.h"

namespace trevalo {

EntornoInicio EntornoDelSistema() {
    EntornoInicio entorno;
    entorno.RutaAplicacion = CarpetaInstalacion(Std(QCoreApplication::applicationDirPath()));
    entorno.CarpetaPersonal = Std(QDir::homePath());
    entorno.CarpetaDocumentos =
        Std(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    entorno.Local = LocalDeLaMaquina();
    return entorno;
}

LineaOrdenes LeerLineaOrdenes(const QStringList& argumentos) {
    const QString uso = QStringLiteral("\nUso: trevalo [PROYECTO.trv]\n");
    if (argumentos.isEmpty()) return {};
    if (argumentos.size() > 1)
        return {false,
                {},
                QStringLiteral("trevalo: se espera un solo archivo de proyecto y se dieron %1 "
                               "argumentos.")
                        .arg(argumentos.size()) +
                    uso};
    const QString& argumento = argumentos.front();
    if (argumento.isEmpty() || argumento.startsWith(QLatin1Char('-')))
        return {false, {}, QStringLiteral("trevalo: opción no válida: «%1».").arg(argumento) + uso};
    return {true, QFileInfo(argumento).absoluteFilePath(), {}};
}

Splash::Splash(Programa& programa, const EntornoInicio& entorno, const QString& proyecto)
    : programa_(programa), proyecto_(proyecto) {
    setObjectName(QStringLiteral("Splash"));
    setWindowTitle(QStringLiteral("TREVALO 6.0"));
    setAttribute(Qt::WA_DeleteOnClose);
    DatosUsuario(entorno, programa_.Carpetas);
    setWindowTitle(Qs("Trevalo versión: " + programa_.Carpetas.VersionPrograma));

    auto* capas = new QVBoxLayout(this);
    capas->setContentsMargins(0, 0, 0, 0);
    capas->setSpacing(0);
    // The picture carries the program's name; the strip says what the pause is for.
    auto* franja = new QLabel(
        QStringLiteral("  Preparando las carpetas y los archivos del programa..."), this);
    franja->setObjectName(QStringLiteral("LSLabel2"));
    franja->setStyleSheet(QStringLiteral(
        "background: #122c52; color: white; font-size: 13pt; font-weight: bold; padding: 8px;"));
    capas->addWidget(franja);
    auto* imagen = new QLabel(this);
    imagen->setObjectName(QStringLiteral("Image1"));
    const QPixmap tapiz(Qs(programa_.Carpetas.RutaPrograma + "/Imagen/TapizKorvel.jpg"));
    if (!tapiz.isNull()) imagen->setPixmap(tapiz.scaledToWidth(640, Qt::SmoothTransformation));
    capas->addWidget(imagen);

    timer1_.setSingleShot(true);
    timer1_.setInterval(2800);
    connect(&timer1_, &QTimer::timeout, this, &Splash::AbrirMenu);
}

void Splash::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    if (!menu_) timer1_.start();
}

void Splash::AbrirMenu() {
    menu_ = new MenuP(programa_);
    menu_->show();
    if (!proyecto_.isEmpty())
        QTimer::singleShot(0, menu_,
                           [menu = menu_, ruta = proyecto_] { menu->AbrirArchivoProyecto(ruta); });
    close();
}

} // namespace trevalo
