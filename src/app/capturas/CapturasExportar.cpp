// The export to the drawing program: the form as it opens, then with two beams marked and the
// second in the preview, and its tool tip.

#include <QPushButton>
#include <QTableView>

#include "app/capturas/Capturas.h"
#include "shell/ExportarCAD.h"
#include "shell/ToolTipTrevalo.h"
#include "shell/VigasProyecto.h"

namespace trevalo {

void CapturasExportar(Programa& programa, VigasProyecto& ventana) {
    ExportarCAD forma(programa, ventana.NombresLista(), &ventana);
    forma.show();
    Esperar(300);
    Guardar(forma, QStringLiteral("13_exportar_cad"));
    forma.Marcar(2, true);
    forma.Marcar(3, true);
    auto* grid = forma.findChild<QTableView*>(QStringLiteral("Spread1"));
    grid->setCurrentIndex(grid->model()->index(1, 1));
    Guardar(forma, QStringLiteral("14_exportar_cad_marcadas"));
    forma.ToolTip().Mostrar(forma.Boton(QStringLiteral("LSButton1")));
    Esperar(200);
    if (QWidget* globo = forma.ToolTip().Globo())
        Guardar(*globo, QStringLiteral("15_exportar_tooltip"));
    forma.ToolTip().Ocultar();
    forma.hide();
}

} // namespace trevalo
