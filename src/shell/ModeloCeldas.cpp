#include "shell/ModeloCeldas.h"

#include <QRegularExpression>
#include <algorithm>

#include "model/Redondeo.h"
#include "shell/DelegadosCelda.h"
#include "shell/TextoQt.h"

namespace trevalo {

namespace {

constexpr double MinimoConSigno = -99999999.99;
constexpr double Maximo = 9999999999.99;

std::string Mascara(int decimales) {
    return decimales > 0 ? "0." + std::string(static_cast<std::size_t>(decimales), '0') : "0";
}

} // namespace

ModeloCeldas::ModeloCeldas(std::vector<ColumnaCelda> columnas, AccesoCeldas acceso, char decimal,
                           char miles, QObject* parent)
    : QAbstractTableModel(parent), columnas_(std::move(columnas)), acceso_(std::move(acceso)),
      decimal_(decimal), miles_(miles), filas_(std::max(acceso_.Filas(), 0)) {}

const ColumnaCelda& ModeloCeldas::Columna(int columna) const {
    return columnas_.at(static_cast<std::size_t>(columna - 1));
}

double ModeloCeldas::Valor(int fila, int columna) const {
    const QVariant v = acceso_.Leer(fila, columna);
    return v.typeId() == QMetaType::Double ? v.toDouble() : 0.0;
}

QString ModeloCeldas::Texto(int columna, double valor) const {
    const auto& formato = Columna(columna).Formato;
    const int decimales = formato ? formato->Decimales : 2;
    // A whole-number cell rounds as the model does, ties to even (2.5 shows and keeps 2);
    // the mask alone would round half away from zero.
    if (decimales == 0) valor = RedondeoPar(valor);
    if (valor == 0.0) valor = 0.0; // no "-0"
    return Qs(Formato(valor, Mascara(decimales), decimal_, miles_));
}

std::optional<double> ModeloCeldas::Leer(int columna, const QString& texto) const {
    const auto& formato = Columna(columna).Formato;
    const auto valor = LeerNumero(texto, decimal_, miles_);
    const double minimo = formato && formato->ConSigno ? MinimoConSigno : 0.0;
    if (!valor || *valor < minimo || *valor > Maximo) return std::nullopt;
    // Taken as the cell shows it: the model never holds more than the user sees.
    const double mostrado = NumeroDeTexto(Std(Texto(columna, *valor)), decimal_, miles_);
    return mostrado == 0.0 ? 0.0 : mostrado;
}

Veredicto ModeloCeldas::Entrar(int fila, int columna, const QString& texto) {
    const ColumnaCelda& c = Columna(columna);
    if (!acceso_.Escribir || fila < 1 || fila > filas_) return Rechazar();
    Celda celda{fila, columna, texto.trimmed(), std::nullopt};
    if (c.Marca) {
        celda.Numero = celda.Texto.toDouble(); // a tick, 1 or 0: no number to format
    } else if (c.Formato && !celda.Texto.isEmpty()) {
        celda.Numero = Leer(columna, celda.Texto);
        if (!celda.Numero) return Rechazar();
    }
    Veredicto veredicto;
    try {
        veredicto = acceso_.Escribir(celda);
    } catch (const ErrorTrevalo& e) {
        // A value the data cannot hold (error 6 on a load past 32 bits): told, and the
        // cell keeps its old value.
        return Rechazar(MensajeFalla(e));
    }
    if (veredicto.Aceptado) Recargar();
    return veredicto;
}

int ModeloCeldas::EnLote(
    const std::function<void(const std::function<void(const Veredicto&)>&)>& entradas) {
    std::vector<Pregunta> avisos;
    bool pitido = false;
    int tomadas = 0;
    entradas([&](const Veredicto& v) {
        tomadas += v.Aceptado ? 1 : 0;
        pitido = pitido || v.Pitido;
        if (v.Aviso && std::find(avisos.begin(), avisos.end(), *v.Aviso) == avisos.end())
            avisos.push_back(*v.Aviso);
    });
    for (const Pregunta& aviso : avisos) emit Respuesta({false, std::nullopt, aviso, false});
    if (pitido) emit Respuesta(Rechazar());
    return tomadas;
}

int ModeloCeldas::Pegar(int fila0, int columna0, const QString& bloque) {
    QStringList filas = bloque.split(QLatin1Char('\n'));
    if (!filas.isEmpty() && filas.back().trimmed().isEmpty()) filas.removeLast();
    const int necesarias = fila0 + static_cast<int>(filas.size()) - 1;
    if (necesarias > filas_ && acceso_.Crecer && acceso_.Crecer(necesarias)) Recargar();
    return EnLote([&](const auto& sumar) {
        for (int i = 0; i < filas.size() && fila0 + i <= filas_; ++i) {
            const QStringList celdas = filas[i].split(QLatin1Char('\t'));
            for (int j = 0; j < celdas.size() && columna0 + j <= columnCount(); ++j)
                if (!Columna(columna0 + j).Marca) sumar(Entrar(fila0 + i, columna0 + j, celdas[j]));
        }
    });
}

int ModeloCeldas::Llenar(int fila1, int fila2, int columna, const QString& texto) {
    return EnLote([&](const auto& sumar) {
        for (int f = fila1; f <= std::min(fila2, filas_); ++f) sumar(Entrar(f, columna, texto));
    });
}

void ModeloCeldas::Recargar() {
    const int nuevas = std::max(acceso_.Filas(), 0);
    if (nuevas > filas_) {
        beginInsertRows({}, filas_, nuevas - 1);
        filas_ = nuevas;
        endInsertRows();
    } else if (nuevas < filas_) {
        beginRemoveRows({}, nuevas, filas_ - 1);
        filas_ = nuevas;
        endRemoveRows();
    }
    if (filas_ == 0) return;
    emit dataChanged(index(0, 0), index(filas_ - 1, columnCount() - 1));
    emit headerDataChanged(Qt::Vertical, 0, filas_ - 1);
}

int ModeloCeldas::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : filas_;
}

