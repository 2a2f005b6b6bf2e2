#include "shell/ConfigurarPrograma.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <array>

#include "platform/lienzos/LienzoQt.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"
#include "ui_ConfigurarPrograma.h"

namespace trevalo {

namespace {

const char* const TituloAbrir = "Cambiar el Tapiz del Menú Principal";
const char* const PropiedadColor = "ColorTrevalo";
constexpr std::int32_t Muestras[] = {0xD6F4FF, 0xE3FFCA, 0xE1E1FF, 0xF4E3D5, 0xFFE1F0};
constexpr int IndiceLetraDefecto = 4;

std::int32_t ColorDe(const QLabel* etiqueta) {
    return etiqueta->property(PropiedadColor).toInt();
}

} // namespace

QSize ConfigurarPrograma::TamanoVista() {
    return {320, 240};
}

ConfigurarPrograma::ConfigurarPrograma(Programa& programa, QWidget* padre)
    : QDialog(padre), programa_(programa), ui_(std::make_unique<Ui::ConfigurarPrograma>()),
      toolTip_(new ToolTipTrevalo(this)), vertical_(new QButtonGroup(this)),
      horizontal_(new QButtonGroup(this)) {
    ui_->setupUi(this);
    ui_->MarcoImagen->setFixedSize(TamanoVista() + QSize(4, 4));
    // The alignments as the settings number them.
    for (const auto& [grupo, opciones] :
         {std::pair{vertical_, std::array{ui_->Option1, ui_->Option2, ui_->Option3}},
          std::pair{horizontal_, std::array{ui_->Option5, ui_->Option4, ui_->Option6}}})
        for (int i = 0; i < 3; ++i) grupo->addButton(opciones[static_cast<std::size_t>(i)], i);
    connect(ui_->Abrir, &QPushButton::clicked, this, &ConfigurarPrograma::Abrir);
    connect(ui_->LColor, &QPushButton::clicked, this, [this] { ElegirColor(ui_->LSLabel1); });
    connect(ui_->OwlButton3, &QPushButton::clicked, this, [this] { ElegirColor(ui_->LSLabel2); });
    connect(ui_->OwlButton2, &QPushButton::clicked, this, &ConfigurarPrograma::ValoresPorDefecto);
    connect(ui_->Command6, &QPushButton::clicked, this, &ConfigurarPrograma::Aceptar);
    connect(ui_->Command5, &QPushButton::clicked, this, &QDialog::reject);
    const std::array muestras{ui_->LSLabel3, ui_->LSLabel4, ui_->LSLabel5, ui_->LSLabel6,
                              ui_->LSLabel7};
    for (std::size_t i = 0; i < muestras.size(); ++i) {
        PonerColor(muestras[i], Muestras[i]);
        muestras[i]->installEventFilter(this);
    }
    const auto cambio = [this] {
        if (!cargando_) AbrirToolTipC();
    };
    connect(ui_->Combo1, &QComboBox::currentIndexChanged, this, cambio);
    connect(ui_->Check3, &QCheckBox::toggled, this, cambio);
    connect(ui_->Check4, &QCheckBox::toggled, this, cambio);

    carpetaDialogo_ = Qs(programa_.Carpetas.RutaBase + "/Tapices");
    toolTip_->Configurar(programa_.Tapiz);
    cargando_ = true;
    ConfiguraToolTip();
    cargando_ = false;
    AbrirToolTipC();
    ColoqueTapiz();
}

ConfigurarPrograma::~ConfigurarPrograma() = default;

void ConfigurarPrograma::ColoqueTapiz() {
    const auto registros = LeerRegistrosTapiz(programa_.Carpetas.RutaBase + "/Tapiz.kvl");
    tapizNuevo_ = Qs(registros.TapizArchivo);
    const bool existe = !tapizNuevo_.trimmed().isEmpty() && QFileInfo(tapizNuevo_).isFile();
    PonerImagen(existe ? QPixmap(tapizNuevo_) : QPixmap());
    const ConfiguracionTapiz& t = programa_.Tapiz;
    vertical_->button(t.TapizVertical)->setChecked(true);
    horizontal_->button(t.TapizHorizontal)->setChecked(true);
    ui_->Check1->setChecked(t.TapizAjustar != 0);
    efecto_ = t.TapizEfecto;
}

void ConfigurarPrograma::ConfiguraToolTip() {
    for (int i = 0; i <= 7; ++i) ui_->Combo1->addItem(QString::number(PuntosLetraTip(i)));
    const ConfiguracionTapiz& t = programa_.Tapiz;
    ui_->Combo1->setCurrentIndex(t.TipLetra <= 7 ? t.TipLetra : IndiceLetraDefecto);
    PonerColor(ui_->LSLabel1, t.TipFondo);
    PonerColor(ui_->LSLabel2, t.TipTexto);
    ui_->Check3->setChecked(t.TipCentrado != 0);
    ui_->Check4->setChecked(t.TipTradicional != 0);
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
        ui_->Image1->clear();
        ui_->Image1->setFixedSize(TamanoVista());
        return;
    }
    // The picture fitted into the preview's design size, keeping its proportions.
    const QSize vista = TamanoVista();
    const double r = std::min(static_cast<double>(vista.height()) / imagen.height(),
                              static_cast<double>(vista.width()) / imagen.width());
    const QSize tamano(static_cast<int>(imagen.width() * r), static_cast<int>(imagen.height() * r));
    ui_->Image1->setFixedSize(tamano);
    ui_->Image1->setPixmap(imagen.scaled(tamano, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
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
    ui_->Check1->setChecked(false);
    efecto_ = 0;
}

void ConfigurarPrograma::PonerColor(QLabel* etiqueta, std::int32_t color) {
    etiqueta->setProperty(PropiedadColor, color);
    QPalette paleta = etiqueta->palette();
    paleta.setColor(QPalette::Window, ColorQt(color));
    etiqueta->setPalette(paleta);
    if (!cargando_ && (etiqueta == ui_->LSLabel1 || etiqueta == ui_->LSLabel2)) AbrirToolTipC();
}

void ConfigurarPrograma::ElegirColor(QLabel* etiqueta) {
    if (const auto color = programa_.Dialogo().Color(ColorDe(etiqueta)))
        PonerColor(etiqueta, *color);
}

bool ConfigurarPrograma::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::MouseButtonRelease)
        if (auto* muestra = qobject_cast<QLabel*>(objeto))
            PonerColor(ui_->LSLabel1, ColorDe(muestra));
    return QDialog::eventFilter(objeto, evento);
}

