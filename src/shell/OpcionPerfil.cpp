#include "shell/OpcionPerfil.h"

#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <filesystem>

#include "profiles/TablaPerfiles.h"
#include "shell/Ordenes.h"
#include "shell/TablaPerfil.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"

namespace trevalo {

OpcionPerfil::OpcionPerfil(Programa& programa, QWidget* parent)
    : QDialog(parent), programa_(programa) {
    setObjectName(QStringLiteral("OpcionPerfil"));
    setWindowTitle(QStringLiteral("Perfiles Metálicos"));
    auto* marco = new QGroupBox(QStringLiteral("Tablas de Perfiles"), this);
    auto* lista = new QVBoxLayout(marco);
    for (std::size_t i = 0; i < opciones_.size(); ++i) {
        auto* o = new QRadioButton(Qs(Familia(TodasLasFamilias[i]).Titulo), marco);
        o->setObjectName(QStringLiteral("Option%1").arg(i + 1));
        o->installEventFilter(this);
        lista->addWidget(o);
        opciones_[i] = o;
    }
    opciones_[0]->setChecked(true);

    // "Eliminar" is shown and does nothing in this release.
    auto* botones = new QVBoxLayout;
    CrearBotones(
        *this, *botones,
        {{{"LSButton3", "Crear", "Crear", "Crear una nueva tabla de perfiles. "},
          [this] { Crear(); }},
         {{"LSButton2", "Editar", "Editar", "Editar una tabla de perfiles existente. "},
          [this] { Editar(); }},
         {{"LSButton4", "Eliminar", "Eliminar", "Eliminar la tabla de perfiles seleccionada. "},
          {}},
         {{"LSButton1", " Retorno ", "", ""}, [this] { reject(); }}});
    botones->addStretch(1);
    auto* todo = new QHBoxLayout(this);
    todo->addWidget(marco, 1);
    todo->addLayout(botones);
    (new ToolTipTrevalo(this))->Configurar(programa_.Tapiz);
}

FamiliaPerfil OpcionPerfil::Elegida() const {
    for (std::size_t i = 0; i < opciones_.size(); ++i)
        if (opciones_[i]->isChecked()) return TodasLasFamilias[i];
    return FamiliaPerfil::DobleTee;
}

bool OpcionPerfil::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::MouseButtonDblClick) {
        static_cast<QRadioButton*>(objeto)->setChecked(true);
        Editar();
        return true;
    }
    return false;
}

// A new table: its name from the dialog's title alone, in the tables folder whatever folder
// the dialog stood in, with the family's prefix unless the name has it.
void OpcionPerfil::Crear() {
    const FamiliaPerfil familia = Elegida();
    const DatosFamilia& f = Familia(familia);
    const CarpetasPrograma& c = programa_.Carpetas;
    const ArchivoElegido elegido =
        programa_.Dialogo().Archivo({"Crear Tabla de Perfiles Metálicos", ModoDialogo::Salvar,
                                     f.Filtro, 1, c.RutaPerfiles, ""});
    if (elegido.Cancelado) return;
    const std::string titulo = TituloConPrefijo(familia, elegido.FileTitle);
    const std::string ruta = RutaTablaNueva(c.RutaPerfiles, familia, elegido.FileTitle);
    std::error_code ec;
    if (std::filesystem::exists(ruta, ec) &&
        programa_.Dialogo().Mensaje({MensajeTablaExiste(titulo), "Crear Nueva Tabla",
                                     BotonesMensaje::SiNo, IconoMensaje::Advertencia, 2}) !=
            RespuestaSi)
        return;
    try {
        CrearTablaPerfiles(c.RutaPrograma, familia, ruta);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
        return;
    }
    AbrirTabla(familia, {ruta, titulo, true});
}

void OpcionPerfil::Editar() {
    const FamiliaPerfil familia = Elegida();
    const ArchivoElegido elegido = programa_.Dialogo().Archivo(
        {"Crear Tabla de Perfiles Metálicos", ModoDialogo::Abrir, Familia(familia).Filtro, 1,
         programa_.Carpetas.RutaPerfiles, ""});
    if (elegido.Cancelado) return;
    AbrirTabla(familia, {elegido.FileName, elegido.FileTitle, false});
}

void OpcionPerfil::AbrirTabla(FamiliaPerfil familia, const EstadoTablaPerfiles& archivo) {
    TablaPerfil tabla(programa_, familia, archivo, this);
    if (tabla.Leida()) tabla.exec();
}

} // namespace trevalo
