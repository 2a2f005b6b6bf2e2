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
#include <QTableView>
#include <QToolBar>
#include <QUndoStack>
#include <QVBoxLayout>

#include "drawing/OperacionesVista.h"
#include "platform/lienzos/LienzoQt.h"
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

constexpr std::int32_t ColorMarcado = 0xB9ECFF; // a marked span's row

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
    Rejilla destino;
    bool redibujar;
};

const CajaCuenta Cajas[8] = {{},
                             {Rejilla::Longitudes, true},
                             {Rejilla::Desplazadas, true},
                             {Rejilla::Restringidas, true},
                             {Rejilla::Resortes, true},
                             {Rejilla::TiposConcreto, true},
                             {Rejilla::TiposMetalicos, false},
                             {Rejilla::Acciones, false}};

// The columns of the editor's grids.
ColumnaCelda ColumnaTexto(const char* titulo) {
    return {QString::fromUtf8(titulo), std::nullopt, false, false};
}
ColumnaCelda ColumnaNumero(const char* titulo, int decimales, bool conSigno = false,
                           bool centrada = false) {
    return {QString::fromUtf8(titulo), FormatoCelda{decimales, conSigno}, centrada, false};
}
// A joint's or a type's number.
ColumnaCelda ColumnaEntero(const char* titulo) {
    return ColumnaNumero(titulo, 0, false, true);
}

// A grid of the editor: its list, accessible name, columns and the caption over its row
// headers (none: the row's number, without caption).
struct DefinicionRejilla {
    Rejilla lista;
    const char* nombre;
    std::vector<ColumnaCelda> columnas;
    const char* esquina;
};

const DefinicionRejilla Rejillas[] = {
    {Rejilla::NombresEje, "Nombres de los Ejes", {ColumnaTexto("Nombre Eje")}, "No"},
    {Rejilla::Longitudes, "Longitud de los Tramos", {ColumnaNumero("Longitud", 2)}, "Tramo"},
    {Rejilla::Desplazadas,
     "Juntas Desplazadas",
     {ColumnaEntero("Junta"), ColumnaNumero("Delta X", 2, true), ColumnaNumero("Delta Y", 2, true)},
     nullptr},
    {Rejilla::Restringidas,
     "Juntas Restringidas",
     {ColumnaEntero("Junta"), ColumnaEntero("Apoyo\nTipo")},
     nullptr},
    {Rejilla::Resortes,
     "Juntas con Resortes",
     {ColumnaEntero("Junta"), ColumnaNumero("Rdx\n(kgf/m)", 0, true),
      ColumnaNumero("Rdy\n(kgf/m)", 0, true), ColumnaNumero("Rdz\n(kgf-m/rad)", 0, true)},
     nullptr},
    {Rejilla::TiposConcreto,
     "Tipos de Vigas de Concreto",
     {ColumnaNumero("B (m)", 2), ColumnaNumero("H (m)", 2)},
     "Tipo"},
    {Rejilla::TipoTramoConcreto,
     "Tipos de Viga por Tramo (Concreto)",
     {ColumnaEntero("Viga Tipo")},
     "Tramo"},
    {Rejilla::TiposMetalicos,
     "Tipos de Vigas Metálicas",
     {ColumnaTexto("Designación"), ColumnaNumero("Area\n(cm²)", 2),
      ColumnaNumero("Inercia\n(cm⁴)", 2)},
     "Tipo"},
    {Rejilla::TipoTramoMetalico,
     "Tipos de Viga por Tramo (Metálica)",
     {ColumnaEntero("Viga Tipo")},
     "Tramo"},
    {Rejilla::TramosCargados,
     "Tramos con Cargas",
     {{QStringLiteral("Cargas"), std::nullopt, true, true}},
     "Tramo"},
    {Rejilla::Acciones,
     "Acciones Nodales",
     {ColumnaEntero("Junta"), ColumnaNumero("Momento\n(kgf-m)", 0, true),
      ColumnaNumero("Vertical\n(kgf)", 0, true), ColumnaNumero("Horizontal\n(kgf)", 0, true)},
     nullptr},
    {Rejilla::Acotamientos,
     "Acotamiento en los Apoyos",
     {ColumnaNumero("L(Izq)", 2), ColumnaNumero("L(Der)", 2), ColumnaNumero("H", 2)},
     "Junta"},
};

