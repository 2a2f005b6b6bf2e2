// Redraw time of each of the four views of a 10-span beam carrying every load kind, on a
// 1600 x 900 raster canvas. Target: under 10 ms per view, so that pan and zoom stay fluid.

#include <benchmark/benchmark.h>

#include "VigaBanco.h"
#include "analysis/AnalisisVigasP.h"
#include "drawing/Ploteos.h"
#include "platform/lienzos/LienzosArchivo.h"

namespace trevalo {
namespace {

// range(0): 1 elevation, 2 diagrams, 3 design sheet, 4 reactions.
void PlotearVigaPorVista(benchmark::State& estadoBanco) {
    const auto vista = estadoBanco.range(0);
    ProyectoActual proyecto;
    VigaActual viga = VigaTodasLasCargas(10);
    ResultadosViga resultados;
    AnalizarViga([](ProyectoActual&) {}, proyecto, viga, resultados);
    EstadoPloteos estado;
    estado.VerDiagramas = vista == 2;
    estado.VerDiseno = vista == 3;
    estado.VerReacciones = vista == 4;
    LienzoImagen lienzo(1600, 900);
    try {
        for (auto _ : estadoBanco) {
            PlotearViga(lienzo, estado, proyecto, viga, resultados);
            benchmark::DoNotOptimize(lienzo.Imagen().constBits());
        }
    } catch (const ErrorTrevalo& e) {
        estadoBanco.SkipWithError(e.Descripcion().c_str());
    }
}

BENCHMARK(PlotearVigaPorVista)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace trevalo
