// The full report of a generated project of 100 continuous beams (one to four spans each),
// with diagrams and reactions (300 pictures), to PDF and to HTML: every beam loaded, solved,
// recorded and painted at print resolution into the report database, then the report read
// back, joined to its drawings and written as each kind.
// Counters give each stage's seconds and the progress reports seen; the argument is the
// number of threads that paint the pictures.

#include <benchmark/benchmark.h>

#include <chrono>
#include <ctime>
#include <filesystem>

#include "comun/Carpeta.h"
#include "comun/Proyecto.h"
#include "output/BaseInforme.h"
#include "output/EscritoresInforme.h"
#include "output/PasosPrograma.h"

namespace trevalo {
namespace {

// Counts the messages of the walk and answers none.
class DialogosContados : public Dialogos {
  public:
    explicit DialogosContados(long& cuenta) : cuenta_(cuenta) {}
    int Mensaje(const Pregunta&) override { return ++cuenta_, RespuestaAceptar; }
    std::optional<std::string> Entrada(const PedidoTexto&) override { return std::nullopt; }
    ArchivoElegido Archivo(const DialogoArchivo&) override { return {}; }
    std::optional<std::int32_t> Color(std::int32_t) override { return std::nullopt; }

  private:
    long& cuenta_;
};

namespace fs = std::filesystem;

void InformeCompletoPdf(benchmark::State& state) {
    const prueba::CarpetaTemporal temporales; // of this run alone
    const fs::path carpeta = temporales.Ruta();
    const auto proyecto = carpeta / "Cien.trv";
    std::vector<VigaActual> vigas;
    std::vector<std::string> nombres;
    for (int i = 0; i < 100; ++i) {
        vigas.push_back(prueba::VigaPrueba("V-" + std::to_string(101 + i), i));
        nombres.push_back(vigas.back().NombreVigaActual);
    }
    prueba::CrearProyecto(proyecto.string(), vigas, prueba::AjustesPrueba());
    const auto temporal = (carpeta / "Temporal.mdb").string();
    const auto pdf = (carpeta / "Informe.pdf").string();
    const auto html = (carpeta / "Informe.htm").string();

    using Reloj = std::chrono::steady_clock;
    double llenado = 0, escritura = 0, cpuLlenado = 0, cpuEscritura = 0, escrituraHtml = 0,
           cpuHtml = 0;
    auto cpu = [] { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; };
    long avisos = 0, progresos = 0;
    for (auto _ : state) {
        fs::copy_file(TREVALO_RUTA_PROGRAMA "/Imagen/Temporal.kvl", temporal,
                      fs::copy_options::overwrite_existing);
        EstadoProyecto estado;
        estado.BDProyecto = BaseDatos::Abrir(proyecto.string());
        ProyectoActual ajustes;
        LeerGeneralProyecto(*estado.BDProyecto, ajustes);
        VigaActual viga;
        ResultadosViga resultados;
        EstadoPloteos vista;
        ModeloInforme modelo{estado, ajustes, viga, resultados, vista};
        DialogosContados dialogos(avisos);
        auto pasos = PasosPrograma(modelo, dialogos);
        pasos.Progreso = [&](const std::string&, double) { ++progresos; };

        const double c0 = cpu();
        const auto t0 = Reloj::now();
        const auto dibujos =
            LlenarImpreDatos(temporal, FilaGeneralesDe(ajustes, "banco", "6.0"), nombres, {0, 1, 1},
                             pasos, static_cast<int>(state.range(0)));
        const auto t1 = Reloj::now();
        const double c1 = cpu();
        auto contenido = LeerBaseInforme(temporal);
        UnirDibujos(contenido, dibujos);
        EscribirInformePdf(contenido, pdf);
        const auto t2 = Reloj::now();
        const double c2 = cpu();
        EscribirInformeHtml(contenido, html);
        cpuHtml += cpu() - c2;
        escrituraHtml += std::chrono::duration<double>(Reloj::now() - t2).count();
        cpuLlenado += c1 - c0;
        cpuEscritura += c2 - c1;
        llenado += std::chrono::duration<double>(t1 - t0).count();
        escritura += std::chrono::duration<double>(t2 - t1).count();
        if (contenido.Graficos.size() != 300) state.SkipWithError("not 300 pictures");
    }
    const auto n = static_cast<double>(state.iterations());
    state.counters["llenado_s"] = llenado / n;
    state.counters["pdf_s"] = escritura / n;
    state.counters["llenado_cpu_s"] = cpuLlenado / n;
    state.counters["pdf_cpu_s"] = cpuEscritura / n;
    state.counters["html_cpu_s"] = cpuHtml / n;
    state.counters["html_s"] = escrituraHtml / n;
    state.counters["html_MB"] = static_cast<double>(fs::file_size(html)) / 1e6;
    state.counters["progreso"] = static_cast<double>(progresos) / n;
    state.counters["avisos"] = static_cast<double>(avisos) / n;
    state.counters["pdf_MB"] = static_cast<double>(fs::file_size(pdf)) / 1e6;
}

// The argument is the number of painting threads: one by one, and one a core of this machine.
BENCHMARK(InformeCompletoPdf)
    ->Arg(1)
    ->Arg(HilosPintura())
    ->ArgName("hilos")
    ->Unit(benchmark::kSecond)
    ->Iterations(1)
    ->UseRealTime();

} // namespace
} // namespace trevalo
