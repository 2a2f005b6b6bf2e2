// Time and memory of one analysis of a continuous beam of NT spans, a support at every
// joint and loads of several kinds on every span. Memory is counted through the global
// allocation functions: the peak of live bytes during one run, and the bytes per span.

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "analysis/AnalisisVigasP.h"

namespace {

std::atomic<long> vivos{0};
std::atomic<long> pico{0};

void* Reservar(std::size_t n) {
    void* p = std::malloc(n + sizeof(std::max_align_t));
    if (!p) throw std::bad_alloc();
    *static_cast<std::size_t*>(p) = n;
    const long ahora = vivos += static_cast<long>(n);
    long anterior = pico.load();
    while (ahora > anterior && !pico.compare_exchange_weak(anterior, ahora)) {
    }
    return static_cast<char*>(p) + sizeof(std::max_align_t);
}

void Liberar(void* p) {
    if (!p) return;
    char* base = static_cast<char*>(p) - sizeof(std::max_align_t);
    vivos -= static_cast<long>(*reinterpret_cast<std::size_t*>(base));
    std::free(base);
}

} // namespace

void* operator new(std::size_t n) {
    return Reservar(n);
}
void* operator new[](std::size_t n) {
    return Reservar(n);
}
void operator delete(void* p) noexcept {
    Liberar(p);
}
void operator delete[](void* p) noexcept {
    Liberar(p);
}
void operator delete(void* p, std::size_t) noexcept {
    Liberar(p);
}
void operator delete[](void* p, std::size_t) noexcept {
    Liberar(p);
}

namespace {

using namespace trevalo;

VigaActual VigaContinua(std::int16_t nt) {
    VigaActual v;
    NuevaVigaDefecto(v);
    v.NT = nt;
    RedimensionarViga(v);
    v.NJRest = static_cast<std::int16_t>(nt + 1);
    v.R1.Redim(v.NJRest);
    v.Apoyo.Redim(v.NJRest);
    for (long j = 1; j <= v.NJRest; ++j) {
        v.R1(j) = static_cast<std::int16_t>(j);
        v.Apoyo(j) = j == 1 ? ApoyoFijo : RodilloEnX;
    }
    for (long t = 1; t <= nt; ++t) {
        v.LT(t) = 4 + static_cast<double>(t % 3);
        v.VT(t) = 1;
        v.W1(t) = 1200;
        v.CantW2(t) = 1;
        v.P(t, 1) = 3000;
        v.LP(t, 1) = 1.5;
        v.CantW3(t) = 1;
        v.W3_(t, 1) = 800;
        v.La3_(t, 1) = 0.5;
        v.Lb3_(t, 1) = 2.5;
        v.W4(t) = 400;
        v.CantW8(t) = 1;
        v.WIzq8_(t, 1) = 300;
        v.WDer8_(t, 1) = 900;
        v.La8_(t, 1) = 1;
        v.Lb8_(t, 1) = 3.5;
    }
    return v;
}

void AnalizarVigaContinua(benchmark::State& estado) {
    const auto nt = static_cast<std::int16_t>(estado.range(0));
    const VigaActual viga = VigaContinua(nt);
    ProyectoActual proyecto;
    proyecto.PPV = true;
    ResultadosViga resultados;
    AnalizarViga({}, proyecto, viga, resultados); // results sized once, as in the program
    for (auto _ : estado) {
        AnalizarViga({}, proyecto, viga, resultados);
        benchmark::DoNotOptimize(resultados.ReacV(1));
    }
    // One run from empty results: the working arrays and the results together.
    ResultadosViga nuevos;
    const long antes = vivos.load();
    pico = antes;
    AnalizarViga({}, proyecto, viga, nuevos);
    const double bytes = static_cast<double>(pico.load() - antes);
    estado.counters["bytes_pico"] = bytes;
    estado.counters["bytes_por_tramo"] = bytes / nt;
    estado.SetComplexityN(nt);
}

BENCHMARK(AnalizarVigaContinua)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

} // namespace
