#include "shell/DelegadosCelda.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QScopedValueRollback>
#include <algorithm>
#include <cassert>
#include <vector>

#include "model/Redondeo.h"
#include "platform/lienzos/LienzoQt.h"
#include "shell/TextoQt.h"

namespace trevalo {

namespace {

constexpr double MinimoConSigno = -99999999.99;
constexpr double Maximo = 9999999999.99;

std::string Mascara(int decimales) {
    return decimales > 0 ? "0." + std::string(static_cast<std::size_t>(decimales), '0') : "0";
}

// The pattern of a number as typed: a sign when allowed, digits with the thousands
// separator, and decimals after the decimal separator.
QRegularExpression PatronNumero(bool conSigno, char decimal, char miles) {
    const QString d = QRegularExpression::escape(QString(QLatin1Char(decimal)));
    const QString m = QRegularExpression::escape(QString(QLatin1Char(miles)));
    return QRegularExpression(QStringLiteral("%1[0-9%2]*(%3[0-9]*)?")
                                  .arg(conSigno ? QStringLiteral("-?") : QString(), m, d));
}

bool EsRetorno(const QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) return false;
    const int tecla = static_cast<const QKeyEvent*>(evento)->key();
    return tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
}

void BajarUnaFila(QTableView& grid) {
    const QModelIndex actual = grid.currentIndex();
    const QModelIndex abajo = actual.sibling(actual.row() + 1, actual.column());
    if (actual.isValid() && abajo.isValid()) grid.setCurrentIndex(abajo);
}

QTableWidgetItem& ItemDe(QTableWidget& grid, int fila, int columna) {
    QTableWidgetItem* item = grid.item(fila - 1, columna - 1);
    if (!item) {
        item = new QTableWidgetItem;
        grid.setItem(fila - 1, columna - 1, item);
    }
    return *item;
}

} // namespace

DelegadoNumero::DelegadoNumero(Programa& programa, QTableWidget& grid)
    : QStyledItemDelegate(&grid), programa_(programa), grid_(grid) {
    grid_.setItemDelegate(this);
    grid_.installEventFilter(this);
    grid_.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed);
    connect(this, &DelegadoNumero::Pito, this, [] { QApplication::beep(); });
}

void DelegadoNumero::Formato(int col1, int row1, int col2, int row2, int decimales, bool conSigno) {
    for (int c = col1; c <= col2; ++c) {
        if (row1 < 0)
            columnas_[c] = {decimales, conSigno};
        else
            for (int f = row1; f <= row2; ++f) celdas_[{f, c}] = {decimales, conSigno};
    }
    grid_.viewport()->update();
}

void DelegadoNumero::Centrar(int columna) {
    centradas_[columna] = true;
    grid_.viewport()->update();
}

std::optional<DelegadoNumero::FormatoCelda> DelegadoNumero::FormatoDe(int fila, int columna) const {
    if (auto c = celdas_.find({fila, columna}); c != celdas_.end()) return c->second;
    if (auto c = columnas_.find(columna); c != columnas_.end()) return c->second;
    return std::nullopt;
}

QString DelegadoNumero::Texto(int fila, int columna, double valor) const {
    const auto formato = FormatoDe(fila, columna);
    const int decimales = formato ? formato->Decimales : 2;
    // A whole-number cell rounds as the model does, ties to even (2.5 shows and keeps 2);
    // the mask alone would round half away from zero.
    if (decimales == 0) valor = RedondeoPar(valor);
    if (valor == 0.0) valor = 0.0; // no "-0"
    const auto& carpetas = programa_.Carpetas;
    return Qs(trevalo::Formato(valor, Mascara(decimales), carpetas.SeparadorDecimal,
                               carpetas.SeparadorMiles));
}

