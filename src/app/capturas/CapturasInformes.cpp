#include <QApplication>
#include <QCheckBox>
#include <QTimer>

#include "app/capturas/Capturas.h"
#include "output/ProgramaInforme.h"
#include "shell/CristalReport.h"
#include "shell/ImpreReport.h"
#include "shell/ImpreVigas.h"
#include "shell/VerReportes.h"
#include "shell/VigasProyecto.h"

namespace trevalo {

void CapturasInformes(Programa& programa, VigasProyecto& ventana) {
    ImpreVigas vigas(programa, ventana.NombresLista(), &ventana);
    vigas.findChild<QCheckBox*>(QStringLiteral("Check1"))->setChecked(true);
    Capturar(vigas, QStringLiteral("13_imprimir_vigas"));
    ImpreReport salida(programa, &ventana);
    Capturar(salida, QStringLiteral("14_tipo_salida"));

    // The sample project's full report, as the report command fills it.
    ModeloInforme modelo{programa.Estado, programa.Proyecto, programa.Viga, programa.Resultados,
                         programa.Vista};
    programa.Dibujos =
        LlenarInformePrograma(modelo, programa.Dialogo(), ventana.NombresLista(), {0, 1, 1},
                              programa.Carpetas.RutaPrograma, RutaTemporal(programa.Carpetas),
                              programa.Carpetas.VersionPrograma, {});
    VerReportes visor(programa, AbrirReporte(programa), &ventana);
    visor.show();
    Esperar(300);
    Guardar(visor, QStringLiteral("15_visor_cabecera"));
    visor.IrAPagina(2);
    Guardar(visor, QStringLiteral("16_visor_diseno"));
    visor.IrAPagina(3);
    visor.FijarZoom(75);
    Guardar(visor, QStringLiteral("17_visor_diagramas"));
    // The system's print dialog and the preview, as the viewer's buttons open them.
    const auto capturarModal = [](const QString& nombre) {
        QTimer::singleShot(500, [nombre] {
            if (QWidget* dialogo = QApplication::activeModalWidget()) {
                Guardar(*dialogo, nombre);
                dialogo->close();
            }
        });
    };
    // A file name of the user's kind, not the tour's folder.
    visor.Impresora().setOutputFileName(QStringLiteral("Informe.pdf"));
    capturarModal(QStringLiteral("18_imprimir_informe"));
    visor.Imprimir();
    capturarModal(QStringLiteral("19_vista_preliminar"));
    visor.VistaPreliminar();
    visor.hide();
}

} // namespace trevalo
