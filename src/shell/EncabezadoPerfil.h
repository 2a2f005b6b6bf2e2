#pragma once
// The header of a profile table's grid: four lines (group, subgroup, symbol, unit) over each
// column. Neighbouring columns that read the same on a line, and on every line above it,
// share one cell across them; a cell reaches down over the lines that are empty under it
// ("Area" over the lines of the symbol, "Módulos Plásticos" over its empty subgroup).

#include <QHeaderView>
#include <QString>
#include <array>
#include <vector>

namespace trevalo {

using LineasEncabezado = std::array<QString, 4>;

class EncabezadoPerfil : public QHeaderView {
    Q_OBJECT

  public:
    // One entry per column of the grid, in order.
    EncabezadoPerfil(std::vector<LineasEncabezado> columnas, QWidget* parent = nullptr);

    // A cell of the header: its first line and number of lines, its first and last column.
    struct Celda {
        int linea, lineas, primera, ultima;
        QString texto;
    };
    const std::vector<Celda>& Celdas() const { return celdas_; }
    int AltoLinea() const;

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    std::vector<LineasEncabezado> columnas_;
    std::vector<Celda> celdas_;
};

} // namespace trevalo