double DelegadoNumero::Mostrado(int fila, int columna, double valor) const {
    const auto& carpetas = programa_.Carpetas;
    const double mostrado = NumeroDeTexto(Std(Texto(fila, columna, valor)),
                                          carpetas.SeparadorDecimal, carpetas.SeparadorMiles);
    return mostrado == 0.0 ? 0.0 : mostrado;
}

void DelegadoNumero::ColocarValor(int fila, int columna, double valor) {
    Item(fila, columna).setData(Qt::EditRole, Mostrado(fila, columna, valor));
}

std::optional<double> DelegadoNumero::Leer(int fila, int columna, const QString& texto) const {
    const auto formato = FormatoDe(fila, columna);
    const auto& carpetas = programa_.Carpetas;
    const auto valor = LeerNumero(texto, carpetas.SeparadorDecimal, carpetas.SeparadorMiles);
    const double minimo = formato->ConSigno ? MinimoConSigno : 0.0;
    if (!valor || *valor < minimo || *valor > Maximo) return std::nullopt;
    return Mostrado(fila, columna, *valor);
}

Veredicto DelegadoNumero::Entrar(int fila, int columna, const QString& texto) {
    // A grid that takes no typing (a locked table) takes no paste or block entry either.
    if (grid_.editTriggers() == QAbstractItemView::NoEditTriggers) return Rechazar();
    const auto formato = FormatoDe(fila, columna);
    Celda celda{fila, columna, texto.trimmed(), std::nullopt};
    if (formato && !celda.Texto.isEmpty()) {
        celda.Numero = Leer(fila, columna, celda.Texto);
        if (!celda.Numero) return Rechazar();
    }
    if (formato && celda.Texto.isEmpty() && !regla_) return Rechazar();
    Veredicto veredicto = Aceptar();
    try {
        if (regla_) veredicto = regla_(celda);
    } catch (const ErrorTrevalo& e) {
        // A value the model cannot hold (error 6 on a load past 32 bits): told, and the
        // cell keeps its old value.
        return Rechazar(MensajeFalla(e));
    }
    if (!veredicto.Aceptado) return veredicto;
    if (formato)
        ColocarValor(fila, columna, veredicto.Valor.value_or(celda.Numero.value_or(0.0)));
    else
        Item(fila, columna).setText(celda.Texto);
    return veredicto;
}

void DelegadoNumero::Mostrar(const Veredicto& veredicto) {
    if (veredicto.Aviso) programa_.Dialogo().Mensaje(*veredicto.Aviso);
    if (veredicto.Pitido) emit Pito();
}

bool DelegadoNumero::Aplicar(int fila, int columna, const QString& texto) {
    if (ocupado_) return false; // a message box took the focus from the editor
    const QScopedValueRollback<bool> ocupado(ocupado_, true);
    const Veredicto veredicto = Entrar(fila, columna, texto);
    Mostrar(veredicto);
    return veredicto.Aceptado;
}

void DelegadoNumero::Lote::Sumar(const Veredicto& v) {
    tomadas += v.Aceptado ? 1 : 0;
    pitido = pitido || v.Pitido;
    if (v.Aviso && std::find(avisos.begin(), avisos.end(), *v.Aviso) == avisos.end())
        avisos.push_back(*v.Aviso);
}

int DelegadoNumero::EnLote(const std::function<void(Lote&)>& entradas) {
    if (ocupado_) return 0;
    const QScopedValueRollback<bool> ocupado(ocupado_, true);
    Lote lote;
    entradas(lote);
    for (const Pregunta& aviso : lote.avisos) programa_.Dialogo().Mensaje(aviso);
    if (lote.pitido) emit Pito();
    return lote.tomadas;
}

