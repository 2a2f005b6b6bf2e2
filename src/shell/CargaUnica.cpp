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
      valor_(Campo("Long1", "", programa, &Marco())) {
    Campos().addRow(QString::fromUtf8(forma.etiqueta), valor_);
    if (forma.conLa) {
        la_ = Campo("Double1", "0.00", programa, &Marco());
        Campos().addRow(QStringLiteral("La (m) ="), la_);
    }
    if (forma.conGravedad) {
        deGravedad_ = Opcion("Option1", "Carga es de Gravedad", &Marco());
        perpendicular_ = Opcion("Option2", "Perpendicular al Tramo", &Marco());
        Campos().addRow(deGravedad_);
        Campos().addRow(perpendicular_);
        deGravedad_->setChecked(true);
    }
    AlTerminar(valor_, [this](bool) { Colorear(); });
    if (const long t = UltimoMarcado()) Mostrar(t);
    Colorear();
    QWidget* ultimo = valor_;
    if (la_) ultimo = la_;
    if (perpendicular_) ultimo = perpendicular_;
    FinCarga(ultimo);
    valor_->setFocus();
}

void CargaUnica::Mostrar(long t) {
    const VigaActual& viga = programa_.Viga;
    valor_->ColocarValor((viga.*forma_.valor)(t));
    if (la_) la_->ColocarValor(viga.la5(t));
    if (deGravedad_) (viga.Gravedad(t) == 0 ? deGravedad_ : perpendicular_)->setChecked(true);
}

void CargaUnica::Colorear() {
    QPalette colores = valor_->palette();
    colores.setColor(QPalette::Text,
                     valor_->Valor() < 0 ? QColor(255, 0, 0) : palette().color(QPalette::Text));
    valor_->setPalette(colores);
}

EntradaCarga CargaUnica::Tomar() {
    CargaPorTramo carga{forma_.valor, valor_->Valor(), std::nullopt, std::nullopt};
    if (la_) carga.la = la_->Valor();
    if (deGravedad_) carga.gravedad = deGravedad_->isChecked() ? 0 : 1;
    return carga;
}

} // namespace trevalo
