// The steps of the manual's worked example, "Su primera viga", on the sample project: a beam
// of two spans of 5 m, 0.30 x 0.50, on a pin and two rollers, under 1625 kgf/m on both spans;
// its name asked, the editor's pages as the steps leave them, the load, and the results.

#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "app/capturas/Capturas.h"
#include "app/capturas/PrimeraViga.h"
#include "shell/Carga01.h"
#include "shell/ListaVigas.h"
#include "shell/NuevaViga.h"
#include "shell/TextoQt.h"
#include "shell/VigaDatos.h"
#include "shell/VigasProyecto.h"
#include "store/BaseDatos.h"

namespace trevalo {

namespace {

// The editor's pages of the example, moved through with " Siguiente " as a person does.
void PaginasEditor(Programa& programa, VigasProyecto& ventana) {
    VigaDatos editor(programa, &ventana.Lista(), &ventana);
    editor.show();
    auto* siguiente = editor.findChild<QPushButton*>(QStringLiteral("Button2"));
    const std::pair<int, const char*> pasos[] = {
        {1, "PrimeraViga_2_tramos"}, {3, "PrimeraViga_3_apoyos"}, {5, "PrimeraViga_4_secciones"}};
    for (const auto& [pagina, nombre] : pasos) {
        while (editor.Pagina() < pagina) siguiente->click();
        Guardar(editor, QString::fromUtf8(nombre));
    }
    while (editor.Pagina() < 7) siguiente->click();
    editor.findChild<QPushButton*>(QStringLiteral("SSCommand1"))->click();
    Guardar(editor, QStringLiteral("PrimeraViga_5_tramos_marcados"));
    Arreglo<std::int16_t> marcas(2);
    marcas(1) = marcas(2) = 1;
    Carga01 carga(programa, marcas, &editor);
    Capturar(carga, QStringLiteral("PrimeraViga_6_carga_uniforme"));
    editor.hide();
    programa.Vista.ModoEditor = false;
}

} // namespace

void CapturasPrimeraViga(Programa& programa, VigasProyecto& ventana) {
    NuevaViga nueva(
        programa, ventana.FilaActiva(), ventana.NombresLista(), [](int) {}, &ventana);
    nueva.show();
    nueva.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(Qs(NombrePrimeraViga));
    Guardar(nueva, QStringLiteral("PrimeraViga_1_nombre"));
    nueva.hide();

    programa.Viga = PrimeraViga();
    programa.Viga.VigaNueva = true;
    SalvarViga(programa.Estado, programa.Viga);
    ventana.ColoquePantalla();
    const auto nombres = ventana.NombresLista();
    const int fila =
        int(std::find(nombres.begin(), nombres.end(), NombrePrimeraViga) - nombres.begin()) + 1;
    ventana.ElegirPestana(1);
    ventana.FijarFilaActiva(fila);
    ventana.ColoqueVigasSpread(fila);
    PaginasEditor(programa, ventana);
    const char* const resultados[] = {"PrimeraViga_7_geometria", "PrimeraViga_8_diagramas",
                                      "PrimeraViga_9_diseno", "PrimeraViga_10_reacciones"};
    for (int pestana = 1; pestana <= 4; ++pestana) {
        ventana.ElegirPestana(pestana);
        Guardar(ventana, QString::fromUtf8(resultados[pestana - 1]));
    }
    ventana.ElegirPestana(1);
}

} // namespace trevalo