int DelegadoNumero::Pegar(const QString& bloque) {
    QStringList filas = bloque.split(QLatin1Char('\n'));
    if (!filas.isEmpty() && filas.back().trimmed().isEmpty()) filas.removeLast();
    const int fila0 = std::max(grid_.currentRow(), 0) + 1;
    const int columna0 = std::max(grid_.currentColumn(), 0) + 1;
    const int necesarias = fila0 + static_cast<int>(filas.size()) - 1;
    if (necesarias > grid_.rowCount() && crecer_) crecer_(necesarias);
    return EnLote([&](Lote& lote) {
        for (int i = 0; i < filas.size() && fila0 + i <= grid_.rowCount(); ++i) {
            const QStringList celdas = filas[i].split(QLatin1Char('\t'));
            for (int j = 0; j < celdas.size() && columna0 + j <= grid_.columnCount(); ++j)
                if (!grid_.itemDelegateForColumn(columna0 + j - 1)) // not a check column
                    lote.Sumar(Entrar(fila0 + i, columna0 + j, celdas[j]));
        }
    });
}

int DelegadoNumero::Llenar(int fila1, int fila2, int columna, const QString& texto) {
    return EnLote([&](Lote& lote) {
        for (int f = fila1; f <= fila2 && f <= grid_.rowCount(); ++f)
            lote.Sumar(Entrar(f, columna, texto));
    });
}

QTableWidgetItem& DelegadoNumero::Item(int fila, int columna) {
    return ItemDe(grid_, fila, columna);
}

QWidget* DelegadoNumero::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                      const QModelIndex& index) const {
    // A line of text for every cell: the value is typed as the cell shows it.
    auto* linea = new QLineEdit(parent);
    linea->setFrame(false);
    const auto formato = FormatoDe(index.row() + 1, index.column() + 1);
    if (formato) {
        const auto& carpetas = programa_.Carpetas;
        linea->setValidator(new QRegularExpressionValidator(
            PatronNumero(formato->ConSigno, carpetas.SeparadorDecimal, carpetas.SeparadorMiles),
            linea));
        linea->setAlignment(centradas_.count(index.column() + 1)
                                ? Qt::AlignCenter
                                : Qt::AlignRight | Qt::AlignVCenter);
    }
    return linea;
}

void DelegadoNumero::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* linea = qobject_cast<QLineEdit*>(editor);
    if (!linea) return QStyledItemDelegate::setEditorData(editor, index);
    const QVariant valor = index.data(Qt::EditRole);
    const bool numero = FormatoDe(index.row() + 1, index.column() + 1) && valor.isValid() &&
                        valor.typeId() == QMetaType::Double;
    linea->setText(numero ? Texto(index.row() + 1, index.column() + 1, valor.toDouble())
                          : valor.toString());
}

void DelegadoNumero::setModelData(QWidget* editor, QAbstractItemModel* model,
                                  const QModelIndex& index) const {
    auto* linea = qobject_cast<QLineEdit*>(editor);
    if (!linea) return QStyledItemDelegate::setModelData(editor, model, index);
    // The rule and its message belong to the form; the grid is the form's, not const.
    const_cast<DelegadoNumero*>(this)->Aplicar(index.row() + 1, index.column() + 1, linea->text());
}

void DelegadoNumero::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const int fila = index.row() + 1;
    const int columna = index.column() + 1;
    const QVariant valor = index.data(Qt::EditRole);
    if (FormatoDe(fila, columna)) {
        if (valor.typeId() == QMetaType::Double)
            option->text = Texto(fila, columna, valor.toDouble());
        option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
    if (centradas_.count(columna)) option->displayAlignment = Qt::AlignCenter;
}

bool DelegadoNumero::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != &grid_) {
        auto* editor = qobject_cast<QWidget*>(objeto);
        if (editor && EsRetorno(evento)) {
            emit commitData(editor);
            emit closeEditor(editor, QAbstractItemDelegate::NoHint);
            BajarUnaFila(grid_);
            return true;
        }
        return QStyledItemDelegate::eventFilter(objeto, evento);
    }
    if (evento->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Paste)) {
        Pegar(QGuiApplication::clipboard()->text());
        return true;
    }
    if (EsRetorno(evento)) { // the grid has the focus: no cell is being edited
        BajarUnaFila(grid_);
        return true;
    }
    return false;
}

