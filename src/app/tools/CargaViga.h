#pragma once
// One beam of the companion tool, loaded and solved: from a beam JSON file (the tool's
// interchange form) or from a project file and the beam's name.

#include <string>

#include "model/Viga.h"

namespace trevalo::calc {

struct VigaCargada {
    ProyectoActual proyecto;
    VigaActual viga;
    ResultadosViga resultados;
};

// True for a path that names a beam document (".json").
bool EsArchivoJson(const std::string& ruta);

// Loads the beam (a ".json" path is a beam document, any other path a project with the beam
// `nombreViga`) and solves it. Raises the program's error of the reader or of the analysis.
VigaCargada CargarYResolver(const std::string& archivo, const std::string& nombreViga);

} // namespace trevalo::calc