QVariant ComoVariante(double v) {
    return v;
}
QVariant ComoVariante(const std::string& texto) {
    return Qs(texto);
}

bool FilasDeTramos(Rejilla r) {
    return r == Rejilla::Longitudes || r == Rejilla::TipoTramoConcreto ||
           r == Rejilla::TipoTramoMetalico || r == Rejilla::TramosCargados;
}

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

// The input box of a block: list, column, prompt, title, and the title of its error box.
struct Bloque {
    Rejilla lista;
    int columna;
    const char* texto;
    const char* titulo;
    const char* tituloError;
};

const Bloque Bloques[] = {
    {Rejilla::Longitudes, 1, "Entre la Longitud de los Tramos (m):", "Longitud de los Tramos",
     "Longitud de los Tramos"},
    {Rejilla::Desplazadas, 2, "Entre el Desplazamiento (m) Y:", "Desplazamiento de las Juntas",
     "Longitud de los Tramos"},
    {Rejilla::Desplazadas, 3, "Entre el Desplazamiento (m) Y:", "Desplazamiento de las Juntas",
     "Longitud de los Tramos"},
    {Rejilla::Resortes, 2, "Rigidez Horizontal del Resorte RdX:", "Entre el Valor",
     "Apoyos con Resortes"},
    {Rejilla::Resortes, 3, "Rigidez Vertical del Resorte RdY:", "Entre el Valor",
     "Apoyos con Resortes"},
    {Rejilla::Resortes, 4, "Rigidez Rotacional del Resorte RdZ:", "Entre el Valor",
     "Apoyos con Resortes"},
    {Rejilla::TipoTramoConcreto, 1, "Tipos de Vigas:", "Tipos de Viga", "Tipos de Vigas"},
    {Rejilla::TipoTramoMetalico, 1, "Tipos de Vigas:", "Tipos de Viga", "Tipos de Vigas"},
    {Rejilla::Acotamientos, 1, "Acotamiento a la Izquierda LIqz:", "Entre el Valor",
     "Acotamientos para Korvel-CAD"},
    {Rejilla::Acotamientos, 2, "Acotamiento a la Derecha LDer:", "Entre el Valor",
     "Acotamientos para Korvel-CAD"},
    {Rejilla::Acotamientos, 3, "Altura de la Viga H:", "Entre el Valor",
     "Acotamientos para Korvel-CAD"},
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
      toolTip_(new ToolTipTrevalo(this)), historia_(new QUndoStack(this)) {
    // Each step holds the beam twice: a long history of a long beam is bounded.
    historia_->setUndoLimit(100);
    setObjectName(QStringLiteral("VigaDatos"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    nombreViga_ = new QLabel(this);
    nombreViga_->setObjectName(QStringLiteral("LblNombre"));
    pantalla_ = new PantallaViga(programa_, false, this);
    pantalla_->setObjectName(QStringLiteral("Picture1"));
    pantalla_->PermitirBanda([this] { return Pagina() == 7; });

    // The tool bar runs along the top of the window, so that every tool, undo and redo
    // included, shows at the editor's first size instead of behind the bar's overflow.
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(CrearHerramientas());
    arriba->addStretch();
    arriba->addWidget(nombreViga_);
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
    ColoquePantalla();
    programa_.Vista.ModoEditor = true;
    IrA(1, false);
    anterior_->setEnabled(false);
    EmpezarHistoria();
    tecleando_ = false;
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
    nombreViga_->setText(nombre);
}

QPushButton* VigaDatos::CrearBoton(const char* nombre, const char* titulo) {
    auto* b = new QPushButton(QString::fromUtf8(titulo), this);
    b->setObjectName(QString::fromUtf8(nombre));
    b->setAutoDefault(false);
    return b;
}

QTableView* VigaDatos::CrearRejilla(Rejilla lista) {
    const DefinicionRejilla& d = Rejillas[static_cast<int>(lista) - 1];
    const int n = static_cast<int>(lista);
    auto* grid = new QTableView(this);
    grid->setObjectName(QStringLiteral("Spread%1").arg(n));
    grid->setAccessibleName(QString::fromUtf8(d.nombre));
    AccesoCeldas acceso;
    acceso.Filas = [this, lista] { return static_cast<int>(edicion_.Filas(lista)); };
    acceso.Leer = [this, lista](int fila, int columna) {
        return std::visit([](const auto& v) { return ComoVariante(v); },
                          edicion_.Leer(lista, fila, columna));
    };
    acceso.Escribir = [this, lista](const Celda& c) { return ReglaCelda(lista, c); };
    if (FilasDeTramos(lista))
        acceso.RotuloFila = [this](int tramo) { return Qs(edicion_.RotuloTramo(tramo)); };
    if (lista == Rejilla::TramosCargados)
        acceso.Fondo = [this](int tramo) -> std::optional<QColor> {
            if (std::get<double>(edicion_.Leer(Rejilla::TramosCargados, tramo, 1)) == 0)
                return std::nullopt;
            return ColorQt(static_cast<Color>(ColorMarcado));
        };
    // A paste grows the lists that have a count box, within its limits.
    for (int caja = 2; caja <= 7; ++caja)
        if (Cajas[caja].destino == lista)
            acceso.Crecer = [this, caja](int filas) {
                Long(caja).setText(QString::number(filas));
                AplicarCuenta(caja);
                return true;
            };
    const auto& carpetas = programa_.Carpetas;
    modelos_[static_cast<std::size_t>(n)] = new ModeloCeldas(
        d.columnas, std::move(acceso), carpetas.SeparadorDecimal, carpetas.SeparadorMiles, grid);
    MostrarModelo(programa_, *grid, Modelo(lista));
    grid->verticalHeader()->setDefaultSectionSize(20);
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->setSelectionMode(QAbstractItemView::ContiguousSelection);
    grid->setTabKeyNavigation(false);
    if (d.esquina) EsquinaNo(*grid, QString::fromUtf8(d.esquina));
    // Installed after the delegate's, so that this window sees a paste first.
    grid->installEventFilter(this);
    grid->viewport()->installEventFilter(this);
    connect(grid->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this, lista](int columna) {
                if (const int filas = Modelo(lista).Filas(); filas > 0)
                    EntradaBloque(lista, 1, filas, columna + 1);
            });
    rejillas_[static_cast<std::size_t>(n)] = grid;
    return grid;
}

QLineEdit* VigaDatos::CrearCuenta(int n, const QString& titulo) {
    auto* campo = new QLineEdit(this);
    campo->setObjectName(QStringLiteral("Long%1").arg(n));
    campo->setAccessibleName(titulo.trimmed());
    // Digits only: a count is never negative. Its limits are the box's rule (AplicarCuenta), the
    // same on Return and on leaving.
    campo->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,5}")), campo));
    campo->setAlignment(Qt::AlignRight);
    campo->setMaximumWidth(90);
    connect(campo, &QLineEdit::textEdited, this, [this] { tecleando_ = true; });
    connect(campo, &QLineEdit::returnPressed, this, [this, n] { TerminarCuenta(n, true); });
    campo->installEventFilter(this);
    cuentas_[static_cast<std::size_t>(n)] = campo;
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
    concreto_ = new QRadioButton(QStringLiteral("La Viga es de Concreto Armado"), this);
    concreto_->setObjectName(QStringLiteral("Option1"));
    metalica_ = new QRadioButton(QStringLiteral("La Viga es Metálica"), this);
    metalica_->setObjectName(QStringLiteral("Option2"));
    connect(concreto_, &QRadioButton::toggled, this, [this](bool si) {
        if (si) Material(true);
    });
    connect(metalica_, &QRadioButton::toggled, this, [this](bool si) {
        if (si) Material(false);
    });
    auto* capas = new QVBoxLayout;
    capas->addWidget(concreto_);
    capas->addWidget(metalica_);
    capas->addLayout(Rotulado(QStringLiteral("Número de Tramos = "),
                              CrearCuenta(1, QStringLiteral("Número de Tramos = "))));
    auto* grids = new QHBoxLayout;
    grids->addWidget(CrearRejilla(Rejilla::NombresEje));
    grids->addWidget(CrearRejilla(Rejilla::Longitudes));
    capas->addLayout(grids, 1);
    return Marco(QStringLiteral("Datos Generales de los Tramos"), capas);
}

QWidget* VigaDatos::PaginaDesplazadas() {
    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Juntas Desplazadas = "),
                              CrearCuenta(2, QStringLiteral("Juntas Desplazadas = "))));
    capas->addWidget(CrearRejilla(Rejilla::Desplazadas), 1);
    return Marco(QStringLiteral("Juntas Desplazadas en la Viga"), capas);
}

