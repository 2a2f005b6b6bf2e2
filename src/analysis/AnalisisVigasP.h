#pragma once
// Frame analysis of the current beam by the direct stiffness method: each span is one
// prismatic bar with three degrees of freedom at each end.

#include <functional>

#include "model/Viga.h"

namespace trevalo {

// Step 1 of every analysis: reads GeneralProyecto into the settings. The store binds it to
// LeerGeneralProyecto; tests and the companion tool pass their own.
using LectorProyecto = std::function<void(ProyectoActual&)>;

// Solves the beam for its one load state and fills the results (service values, no load
// factor). Raises the program's error (and leaves the results empty) for a bar of no
// length, a joint or type number beyond the lists, FC = 0 with DEFCOR, the root of a
// negative or a non-finite result.
void AnalizarViga(const LectorProyecto& leerProyecto, ProyectoActual& proyecto,
                  const VigaActual& viga, ResultadosViga& resultados);

} // namespace trevalo
