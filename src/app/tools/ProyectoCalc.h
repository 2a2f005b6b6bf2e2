#pragma once
// A beam of a project file for the commands of trevalo-calc, loaded by name through the beam
// store from a project opened with AbrirProyectoArchivo.
//
// Errors (ErrorTrevalo with a Spanish text for the user):
//   3265  the beam is not in the project: "La viga no existe en el proyecto: " + name
//   3021  GeneralProyecto has no row: "El proyecto no tiene datos generales."
//   the store's and the engine's errors otherwise.

#include <string>

#include "model/Viga.h"
#include "store/EstadoProyecto.h"

namespace trevalo::calc {

// Loads the settings and the beam `nombre`; the beam's name is the stored one. A beam with
// bad rows raises the store's message ("Hay un Error en los Datos de la Viga: ...").
void CargarVigaCalc(EstadoProyecto& estado, const std::string& nombre, ProyectoActual& proyecto,
                    VigaActual& viga);

// The program's own folder, share/trevalo beside the executable's bin/ (CarpetaInstalacion):
// Imagen/ in it holds the templates.
std::string RutaProgramaCalc();

} // namespace trevalo::calc