QWidget* VigaDatos::PaginaRestringidas() {
    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Juntas Restringidas = "),
                              CrearCuenta(3, QStringLiteral("Juntas Restringidas = "))));
    auto* fila = new QHBoxLayout;
    fila->addWidget(CrearRejilla(Rejilla::Restringidas), 1);
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
                              CrearCuenta(4, QStringLiteral("Juntas con Resortes = "))));
    capas->addWidget(CrearRejilla(Rejilla::Resortes), 1);
    return Marco(QStringLiteral("Juntas Restringidas con Resortes"), capas);
}

QWidget* VigaDatos::PaginaTiposConcreto() {
    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Tipos de Vigas = "),
                              CrearCuenta(5, QStringLiteral("Tipos de Vigas = "))));
    capas->addWidget(CrearRejilla(Rejilla::TiposConcreto), 1);
    capas->addWidget(new QLabel(QStringLiteral("Entre los Tipos de Vigas por Tramo")));
    capas->addWidget(CrearRejilla(Rejilla::TipoTramoConcreto), 1);
    return Marco(QStringLiteral("Tipos de Viga por Tramo (Concreto Armado)"), capas);
}

QWidget* VigaDatos::PaginaTiposMetalicos() {
    auto* capas = new QVBoxLayout;
    auto* cuenta = Rotulado(QStringLiteral("Tipos de Vigas = "),
                            CrearCuenta(6, QStringLiteral("Tipos de Vigas (Perfiles) = ")));
    QPushButton* perfiles = CrearBoton("LSButton5", " Perfiles Metálicos ");
    connect(perfiles, &QPushButton::clicked, this, &VigaDatos::PerfilesMetalicos);
    cuenta->addWidget(perfiles);
    capas->addLayout(cuenta);
    capas->addWidget(CrearRejilla(Rejilla::TiposMetalicos), 1);
    capas->addWidget(CrearRejilla(Rejilla::TipoTramoMetalico), 1);
    return Marco(QStringLiteral("Tipos de Viga por Tramo (Perfiles Metálicos)"), capas);
}

