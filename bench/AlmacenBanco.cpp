// Speed of the beam store on a project file: saving and loading a beam of many spans with
// every load slot used, and opening the beam list of a project of many beams.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "comun/Carpeta.h"
#include "store/BaseDatos.h"

namespace {

using namespace trevalo;
namespace fs = std::filesystem;

// A beam of `nt` spans, every slot of every load kind filled.
VigaActual VigaLlena(long nt) {
    VigaActual v;
    v.NombreVigaActual = "Banco";
    NuevaVigaDefecto(v);
    v.NT = static_cast<std::int16_t>(nt);
    RedimensionarViga(v);
    for (long t = 1; t <= nt; ++t) {
        v.LT(t) = 4.5;
        v.VT(t) = 1;
        v.CantW2(t) = MaxCargas10;
        v.CantW3(t) = MaxCargas10;
        v.CantW6(t) = MaxCargas5;
        v.CantW7(t) = MaxCargas5;
        v.CantW8(t) = MaxCargas5;
        for (long k = 1; k <= MaxCargas10; ++k) {
            v.P(t, k) = static_cast<std::int32_t>(100 * k);
            v.LP(t, k) = 0.4 * static_cast<double>(k);
        }
    }
    return v;
}

// A project made from the template in a folder of its own, so that runs side by side never
// share a file.
struct Proyecto {
    prueba::CarpetaTemporal carpeta;
    fs::path archivo;
    EstadoProyecto estado;
    explicit Proyecto(const std::string& nombre) {
        archivo = carpeta / nombre;
        fs::copy_file(fs::path(TREVALO_RUTA_PROGRAMA) / "Imagen" / "ImagenViga.kvl", archivo);
        estado.BDProyecto.emplace(BaseDatos::Abrir(archivo.string()));
        AbrirRsGeneralViga(estado, ConsultaListaVigas);
    }
    ~Proyecto() { estado = EstadoProyecto{}; }
};

void SalvarVigaLlena(benchmark::State& state) {
    Proyecto p("trevalo_banco_salvar.trv");
    auto v = VigaLlena(state.range(0));
    v.VigaNueva = true;
    SalvarViga(p.estado, v);
    AbrirRsGeneralViga(p.estado, ConsultaListaVigas); // on the beam's row
    for (auto _ : state) SalvarViga(p.estado, v);
}
BENCHMARK(SalvarVigaLlena)->Arg(1)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

void LeerVigaLlena(benchmark::State& state) {
    Proyecto p("trevalo_banco_leer.trv");
    auto v = VigaLlena(state.range(0));
    v.VigaNueva = true;
    SalvarViga(p.estado, v);
    for (auto _ : state) {
        VigaActual leida;
        leida.NombreVigaActual = "Banco";
        LeerViga(p.estado, leida);
    }
}
BENCHMARK(LeerVigaLlena)->Arg(1)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

// Loading one beam among many: the indexes keep it independent of the project's size.
void LeerUnaEntreMuchas(benchmark::State& state) {
    Proyecto p("trevalo_banco_muchas.trv");
    auto v = VigaLlena(3);
    for (long i = 0; i < state.range(0); ++i) {
        v.NombreVigaActual = "Viga " + std::to_string(i);
        v.VigaNueva = true;
        SalvarViga(p.estado, v);
    }
    for (auto _ : state) {
        VigaActual leida;
        leida.NombreVigaActual = "Viga 7";
        LeerViga(p.estado, leida);
    }
}
BENCHMARK(LeerUnaEntreMuchas)->Arg(10)->Arg(300)->Unit(benchmark::kMillisecond);

} // namespace
