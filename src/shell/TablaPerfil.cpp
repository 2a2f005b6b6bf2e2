#include "shell/TablaPerfil.h"

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/lienzos/LienzosArchivo.h"
#include "profiles/DibujosSeccion.h"
#include "profiles/Recorte.h"
#include "profiles/TablaPerfiles.h"
#include "shell/CampoNumero.h"
#include "shell/DelegadosCelda.h"
#include "shell/DobleTee.h"
#include "shell/EncabezadoPerfil.h"
#include "shell/EsquinaNo.h"
#include "shell/ModeloCeldas.h"
#include "shell/Ordenes.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"

namespace trevalo {

namespace {

constexpr int ColumnaTexto = -1; // decimals of a text column

struct Columna {
    const char* lineas[4]; // group, subgroup, symbol, unit
    int decimales;
    bool centrada;
};

// What the four tables differ in: the title, the columns (from 1), where the designation and
// the first field stand, the last column that the count of rows fills with zeros, and the
// sketch of the section under the mouse.
struct Diseno {
    const char* titulo;
    std::vector<Columna> columnas;
    int designacion;
    int ultimaRellena;
    void (*dibujo)(Lienzo&, const FilaPerfil&);
    const char* fy;
    const char* tipEliminar;
    const char* preguntaEliminar;
};

const Columna Area{{"Area", "", "", "cm2"}, 2, false};
const Columna Designacion{{"Designación", "", "", "mm x mm"}, ColumnaTexto, false};

std::vector<Columna> Dimensiones(int decimales) {
    return {{{"Dimensiones", "Altura", "d", "mm"}, decimales, true},
            {{"Dimensiones", "Alas", "bf", "mm"}, decimales, true},
            {{"Dimensiones", "Alas", "tf", "mm"}, decimales, true},
            {{"Dimensiones", "Alma", "tw", "mm"}, decimales, true}};
}

std::vector<Columna> Eje(const char* eje, const char* i, const char* s, const char* r) {
    return {{{"Propiedades", eje, i, "cm4"}, 2, false},
            {{"Propiedades", eje, s, "cm3"}, 2, false},
            {{"Propiedades", eje, r, "cm"}, 2, false}};
}

std::vector<Columna> Unir(std::initializer_list<std::vector<Columna>> partes) {
    std::vector<Columna> todas;
    for (const auto& p : partes) todas.insert(todas.end(), p.begin(), p.end());
    return todas;
}

const char* const FyRolado = "Resistencia Fy (kgf/cm2) =";
const char* const FyTubo = "Resistencia Fy (kgf/cm2):";
const char* const EliminarRolado = "Eliminar el perfil seleccionado de la tabla. ";
const char* const EliminarTubo = "Eliminar un perfil de la tabla. ";

const Diseno& DisenoDe(FamiliaPerfil familia) {
    static const Diseno dobleTee{
        "Perfiles de Sección Doble Tee",
        Unir({{{{"Referencia", "", "", ""}, ColumnaTexto, false}, Designacion, Area},
              Dimensiones(0),
              Eje("Eje X-X", "Ix", "Sx", "Rx"),
              Eje("Eje Y-Y", "Iy", "Sy", "Ry"),
              {{{"Constante", "Flexión", "Rt", "cm"}, 2, false},
               {{"Constante", "Torsión", "J", "cm4"}, 3, false},
               {{"", "", "Cw", "cm6"}, 1, false},
               {{"Módulos Plásticos", "", "Zx", "cm3"}, 2, false},
               {{"Módulos Plásticos", "", "Zy", "cm3"}, 2, false}}}),
        2,
        17,
        DibujeDobleTee,
        FyRolado,
        EliminarRolado,
        "Eliminar el Perfil: "};
    static const Diseno u{"Perfiles de Sección en U",
                          Unir({{Designacion, Area},
                                Dimensiones(2),
                                Eje("Eje X-X", "Ix", "Sx", "Rx"),
                                Eje("Eje Y-Y", "Iy", "Sy", "Ry"),
                                {{{"Constantes", "Torsión", "J", "cm4"}, 3, false},
                                 {{"Constantes", "Torsión", "Cw", "cm6"}, 2, false}}}),
                          1,
                          14,
                          DibujeSeccionU,
                          FyRolado,
                          EliminarRolado,
                          "Eliminar el Perfil Seleccionado: "};
    static const Diseno cuadrada{"Perfiles Tubulares de Sección Cuadrada",
                                 {Designacion,
                                  Area,
                                  {{"Dimensiones", "Espesor", "t", "mm"}, 2, true},
                                  {{"Dimensiones", "Radio", "r", "mm"}, 2, true},
                                  {{"Propiedades", "Ejes  X-X  Y-Y", "I", "cm4"}, 2, false},
                                  {{"Propiedades", "Ejes  X-X  Y-Y", "S", "cm3"}, 2, false},
                                  {{"Propiedades", "Ejes  X-X  Y-Y", "R", "cm"}, 2, false},
                                  {{"Propiedades", "Ejes  X-X  Y-Y", "Z", "cm3"}, 2, false}},
                                 1,
                                 8,
                                 nullptr,
                                 FyTubo,
                                 EliminarTubo,
                                 "Eliminar el Perfil Seleccionado: "};
    static const Diseno rectangular{"Perfiles Tubulares de Sección Rectangular",
                                    Unir({{Designacion,
                                           Area,
                                           {{"Dimensiones", "Espesor", "t", "mm"}, 2, true},
                                           {{"Dimensiones", "Radio", "r", "mm"}, 2, true}},
                                          Eje("Eje X-X", "Ix", "Sx", "Rx"),
                                          Eje("Eje Y-Y", "Iy", "Sy", "Ry")}),
                                    1,
                                    10,
                                    nullptr,
                                    FyTubo,
                                    EliminarTubo,
                                    "Eliminar el Perfil Seleccionado: "};
    switch (familia) {
    case FamiliaPerfil::DobleTee:
        return dobleTee;
    case FamiliaPerfil::SeccionU:
        return u;
    case FamiliaPerfil::TuboCuadrado:
        return cuadrada;
    case FamiliaPerfil::TuboRectangular:
        break;
    }
    return rectangular;
}

int Columnas(FamiliaPerfil familia) {
    return static_cast<int>(DisenoDe(familia).columnas.size());
}

// The column of the first field of DatosPerfil after the designation.
int PrimerCampo(FamiliaPerfil familia) {
    return DisenoDe(familia).designacion + 1;
}

// The grid's columns: each titled by its header's lines, for a reader of the screen.
std::vector<ColumnaCelda> ColumnasCelda(const Diseno& d) {
    std::vector<ColumnaCelda> columnas;
    for (const Columna& c : d.columnas) {
        QStringList lineas;
        for (const char* linea : c.lineas)
            if (*linea) lineas << QString::fromUtf8(linea);
        std::optional<FormatoCelda> formato;
        if (c.decimales != ColumnaTexto) formato = FormatoCelda{c.decimales, false};
        columnas.push_back({lineas.join(QLatin1Char(' ')), formato, c.centrada, false});
    }
    return columnas;
}

QLabel* Etiqueta(const char* texto, QWidget* control, QWidget* padre) {
    auto* e = new QLabel(QString::fromUtf8(texto), padre);
    e->setBuddy(control);
    control->setAccessibleName(e->text().trimmed());
    return e;
}

} // namespace

TablaPerfil::TablaPerfil(Programa& programa, FamiliaPerfil familia, EstadoTablaPerfiles tabla,
                         QWidget* parent)
    : QDialog(parent), programa_(programa), tabla_(std::move(tabla)), familia_(familia),
      toolTip_(new ToolTipTrevalo(this)) {
    setObjectName(Qs(trevalo::Familia(familia).Editor));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowTitle(QString::fromUtf8(DisenoDe(familia).titulo) + QStringLiteral("     Tabla: [") +
                   Qs(tabla_.TituloTabla) + QLatin1Char(']'));
    CrearControles();
    ConfigurarPantalla();
    ColoquePantalla();
    tablaCambiada_ = tabla_.TablaNueva;
    totalCambiado_ = false;
    Modificar(false);

    const QRect zona = (screen() ? screen() : QApplication::primaryScreen())->availableGeometry();
    const bool rolado = DisenoDe(familia).dibujo != nullptr;
    resize(rolado ? zona.width() * 95 / 100 : std::min(zona.width(), 900),
           zona.height() * 90 / 100);
    move(zona.center() - rect().center());
    cargando_ = false;
}

TablaPerfil::~TablaPerfil() = default;

void TablaPerfil::CrearControles() {
    const Diseno& d = DisenoDe(familia_);
    const char sep = programa_.Carpetas.SeparadorDecimal;
    const char miles = programa_.Carpetas.SeparadorMiles;

    auto* panel3 = new QWidget(this);
    panel3->setObjectName(QStringLiteral("Panel3"));
    descripcion_ = new QLineEdit(panel3);
    descripcion_->setObjectName(QStringLiteral("Text1"));
    descripcion_->setMaxLength(70);
    resistencia_ = new CampoNumero(panel3);
    resistencia_->setObjectName(QStringLiteral("Long2"));
    resistencia_->Configurar("0", sep, miles);
    resistencia_->ColocarValor(0); // what a new table stores
    resistencia_->setMaximumWidth(90);
    modificar_ = new QCheckBox(QStringLiteral("Modificar la Tabla"), panel3);
    modificar_->setObjectName(QStringLiteral("Check1"));
    auto* arriba = new QHBoxLayout(panel3);
    arriba->setContentsMargins(0, 0, 0, 0);
    arriba->addWidget(Etiqueta("Descripción: ", descripcion_, panel3));
    arriba->addWidget(descripcion_, 1);
    arriba->addSpacing(12);
    arriba->addWidget(Etiqueta(d.fy, resistencia_, panel3));
    arriba->addWidget(resistencia_);
    arriba->addSpacing(12);
    arriba->addWidget(modificar_);

    vistaPerfiles_ = new QTableView(this);
    vistaPerfiles_->setObjectName(QStringLiteral("Spread1"));
    vistaPerfiles_->setAccessibleName(QStringLiteral("Perfiles de la Tabla"));

    auto* panel1 = new QWidget(this);
    panel1->setObjectName(QStringLiteral("Panel1"));
    totalPerfiles_ = new CampoNumero(panel1);
    totalPerfiles_->setObjectName(QStringLiteral("Long1"));
    totalPerfiles_->Configurar("0", sep, miles);
    totalPerfiles_->ColocarValor(0); // an empty grid until rows are read
    totalPerfiles_->setMaximumWidth(70);
    panelEdicion_ = new QWidget(panel1);
    panelEdicion_->setObjectName(QStringLiteral("SSPanel3"));
    auto* edicion = new QHBoxLayout(panelEdicion_);
    edicion->setContentsMargins(0, 0, 0, 0);
    if (familia_ == FamiliaPerfil::DobleTee)
        CrearBotones(*this, *edicion,
                     {{{"LSButton2", "Crear", "Crear",
                        "Crear un nuevo perfil generando las\npropiedades geométricas. "},
                       [this] { CrearPerfil(); }}});
    CrearBotones(*this, *edicion,
                 {{{"LSButton5", "Eliminar", "Eliminar", d.tipEliminar}, [this] { Eliminar(); }}});
    auto* abajo = new QHBoxLayout(panel1);
    abajo->setContentsMargins(0, 0, 0, 0);
    abajo->addWidget(Etiqueta("Total Perfiles:", totalPerfiles_, panel1));
    abajo->addWidget(totalPerfiles_);
    abajo->addSpacing(12);
    abajo->addWidget(panelEdicion_);
    abajo->addStretch(1);
    CrearBotones(*this, *abajo,
                 {{{"LSButton4", "Salvar", "Salvar", "Salvar las modificaciones realizadas. "},
                   [this] { Salvar(); }},
                  {{"LSButton1", " Retorno ", "", ""}, [this] { reject(); }}});

    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(4, 4, 4, 8);
    todo->addWidget(panel3);
    todo->addWidget(vistaPerfiles_, 1);
    todo->addWidget(panel1);

    connect(modificar_, &QCheckBox::toggled, this, &TablaPerfil::Modificar);
    const auto cambio = [this] {
        if (!cargando_) tablaCambiada_ = true;
    };
    connect(descripcion_, &QLineEdit::textEdited, this, cambio);
    connect(resistencia_, &QLineEdit::textEdited, this, cambio);
    connect(totalPerfiles_, &QLineEdit::textEdited, this, [this] {
        totalCambiado_ = true;
        tablaCambiada_ = true;
    });
    connect(totalPerfiles_, &QLineEdit::editingFinished, this, &TablaPerfil::AplicarTotal);
    connect(totalPerfiles_, &QLineEdit::returnPressed, vistaPerfiles_,
            qOverload<>(&QWidget::setFocus));
    toolTip_->Configurar(programa_.Tapiz);

    if (!d.dibujo) return;
    emergente_ = new QFrame(this);
    emergente_->setObjectName(QStringLiteral("LSFrame3"));
    emergente_->setFrameShape(QFrame::Box);
    emergente_->setAutoFillBackground(true);
    emergente_->setFixedSize(240, 250);
    auto* labelV4 = new QLabel(emergente_);
    labelV4->setObjectName(QStringLiteral("LabelV4"));
    croquis_ = new QLabel(emergente_);
    croquis_->setObjectName(QStringLiteral("Picture5"));
    rotuloCroquis_ = new QLabel(emergente_);
    rotuloCroquis_->setObjectName(QStringLiteral("LabelV6"));
    rotuloCroquis_->setAlignment(Qt::AlignCenter);
    auto* marco = new QVBoxLayout(emergente_);
    marco->setContentsMargins(15, 2, 15, 4);
    marco->addWidget(labelV4);
    marco->addWidget(croquis_, 1);
    marco->addWidget(rotuloCroquis_);
    emergente_->hide();
    esperaCroquis_.setInterval(200);
    esperaCroquis_.setSingleShot(true);
    connect(&esperaCroquis_, &QTimer::timeout, this, &TablaPerfil::MostrarEmergente);
    vistaPerfiles_->viewport()->installEventFilter(this);
    vistaPerfiles_->setMouseTracking(true);
    connect(vistaPerfiles_, &QTableView::pressed, this, [this](const QModelIndex& celda) {
        if (!popupActivo_) return;
        filaEmergente_ = celda.row() + 1;
        esperaCroquis_.start();
    });
}

void TablaPerfil::ConfigurarPantalla() {
    const Diseno& d = DisenoDe(familia_);
    std::vector<LineasEncabezado> lineas;
    for (const Columna& c : d.columnas)
        lineas.push_back({QString::fromUtf8(c.lineas[0]), QString::fromUtf8(c.lineas[1]),
                          QString::fromUtf8(c.lineas[2]), QString::fromUtf8(c.lineas[3])});
    AccesoCeldas acceso;
    acceso.Filas = [this] { return static_cast<int>(filas_.size()); };
    acceso.Leer = [this](int fila, int columna) { return Leer(fila, columna); };
    acceso.Escribir = [this](const Celda& celda) { return Escribir(celda); };
    const auto& carpetas = programa_.Carpetas;
    modelo_ = new ModeloCeldas(ColumnasCelda(d), std::move(acceso), carpetas.SeparadorDecimal,
                               carpetas.SeparadorMiles, vistaPerfiles_);
    MostrarModelo(programa_, *vistaPerfiles_, *modelo_);
    auto* encabezado = new EncabezadoPerfil(std::move(lineas), vistaPerfiles_);
    vistaPerfiles_->setHorizontalHeader(encabezado);
    encabezado->setFixedHeight(encabezado->sizeHint().height());
    vistaPerfiles_->verticalHeader()->setDefaultSectionSize(18);
    EsquinaNo(*vistaPerfiles_);
    for (int c = 1; c <= Columnas(familia_); ++c)
        vistaPerfiles_->setColumnWidth(c - 1, c == d.designacion ? 150 : 72);
    if (familia_ == FamiliaPerfil::DobleTee) vistaPerfiles_->setColumnHidden(0, true);
}

void TablaPerfil::ColoquePantalla() {
    if (tabla_.TablaNueva) return;
    TablaPerfiles tabla;
    try {
        tabla = LeerTablaPerfiles(tabla_.ArchivoTabla, familia_);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
        leida_ = false;
        return;
    }
    descripcion_->setText(Qs(tabla.DescripcionTabla));
    resistencia_->ColocarValor(tabla.ResistenciaFY);
    if (tabla.Filas.empty()) return;
    totalPerfiles_->ColocarValor(static_cast<double>(tabla.Filas.size()));
    const int primero = PrimerCampo(familia_);
    for (const FilaPerfil& perfil : tabla.Filas) {
        Fila& fila = filas_.emplace_back(FilaVacia());
        fila.Referencia = QString::number(perfil.Numero);
        fila.Designacion = Qs(perfil.Designacion);
        for (std::size_t i = 0; i < perfil.Valores.size(); ++i)
            Colocar(fila, primero + static_cast<int>(i), perfil.Valores[i]);
    }
    modelo_->Recargar();
}

void TablaPerfil::Modificar(bool activo) {
    vistaPerfiles_->setEditTriggers(activo ? QAbstractItemView::DoubleClicked |
                                                 QAbstractItemView::EditKeyPressed |
                                                 QAbstractItemView::AnyKeyPressed
                                           : QAbstractItemView::NoEditTriggers);
    panelEdicion_->setVisible(activo);
    totalPerfiles_->setEnabled(activo);
    vistaPerfiles_->setFocus();
}

void TablaPerfil::AplicarTotal() {
    if (!totalCambiado_) return;
    const auto n = static_cast<std::size_t>(std::clamp(totalPerfiles_->Valor(), 0.0, 32767.0));
    filas_.resize(n, FilaVacia());
    const Diseno& d = DisenoDe(familia_);
    for (int r = 1; r <= static_cast<int>(n); ++r)
        for (int c = 2; c <= d.ultimaRellena; ++c) {
            if (!Leer(r, c).toString().trimmed().isEmpty()) continue;
            const bool texto =
                d.columnas[static_cast<std::size_t>(c - 1)].decimales == ColumnaTexto;
            Colocar(filas_[static_cast<std::size_t>(r - 1)], c,
                    texto ? QVariant(QStringLiteral("0")) : QVariant(0.0));
        }
    modelo_->Recargar();
    totalCambiado_ = false;
}

void TablaPerfil::CrearPerfil() {
    DobleTee generador(
        programa_, [this](const CapturaSeccion& c) { AgregarCaptura(c); }, this);
    generador.exec();
    vistaPerfiles_->setFocus();
}

// The generator writes from the first column on: the name in the reference column, the area
// in the designation column and so on, one column to the left of the table's fields; the
// last column stays empty. Tables made so keep that layout.
void TablaPerfil::AgregarCaptura(const CapturaSeccion& captura) {
    Fila& fila = filas_.emplace_back(FilaVacia());
    Colocar(fila, 1, Qs(captura.Designacion));
    Colocar(fila, 2,
            Qs(Formato(captura.Numeros.front(), "0.00", programa_.Carpetas.SeparadorDecimal)));
    for (std::size_t i = 1; i < captura.Numeros.size(); ++i)
        Colocar(fila, 2 + static_cast<int>(i), captura.Numeros[i]);
    tablaCambiada_ = true;
    modelo_->Recargar();
    vistaPerfiles_->setCurrentIndex(modelo_->index(static_cast<int>(filas_.size()) - 1, 1));
}

void TablaPerfil::Eliminar() {
    if (filas_.empty()) {
        QApplication::beep();
        return;
    }
    const int fila = std::max(vistaPerfiles_->currentIndex().row(), 0) + 1;
    const Diseno& d = DisenoDe(familia_);
    const std::string nombre = Recortar(Std(Designacion(fila)));
    const std::string espacios = familia_ == FamiliaPerfil::DobleTee ? "!        " : "!      ";
    const Pregunta pregunta{d.preguntaEliminar + nombre + espacios + "\n¿Esta Usted Seguro?    ",
                            "Eliminando Perfiles de la Tabla", BotonesMensaje::SiNo,
                            IconoMensaje::Advertencia, 2};
    if (programa_.Dialogo().Mensaje(pregunta) != RespuestaSi) return;
    filas_.erase(filas_.begin() + (fila - 1));
    modelo_->Recargar();
    totalPerfiles_->ColocarValor(static_cast<double>(filas_.size()));
    tablaCambiada_ = true;
    vistaPerfiles_->setFocus();
}

bool TablaPerfil::Salvar() {
    TablaPerfiles tabla;
    tabla.DescripcionTabla = Std(descripcion_->text());
    tabla.ResistenciaFY =
        static_cast<std::int16_t>(std::clamp(resistencia_->Valor(), 0.0, 32767.0));
    for (int r = 1; r <= static_cast<int>(filas_.size()); ++r)
        tabla.Filas.push_back(FilaDelGrid(r));
    try {
        if (!SalvarTablaPerfiles(tabla_.ArchivoTabla, familia_, tabla)) {
            descripcion_->setFocus();
            return false;
        }
    } catch (const ErrorTrevalo& e) {
        Pregunta mensaje = MensajeError(e);
        mensaje.Texto += "...    ";
        programa_.Dialogo().Mensaje(mensaje);
        vistaPerfiles_->setFocus();
        return false;
    }
    tablaCambiada_ = false;
    vistaPerfiles_->setFocus();
    return true;
}

void TablaPerfil::reject() {
    // The cell and the count being typed are entered before the question.
    TerminarEdicion(*this);
    AplicarTotal();
    if (tablaCambiada_) {
        const int respuesta = programa_.Dialogo().Mensaje(
            {"Desea Salvar las Modificaciones?      ", "Tabla de Perfiles",
             BotonesMensaje::SiNoCancelar, IconoMensaje::Pregunta, 1});
        if (respuesta == RespuestaCancelar) {
            vistaPerfiles_->setFocus();
            return;
        }
        // Nothing is lost unasked: a save that did not happen keeps the window open.
        if (respuesta == RespuestaSi && !Salvar()) return;
    }
    QDialog::reject();
}

FilaPerfil TablaPerfil::FilaDelGrid(int fila) const {
    FilaPerfil f;
    f.Designacion = Std(Designacion(fila));
    for (const auto& valor : filas_[static_cast<std::size_t>(fila - 1)].Valores)
        f.Valores.push_back(valor.value_or(0.0)); // an empty cell counts as 0
    return f;
}

QWidget* TablaPerfil::Emergente() const {
    return emergente_;
}

bool TablaPerfil::eventFilter(QObject* objeto, QEvent* evento) {
    const auto tipo = evento->type();
    if (objeto != vistaPerfiles_->viewport() ||
        (tipo != QEvent::MouseButtonPress && tipo != QEvent::MouseButtonRelease &&
         tipo != QEvent::MouseMove))
        return false;
    const auto* raton = static_cast<QMouseEvent*>(evento);
    if (tipo == QEvent::MouseMove) {
        if (raton->buttons() == Qt::NoButton) emergente_->hide();
    } else if (raton->button() == Qt::LeftButton) {
        popupActivo_ = tipo == QEvent::MouseButtonPress;
        popup_ = raton->position().toPoint();
        if (!popupActivo_) {
            esperaCroquis_.stop();
            emergente_->hide();
        }
    }
    return false;
}

void TablaPerfil::MostrarEmergente() {
    if (filaEmergente_ < 1 || filaEmergente_ > static_cast<int>(filas_.size())) return;
    emergente_->hide();
    // The frame has not been laid out before it is first shown: the sketch takes the size
    // its picture will have.
    emergente_->layout()->activate();
    LienzoImagen lienzo(croquis_->width(), croquis_->height());
    lienzo.Cls();
    DisenoDe(familia_).dibujo(lienzo, FilaDelGrid(filaEmergente_));
    croquis_->setPixmap(QPixmap::fromImage(lienzo.Imagen()));
    rotuloCroquis_->setText(Designacion(filaEmergente_).trimmed());
    ColocarEmergente();
    emergente_->show();
    emergente_->raise();
}

// 200 twips right of and below the mouse; 200 twips to its left, or above it, when the
// frame would come closer than 100 twips to the window's edge.
void TablaPerfil::ColocarEmergente() {
    constexpr int Lejos = 13, Cerca = 7;
    const QPoint raton = vistaPerfiles_->viewport()->mapTo(this, popup_);
    const QSize tamano = emergente_->size();
    int x = raton.x() + Lejos, y = raton.y() + Lejos;
    if (x + tamano.width() > width() - Cerca) x = raton.x() - Lejos - tamano.width();
    if (y + tamano.height() > height() - Cerca) y = raton.y() - Lejos - tamano.height();
    emergente_->move(x, y);
}

TablaPerfil::Fila TablaPerfil::FilaVacia() const {
    return {{},
            {},
            std::vector<std::optional<double>>(
                static_cast<std::size_t>(Columnas(familia_) - PrimerCampo(familia_) + 1))};
}

QVariant TablaPerfil::Leer(int fila, int columna) const {
    const Fila& f = filas_[static_cast<std::size_t>(fila - 1)];
    const int designacion = DisenoDe(familia_).designacion;
    if (columna < designacion) return f.Referencia;
    if (columna == designacion) return f.Designacion;
    const auto& valor = f.Valores[static_cast<std::size_t>(columna - designacion - 1)];
    return valor ? QVariant(*valor) : QVariant();
}

// A number read, captured or filled takes the value its cell shows, as a typed one does.
void TablaPerfil::Colocar(Fila& fila, int columna, const QVariant& valor) const {
    const int designacion = DisenoDe(familia_).designacion;
    if (columna < designacion)
        fila.Referencia = valor.toString();
    else if (columna == designacion)
        fila.Designacion = valor.toString();
    else
        fila.Valores[static_cast<std::size_t>(columna - designacion - 1)] = LeerNumero(
            modelo_->Texto(columna, valor.toDouble()), modelo_->Decimal(), modelo_->Miles());
}

// A locked table takes nothing, typed or pasted; a numeric cell takes no empty text. A value
// that differs from the cell's is a change to save.
Veredicto TablaPerfil::Escribir(const Celda& celda) {
    if (!modificar_->isChecked()) return Rechazar();
    const bool numerica = modelo_->Columna(celda.Columna).Formato.has_value();
    if (numerica && !celda.Numero) return Rechazar();
    const QVariant valor = numerica ? QVariant(*celda.Numero) : QVariant(celda.Texto);
    if (Leer(celda.Fila, celda.Columna) != valor) {
        Colocar(filas_[static_cast<std::size_t>(celda.Fila - 1)], celda.Columna, valor);
        tablaCambiada_ = true;
    }
    return Aceptar();
}

QString TablaPerfil::Designacion(int fila) const {
    return Leer(fila, DisenoDe(familia_).designacion).toString();
}

} // namespace trevalo
