#pragma once
// The cells of every grid of the program, shown over a ModeloCeldas: one delegate for the
// cells typed as text and one for the check cells. The delegates only show a value and read
// what is typed; the model enters it and answers, and the window shows the answer.
//
// Enter in a cell's editor commits and moves to the next row, as it does with no editor open;
// F2 edits; Ctrl+V pastes tab-separated rows from the current cell.

#include <QStyledItemDelegate>
#include <optional>

#include "shell/ModeloCeldas.h"
#include "shell/Programa.h"

class QTableView;

namespace trevalo {

// The cells of a grid over a ModeloCeldas: a line of text in which a value is typed as the
// cell shows it, held to the column's pattern of a number; the model takes it. Enter in the
// editor commits and moves to the next row, as it does with no editor open; F2 edits; Ctrl+V
// pastes from the current cell.
class DelegadoCelda : public QStyledItemDelegate {
    Q_OBJECT

  public:
    DelegadoCelda(QTableView& vista, ModeloCeldas& modelo);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    QTableView& vista_;
    ModeloCeldas& modelo_;
};

// Makes `vista` show `modelo` as the program's grids do: DelegadoCelda on the cells and
// DelegadoMarca on the check columns, editing on any key, and what the model has to say shown
// through the program's dialogs.
void MostrarModelo(Programa& programa, QTableView& vista, ModeloCeldas& modelo);

// Shows what an entry has to say: its message, then its beep.
void MostrarVeredicto(Programa& programa, const Veredicto& veredicto);

// A column of check cells: a centred box, ticked by a click or the space bar; the tick goes
// to the model as the cell's check state.
class DelegadoMarca : public QStyledItemDelegate {
    Q_OBJECT

  public:
    DelegadoMarca(QAbstractItemView& grid, int columna);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* evento, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
};

// A number as the user types it with the machine's separators (sign, thousands, decimals);
// nothing for any other text.
std::optional<double> LeerNumero(const QString& texto, char decimal, char miles);

// Commits the cell being typed in any grid of `ventana`, as leaving the cell would: every way
// out of a window calls it before it asks about changes.
void TerminarEdicion(QWidget& ventana);

} // namespace trevalo
