// The report as PDF: the page layout painted on a PDF writer, A4 portrait, no margins of
// the writer's own (the layout keeps its own).

#include <QFile>
#include <QPageLayout>
#include <QPdfWriter>

#include "output/EscritoresInforme.h"
#include "output/PaginaInforme.h"

namespace trevalo {

void EscribirInformePdf(const ContenidoInforme& contenido, const std::string& ruta) {
    QFile archivo(QString::fromStdString(ruta));
    if (!archivo.open(QIODevice::WriteOnly | QIODevice::Truncate)) ErrorAccesoArchivo();
    {
        QPdfWriter pdf(&archivo);
        pdf.setPageLayout(
            QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
        pdf.setResolution(300);
        pdf.setTitle(QString::fromStdString(contenido.Generales.TiTulo + " - " +
                                            contenido.Generales.Proyecto));
        pdf.setCreator(QStringLiteral("Trevalo ") +
                       QString::fromStdString(contenido.Generales.Version));
        if (!PintarInforme(pdf, contenido)) ErrorAccesoArchivo();
    }
    archivo.close();
    if (archivo.error() != QFileDevice::NoError) ErrorAccesoArchivo();
}

} // namespace trevalo
