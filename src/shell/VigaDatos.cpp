#include "shell/VigaDatos.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>
#include <QUndoStack>
#include <QVBoxLayout>

#include "drawing/OperacionesVista.h"
#include "shell/CampoNumero.h"
#include "shell/Carga01.h"
#include "shell/Carga02.h"
#include "shell/Carga03.h"
#include "shell/Carga04.h"
#include "shell/Carga05.h"
#include "shell/Carga06.h"
#include "shell/Carga07.h"
#include "shell/Carga08.h"
#include "shell/EsquinaNo.h"
#include "shell/Iconos.h"
#include "shell/ListaVigas.h"
#include "shell/PantallaViga.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"
#include "shell/VigasMetalicas.h"
#include "store/BaseDatos.h"

namespace trevalo {

namespace {

constexpr std::int32_t ColorMarcado = 0xB9ECFF;
constexpr std::int32_t ColorBlanco = 0xFFFFFF;

Pregunta Aviso(const std::string& texto, const std::string& titulo) {
    return {texto, titulo, BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1};
}

// The value of a slot, or zero beyond the list (a list shorter than its count).
template <typename T> T En(const Arreglo<T>& a, long i) {
    return i >= 1 && i <= a.Ubound() ? a(i) : T{};
}

// What a count box shows of its change: the grid its Return leads to, the grids written again
// and whether the drawing follows.
struct CajaCuenta {
    int destino;
    std::vector<int> grids;
    bool redibujar;
};

const CajaCuenta Cajas[8] = {{},
                             {2, {1, 2, 7, 10}, true},
                             {3, {3}, true},
                             {4, {4}, true},
                             {5, {5}, true},
                             {6, {6, 7}, true},
                             {8, {8, 9}, false},
                             {11, {11}, false}};

// The caption over the row headers of the grids that have one.
const std::pair<int, const char*> Esquinas[] = {{1, "No"},     {2, "Tramo"}, {6, "Tipo"},
                                                {7, "Tramo"},  {8, "Tipo"},  {9, "Tramo"},
                                                {10, "Tramo"}, {12, "Junta"}};

const Herramienta Herramientas[] = {
    {"ID_ZoomIN", "Acercar", false},
    {"ID_ZoomOut", "Alejar", false},
    {"ID_ZoomExtents", "Ver Toda la Viga", false},
    {"ID_PanRealtime", "Desplazar el Dibujo", true},
    {"ID_NJuntas", "Números de las Juntas", true},
    {"ID_DIzquierda", "Mover a la Izquierda", false},
    {"ID_DDerecha", "Mover a la Derecha", false},
    {"ID_DArriba", "Mover Arriba", false},
    {"ID_DAbajo", "Mover Abajo", false},
};

// The input box of a block: grid, column, prompt, title, and the title of its error box.
struct Bloque {
    int spread;
    int columna;
    const char* texto;
    const char* titulo;
    const char* tituloError;
};

const Bloque Bloques[] = {
    {2, 1, "Entre la Longitud de los Tramos (m):", "Longitud de los Tramos",
     "Longitud de los Tramos"},
    {3, 2, "Entre el Desplazamiento (m) Y:", "Desplazamiento de las Juntas",
     "Longitud de los Tramos"},
    {3, 3, "Entre el Desplazamiento (m) Y:", "Desplazamiento de las Juntas",
     "Longitud de los Tramos"},
    {5, 2, "Rigidez Horizontal del Resorte RdX:", "Entre el Valor", "Apoyos con Resortes"},
    {5, 3, "Rigidez Vertical del Resorte RdY:", "Entre el Valor", "Apoyos con Resortes"},
    {5, 4, "Rigidez Rotacional del Resorte RdZ:", "Entre el Valor", "Apoyos con Resortes"},
    {7, 1, "Tipos de Vigas:", "Tipos de Viga", "Tipos de Vigas"},
    {9, 1, "Tipos de Vigas:", "Tipos de Viga", "Tipos de Vigas"},
    {12, 1, "Acotamiento a la Izquierda LIqz:", "Entre el Valor", "Acotamientos para Korvel-CAD"},
    {12, 2, "Acotamiento a la Derecha LDer:", "Entre el Valor", "Acotamientos para Korvel-CAD"},
    {12, 3, "Altura de la Viga H:", "Entre el Valor", "Acotamientos para Korvel-CAD"},
};

// The load buttons: name, caption, and the title and text of the warning with no span marked.
struct BotonCargaDef {
    const char* nombre;
    const char* titulo;
    const char* tituloAviso;
    const char* textoAviso;
};

const char* const SinTramoLargo = "\nNo ha seleccionado ningún Tramo...       ";
const char* const SinTramoCorto = "No ha seleccionado ningún Tramo...    ";

const BotonCargaDef BotonesCarga[] = {
    {"LSButton24", " Carga Uniforme ", "Cargas en los Tramos", SinTramoLargo},
    {"LSButton25", " Cargas Puntuales ", "Carga Uniforme en los Tramos", SinTramoLargo},
    {"LSButton26", " Cargas Parciales Uniformes ", "Cargas en los Tramos", SinTramoCorto},
    {"LSButton27", " Carga Triangular ", "Cargas en los Tramos", SinTramoCorto},
    {"LSButton28", " Carga Trapezoidal Tipo 1 ", "Cargas en los Tramos", SinTramoCorto},
    {"LSButton29", " Triangular Derecha ", "Cargas en los Tramos", SinTramoCorto},
    {"LSButton30", " Triangular Izquierda ", "Cargas en los Tramos", SinTramoCorto},
    {"LSButton31", " Carga Trapezoidal Tipo 2 ", "Cargas en los Tramos", SinTramoCorto},
};

QWidget* Marco(const QString& titulo, QLayout* contenido) {
    auto* marco = new QGroupBox(titulo);
    marco->setLayout(contenido);
    return marco;
}

} // namespace

// --- The window ----------------------------------------------------------------------------

VigaDatos::VigaDatos(Programa& programa, ListaVigas* vigas, QWidget* parent)
    : QDialog(parent), programa_(programa), edicion_(programa.Viga), vigas_(vigas),
      toolTip_(new ToolTipTrevalo(this)), pila_(new QUndoStack(this)) {
    // Each step holds the beam twice: a long history of a long beam is bounded.
    pila_->setUndoLimit(100);
    setObjectName(QStringLiteral("VigaDatos"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    lblNombre_ = new QLabel(this);
    lblNombre_->setObjectName(QStringLiteral("LblNombre"));
    pantalla_ = new PantallaViga(programa_, false, this);
    pantalla_->setObjectName(QStringLiteral("Picture1"));
    pantalla_->PermitirBanda([this] { return Pagina() == 7; });

    // The tool bar runs along the top of the window, so that every tool, undo and redo
    // included, shows at the editor's first size instead of behind the bar's overflow.
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(CrearHerramientas());
    arriba->addStretch();
    arriba->addWidget(lblNombre_);
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(CrearPaginas(), 1);
    izquierda->addWidget(CrearPie());
    auto* abajo = new QHBoxLayout;
    abajo->addLayout(izquierda);
    abajo->addWidget(pantalla_, 1);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(arriba);
    todo->addLayout(abajo, 1);

    connect(pantalla_, &PantallaViga::Redimensionado, this, &VigaDatos::Redibujar);
    connect(pantalla_, &PantallaViga::BandaSoltada, this, &VigaDatos::BandaSoltada);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this,
            &VigaDatos::Salvar);

    // The load of the window.
    ConfigurarToolTips();
    toolTip_->Configurar(programa_.Tapiz);
    VigaActual& viga = programa_.Viga;
    Rotulos();
    if (viga.VigaNueva) {
        try {
            LeerViga(programa_.Estado, viga);
        } catch (const ErrorTrevalo& e) {
            programa_.Dialogo().Mensaje(MensajeError(e));
        }
        btoMove_[0]->setEnabled(true);
        btoMove_[1]->setEnabled(false);
    } else {
        CopiarMovimientos();
    }
    if (vigas_) connect(vigas_, &ListaVigas::ActualCambiada, this, &VigaDatos::CopiarMovimientos);
    viga.VigaNueva = false;
    ConfigurarSpread();
    ColoquePantalla();
    programa_.Vista.ModoEditor = true;
    IrA(1, false);
    button1_->setEnabled(false);
    EmpezarHistoria();
    cambiando_ = 0;
    if (const QScreen* pantalla = screen()) {
        const QRect zona = pantalla->availableGeometry();
        resize(zona.width() * 92 / 100, zona.height() * 85 / 100);
        move(zona.center() - rect().center());
    }
    cargando_ = false;
}

VigaDatos::~VigaDatos() = default;

void VigaDatos::CopiarMovimientos() {
    for (int i = 0; i < 2; ++i) btoMove_[i]->setEnabled(vigas_ && vigas_->Permitido(i));
}

void VigaDatos::Rotulos() {
    const QString nombre = Qs(programa_.Viga.NombreVigaActual);
    setWindowTitle(QStringLiteral("Datos Generales de la Viga: [ ") + nombre +
                   QStringLiteral(" ]"));
    lblNombre_->setText(nombre);
}

QPushButton* VigaDatos::CrearBoton(const char* nombre, const char* titulo) {
    auto* b = new QPushButton(QString::fromUtf8(titulo), this);
    b->setObjectName(QString::fromUtf8(nombre));
    b->setAutoDefault(false);
    botones_[b->objectName()] = b;
    return b;
}

QTableWidget* VigaDatos::CrearSpread(int n, const QString& nombre, const QStringList& columnas) {
    auto* grid = new QTableWidget(0, static_cast<int>(columnas.size()), this);
    grid->setObjectName(QStringLiteral("Spread%1").arg(n));
    grid->setAccessibleName(nombre);
    grid->setHorizontalHeaderLabels(columnas);
    grid->verticalHeader()->setDefaultSectionSize(20);
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->setSelectionMode(QAbstractItemView::ContiguousSelection);
    grid->setTabKeyNavigation(false);
    auto* delegado = new DelegadoNumero(programa_, *grid);
    delegado->ColocarRegla([this, n](const Celda& c) { return ReglaCelda(n, c); });
    // Installed after the delegate's, so that this window sees a paste first.
    grid->installEventFilter(this);
    grid->viewport()->installEventFilter(this);
    connect(grid->horizontalHeader(), &QHeaderView::sectionClicked, this, [this, n](int columna) {
        if (Spread(n).rowCount() > 0) EntradaBloque(n, 1, Spread(n).rowCount(), columna + 1);
    });
    spread_[static_cast<std::size_t>(n)] = grid;
    return grid;
}

QLineEdit* VigaDatos::CrearLong(int n, const QString& titulo) {
    auto* campo = new QLineEdit(this);
    campo->setObjectName(QStringLiteral("Long%1").arg(n));
    campo->setAccessibleName(titulo.trimmed());
    // Digits only: a count is never negative. Its limits are the box's rule (ValorLong), the
    // same on Return and on leaving.
    campo->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,5}")), campo));
    campo->setAlignment(Qt::AlignRight);
    campo->setMaximumWidth(90);
    connect(campo, &QLineEdit::textEdited, this, [this, n] { cambiando_ = 1; });
    connect(campo, &QLineEdit::returnPressed, this, [this, n] { TerminarLong(n, true); });
    campo->installEventFilter(this);
    long_[static_cast<std::size_t>(n)] = campo;
    return campo;
}

namespace {

// A caption and its field on one line, the caption the field's buddy.
QHBoxLayout* Rotulado(const QString& titulo, QWidget* campo) {
    auto* fila = new QHBoxLayout;
    auto* rotulo = new QLabel(titulo);
    rotulo->setBuddy(campo);
    fila->addWidget(rotulo);
    fila->addWidget(campo);
    fila->addStretch();
    return fila;
}

} // namespace

QWidget* VigaDatos::PaginaTramos() {
    option1_ = new QRadioButton(QStringLiteral("La Viga es de Concreto Armado"), this);
    option1_->setObjectName(QStringLiteral("Option1"));
    option2_ = new QRadioButton(QStringLiteral("La Viga es Metálica"), this);
    option2_->setObjectName(QStringLiteral("Option2"));
    connect(option1_, &QRadioButton::toggled, this, [this](bool si) {
        if (si) Material(true);
    });
    connect(option2_, &QRadioButton::toggled, this, [this](bool si) {
        if (si) Material(false);
    });
    auto* capas = new QVBoxLayout;
    capas->addWidget(option1_);
    capas->addWidget(option2_);
    capas->addLayout(Rotulado(QStringLiteral("Número de Tramos = "),
                              CrearLong(1, QStringLiteral("Número de Tramos = "))));
    auto* grids = new QHBoxLayout;
    grids->addWidget(
        CrearSpread(1, QStringLiteral("Nombres de los Ejes"), {QStringLiteral("Nombre Eje")}));
    grids->addWidget(
        CrearSpread(2, QStringLiteral("Longitud de los Tramos"), {QStringLiteral("Longitud")}));
    capas->addLayout(grids, 1);
    return Marco(QStringLiteral("Datos Generales de los Tramos"), capas);
}

QWidget* VigaDatos::PaginaDesplazadas() {
    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Juntas Desplazadas = "),
                              CrearLong(2, QStringLiteral("Juntas Desplazadas = "))));
    capas->addWidget(CrearSpread(3, QStringLiteral("Juntas Desplazadas"),
                                 {QStringLiteral("Junta"), QStringLiteral("Delta X"),
                                  QStringLiteral("Delta Y")}),
                     1);
    return Marco(QStringLiteral("Juntas Desplazadas en la Viga"), capas);
}

