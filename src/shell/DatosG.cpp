#include "shell/DatosG.h"

#include <QDate>

#include "shell/Calendario.h"
#include "shell/TextoQt.h"
#include "store/BaseDatos.h"
#include "store/Nombres.h"
#include "ui_DatosG.h"

namespace trevalo {

namespace {

const QString FormatoFecha = QStringLiteral("dd/MM/yyyy");

// A number field, the setting it shows and its mask.
struct CampoDeNumero {
    CampoNumero* campo;
    double ProyectoActual::*valor;
    const char* mascara;
};

// In the order in which they are read into the settings.
std::vector<CampoDeNumero> CamposNumero(const Ui::DatosG& ui) {
    return {{ui.Double1, &ProyectoActual::FC, "#,##0.00"},
            {ui.Double2, &ProyectoActual::FY, "#,##0.00"},
            {ui.Double3, &ProyectoActual::D8, "#,##0.000"},
            {ui.Double4, &ProyectoActual::PesoConcreto, "#,##0.00"},
            {ui.Double7, &ProyectoActual::CFormaConcreto, "#,##0.000"},
            {ui.Double5, &ProyectoActual::ModuloAcero, "#,##0.00"},
            {ui.Double6, &ProyectoActual::PesoAcero, "#,##0.00"},
            {ui.Double8, &ProyectoActual::CFormaAcero, "#,##0.000"}};
}

// The engineer of a new project: the user's login name.
std::string NombreUsuario() {
    const QString usuario = qEnvironmentVariable("USER");
    return Std(usuario.isEmpty() ? qEnvironmentVariable("LOGNAME") : usuario);
}

// The general data of a new project. The two shape coefficients and the stirrup option keep
// what the settings hold, which the creation of a project does not set.
void ColocarDefectos(ProyectoActual& proyecto) {
    ProyectoActual defecto;
    defecto.ProyFecha = Std(QDate::currentDate().toString(FormatoFecha));
    defecto.Calculista = NombreUsuario();
    defecto.CFormaConcreto = proyecto.CFormaConcreto;
    defecto.CFormaAcero = proyecto.CFormaAcero;
    defecto.OpcionEstribos = proyecto.OpcionEstribos;
    proyecto = defecto;
}

} // namespace

DatosG::DatosG(Programa& programa, QWidget* parent)
    : QDialog(parent), programa_(programa), ui_(std::make_unique<Ui::DatosG>()) {
    ui_->setupUi(this);
    setWindowTitle(Qs("Datos Generales     Proyecto: [" + programa_.Estado.NombreProyecto + "]"));
    for (const CampoDeNumero& n : CamposNumero(*ui_))
        n.campo->Configurar(n.mascara, programa_.Carpetas.SeparadorDecimal,
                            programa_.Carpetas.SeparadorMiles);
    Cargar();

    const auto modificar = [this] { modificado_ = true; };
    for (QLineEdit* texto : findChildren<QLineEdit*>())
        connect(texto, &QLineEdit::textEdited, this, modificar);
    for (QCheckBox* marca : {ui_->Check1, ui_->Check2, ui_->Check3})
        connect(marca, &QCheckBox::toggled, this, modificar);
    connect(ui_->DateTime1, &QDateEdit::dateChanged, this, modificar);
    connect(ui_->Check2, &QCheckBox::toggled, ui_->Double7, &QWidget::setEnabled);
    connect(ui_->Check2, &QCheckBox::toggled, ui_->Double8, &QWidget::setEnabled);
    connect(ui_->Fecha, &QPushButton::clicked, this, &DatosG::ElegirFecha);
    connect(ui_->LSButton2, &QPushButton::clicked, this, &DatosG::Salvar);
    connect(ui_->LSButton1, &QPushButton::clicked, this, &DatosG::reject);
    ui_->Text1->setFocus();
}

DatosG::~DatosG() = default;

// With no row yet, or for a project just created, the row of defaults is written at once;
// then the row is read into the settings and shown.
void DatosG::Cargar() {
    try {
        BaseDatos& bd = ProyectoAbierto(programa_.Estado);
        if (bd.AbrirRecordset("GeneralProyecto").RecordCount() == 0 ||
            programa_.Estado.ProyectoNuevo) {
            ColocarDefectos(programa_.Proyecto);
            SalvarGeneralProyecto(bd, programa_.Proyecto);
        }
        LeerGeneralProyecto(bd, programa_.Proyecto);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
    }
    MostrarProyecto();
    modificado_ = false;
}

void DatosG::MostrarProyecto() {
    const ProyectoActual& p = programa_.Proyecto;
    ui_->Text1->setText(Qs(p.Proyecto));
    ui_->Text2->setText(Qs(p.Propietario));
    // A date that does not read as one shows today; it is written only if saved.
    const QDate fecha = QDate::fromString(Qs(p.ProyFecha), FormatoFecha);
    ui_->DateTime1->setDate(fecha.isValid() ? fecha : QDate::currentDate());
    ui_->Text3->setText(Qs(p.Calculista));
    ui_->Text4->setText(Qs(p.Comentario));
    ui_->Text5->setText(Qs(p.Cliente));
    ui_->Check1->setChecked(p.PPV);
    ui_->Check2->setChecked(p.DEFCOR);
    ui_->Check3->setChecked(p.OpcionEstribos);
    for (const CampoDeNumero& n : CamposNumero(*ui_)) n.campo->ColocarValor(p.*n.valor);
    ui_->Double7->setEnabled(p.DEFCOR);
    ui_->Double8->setEnabled(p.DEFCOR);
}

void DatosG::ElegirFecha() {
    Calendario calendario(ui_->DateTime1->date(), this);
    if (calendario.exec() == QDialog::Accepted) ui_->DateTime1->setDate(calendario.Fecha());
}

bool DatosG::Salvar() {
    ProyectoActual& p = programa_.Proyecto;
    p.Proyecto = Recortado(Std(ui_->Text1->text()));
    p.Propietario = Recortado(Std(ui_->Text2->text()));
    p.ProyFecha = Std(ui_->DateTime1->date().toString(FormatoFecha));
    p.Calculista = Recortado(Std(ui_->Text3->text()));
    p.Comentario = Recortado(Std(ui_->Text4->text()));
    p.Cliente = Recortado(Std(ui_->Text5->text()));
    p.PPV = ui_->Check1->isChecked();
    p.DEFCOR = ui_->Check2->isChecked();
    p.OpcionEstribos = ui_->Check3->isChecked();
    for (const CampoDeNumero& n : CamposNumero(*ui_)) p.*n.valor = n.campo->Valor();
    try {
        SalvarGeneralProyecto(ProyectoAbierto(programa_.Estado), p);
    } catch (const ErrorTrevalo& e) {
        programa_.Dialogo().Mensaje(MensajeError(e));
        return false;
    }
    modificado_ = false;
    return true;
}

void DatosG::reject() {
    if (modificado_) {
        const int respuesta = programa_.Dialogo().Mensaje(
            {"Desea Salvar las Modificaciones?      ", "Datos Generales del Proyecto",
             BotonesMensaje::SiNoCancelar, IconoMensaje::Pregunta, 1});
        if (respuesta == RespuestaCancelar) {
            ui_->Text1->setFocus();
            return;
        }
        if (respuesta == RespuestaSi && !Salvar()) return;
    }
    QDialog::reject();
}

} // namespace trevalo
