#include "shell/VigasMetalicas.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/lienzos/LienzosArchivo.h"
#include "profiles/DibujosSeccion.h"
#include "shell/DelegadosCelda.h"
#include "shell/ModeloCeldas.h"
#include "shell/OpcionPerfil.h"
#include "shell/Ordenes.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"

namespace trevalo {

namespace {

QIcon Dibujo(int item) {
    LienzoImagen lienzo(72, 72);
    DibujeFamiliaPerfil(lienzo, item);
    return QIcon(QPixmap::fromImage(lienzo.Imagen()));
}

} // namespace

VigasMetalicas::VigasMetalicas(Programa& programa, long tipo, QWidget* parent)
    : QDialog(parent), programa_(programa), tipo_(tipo) {
    setObjectName(QStringLiteral("VigasMetalicas"));
    setWindowTitle(QStringLiteral("Base de Datos de Perfiles Metálicos"));
    CrearControles();
    ColoquePantalla();
}

void VigasMetalicas::CrearControles() {
    marco_ =
        new QGroupBox(QStringLiteral("Seleccione el Perfil de la Viga Tipo: %1").arg(tipo_), this);
    familias_ = new QListWidget(marco_);
    familias_->setObjectName(QStringLiteral("fpList1"));
    familias_->setAccessibleName(QStringLiteral("Perfiles"));
    familias_->setViewMode(QListView::IconMode);
    familias_->setIconSize(QSize(72, 72));
    familias_->setGridSize(QSize(128, 112));
    familias_->setMovement(QListView::Static);
    familias_->setWrapping(false);
    familias_->setFlow(QListView::LeftToRight);
    familias_->setWordWrap(true);
    familias_->setFixedHeight(136);
    for (int i = 1; i <= NumeroItemsFamilia; ++i)
        familias_->addItem(new QListWidgetItem(Dibujo(i), Qs(ItemLista(i).Texto)));

    vistaPerfiles_ = new QTableView(marco_);
    vistaPerfiles_->setObjectName(QStringLiteral("Spread1"));
    vistaPerfiles_->setAccessibleName(QStringLiteral("Perfiles de la Tabla"));
    // The table loaded, shown only: read where it lives, in the program's list of profiles.
    AccesoCeldas acceso;
    acceso.Filas = [this] { return static_cast<int>(programa_.ListaPerfil.ListaPerfilesN); };
    acceso.Leer = [this](int fila, int columna) -> QVariant {
        const ListaPerfiles& lista = programa_.ListaPerfil;
        if (columna == 1) return Qs(lista.ListaDesignacion(fila));
        return columna == 2 ? lista.ListaArea(fila) : lista.ListaInercia(fila);
    };
    const FormatoCelda dosDecimales{2, false};
    const auto& carpetas = programa_.Carpetas;
    modelo_ = new ModeloCeldas({{QStringLiteral("Designación"), std::nullopt, false, false},
                                {QStringLiteral("Area"), dosDecimales, false, false},
                                {QStringLiteral("Inercia"), dosDecimales, false, false}},
                               std::move(acceso), carpetas.SeparadorDecimal,
                               carpetas.SeparadorMiles, vistaPerfiles_);
    MostrarModelo(programa_, *vistaPerfiles_, *modelo_);
    vistaPerfiles_->verticalHeader()->hide();
    vistaPerfiles_->verticalHeader()->setDefaultSectionSize(18);
    vistaPerfiles_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    vistaPerfiles_->setColumnWidth(1, 100);
    vistaPerfiles_->setColumnWidth(2, 110);
    vistaPerfiles_->setSelectionMode(QAbstractItemView::SingleSelection);
    vistaPerfiles_->setSelectionBehavior(QAbstractItemView::SelectRows);
    vistaPerfiles_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* dentro = new QVBoxLayout(marco_);
    dentro->addWidget(familias_);
    dentro->addWidget(vistaPerfiles_, 1);

    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    CrearBotones(
        *this, *botones,
        {{{"LSButton2", "Tablas", "Tablas", "Abrir una tabla de perfiles existente. "},
          [this] { Tablas(); }},
         {{"LSButton4", "Capturar", "Capturar", "Capturar el perfil seleccionado. "},
          [this] { Capturar(); }},
         {{"LSButton6", "Editar", "Editar", "Crear o Editar tabla de perfiles metálicos. "},
          [this] {
              OpcionPerfil opcion(programa_, this);
              opcion.exec();
          }},
         {{"LSButton1", " Retorno ", "", ""}, [this] { reject(); }}});
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(marco_, 1);
    todo->addLayout(botones);
    resize(960, 560);

    // A click on a picture loads a table for it; unless the load was cancelled, the picture
    // becomes the current one.
    connect(familias_, &QListWidget::itemClicked, this, [this] {
        Tablas();
        if (!cancelarItem_) itemActual_ = familias_->currentRow() + 1;
        cancelarItem_ = false;
    });
    connect(vistaPerfiles_, &QTableView::doubleClicked, this, &VigasMetalicas::Capturar);
    (new ToolTipTrevalo(this))->Configurar(programa_.Tapiz);
}

// The last table loaded, and the picture it was loaded for (the first before any).
void VigasMetalicas::ColoquePantalla() {
    ListaPerfiles& lista = programa_.ListaPerfil;
    modelo_->Recargar();
    if (lista.ListaFamilia == 0) lista.ListaFamilia = 1;
    ElegirItem(lista.ListaFamilia);
    itemActual_ = lista.ListaFamilia;
}

void VigasMetalicas::ElegirItem(int item) {
    familias_->setCurrentRow(item - 1);
}

void VigasMetalicas::Tablas() {
    const int item = std::max(familias_->currentRow(), 0) + 1;
    const ArchivoElegido elegido = programa_.Dialogo().Archivo(
        {"Crear Tabla de Perfiles Metálicos", ModoDialogo::Abrir,
         Familia(ItemLista(item).Familia).Filtro, 1, programa_.Carpetas.RutaPerfiles, ""});
    if (!elegido.Cancelado) {
        try {
            CargarListaPerfiles(elegido.FileName, item, programa_.ListaPerfil);
            ColoquePantalla();
            vistaPerfiles_->setFocus();
            return;
        } catch (const ErrorTrevalo& e) {
            // A file of another family: told, and the earlier table stays, as on a cancel.
            programa_.Dialogo().Mensaje(MensajeError(e));
        }
    }
    ElegirItem(itemActual_);
    cancelarItem_ = true;
}

void VigasMetalicas::Capturar() {
    const ListaPerfiles& lista = programa_.ListaPerfil;
    if (modelo_->Filas() == 0) {
        QApplication::beep();
        return;
    }
    const long fila = std::max(vistaPerfiles_->currentIndex().row(), 0) + 1;
    if (programa_.Dialogo().Mensaje({MensajeCapturaPerfil(lista, fila, tipo_),
                                     "Capturar Sección de Perfil Metálico", BotonesMensaje::SiNo,
                                     IconoMensaje::Pregunta, 1}) != RespuestaSi) {
        vistaPerfiles_->setFocus();
        return;
    }
    filaCapturada_ = fila;
    accept();
}

} // namespace trevalo
