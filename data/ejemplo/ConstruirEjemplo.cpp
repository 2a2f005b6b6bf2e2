// Builds the sample project from the empty project template and beams in the companion
// tool's JSON: the project settings of the first beam file go to GeneralProyecto, and every
// beam is written through the beam store as a new beam. The project is written beside the
// destination and renamed over it at the end, so a failed build leaves no half project.
// Usage: construir-ejemplo PLANTILLA.kvl DESTINO.trv VIGA.json...

#include <cstdio>
#include <filesystem>
#include <iostream>

#include "app/tools/VigaJson.h"
#include "model/Errores.h"
#include "store/BaseDatos.h"

namespace {

namespace fs = std::filesystem;
using namespace trevalo;

void Construir(const std::string& plantilla, const std::string& destino, int nVigas, char** vigas) {
    fs::copy_file(plantilla, destino, fs::copy_options::overwrite_existing);
    EstadoProyecto estado;
    estado.BDProyecto = BaseDatos::Abrir(destino);
    for (int i = 0; i < nVigas; ++i) {
        ProyectoActual proyecto;
        VigaActual viga;
        calc::LeerVigaJsonArchivo(vigas[i], proyecto, viga);
        if (i == 0) SalvarGeneralProyecto(*estado.BDProyecto, proyecto);
        AbrirRsGeneralViga(estado, ConsultaListaVigas);
        viga.VigaNueva = true;
        SalvarViga(estado, viga);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "uso: construir-ejemplo PLANTILLA.kvl DESTINO.trv VIGA.json...\n");
        return 2;
    }
    const std::string destino = argv[2];
    const std::string provisional = destino + ".nuevo";
    try {
        Construir(argv[1], provisional, argc - 3, argv + 3);
        fs::rename(provisional, destino);
    } catch (const std::exception& e) {
        std::error_code ec;
        fs::remove(provisional, ec);
        std::cerr << "construir-ejemplo: " << e.what() << '\n';
        return 1;
    }
    return 0;
}