QWidget* VigaDatos::PaginaRestringidas() {
    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Juntas Restringidas = "),
                              CrearLong(3, QStringLiteral("Juntas Restringidas = "))));
    auto* fila = new QHBoxLayout;
    fila->addWidget(CrearSpread(4, QStringLiteral("Juntas Restringidas"),
                                {QStringLiteral("Junta"), QStringLiteral("Apoyo\nTipo")}),
                    1);
    auto* apoyos = new QVBoxLayout;
    const char* const nombres[] = {"ButtonP1", "ButtonP2", "ButtonP3", "ButtonP4"};
    const char* const titulos[] = {" Apoyo Fijo ", " Rodillo en X ", " Rodillo en Y ",
                                   " Empotramiento "};
    for (int i = 0; i < 4; ++i) {
        QPushButton* b = CrearBoton(nombres[i], titulos[i]);
        connect(b, &QPushButton::clicked, this, [this, i] { ColocarApoyo(i + 1); });
        apoyos->addWidget(b);
    }
    apoyos->addStretch();
    fila->addLayout(apoyos);
    capas->addLayout(fila, 1);
    return Marco(QStringLiteral("Juntas Restringidas"), capas);
}

QWidget* VigaDatos::PaginaResortes() {
    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Juntas con Resortes = "),
                              CrearLong(4, QStringLiteral("Juntas con Resortes = "))));
    capas->addWidget(
        CrearSpread(5, QStringLiteral("Juntas con Resortes"),
                    {QStringLiteral("Junta"), QStringLiteral("Rdx\n(kgf/m)"),
                     QStringLiteral("Rdy\n(kgf/m)"), QStringLiteral("Rdz\n(kgf-m/rad)")}),
        1);
    return Marco(QStringLiteral("Juntas Restringidas con Resortes"), capas);
}

