#include "shell/DialogosQt.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTranslator>

#include "platform/lienzos/LienzoQt.h"
#include "shell/TextoQt.h"

namespace trevalo {

namespace {

QMessageBox::Icon IconoQt(IconoMensaje icono) {
    switch (icono) {
    case IconoMensaje::Pregunta:
        return QMessageBox::Question;
    case IconoMensaje::Advertencia:
        return QMessageBox::Warning;
    case IconoMensaje::Informacion:
        return QMessageBox::Information;
    case IconoMensaje::Ninguno:
        break;
    }
    return QMessageBox::NoIcon;
}

// The buttons of a box, in their order on screen, with their caption and the answer each
// gives.
struct BotonMensaje {
    QMessageBox::StandardButton boton;
    const char* titulo;
    int respuesta;
};

std::vector<BotonMensaje> BotonesQt(BotonesMensaje botones) {
    const BotonMensaje si{QMessageBox::Yes, "&Sí", RespuestaSi};
    const BotonMensaje no{QMessageBox::No, "&No", RespuestaNo};
    switch (botones) {
    case BotonesMensaje::SiNo:
        return {si, no};
    case BotonesMensaje::SiNoCancelar:
        return {si, no, {QMessageBox::Cancel, "Cancelar", RespuestaCancelar}};
    case BotonesMensaje::Aceptar:
        break;
    }
    return {{QMessageBox::Ok, "Aceptar", RespuestaAceptar}};
}

// The extension that a name typed without one takes from the filter chosen: "*.trv" gives
// "trv"; a pattern of several kinds or of any file gives none.
QString SufijoDeFiltro(const std::string& filtro, int indice) {
    const QStringList partes = Qs(filtro).split(QLatin1Char('|'));
    const int i = 2 * indice - 1;
    if (i < 1 || i >= partes.size()) return {};
    const QString patron = partes[i].trimmed();
    const QString sufijo = patron.mid(2);
    if (!patron.startsWith(QStringLiteral("*.")) || sufijo.contains(QLatin1Char('*')) ||
        sufijo.contains(QLatin1Char(';')))
        return {};
    return sufijo;
}

// A box shown in the middle of work waits for the user: the normal pointer while it is up,
// the hourglass back when it goes.
class PunteroNormalMientras {
  public:
    PunteroNormalMientras() : espera_(QApplication::overrideCursor() != nullptr) {
        if (espera_) QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~PunteroNormalMientras() {
        if (espera_) QApplication::restoreOverrideCursor();
    }
    PunteroNormalMientras(const PunteroNormalMientras&) = delete;
    PunteroNormalMientras& operator=(const PunteroNormalMientras&) = delete;

  private:
    bool espera_;
};

// The words of a filter of FiltrosQt, as the dialog's list shows them.
QString PalabrasFiltro(const QString& filtroQt) {
    return filtroQt.left(filtroQt.lastIndexOf(QStringLiteral(" ("))).simplified();
}

} // namespace

void TraducirAlEspanol() {
    auto* traduccion = new QTranslator(QCoreApplication::instance());
    if (traduccion->load(QLocale(QLocale::Spanish), QStringLiteral("qtbase"), QStringLiteral("_"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(traduccion);
}

QWidget* VentanaActiva() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return QApplication::activeWindow();
}

QStringList FiltrosQt(const std::string& filtro) {
    const QStringList partes = Qs(filtro).split(QLatin1Char('|'));
    QStringList filtros;
    for (int i = 0; i + 1 < partes.size(); i += 2) {
        const QString patron = QString(partes[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
        // The pattern always goes last: the toolkit takes the last brackets as the pattern, so
        // words with brackets of their own ("Tabla de Perfiles (*.plf)") stay only words.
        filtros << partes[i] + QStringLiteral(" (") + patron + QLatin1Char(')');
    }
    return filtros;
}

int DialogosQt::Mensaje(const Pregunta& p) {
    QMessageBox caja(IconoQt(p.Icono), Qs(p.Titulo), Qs(p.Texto), QMessageBox::NoButton,
                     VentanaActiva());
    const auto botones = BotonesQt(p.Botones);
    for (const auto& b : botones) caja.addButton(b.boton)->setText(QString::fromUtf8(b.titulo));
    const auto defecto = static_cast<std::size_t>(p.BotonDefecto - 1);
    caja.setDefaultButton(botones[defecto < botones.size() ? defecto : 0].boton);
    const PunteroNormalMientras puntero;
    caja.exec();
    const auto pulsado = caja.standardButton(caja.clickedButton());
    for (const auto& b : botones)
        if (b.boton == pulsado) return b.respuesta;
    // Closed without a button: the box's cancel, or its only button.
    return botones.size() == 1 ? botones.front().respuesta : RespuestaCancelar;
}

std::optional<std::string> DialogosQt::Entrada(const PedidoTexto& pedido) {
    QInputDialog dialogo(VentanaActiva());
    dialogo.setWindowTitle(Qs(pedido.Titulo));
    dialogo.setLabelText(Qs(pedido.Texto));
    dialogo.setTextValue(Qs(pedido.Defecto));
    dialogo.setOkButtonText(QStringLiteral("Aceptar"));
    dialogo.setCancelButtonText(QStringLiteral("Cancelar"));
    if (dialogo.exec() != QDialog::Accepted) return std::nullopt;
    return Std(dialogo.textValue());
}

ArchivoElegido DialogosQt::Archivo(const DialogoArchivo& d) {
    QFileDialog dialogo(VentanaActiva(), Qs(d.Titulo), Qs(d.Carpeta));
    dialogo.setOption(QFileDialog::DontUseNativeDialog);
    dialogo.setAcceptMode(d.Modo == ModoDialogo::Salvar ? QFileDialog::AcceptSave
                                                        : QFileDialog::AcceptOpen);
    dialogo.setFileMode(d.Modo == ModoDialogo::Salvar || d.CrearSiFalta
                            ? QFileDialog::AnyFile
                            : QFileDialog::ExistingFile);
    // The questions about an existing file are the program's own, unless it asks the dialog.
    dialogo.setOption(QFileDialog::DontConfirmOverwrite, !d.PreguntarReemplazo);
    // The list of filters shows the words as they stand; the patterns work unseen.
    dialogo.setOption(QFileDialog::HideNameFilterDetails);
    const QStringList filtros = FiltrosQt(d.Filtro);
    dialogo.setNameFilters(filtros);
    if (d.IndiceFiltro >= 1 && d.IndiceFiltro <= filtros.size())
        dialogo.selectNameFilter(filtros[d.IndiceFiltro - 1]);
    dialogo.setDefaultSuffix(SufijoDeFiltro(d.Filtro, d.IndiceFiltro));
    // A name typed without extension takes that of the filter in view, told by its words.
    QObject::connect(&dialogo, &QFileDialog::filterSelected, &dialogo,
                     [&dialogo, &d, &filtros](const QString& palabras) {
                         int indice = 0;
                         while (indice < filtros.size() &&
                                PalabrasFiltro(filtros[indice]) != palabras)
                             ++indice;
                         dialogo.setDefaultSuffix(SufijoDeFiltro(d.Filtro, indice + 1));
                     });
    if (!d.Nombre.empty()) dialogo.selectFile(Qs(d.Nombre));
    for (;;) {
        if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
        const QString ruta = dialogo.selectedFiles().first();
        if (d.Modo == ModoDialogo::Salvar || QFileInfo::exists(ruta) ||
            Mensaje({Std(QFileInfo(ruta).fileName()) + "\nEste archivo no existe.\n¿Desea crearlo?",
                     d.Titulo, BotonesMensaje::SiNo, IconoMensaje::Advertencia, 1}) == RespuestaSi)
            return {false, Std(ruta), Std(QFileInfo(ruta).fileName())};
    }
}

std::optional<std::int32_t> DialogosQt::Color(std::int32_t inicial) {
    const QColor elegido = QColorDialog::getColor(ColorQt(inicial), VentanaActiva(), {},
                                                  QColorDialog::DontUseNativeDialog);
    if (!elegido.isValid()) return std::nullopt;
    return ColorTrevalo(elegido);
}

} // namespace trevalo
