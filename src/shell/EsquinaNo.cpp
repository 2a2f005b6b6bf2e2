#include "shell/EsquinaNo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QTableView>

namespace trevalo {

namespace {

// Paints the corner as the grid does, then the text over it.
class TextoEsquina : public QObject {
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
    if (auto* esquina = grid.findChild<QAbstractButton*>())
        esquina->installEventFilter(new TextoEsquina(&grid));
}

} // namespace trevalo