QWidget* VigaDatos::PaginaTiposConcreto() {
    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Tipos de Vigas = "),
                              CrearLong(5, QStringLiteral("Tipos de Vigas = "))));
    capas->addWidget(CrearSpread(6, QStringLiteral("Tipos de Vigas de Concreto"),
                                 {QStringLiteral("B (m)"), QStringLiteral("H (m)")}),
                     1);
    capas->addWidget(new QLabel(QStringLiteral("Entre los Tipos de Vigas por Tramo")));
    capas->addWidget(CrearSpread(7, QStringLiteral("Tipos de Viga por Tramo (Concreto)"),
                                 {QStringLiteral("Viga Tipo")}),
                     1);
    return Marco(QStringLiteral("Tipos de Viga por Tramo (Concreto Armado)"), capas);
}

QWidget* VigaDatos::PaginaTiposMetalicos() {
    auto* capas = new QVBoxLayout;
    auto* cuenta = Rotulado(QStringLiteral("Tipos de Vigas = "),
                            CrearLong(6, QStringLiteral("Tipos de Vigas (Perfiles) = ")));
    QPushButton* perfiles = CrearBoton("LSButton5", " Perfiles Metálicos ");
    connect(perfiles, &QPushButton::clicked, this, &VigaDatos::PerfilesMetalicos);
    cuenta->addWidget(perfiles);
    capas->addLayout(cuenta);
    capas->addWidget(CrearSpread(8, QStringLiteral("Tipos de Vigas Metálicas"),
                                 {QStringLiteral("Designación"), QStringLiteral("Area\n(cm²)"),
                                  QStringLiteral("Inercia\n(cm⁴)")}),
                     1);
    capas->addWidget(CrearSpread(9, QStringLiteral("Tipos de Viga por Tramo (Metálica)"),
                                 {QStringLiteral("Viga Tipo")}),
                     1);
    return Marco(QStringLiteral("Tipos de Viga por Tramo (Perfiles Metálicos)"), capas);
}

QWidget* VigaDatos::PaginaCargas() {
    double1_ = new CampoNumero(this);
    double1_->setObjectName(QStringLiteral("Double1"));
    double1_->setAccessibleName(QStringLiteral("Factor de Mayoración ="));
    double1_->Configurar("0.00", programa_.Carpetas.SeparadorDecimal,
                         programa_.Carpetas.SeparadorMiles);
    double1_->setMaximumWidth(120);
    connect(double1_, &QLineEdit::textEdited, this, [this] { cambiando_ = 1; });
    connect(double1_, &QLineEdit::returnPressed, this, [this] { TerminarFactor(true); });
    double1_->installEventFilter(this);

    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Factor de Mayoración ="), double1_));
    capas->addWidget(new QLabel(QStringLiteral("Seleccione los Tramos para entrar las Cargas")));
    auto* fila = new QHBoxLayout;
    QTableWidget* marcas =
        CrearSpread(10, QStringLiteral("Tramos con Cargas"), {QStringLiteral("Cargas")});
    new DelegadoMarca(*marcas, 1, [this](int f, bool m) { Marcar(f, m); });
    fila->addWidget(marcas, 1);
    auto* cargas = new QVBoxLayout;
    for (int i = 0; i < 8; ++i) {
        QPushButton* b = CrearBoton(BotonesCarga[i].nombre, BotonesCarga[i].titulo);
        connect(b, &QPushButton::clicked, this, [this, i] { BotonCarga(i + 1); });
        cargas->addWidget(b);
    }
    cargas->addStretch();
    fila->addLayout(cargas);
    capas->addLayout(fila, 1);
    // Two rows, so that the three captions show whole at the editor's first width.
    auto* todos = new QGridLayout;
    connect(CrearBoton("SSCommand1", " Seleccionar todos los Tramos "), &QPushButton::clicked, this,
            &VigaDatos::SeleccionarTodos);
    connect(CrearBoton("SSCommand2", " Desmarcar todos los Tramos "), &QPushButton::clicked, this,
            &VigaDatos::DesmarcarTodos);
    connect(CrearBoton("ButtonE", " Eliminar las cargas de la viga. "), &QPushButton::clicked, this,
            &VigaDatos::EliminarCargas);
    todos->addWidget(botones_[QStringLiteral("SSCommand1")], 0, 0);
    todos->addWidget(botones_[QStringLiteral("SSCommand2")], 0, 1);
    todos->addWidget(botones_[QStringLiteral("ButtonE")], 1, 0, 1, 2);
    capas->addLayout(todos);
    return Marco(QStringLiteral("Cargas de Servicio en los Tramos"), capas);
}

