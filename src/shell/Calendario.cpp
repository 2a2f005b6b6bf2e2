#include "shell/Calendario.h"

#include "ui_Calendario.h"

namespace trevalo {

Calendario::Calendario(QDate fecha, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::Calendario>()) {
    ui_->setupUi(this);
    ui_->Calendar1->setSelectedDate(FechaInicial(fecha, QDate::currentDate()));
    ui_->Calendar1->setFocus();
}

Calendario::~Calendario() = default;

QDate Calendario::Fecha() const {
    return ui_->Calendar1->selectedDate();
}

QDate Calendario::FechaInicial(QDate fecha, QDate hoy) {
    const QDate desde(2021, 1, 1);
    const QDate hasta(hoy.year() + 2, 12, 31);
    return fecha.isValid() && fecha >= desde && fecha <= hasta ? fecha : hoy;
}

} // namespace trevalo
