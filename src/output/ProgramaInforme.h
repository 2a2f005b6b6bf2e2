#pragma once
// A report of the open project up to its filled report database, as the report command and
// the print window run it: the beams in the order of the project window's list, the place
// of a chosen beam, and the program's walk (PasosPrograma) into a fresh report database.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "output/PasosPrograma.h"

namespace trevalo {

// The names of the open project's beams in the order of the project window's list. The
// list itself (RsGeneralViga) is left where it stands.
std::vector<std::string> ListaVigasInforme(EstadoProyecto& estado);

// The 1-based place in `vigas` of the beam called `nombre`, compared as the project compares
// names (case ignored); 0 if there is none.
std::int16_t PosicionVigaInforme(BaseDatos& bd, const std::vector<std::string>& vigas,
                                 const std::string& nombre);

// Copies the installation's empty report database, carpetaPrograma + "/Imagen/Temporal.kvl",
// to `rutaTemporal` (replacing a file there) and fills it with the project's settings, the
// user's name, `version`, and the pictures of the beams of `vigas` (the list of the project
// window, or ListaVigasInforme) chosen by `opciones`. `progreso` receives the label and value of
// the progress bar. The model's settings are those of the project (LeerGeneralProyecto) and the
// project has beams; the model is left as PasosPrograma leaves it. Errors as LlenarImpreDatos; a
// missing template is error 53 "No se encontró el archivo". Returns the pictures' drawings.
DibujosInforme
LlenarInformePrograma(ModeloInforme& modelo, Dialogos& dialogos,
                      const std::vector<std::string>& vigas, const OpcionesImpresion& opciones,
                      const std::string& carpetaPrograma, const std::string& rutaTemporal,
                      const std::string& version,
                      const std::function<void(const std::string&, double)>& progreso);

} // namespace trevalo
