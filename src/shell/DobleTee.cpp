#include "shell/DobleTee.h"

#include <QApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/lienzos/LienzosArchivo.h"
#include "profiles/DibujePerfil.h"
#include "profiles/Recorte.h"
#include "shell/CampoNumero.h"
#include "shell/Ordenes.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"

namespace trevalo {

namespace {

const char* const Dimensiones[4] = {"d (mm) =", "tw (mm) =", "bf (mm) =", "tf (mm) ="};
const char* const Propiedades[12] = {
    "A (cm2) =", "Ix (cm4) =", "Sx (cm3) =", "Rx (cm) =",  "Iy (cm4) =", "Sy (cm3) =",
    "Ry (cm) =", "Rt (cm) =",  "J (cm4) =",  "Cw (cm6) =", "Zx (cm3) =", "Zy (cm3) ="};

} // namespace

DobleTee::DobleTee(Programa& programa, Capturar capturar, QWidget* parent)
    : QDialog(parent), programa_(programa), capturar_(std::move(capturar)) {
    setObjectName(QStringLiteral("DobleTee"));
    setWindowTitle(QStringLiteral("Propiedades Geométricas"));
    CrearControles();
    Borrar();
}

void DobleTee::CrearControles() {
    auto* seccion = new QGroupBox(QStringLiteral("Sección Doble Tee"), this);
    auto* datos = new QFormLayout;
    designacion_ = new QLineEdit(seccion);
    designacion_->setObjectName(QStringLiteral("Text1"));
    designacion_->setMaxLength(50);
    designacion_->setMinimumWidth(180);
    datos->addRow(QStringLiteral("Designación:"), designacion_);
    for (std::size_t i = 0; i < doubles_.size(); ++i) {
        auto* campo = new CampoNumero(seccion);
        campo->setObjectName(QStringLiteral("Double%1").arg(i + 1));
        campo->Configurar("0.0", programa_.Carpetas.SeparadorDecimal,
                          programa_.Carpetas.SeparadorMiles);
        datos->addRow(QString::fromUtf8(Dimensiones[i]), campo);
        doubles_[i] = campo;
    }
    for (QLabel* e : seccion->findChildren<QLabel*>())
        if (e->buddy()) e->buddy()->setAccessibleName(e->text());
    dibujo_ = new QLabel(seccion);
    dibujo_->setObjectName(QStringLiteral("Picture1"));
    dibujo_->setFixedSize(340, 340);
    dibujo_->setFrameShape(QFrame::StyledPanel);
    auto* filaSeccion = new QHBoxLayout(seccion);
    filaSeccion->addLayout(datos);
    filaSeccion->addWidget(dibujo_);

    auto* propiedades = new QGroupBox(QStringLiteral("Propiedades"), this);
    auto* cuadro = new QGridLayout(propiedades);
    for (std::size_t i = 0; i < etiquetas_.size(); ++i) {
        auto* e = new QLabel(propiedades);
        e->setObjectName(QStringLiteral("LSLabel%1").arg(i + 1));
        e->setFrameShape(QFrame::StyledPanel);
        e->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        e->setMinimumWidth(100);
        auto* titulo = new QLabel(QString::fromUtf8(Propiedades[i]), propiedades);
        e->setAccessibleName(titulo->text());
        const int fila = static_cast<int>(i % 6), col = static_cast<int>(i / 6) * 2;
        cuadro->addWidget(titulo, fila, col, Qt::AlignRight);
        cuadro->addWidget(e, fila, col + 1);
        etiquetas_[i] = e;
    }

    auto* botones = new QHBoxLayout;
    QPushButton* calcular =
        CrearBotones(
            *this, *botones,
            {{{"LSButton1", "Calcular el Perfil", "Calcular el Perfil",
               "Calcular las propiedades geométricas del perfil. "},
              [this] { Calcular(); }},
             {{"LSButton3", "Capturar", "Capturar",
               "Capturar las dimensiones y propiedades del perfil.  "},
              [this] { CapturarSeccion(); }},
             {{"LSButton14", "Borrar los Datos", "Borrar los Datos",
               "Borrar los datos para entrar nuevo perfil. "},
              [this] {
                  if (programa_.Dialogo().Mensaje({"Entrar un Nuevo Perfil?     ",
                                                   "Creando Perfiles", BotonesMensaje::SiNo,
                                                   IconoMensaje::Pregunta, 1}) == RespuestaSi)
                      Borrar();
              }},
             {{"LSButton8", " Retorno ", "", ""}, [this] { reject(); }}})
            .front();
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(seccion);
    todo->addWidget(propiedades);
    todo->addLayout(botones);

    // Enter walks d, tw, bf, tf and then to "Calcular el Perfil".
    for (std::size_t i = 0; i < doubles_.size(); ++i) {
        QWidget* siguiente =
            i + 1 < doubles_.size() ? static_cast<QWidget*>(doubles_[i + 1]) : calcular;
        connect(doubles_[i], &QLineEdit::returnPressed, siguiente, qOverload<>(&QWidget::setFocus));
    }
    (new ToolTipTrevalo(this))->Configurar(programa_.Tapiz);
}

void DobleTee::MostrarEtiquetas() {
    for (std::size_t i = 0; i < etiquetas_.size(); ++i)
        etiquetas_[i]->setText(Qs(valores_.LSLabel(static_cast<long>(i) + 1)));
}

void DobleTee::Calcular() {
    LienzoImagen lienzo(dibujo_->width(), dibujo_->height());
    const auto& c = programa_.Carpetas;
    const ResultadoCalculo r =
        CalcularPerfil(lienzo, doubles_[0]->Valor(), doubles_[1]->Valor(), doubles_[2]->Valor(),
                       doubles_[3]->Valor(), valores_, c.SeparadorDecimal, c.SeparadorMiles);
    if (r == ResultadoCalculo::SinCambio) return;
    imagen_ = lienzo.Imagen();
    dibujo_->setPixmap(QPixmap::fromImage(imagen_));
    MostrarEtiquetas();
    if (r == ResultadoCalculo::FallaGeometria)
        programa_.Dialogo().Mensaje({MensajeErrorGeometria, TituloErrorGeometria,
                                     BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1});
}

void DobleTee::CapturarSeccion() {
    const std::string nombre = Recortar(Std(designacion_->text()));
    if (nombre.empty()) {
        QApplication::beep();
        designacion_->setFocus();
        return;
    }
    const double d = doubles_[0]->Valor(), tw = doubles_[1]->Valor(), bf = doubles_[2]->Valor(),
                 tf = doubles_[3]->Valor();
    if (!DimensionesCompletas(d, tw, bf, tf)) return;
    const int respuesta =
        programa_.Dialogo().Mensaje({MensajeCapturaSeccion(nombre), "Capturar Secciones",
                                     BotonesMensaje::SiNo, IconoMensaje::Pregunta, 1});
    if (respuesta == RespuestaSi) {
        CapturaSeccion captura;
        const auto& c = programa_.Carpetas;
        trevalo::CapturarSeccion(nombre, d, tw, bf, tf, valores_, captura, c.SeparadorDecimal,
                                 c.SeparadorMiles);
        capturar_(captura);
    }
    doubles_[0]->setFocus();
}

void DobleTee::Borrar() {
    designacion_->clear();
    for (CampoNumero* campo : doubles_) campo->ColocarValor(0);
    for (long i = 1; i <= 12; ++i) valores_.LSLabel(i).assign(1, '0');
    MostrarEtiquetas();
    imagen_ = QImage(dibujo_->size(), QImage::Format_RGB32);
    imagen_.fill(Qt::white);
    dibujo_->setPixmap(QPixmap::fromImage(imagen_));
    designacion_->setFocus();
}

} // namespace trevalo
