#include "shell/EsquinaNo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QTableView>
#include <algorithm>
#include <utility>

namespace trevalo {

namespace {

// Paints the corner button as it is, then the caption over it.
class PintorNo : public QObject {
  public:
    PintorNo(QObject* padre, QString rotulo) : QObject(padre), rotulo_(std::move(rotulo)) {}

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::Paint) return false;
        auto* esquina = static_cast<QWidget*>(objeto);
        esquina->removeEventFilter(this);
        QApplication::sendEvent(esquina, evento);
        esquina->installEventFilter(this);
        QPainter p(esquina);
        p.drawText(esquina->rect(), Qt::AlignCenter, rotulo_);
        return true;
    }

  private:
    QString rotulo_;
};

} // namespace

void EsquinaNo(QTableView& grid, const QString& rotulo) {
    const QFontMetrics medida(grid.verticalHeader()->font());
    grid.verticalHeader()->setMinimumWidth(
        std::max(28, medida.horizontalAdvance(rotulo) + 2 * medida.averageCharWidth()));
    if (auto* esquina = grid.findChild<QAbstractButton*>()) {
        esquina->setAccessibleName(rotulo);
        esquina->installEventFilter(new PintorNo(&grid, rotulo));
    }
}

} // namespace trevalo