QWidget* VigaDatos::PaginaAcciones() {
    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Juntas con Acciones Nodales = "),
                              CrearLong(7, QStringLiteral("Juntas con Acciones Nodales = "))));
    capas->addWidget(
        CrearSpread(11, QStringLiteral("Acciones Nodales"),
                    {QStringLiteral("Junta"), QStringLiteral("Momento\n(kgf-m)"),
                     QStringLiteral("Vertical\n(kgf)"), QStringLiteral("Horizontal\n(kgf)")}),
        1);
    return Marco(QStringLiteral("Acciones Nodales en las Juntas"), capas);
}

QWidget* VigaDatos::PaginaAcotamiento() {
    auto* capas = new QVBoxLayout;
    capas->addWidget(
        CrearSpread(12, QStringLiteral("Acotamiento en los Apoyos"),
                    {QStringLiteral("L(Izq)"), QStringLiteral("L(Der)"), QStringLiteral("H")}),
        1);
    return Marco(QStringLiteral("Acotamiento de la Viga en los Apoyos (Korvel-CAD 8.0)"), capas);
}

QWidget* VigaDatos::CrearPaginas() {
    tab1_ = new QTabWidget(this);
    tab1_->setObjectName(QStringLiteral("Tab1"));
    for (QWidget* pagina : {PaginaTramos(), PaginaDesplazadas(), PaginaRestringidas(),
                            PaginaResortes(), PaginaTiposConcreto(), PaginaTiposMetalicos(),
                            PaginaCargas(), PaginaAcciones(), PaginaAcotamiento()}) {
        // The tab shows the page's number; its frame says what the page holds.
        const int i = tab1_->addTab(pagina, QString::number(tab1_->count() + 1));
        tab1_->setTabToolTip(i, static_cast<QGroupBox*>(pagina)->title());
    }
    // The pages follow the moves, not a click on their tabs.
    tab1_->tabBar()->setAttribute(Qt::WA_TransparentForMouseEvents);
    tab1_->tabBar()->setFocusPolicy(Qt::NoFocus);
    tab1_->setMinimumWidth(460);
    // Nor by the keys that turn tabs: the page in front is always the one the moves chose.
    connect(tab1_, &QTabWidget::currentChanged, this, [this](int i) {
        if (i != pagina_ - 1) tab1_->setCurrentIndex(pagina_ - 1);
    });
    return tab1_;
}

QWidget* VigaDatos::CrearPie() {
    auto* pie = new QWidget(this);
    auto* capas = new QHBoxLayout(pie);
    capas->setContentsMargins(0, 0, 0, 0);
    button1_ = CrearBoton("Button1", " Anterior ");
    button2_ = CrearBoton("Button2", " Siguiente ");
    connect(button1_, &QPushButton::clicked, this, &VigaDatos::Anterior);
    connect(button2_, &QPushButton::clicked, this, &VigaDatos::Siguiente);
    for (int i = 0; i < 2; ++i) {
        btoMove_[i] = CrearBoton(i == 0 ? "BtoMove0" : "BtoMove1", i == 0 ? "◀" : "▶");
        btoMove_[i]->setAccessibleName(i == 0 ? QStringLiteral("Viga Anterior")
                                              : QStringLiteral("Viga Siguiente"));
        btoMove_[i]->setToolTip(btoMove_[i]->accessibleName());
        connect(btoMove_[i], &QPushButton::clicked, this, [this, i] { MoverViga(i); });
    }
    QPushButton* salvar = CrearBoton("LSButton3", " Salvar ");
    connect(salvar, &QPushButton::clicked, this, [this] { Salvar(); });
    QPushButton* retorno = CrearBoton("LSButton2", " Retorno ");
    connect(retorno, &QPushButton::clicked, this, &VigaDatos::reject);
    capas->addWidget(button1_);
    capas->addWidget(button2_);
    capas->addStretch();
    capas->addWidget(btoMove_[0]);
    capas->addWidget(btoMove_[1]);
    capas->addStretch();
    capas->addWidget(salvar);
    capas->addWidget(retorno);
    return pie;
}

