#pragma once
// A number field as the forms show it: the value through a number mask with the machine's
// separators ("#,##0.00" shows 2100000 as "2,100,000.00"), only a sign, digits and the two
// separators typed, the value read back from the text shown. An empty field reads 0. With an
// empty mask the text stays as typed and a value shows in its shortest form, for fields whose
// value is rounded only when it is taken (a load typed as 2.5 kgf/m is stored as 2).

#include <QLineEdit>
#include <string>

namespace trevalo {

class CampoNumero : public QLineEdit {
    Q_OBJECT

  public:
    explicit CampoNumero(QWidget* parent = nullptr);

    void Configurar(const std::string& mascara, char separadorDecimal, char separadorMiles);
    void ColocarValor(double valor);
    double Valor() const;

  private:
    std::string mascara_ = "0.00";
    char decimal_ = '.';
    char miles_ = ',';
};

} // namespace trevalo
