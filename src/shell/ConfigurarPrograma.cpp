#include "shell/ConfigurarPrograma.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "platform/lienzos/LienzoQt.h"
#include "shell/Ordenes.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"

namespace trevalo {

namespace {

const char* const TituloAbrir = "Cambiar el Tapiz del Menú Principal";
const char* const PropiedadColor = "ColorTrevalo";
constexpr std::int32_t Muestras[] = {0xD6F4FF, 0xE3FFCA, 0xE1E1FF, 0xF4E3D5, 0xFFE1F0};
constexpr int IndiceLetraDefecto = 4;

QCheckBox* Marca(const QString& nombre, const char* titulo, QWidget* padre) {
    auto* c = new QCheckBox(QString::fromUtf8(titulo), padre);
    c->setObjectName(nombre);
    return c;
}

// A frame of three options numbered 0, 1, 2 by `valores`, shown in the order given.
QGroupBox* Opciones(const char* titulo, QButtonGroup*& grupo,
                    std::initializer_list<std::tuple<const char*, const char*, int>> opciones,
                    QWidget* padre) {
    auto* marco = new QGroupBox(QString::fromUtf8(titulo), padre);
    auto* capas = new QVBoxLayout(marco);
    grupo = new QButtonGroup(marco);
    for (const auto& [nombre, texto, valor] : opciones) {
        auto* r = new QRadioButton(QString::fromUtf8(texto), marco);
        r->setObjectName(QString::fromUtf8(nombre));
        grupo->addButton(r, valor);
        capas->addWidget(r);
    }
    return marco;
}

std::int32_t ColorDe(const QLabel* etiqueta) {
    return etiqueta->property(PropiedadColor).toInt();
}

} // namespace

QSize ConfigurarPrograma::TamanoVista() {
    return {320, 240};
}

ConfigurarPrograma::ConfigurarPrograma(Programa& programa, QWidget* padre)
    : QDialog(padre), programa_(programa), toolTip_(new ToolTipTrevalo(this)) {
    setObjectName(QStringLiteral("ConfigurarPrograma"));
    setWindowTitle(QStringLiteral("Configurar la Pantalla de Korvel-Altora"));
    tab1_ = new QTabWidget(this);
    tab1_->setObjectName(QStringLiteral("Tab1"));
    tab1_->addTab(CrearPestanaImagen(), QStringLiteral("Imágen del Menú Principal"));
    tab1_->addTab(CrearPestanaToolTip(), QStringLiteral("ToolTip de Ayuda de los Botones"));

    auto* aceptar = BotonDialogo(*this, "Command6", " Aceptar ");
    auto* cancelar = BotonDialogo(*this, "Command5", " Cancelar ");
    aceptar->setDefault(true);
    connect(aceptar, &QPushButton::clicked, this, &ConfigurarPrograma::Aceptar);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(aceptar);
    botones->addWidget(cancelar);
    auto* capas = new QVBoxLayout(this);
    capas->addWidget(tab1_);
    capas->addLayout(botones);

    carpetaDialogo_ = Qs(programa_.Carpetas.RutaBase + "/Tapices");
    toolTip_->Configurar(programa_.Tapiz);
    cargando_ = true;
    ConfiguraToolTip();
    cargando_ = false;
    AbrirToolTipC();
    ColoqueTapiz();
    tab1_->setCurrentIndex(0);
}

QWidget* ConfigurarPrograma::CrearPestanaImagen() {
    auto* pagina = new QWidget(tab1_);
    image1_ = new QLabel(pagina);
    image1_->setObjectName(QStringLiteral("Image1"));
    image1_->setAlignment(Qt::AlignCenter);
    auto* marcoImagen = new QLabel(pagina);
    marcoImagen->setFrameShape(QFrame::StyledPanel);
    marcoImagen->setFixedSize(TamanoVista() + QSize(4, 4));
    auto* dentro = new QVBoxLayout(marcoImagen);
    dentro->setContentsMargins(2, 2, 2, 2);
    dentro->addWidget(image1_, 0, Qt::AlignCenter);

    auto* abrir = BotonDialogo(*pagina, "Abrir", "Capturar Imagen");
    abrir->setToolTip(QStringLiteral("Capturar una Imágen para el tapiz del menú principal. "));
    connect(abrir, &QPushButton::clicked, this, &ConfigurarPrograma::Abrir);
    check1_ = Marca(QStringLiteral("Check1"), "Ajustar la Imagen", pagina);

    auto* opciones = new QVBoxLayout;
    opciones->addWidget(Opciones(
        "Alineación Vertical", vertical_,
        {{"Option1", "Centrado", 0}, {"Option2", "Al tope", 1}, {"Option3", "Al fondo", 2}},
        pagina));
    opciones->addWidget(Opciones("Alineación Horizontal", horizontal_,
                                 {{"Option5", "A la izquierda", 0},
                                  {"Option4", "Centrado", 1},
                                  {"Option6", "A la derecha", 2}},
                                 pagina));
    opciones->addWidget(check1_);
    opciones->addStretch();
    opciones->addWidget(abrir);
    auto* capas = new QHBoxLayout(pagina);
    capas->addWidget(marcoImagen, 0, Qt::AlignTop);
    capas->addLayout(opciones);
    return pagina;
}

QLabel* ConfigurarPrograma::Muestra(const QString& nombre, std::int32_t color) {
    auto* etiqueta = new QLabel;
    etiqueta->setObjectName(nombre);
    etiqueta->setFrameShape(QFrame::Box);
    etiqueta->setMinimumSize(28, 22);
    etiqueta->setAutoFillBackground(true);
    PonerColor(etiqueta, color);
    return etiqueta;
}

QWidget* ConfigurarPrograma::CrearPestanaToolTip() {
    auto* pagina = new QWidget(tab1_);
    auto* rejilla = new QGridLayout(pagina);

    combo1_ = new QComboBox(pagina);
    combo1_->setObjectName(QStringLiteral("Combo1"));
    auto* rotuloLetra = new QLabel(QStringLiteral("Tamaño de  la Letra:"), pagina);
    rotuloLetra->setBuddy(combo1_);
    rejilla->addWidget(rotuloLetra, 0, 0);
    rejilla->addWidget(combo1_, 0, 1);

    fondo_ = Muestra(QStringLiteral("LSLabel1"), TipFondoDefecto);
    auto* rotuloFondo = new QLabel(QStringLiteral("Color de Fondo:"), pagina);
    auto* lcolor = BotonDialogo(*pagina, "LColor", " Seleccionar un Color de Fondo ");
    lcolor->setToolTip(QStringLiteral(" Seleccionar un Color de Fondo "));
    connect(lcolor, &QPushButton::clicked, this, [this] { ElegirColor(fondo_); });
    auto* muestras = new QHBoxLayout;
    for (int i = 0; i < 5; ++i) {
        QLabel* m = Muestra(QStringLiteral("LSLabel%1").arg(i + 3), Muestras[i]);
        m->setToolTip(QStringLiteral(" Haga Clic para Seleccionar el Color "));
        m->setCursor(Qt::PointingHandCursor);
        m->installEventFilter(this);
        muestras->addWidget(m);
    }
    muestras->addStretch();
    auto* filaFondo = new QHBoxLayout;
    filaFondo->addWidget(fondo_, 1);
    filaFondo->addWidget(lcolor);
    rejilla->addWidget(rotuloFondo, 1, 0);
    rejilla->addLayout(filaFondo, 1, 1);
    rejilla->addLayout(muestras, 2, 1);

    texto_ = Muestra(QStringLiteral("LSLabel2"), 0);
    auto* owl3 = BotonDialogo(*pagina, "OwlButton3", " Seleccionar el Color de la Letra ");
    connect(owl3, &QPushButton::clicked, this, [this] { ElegirColor(texto_); });
    rejilla->addWidget(new QLabel(QStringLiteral("Color de la Letra:"), pagina), 3, 0);
    auto* filaTexto = new QHBoxLayout;
    filaTexto->addWidget(texto_, 1);
    filaTexto->addWidget(owl3);
    rejilla->addLayout(filaTexto, 3, 1);

    check3_ = Marca(QStringLiteral("Check3"), "ToolTip Centrado", pagina);
    check4_ = Marca(QStringLiteral("Check4"), "ToolTip Tradicional", pagina);
    rejilla->addWidget(check3_, 4, 1);
    rejilla->addWidget(check4_, 5, 1);

    muestraBoton_ = BotonDialogo(*pagina, "OwlButton1", "Botón");
    muestraBoton_->setProperty("Tag", QStringLiteral("Mensaje del Botón"));
    muestraBoton_->setToolTip(
        QStringLiteral("ToolTip Ejemplo de la descripción del botón seleccionado. "));
    auto* defecto = BotonDialogo(*pagina, "OwlButton2", " Colocar los Valores por Defecto ");
    defecto->setToolTip(QStringLiteral(" Colocar los Valores por Defecto "));
    connect(defecto, &QPushButton::clicked, this, &ConfigurarPrograma::ValoresPorDefecto);
    auto* aviso =
        new QLabel(QStringLiteral("Para Visualizar coloque el Cursor del Ratón sobre el Botón!"));
    auto* filaMuestra = new QHBoxLayout;
    filaMuestra->addWidget(muestraBoton_);
    filaMuestra->addWidget(aviso, 1);
    rejilla->addLayout(filaMuestra, 6, 0, 1, 2);
    rejilla->addWidget(defecto, 7, 0, 1, 2, Qt::AlignLeft);
    rejilla->setRowStretch(8, 1);

    const auto cambio = [this] {
        if (!cargando_) AbrirToolTipC();
    };
    connect(combo1_, &QComboBox::currentIndexChanged, this, cambio);
    connect(check3_, &QCheckBox::toggled, this, cambio);
    connect(check4_, &QCheckBox::toggled, this, cambio);
    return pagina;
}

void ConfigurarPrograma::ColoqueTapiz() {
    const auto registros = LeerRegistrosTapiz(programa_.Carpetas.RutaBase + "/Tapiz.kvl");
    tapizNuevo_ = Qs(registros.TapizArchivo);
    const bool existe = !tapizNuevo_.trimmed().isEmpty() && QFileInfo(tapizNuevo_).isFile();
    PonerImagen(existe ? QPixmap(tapizNuevo_) : QPixmap());
    const ConfiguracionTapiz& t = programa_.Tapiz;
    vertical_->button(t.TapizVertical)->setChecked(true);
    horizontal_->button(t.TapizHorizontal)->setChecked(true);
    check1_->setChecked(t.TapizAjustar != 0);
    efecto_ = t.TapizEfecto;
}

void ConfigurarPrograma::ConfiguraToolTip() {
    for (int i = 0; i <= 7; ++i) combo1_->addItem(QString::number(PuntosLetraTip(i)));
    const ConfiguracionTapiz& t = programa_.Tapiz;
    combo1_->setCurrentIndex(t.TipLetra <= 7 ? t.TipLetra : IndiceLetraDefecto);
    PonerColor(fondo_, t.TipFondo);
    PonerColor(texto_, t.TipTexto);
    check3_->setChecked(t.TipCentrado != 0);
    check4_->setChecked(t.TipTradicional != 0);
}

void ConfigurarPrograma::AbrirToolTipC() {
    const ConfiguracionTapiz valores = Valores();
    // The size is the program's from now on, for this run, even if the dialog is cancelled.
    programa_.Tapiz.TipLetra = valores.TipLetra;
    toolTip_->Estilo(EstiloDe(valores));
}

void ConfigurarPrograma::PonerImagen(const QPixmap& imagen) {
    imagen_ = imagen;
    if (imagen.isNull()) {
        image1_->clear();
        image1_->setFixedSize(TamanoVista());
        return;
    }
    // The picture fitted into the preview's design size, keeping its proportions.
    const QSize vista = TamanoVista();
    const double r = std::min(static_cast<double>(vista.height()) / imagen.height(),
                              static_cast<double>(vista.width()) / imagen.width());
    const QSize tamano(static_cast<int>(imagen.width() * r), static_cast<int>(imagen.height() * r));
    image1_->setFixedSize(tamano);
    image1_->setPixmap(imagen.scaled(tamano, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void ConfigurarPrograma::Abrir() {
    const ArchivoElegido archivo =
        programa_.Dialogo().Archivo({TituloAbrir, ModoDialogo::Abrir,
                                     "Archivos de Dibujo|*.bmp; *.jpg; *.gif; *.dib; *.wmf, *.emf",
                                     1, Std(carpetaDialogo_), ""});
    if (archivo.Cancelado) return;
    const QString ruta = Qs(archivo.FileName);
    carpetaDialogo_ = QFileInfo(ruta).absolutePath();
    if (ruta.compare(tapizNuevo_, Qt::CaseInsensitive) == 0) return;

    const auto aviso = [this](const std::string& texto) {
        programa_.Dialogo().Mensaje(
            {texto, TituloAbrir, BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1});
    };
    // The settings file keeps the path in a record of 128 bytes, two of them its length.
    if (archivo.FileName.size() > LongitudRegistroTapiz - 2) {
        aviso("La ruta de la imagen es demasiado larga: tiene " +
              std::to_string(archivo.FileName.size()) + " caracteres y caben " +
              std::to_string(LongitudRegistroTapiz - 2) + ".    \n" + archivo.FileName +
              "    \nCopie la imagen a una carpeta de ruta más corta (por ejemplo, Tapices).    ");
        return;
    }
    const QPixmap imagen(ruta);
    if (imagen.isNull()) {
        aviso("No se puede leer la imagen:    \n" + archivo.FileName +
              "    \nEl archivo está dañado o no es una imagen.    ");
        return;
    }
    PonerImagen(imagen);
    vertical_->button(0)->setChecked(true);
    horizontal_->button(1)->setChecked(true);
    tapizNuevo_ = ruta;
    check1_->setChecked(false);
    efecto_ = 0;
}

void ConfigurarPrograma::PonerColor(QLabel* etiqueta, std::int32_t color) {
    etiqueta->setProperty(PropiedadColor, color);
    QPalette paleta = etiqueta->palette();
    paleta.setColor(QPalette::Window, ColorQt(color));
    etiqueta->setPalette(paleta);
    if (!cargando_ && (etiqueta == fondo_ || etiqueta == texto_)) AbrirToolTipC();
}

void ConfigurarPrograma::ElegirColor(QLabel* etiqueta) {
    if (const auto color = programa_.Dialogo().Color(ColorDe(etiqueta)))
        PonerColor(etiqueta, *color);
}

bool ConfigurarPrograma::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::MouseButtonRelease)
        if (auto* muestra = qobject_cast<QLabel*>(objeto)) PonerColor(fondo_, ColorDe(muestra));
    return QDialog::eventFilter(objeto, evento);
}

void ConfigurarPrograma::ValoresPorDefecto() {
    cargando_ = true;
    combo1_->setCurrentIndex(IndiceLetraDefecto);
    PonerColor(fondo_, TipFondoDefecto);
    PonerColor(texto_, ColorTrevalo(QApplication::palette().color(QPalette::ButtonText)));
    check3_->setChecked(false);
    check4_->setChecked(false);
    cargando_ = false;
    AbrirToolTipC();
}

ConfiguracionTapiz ConfigurarPrograma::Valores() const {
    ConfiguracionTapiz t;
    t.TapizArchivo = Std(tapizNuevo_);
    t.TapizVertical = static_cast<std::int16_t>(vertical_->checkedId());
    t.TapizHorizontal = static_cast<std::int16_t>(horizontal_->checkedId());
    t.TapizAjustar = check1_->isChecked() ? -1 : 0;
    t.TapizEfecto = efecto_;
    t.TipLetra = static_cast<std::uint8_t>(combo1_->currentIndex());
    t.TipFondo = ColorDe(fondo_);
    t.TipTexto = ColorDe(texto_);
    t.TipCentrado = check3_->isChecked() ? -1 : 0;
    t.TipTradicional = check4_->isChecked() ? -1 : 0;
    return t;
}

void ConfigurarPrograma::Aceptar() {
    const Pregunta pregunta{"Tapiz de la Pantalla: " + Std(tapizNuevo_) +
                                "       \nAsumir por Defecto estas Opciones?       ",
                            "Configurar la Pantalla del Menu", BotonesMensaje::SiNo,
                            IconoMensaje::Pregunta, 1};
    if (programa_.Dialogo().Mensaje(pregunta) != RespuestaSi) return;
    const ConfiguracionTapiz valores = Valores();
    // The file first: when it cannot be written, nothing of the program changes.
    try {
        EscribirRegistrosTapiz(programa_.Carpetas.RutaBase + "/Tapiz.kvl", valores,
                               AnchosTapizDialogo);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
        return;
    }
    programa_.Tapiz = valores;
    accept();
}

} // namespace trevalo