QWidget* VigaDatos::CrearHerramientas() {
    QToolBar* barra = BarraHerramientas(
        *this, Herramientas, *pantalla_, [this](const QString& clave) { Despachar(clave); },
        {"ID_NJuntas"}, acciones_);
    barra->addSeparator();
    // Undo and redo: enabled while there is a step to take, their tip naming it.
    for (const bool atras : {true, false}) {
        const QString titulo = atras ? QStringLiteral("Deshacer") : QStringLiteral("Rehacer");
        const QString clave = atras ? QStringLiteral("ID_Deshacer") : QStringLiteral("ID_Rehacer");
        QAction* a = barra->addAction(IconoHerramienta(clave), titulo);
        a->setObjectName(clave);
        a->setShortcuts(atras
                            ? QList<QKeySequence>{QKeySequence::Undo}
                            : QList<QKeySequence>{QKeySequence(Qt::CTRL | Qt::Key_Y),
                                                  QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
        a->setEnabled(false);
        connect(a, &QAction::triggered, this, [this, atras] {
            TerminarEdicion(*this);
            atras ? pila_->undo() : pila_->redo();
        });
        connect(pila_, atras ? &QUndoStack::canUndoChanged : &QUndoStack::canRedoChanged, a,
                &QAction::setEnabled);
        connect(pila_, atras ? &QUndoStack::undoTextChanged : &QUndoStack::redoTextChanged, a,
                [a, titulo](const QString& que) {
                    a->setToolTip(que.isEmpty() ? titulo : titulo + QStringLiteral(": ") + que);
                });
        acciones_[clave] = a;
    }
    return barra;
}

void VigaDatos::ConfigurarToolTips() {
    button1_->setProperty("Tag", QStringLiteral("Anterior"));
    button1_->setToolTip(QStringLiteral("Ir a la pantalla anterior. "));
    button2_->setProperty("Tag", QStringLiteral("Siguiente"));
    button2_->setToolTip(QStringLiteral("Ir a la siguiente pantalla. "));
    QPushButton* salvar = botones_[QStringLiteral("LSButton3")];
    salvar->setProperty("Tag", QStringLiteral("Salvar"));
    salvar->setToolTip(QStringLiteral("Salva las modificaciones realizadas. "));
}

QAction* VigaDatos::Accion(const QString& clave) const {
    const auto i = acciones_.find(clave);
    return i == acciones_.end() ? nullptr : i->second;
}

int VigaDatos::Pagina() const {
    return pagina_;
}

// --- Grids ---------------------------------------------------------------------------------

void VigaDatos::ConfigurarSpread() {
    const auto formato = [this](int n, int c1, int c2, int decimales, bool signo) {
        FormatoCeldas(Spread(n), c1, -1, c2, -1, decimales, signo);
    };
    formato(2, 1, 1, 2, false);
    formato(3, 1, 1, 0, false);
    formato(3, 2, 3, 2, true);
    formato(4, 1, 2, 0, false);
    formato(5, 1, 1, 0, false);
    formato(5, 2, 4, 0, true);
    formato(6, 1, 2, 2, false);
    formato(7, 1, 1, 0, false);
    formato(8, 2, 3, 2, false);
    formato(9, 1, 1, 0, false);
    formato(11, 1, 1, 0, false);
    formato(11, 2, 4, 0, true);
    formato(12, 1, 3, 2, false);
    for (int n : {3, 4, 5, 11}) Delegado(Spread(n)).Centrar(1);
    for (int n : {4, 7, 9}) Delegado(Spread(n)).Centrar(n == 4 ? 2 : 1);
    for (const auto& [n, rotulo] : Esquinas) EsquinaNo(Spread(n), QString::fromUtf8(rotulo));
    Spread(10).setEditTriggers(QAbstractItemView::NoEditTriggers);
    // A paste grows the lists that have a count box, within its limits.
    for (int caja = 2; caja <= 7; ++caja)
        Delegado(Spread(Cajas[caja].destino)).ColocarCrecimiento([this, caja](int filas) {
            Long(caja).setText(QString::number(filas));
            ValorLong(caja);
            return true;
        });
}

void VigaDatos::EncabezadosTramos(QTableWidget& grid) {
    const VigaActual& v = programa_.Viga;
    QStringList rotulos;
    for (long i = 1; i <= v.NT; ++i)
        rotulos << Qs(En(v.NombreEje, i) + " - " + En(v.NombreEje, i + 1));
    grid.setVerticalHeaderLabels(rotulos);
}

void VigaDatos::LlenarSpread(int n) {
    const VigaActual& v = programa_.Viga;
    QTableWidget& g = Spread(n);
    const QSignalBlocker bloqueo(&g);
    DelegadoNumero& d = Delegado(g);
    const auto filas = [&g](long k) { g.setRowCount(static_cast<int>(std::max(k, 0L))); };
    const auto columnas = [&](long k, auto&... listas) {
        filas(k);
        for (int i = 1; i <= k; ++i) {
            int c = 0;
            (d.ColocarValor(i, ++c, static_cast<double>(En(listas, i))), ...);
        }
    };
    switch (n) {
    case 1:
        filas(v.NT + 1);
        for (int i = 1; i <= v.NT + 1; ++i) ColocarTextoCelda(g, i, 1, Qs(En(v.NombreEje, i)));
        return;
    case 2:
        return columnas(v.NT, v.LT);
    case 3:
        return columnas(v.NJDesp, v.R3, v.XX, v.YY);
    case 4:
        return columnas(v.NJRest, v.R1, v.Apoyo);
    case 5:
        return columnas(v.NJRes, v.R10, v.SH10, v.SV10, v.SM10);
    case 6:
        return columnas(v.NTipos, v.B1, v.T1);
    case 7:
    case 9:
        columnas(v.NT, v.VT);
        return EncabezadosTramos(g);
    case 8:
        filas(v.NTipos);
        for (int i = 1; i <= v.NTipos; ++i) {
            ColocarTextoCelda(g, i, 1, Qs(En(v.Designacion, i)));
            d.ColocarValor(i, 2, En(v.B1, i));
            d.ColocarValor(i, 3, En(v.T1, i));
        }
        return;
    case 10:
        return LlenarMarcas();
    case 11:
        return columnas(v.NAcc, v.R2, v.QC1, v.QC2, v.QC3);
    case 12:
        return columnas(v.NT + 1, v.LIzq, v.LDer, v.HC);
    }
}

void VigaDatos::LlenarMarcas() {
    const VigaActual& v = programa_.Viga;
    QTableWidget& g = Spread(10);
    const QSignalBlocker bloqueo(&g);
    g.setRowCount(std::max<int>(v.NT, 0));
    for (int i = 1; i <= v.NT; ++i) {
        const bool marcado = En(v.TramoMarcado, i);
        MarcarCelda(g, i, 1, marcado);
        ColorFila(g, i, marcado ? ColorMarcado : ColorBlanco);
    }
    EncabezadosTramos(g);
}

void VigaDatos::MostrarCuenta(int n) {
    Long(n).setText(QString::number(edicion_.Valor(static_cast<Cuenta>(n))));
}

void VigaDatos::ColoquePantalla() {
    edicion_.Preparar();
    MostrarViga();
}

void VigaDatos::MostrarViga() {
    {
        const bool cargando = cargando_;
        cargando_ = true;
        (programa_.Viga.OpcionConcreto == 0 ? option1_ : option2_)->setChecked(true);
        cargando_ = cargando;
    }
    double1_->ColocarValor(programa_.Viga.FMayoracion);
    for (int n = 1; n <= 12; ++n) LlenarSpread(n);
    EncabezadosTramos(Spread(2));
    for (int n = 1; n <= 7; ++n) MostrarCuenta(n);
}

// --- Moves between pages -------------------------------------------------------------------

void VigaDatos::IrA(int pagina, bool juntas) {
    setUpdatesEnabled(false);
    pagina_ = pagina;
    tab1_->setCurrentIndex(pagina - 1);
    QAction* numeros = Accion(QStringLiteral("ID_NJuntas"));
    if (numeros->isChecked() != juntas || programa_.Vista.VerJuntas != juntas) {
        numeros->setChecked(juntas);
        Despachar(QStringLiteral("ID_NJuntas"));
    }
    setUpdatesEnabled(true);
}

bool VigaDatos::LongitudesValidas() {
    QTableWidget& g = Spread(2);
    for (int i = 1; i <= g.rowCount(); ++i) {
        if (ValorCelda(g, i, 1) != 0) continue;
        g.setFocus();
        g.setCurrentCell(i - 1, 0);
        programa_.Dialogo().Mensaje(Aviso(
            "¡No pueden existir Tramos con Longitud igual a Cero (0)!", "Longitud de los Tramos"));
        return false;
    }
    return true;
}

void VigaDatos::Siguiente() {
    const bool concreto = programa_.Viga.OpcionConcreto == 0;
    switch (Pagina()) {
    case 1:
        if (!LongitudesValidas()) return;
        button1_->setEnabled(true);
        return IrA(2, true);
    case 2:
        return IrA(3, true);
    case 3:
        return IrA(4, true);
    case 4:
        return IrA(concreto ? 5 : 6, false);
    case 5:
    case 6:
        return IrA(7, false);
    case 7:
        if (!concreto) button2_->setEnabled(false);
        return IrA(8, true);
    case 8:
        button2_->setEnabled(false);
        return IrA(9, false);
    }
}

void VigaDatos::Anterior() {
    const bool concreto = programa_.Viga.OpcionConcreto == 0;
    switch (Pagina()) {
    case 2:
        button1_->setEnabled(false);
        IrA(1, false);
        return button2_->setFocus();
    case 3:
        return IrA(2, true);
    case 4:
        return IrA(3, true);
    case 5:
        return IrA(4, true);
    case 6:
        return IrA(4, false);
    case 7:
        button2_->setEnabled(true);
        return IrA(concreto ? 5 : 6, false);
    case 8:
        button2_->setEnabled(concreto);
        return IrA(7, false);
    case 9:
        button1_->setEnabled(true);
        button2_->setEnabled(true);
        return IrA(8, true);
    }
}

// --- Count boxes ---------------------------------------------------------------------------

void VigaDatos::TerminarLong(int n, bool retorno) {
    if (cambiando_ == 1) ValorLong(n);
    if (retorno) Spread(Cajas[n].destino).setFocus();
}

void VigaDatos::ValorLong(int n) {
    cambiando_ = 0;
    const Veredicto veredicto =
        edicion_.CambiarCuenta(static_cast<Cuenta>(n), Long(n).text().toLong());
    if (veredicto.Aviso) programa_.Dialogo().Mensaje(*veredicto.Aviso);
    if (!veredicto.Aceptado || veredicto.Valor) MostrarCuenta(n);
    if (veredicto.Aceptado)
        for (int g : Cajas[n].grids) LlenarSpread(g);
    // A refused count of spans redraws too; a refused count of joints does not.
    if (Cajas[n].redibujar && (veredicto.Aceptado || !veredicto.Aviso)) Redibujar();
    Registrar(Long(n).accessibleName().remove(QLatin1Char('=')).trimmed());
}

// --- Cells ---------------------------------------------------------------------------------

Veredicto VigaDatos::ReglaCelda(int n, const Celda& celda) {
    const Veredicto veredicto = edicion_.CambiarCelda(
        static_cast<Rejilla>(n), celda.Fila, celda.Columna, Std(celda.Texto), celda.Numero);
    if (!veredicto.Aceptado) return veredicto;
    if (n == 1)
        for (int g : {2, 7, 10}) EncabezadosTramos(Spread(g));
    // The dimensions at the supports are not drawn; nor is an emptied spring.
    const bool resorteVacio = n == 5 && celda.Columna >= 2 && !celda.Numero;
    if (n != 12 && !resorteVacio) Redibujar();
    Registrar(Spread(n).accessibleName());
    return veredicto;
}

void VigaDatos::BloqueSeleccionado(int n) {
    const auto rangos = Spread(n).selectedRanges();
    if (rangos.size() != 1) return;
    const QTableWidgetSelectionRange& b = rangos.front();
    if (b.rowCount() * b.columnCount() < 2) return;
    if (n == 10) return MarcarBloque(b.topRow() + 1, b.bottomRow() + 1);
    if (b.columnCount() != 1) return; // one value goes down one column
    EntradaBloque(n, b.topRow() + 1, b.bottomRow() + 1, b.leftColumn() + 1);
}

void VigaDatos::EntradaBloque(int n, int fila1, int fila2, int columna) {
    if (n == 10) return MarcarBloque(fila1, fila2);
    const Bloque* bloque = nullptr;
    for (const Bloque& b : Bloques)
        if (b.spread == n && b.columna == columna) bloque = &b;
    if (!bloque) return;
    QTableWidget& g = Spread(n);
    Dialogos& dialogo = programa_.Dialogo();
    const auto respuesta =
        dialogo.Entrada({std::string("\n\n\n\n\n") + bloque->texto, bloque->titulo, "0"});
    if (!respuesta || QString::fromStdString(*respuesta).trimmed().isEmpty())
        return g.clearSelection();
    const auto& carpetas = programa_.Carpetas;
    auto valor = LeerNumero(Qs(*respuesta), carpetas.SeparadorDecimal, carpetas.SeparadorMiles);
    if (!valor) {
        dialogo.Mensaje(Aviso("Debe Introducir un Número...    ", bloque->tituloError));
        return;
    }
    const Veredicto tomado = edicion_.ValorBloque(static_cast<Rejilla>(n), *valor);
    if (tomado.Aviso) {
        dialogo.Mensaje(*tomado.Aviso);
        return g.clearSelection();
    }
    if (!tomado.Aceptado) return;
    valor = tomado.Valor.value_or(*valor);
    agrupando_ = true;
    Delegado(g).Llenar(fila1, fila2, columna, Delegado(g).Texto(fila1, columna, *valor));
    agrupando_ = false;
    if (redibujoPendiente_ && n != 12) Redibujar();
    redibujoPendiente_ = false;
    Registrar(g.accessibleName());
    g.clearSelection();
}

void VigaDatos::MarcarBloque(int fila1, int fila2) {
    edicion_.MarcarTramos(fila1, fila2);
    LlenarMarcas();
    Redibujar();
    Spread(10).clearSelection();
}

// --- Supports, material, factor, loads -----------------------------------------------------

void VigaDatos::ColocarApoyo(int tipo) {
    QTableWidget& g = Spread(4);
    // With no current cell yet (the page just reached), the first row is the active one.
    const int fila = std::max(g.currentRow(), 0) + 1;
    if (fila > g.rowCount()) return g.setFocus();
    edicion_.ColocarApoyo(fila, static_cast<std::int16_t>(tipo));
    Delegado(g).ColocarValor(fila, 2, tipo);
    if (fila < g.rowCount()) g.setCurrentCell(fila, 1);
    Redibujar();
    g.setFocus();
    Registrar(QStringLiteral("Juntas Restringidas"));
}

void VigaDatos::Material(bool concreto) {
    edicion_.Material(concreto);
    if (cargando_) return;
    Registrar(QStringLiteral("Material de la Viga"));
    Redibujar();
}

void VigaDatos::TerminarFactor(bool retorno) {
    if (cambiando_) {
        if (const Veredicto v = edicion_.Factor(double1_->Valor()); v.Valor)
            double1_->ColocarValor(*v.Valor);
        cambiando_ = 0;
        Registrar(QStringLiteral("Factor de Mayoración"));
    }
    if (retorno) Spread(10).setFocus();
}

void VigaDatos::Marcar(int fila, bool marcada) {
    edicion_.Marcar(fila, marcada);
    ColorFila(Spread(10), fila, marcada ? ColorMarcado : ColorBlanco);
    Redibujar();
}

void VigaDatos::SeleccionarTodos() {
    MarcarBloque(1, programa_.Viga.NT);
}

void VigaDatos::DesmarcarTodos() {
    edicion_.DesmarcarTodos();
    LlenarMarcas();
    pantalla_->Limpiar();
    Redibujar();
}

void VigaDatos::BandaSoltada(const BandaSeleccion& banda) {
    setUpdatesEnabled(false);
    const std::vector<long> tomados = SeleccioneZoom(programa_.Vista, programa_.Viga, banda);
    for (long t : tomados) {
        MarcarCelda(Spread(10), static_cast<int>(t), 1, true);
        ColorFila(Spread(10), static_cast<int>(t), ColorMarcado);
    }
    if (tomados.empty())
        DesmarcarTodos();
    else
        Redibujar();
    setUpdatesEnabled(true);
}

void VigaDatos::BotonCarga(int tipo) {
    const auto tramoCarga = edicion_.TramosCarga();
    if (!tramoCarga) {
        const BotonCargaDef& b = BotonesCarga[tipo - 1];
        programa_.Dialogo().Mensaje(Aviso(b.textoAviso, b.tituloAviso));
        return Spread(10).setFocus();
    }
    const auto carga = MostrarCarga(tipo, *tramoCarga);
    if (!carga || !edicion_.AplicarCarga(*tramoCarga, *carga).Aceptado) return;
    DesmarcarTodos();
    Registrar(QString::fromUtf8(BotonesCarga[tipo - 1].titulo).trimmed());
}

std::optional<EntradaCarga> VigaDatos::MostrarCarga(int tipo,
                                                    const Arreglo<std::int16_t>& tramoCarga) {
    std::unique_ptr<DialogoCarga> dialogo;
    switch (tipo) {
    case 1:
        dialogo = std::make_unique<Carga01>(programa_, tramoCarga, this);
        break;
    case 2:
        dialogo = std::make_unique<Carga02>(programa_, tramoCarga, this);
        break;
    case 3:
        dialogo = std::make_unique<Carga03>(programa_, tramoCarga, this);
        break;
    case 4:
        dialogo = std::make_unique<Carga04>(programa_, tramoCarga, this);
        break;
    case 5:
        dialogo = std::make_unique<Carga05>(programa_, tramoCarga, this);
        break;
    case 6:
        dialogo = std::make_unique<Carga06>(programa_, tramoCarga, this);
        break;
    case 7:
        dialogo = std::make_unique<Carga07>(programa_, tramoCarga, this);
        break;
    default:
        dialogo = std::make_unique<Carga08>(programa_, tramoCarga, this);
        break;
    }
    if (dialogo->exec() != QDialog::Accepted) return std::nullopt;
    return dialogo->Entrada();
}

void VigaDatos::EliminarCargas() {
    const Pregunta pregunta{
        "Eliminar todas las Cargas en la Viga!        \nEsta Usted Seguro?        ",
        "Cargas en los Tramos", BotonesMensaje::SiNo, IconoMensaje::Pregunta, 2};
    if (programa_.Dialogo().Mensaje(pregunta) != RespuestaSi) return;
    edicion_.EliminarCargas();
    DesmarcarTodos();
    Registrar(QStringLiteral("Eliminar las Cargas"));
}

void VigaDatos::PerfilesMetalicos() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    VigasMetalicas ventana(programa_, this);
    QApplication::restoreOverrideCursor();
    // A captured section shows in its type's row, and the beam is changed: leaving asks.
    const Veredicto captura =
        ventana.exec() == QDialog::Accepted
            ? edicion_.CapturarPerfil(programa_.ListaPerfil, ventana.FilaCapturada(),
                                      ventana.TipoCapturado())
            : Ignorar();
    if (captura.Aviso) programa_.Dialogo().Mensaje(*captura.Aviso);
    if (captura.Aceptado) {
        LlenarSpread(8);
        Spread(8).setCurrentCell(static_cast<int>(ventana.TipoCapturado()) - 1, 0);
        Redibujar();
        Registrar(QStringLiteral("Capturar Perfil Metálico"));
    }
    Spread(8).setFocus();
}

// --- Tools, drawing, saving, leaving -------------------------------------------------------

void VigaDatos::Despachar(const QString& clave) {
    auto& vista = programa_.Vista;
    setUpdatesEnabled(false);
    if (clave == QStringLiteral("ID_ZoomIN"))
        pantalla_->ZoomIn();
    else if (clave == QStringLiteral("ID_ZoomOut"))
        pantalla_->ZoomOut();
    else if (clave == QStringLiteral("ID_ZoomExtents"))
        pantalla_->ZoomExtents();
    else {
        if (clave == QStringLiteral("ID_NJuntas"))
            vista.VerJuntas = Accion(clave)->isChecked();
        else if (clave == QStringLiteral("ID_DIzquierda"))
            DesplazarVista(vista, Direccion::Izquierda);
        else if (clave == QStringLiteral("ID_DDerecha"))
            DesplazarVista(vista, Direccion::Derecha);
        else if (clave == QStringLiteral("ID_DArriba"))
            DesplazarVista(vista, Direccion::Arriba);
        else if (clave == QStringLiteral("ID_DAbajo"))
            DesplazarVista(vista, Direccion::Abajo);
        Redibujar();
    }
    setUpdatesEnabled(true);
    if (!cargando_) pantalla_->setFocus();
}

void VigaDatos::Redibujar() {
    if (agrupando_) {
        redibujoPendiente_ = true;
        return;
    }
    pantalla_->Pintar();
}

namespace {

// The beam as an edit changes it: the marks of the spans are a choice, not part of the beam.
VigaActual SinMarcas(VigaActual viga) {
    viga.TramoMarcado = {};
    return viga;
}

// One applied edit: the beam before and after it.
class CambioViga : public QUndoCommand {
  public:
    CambioViga(std::function<void(const VigaActual&)> restaurar, const QString& texto,
               VigaActual antes, VigaActual despues)
        : QUndoCommand(texto), restaurar_(std::move(restaurar)), antes_(std::move(antes)),
          despues_(std::move(despues)) {}

    void undo() override { restaurar_(antes_); }
    void redo() override {
        if (aplicado_) return restaurar_(despues_);
        aplicado_ = true; // pushed once applied: the first redo has nothing to do
    }

  private:
    std::function<void(const VigaActual&)> restaurar_;
    VigaActual antes_;
    VigaActual despues_;
    bool aplicado_ = false;
};

} // namespace

void VigaDatos::Registrar(const QString& que) {
    if (agrupando_ || cargando_) return;
    VigaActual ahora = SinMarcas(programa_.Viga);
    if (ahora == registrada_) return;
    pila_->push(new CambioViga([this](const VigaActual& v) { Restaurar(v); }, que,
                               std::move(registrada_), ahora));
    registrada_ = std::move(ahora);
}

void VigaDatos::Restaurar(const VigaActual& viga) {
    VigaActual& v = programa_.Viga;
    Arreglo<bool> marcas = std::move(v.TramoMarcado);
    v = viga;
    marcas.RedimPreserve(v.NT);
    v.TramoMarcado = std::move(marcas);
    registrada_ = viga;
    MostrarViga();
    Redibujar();
}

void VigaDatos::EmpezarHistoria() {
    registrada_ = SinMarcas(programa_.Viga);
    pila_->clear();
}

bool VigaDatos::Modificada() const {
    return !pila_->isClean();
}

void VigaDatos::TerminarEntradas() {
    TerminarEdicion(*this);
    if (!cambiando_) return;
    for (int n = 1; n <= 7; ++n)
        if (focusWidget() == &Long(n)) TerminarLong(n, false);
    if (focusWidget() == double1_) TerminarFactor(false);
}

bool VigaDatos::Salvar() {
    TerminarEntradas();
    auto& estado = programa_.Estado;
    try {
        if (vigas_ && estado.RsGeneralViga && vigas_->Actual() > 0)
            estado.RsGeneralViga->AbsolutePosition(vigas_->Actual() - 1);
        programa_.Viga.NombreVigaActual = Std(lblNombre_->text());
        SalvarViga(estado, programa_.Viga);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
        return false;
    }
    pila_->setClean();
    return true;
}

bool VigaDatos::PreguntarSalvar(bool conCancelar) {
    TerminarEntradas();
    if (!Modificada()) return true;
    const Pregunta pregunta{"Viga: " + programa_.Viga.NombreVigaActual + "        \n" +
                                "Desea Salvar las Modificaciones en la Viga?       \n",
                            "Datos Generales de la Viga",
                            conCancelar ? BotonesMensaje::SiNoCancelar : BotonesMensaje::SiNo,
                            IconoMensaje::Pregunta, 1};
    switch (programa_.Dialogo().Mensaje(pregunta)) {
    case RespuestaSi:
        return Salvar();
    case RespuestaNo:
        return true;
    default:
        return false;
    }
}

void VigaDatos::reject() {
    if (!PreguntarSalvar(true)) return;
    programa_.Vista.ModoEditor = false;
    QDialog::reject();
}

void VigaDatos::MoverViga(int indice) {
    if (!PreguntarSalvar(false) || !vigas_) return;
    // The project window shows the beam of the new row behind the editor.
    vigas_->Mover(indice);
    programa_.Vista.ModoEditor = true;
    auto& estado = programa_.Estado;
    if (estado.RsGeneralViga && vigas_->Actual() > 0) {
        estado.RsGeneralViga->AbsolutePosition(vigas_->Actual() - 1);
        programa_.Viga.NombreVigaActual = estado.RsGeneralViga->Campo("NombreViga").Texto();
    }
    Rotulos();
    try {
        LeerViga(estado, programa_.Viga);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    ColoquePantalla();
    EmpezarHistoria();
    Redibujar();
}

bool VigaDatos::eventFilter(QObject* objeto, QEvent* evento) {
    // Leaving a count box or the factor ends its entry.
    if (evento->type() == QEvent::FocusOut) {
        for (int n = 1; n <= 7; ++n)
            if (objeto == long_[static_cast<std::size_t>(n)]) TerminarLong(n, false);
        if (objeto == double1_) TerminarFactor(false);
        return false;
    }
    for (int n = 1; n <= 12; ++n) {
        QTableWidget* g = spread_[static_cast<std::size_t>(n)];
        if (!g) continue;
        if (objeto == g && evento->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Paste)) {
            agrupando_ = true;
            Delegado(*g).Pegar(QGuiApplication::clipboard()->text());
            agrupando_ = false;
            if (redibujoPendiente_) Redibujar();
            redibujoPendiente_ = false;
            Registrar(QStringLiteral("Pegar: ") + g->accessibleName());
            return true;
        }
        // A block chosen with the mouse or with Shift and the arrows.
        const bool suelta =
            (objeto == g->viewport() && evento->type() == QEvent::MouseButtonRelease) ||
            (objeto == g && evento->type() == QEvent::KeyRelease &&
             static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Shift);
        if (suelta) BloqueSeleccionado(n);
    }
    return QDialog::eventFilter(objeto, evento);
}

} // namespace trevalo