QWidget* VigaDatos::PaginaCargas() {
    factor_ = new CampoNumero(this);
    factor_->setObjectName(QStringLiteral("Double1"));
    factor_->setAccessibleName(QStringLiteral("Factor de Mayoración ="));
    factor_->Configurar("0.00", programa_.Carpetas.SeparadorDecimal,
                        programa_.Carpetas.SeparadorMiles);
    factor_->setMaximumWidth(120);
    connect(factor_, &QLineEdit::textEdited, this, [this] { tecleando_ = true; });
    connect(factor_, &QLineEdit::returnPressed, this, [this] { TerminarFactor(true); });
    factor_->installEventFilter(this);

    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Factor de Mayoración ="), factor_));
    capas->addWidget(new QLabel(QStringLiteral("Seleccione los Tramos para entrar las Cargas")));
    auto* fila = new QHBoxLayout;
    fila->addWidget(CrearRejilla(Rejilla::TramosCargados), 1);
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
    QPushButton* marcarTodos = CrearBoton("SSCommand1", " Seleccionar todos los Tramos ");
    QPushButton* desmarcarTodos = CrearBoton("SSCommand2", " Desmarcar todos los Tramos ");
    QPushButton* eliminarCargas = CrearBoton("ButtonE", " Eliminar las cargas de la viga. ");
    connect(marcarTodos, &QPushButton::clicked, this, &VigaDatos::SeleccionarTodos);
    connect(desmarcarTodos, &QPushButton::clicked, this, &VigaDatos::DesmarcarTodos);
    connect(eliminarCargas, &QPushButton::clicked, this, &VigaDatos::EliminarCargas);
    auto* todos = new QGridLayout;
    todos->addWidget(marcarTodos, 0, 0);
    todos->addWidget(desmarcarTodos, 0, 1);
    todos->addWidget(eliminarCargas, 1, 0, 1, 2);
    capas->addLayout(todos);
    return Marco(QStringLiteral("Cargas de Servicio en los Tramos"), capas);
}

