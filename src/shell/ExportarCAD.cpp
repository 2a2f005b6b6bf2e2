#include "shell/ExportarCAD.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/lienzos/LienzoQt.h"
#include "shell/CristalReport.h"
#include "shell/DelegadosCelda.h"
#include "shell/ModeloCeldas.h"
#include "shell/Ordenes.h"
#include "shell/PantallaViga.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"
#include "store/BaseDatos.h"

namespace trevalo {

namespace {

// A marked row, 0xBBGGRR; an unmarked one is white.
constexpr Color ColorMarcada = 0xC4EFFF;

const char* const Opciones[4] = {"Anexar a un Proyecto Existente", "Crear un Nuevo Proyecto",
                                 "Apoyada sobre Vigas", "Apoyada sobre Columnas"};

QGroupBox* GrupoOpciones(const char* titulo, QRadioButton* a, QRadioButton* b, QWidget* padre) {
    auto* grupo = new QGroupBox(QString::fromUtf8(titulo), padre);
    auto* capas = new QVBoxLayout(grupo);
    capas->addWidget(a);
    capas->addWidget(b);
    a->setChecked(true);
    return grupo;
}

} // namespace

ExportarCAD::ExportarCAD(Programa& programa, const std::vector<std::string>& nombres,
                         QWidget* parent)
    : QDialog(parent), programa_(programa), toolTip_(new ToolTipTrevalo(this)) {
    setObjectName(QStringLiteral("ExportarCAD"));
    setWindowTitle(QStringLiteral("Exportar a Korvel-CAD Estructural"));

    auto* marco =
        new QGroupBox(QStringLiteral("Programa de Dibujo Korvel-CAD Estructural 8.0"), this);
    vistaVigas_ = new QTableView(marco);
    vistaVigas_->setObjectName(QStringLiteral("Spread1"));
    vistaVigas_->setAccessibleName(QStringLiteral("Vigas a Exportar"));
    lienzo_ = new PantallaViga(programa_, false, marco);
    lienzo_->setObjectName(QStringLiteral("Picture1"));
    lienzo_->setMinimumSize(420, 300);
    for (int i = 0; i < 4; ++i) {
        option_[i] = new QRadioButton(QString::fromUtf8(Opciones[i]), marco);
        option_[i]->setObjectName(QStringLiteral("Option%1").arg(i + 1));
    }

    auto* lista = new QVBoxLayout;
    lista->addWidget(vistaVigas_, 1);
    auto* marcas = new QHBoxLayout;
    CrearBotones(*this, *marcas,
                 {{{"SSCommand1", "Marcar Todas", "", ""}, [this] { MarcarTodas(true); }},
                  {{"SSCommand2", "Desmarcar Todas", "", ""}, [this] { MarcarTodas(false); }}});
    lista->addLayout(marcas);
    auto* arriba = new QHBoxLayout;
    arriba->addLayout(lista);
    arriba->addWidget(lienzo_, 1);
    auto* opciones = new QHBoxLayout;
    opciones->addWidget(
        GrupoOpciones("En Korvel-CAD Estructural 8.0", option_[0], option_[1], marco));
    opciones->addWidget(
        GrupoOpciones("Tipos de Apoyo de la Viga Continua", option_[2], option_[3], marco));
    auto* dentro = new QVBoxLayout(marco);
    dentro->addLayout(arriba, 1);
    dentro->addLayout(opciones);

    panelP_ = new QFrame(this);
    panelP_->setObjectName(QStringLiteral("LSFrameP"));
    panelP_->setFrameShape(QFrame::StyledPanel);
    auto* progreso = new QHBoxLayout(panelP_);
    textoProgreso_ = new QLabel(QStringLiteral("Exportando..."), panelP_);
    textoProgreso_->setObjectName(QStringLiteral("LSLabel4"));
    progreso_ = new QProgressBar(panelP_);
    progreso_->setObjectName(QStringLiteral("ProgressBar1"));
    progreso_->setRange(0, 100);
    progreso->addWidget(textoProgreso_);
    progreso->addWidget(progreso_, 1);
    panelP_->hide();

    auto* ordenes = new QHBoxLayout;
    CrearBotones(*this, *ordenes,
                 {{{"KorvelButton1", "Directorio", "Directorio de Korvel-CAD",
                    "Visualizar el directorio de\nKorvel-CAD Estructural 8.0 "},
                   [this] { Directorio(); }}});
    ordenes->addStretch(1);
    CrearBotones(*this, *ordenes,
                 {{{"LSButton1", "Exportar", "Exportar a Korvel-CAD",
                    "Exportar las vigas seleccionadas al\nprograma Korvel-CAD Estructural 8.0 "},
                   [this] { Exportar(); }},
                  {{"LSButton9", " Cancelar ", "", ""}, [this] { reject(); }}});
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(marco, 1);
    todo->addWidget(panelP_);
    todo->addLayout(ordenes);

    connect(lienzo_, &PantallaViga::Redimensionado, lienzo_, &PantallaViga::Pintar);

    // The load of the form.
    toolTip_->Configurar(programa_.Tapiz);
    try {
        listaConcreto_.emplace(
            ProyectoAbierto(programa_.Estado).AbrirRecordset(ConsultaListaConcreto));
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    ColoquePantalla(nombres);
    auto& vista = programa_.Vista;
    vista.ModoEditor = false;
    vista.EnPantalla = true;
    vista.VerDiagramas = vista.VerDiseno = false;
    try {
        if (listaConcreto_ && !listaConcreto_->AlFinal()) listaConcreto_->MoveFirst();
        LeerViga(programa_.Estado, programa_.Viga);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    if (!filas_.empty()) vistaVigas_->setCurrentIndex(modelo_->index(0, 1));
    connect(vistaVigas_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& fila) {
                if (fila.isValid()) CambioFila(fila.row() + 1);
            });
    resize(900, 600);
}

QPushButton* ExportarCAD::Boton(const QString& nombre) const {
    return findChild<QPushButton*>(nombre);
}

void ExportarCAD::ColoquePantalla(const std::vector<std::string>& nombres) {
    for (const std::string& nombre : nombres) filas_.push_back({false, nombre});
    // The beams and their marks live in the rows the export takes; a tick is the one entry.
    AccesoCeldas acceso;
    acceso.Filas = [this] { return static_cast<int>(filas_.size()); };
    acceso.Leer = [this](int fila, int columna) -> QVariant {
        const FilaCAD& f = filas_[static_cast<std::size_t>(fila - 1)];
        return columna == 1 ? QVariant(f.Marcada ? 1.0 : 0.0) : QVariant(Qs(f.Nombre));
    };
    acceso.Escribir = [this](const Celda& celda) {
        if (celda.Columna != 1) return Ignorar();
        filas_[static_cast<std::size_t>(celda.Fila - 1)].Marcada = celda.Numero == 1.0;
        return Aceptar();
    };
    acceso.Fondo = [this](int fila) -> std::optional<QColor> {
        return ColorQt(Marcada(fila) ? ColorMarcada : ColorBlanco);
    };
    modelo_ = new ModeloCeldas({{QStringLiteral("Exportar"), std::nullopt, false, true},
                                {QStringLiteral("Nombre de la Viga"), std::nullopt, false, false}},
                               std::move(acceso), programa_.Carpetas.SeparadorDecimal,
                               programa_.Carpetas.SeparadorMiles, vistaVigas_);
    vistaVigas_->setModel(modelo_);
    new DelegadoMarca(*vistaVigas_, 1);
    // Only the mark is entered, by a click or the space bar on its cell.
    vistaVigas_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    vistaVigas_->horizontalHeader()->setStretchLastSection(true);
    vistaVigas_->verticalHeader()->setDefaultSectionSize(20);
    vistaVigas_->setSelectionMode(QAbstractItemView::SingleSelection);
    vistaVigas_->setMinimumWidth(380);
    vistaVigas_->horizontalHeader()->resizeSection(0, 64);
}

bool ExportarCAD::Marcada(int fila) const {
    return filas_[static_cast<std::size_t>(fila - 1)].Marcada;
}

void ExportarCAD::Marcar(int fila, bool marcada) {
    filas_[static_cast<std::size_t>(fila - 1)].Marcada = marcada;
    modelo_->Recargar();
}

void ExportarCAD::MarcarTodas(bool marcada) {
    for (FilaCAD& fila : filas_) fila.Marcada = marcada;
    modelo_->Recargar();
    vistaVigas_->setFocus();
}

void ExportarCAD::CambioFila(int fila) {
    try {
        listaConcreto_->AbsolutePosition(fila - 1);
        programa_.Viga.NombreVigaActual = listaConcreto_->Campo("NombreViga").Texto();
        LeerViga(programa_.Estado, programa_.Viga);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    lienzo_->Pintar();
}

void ExportarCAD::MostrarPanel(bool visible) {
    panelP_->setVisible(visible);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void ExportarCAD::Exportar() {
    if (std::none_of(filas_.begin(), filas_.end(), [](const FilaCAD& f) { return f.Marcada; })) {
        programa_.Dialogo().Mensaje(
            {"No ha Seleccionado Vigas para Exportar a Korvel-CAD Estructural!        \n",
             "Exportar Viga a Korvel-CAD Estructural 8.0", BotonesMensaje::Aceptar,
             IconoMensaje::Advertencia, 1});
        vistaVigas_->setFocus();
        return;
    }
    if (!listaConcreto_) return;
    ModeloCAD modelo{programa_.Estado,     programa_.Proyecto, programa_.Viga,
                     programa_.Resultados, programa_.Vista,    *listaConcreto_};
    PasosCAD pasos{[this](bool visible) { MostrarPanel(visible); },
                   [this](double valor) {
                       progreso_->setValue(static_cast<int>(valor));
                       QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
                   }};
    OpcionesCAD opciones{option_[1]->isChecked(), option_[3]->isChecked()};
    try {
        if (ExportarCAD70(modelo, programa_.Dialogo(), programa_.Carpetas, filas_,
                          vistaVigas_->currentIndex().row() + 1, opciones, pasos) == 0)
            vistaVigas_->setFocus();
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    lienzo_->Pintar();
}

void ExportarCAD::Directorio() {
    const RelojDeArena reloj;
    QDesktopServices::openUrl(QUrl::fromLocalFile(Qs(CarpetaProyectosCAD(programa_.Carpetas))));
}

} // namespace trevalo