DelegadoCelda::DelegadoCelda(QTableView& vista, ModeloCeldas& modelo)
    : QStyledItemDelegate(&vista), vista_(vista), modelo_(modelo) {
    vista_.setItemDelegate(this);
    vista_.installEventFilter(this);
}

QWidget* DelegadoCelda::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                     const QModelIndex& index) const {
    // A line of text for every cell: the value is typed as the cell shows it.
    auto* linea = new QLineEdit(parent);
    linea->setFrame(false);
    const ColumnaCelda& columna = modelo_.Columna(index.column() + 1);
    if (const auto& formato = columna.Formato) {
        linea->setValidator(new QRegularExpressionValidator(
            PatronNumero(formato->ConSigno, modelo_.Decimal(), modelo_.Miles()), linea));
        linea->setAlignment(columna.Centrada ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
    }
    return linea;
}

void DelegadoCelda::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* linea = qobject_cast<QLineEdit*>(editor);
    if (!linea) return QStyledItemDelegate::setEditorData(editor, index);
    linea->setText(index.data(Qt::DisplayRole).toString());
}

void DelegadoCelda::setModelData(QWidget* editor, QAbstractItemModel* model,
                                 const QModelIndex& index) const {
    auto* linea = qobject_cast<QLineEdit*>(editor);
    if (!linea) return QStyledItemDelegate::setModelData(editor, model, index);
    model->setData(index, linea->text(), Qt::EditRole);
}

bool DelegadoCelda::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != &vista_) {
        auto* editor = qobject_cast<QWidget*>(objeto);
        if (editor && EsRetorno(evento)) {
            emit commitData(editor);
            emit closeEditor(editor, QAbstractItemDelegate::NoHint);
            BajarUnaFila(vista_);
            return true;
        }
        return QStyledItemDelegate::eventFilter(objeto, evento);
    }
    if (evento->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Paste)) {
        const QModelIndex actual = vista_.currentIndex();
        modelo_.Pegar(std::max(actual.row(), 0) + 1, std::max(actual.column(), 0) + 1,
                      QGuiApplication::clipboard()->text());
        return true;
    }
    if (EsRetorno(evento)) { // the grid has the focus: no cell is being edited
        BajarUnaFila(vista_);
        return true;
    }
    return false;
}

void MostrarModelo(Programa& programa, QTableView& vista, ModeloCeldas& modelo) {
    vista.setModel(&modelo);
    new DelegadoCelda(vista, modelo);
    for (int c = 1; c <= modelo.columnCount(); ++c)
        if (modelo.Columna(c).Marca) new DelegadoMarca(vista, c);
    vista.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed);
    QObject::connect(&modelo, &ModeloCeldas::Respuesta, &vista,
                     [&programa](const Veredicto& v) { MostrarVeredicto(programa, v); });
}

void MostrarVeredicto(Programa& programa, const Veredicto& veredicto) {
    if (veredicto.Aviso) programa.Dialogo().Mensaje(*veredicto.Aviso);
    if (veredicto.Pitido) QApplication::beep();
}

ModeloCeldas& Modelo(const QTableView& vista) {
    auto* modelo = qobject_cast<ModeloCeldas*>(vista.model());
    assert(modelo && "the grid shows a ModeloCeldas");
    return *modelo;
}

DelegadoMarca::DelegadoMarca(QAbstractItemView& grid, int columna, AlMarcar alMarcar)
    : QStyledItemDelegate(&grid), alMarcar_(std::move(alMarcar)) {
    grid.setItemDelegateForColumn(columna - 1, this);
}

