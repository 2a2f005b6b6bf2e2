// Pictures of the settings, of the file maintenance and of the help window, opened from the
// main menu as a person would open them.

#include <QListWidget>
#include <QTabWidget>

#include "app/capturas/Capturas.h"

#include "shell/Ayuda.h"
#include "shell/Compactar1.h"
#include "shell/ConfigurarPrograma.h"
#include "shell/MenuP.h"
#include "shell/ToolTipTrevalo.h"
#include "shell/VentanaAyuda.h"

namespace trevalo {

void CapturasAjustes(Programa& programa, MenuP& menu) {
    ConfigurarPrograma configurar(programa, &menu);
    configurar.show();
    Guardar(configurar, QStringLiteral("ajustes_1_configurar_imagen"));
    configurar.findChild<QTabWidget*>(QStringLiteral("Tab1"))->setCurrentIndex(1);
    Guardar(configurar, QStringLiteral("ajustes_2_configurar_tooltip"));
    configurar.ToolTip().Mostrar(configurar.findChild<QWidget*>(QStringLiteral("OwlButton1")));
    if (QWidget* globo = configurar.ToolTip().Globo())
        Guardar(*globo, QStringLiteral("ajustes_3_tooltip_ejemplo"));
    configurar.ToolTip().Ocultar();
    configurar.hide();

    Compactar1 compactar(programa, &menu);
    compactar.show();
    if (auto* lista = compactar.findChild<QListWidget*>(QStringLiteral("FileView1")))
        if (lista->count() > 0) lista->item(0)->setCheckState(Qt::Checked);
    Guardar(compactar, QStringLiteral("ajustes_4_compactar"));
    compactar.hide();

    if (VentanaAyuda* ayuda = AbrirAyuda(programa, QStringLiteral("VigaDatos.html"), &menu)) {
        Guardar(*ayuda, QStringLiteral("ajustes_5_ayuda"));
        ayuda->close();
    }
}

} // namespace trevalo
