#include "shell/Compactar1.h"

#include <QDir>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <optional>

#include "shell/Ordenes.h"
#include "shell/TextoQt.h"
#include "store/Compactar.h"

namespace trevalo {

Compactar1::Compactar1(Programa& programa, QWidget* padre) : QDialog(padre), programa_(programa) {
    setObjectName(QStringLiteral("Compactar1"));
    setWindowTitle(QStringLiteral("Reparar y Compactar Archivos"));
    resize(760, 480);

    modelo_ = new QFileSystemModel(this);
    modelo_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    // The whole file system, so that projects on other disks (under /media, /mnt) are
    // reached as well as those of the user's folders.
    modelo_->setRootPath(QDir::rootPath());
    folderView1_ = new QTreeView(this);
    folderView1_->setObjectName(QStringLiteral("FolderView1"));
    folderView1_->setModel(modelo_);
    folderView1_->setRootIndex(modelo_->index(QDir::rootPath()));
    // The folders are read in the background: the current one is brought into view as its
    // parents come in.
    connect(modelo_, &QFileSystemModel::directoryLoaded, this, [this](const QString& carpeta) {
        if (dirActual_.startsWith(carpeta)) folderView1_->scrollTo(folderView1_->currentIndex());
    });
    for (int c = 1; c < modelo_->columnCount(); ++c) folderView1_->hideColumn(c);
    folderView1_->header()->hide();
    fileView1_ = new QListWidget(this);
    fileView1_->setObjectName(QStringLiteral("FileView1"));
    fileView1_->setAccessibleName(QStringLiteral("Proyectos de la carpeta"));
    connect(folderView1_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& actual) {
                if (actual.isValid()) CambiarCarpeta(modelo_->filePath(actual));
            });

    auto* marco = new QGroupBox(QStringLiteral("Seleccione el Directorio"), this);
    auto* vistas = new QHBoxLayout(marco);
    vistas->addWidget(folderView1_, 1);
    vistas->addWidget(fileView1_, 1);

    progressBar1_ = new QProgressBar(this);
    progressBar1_->setObjectName(QStringLiteral("ProgressBar1"));
    lsLabel1_ = new QLabel(QStringLiteral("Archivo:"), this);
    lsLabel1_->setObjectName(QStringLiteral("LSLabel1"));
    progressBar1_->hide();
    lsLabel1_->hide();

    auto* marcar = BotonDialogo(*this, "SSCommand1", " Marcar Todas las Partidas del Presupuesto ");
    auto* desmarcar =
        BotonDialogo(*this, "LSButton1", " Desmarcar Todas las Partidas del Presupuesto ");
    auto* aceptar = BotonDialogo(*this, "Command2", " Aceptar ");
    auto* cancelar = BotonDialogo(*this, "Command1", " Cancelar ");
    aceptar->setDefault(true);
    connect(marcar, &QPushButton::clicked, this, [this] { Marcar(true); });
    connect(desmarcar, &QPushButton::clicked, this, [this] { Marcar(false); });
    connect(aceptar, &QPushButton::clicked, this, &Compactar1::Aceptar);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);

    auto* botones = new QHBoxLayout;
    botones->addWidget(marcar);
    botones->addWidget(desmarcar);
    botones->addStretch();
    botones->addWidget(aceptar);
    botones->addWidget(cancelar);
    auto* capas = new QVBoxLayout(this);
    capas->addWidget(marco, 1);
    capas->addWidget(lsLabel1_);
    capas->addWidget(progressBar1_);
    capas->addLayout(botones);

    CambiarCarpeta(Qs(programa_.Carpetas.RutaBase + "/Proyectos"));
}

void Compactar1::CambiarCarpeta(const QString& carpeta) {
    const QModelIndex nodo = modelo_->index(carpeta);
    if (nodo.isValid() && folderView1_->currentIndex() != nodo) {
        folderView1_->scrollTo(nodo);
        folderView1_->setCurrentIndex(nodo); // lists the folder, through currentChanged
        return;
    }
    dirActual_ = carpeta;
    fileView1_->clear();
    const QStringList archivos = QDir(carpeta).entryList(
        {QStringLiteral("*.trv")}, QDir::Files | QDir::Readable, QDir::Name | QDir::IgnoreCase);
    for (const QString& nombre : archivos) {
        auto* item = new QListWidgetItem(nombre, fileView1_);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
}

void Compactar1::Marcar(bool marca) {
    for (int i = 0; i < fileView1_->count(); ++i)
        fileView1_->item(i)->setCheckState(marca ? Qt::Checked : Qt::Unchecked);
}

QStringList Compactar1::Marcados() const {
    QStringList nombres;
    for (int i = 0; i < fileView1_->count(); ++i)
        if (fileView1_->item(i)->checkState() == Qt::Checked)
            nombres << fileView1_->item(i)->text();
    return nombres;
}

void Compactar1::Aceptar() {
    const QStringList marcados = Marcados();
    if (marcados.isEmpty()) {
        programa_.Dialogo().Mensaje({"No ha Seleccionado ningún Archivo...    ",
                                     "Respardar Archivos", BotonesMensaje::Aceptar,
                                     IconoMensaje::Advertencia, 1});
        return;
    }
    // The open project is closed so that it can be compacted like any other.
    programa_.Estado.RsGeneralViga.reset();
    programa_.Estado.BDProyecto.reset();

    progressBar1_->show();
    lsLabel1_->show();
    const double paso = 100.0 / marcados.size();
    double avance = 0;
    int hechos = 0;
    std::optional<Pregunta> falla;
    const std::string temporal = TemporalCompactar(Std(dirActual_));
    for (const QString& nombre : marcados) {
        progressBar1_->setValue(static_cast<int>(avance));
        avance += paso;
        lsLabel1_->setText(QStringLiteral("Archivo: ") + nombre);
        lsLabel1_->repaint();
        try {
            CompactarArchivo(Std(QDir(dirActual_).filePath(nombre)), temporal);
        } catch (const ErrorTrevalo& e) {
            falla = MensajeError(e);
            falla->Texto += "    \nArchivo: " + Std(nombre) + "    ";
            break;
        }
        ++hechos;
    }
    progressBar1_->hide();
    lsLabel1_->hide();
    folderView1_->setFocus();
    const std::string cuenta = "(" + std::to_string(hechos) + ")";
    if (falla) {
        // The files after the one that failed were not touched: the run stops there.
        falla->Texto += "\nSe Detuvo el Proceso: se Repararon y Compactaron " + cuenta + " de (" +
                        std::to_string(marcados.size()) + ") Archivos.    ";
        programa_.Dialogo().Mensaje(*falla);
        return;
    }
    programa_.Dialogo().Mensaje(
        {"¡Se Repararon y Compactaron " + cuenta + " Archivos con Exito!    ",
         "Mantenimientos de Archivos", BotonesMensaje::Aceptar, IconoMensaje::Informacion, 1});
}

} // namespace trevalo
