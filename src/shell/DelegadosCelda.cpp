#include "shell/DelegadosCelda.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QTableView>
#include <algorithm>

#include "model/Redondeo.h"
#include "shell/TextoQt.h"

namespace trevalo {

namespace {

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

} // namespace

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

DelegadoMarca::DelegadoMarca(QAbstractItemView& grid, int columna) : QStyledItemDelegate(&grid) {
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

} // namespace trevalo
