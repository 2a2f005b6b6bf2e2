#include "shell/VerReportes.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>

#include "output/EscritoresInforme.h"
#include "output/PaginaInforme.h"
#include "shell/CristalReport.h"
#include "shell/Ordenes.h"

namespace trevalo {

// One page of the report at the zoom chosen, painted as the PDF and the printer paint it: its
// picture from the drawing, sharp at every zoom.
class HojaInforme : public QWidget {
  public:
    HojaInforme(const ContenidoInforme& contenido, QWidget* parent)
        : QWidget(parent), contenido_(contenido) {
        setObjectName(QStringLiteral("CRViewer1"));
        setAccessibleName(QStringLiteral("Página del Informe"));
        FijarZoom(100);
    }

    int Pagina() const { return pagina_; }
    void FijarPagina(int pagina) {
        pagina_ = pagina;
        update();
    }
    int Zoom() const { return zoom_; }
    // At 100 % a point of the page is 96/72 screen pixels: the page at its printed size.
    void FijarZoom(int porcentaje) {
        zoom_ = porcentaje;
        const double escala = porcentaje / 100.0 * 96.0 / 72.0;
        setFixedSize(static_cast<int>(AnchoPaginaPuntos * escala),
                     static_cast<int>(AltoPaginaPuntos * escala));
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pintor(this);
        PintarPaginaInforme(pintor, rect(), contenido_, pagina_);
    }