QWidget* VigaDatos::PaginaAcciones() {
    auto* capas = new QVBoxLayout;
    capas->addLayout(Rotulado(QStringLiteral("Juntas con Acciones Nodales = "),
                              CrearCuenta(7, QStringLiteral("Juntas con Acciones Nodales = "))));
    capas->addWidget(CrearRejilla(Rejilla::Acciones), 1);
    return Marco(QStringLiteral("Acciones Nodales en las Juntas"), capas);
}

QWidget* VigaDatos::PaginaAcotamiento() {
    auto* capas = new QVBoxLayout;
    capas->addWidget(CrearRejilla(Rejilla::Acotamientos), 1);
    return Marco(QStringLiteral("Acotamiento de la Viga en los Apoyos (Korvel-CAD 8.0)"), capas);
}

QWidget* VigaDatos::CrearPaginas() {
    paginas_ = new QTabWidget(this);
    paginas_->setObjectName(QStringLiteral("Tab1"));
    for (QWidget* pagina : {PaginaTramos(), PaginaDesplazadas(), PaginaRestringidas(),
                            PaginaResortes(), PaginaTiposConcreto(), PaginaTiposMetalicos(),
                            PaginaCargas(), PaginaAcciones(), PaginaAcotamiento()}) {
        // The tab shows the page's number; its frame says what the page holds.
        const int i = paginas_->addTab(pagina, QString::number(paginas_->count() + 1));
        paginas_->setTabToolTip(i, static_cast<QGroupBox*>(pagina)->title());
    }
    // The pages follow the moves, not a click on their tabs.
    paginas_->tabBar()->setAttribute(Qt::WA_TransparentForMouseEvents);
    paginas_->tabBar()->setFocusPolicy(Qt::NoFocus);
    paginas_->setMinimumWidth(460);
    // Nor by the keys that turn tabs: the page in front is always the one the moves chose.
    connect(paginas_, &QTabWidget::currentChanged, this, [this](int i) {
        if (i != pagina_ - 1) paginas_->setCurrentIndex(pagina_ - 1);
    });
    return paginas_;
}

QWidget* VigaDatos::CrearPie() {
    auto* pie = new QWidget(this);
    auto* capas = new QHBoxLayout(pie);
    capas->setContentsMargins(0, 0, 0, 0);
    anterior_ = CrearBoton("Button1", " Anterior ");
    siguiente_ = CrearBoton("Button2", " Siguiente ");
    connect(anterior_, &QPushButton::clicked, this, &VigaDatos::Anterior);
    connect(siguiente_, &QPushButton::clicked, this, &VigaDatos::Siguiente);
    for (int i = 0; i < 2; ++i) {
        btoMove_[i] = CrearBoton(i == 0 ? "BtoMove0" : "BtoMove1", i == 0 ? "◀" : "▶");
        btoMove_[i]->setAccessibleName(i == 0 ? QStringLiteral("Viga Anterior")
                                              : QStringLiteral("Viga Siguiente"));
        btoMove_[i]->setToolTip(btoMove_[i]->accessibleName());
        connect(btoMove_[i], &QPushButton::clicked, this, [this, i] { MoverViga(i); });
    }
    salvar_ = CrearBoton("LSButton3", " Salvar ");
    connect(salvar_, &QPushButton::clicked, this, [this] { Salvar(); });
    QPushButton* retorno = CrearBoton("LSButton2", " Retorno ");
    connect(retorno, &QPushButton::clicked, this, &VigaDatos::reject);
    capas->addWidget(anterior_);
    capas->addWidget(siguiente_);
    capas->addStretch();
    capas->addWidget(btoMove_[0]);
    capas->addWidget(btoMove_[1]);
    capas->addStretch();
    capas->addWidget(salvar_);
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
            atras ? historia_->undo() : historia_->redo();
        });
        connect(historia_, atras ? &QUndoStack::canUndoChanged : &QUndoStack::canRedoChanged, a,
                &QAction::setEnabled);
        connect(historia_, atras ? &QUndoStack::undoTextChanged : &QUndoStack::redoTextChanged, a,
                [a, titulo](const QString& que) {
                    a->setToolTip(que.isEmpty() ? titulo : titulo + QStringLiteral(": ") + que);
                });
        acciones_[clave] = a;
    }
    return barra;
}

