#pragma once
// Frame analysis of the current beam by the direct stiffness method: each span is one
// prismatic bar with three degrees of freedom at each end.

#include <functional>

#include "analysis/SolucionBanda.h"
#include "model/Viga.h"

namespace trevalo {

// Step 1 of every analysis: reads GeneralProyecto into the settings. The store binds it to
// LeerGeneralProyecto; tests and the companion tool pass their own.
using LectorProyecto = std::function<void(ProyectoActual&)>;

// Solves the beam for its one load state and fills the results (service values, no load
// factor). Raises the program's error (and leaves the results empty) for a bar of no
// length, a joint or type number beyond the lists, FC = 0 with DEFCOR, the root of a
// negative or a non-finite result.
//
// Step 1 calls leerProyecto, so a setting changed in the project file takes effect at the
// next solve; an empty reader leaves the settings as they are.
//
// Errors: 5 the root of a negative (FC < 0 on a concrete beam); 9 NT below 1, a joint number
// in R1, R2, R3 or R10 outside 1..NT + 1, or VT rounding to a type outside 1..NTipos; 11 a
// bar of no length, a zero shear modulus with DEFCOR, a load position on a bar with
// CosX = 0; 6 an input or a result that is not a finite number, or NT + 1 joints beyond the
// 16-bit count. Whatever the reader raises passes through.
void AnalizarViga(const LectorProyecto& leerProyecto, ProyectoActual& proyecto,
                  const VigaActual& viga, ResultadosViga& resultados);

// The same analysis with another elimination in place of ResolverBanda.
void AnalizarViga(const LectorProyecto& leerProyecto, ProyectoActual& proyecto,
                  const VigaActual& viga, ResultadosViga& resultados, ResolvedorBanda resolver);

} // namespace trevalo
