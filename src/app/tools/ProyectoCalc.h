#pragma once
// Projects for the commands of trevalo-calc: open a project file given on the command line,
// check that it is one, and load a beam of it by name through the beam store.
//
// Errors (ErrorTrevalo with a Spanish text for the user):
//   53    the file does not exist: "No existe el archivo: " + path
//   3343  the file is not a project: "El archivo no es un proyecto de vigas: " + path
//   3265  the beam is not in the project: "La viga no existe en el proyecto: " + name
//   3021  GeneralProyecto has no row: "El proyecto no tiene datos generales."
//   the store's and the engine's errors otherwise.

#include <string>

#include "model/Viga.h"
#include "store/EstadoProyecto.h"

namespace trevalo::calc {

// Opens the project at `ruta` into a fresh state, with the beam list open.
EstadoProyecto AbrirProyectoCalc(const std::string& ruta);

// The name of the beam as the project stores it (case ignored in the search); 3265 if none.
std::string NombreGuardado(EstadoProyecto& estado, const std::string& nombre);

// Loads the settings and the beam `nombre`; the beam's name is the stored one. A beam with
// bad rows raises the store's message ("Hay un Error en los Datos de la Viga: ...").
void CargarVigaCalc(EstadoProyecto& estado, const std::string& nombre, ProyectoActual& proyecto,
                    VigaActual& viga);

} // namespace trevalo::calc