void VigaDatos::ConfigurarToolTips() {
    anterior_->setProperty("Tag", QStringLiteral("Anterior"));
    anterior_->setToolTip(QStringLiteral("Ir a la pantalla anterior. "));
    siguiente_->setProperty("Tag", QStringLiteral("Siguiente"));
    siguiente_->setToolTip(QStringLiteral("Ir a la siguiente pantalla. "));
    salvar_->setProperty("Tag", QStringLiteral("Salvar"));
    salvar_->setToolTip(QStringLiteral("Salva las modificaciones realizadas. "));
}

QAction* VigaDatos::Accion(const QString& clave) const {
    const auto i = acciones_.find(clave);
    return i == acciones_.end() ? nullptr : i->second;
}

int VigaDatos::Pagina() const {
    return pagina_;
}

// --- Grids ---------------------------------------------------------------------------------

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
        (programa_.Viga.OpcionConcreto == 0 ? concreto_ : metalica_)->setChecked(true);
        cargando_ = cargando;
    }
    factor_->ColocarValor(programa_.Viga.FMayoracion);
    Recargar();
    for (int n = 1; n <= 7; ++n) MostrarCuenta(n);
}

// --- Moves between pages -------------------------------------------------------------------

void VigaDatos::IrA(int pagina, bool juntas) {
    setUpdatesEnabled(false);
    pagina_ = pagina;
    paginas_->setCurrentIndex(pagina - 1);
    QAction* numeros = Accion(QStringLiteral("ID_NJuntas"));
    if (numeros->isChecked() != juntas || programa_.Vista.VerJuntas != juntas) {
        numeros->setChecked(juntas);
        Despachar(QStringLiteral("ID_NJuntas"));
    }
    setUpdatesEnabled(true);
}

bool VigaDatos::LongitudesValidas() {
    const auto sinLongitud = edicion_.TramoSinLongitud();
    if (!sinLongitud) return true;
    QTableView& g = Vista(Rejilla::Longitudes);
    g.setFocus();
    g.setCurrentIndex(
        Modelo(Rejilla::Longitudes).index(static_cast<int>(sinLongitud->first) - 1, 0));
    programa_.Dialogo().Mensaje(sinLongitud->second);
    return false;
}

void VigaDatos::Siguiente() {
    const bool concreto = programa_.Viga.OpcionConcreto == 0;
    switch (Pagina()) {
    case 1:
        if (!LongitudesValidas()) return;
        anterior_->setEnabled(true);
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
        if (!concreto) siguiente_->setEnabled(false);
        return IrA(8, true);
    case 8:
        siguiente_->setEnabled(false);
        return IrA(9, false);
    }
}

void VigaDatos::Anterior() {
    const bool concreto = programa_.Viga.OpcionConcreto == 0;
    switch (Pagina()) {
    case 2:
        anterior_->setEnabled(false);
        IrA(1, false);
        return siguiente_->setFocus();
    case 3:
        return IrA(2, true);
    case 4:
        return IrA(3, true);
    case 5:
        return IrA(4, true);
    case 6:
        return IrA(4, false);
    case 7:
        siguiente_->setEnabled(true);
        return IrA(concreto ? 5 : 6, false);
    case 8:
        siguiente_->setEnabled(concreto);
        return IrA(7, false);
    case 9:
        anterior_->setEnabled(true);
        siguiente_->setEnabled(true);
        return IrA(8, true);
    }
}

// --- Count boxes ---------------------------------------------------------------------------

void VigaDatos::TerminarCuenta(int n, bool retorno) {
    if (tecleando_) AplicarCuenta(n);
    if (retorno) Vista(Cajas[n].destino).setFocus();
}

void VigaDatos::AplicarCuenta(int n) {
    tecleando_ = false;
    const Veredicto veredicto =
        edicion_.CambiarCuenta(static_cast<Cuenta>(n), Long(n).text().toLong());
    MostrarVeredicto(programa_, veredicto);
    if (!veredicto.Aceptado || veredicto.Valor) MostrarCuenta(n);
    if (veredicto.Aceptado) Recargar();
    // A refused count of spans redraws too; a refused count of joints does not.
    if (Cajas[n].redibujar && (veredicto.Aceptado || !veredicto.Aviso)) Redibujar();
    Registrar(Long(n).accessibleName().remove(QLatin1Char('=')).trimmed());
}

