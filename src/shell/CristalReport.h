#pragma once
// The report as the windows reach it: the report database of the program's working folder
// read into the report's content, its pages written to a file by the output kinds of the
// print dialog, the export assistant that leaves the kind to the chosen file, and the folder
// of exported reports opened in the file explorer.

#include <string>

#include "output/ContenidoInforme.h"
#include "output/SalidasInforme.h"
#include "shell/Programa.h"

namespace trevalo {

// The hourglass for the life of the object.
struct RelojDeArena {
    RelojDeArena();
    ~RelojDeArena();
    RelojDeArena(const RelojDeArena&) = delete;
    RelojDeArena& operator=(const RelojDeArena&) = delete;
};

// RutaBase + "/Trabajo/Temporal.mdb" and RutaBase + "/ReportesExportados".
std::string RutaTemporal(const CarpetasPrograma& carpetas);
std::string CarpetaReportes(const CarpetasPrograma& carpetas);

// The filled report database with the machine's separators and the drawings of its pictures
// kept by the fill. Engine errors as LeerBaseInforme.
ContenidoInforme AbrirReporte(const Programa& programa);

// The Save dialog of an output kind with a file (1 to 4): its title and filter, the folder
// of exported reports, asking before it overwrites.
DialogoArchivo DialogoSalida(const Programa& programa, const SalidaInforme& salida);

// Writes the report to `ruta` under the hourglass; a writer's error is shown as its message
// (MensajeError) and gives false.
bool EscribirReporte(Programa& programa, const ContenidoInforme& contenido, const std::string& ruta,
                     ArchivoInforme tipo);

// The export assistant: one Save dialog offering the four kinds; the kind is that of the
// extension of the file chosen. Cancel writes nothing.
void AsistenteExportacion(Programa& programa, const ContenidoInforme& contenido);

// Opens the folder of exported reports in the file explorer, under the hourglass.
void ExplorarReportes(const Programa& programa);

} // namespace trevalo