int ModeloCeldas::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(columnas_.size());
}

QVariant ModeloCeldas::data(const QModelIndex& indice, int rol) const {
    if (!indice.isValid()) return {};
    const int fila = indice.row() + 1;
    const int columna = indice.column() + 1;
    const ColumnaCelda& c = Columna(columna);
    switch (rol) {
    case Qt::DisplayRole:
    case Qt::EditRole: {
        if (c.Marca) return {};
        const QVariant v = acceso_.Leer(fila, columna);
        if (rol == Qt::EditRole || !c.Formato || v.typeId() != QMetaType::Double) return v;
        return Texto(columna, v.toDouble());
    }
    case Qt::CheckStateRole:
        if (!c.Marca) return {};
        return static_cast<int>(Valor(fila, columna) != 0 ? Qt::Checked : Qt::Unchecked);
    case Qt::TextAlignmentRole:
        if (c.Centrada) return int(Qt::AlignCenter);
        return c.Formato ? int(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::BackgroundRole:
        if (!acceso_.Fondo) return {};
        if (const auto color = acceso_.Fondo(fila)) return *color;
        return {};
    default:
        return {};
    }
}

bool ModeloCeldas::setData(const QModelIndex& indice, const QVariant& valor, int rol) {
    if (!indice.isValid()) return false;
    const int columna = indice.column() + 1;
    const bool marca = Columna(columna).Marca;
    if (marca != (rol == Qt::CheckStateRole) || (!marca && rol != Qt::EditRole)) return false;
    const QString texto =
        marca ? QString::number(valor.toInt() == Qt::Checked ? 1 : 0) : valor.toString();
    const Veredicto veredicto = Entrar(indice.row() + 1, columna, texto);
    if (veredicto.Aviso || veredicto.Pitido) emit Respuesta(veredicto);
    return veredicto.Aceptado;
}

Qt::ItemFlags ModeloCeldas::flags(const QModelIndex& indice) const {
    if (!indice.isValid()) return Qt::NoItemFlags;
    Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (!acceso_.Escribir) return f;
    return f | (Columna(indice.column() + 1).Marca ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

QVariant ModeloCeldas::headerData(int seccion, Qt::Orientation orientacion, int rol) const {
    if (rol != Qt::DisplayRole) return QAbstractTableModel::headerData(seccion, orientacion, rol);
    if (orientacion == Qt::Horizontal)
        return seccion < columnCount() ? columnas_[static_cast<std::size_t>(seccion)].Titulo
                                       : QVariant();
    if (acceso_.RotuloFila) return acceso_.RotuloFila(seccion + 1);
    return seccion + 1;
}

} // namespace trevalo