// --- Cells ---------------------------------------------------------------------------------

Veredicto VigaDatos::ReglaCelda(Rejilla lista, const Celda& celda) {
    const Veredicto veredicto =
        edicion_.CambiarCelda(lista, celda.Fila, celda.Columna, Std(celda.Texto), celda.Numero);
    if (!veredicto.Aceptado) return veredicto;
    // A joint's name is in the captions of the span rows.
    if (lista == Rejilla::NombresEje) Recargar();
    // The dimensions at the supports are not drawn; nor is an emptied spring.
    const bool resorteVacio = lista == Rejilla::Resortes && celda.Columna >= 2 && !celda.Numero;
    if (lista != Rejilla::Acotamientos && !resorteVacio) Redibujar();
    Registrar(Vista(lista).accessibleName());
    return veredicto;
}

void VigaDatos::BloqueSeleccionado(Rejilla lista) {
    const QItemSelection seleccion = Vista(lista).selectionModel()->selection();
    if (seleccion.size() != 1) return;
    const QItemSelectionRange& b = seleccion.front();
    if (b.height() * b.width() < 2) return;
    if (lista == Rejilla::TramosCargados) return MarcarBloque(b.top() + 1, b.bottom() + 1);
    if (b.width() != 1) return; // one value goes down one column
    EntradaBloque(lista, b.top() + 1, b.bottom() + 1, b.left() + 1);
}

void VigaDatos::EntradaBloque(Rejilla lista, int fila1, int fila2, int columna) {
    if (lista == Rejilla::TramosCargados) return MarcarBloque(fila1, fila2);
    const Bloque* bloque = nullptr;
    for (const Bloque& b : Bloques)
        if (b.lista == lista && b.columna == columna) bloque = &b;
    if (!bloque) return;
    QTableView& g = Vista(lista);
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
    const Veredicto tomado = edicion_.ValorBloque(lista, *valor);
    if (tomado.Aviso) {
        dialogo.Mensaje(*tomado.Aviso);
        return g.clearSelection();
    }
    if (!tomado.Aceptado) return;
    valor = tomado.Valor.value_or(*valor);
    ModeloCeldas& modelo = Modelo(lista);
    EnGrupo([&] { modelo.Llenar(fila1, fila2, columna, modelo.Texto(columna, *valor)); },
            lista != Rejilla::Acotamientos);
    Registrar(g.accessibleName());
    g.clearSelection();
}

void VigaDatos::MarcarBloque(int fila1, int fila2) {
    edicion_.MarcarTramos(fila1, fila2);
    Modelo(Rejilla::TramosCargados).Recargar();
    Redibujar();
    Vista(Rejilla::TramosCargados).clearSelection();
}

// --- Supports, material, factor, loads -----------------------------------------------------

void VigaDatos::ColocarApoyo(int tipo) {
    QTableView& g = Vista(Rejilla::Restringidas);
    ModeloCeldas& apoyos = Modelo(Rejilla::Restringidas);
    // With no current cell yet (the page just reached), the first row is the active one.
    const int fila = std::max(g.currentIndex().row(), 0) + 1;
    if (fila > apoyos.Filas()) return g.setFocus();
    edicion_.ColocarApoyo(fila, static_cast<std::int16_t>(tipo));
    apoyos.Recargar();
    if (fila < apoyos.Filas()) g.setCurrentIndex(apoyos.index(fila, 1));
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
    if (tecleando_) {
        if (const Veredicto v = edicion_.Factor(factor_->Valor()); v.Valor)
            factor_->ColocarValor(*v.Valor);
        tecleando_ = false;
        Registrar(QStringLiteral("Factor de Mayoración"));
    }
    if (retorno) Vista(Rejilla::TramosCargados).setFocus();
}

void VigaDatos::SeleccionarTodos() {
    MarcarBloque(1, programa_.Viga.NT);
}

void VigaDatos::DesmarcarTodos() {
    edicion_.DesmarcarTodos();
    Modelo(Rejilla::TramosCargados).Recargar();
    pantalla_->Limpiar();
    Redibujar();
}

