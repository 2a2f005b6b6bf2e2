#pragma once
// Project files for the tests above the store: a copy of the installation's empty project
// with settings and beams saved through the beam store; and the beams of a small report.

#include <filesystem>
#include <string>
#include <vector>

#include "comun/Vigas.h"
#include "store/BaseDatos.h"

namespace trevalo::prueba {

// Writes the project at `ruta` (replacing any file there) with the settings and beams given.
inline void CrearProyecto(const std::string& ruta, const std::vector<VigaActual>& vigas,
                          const ProyectoActual& ajustes) {
    std::filesystem::copy_file(TREVALO_RUTA_PROGRAMA "/Imagen/ImagenViga.kvl", ruta,
                               std::filesystem::copy_options::overwrite_existing);
    EstadoProyecto estado;
    estado.BDProyecto = BaseDatos::Abrir(ruta);
    SalvarGeneralProyecto(*estado.BDProyecto, ajustes);
    AbrirRsGeneralViga(estado, ConsultaListaVigas);
    for (VigaActual v : vigas) {
        v.VigaNueva = true;
        SalvarViga(estado, v);
    }
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

// Beam i (from 0) of a report: i % 4 + 1 spans of 4 to 6.5 m, axes A, B ..., pinned at the
// first joint and on rollers at the others, 0.30 x 0.60, a uniform load growing with i and
// a point load in the middle of the first span.
inline VigaActual VigaPrueba(const std::string& nombre, int i) {
    std::vector<double> luces;
    Filas apoyos{{1, ApoyoFijo}};
    for (int t = 1; t <= i % 4 + 1; ++t) {
        luces.push_back(4.0 + 0.5 * ((i + t) % 6));
        apoyos.push_back({t + 1.0, RodilloEnX});
    }
    VigaActual v = VigaDeTramos(luces, 0.30, 0.60);
    v.NombreVigaActual = nombre;
    PonerApoyos(v, apoyos);
    for (long j = 1; j <= v.NT + 1; ++j) v.NombreEje(j) = std::string(1, char('A' + j - 1));
    for (long t = 1; t <= v.NT; ++t) v.W1(t) = 1500 + 100 * i;
    PonerCargas(v, 1, 2, {{3000, v.LT(1) / 2}});
    return v;
}

} // namespace trevalo::prueba
