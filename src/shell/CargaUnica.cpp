#include "shell/CargaUnica.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QRadioButton>

#include "shell/CampoNumero.h"

namespace trevalo {

namespace {

CampoNumero* Campo(const char* nombre, const std::string& mascara, const Programa& programa,
                   QWidget* padre) {
    auto* campo = new CampoNumero(padre);
    campo->setObjectName(QString::fromLatin1(nombre));
    campo->Configurar(mascara, programa.Carpetas.SeparadorDecimal,
                      programa.Carpetas.SeparadorMiles);
    return campo;
}

QRadioButton* Opcion(const char* nombre, const char* texto, QWidget* padre) {
    auto* opcion = new QRadioButton(QString::fromUtf8(texto), padre);
    opcion->setObjectName(QString::fromLatin1(nombre));
    return opcion;
}

} // namespace

CargaUnica::CargaUnica(Programa& programa, const Arreglo<std::int16_t>& tramoCarga,
                       const FormaCargaUnica& forma, QWidget* parent)
    : DialogoCarga(programa, tramoCarga, forma.titulo, forma.marco, parent), forma_(forma),
      long1_(Campo("Long1", "", programa, &Marco())) {
    Campos().addRow(QString::fromUtf8(forma.etiqueta), long1_);
    if (forma.conLa) {
        double1_ = Campo("Double1", "0.00", programa, &Marco());
        Campos().addRow(QStringLiteral("La (m) ="), double1_);
    }
    if (forma.conGravedad) {
        option1_ = Opcion("Option1", "Carga es de Gravedad", &Marco());
        option2_ = Opcion("Option2", "Perpendicular al Tramo", &Marco());
        Campos().addRow(option1_);
        Campos().addRow(option2_);
        option1_->setChecked(true);
    }
    AlTerminar(long1_, [this](bool) { Colorear(); });
    if (const long t = UltimoMarcado()) Mostrar(t);
    Colorear();
    QWidget* ultimo = long1_;
    if (double1_) ultimo = double1_;
    if (option2_) ultimo = option2_;
    FinCarga(ultimo);
    long1_->setFocus();
}

void CargaUnica::Mostrar(long t) {
    const VigaActual& viga = programa_.Viga;
    long1_->ColocarValor((viga.*forma_.valor)(t));
    if (double1_) double1_->ColocarValor(viga.la5(t));
    if (option1_) (viga.Gravedad(t) == 0 ? option1_ : option2_)->setChecked(true);
}

void CargaUnica::Colorear() {
    QPalette colores = long1_->palette();
    colores.setColor(QPalette::Text,
                     long1_->Valor() < 0 ? QColor(255, 0, 0) : palette().color(QPalette::Text));
    long1_->setPalette(colores);
}

EntradaCarga CargaUnica::Tomar() {
    CargaPorTramo carga{forma_.valor, long1_->Valor(), std::nullopt, std::nullopt};
    if (double1_) carga.la = double1_->Valor();
    if (option1_) carga.gravedad = option1_->isChecked() ? 0 : 1;
    return carga;
}

} // namespace trevalo