  private:
    const ContenidoInforme& contenido_;
    int pagina_ = 1;
    int zoom_ = 100;
};

namespace {

// The buttons of the viewer: object name, caption, tip.
const int Zooms[] = {50, 75, 100, 125, 150, 200};

QPushButton* BotonPaso(const QString& texto, const QString& nombre, QWidget* padre) {
    auto* b = new QPushButton(texto, padre);
    b->setObjectName(nombre);
    b->setAccessibleName(nombre);
    b->setToolTip(nombre);
    b->setAutoDefault(false);
    b->setFixedWidth(44);
    return b;
}

} // namespace

VerReportes::VerReportes(Programa& programa, ContenidoInforme contenido, QWidget* parent)
    : QDialog(parent), programa_(programa), contenido_(std::move(contenido)),
      impresora_(QPrinter::HighResolution) {
    setObjectName(QStringLiteral("VerReportes"));
    setWindowTitle(QStringLiteral("Korvel-Visualizador de Reportes"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    impresora_.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    impresora_.setFullPage(true);
    impresora_.setDocName(QString::fromStdString(contenido_.Generales.TiTulo));

    hoja_ = new HojaInforme(contenido_, this);
    area_ = new QScrollArea(this);
    area_->setWidget(hoja_);
    area_->setAlignment(Qt::AlignHCenter);
    area_->setBackgroundRole(QPalette::Dark);

    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(CrearNavegacion());
    izquierda->addWidget(area_, 1);
    auto* todo = new QHBoxLayout(this);
    todo->addLayout(izquierda, 1);
    todo->addWidget(CrearPanelOrdenes());
    Actualizar();
    if (const QScreen* pantalla = screen()) {
        const QRect zona = pantalla->availableGeometry();
        resize(zona.width() * 95 / 100, zona.height() * 9 / 10);
    }
    setWindowState(Qt::WindowMaximized);
}

QWidget* VerReportes::CrearNavegacion() {
    auto* barra = new QWidget(this);
    auto* capas = new QHBoxLayout(barra);
    capas->setContentsMargins(0, 0, 0, 0);
    auto* primera = BotonPaso(QStringLiteral("|◀"), QStringLiteral("Primera Página"), barra);
    auto* anterior = BotonPaso(QStringLiteral("◀"), QStringLiteral("Página Anterior"), barra);
    auto* siguiente = BotonPaso(QStringLiteral("▶"), QStringLiteral("Página Siguiente"), barra);
    auto* ultima = BotonPaso(QStringLiteral("▶|"), QStringLiteral("Última Página"), barra);
    pagina_ = new QSpinBox(barra);
    pagina_->setObjectName(QStringLiteral("Pagina"));
    pagina_->setAccessibleName(QStringLiteral("Página"));
    pagina_->setRange(1, Paginas());
    total_ = new QLabel(QStringLiteral("de %1").arg(Paginas()), barra);
    zoom_ = new QComboBox(barra);
    zoom_->setObjectName(QStringLiteral("Zoom"));
    zoom_->setAccessibleName(QStringLiteral("Zoom"));
    for (const int z : Zooms) zoom_->addItem(QStringLiteral("%1 %").arg(z), z);
    zoom_->setCurrentIndex(zoom_->findData(100));
    auto* etiquetaZoom = new QLabel(QStringLiteral("Zoom:"), barra);
    etiquetaZoom->setBuddy(zoom_);
    auto* etiquetaPagina = new QLabel(QStringLiteral("Página"), barra);
    etiquetaPagina->setBuddy(pagina_);
    for (QWidget* w : std::initializer_list<QWidget*>{primera, anterior, etiquetaPagina, pagina_,
                                                      total_, siguiente, ultima})
        capas->addWidget(w);
    capas->addSpacing(24);
    capas->addWidget(etiquetaZoom);
    capas->addWidget(zoom_);
    capas->addStretch(1);
    haciaAtras_ = {primera, anterior};
    haciaAdelante_ = {siguiente, ultima};

    connect(primera, &QPushButton::clicked, this, [this] { IrAPagina(1); });
    connect(anterior, &QPushButton::clicked, this, [this] { IrAPagina(Pagina() - 1); });
    connect(siguiente, &QPushButton::clicked, this, [this] { IrAPagina(Pagina() + 1); });
    connect(ultima, &QPushButton::clicked, this, [this] { IrAPagina(Paginas()); });
    connect(pagina_, &QSpinBox::valueChanged, this, &VerReportes::IrAPagina);
    connect(zoom_, &QComboBox::currentIndexChanged, this,
            [this](int i) { FijarZoom(zoom_->itemData(i).toInt()); });
    return barra;
}

QWidget* VerReportes::CrearPanelOrdenes() {
    auto* panel = new QWidget(this);
    panel->setObjectName(QStringLiteral("LSPanel1"));
    auto* capas = new QVBoxLayout(panel);
    capas->setContentsMargins(0, 0, 0, 0);
    // The viewer's commands; " Cerrar la Vista Actual " does nothing in this release.
    CrearBotones(
        *panel, *capas,
        {{{"LSButton3", " Exportar", "", "Exportar el Informe a varios formatos"},
          [this] {
              AsistenteExportacion(programa_, contenido_);
              hoja_->update();
          }},
         {{"LSButton4", " Imprimir", "", "Imprimir el informe en la impresora seleccionada"},
          [this] { Imprimir(); }},
         {{"VistaPreliminar", " Vista Preliminar", "", "Ver las páginas tal como saldrán impresas"},
          [this] { VistaPreliminar(); }},
         {{"LSButton5", " Cerrar la Vista Actual", "", ""}, {}},
         {{"SSCommand2", " Explorador de Windows", "", ""},
          [this] { ExplorarReportes(programa_); }}});
    capas->addStretch(1); // " Retorno " at the foot
    CrearBotones(*panel, *capas, {{{"LSButton2", " Retorno", "", ""}, [this] { accept(); }}});
    return panel;
}

QPushButton* VerReportes::Boton(const QString& nombre) const {
    return findChild<QPushButton*>(nombre);
}

int VerReportes::Pagina() const {
    return hoja_->Pagina();
}

int VerReportes::Paginas() const {
    return CantidadPaginasInforme(contenido_);
}

void VerReportes::IrAPagina(int pagina) {
    if (pagina < 1 || pagina > Paginas() || pagina == Pagina()) return;
    hoja_->FijarPagina(pagina);
    Actualizar();
}

int VerReportes::Zoom() const {
    return hoja_->Zoom();
}

void VerReportes::FijarZoom(int porcentaje) {
    hoja_->FijarZoom(porcentaje);
    Actualizar();
}

void VerReportes::Actualizar() {
    const QSignalBlocker bloqueoPagina(pagina_);
    pagina_->setValue(Pagina());
    const QSignalBlocker bloqueoZoom(zoom_);
    zoom_->setCurrentIndex(zoom_->findData(Zoom()));
    for (QPushButton* atras : haciaAtras_) atras->setEnabled(Pagina() > 1);
    for (QPushButton* adelante : haciaAdelante_) adelante->setEnabled(Pagina() < Paginas());
}

void VerReportes::Imprimir() {
    QPrintDialog dialogo(&impresora_, this);
    dialogo.setWindowTitle(QStringLiteral("Imprimir el Informe"));
    if (dialogo.exec() == QDialog::Accepted) {
        try {
            const RelojDeArena reloj;
            if (!PintarInforme(impresora_, contenido_)) ErrorAccesoArchivo();
        } catch (const ErrorTrevalo& e) {
            programa_.Dialogo().Mensaje(MensajeError(e));
        }
    }
    hoja_->update();
}

void VerReportes::VistaPreliminar() {
    QPrintPreviewDialog dialogo(&impresora_, this);
    dialogo.setWindowTitle(QStringLiteral("Vista Preliminar del Informe"));
    connect(&dialogo, &QPrintPreviewDialog::paintRequested, this,
            [this](QPrinter* impresora) { PintarInforme(*impresora, contenido_); });
    dialogo.exec();
}

} // namespace trevalo