void VigaDatos::BandaSoltada(const BandaSeleccion& banda) {
    setUpdatesEnabled(false);
    const std::vector<long> tomados = SeleccioneZoom(programa_.Vista, programa_.Viga, banda);
    Modelo(Rejilla::TramosCargados).Recargar();
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
        return Vista(Rejilla::TramosCargados).setFocus();
    }
    const auto carga = MostrarCarga(tipo, *tramoCarga);
    VolverA(Rejilla::TramosCargados);
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

void VigaDatos::VolverA(Rejilla lista) {
    // The editor active again, also where no window manager gives it back the focus when a
    // dialog of its own closes, so that the keys (Ctrl+Z among them) reach it at once.
    activateWindow();
    Vista(lista).setFocus();
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
    // The capture is for the type in front in the grid of types.
    const long tipo = std::max(Vista(Rejilla::TiposMetalicos).currentIndex().row(), 0) + 1;
    VigasMetalicas ventana(programa_, tipo, this);
    QApplication::restoreOverrideCursor();
    // A captured section shows in its type's row, and the beam is changed: leaving asks.
    const Veredicto captura =
        ventana.exec() == QDialog::Accepted
            ? edicion_.CapturarPerfil(programa_.ListaPerfil, ventana.FilaCapturada(),
                                      ventana.TipoCapturado())
            : Ignorar();
    MostrarVeredicto(programa_, captura);
    if (captura.Aceptado) {
        ModeloCeldas& tipos = Modelo(Rejilla::TiposMetalicos);
        tipos.Recargar();
        Vista(Rejilla::TiposMetalicos)
            .setCurrentIndex(tipos.index(static_cast<int>(ventana.TipoCapturado()) - 1, 0));
        Redibujar();
        Registrar(QStringLiteral("Capturar Perfil Metálico"));
    }
    VolverA(Rejilla::TiposMetalicos);
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

void VigaDatos::EnGrupo(const std::function<void()>& entradas, bool redibujar) {
    agrupando_ = true;
    entradas();
    agrupando_ = false;
    if (redibujoPendiente_ && redibujar) Redibujar();
    redibujoPendiente_ = false;
}

void VigaDatos::Recargar() {
    for (ModeloCeldas* m : modelos_)
        if (m) m->Recargar();
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
    historia_->push(new CambioViga([this](const VigaActual& v) { Restaurar(v); }, que,
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
    historia_->clear();
}

bool VigaDatos::Modificada() const {
    return !historia_->isClean();
}

void VigaDatos::TerminarEntradas() {
    TerminarEdicion(*this);
    if (!tecleando_) return;
    for (int n = 1; n <= 7; ++n)
        if (focusWidget() == &Long(n)) TerminarCuenta(n, false);
    if (focusWidget() == factor_) TerminarFactor(false);
}

bool VigaDatos::Salvar() {
    TerminarEntradas();
    auto& estado = programa_.Estado;
    try {
        if (vigas_ && estado.RsGeneralViga && vigas_->Actual() > 0)
            estado.RsGeneralViga->AbsolutePosition(vigas_->Actual() - 1);
        programa_.Viga.NombreVigaActual = Std(nombreViga_->text());
        SalvarViga(estado, programa_.Viga);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
        return false;
    }
    historia_->setClean();
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
            if (objeto == cuentas_[static_cast<std::size_t>(n)]) TerminarCuenta(n, false);
        if (objeto == factor_) TerminarFactor(false);
        return false;
    }
    for (std::size_t n = 1; n < rejillas_.size(); ++n) {
        QTableView* g = rejillas_[n];
        if (!g) continue; // the window is being built
        const auto lista = static_cast<Rejilla>(n);
        if (objeto == g && evento->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Paste)) {
            const QModelIndex actual = g->currentIndex();
            EnGrupo(
                [&] {
                    Modelo(lista).Pegar(std::max(actual.row(), 0) + 1,
                                        std::max(actual.column(), 0) + 1,
                                        QGuiApplication::clipboard()->text());
                },
                true);
            Registrar(QStringLiteral("Pegar: ") + g->accessibleName());
            return true;
        }
        // A block chosen with the mouse or with Shift and the arrows.
        const bool suelta =
            (objeto == g->viewport() && evento->type() == QEvent::MouseButtonRelease) ||
            (objeto == g && evento->type() == QEvent::KeyRelease &&
             static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Shift);
        if (suelta) BloqueSeleccionado(lista);
    }
    return QDialog::eventFilter(objeto, evento);
}

} // namespace trevalo
