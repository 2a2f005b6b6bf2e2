#pragma once
// The cells of every grid of the program: one numeric-cell delegate and one check-cell
// delegate.
//
// Rows and columns count from 1 as the forms number them; row 0 and column 0 are the headers
// (Qt's own indexes are one less). A numeric cell keeps its value as a double in the item's
// edit role and shows it plainly (no thousands separator) with its column's decimals and the
// machine's decimal separator (Programa::Carpetas). The value kept is the one read back from
// the text shown, so the model never holds more than the user sees.
//
// Every value entered, typed or pasted, goes through DelegadoNumero::Aplicar:
//   1. the text is trimmed; a text that is not a number, or a number below the cell's
//      minimum ("-99999999.99" with sign, "0.00" without) or above "9999999999.99", beeps
//      and the old value is put back;
//   2. the form's rule (ColocarRegla) sees the cell and the number as the cell will show it
//      (nothing for an empty text; an empty text with no rule is refused like a bad one) and
//      answers with a Veredicto: the value the cell keeps, or a refusal that puts the old
//      value back, and the message or beep to give. The rule writes the model; the delegate
//      shows the message. A rule that raises the program's error (a value the model cannot
//      hold) is a refusal with that error's message; the grid goes on taking entries.
// A whole-number cell (no decimals) rounds typed, pasted and block values alike to the
// nearest, ties to even, as the model rounds (2.5 keeps 2).
// A column with no numeric format is a text column: its trimmed text goes to the rule with no
// number, and is kept when accepted.
//
// Ctrl+V pastes tab-separated rows (a spreadsheet's copy) from the active cell: each cell
// through Aplicar, each distinct message shown once; rows beyond the grid are added only when
// the form's growth hook (ColocarCrecimiento) grows the grid; columns beyond are dropped.
//
// Enter in a cell's editor commits and moves to the next row; F2 edits.

#include <QStyledItemDelegate>
#include <QTableWidget>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "editing/EdicionViga.h"
#include "shell/ModeloCeldas.h"
#include "shell/Programa.h"

namespace trevalo {

class DelegadoNumero : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using Regla = std::function<Veredicto(const Celda&)>;
    // Asked to grow the grid to `filas` rows for a paste; answers whether it did.
    using Crecimiento = std::function<bool(int filas)>;

    // Becomes the delegate of every column of `grid` (check columns take DelegadoMarca).
    DelegadoNumero(Programa& programa, QTableWidget& grid);

    // Numeric format of a block; row1 = -1 for all rows (present and future).
    void Formato(int col1, int row1, int col2, int row2, int decimales, bool conSigno);
    void Centrar(int columna);
    void ColocarRegla(Regla regla) { regla_ = std::move(regla); }
    void ColocarCrecimiento(Crecimiento crecer) { crecer_ = std::move(crecer); }

    // The one way in for a value entered by the user; true when the cell took it. A grid
    // without edit triggers (a locked table) takes nothing, typed, pasted or in a block.
    bool Aplicar(int fila, int columna, const QString& texto);
    // Pastes tab-separated rows from the active cell; returns the cells taken.
    int Pegar(const QString& bloque);
    // One text into rows fila1..fila2 of a column (a block entry), each cell as Aplicar
    // takes it, each distinct message once; returns the cells taken.
    int Llenar(int fila1, int fila2, int columna, const QString& texto);

    // Writes a value from the model into a cell, rounded to the cell's decimals; no rule.
    void ColocarValor(int fila, int columna, double valor);
    // The text a value shows in a cell.
    QString Texto(int fila, int columna, double valor) const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  signals:
    void Pito(); // a refused entry beeps; connected to the system's beep

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    struct FormatoCelda {
        int Decimales = 2;
        bool ConSigno = false;
    };
    std::optional<FormatoCelda> FormatoDe(int fila, int columna) const;
    // The number of a text within the cell's range, as the cell will show it.
    std::optional<double> Leer(int fila, int columna, const QString& texto) const;
    double Mostrado(int fila, int columna, double valor) const;
    Veredicto Entrar(int fila, int columna, const QString& texto);
    void Mostrar(const Veredicto& veredicto);
    // The entries of a paste or a block: their messages gathered and shown once each.
    struct Lote {
        std::vector<Pregunta> avisos;
        bool pitido = false;
        int tomadas = 0;
        void Sumar(const Veredicto& v);
    };
    int EnLote(const std::function<void(Lote&)>& entradas);
    QTableWidgetItem& Item(int fila, int columna);

    Programa& programa_;
    QTableWidget& grid_;
    std::map<int, FormatoCelda> columnas_;               // format of every row
    std::map<std::pair<int, int>, FormatoCelda> celdas_; // format of given cells
    std::map<int, bool> centradas_;
    Regla regla_;
    Crecimiento crecer_;
    bool ocupado_ = false; // an entry is being applied
};

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

// The model of a grid made by MostrarModelo.
ModeloCeldas& Modelo(const QTableView& vista);

// A column of check cells: a centred box, ticked by a click or the space bar; the form hears
// each tick through the hook. The mark lives in the item's check state.
class DelegadoMarca : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using AlMarcar = std::function<void(int fila, bool marcada)>;

    DelegadoMarca(QAbstractItemView& grid, int columna, AlMarcar alMarcar = {});

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* evento, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

  private:
    AlMarcar alMarcar_;
};

// A number as the user types it with the machine's separators (sign, thousands, decimals);
// nothing for any other text.
std::optional<double> LeerNumero(const QString& texto, char decimal, char miles);

// Commits the cell being typed in any grid of `ventana`, as leaving the cell would: every way
// out of a window calls it before it asks about changes.
void TerminarEdicion(QWidget& ventana);

// The grid's numeric delegate; the form makes it first (a programmer's mistake otherwise).
DelegadoNumero& Delegado(QTableWidget& grid);
// Sets a block of cells to a numeric format: `decimales` places, with or without sign;
// row1 = -1 stands for all rows.
void FormatoCeldas(QTableWidget& grid, int col1, int row1, int col2, int row2, int decimales,
                   bool conSigno);

// Cells by the forms' numbering; an empty cell reads 0.
double ValorCelda(const QAbstractItemView& grid, int fila, int columna);
bool CeldaMarcada(const QAbstractItemView& grid, int fila, int columna);
void MarcarCelda(QTableWidget& grid, int fila, int columna, bool marcada);
// The background of a row, colour 0xBBGGRR.
void ColorFila(QTableWidget& grid, int fila, std::int32_t color);

} // namespace trevalo
