#pragma once
// The state of the open project, shared by the windows: which project is current, its
// database, the beam list whose current row says which beam is meant, and the names and
// answers that the beam dialogs hand back. One instance lives in the program; tests make
// their own. The current beam's name is VigaActual::NombreVigaActual.

#include <optional>
#include <string>

#include "platform/motor/MotorDatos.h"

namespace trevalo {

struct EstadoProyecto {
    std::string NombreProyecto;  // file title with extension, no folder; empty: none chosen
    std::string CarpetaProyecto; // folder of the project file; empty: RutaProyectos
    std::optional<BaseDatos> BDProyecto;
    // "SELECT * FROM GeneralViga ORDER BY NombreViga COLLATE ESPANOL"; the row at position p is row
    // p + 1 of the beam list.
    std::optional<Recordset> RsGeneralViga;
    bool ProyectoNuevo = false;
    std::string NombreCopiaViga; // name under which CopiarViga writes
    std::string NombreRenombrar; // new name chosen in the rename dialog
    std::string Mensaje;         // the last question's text
    int Respuesta = 0;           // the button pressed: 6 yes, 7 no
};

} // namespace trevalo
