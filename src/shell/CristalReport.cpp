#include "shell/CristalReport.h"

#include <QApplication>
#include <QDesktopServices>
#include <QUrl>

#include "output/BaseInforme.h"
#include "shell/TextoQt.h"

namespace trevalo {

namespace {

constexpr const char* TituloAsistente = "Asistente de Exportación";

// "caption|pattern" of every kind with a file, in the order of the print dialog.
std::string FiltroAsistente() {
    std::string filtro;
    for (const auto& s : SalidasInforme) {
        if (!s.Archivo) continue;
        const std::string patron =
            std::string(s.Filtro).substr(std::string(s.Filtro).find('|') + 1);
        filtro += (filtro.empty() ? "" : "|") + std::string(s.Leyenda) + "|" + patron;
    }
    return filtro;
}

} // namespace

RelojDeArena::RelojDeArena() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

RelojDeArena::~RelojDeArena() {
    QApplication::restoreOverrideCursor();
}

std::string RutaTemporal(const CarpetasPrograma& carpetas) {
    return carpetas.RutaBase + "/Trabajo/Temporal.mdb";
}

std::string CarpetaReportes(const CarpetasPrograma& carpetas) {
    return carpetas.RutaBase + "/ReportesExportados";
}

ContenidoInforme AbrirReporte(const Programa& programa) {
    auto contenido = LeerBaseInforme(RutaTemporal(programa.Carpetas));
    UnirDibujos(contenido, programa.Dibujos);
    contenido.SeparadorDecimal = programa.Carpetas.SeparadorDecimal;
    contenido.SeparadorMiles = programa.Carpetas.SeparadorMiles;
    return contenido;
}

DialogoArchivo DialogoSalida(const Programa& programa, const SalidaInforme& salida) {
    DialogoArchivo dialogo{salida.TituloDialogo,
                           ModoDialogo::Salvar,
                           salida.Filtro,
                           1,
                           CarpetaReportes(programa.Carpetas),
                           ""};
    dialogo.PreguntarReemplazo = true;
    return dialogo;
}

bool EscribirReporte(Programa& programa, const ContenidoInforme& contenido, const std::string& ruta,
                     ArchivoInforme tipo) {
    try {
        const RelojDeArena reloj;
        EscribirInforme(contenido, ruta, tipo);
        return true;
    } catch (const ErrorTrevalo& e) {
        programa.Dialogo().Mensaje(MensajeError(e));
        return false;
    }
}

void AsistenteExportacion(Programa& programa, const ContenidoInforme& contenido) {
    DialogoArchivo dialogo{TituloAsistente,
                           ModoDialogo::Salvar,
                           FiltroAsistente(),
                           1,
                           CarpetaReportes(programa.Carpetas),
                           ""};
    dialogo.PreguntarReemplazo = true;
    const ArchivoElegido archivo = programa.Dialogo().Archivo(dialogo);
    if (archivo.Cancelado) return;
    const auto tipo = ArchivoPorExtension(archivo.FileName);
    if (!tipo) {
        programa.Dialogo().Mensaje({"El archivo " + archivo.FileTitle +
                                        " no es de un formato del informe:\n"
                                        "PDF (.pdf), HTML (.htm), hoja de cálculo (.xlsx) o "
                                        "documento RTF (.rtf).    ",
                                    TituloAsistente, BotonesMensaje::Aceptar,
                                    IconoMensaje::Advertencia, 1});
        return;
    }
    EscribirReporte(programa, contenido, archivo.FileName, *tipo);
}

void ExplorarReportes(const Programa& programa) {
    const RelojDeArena reloj;
    QDesktopServices::openUrl(QUrl::fromLocalFile(Qs(CarpetaReportes(programa.Carpetas))));
}

} // namespace trevalo
