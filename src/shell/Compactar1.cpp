#include "shell/Compactar1.h"

#include <QDir>
#include <QFileSystemModel>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeView>
#include <optional>

#include "shell/TextoQt.h"
#include "store/Compactar.h"
#include "ui_Compactar1.h"

namespace trevalo {

Compactar1::Compactar1(Programa& programa, QWidget* padre)
    : QDialog(padre), programa_(programa), ui_(std::make_unique<Ui::Compactar1>()),
      modelo_(new QFileSystemModel(this)) {
    ui_->setupUi(this);
    modelo_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    // The whole file system, so that projects on other disks (under /media, /mnt) are
    // reached as well as those of the user's folders.
    modelo_->setRootPath(QDir::rootPath());
    QTreeView* carpetas = ui_->FolderView1;
    carpetas->setModel(modelo_);
    carpetas->setRootIndex(modelo_->index(QDir::rootPath()));
    for (int c = 1; c < modelo_->columnCount(); ++c) carpetas->hideColumn(c);
    // The folders are read in the background: the current one is brought into view as its
    // parents come in.
    connect(modelo_, &QFileSystemModel::directoryLoaded, this, [this](const QString& carpeta) {
        if (dirActual_.startsWith(carpeta))
            ui_->FolderView1->scrollTo(ui_->FolderView1->currentIndex());
    });
    connect(carpetas->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& actual) {
                if (actual.isValid()) CambiarCarpeta(modelo_->filePath(actual));
            });
    connect(ui_->SSCommand1, &QPushButton::clicked, this, [this] { Marcar(true); });
    connect(ui_->LSButton1, &QPushButton::clicked, this, [this] { Marcar(false); });
    connect(ui_->Command2, &QPushButton::clicked, this, &Compactar1::Aceptar);
    connect(ui_->Command1, &QPushButton::clicked, this, &QDialog::reject);
    CambiarCarpeta(Qs(programa_.Carpetas.RutaBase + "/Proyectos"));
}

Compactar1::~Compactar1() = default;

void Compactar1::CambiarCarpeta(const QString& carpeta) {
    const QModelIndex nodo = modelo_->index(carpeta);
    if (nodo.isValid() && ui_->FolderView1->currentIndex() != nodo) {
        ui_->FolderView1->scrollTo(nodo);
        ui_->FolderView1->setCurrentIndex(nodo); // lists the folder, through currentChanged
        return;
    }
    dirActual_ = carpeta;
    ui_->FileView1->clear();
    const QStringList archivos = QDir(carpeta).entryList(
        {QStringLiteral("*.trv")}, QDir::Files | QDir::Readable, QDir::Name | QDir::IgnoreCase);
    for (const QString& nombre : archivos) {
        auto* item = new QListWidgetItem(nombre, ui_->FileView1);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
}

void Compactar1::Marcar(bool marca) {
    for (int i = 0; i < ui_->FileView1->count(); ++i)
        ui_->FileView1->item(i)->setCheckState(marca ? Qt::Checked : Qt::Unchecked);
}

QStringList Compactar1::Marcados() const {
    QStringList nombres;
    for (int i = 0; i < ui_->FileView1->count(); ++i)
        if (ui_->FileView1->item(i)->checkState() == Qt::Checked)
            nombres << ui_->FileView1->item(i)->text();
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

    ui_->ProgressBar1->show();
    ui_->LSLabel1->show();
    const double paso = 100.0 / marcados.size();
    double avance = 0;
    int hechos = 0;
    std::optional<Pregunta> falla;
    const std::string temporal = TemporalCompactar(Std(dirActual_));
    for (const QString& nombre : marcados) {
        ui_->ProgressBar1->setValue(static_cast<int>(avance));
        avance += paso;
        ui_->LSLabel1->setText(QStringLiteral("Archivo: ") + nombre);
        ui_->LSLabel1->repaint();
        try {
            CompactarArchivo(Std(QDir(dirActual_).filePath(nombre)), temporal);
        } catch (const ErrorTrevalo& e) {
            falla = MensajeError(e);
            falla->Texto += "    \nArchivo: " + Std(nombre) + "    ";
            break;
        }
        ++hechos;
    }
    ui_->ProgressBar1->hide();
    ui_->LSLabel1->hide();
    ui_->FolderView1->setFocus();
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
