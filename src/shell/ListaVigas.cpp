#include "shell/ListaVigas.h"

#include <algorithm>

#include "shell/TextoQt.h"

namespace trevalo {

int ListaVigas::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : Filas();
}

QVariant ListaVigas::data(const QModelIndex& indice, int rol) const {
    if (rol != Qt::DisplayRole || !indice.isValid() || indice.row() >= Filas()) return {};
    return Qs(nombres_[static_cast<std::size_t>(indice.row())]);
}

QVariant ListaVigas::headerData(int seccion, Qt::Orientation orientacion, int rol) const {
    if (rol != Qt::DisplayRole) return {};
    if (orientacion == Qt::Vertical) return seccion + 1;
    return QStringLiteral("Nombre de la Viga");
}

void ListaVigas::Colocar(std::vector<std::string> nombres) {
    beginResetModel();
    nombres_ = std::move(nombres);
    const int actual = actual_;
    actual_ = 0;
    endResetModel();
    FijarActual(actual <= Filas() ? actual : 0);
}

void ListaVigas::Agregar(const std::string& nombre) {
    beginInsertRows({}, Filas(), Filas());
    nombres_.push_back(nombre);
    endInsertRows();
}

void ListaVigas::Quitar(int fila) {
    beginRemoveRows({}, fila - 1, fila - 1);
    nombres_.erase(nombres_.begin() + (fila - 1));
    endRemoveRows();
    FijarActual(std::min(actual_, Filas()));
}

void ListaVigas::FijarActual(int fila) {
    if (fila == actual_) return;
    actual_ = fila;
    emit ActualCambiada(fila);
}

bool ListaVigas::Permitido(int indice) const {
    return Filas() > 1 && (indice == 0 ? actual_ > 1 : actual_ < Filas());
}

bool ListaVigas::Mover(int indice) {
    const int fila = actual_ + (indice == 1 ? 1 : -1);
    if (fila < 1 || fila > Filas()) return false;
    FijarActual(fila);
    emit Movida(fila);
    return true;
}

} // namespace trevalo