void ConfigurarPrograma::ValoresPorDefecto() {
    cargando_ = true;
    ui_->Combo1->setCurrentIndex(IndiceLetraDefecto);
    PonerColor(ui_->LSLabel1, TipFondoDefecto);
    PonerColor(ui_->LSLabel2, ColorTrevalo(QApplication::palette().color(QPalette::ButtonText)));
    ui_->Check3->setChecked(false);
    ui_->Check4->setChecked(false);
    cargando_ = false;
    AbrirToolTipC();
}

ConfiguracionTapiz ConfigurarPrograma::Valores() const {
    ConfiguracionTapiz t;
    t.TapizArchivo = Std(tapizNuevo_);
    t.TapizVertical = static_cast<std::int16_t>(vertical_->checkedId());
    t.TapizHorizontal = static_cast<std::int16_t>(horizontal_->checkedId());
    t.TapizAjustar = ui_->Check1->isChecked() ? -1 : 0;
    t.TapizEfecto = efecto_;
    t.TipLetra = static_cast<std::uint8_t>(ui_->Combo1->currentIndex());
    t.TipFondo = ColorDe(ui_->LSLabel1);
    t.TipTexto = ColorDe(ui_->LSLabel2);
    t.TipCentrado = ui_->Check3->isChecked() ? -1 : 0;
    t.TipTradicional = ui_->Check4->isChecked() ? -1 : 0;
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
