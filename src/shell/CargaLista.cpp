#include "shell/CargaLista.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QTableWidget>
#include <algorithm>

#include "shell/DelegadosCelda.h"
#include "shell/EsquinaNo.h"
#include "shell/TextoQt.h"

namespace trevalo {

namespace {

double Leer(const VigaActual& viga, const ColumnaCarga& c, long t, long k) {
    return std::visit([&](auto valores) { return static_cast<double>((viga.*valores)(t, k)); },
                      c.valores);
}

} // namespace

CargaLista::CargaLista(Programa& programa, const Arreglo<std::int16_t>& tramoCarga,
                       FormaCargaLista forma, QWidget* parent)
    : DialogoCarga(programa, tramoCarga, forma.titulo, forma.marco, parent),
      forma_(std::move(forma)), long1_(new QLineEdit(&Marco())),
      spread1_(new QTableWidget(&Marco())) {
    long1_->setObjectName(QStringLiteral("Long1"));
    spread1_->setObjectName(QStringLiteral("Spread1"));
    // A count of loads: digits only, so it is never negative nor beyond a 16-bit integer.
    long1_->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,4}")), long1_));
    long1_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    long1_->setMaximumWidth(long1_->fontMetrics().horizontalAdvance(QStringLiteral("00000000")));
    Campos().addRow(QString::fromUtf8(forma_.etiqueta), long1_);
    Campos().addRow(spread1_);
    ConfigurarSpread();
    AlTerminar(long1_, [this](bool retorno) { Cantidad(retorno); });
    if (const long t = UltimoMarcado()) Mostrar(t);
    FinCarga(spread1_);
    long1_->setFocus();
}

void CargaLista::ConfigurarSpread() {
    const int columnas = static_cast<int>(forma_.columnas.size());
    spread1_->setColumnCount(columnas);
    QStringList titulos;
    for (const ColumnaCarga& c : forma_.columnas) titulos << QString::fromUtf8(c.titulo);
    spread1_->setHorizontalHeaderLabels(titulos);
    new DelegadoNumero(programa_, *spread1_);
    for (int c = 1; c <= columnas; ++c) {
        const bool carga = EsCarga(forma_.columnas[static_cast<std::size_t>(c - 1)]);
        FormatoCeldas(*spread1_, c, -1, c, -1, carga ? 0 : 2, carga);
    }
    // A load is a 32-bit integer (the cell has already rounded it, ties to even): one the
    // model cannot hold raises error 6, and the cell keeps its old value.
    Delegado(*spread1_).ColocarRegla([this](const Celda& celda) {
        return EdicionViga(programa_.Viga)
            .ValorCarga(forma_.columnas[static_cast<std::size_t>(celda.Columna - 1)], celda.Numero);
    });
    // A block pasted beyond the last row adds rows up to the limit of the kind.
    Delegado(*spread1_).ColocarCrecimiento([this](int filas) {
        const int nuevas = static_cast<int>(std::min<long>(filas, forma_.limite));
        if (nuevas <= spread1_->rowCount()) return false;
        long1_->setText(QString::number(nuevas));
        textoAplicado_ = long1_->text();
        n_ = nuevas;
        Filas(nuevas);
        return true;
    });
    EsquinaNo(*spread1_);
    // Tab leaves the list for the buttons; the arrows and Return move between its cells.
    spread1_->setTabKeyNavigation(false);
    const int ancho = 15 * spread1_->fontMetrics().averageCharWidth();
    for (int c = 0; c < columnas; ++c) spread1_->setColumnWidth(c, ancho);
    // Every column in sight, and room for six rows.
    const int marco = 2 * spread1_->frameWidth();
    spread1_->setMinimumWidth(spread1_->verticalHeader()->minimumWidth() + columnas * ancho +
                              spread1_->verticalScrollBar()->sizeHint().width() + marco);
    spread1_->setMinimumHeight(spread1_->horizontalHeader()->sizeHint().height() +
                               6 * spread1_->verticalHeader()->defaultSectionSize() + marco);
    spread1_->setRowCount(2);
}

void CargaLista::Mostrar(long t) {
    const VigaActual& viga = programa_.Viga;
    n_ = (viga.*forma_.cantidad)(t);
    long1_->setText(QString::number(n_));
    textoAplicado_ = long1_->text();
    spread1_->setUpdatesEnabled(false);
    spread1_->setRowCount(n_);
    DelegadoNumero& celdas = Delegado(*spread1_);
    for (int r = 1; r <= n_; ++r)
        for (int c = 1; c <= spread1_->columnCount(); ++c)
            celdas.ColocarValor(r, c,
                                Leer(viga, forma_.columnas[static_cast<std::size_t>(c - 1)], t, r));
    spread1_->setUpdatesEnabled(true);
}

void CargaLista::Cantidad(bool retorno) {
    if (!Activo() || (!retorno && long1_->text() == textoAplicado_)) return;
    n_ = long1_->text().toInt();
    if (retorno && !forma_.limiteAlAceptar && n_ > forma_.limite) AvisoLimite();
    textoAplicado_ = long1_->text();
    Filas(n_);
    spread1_->setFocus();
}

void CargaLista::Filas(int n) {
    spread1_->setRowCount(n);
    DelegadoNumero& celdas = Delegado(*spread1_);
    for (int r = 1; r <= n; ++r)
        for (int c = 1; c <= spread1_->columnCount(); ++c) {
            const QTableWidgetItem* item = spread1_->item(r - 1, c - 1);
            if (!item || item->text().trimmed().isEmpty()) celdas.ColocarValor(r, c, 0.0);
        }
}

void CargaLista::AvisoLimite() {
    const std::string limite = std::to_string(forma_.limite);
    programa_.Dialogo().Mensaje({"Número Máximo de Cargas por Viga = " + limite + "    ",
                                 "Cargas en Vigas", BotonesMensaje::Aceptar,
                                 IconoMensaje::Advertencia, 1});
    long1_->setText(Qs(limite));
}

std::vector<std::vector<double>> CargaLista::Tomadas() const {
    std::vector<std::vector<double>> filas(static_cast<std::size_t>(n_));
    for (int r = 1; r <= n_; ++r)
        for (std::size_t c = 0; c < forma_.columnas.size(); ++c)
            filas[static_cast<std::size_t>(r - 1)].push_back(
                ValorCelda(*spread1_, r, static_cast<int>(c) + 1));
    return filas;
}

EntradaCarga CargaLista::Tomar() {
    Cantidad(false); // a count typed and not yet applied
    if (forma_.limiteAlAceptar && n_ > forma_.limite) {
        AvisoLimite();
        textoAplicado_ = long1_->text();
        n_ = static_cast<int>(forma_.limite);
    }
    // A count beyond the slots of a span, which only the limit's check on Return stops, is
    // refused before the dialog closes.
    return FilasCarga{{forma_.cantidad, forma_.columnas, forma_.limite}, Tomadas()};
}

} // namespace trevalo
