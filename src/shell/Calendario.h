#pragma once
// The date picker: a month calendar, " Aceptar " and " Cancelar ". Enter or a double click on
// a day accepts it.

#include <QDate>
#include <QDialog>
#include <memory>

namespace Ui {
class Calendario;
}

namespace trevalo {

class Calendario : public QDialog {
    Q_OBJECT

  public:
    // Opens on FechaInicial(fecha, today).
    explicit Calendario(QDate fecha, QWidget* parent = nullptr);
    ~Calendario() override;

    // The day chosen; meaningful once exec() returned Accepted.
    QDate Fecha() const;

    // The date a field hands the picker, when it lies from 1 January 2021 to 31 December two
    // years after `hoy`; any other (a date never set, or one mistyped far off) gives `hoy`,
    // so the picker opens where the user most likely wants to be.
    static QDate FechaInicial(QDate fecha, QDate hoy);

  private:
    std::unique_ptr<Ui::Calendario> ui_;
};

} // namespace trevalo
