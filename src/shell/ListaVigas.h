#pragma once
// The project's beams as the project window lists them: their names row by row, the current
// row and the moves to the previous and next beam. The project window shows the list and
// loads the beam of its current row; the beam editor moves through the same list, so both
// windows' moves are allowed and disallowed together.

#include <QAbstractListModel>
#include <string>
#include <vector>

namespace trevalo {

class ListaVigas : public QAbstractListModel {
    Q_OBJECT

  public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int rol) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;

    const std::vector<std::string>& Nombres() const { return nombres_; }
    int Filas() const { return static_cast<int>(nombres_.size()); }
    // The names anew; the current row stays when the list still reaches it, else none.
    void Colocar(std::vector<std::string> nombres);
    // A beam on a last row of its own.
    void Agregar(const std::string& nombre);
    // Row `fila` (from 1) taken out; the current row stays within the list.
    void Quitar(int fila);

    // The current row, from 1; 0 when there is none.
    int Actual() const { return actual_; }
    void FijarActual(int fila);
    // The move to the previous (0) or next (1) beam is allowed.
    bool Permitido(int indice) const;
    // The move to the previous (0) or next (1) beam; false at the end of the list.
    bool Mover(int indice);

  signals:
    // The current row changed, by any means.
    void ActualCambiada(int fila);
    // A move to the previous or next beam made `fila` current: its beam is to be shown.
    void Movida(int fila);

  private:
    std::vector<std::string> nombres_;
    int actual_ = 0;
};

} // namespace trevalo
