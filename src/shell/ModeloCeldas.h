#pragma once
// The grids of the program as tables over the data they show. A grid is described by its
// columns (caption, numeric format or text, centred, check box) and by the reads and writes of
// its rows; the model keeps no copy of the values and reads them where they live each time a
// cell is shown, so a grid never holds a value the data does not.
//
// Rows and columns count from 1 as the forms number them (Qt's indexes are one less).
//
// Every value entered, typed, pasted or given to a block, goes through Entrar:
//   1. the text is trimmed; in a numeric column a text that is not a number, or a number below
//      the cell's minimum ("-99999999.99" with sign, "0.00" without) or above
//      "9999999999.99", is refused with a beep;
//   2. the number is taken as the cell will show it (a whole-number column rounds ties to
//      even, as the model does: 2.5 keeps 2), and the form's edit answers with a Veredicto.
//      A value the edit cannot hold (the program's error) is a refusal with its message.
// A refused value leaves the data as it was, so the cell shows the old value again. What a
// refusal or a clamp has to say is emitted as Respuesta for the window to show, each distinct
// message once per paste or block.
//
// A paste is tab-separated rows (a spreadsheet's copy) from a cell: rows beyond the grid are
// added only when the form's growth hook grows its list; columns beyond are dropped.

#include <QAbstractTableModel>
#include <QColor>
#include <functional>
#include <optional>
#include <vector>

#include "editing/EdicionViga.h"

namespace trevalo {

// A value entered in a cell, as the form's edit sees it.
struct Celda {
    int Fila = 0;
    int Columna = 0;
    QString Texto;                // trimmed
    std::optional<double> Numero; // nothing for an empty text or a text column
};

// How a numeric column shows its values: decimals and sign.
struct FormatoCelda {
    int Decimales = 2;
    bool ConSigno = false;
};

struct ColumnaCelda {
    QString Titulo;
    std::optional<FormatoCelda> Formato; // nothing: a text column
    bool Centrada = false;
    bool Marca = false; // a check box: reads 1 or 0, and a tick is entered as 1 or 0
};

// Where a grid's rows live.
struct AccesoCeldas {
    std::function<int()> Filas;
    std::function<QVariant(int fila, int columna)> Leer; // a double, or a text
    // The form's edit of one cell; none for a grid that shows only.
    std::function<Veredicto(const Celda&)> Escribir;
    std::function<QString(int fila)> RotuloFila;          // none: the row's number
    std::function<std::optional<QColor>(int fila)> Fondo; // none: the grid's own
    std::function<bool(int filas)> Crecer;                // a paste past the last row
};

class ModeloCeldas : public QAbstractTableModel {
    Q_OBJECT

  public:
    // The separators are the machine's, as the user types and reads numbers.
    ModeloCeldas(std::vector<ColumnaCelda> columnas, AccesoCeldas acceso, char decimal, char miles,
                 QObject* parent);

    const ColumnaCelda& Columna(int columna) const;
    char Decimal() const { return decimal_; }
    char Miles() const { return miles_; }
    int Filas() const { return filas_; }
    // The value of a cell as the data holds it: 0 for an empty or text cell.
    double Valor(int fila, int columna) const;
    // The text a value shows in a column.
    QString Texto(int columna, double valor) const;
    // The number of a text as a numeric column takes it; nothing when it refuses it.
    std::optional<double> Leer(int columna, const QString& texto) const;

    // The one way in for a value entered by the user.
    Veredicto Entrar(int fila, int columna, const QString& texto);
    // A paste from (fila, columna) and one text into rows fila1..fila2 of a column; each
    // answers the cells taken.
    int Pegar(int fila, int columna, const QString& bloque);
    int Llenar(int fila1, int fila2, int columna, const QString& texto);
    // Reads the data again: the rows added or removed, every cell and caption shown anew, the
    // current cell and the selection kept where they still are.
    void Recargar();

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int rol) const override;
    bool setData(const QModelIndex& indice, const QVariant& valor, int rol) override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;

  signals:
    // A refusal or a clamp with a message or a beep to give.
    void Respuesta(const Veredicto& veredicto);

  private:
    // The entries of a paste or a block: their messages gathered and given once each.
    int EnLote(const std::function<void(const std::function<void(const Veredicto&)>&)>& entradas);

    std::vector<ColumnaCelda> columnas_;
    AccesoCeldas acceso_;
    char decimal_;
    char miles_;
    int filas_ = 0;
};

} // namespace trevalo
