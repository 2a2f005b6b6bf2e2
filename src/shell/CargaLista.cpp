#include "shell/CargaLista.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QTableView>
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
      forma_(std::move(forma)), cantidad_(new QLineEdit(&Marco())),
      vistaCargas_(new QTableView(&Marco())) {
    cantidad_->setObjectName(QStringLiteral("Long1"));
    vistaCargas_->setObjectName(QStringLiteral("Spread1"));
    // A count of loads: digits only, so it is never negative nor beyond a 16-bit integer.
    cantidad_->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[0-9]{0,4}")), cantidad_));
    cantidad_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cantidad_->setMaximumWidth(
        cantidad_->fontMetrics().horizontalAdvance(QStringLiteral("00000000")));
    Campos().addRow(QString::fromUtf8(forma_.etiqueta), cantidad_);
    Campos().addRow(vistaCargas_);
    ConfigurarSpread();
    AlTerminar(cantidad_, [this](bool retorno) { Cantidad(retorno); });
    if (const long t = UltimoMarcado()) Mostrar(t);
    FinCarga(vistaCargas_);
    cantidad_->setFocus();
}

void CargaLista::ConfigurarSpread() {
    const int columnas = static_cast<int>(forma_.columnas.size());
    // Loads are whole kgf with sign, positions metres with two decimals.
    std::vector<ColumnaCelda> titulos;
    for (const ColumnaCarga& c : forma_.columnas)
        titulos.push_back({QString::fromUtf8(c.titulo),
                           EsCarga(c) ? FormatoCelda{0, true} : FormatoCelda{2, false}, false,
                           false});
    AccesoCeldas acceso;
    acceso.Filas = [this] { return static_cast<int>(filas_.size()); };
    acceso.Leer = [this](int f, int c) {
        return QVariant(filas_[static_cast<std::size_t>(f - 1)][static_cast<std::size_t>(c - 1)]);
    };
    // A load is a 32-bit integer (the cell has already rounded it, ties to even): one the
    // model cannot hold raises error 6, and the cell keeps its old value.
    acceso.Escribir = [this](const Celda& celda) {
        const auto c = static_cast<std::size_t>(celda.Columna - 1);
        const Veredicto v =
            EdicionViga(programa_.Viga).ValorCarga(forma_.columnas[c], celda.Numero);
        if (v.Aceptado)
            filas_[static_cast<std::size_t>(celda.Fila - 1)][c] = celda.Numero.value_or(0.0);
        return v;
    };
    // A block pasted beyond the last row adds rows up to the limit of the kind.
    acceso.Crecer = [this](int filas) {
        const int nuevas = static_cast<int>(std::min<long>(filas, forma_.limite));
        if (nuevas <= static_cast<int>(filas_.size())) return false;
        cantidad_->setText(QString::number(nuevas));
        textoAplicado_ = cantidad_->text();
        n_ = nuevas;
        Filas(nuevas);
        return true;
    };
    const auto& carpetas = programa_.Carpetas;
    modelo_ = new ModeloCeldas(std::move(titulos), std::move(acceso), carpetas.SeparadorDecimal,
                               carpetas.SeparadorMiles, vistaCargas_);
    MostrarModelo(programa_, *vistaCargas_, *modelo_);
    EsquinaNo(*vistaCargas_);
    // Tab leaves the list for the buttons; the arrows and Return move between its cells.
    vistaCargas_->setTabKeyNavigation(false);
    const int ancho = 15 * vistaCargas_->fontMetrics().averageCharWidth();
    for (int c = 0; c < columnas; ++c) vistaCargas_->setColumnWidth(c, ancho);
    // Every column in sight, and room for six rows.
    const int marco = 2 * vistaCargas_->frameWidth();
    vistaCargas_->setMinimumWidth(vistaCargas_->verticalHeader()->minimumWidth() +
                                  columnas * ancho +
                                  vistaCargas_->verticalScrollBar()->sizeHint().width() + marco);
    vistaCargas_->setMinimumHeight(vistaCargas_->horizontalHeader()->sizeHint().height() +
                                   6 * vistaCargas_->verticalHeader()->defaultSectionSize() +
                                   marco);
    Filas(2);
}

void CargaLista::Mostrar(long t) {
    const VigaActual& viga = programa_.Viga;
    n_ = (viga.*forma_.cantidad)(t);
    cantidad_->setText(QString::number(n_));
    textoAplicado_ = cantidad_->text();
    filas_.assign(static_cast<std::size_t>(std::max(n_, 0)), {});
    for (int r = 1; r <= n_; ++r)
        for (const ColumnaCarga& c : forma_.columnas)
            filas_[static_cast<std::size_t>(r - 1)].push_back(Leer(viga, c, t, r));
    modelo_->Recargar();
}

void CargaLista::Cantidad(bool retorno) {
    if (!Activo() || (!retorno && cantidad_->text() == textoAplicado_)) return;
    n_ = cantidad_->text().toInt();
    if (retorno && !forma_.limiteAlAceptar && n_ > forma_.limite) AvisoLimite();
    textoAplicado_ = cantidad_->text();
    Filas(n_);
    vistaCargas_->setFocus();
}

void CargaLista::Filas(int n) {
    filas_.resize(static_cast<std::size_t>(std::max(n, 0)),
                  std::vector<double>(forma_.columnas.size(), 0.0));
    modelo_->Recargar();
}

void CargaLista::AvisoLimite() {
    const std::string limite = std::to_string(forma_.limite);
    programa_.Dialogo().Mensaje({"Número Máximo de Cargas por Viga = " + limite + "    ",
                                 "Cargas en Vigas", BotonesMensaje::Aceptar,
                                 IconoMensaje::Advertencia, 1});
    cantidad_->setText(Qs(limite));
}

std::vector<std::vector<double>> CargaLista::Tomadas() const {
    const auto n = std::min(static_cast<std::size_t>(std::max(n_, 0)), filas_.size());
    return {filas_.begin(), filas_.begin() + static_cast<std::ptrdiff_t>(n)};
}

EntradaCarga CargaLista::Tomar() {
    Cantidad(false); // a count typed and not yet applied
    if (forma_.limiteAlAceptar && n_ > forma_.limite) {
        AvisoLimite();
        textoAplicado_ = cantidad_->text();
        n_ = static_cast<int>(forma_.limite);
    }
    // A count beyond the slots of a span, which only the limit's check on Return stops, is
    // refused before the dialog closes.
    return FilasCarga{{forma_.cantidad, forma_.columnas, forma_.limite}, Tomadas()};
}

} // namespace trevalo
