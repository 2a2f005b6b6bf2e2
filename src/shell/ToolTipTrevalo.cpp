#include "shell/ToolTipTrevalo.h"

#include <QEvent>
#include <QFrame>
#include <QHelpEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <QWidget>

#include "platform/lienzos/LienzoQt.h"

namespace trevalo {

namespace {

const char* const PropiedadTitulo = "Tag";
const char* const PropiedadTexto = "TipTrevalo";

} // namespace

ToolTipTrevalo::ToolTipTrevalo(QWidget* ventana) : QObject(ventana), ventana_(ventana) {}

QString ToolTipTrevalo::Titulo(const QWidget* control) {
    return control->property(PropiedadTitulo).toString();
}

QString ToolTipTrevalo::Texto(const QWidget* control) {
    return control->property(PropiedadTexto).toString();
}

void ToolTipTrevalo::Configurar(ConfiguracionTapiz& tapiz) {
    for (QWidget* control : ventana_->findChildren<QWidget*>()) {
        if (control->toolTip().isEmpty() ||
            control->objectName().startsWith(QStringLiteral("Tab0")))
            continue;
        control->setProperty(PropiedadTexto, control->toolTip());
        control->setToolTip({});
        control->installEventFilter(this);
    }
    Estilo(ConfigurarToolTip(tapiz));
}

void ToolTipTrevalo::Estilo(const EstiloToolTip& estilo) {
    estilo_ = estilo;
    delete globo_;
}

QWidget* ToolTipTrevalo::Globo() const {
    return globo_;
}

void ToolTipTrevalo::Mostrar(QWidget* control) {
    if (!globo_) {
        globo_ = new QFrame(ventana_, Qt::ToolTip | Qt::FramelessWindowHint);
        globo_->setObjectName(QStringLiteral("ToolTipTrevalo"));
        auto* capas = new QVBoxLayout(globo_);
        capas->setContentsMargins(8, 5, 8, 6);
        capas->setSpacing(2);
        titulo_ = new QLabel(globo_);
        texto_ = new QLabel(globo_);
        capas->addWidget(titulo_);
        capas->addWidget(texto_);
        QFont fuente(QString::fromStdString(estilo_.Fuente));
        fuente.setPointSize(estilo_.Puntos);
        texto_->setFont(fuente);
        fuente.setBold(true);
        titulo_->setFont(fuente);
        const Qt::Alignment alineacion = estilo_.Centrado ? Qt::AlignHCenter : Qt::AlignLeft;
        titulo_->setAlignment(alineacion);
        texto_->setAlignment(alineacion);
        // A balloon is rounded; the plain form of the system is a square box.
        const QString radio = estilo_.Estilo == 1 ? QStringLiteral("8px") : QStringLiteral("0px");
        globo_->setStyleSheet(
            QStringLiteral("#ToolTipTrevalo { background: %1; border: 1px solid "
                           "#606060; border-radius: %2; } QLabel { color: %3; }")
                .arg(ColorQt(estilo_.Fondo).name(), radio, ColorQt(estilo_.Texto).name()));
        globo_->setAttribute(Qt::WA_TranslucentBackground, estilo_.Estilo == 1);
    }
    titulo_->setText(Titulo(control));
    titulo_->setVisible(!Titulo(control).isEmpty());
    texto_->setText(Texto(control).trimmed());
    globo_->adjustSize();
    QPoint lugar = control->mapToGlobal(QPoint(control->width() / 2, control->height() + 4));
    if (const QScreen* pantalla = control->screen()) {
        const QRect zona = pantalla->availableGeometry();
        lugar.setX(std::min(lugar.x(), zona.right() - globo_->width()));
        if (lugar.y() + globo_->height() > zona.bottom())
            lugar.setY(control->mapToGlobal(QPoint(0, 0)).y() - globo_->height() - 4);
    }
    globo_->move(lugar);
    globo_->show();
}

void ToolTipTrevalo::Ocultar() {
    if (globo_) globo_->hide();
}

bool ToolTipTrevalo::eventFilter(QObject* objeto, QEvent* evento) {
    switch (evento->type()) {
    case QEvent::ToolTip:
        Mostrar(static_cast<QWidget*>(objeto));
        return true;
    case QEvent::Leave:
    case QEvent::MouseButtonPress:
    case QEvent::Hide:
        Ocultar();
        break;
    default:
        break;
    }
    return QObject::eventFilter(objeto, evento);
}

} // namespace trevalo
