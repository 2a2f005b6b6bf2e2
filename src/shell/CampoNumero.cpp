#include "shell/CampoNumero.h"

#include <QRegularExpression>
#include <QRegularExpressionValidator>

#include "model/Redondeo.h"
#include "shell/TextoQt.h"

namespace trevalo {

CampoNumero::CampoNumero(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // The text typed is shown again through the mask once the field is left.
    connect(this, &QLineEdit::editingFinished, this, [this] {
        if (!text().isEmpty() && !mascara_.empty()) ColocarValor(Valor());
    });
}

void CampoNumero::Configurar(const std::string& mascara, char separadorDecimal,
                             char separadorMiles) {
    mascara_ = mascara;
    decimal_ = separadorDecimal;
    miles_ = separadorMiles;
    const QString d = QRegularExpression::escape(QString(QLatin1Char(decimal_)));
    const QString m = QRegularExpression::escape(QString(QLatin1Char(miles_)));
    setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("-?[0-9%1]*(%2[0-9]*)?").arg(m, d)), this));
    // Wide enough for millions at the mask's decimals.
    const QString ancho =
        Qs(Formato(-9999999, mascara_.empty() ? "0.00" : mascara_, decimal_, miles_));
    setMinimumWidth(fontMetrics().horizontalAdvance(ancho) + 4 * fontMetrics().averageCharWidth());
}

void CampoNumero::ColocarValor(double valor) {
    if (!mascara_.empty()) {
        setText(Qs(Formato(valor, mascara_, decimal_, miles_)));
        return;
    }
    QString texto = QString::number(valor, 'g', 15);
    setText(texto.replace(QLatin1Char('.'), QLatin1Char(decimal_)));
}

double CampoNumero::Valor() const {
    return NumeroDeTexto(Std(text()), decimal_, miles_);
}

} // namespace trevalo
