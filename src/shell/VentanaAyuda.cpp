#include "shell/VentanaAyuda.h"

#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace trevalo {

namespace {

const QString Espacio = QStringLiteral("trevalo.ayuda");

// A text browser that reads the topics and their pictures from the help file.
class NavegadorAyuda : public QTextBrowser {
  public:
    NavegadorAyuda(QHelpEngine& motor, QWidget* padre) : QTextBrowser(padre), motor_(motor) {}

    QVariant loadResource(int tipo, const QUrl& nombre) override {
        if (nombre.scheme() == QStringLiteral("qthelp")) return motor_.fileData(nombre);
        return QTextBrowser::loadResource(tipo, nombre);
    }

  private:
    QHelpEngine& motor_;
};

} // namespace

QUrl VentanaAyuda::Direccion(const QString& tema) {
    return QUrl(QStringLiteral("qthelp://") + Espacio + QStringLiteral("/ayuda/") + tema);
}

VentanaAyuda::VentanaAyuda(const QString& archivo, const QString& coleccion, QWidget* padre)
    : QWidget(padre, Qt::Window) {
    setObjectName(QStringLiteral("VentanaAyuda"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Ayuda de Trevalo 6.0"));
    resize(1000, 700);

    motor_ = new QHelpEngine(coleccion, this);
    motor_->setReadOnly(false);
    motor_->setupData();
    // The file of this installation replaces whatever the collection held, so that a newer
    // help is never shadowed by an older one.
    motor_->unregisterDocumentation(Espacio);
    motor_->registerDocumentation(archivo);
    motor_->contentModel()->createContents(QString());
    motor_->indexModel()->createIndex(QString());
    motor_->searchEngine()->reindexDocumentation();

    texto_ = new NavegadorAyuda(*motor_, this);
    texto_->setObjectName(QStringLiteral("TemaAyuda"));
    paneles_ = new QTabWidget(this);
    paneles_->setObjectName(QStringLiteral("PanelesAyuda"));
    paneles_->addTab(motor_->contentWidget(), QStringLiteral("Contenido"));
    paneles_->addTab(motor_->indexWidget(), QStringLiteral("Índice"));
    auto* busqueda = new QWidget(paneles_);
    auto* capasBusqueda = new QVBoxLayout(busqueda);
    QHelpSearchEngine* buscador = motor_->searchEngine();
    capasBusqueda->addWidget(buscador->queryWidget());
    capasBusqueda->addWidget(buscador->resultWidget(), 1);
    paneles_->addTab(busqueda, QStringLiteral("Buscar"));

    connect(motor_->contentWidget(), &QHelpContentWidget::linkActivated, this,
            &VentanaAyuda::Mostrar);
    // The contents are read in the background: the topic shown is marked once they are in.
    connect(motor_->contentModel(), &QHelpContentModel::contentsCreated, this,
            [this] { Mostrar(Actual()); });
    connect(motor_->indexWidget(), &QHelpIndexWidget::documentActivated, this,
            [this](const QHelpLink& documento, const QString&) { Mostrar(documento.url); });
    connect(motor_->indexWidget(), &QHelpIndexWidget::documentsActivated, this,
            [this](const QList<QHelpLink>& documentos, const QString&) {
                if (!documentos.isEmpty()) Mostrar(documentos.front().url);
            });
    connect(buscador->queryWidget(), &QHelpSearchQueryWidget::search, this,
            [buscador] { buscador->search(buscador->queryWidget()->searchInput()); });
    connect(buscador->resultWidget(), &QHelpSearchResultWidget::requestShowLink, this,
            &VentanaAyuda::Mostrar);

    auto* division = new QSplitter(this);
    division->addWidget(paneles_);
    division->addWidget(texto_);
    division->setStretchFactor(1, 3);
    auto* capas = new QVBoxLayout(this);
    capas->setContentsMargins(4, 4, 4, 4);
    capas->addWidget(division);
}

void VentanaAyuda::MostrarTema(const QString& tema) {
    Mostrar(Direccion(tema.isEmpty() ? QStringLiteral("Introduccion.html") : tema));
}

void VentanaAyuda::Mostrar(const QUrl& direccion) {
    texto_->setSource(direccion);
    QHelpContentWidget* contenido = motor_->contentWidget();
    const QModelIndex indice = contenido->indexOf(direccion);
    if (!indice.isValid()) return;
    contenido->setCurrentIndex(indice);
    contenido->scrollTo(indice);
}

QUrl VentanaAyuda::Actual() const {
    return texto_->source();
}

} // namespace trevalo
