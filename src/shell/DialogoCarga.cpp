#include "shell/DialogoCarga.h"

#include <QFocusEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "shell/DelegadosCelda.h"
#include "shell/Ordenes.h"
#include "shell/TextoQt.h"

namespace trevalo {

namespace {

bool EsRetorno(const QKeyEvent& tecla) {
    return tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter;
}

// Turns Return in a field and the leaving of it into one call.
class FinCampo : public QObject {
  public:
    FinCampo(QObject* padre, std::function<void(bool)> fin)
        : QObject(padre), fin_(std::move(fin)) {}

  protected:
    bool eventFilter(QObject*, QEvent* evento) override {
        if (evento->type() == QEvent::KeyPress && EsRetorno(*static_cast<QKeyEvent*>(evento))) {
            fin_(true);
            return true;
        }
        if (evento->type() == QEvent::FocusOut) {
            const Qt::FocusReason razon = static_cast<QFocusEvent*>(evento)->reason();
            if (razon != Qt::ActiveWindowFocusReason && razon != Qt::PopupFocusReason) fin_(false);
        }
        return false;
    }

  private:
    std::function<void(bool)> fin_;
};

} // namespace

DialogoCarga::DialogoCarga(Programa& programa, const Arreglo<std::int16_t>& tramoCarga,
                           const char* titulo, const char* marco, QWidget* parent)
    : QDialog(parent), programa_(programa), tramoCarga_(tramoCarga),
      marco_(new QGroupBox(QString::fromUtf8(marco), this)), campos_(new QFormLayout(marco_)),
      aceptar_(BotonDialogo(*this, "LSButton1", " Aceptar")),
      cancelar_(BotonDialogo(*this, "LSButton9", " Cancelar")) {
    setWindowTitle(QString::fromUtf8(titulo));
    marco_->setObjectName(QStringLiteral("Frame1"));
    connect(aceptar_, &QPushButton::clicked, this, &DialogoCarga::Aceptar);
    connect(cancelar_, &QPushButton::clicked, this, &QDialog::reject);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(aceptar_);
    botones->addWidget(cancelar_);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(marco_);
    todo->addLayout(botones);
    todo->setSizeConstraint(QLayout::SetFixedSize);
}

long DialogoCarga::UltimoMarcado() const {
    for (long t = Tramos(); t >= 1; --t)
        if (Marcado(t)) return t;
    return 0;
}

void DialogoCarga::FinCarga(QWidget* ultimoCampo) {
    setTabOrder(ultimoCampo, aceptar_);
    setTabOrder(aceptar_, cancelar_);
    activo_ = true;
}

void DialogoCarga::AlTerminar(QLineEdit* campo, std::function<void(bool)> fin) {
    campo->installEventFilter(new FinCampo(campo, std::move(fin)));
}

void DialogoCarga::keyPressEvent(QKeyEvent* evento) {
    // Return outside a button is the end of an entry, never the acceptance of the load.
    if (EsRetorno(*evento) && !qobject_cast<QPushButton*>(focusWidget())) return;
    QDialog::keyPressEvent(evento);
}

void DialogoCarga::Aceptar() {
    TerminarEdicion(*this); // a cell being typed is part of the load
    entrada_ = Tomar();
    const Veredicto veredicto = EdicionViga(programa_.Viga).RevisarCarga(*entrada_);
    MostrarVeredicto(programa_, veredicto);
    if (veredicto.Aceptado) accept();
}

} // namespace trevalo
