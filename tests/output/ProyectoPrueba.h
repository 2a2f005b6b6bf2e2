#pragma once
// Project files for the report's tests: a copy of the installation's empty project with
// settings and continuous concrete beams of one to four spans under uniform and point
// loads, saved through the beam store.

#include <filesystem>
#include <string>
#include <vector>

#include "store/BaseDatos.h"

namespace trevalo {

// Beam i (from 0): i % 4 + 1 spans of 4 to 6.5 m, pinned at every joint, 0.30 x 0.60,
// a uniform load growing with i and a point load in the middle of the first span.
inline VigaActual VigaPrueba(const std::string& nombre, int i) {
    VigaActual v;
    NuevaVigaDefecto(v);
    v.NombreVigaActual = nombre;
    v.VigaNueva = true;
    v.NT = static_cast<std::int16_t>(i % 4 + 1);
    RedimensionarViga(v);
    v.B1(1) = 0.30;
    v.T1(1) = 0.60;
    v.NJRest = static_cast<std::int16_t>(v.NT + 1);
    v.R1.Redim(v.NJRest);
    v.Apoyo.Redim(v.NJRest);
    for (long j = 1; j <= v.NT + 1; ++j) {
        v.NombreEje(j) = std::string(1, static_cast<char>('A' + j - 1));
        v.R1(j) = static_cast<std::int16_t>(j);
        v.Apoyo(j) = j == 1 ? ApoyoFijo : RodilloEnX;
    }
    for (long t = 1; t <= v.NT; ++t) {
        v.LT(t) = 4.0 + 0.5 * static_cast<double>((i + t) % 6);
        v.VT(t) = 1;
        v.FMayorTramo(t) = 1.5;
        v.W1(t) = 1500 + 100 * i;
    }
    v.CantW2(1) = 1;
    v.P(1, 1) = 3000;
    v.LP(1, 1) = v.LT(1) / 2;
    return v;
}

inline ProyectoActual AjustesPrueba() {
    ProyectoActual p;
    p.Proyecto = "Edificio de prueba";
    p.Propietario = "Propietario de prueba";
    p.Calculista = "Calculista de prueba";
    p.FC = 210;
    p.FY = 4200;
    p.D8 = 0.05;
    return p;
}

// Writes the project at `ruta` with the given beams.
inline void CrearProyecto(const std::filesystem::path& ruta, const std::vector<VigaActual>& vigas,
                          const ProyectoActual& ajustes = AjustesPrueba()) {
    std::filesystem::copy_file(TREVALO_RUTA_PROGRAMA "/Imagen/ImagenViga.kvl", ruta,
                               std::filesystem::copy_options::overwrite_existing);
    EstadoProyecto estado;
    estado.BDProyecto = BaseDatos::Abrir(ruta.string());
    SalvarGeneralProyecto(*estado.BDProyecto, ajustes);
    AbrirRsGeneralViga(estado, ConsultaListaVigas);
    for (auto v : vigas) SalvarViga(estado, v);
}

} // namespace trevalo
