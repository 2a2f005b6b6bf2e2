#include "shell/VigasProyecto.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>
#include <filesystem>

#include "analysis/AnalisisVigasP.h"
#include "drawing/OperacionesVista.h"
#include "model/Conversiones.h"
#include "output/ProgramaInforme.h"
#include "shell/CristalReport.h"
#include "shell/EsquinaNo.h"
#include "shell/ExportarCAD.h"
#include "shell/Iconos.h"
#include "shell/ImpreReport.h"
#include "shell/ImpreVigas.h"
#include "shell/ListaVigas.h"
#include "shell/NuevaViga.h"
#include "shell/Ordenes.h"
#include "shell/PantallaViga.h"
#include "shell/Renombrar.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"
#include "shell/VigaDatos.h"
#include "shell/VigaSalvarComo.h"
#include "store/BaseDatos.h"
#include "store/CicloProyecto.h"

namespace trevalo {

namespace {

const char* const Pestanas[] = {
    "1.- Geometría y Cargas en la Viga", "2.- Diagramas de Cortes y Momentos",
    "3.- Análisis y Diseño de la Viga", "4.- Desplazamientos de las Juntas"};

const Herramienta Herramientas[] = {
    {"ID_Abrir", "Abrir un Proyecto Existente", false},
    {"ID_Cuadricula", "Cuadrícula de Fondo", true},
    {"ID_ZoomIN", "Acercar", false},
    {"ID_ZoomOut", "Alejar", false},
    {"ID_ZoomExtents", "Ver Toda la Viga", false},
    {"ID_PanRealtime", "Desplazar el Dibujo", true},
    {"ID_Aumentar", "Aumentar las Estaciones", false},
    {"ID_Disminuir", "Disminuir las Estaciones", false},
    {"ID_LetraMas", "Aumentar el Tamaño del Texto", false},
    {"ID_LetraMenos", "Disminuir el Tamaño del Texto", false},
    {"ID_LetraR", "Tamaño Normal del Texto", false},
    {"ID_Editar", "Editar la Viga Seleccionada", false},
    {"ID_KorvelCAD", "Exportar a Korvel-CAD Estructural 8.0", false},
};

// The commands of the window: object name, caption, tip title, tip text.
const Orden Ordenes[] = {
    {"LSButton3", " Crear Nueva Viga ", "Crear Viga", "Crear una nueva viga en el proyecto. "},
    {"LSButton19", " Editar la Viga Seleccionada ", "Editar Viga", "Editar la viga seleccionada. "},
    {"LSButton20", " Crear Viga a partir de la Seleccionada ", "Crear Viga",
     "Crear Viga a partir de la seleccionada. "},
    {"LSButton21", " Renombrar la Viga Seleccionada ", "Renombrar Viga",
     "Renombrar la viga seleccionada. "},
    {"LSButton22", " Eliminar la Viga Seleccionada ", "Eliminar Viga",
     "Eliminar la viga seleccionada. "},
    {"LSButton15", " Exportar Resultados del Análisis y Diseño ", "Exportar Resultados",
     "Exportar Resultados del Análisis y Diseño. "},
    {"KorvelButton1", " Exportar a Korvel-CAD Estructural 8.0 ", "Exportar a Korvel-CAD",
     " Exportar las vigas al programa\nKorvel-CAD Estructural 8.0 "},
    {"LSButton2", " Retorno ", "", ""},
};

} // namespace

VigasProyecto::VigasProyecto(Programa& programa, QWidget* parent)
    : QDialog(parent), programa_(programa), lista_(new ListaVigas(this)),
      toolTip_(new ToolTipTrevalo(this)) {
    setObjectName(QStringLiteral("VigasProyecto"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowFlag(Qt::WindowMinimizeButtonHint);

    vistaVigas_ = new QTableView(this);
    vistaVigas_->setModel(lista_);
    vistaVigas_->setObjectName(QStringLiteral("Spread1"));
    vistaVigas_->setAccessibleName(QStringLiteral("Vigas del Proyecto"));
    nombreViga_ = new QLabel(this);
    nombreViga_->setObjectName(QStringLiteral("LblNombre"));
    pestanas_ = new QTabBar(this);
    pestanas_->setObjectName(QStringLiteral("Tab1"));
    for (const char* t : Pestanas) pestanas_->addTab(QString::fromUtf8(t));
    pantalla_ = new PantallaViga(programa_, true, this);
    pantalla_->setObjectName(QStringLiteral("Picture1"));

    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(vistaVigas_, 1);
    auto* mover = new QHBoxLayout;
    for (int i = 0; i < 2; ++i) {
        btoMove_[i] = new QPushButton(i == 0 ? QStringLiteral("◀") : QStringLiteral("▶"), this);
        btoMove_[i]->setObjectName(QStringLiteral("BtoMove%1").arg(i));
        btoMove_[i]->setAccessibleName(i == 0 ? QStringLiteral("Viga Anterior")
                                              : QStringLiteral("Viga Siguiente"));
        btoMove_[i]->setToolTip(btoMove_[i]->accessibleName());
        connect(btoMove_[i], &QPushButton::clicked, this, [this, i] { BtoMove_Click(i); });
        mover->addWidget(btoMove_[i]);
    }
    izquierda->addLayout(mover);
    izquierda->addWidget(CrearBotones());

    auto* derecha = new QVBoxLayout;
    derecha->addWidget(CrearHerramientas());
    auto* nombre = new QHBoxLayout;
    nombre->addWidget(pestanas_, 1);
    nombre->addWidget(nombreViga_);
    derecha->addLayout(nombre);
    derecha->addWidget(pantalla_, 1);

    panelProgreso_ = new QWidget(this);
    panelProgreso_->setObjectName(QStringLiteral("LSPanelP"));
    auto* progreso = new QHBoxLayout(panelProgreso_);
    textoProgreso_ = new QLabel(panelProgreso_);
    textoProgreso_->setObjectName(QStringLiteral("LSLabel4"));
    progreso_ = new QProgressBar(panelProgreso_);
    progreso_->setObjectName(QStringLiteral("ProgressBar1"));
    progreso->addWidget(textoProgreso_);
    progreso->addWidget(progreso_, 1);
    panelProgreso_->hide();
    derecha->addWidget(panelProgreso_);

    auto* todo = new QHBoxLayout(this);
    todo->addLayout(izquierda);
    todo->addLayout(derecha, 1);

    menuLienzo_ = new QMenu(this);
    menuLienzo_->setObjectName(QStringLiteral("ID_Pantalla"));
    for (const char* clave : {"ID_Editar", "", "ID_KorvelCAD", "", "ID_ZoomIN", "ID_ZoomOut", "",
                              "ID_PanRealtime", "", "ID_ZoomExtents"}) {
        if (*clave == '\0')
            menuLienzo_->addSeparator();
        else
            menuLienzo_->addAction(Accion(QString::fromUtf8(clave)));
    }

    connect(pestanas_, &QTabBar::currentChanged, this, [this](int i) { ClickPestana(i + 1); });
    // A row chosen in the view loads its beam; the list's own changes only show in the view.
    connect(vistaVigas_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& actual) {
                const int fila = actual.row() + 1;
                if (!actual.isValid() || fila == lista_->Actual()) return;
                lista_->FijarActual(fila);
                CambioFila(fila);
            });
    connect(lista_, &ListaVigas::ActualCambiada, this, &VigasProyecto::SeguirActual);
    connect(lista_, &ListaVigas::Movida, this, [this](int fila) {
        programa_.Vista.ModoEditor = false;
        ColoqueVigasSpread(fila);
    });
    connect(pantalla_, &PantallaViga::MenuContextual, this, &VigasProyecto::MostrarMenuContextual);
    connect(pantalla_, &PantallaViga::Redimensionado, this, &VigasProyecto::Redimensionado);

    // The load of the window.
    toolTip_->Configurar(programa_.Tapiz);
    ConfigurarSpread();
    auto& estado = programa_.Estado;
    setWindowTitle(Qs("Trevalo 5.0  Proyecto:[" + estado.NombreProyecto + "]"));
    try {
        AbrirProyectoArchivo(RutaProyectoActual(programa_.Carpetas, estado), estado);
        LeerGeneralProyecto(*estado.BDProyecto, programa_.Proyecto);
        abierto_ = true;
    } catch (const ErrorTrevalo& e) {
        estado.BDProyecto.reset();
        estado.RsGeneralViga.reset();
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    ColoquePantalla();
    if (Filas() > 0) {
        FijarFilaActiva(1);
        Tomar(1);
    }
    Botones();
    auto& vista = programa_.Vista;
    Vista();
    vista.ModoEditor = false;
    vista.EstacionesDiseno = 2;
    vista.VerJuntas = false;
    ElegirPestana(1);

    if (const QScreen* pantalla = screen()) {
        const QRect zona = pantalla->availableGeometry();
        resize(zona.width() * 95 / 100, zona.height() * 9 / 10);
        move(zona.center() - rect().center());
    }
    setWindowState(Qt::WindowMaximized);
    cargando_ = false;
}

VigasProyecto::~VigasProyecto() = default;

QToolBar* VigasProyecto::CrearHerramientas() {
    return BarraHerramientas(
        *this, Herramientas, *pantalla_, [this](const QString& clave) { Despachar(clave); },
        {"ID_Abrir", "ID_PanRealtime", "ID_LetraR"}, acciones_);
}

QWidget* VigasProyecto::CrearBotones() {
    auto* panel = new QWidget(this);
    auto* capas = new QVBoxLayout(panel);
    capas->setContentsMargins(0, 0, 0, 0);
    for (const Orden& o : Ordenes) {
        QPushButton* b = CrearBoton(*panel, o);
        const QString nombre = b->objectName();
        botones_[nombre] = b;
        if (nombre == QStringLiteral("LSButton2")) capas->addSpacing(12);
        capas->addWidget(b);
    }
    connect(botones_[QStringLiteral("LSButton3")], &QPushButton::clicked, this,
            &VigasProyecto::CrearViga);
    connect(botones_[QStringLiteral("LSButton19")], &QPushButton::clicked, this,
            &VigasProyecto::EditarViga);
    connect(botones_[QStringLiteral("LSButton20")], &QPushButton::clicked, this,
            &VigasProyecto::CopiarVigaSeleccionada);
    connect(botones_[QStringLiteral("LSButton21")], &QPushButton::clicked, this,
            &VigasProyecto::RenombrarSeleccionada);
    connect(botones_[QStringLiteral("LSButton22")], &QPushButton::clicked, this,
            &VigasProyecto::EliminarVigaSeleccionada);
    connect(botones_[QStringLiteral("LSButton15")], &QPushButton::clicked, this,
            &VigasProyecto::ExportarResultados);
    connect(botones_[QStringLiteral("KorvelButton1")], &QPushButton::clicked, this,
            [this] { Despachar(QStringLiteral("ID_KorvelCAD")); });
    connect(botones_[QStringLiteral("LSButton2")], &QPushButton::clicked, this, &QDialog::reject);
    return panel;
}

void VigasProyecto::ConfigurarSpread() {
    vistaVigas_->horizontalHeader()->setStretchLastSection(true);
    vistaVigas_->verticalHeader()->setDefaultSectionSize(18);
    vistaVigas_->horizontalHeader()->setFixedHeight(22);
    vistaVigas_->setSelectionMode(QAbstractItemView::SingleSelection);
    vistaVigas_->setSelectionBehavior(QAbstractItemView::SelectRows);
    vistaVigas_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    vistaVigas_->setMinimumWidth(240);
    EsquinaNo(*vistaVigas_);
    for (const char* clave :
         {"ID_Aumentar", "ID_Disminuir", "ID_LetraMas", "ID_LetraMenos", "ID_LetraR"})
        Accion(QString::fromUtf8(clave))->setEnabled(false);
    Accion(QStringLiteral("ID_Cuadricula"))->setChecked(programa_.Vista.VerCuadricula);
}

QAction* VigasProyecto::Accion(const QString& clave) const {
    const auto i = acciones_.find(clave);
    return i == acciones_.end() ? nullptr : i->second;
}

QPushButton* VigasProyecto::Boton(const QString& nombre) const {
    const auto i = botones_.find(nombre);
    return i == botones_.end() ? nullptr : i->second;
}

int VigasProyecto::FilaActiva() const {
    return lista_->Actual();
}

int VigasProyecto::Filas() const {
    return lista_->Filas();
}

void VigasProyecto::FijarFilaActiva(int fila) {
    lista_->FijarActual(fila);
}

std::vector<std::string> VigasProyecto::NombresLista() const {
    return lista_->Nombres();
}

void VigasProyecto::SeguirActual(int fila) {
    const QModelIndex indice = lista_->index(fila - 1, 0);
    if (indice.isValid())
        vistaVigas_->selectionModel()->setCurrentIndex(indice, QItemSelectionModel::ClearAndSelect |
                                                                   QItemSelectionModel::Rows);
    else
        vistaVigas_->selectionModel()->clear();
    Botones();
}

int VigasProyecto::Pestana() const {
    return pestanas_->currentIndex() + 1;
}

void VigasProyecto::ElegirPestana(int pestana) {
    if (Pestana() == pestana)
        ClickPestana(pestana);
    else
        pestanas_->setCurrentIndex(pestana - 1);
}

// --- The rule of load, analysis and drawing -----------------------------------------------

void VigasProyecto::ColoquePantalla() {
    std::vector<std::string> nombres;
    auto& lista = programa_.Estado.RsGeneralViga;
    if (lista)
        for (lista->MoveFirst(); !lista->AlFinal(); lista->MoveNext())
            nombres.push_back(lista->Campo("NombreViga").Texto());
    const QSignalBlocker bloqueo(vistaVigas_->selectionModel()); // no beam is loaded by the view
    lista_->Colocar(std::move(nombres));
}

void VigasProyecto::Tomar(int fila) {
    auto& estado = programa_.Estado;
    estado.RsGeneralViga->AbsolutePosition(fila - 1);
    programa_.Viga.NombreVigaActual = estado.RsGeneralViga->Campo("NombreViga").Texto();
    nombreViga_->setText(Qs(programa_.Viga.NombreVigaActual));
    try {
        LeerViga(estado, programa_.Viga);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
}

void VigasProyecto::Resolver() {
    if (Pestana() <= 1) return;
    try {
        AnalizarViga(LectorGeneralProyecto(*programa_.Estado.BDProyecto), programa_.Proyecto,
                     programa_.Viga, programa_.Resultados);
    } catch (...) {
        // The results are cleared by now; the picture that follows shows the elevation alone.
        programa_.Dialogo().Mensaje(MensajeFalla(ErrorDeExcepcion(std::current_exception())));
    }
}

void VigasProyecto::Botones() {
    const int n = Filas(), p = FilaActiva() - 1;
    btoMove_[0]->setEnabled(n > 1 && p > 0);
    btoMove_[1]->setEnabled(n > 1 && p < n - 1);
}

void VigasProyecto::Vista() {
    auto& vista = programa_.Vista;
    vista.FactorZoom = 1.0;
    vista.PanX = vista.PanY = 0.0;
    vista.EstacionesDiagrama = 10;
    vista.EnPantalla = true;
    vista.FactorLetra = 1.0;
}

void VigasProyecto::Pintar() {
    if (Filas() == 0)
        pantalla_->Limpiar();
    else
        pantalla_->Pintar();
}

void VigasProyecto::ResolverYPintar() {
    Resolver();
    Pintar();
}

void VigasProyecto::CambioFila(int fila) {
    Tomar(fila);
    Botones();
    Vista();
    ResolverYPintar();
}

void VigasProyecto::HabilitarHerramientas(int pestana) {
    for (const char* clave : {"ID_Aumentar", "ID_Disminuir"})
        Accion(QString::fromUtf8(clave))->setEnabled(pestana == 2 || pestana == 3);
    for (const char* clave : {"ID_LetraMas", "ID_LetraMenos", "ID_LetraR"})
        Accion(QString::fromUtf8(clave))->setEnabled(pestana == 3);
}

void VigasProyecto::ClickPestana(int pestana) {
    trevalo::ElegirPestana(programa_.Vista, pestana);
    HabilitarHerramientas(pestana);
    if (Filas() > 0)
        ResolverYPintar();
    else
        Pintar();
    if (!cargando_) pantalla_->setFocus();
}

void VigasProyecto::Redimensionado() {
    if (cargando_) return;
    if (Filas() > 0) {
        programa_.Vista.EnPantalla = true;
        try {
            LeerViga(programa_.Estado, programa_.Viga);
        } catch (const ErrorTrevalo& e) {
            programa_.Dialogo().Mensaje(MensajeError(e));
        }
    }
    Pintar();
}

void VigasProyecto::BtoMove_Click(int indice) {
    programa_.Vista.ModoEditor = false;
    if (lista_->Mover(indice)) pantalla_->setFocus();
}

void VigasProyecto::ColoqueVigasSpread(int fila) {
    Tomar(fila);
    Resolver();
    ColoquePantalla();
    Vista();
    Pintar();
}

// --- Tools ---------------------------------------------------------------------------------

void VigasProyecto::Despachar(const QString& clave) {
    auto& vista = programa_.Vista;
    const int pestana = Pestana();
    if (clave == QStringLiteral("ID_Abrir")) return AbrirProyectoVentana();
    if (clave == QStringLiteral("ID_Editar")) return EditarViga();
    if (clave == QStringLiteral("ID_KorvelCAD")) return ExportaVigasCAD();
    if (clave == QStringLiteral("ID_ZoomIN")) return Filas() > 0 ? pantalla_->ZoomIn() : Pintar();
    if (clave == QStringLiteral("ID_ZoomOut")) return Filas() > 0 ? pantalla_->ZoomOut() : Pintar();
    if (clave == QStringLiteral("ID_ZoomExtents"))
        return Filas() > 0 ? pantalla_->ZoomExtents() : Pintar();
    if (clave == QStringLiteral("ID_Cuadricula"))
        vista.VerCuadricula = Accion(clave)->isChecked();
    else if (clave == QStringLiteral("ID_Aumentar"))
        AumentarEstaciones(vista, pestana);
    else if (clave == QStringLiteral("ID_Disminuir"))
        DisminuirEstaciones(vista, pestana);
    else if (clave == QStringLiteral("ID_LetraMas"))
        LetraMas(vista);
    else if (clave == QStringLiteral("ID_LetraMenos"))
        LetraMenos(vista);
    else if (clave == QStringLiteral("ID_LetraR"))
        LetraR(vista);
    else
        return;
    Pintar();
    pantalla_->setFocus();
}

void VigasProyecto::MostrarMenuContextual(const QPoint& lugar) {
    menuLienzo_->popup(lugar);
}

// --- Beam commands -------------------------------------------------------------------------

void VigasProyecto::MostrarEditor() {
    VigaDatos editor(programa_, lista_, this);
    editor.exec();
}

void VigasProyecto::RestaurarVigaActiva(int pestana) {
    auto& vista = programa_.Vista;
    Tomar(FilaActiva());
    vista.ModoEditor = false;
    Vista();
    vista.VerJuntas = false;
    ElegirPestana(pestana);
    pantalla_->ZoomExtents();
}

void VigasProyecto::RestaurarTrasRecorrido() {
    if (Filas() > 0) RestaurarVigaActiva(Pestana());
    pantalla_->setFocus();
}

void VigasProyecto::ExportaVigasCAD() {
    {
        ExportarCAD dialogo(programa_, NombresLista(), this);
        dialogo.exec();
    }
    RestaurarTrasRecorrido();
}

void VigasProyecto::CrearViga() {
    programa_.Viga.VigaNueva = true;
    const auto mostrarFila = [this](int fila) {
        FijarFilaActiva(fila);
        CambioFila(fila);
    };
    if (NuevaViga(programa_, FilaActiva(), NombresLista(), mostrarFila, this).exec() !=
        QDialog::Accepted)
        return pantalla_->setFocus();
    // The new beam is the last record, and goes on the last row although the list is sorted.
    AgregarUltimaFila();
    programa_.Viga.VigaNueva = true;
    MostrarEditor();
    RestaurarVigaActiva(1);
}

void VigasProyecto::AgregarUltimaFila() {
    auto& lista = *programa_.Estado.RsGeneralViga;
    lista.MoveLast();
    programa_.Viga.NombreVigaActual = lista.Campo("NombreViga").Texto();
    {
        const QSignalBlocker bloqueo(vistaVigas_->selectionModel());
        lista_->Agregar(programa_.Viga.NombreVigaActual);
    }
    FijarFilaActiva(Filas());
    nombreViga_->setText(Qs(programa_.Viga.NombreVigaActual));
    Botones();
    programa_.Vista.FactorZoom = 1.0;
    programa_.Vista.PanX = programa_.Vista.PanY = 0.0;
    try {
        LeerViga(programa_.Estado, programa_.Viga);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    programa_.Viga.TramoMarcado.Redim(programa_.Viga.NT);
    pantalla_->ZoomExtents();
}

void VigasProyecto::EditarViga() {
    if (Filas() == 0) return;
    auto& vista = programa_.Vista;
    programa_.Viga.VigaNueva = false;
    Tomar(FilaActiva());
    Vista();
    vista.ModoEditor = false;
    Pintar();
    vista.ModoEditor = true;
    vista.VerDiagramas = vista.VerDiseno = false;
    MostrarEditor();
    // What the editor left in the model is dropped: the beam is read again from the file.
    vista.ModoEditor = false;
    try {
        LeerViga(programa_.Estado, programa_.Viga);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    Vista();
    vista.VerJuntas = false;
    // The flags of the tab in front; on tab 4 they stay as they were before the editor.
    const int pestana = Pestana();
    if (pestana == 2) vista.VerDiagramas = true;
    if (pestana == 3) {
        vista.VerDiseno = true;
        vista.FactorLetra = 1.0;
        vista.EstacionesDiagrama = 10;
        vista.EstacionesDiseno = 2;
    }
    Resolver();
    pantalla_->ZoomExtents();
}

void VigasProyecto::CopiarVigaSeleccionada() {
    if (Filas() == 0) return;
    if (VigaSalvarComo(programa_, FilaActiva(), this).exec() == QDialog::Accepted) {
        AgregarUltimaFila();
        RestaurarVigaActiva(1);
    }
    pantalla_->setFocus();
}

void VigasProyecto::RenombrarSeleccionada() {
    if (Filas() == 0) return;
    auto& estado = programa_.Estado;
    estado.RsGeneralViga->AbsolutePosition(FilaActiva() - 1);
    if (Renombrar(programa_, this).exec() == QDialog::Accepted) RenombrarVigaSeleccionada();
    pantalla_->setFocus();
}

void VigasProyecto::RenombrarVigaSeleccionada() {
    auto& estado = programa_.Estado;
    try {
        RenombrarViga(estado);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    AbrirRsGeneralViga(estado, ConsultaListaVigas);
    ColoquePantalla();
    // The list is in name order again, and the first beam is the one shown.
    FijarFilaActiva(1);
    Tomar(1);
    Botones();
    ResolverYPintar();
}

void VigasProyecto::EliminarVigaSeleccionada() {
    if (Filas() == 0) return;
    auto& estado = programa_.Estado;
    const int fila = FilaActiva();
    programa_.Viga.NombreVigaActual = NombresLista()[static_cast<std::size_t>(fila - 1)];
    if (!ConfirmarEliminarViga(programa_.Viga.NombreVigaActual, estado, programa_.Dialogo()))
        return pantalla_->setFocus();
    try {
        estado.RsGeneralViga->AbsolutePosition(fila - 1);
        EliminarViga(estado, programa_.Viga.NombreVigaActual);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
        return pantalla_->setFocus();
    }
    nombreViga_->clear();
    {
        const QSignalBlocker bloqueo(vistaVigas_->selectionModel());
        lista_->Quitar(fila);
    }
    if (Filas() > 0) {
        const int activa = std::min(fila, Filas());
        FijarFilaActiva(activa);
        Tomar(activa);
        Botones();
        Vista();
        ElegirPestana(1);
    } else {
        Botones();
        Pintar();
    }
    pantalla_->setFocus();
}

void VigasProyecto::ExportarResultados() {
    if (Filas() == 0) return;
    {
        ImpreVigas dialogo(programa_, NombresLista(), this);
        dialogo.exec();
    }
    if (programa_.Vista.FactorZoom != 1.0) {
        Vista();
        Pintar();
    }
    // The settings of the last acceptance are in force also when the dialog was cancelled.
    LlenarImpreDatos();
    {
        ImpreReport dialogo(programa_, this);
        dialogo.exec();
    }
    // The walk left the last beam reported in the model.
    RestaurarTrasRecorrido();
}

void VigasProyecto::LlenarImpreDatos() {
    const RelojDeArena reloj;
    ModeloInforme modelo{programa_.Estado, programa_.Proyecto, programa_.Viga, programa_.Resultados,
                         programa_.Vista};
    const auto progreso = [this](const std::string& etiqueta, double valor) {
        panelProgreso_->show();
        panelProgreso_->raise();
        textoProgreso_->setText(Qs(etiqueta));
        progreso_->setValue(std::min(100, static_cast<int>(valor + 0.5)));
        panelProgreso_->repaint();
    };
    try {
        programa_.Dibujos.clear();
        programa_.Dibujos =
            LlenarInformePrograma(modelo, programa_.Dialogo(), NombresLista(), programa_.Impresion,
                                  programa_.Carpetas.RutaPrograma, RutaTemporal(programa_.Carpetas),
                                  programa_.Carpetas.VersionPrograma, progreso);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    panelProgreso_->hide();
}

void VigasProyecto::AbrirProyectoVentana() {
    auto& estado = programa_.Estado;
    const ArchivoElegido archivo =
        programa_.Dialogo().Archivo({"Abrir un Proyecto Existente", ModoDialogo::Abrir,
                                     FiltroProyectos, 1, programa_.Carpetas.RutaProyectos, ""});
    if (archivo.Cancelado) return;
    const RelojDeArena reloj;
    estado.NombreProyecto = archivo.FileTitle;
    estado.CarpetaProyecto = std::filesystem::path(archivo.FileName).parent_path().string();
    setWindowTitle(Qs("Trevalo 5.0  Proyecto:[" + estado.NombreProyecto + "]"));
    // Kept as users know it: the list is filled again from the beams of the database opened
    // when the window was loaded; the new name takes effect at the next opening.
    ColoquePantalla();
    if (Filas() > 0) {
        FijarFilaActiva(1);
        Tomar(1);
    }
    Botones();
    Vista();
    programa_.Vista.ModoEditor = false;
    programa_.Vista.EstacionesDiseno = 2;
    programa_.Vista.VerJuntas = false;
    ElegirPestana(1);
}

} // namespace trevalo
