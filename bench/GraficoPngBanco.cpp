// What the report database's pictures cost to compress: a report picture (710 x 810 at print
// resolution) of each view of a 4-span beam carrying every load kind, its unfiltered RGB rows
// compressed by the drawing compressor, by libdeflate's fastest and default levels, and the
// whole picture written as PNG by the toolkit's writer (libpng). Counters give the bytes.

#include <benchmark/benchmark.h>
#include <libdeflate.h>

#include <QBuffer>
#include <QImage>

#include "VigaBanco.h"
#include "analysis/AnalisisVigasP.h"
#include "drawing/Ploteos.h"
#include "output/CompresionDibujo.h"
#include "output/ContenidoInforme.h"
#include "output/PasosPrograma.h"
#include "platform/lienzos/LienzosArchivo.h"

namespace trevalo {
namespace {

// The picture of `paso` at print resolution, painted as the report paints it.
QImage GraficoDeInforme(VistaInforme paso) {
    ProyectoActual proyecto;
    VigaActual viga = VigaTodasLasCargas(4);
    ResultadosViga resultados;
    AnalizarViga([](ProyectoActual&) {}, proyecto, viga, resultados);
    EstadoPloteos vista;
    VistaDeInforme(vista, paso);
    LienzoImagen lienzo(AnchoGraficoPantalla, AltoGraficoPantalla, FactorImpresion);
    lienzo.Cls();
    PlotearViga(lienzo, vista, proyecto, viga, resultados);
    return lienzo.Imagen();
}

// PNG rows: a filter byte of 0, then red, green, blue of each pixel.
std::vector<std::uint8_t> FilasSinFiltro(const QImage& imagen) {
    const QImage rgb = imagen.convertToFormat(QImage::Format_RGB888);
    std::vector<std::uint8_t> filas;
    const auto fila = static_cast<std::size_t>(rgb.width()) * 3;
    for (int y = 0; y < rgb.height(); ++y) {
        filas.push_back(0);
        filas.insert(filas.end(), rgb.constScanLine(y), rgb.constScanLine(y) + fila);
    }
    return filas;
}

constexpr VistaInforme Vistas[] = {VistaInforme::Diagramas, VistaInforme::Diseno,
                                   VistaInforme::Reacciones};

// range(0): the view (0 diagrams, 1 design sheet, 2 reactions). range(1): 0 the drawing
// compressor, 1 libdeflate level 1, 6 libdeflate level 6, 9 the toolkit's PNG writer.
void ComprimirGrafico(benchmark::State& state) {
    const QImage imagen = GraficoDeInforme(Vistas[state.range(0)]);
    const auto filas = FilasSinFiltro(imagen);
    const auto fila = 1 + static_cast<std::size_t>(imagen.width()) * 3;
    const auto metodo = state.range(1);
    std::vector<std::uint8_t> salida;
    libdeflate_compressor* compresor = metodo == 1 || metodo == 6
                                           ? libdeflate_alloc_compressor(static_cast<int>(metodo))
                                           : nullptr;
    std::size_t bytes = 0;
    for (auto _ : state) {
        if (metodo == 0) {
            ComprimirDibujo(filas.data(), filas.size(), fila, salida);
            bytes = salida.size();
        } else if (compresor) {
            salida.resize(libdeflate_zlib_compress_bound(compresor, filas.size()));
            bytes = libdeflate_zlib_compress(compresor, filas.data(), filas.size(), salida.data(),
                                             salida.size());
        } else {
            QByteArray png;
            QBuffer buffer(&png);
            buffer.open(QIODevice::WriteOnly);
            imagen.save(&buffer, "PNG");
            bytes = static_cast<std::size_t>(png.size());
        }
        benchmark::DoNotOptimize(salida.data());
    }
    if (compresor) libdeflate_free_compressor(compresor);
    state.counters["kB"] = static_cast<double>(bytes) / 1e3;
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * filas.size()));
}

BENCHMARK(ComprimirGrafico)
    ->ArgsProduct({{0, 1, 2}, {0, 1, 6, 9}})
    ->ArgNames({"vista", "metodo"})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace trevalo
