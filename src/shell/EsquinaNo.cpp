#include "shell/EsquinaNo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QTableView>

namespace trevalo {

namespace {

// Paints the corner button as it is, then "No" over it.
class PintorNo : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::Paint) return false;
        auto* esquina = static_cast<QWidget*>(objeto);
        esquina->removeEventFilter(this);
        QApplication::sendEvent(esquina, evento);
        esquina->installEventFilter(this);
        QPainter p(esquina);
        p.drawText(esquina->rect(), Qt::AlignCenter, QStringLiteral("No"));
        return true;
    }
};

} // namespace

void EsquinaNo(QTableView& grid) {
    grid.verticalHeader()->setMinimumWidth(28);
    if (auto* esquina = grid.findChild<QAbstractButton*>())
        esquina->installEventFilter(new PintorNo(&grid));
}

} // namespace trevalo
