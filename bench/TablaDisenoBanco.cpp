// Time of the design table of a concrete beam: NT spans of 5 m carrying a uniform and a point
// load, at 2 stations a metre (the sheet's default) and at 10 (the companion tool's).

#include <benchmark/benchmark.h>

#include "analysis/AnalisisVigasP.h"
#include "design/TablaDiseno.h"

namespace {

using namespace trevalo;

struct Viga {
    ProyectoActual p;
    VigaActual v;
    ResultadosViga r;
    Arreglo<double> X, Y;
};

Viga VigaDeTramos(std::int16_t nt) {
    Viga b;
    b.p.OpcionEstribos = true;
    NuevaVigaDefecto(b.v);
    b.v.NT = nt;
    ReiniciarArreglosViga(b.v);
    b.v.B1(1) = 0.3;
    b.v.T1(1) = 0.55;
    b.v.NJRest = static_cast<std::int16_t>(nt + 1);
    b.v.R1.Redim(nt + 1);
    b.v.Apoyo.Redim(nt + 1);
    for (std::int16_t j = 1; j <= nt + 1; ++j) {
        b.v.R1(j) = j;
        b.v.Apoyo(j) = ApoyoFijo;
    }
    for (long t = 1; t <= nt; ++t) {
        b.v.LT(t) = 5;
        b.v.VT(t) = 1;
        b.v.W1(t) = 2500;
        b.v.CantW2(t) = 1;
        b.v.P(t, 1) = 3000;
        b.v.LP(t, 1) = 2;
    }
    const ProyectoActual leido = b.p;
    AnalizarViga([&leido](ProyectoActual& d) { d = leido; }, b.p, b.v, b.r);
    b.X.Redim(nt + 1);
    b.Y.Redim(nt + 1);
    for (long j = 1; j <= nt + 1; ++j) b.X(j) = 5.0 * (j - 1);
    return b;
}

void TablaDeDiseno(benchmark::State& estado) {
    Viga b = VigaDeTramos(static_cast<std::int16_t>(estado.range(0)));
    const double porMetro = static_cast<double>(estado.range(1));
    ResumenAcero resumen;
    for (auto _ : estado) {
        auto tabla = TablaDiseno(b.p, b.v, b.r, b.X, b.Y, porMetro, resumen);
        benchmark::DoNotOptimize(tabla);
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0) * (5 * estado.range(1) + 1));
}
BENCHMARK(TablaDeDiseno)->Args({10, 2})->Args({10, 10})->Args({100, 10});

} // namespace