void DelegadoMarca::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    QStyleOptionViewItem fondo = option;
    initStyleOption(&fondo, index);
    fondo.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    fondo.text.clear();
    QStyle* estilo = fondo.widget ? fondo.widget->style() : QApplication::style();
    estilo->drawControl(QStyle::CE_ItemViewItem, &fondo, painter, fondo.widget);

    QStyleOptionButton caja;
    const int ancho = estilo->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, fondo.widget);
    const int alto = estilo->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, fondo.widget);
    caja.rect = QRect(0, 0, ancho, alto);
    caja.rect.moveCenter(option.rect.center());
    const bool marcada = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    caja.state = QStyle::State_Enabled | (marcada ? QStyle::State_On : QStyle::State_Off);
    estilo->drawPrimitive(QStyle::PE_IndicatorCheckBox, &caja, painter, fondo.widget);
}

bool DelegadoMarca::editorEvent(QEvent* evento, QAbstractItemModel* model,
                                const QStyleOptionViewItem& option, const QModelIndex& index) {
    bool cambia = false;
    if (evento->type() == QEvent::MouseButtonRelease) {
        const auto* raton = static_cast<QMouseEvent*>(evento);
        cambia =
            raton->button() == Qt::LeftButton && option.rect.contains(raton->position().toPoint());
    } else if (evento->type() == QEvent::MouseButtonDblClick) {
        return true; // no text editor on a check cell
    } else if (evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        cambia = tecla == Qt::Key_Space || tecla == Qt::Key_Select;
    }
    if (!cambia) return false;
    const bool marcada = index.data(Qt::CheckStateRole).toInt() != Qt::Checked;
    model->setData(index, marcada ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    if (alMarcar_) alMarcar_(index.row() + 1, marcada);
    return true;
}

std::optional<double> LeerNumero(const QString& texto, char decimal, char miles) {
    const QString limpio = texto.trimmed();
    const QRegularExpression patron(
        QRegularExpression::anchoredPattern(PatronNumero(true, decimal, miles).pattern()));
    if (!patron.match(limpio).hasMatch() ||
        !limpio.contains(QRegularExpression(QStringLiteral("[0-9]"))))
        return std::nullopt;
    return NumeroDeTexto(Std(limpio), decimal, miles);
}

void TerminarEdicion(QWidget& ventana) {
    for (QAbstractItemView* grid : ventana.findChildren<QAbstractItemView*>()) {
        // The editor open on the current cell, if any (no grid here holds index widgets).
        const QModelIndex celda = grid->currentIndex();
        QWidget* editor = grid->indexWidget(celda);
        QAbstractItemDelegate* delegado = grid->itemDelegateForIndex(celda);
        if (!editor || !delegado) continue;
        emit delegado->commitData(editor);
        emit delegado->closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

DelegadoNumero& Delegado(QTableWidget& grid) {
    auto* delegado = qobject_cast<DelegadoNumero*>(grid.itemDelegate());
    assert(delegado && "the form makes the grid's DelegadoNumero first");
    return *delegado;
}

void FormatoCeldas(QTableWidget& grid, int col1, int row1, int col2, int row2, int decimales,
                   bool conSigno) {
    Delegado(grid).Formato(col1, row1, col2, row2, decimales, conSigno);
}

double ValorCelda(const QAbstractItemView& grid, int fila, int columna) {
    return grid.model()->index(fila - 1, columna - 1).data(Qt::EditRole).toDouble();
}

bool CeldaMarcada(const QAbstractItemView& grid, int fila, int columna) {
    return grid.model()->index(fila - 1, columna - 1).data(Qt::CheckStateRole).toInt() ==
           Qt::Checked;
}

void MarcarCelda(QTableWidget& grid, int fila, int columna, bool marcada) {
    QTableWidgetItem& item = ItemDe(grid, fila, columna);
    item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item.setCheckState(marcada ? Qt::Checked : Qt::Unchecked);
}

void ColorFila(QTableWidget& grid, int fila, std::int32_t color) {
    const QColor fondo = ColorQt(static_cast<Color>(color));
    for (int c = 1; c <= grid.columnCount(); ++c) ItemDe(grid, fila, c).setBackground(fondo);
}

} // namespace trevalo
