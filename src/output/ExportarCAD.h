#pragma once
// The export of concrete beams to a project of the companion drawing program, Korvel-CAD
// Estructural 8.0: a ".Cad" file of the program's own engine, born as a copy of the template
// Imagen/ImagenCAD8.kvl. The rows go straight into its tables: the project's row (new
// project only), and per beam its data, spans, axes, a first stirrup layout and the
// theoretical steel of every span, under the beam's name (key Nombre).
//
// Units: lengths in metres as in the beam model, steel in cm2.
//
// Settled behaviour of the form's export, kept as the drawing program's users know it:
//  - the theoretical steel (VigaRefTeorico) is that of the beam of the grid's active row,
//    written under its name for every marked row; the other marked beams get none;
//  - the grid lists every beam of the project while the beams exported are taken from the
//    list of concrete beams at the grid's position: with steel beams in the project a row
//    can stand for another beam, whose rows are written under the concrete beam's name
//    while the clearing goes to the name of the grid;
//  - the steel is computed from the results then in memory: those of the analysis of the
//    row exported;
//  - VigaDatos always gets B 0.3 and H 0.5; the sizes of the spans are in VigaTramos.
//
// Failures: every beam's export runs in one transaction, so a failing beam leaves the target
// as the beams before it left it; the error goes to the caller. A target that is not a
// project of the drawing program raises 3343, a read-only one 70, both before anything is
// written; a missing template raises 53; the engine's errors and those of the beam store and
// the analysis pass through.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "design/TablaDiseno.h"
#include "drawing/EstadoPloteos.h"
#include "model/Viga.h"
#include "store/CarpetasPrograma.h"
#include "store/Dialogos.h"
#include "store/EstadoProyecto.h"

namespace trevalo {

// The tables of a beam in the drawing program's project, in the order of their clearing.
extern const char* const TablasVigaCAD[13];

// The concrete beams of the project, the list the export takes its beams from.
inline constexpr const char* ConsultaListaConcreto =
    "SELECT * FROM GeneralViga WHERE OpcionConcreto=0 ORDER BY NombreViga COLLATE ESPANOL ASC";

inline constexpr const char* TituloExportarCAD = "Exportar a Korvel-CAD Estructural 8.0";
inline constexpr const char* FiltroProyectosCAD = "Korvel-Cad|*.Cad";

// A row of the form's grid: the mark of column 1 and the text of column 2.
struct FilaCAD {
    bool Marcada = false;
    std::string Nombre;
};

struct OpcionesCAD {
    bool NuevoProyecto = false; // "Crear un Nuevo Proyecto"; else "Anexar a un Proyecto Existente"
    bool SobreColumnas = false; // "Apoyada sobre Columnas"; else "Apoyada sobre Vigas"
};

// The program's state that the export reads and overwrites.
struct ModeloCAD {
    EstadoProyecto& estado; // BDProyecto open; RsGeneralViga the project window's list
    ProyectoActual& proyecto;
    VigaActual& viga;
    ResultadosViga& resultados;
    EstadoPloteos& vista;     // its joint geometry and EstacionesDiseno give the steel
    Recordset& listaConcreto; // ConsultaListaConcreto on the open project
};

// The progress panel of the form: shown during the writing, the bar's value in percent.
struct PasosCAD {
    std::function<void(bool visible)> Panel;
    std::function<void(double valor)> Progreso;
};

// The folder of the drawing program's projects, the dialogs' initial folder:
// "Korvel-CAD8/Proyectos" in the "Korvel Software" folder that holds the data folder.
std::string CarpetaProyectosCAD(const CarpetasPrograma& carpetas);

// Deletes the rows of `nombre` (case ignored) from the thirteen tables of a beam.
void LimpieRegistrosViga(BaseDatos& cad, const std::string& nombre);

// The one row of Proyecto of a new project, dated `fecha` ("dd/mm/yyyy").
void EscribirProyectoCAD(BaseDatos& cad, const ProyectoActual& proyecto, const std::string& fecha);

// The rows of VigaDatos, VigaTramos, VigaEjes and VigaEstribos of the beam in the model,
// under its NombreVigaActual. OpcionEstribos of the project chooses the seismic stirrups.
// Errors: 9 for a span type outside the beam's types.
void EscribirVigaCAD(BaseDatos& cad, const VigaActual& viga, const ProyectoActual& proyecto,
                     bool sobreColumnas);

// The rows of VigaRefTeorico, spans 1 to nt, under `nombre`.
void EscribirRefTeorico(BaseDatos& cad, const std::string& nombre, std::int16_t nt,
                        const ResumenAcero& acero);

// The export of the marked rows, with its dialogs and questions; returns the number of beams
// exported (0 when cancelled or answered No). `filaActiva` is the grid's active row, from 1.
// Precondition: some row is marked. The list of concrete beams and the beam in the model are
// put back at the end (the model then holds the beam last named, read again).
long ExportarCAD70(ModeloCAD& modelo, Dialogos& dialogos, const CarpetasPrograma& carpetas,
                   const std::vector<FilaCAD>& filas, int filaActiva, const OpcionesCAD& opciones,
                   const PasosCAD& pasos);

// The export for scripts: the concrete beams `nombres` of the open project (names in any
// case; every concrete beam, in the list's order, when none is named), each with the
// theoretical steel of its own analysis at `estacionesPorMetro`, into the project `destino`.
// With opciones.NuevoProyecto the target becomes a new project made from `plantilla` with the
// project's row; otherwise the beams are appended to it, a missing target made from the
// template. All or nothing: the beams go in one transaction, and a new target is built beside
// the file and put in its place only when complete. `progreso` is told each beam's name
// before its export. Returns the names exported, as the project stores them.
// Errors, all before the target is touched: 3265 for a name the project lacks, 5 for a steel
// beam named, 3343 for an existing target that is not a project of the drawing program (even
// with NuevoProyecto: a file of another kind is never replaced), 70 for a read-only one.
std::vector<std::string> ExportarVigasCAD(EstadoProyecto& estado, ProyectoActual& proyecto,
                                          const std::vector<std::string>& nombres,
                                          const std::string& destino, const std::string& plantilla,
                                          const OpcionesCAD& opciones, double estacionesPorMetro,
                                          const std::function<void(const std::string&)>& progreso);

} // namespace trevalo
