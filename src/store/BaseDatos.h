#pragma once
// The beam store: moves a beam between the tables of the project file and the model, reads
// and writes the project settings, renames and deletes a beam.
//
// Names travel as bound parameters, so any character of a name is stored as typed. Every
// write of more than one statement runs in one transaction: on failure the file is as it
// was.
//
// Names keep their rules in the program, not in the file. A name that a person or a caller
// gives is looked up in GeneralViga with the program's collation named in the statement
// ("WHERE NombreViga=? COLLATE ESPANOL": case-blind, accents and ñ kept, "viga ñ" and
// "VIGA Ñ" are one beam), and the list is sorted by it (Spanish order). Every other table
// is then read and written under the name exactly as GeneralViga stores it, with SQLite's
// own comparison. So the project file is plain SQLite: any tool checks it, and
// "WHERE NombreViga = 'Viga 1'" finds a beam's rows in every table. Chosen over a folded key
// stored beside each name: no second column to keep in step when a name is written by
// another tool, no key that a new Unicode version would fold otherwise, and the lookup that
// folds touches only GeneralViga, one row a beam, while the large tables keep their index on
// the stored name.
//
// Failures. Every operation raises the program's error. LeerViga, SalvarViga and CopiarViga
// raise it with the number of the error they met and the text the user reads (below); the
// windows show it with "Error: " and the number in the title (MensajeError).

#include <functional>
#include <string>
#include <vector>

#include "model/Viga.h"
#include "store/EstadoProyecto.h"

namespace trevalo {

// The tables that hold a beam by the key NombreViga, in the order of rename and delete.
extern const char* const TablasViga[9];

// The open project database and the beam list; error 91 while none is open.
BaseDatos& ProyectoAbierto(EstadoProyecto& estado);
Recordset& ListaVigasAbierta(EstadoProyecto& estado);

// Opens RsGeneralViga on `sql` and, when it has rows, MoveLast then MoveFirst.
void AbrirRsGeneralViga(EstadoProyecto& estado, const std::string& sql);
inline const char* const ConsultaListaVigas =
    "SELECT * FROM GeneralViga ORDER BY NombreViga COLLATE ESPANOL";

// Opens the project file at `ruta` into `estado`: NombreProyecto its file name, BDProyecto
// its database, RsGeneralViga the beam list. A missing file raises 53 ("No existe el
// archivo: " + ruta); a file that is no project (not a database, or lacking one of the
// tables of a beam) raises 3343 ("El archivo no es un proyecto de vigas: " + ruta, with the
// engine's text in brackets when the engine refused it). A refused file leaves `estado` as
// it was.
void AbrirProyectoArchivo(const std::string& ruta, EstadoProyecto& estado);

// Opens the database at `ruta` when it holds every table named (case ignored), converting a
// file of an earlier version (BaseDatos::Abrir). A missing file raises 53 ("No existe el
// archivo: " + ruta); any other file raises 3343 (noEs + ruta, with the engine's text in
// brackets when the engine refused it); a project that cannot be converted, the error of
// the conversion.
BaseDatos AbrirBaseConTablas(const std::string& ruta, const std::vector<std::string>& tablas,
                             const std::string& noEs);

// Reads the one row of GeneralProyecto. No row: error 3021. A Null text: error 94.
void LeerGeneralProyecto(BaseDatos& bd, ProyectoActual& proyecto);
// Replaces the row of GeneralProyecto with the settings, every column written.
void SalvarGeneralProyecto(BaseDatos& bd, const ProyectoActual& proyecto);
// The first step of every analysis (AnalizarViga's LectorProyecto), bound to this
// project's GeneralProyecto.
std::function<void(ProyectoActual&)> LectorGeneralProyecto(const BaseDatos& bd);

// Loads the beam viga.NombreVigaActual. A name not in GeneralViga gives the default beam
// without a message. A bad row (Null, a table shorter than the spans or joints, a count
// beyond its slots) leaves the default beam of that name and raises the error met with the
// text "Hay un Error en los Datos de la Viga: " + name + "...    ".
void LeerViga(EstadoProyecto& estado, VigaActual& viga);

// Writes the beam under viga.NombreVigaActual: a new header row on RsGeneralViga when
// VigaNueva, else the row where RsGeneralViga stands; then the eight child tables, old rows
// deleted first. A joint keeps LDer, LIzq, HC only if it carries a vertical support (in R1
// with Apoyo other than 3, or in R10 with SV10 not 0); others are written as 0. On success
// VigaNueva = false. On failure the file and RsGeneralViga are as they
// were, and the engine's error is raised with its text + "...    ".
void SalvarViga(EstadoProyecto& estado, VigaActual& viga);

// Writes the beam under estado.NombreCopiaViga, replacing a beam of that name, with a new
// header row on RsGeneralViga. Kept as users know it: every joint's LDer, LIzq, HC are
// written, and column W3_k of the loads receives the point load P(t, k). VigaNueva does not
// change. Failure as in SalvarViga.
void CopiarViga(EstadoProyecto& estado, const VigaActual& viga);

// Whether GeneralViga holds a beam of that name (case ignored).
bool ExisteViga(BaseDatos& bd, const std::string& nombre);
// The name of that beam as GeneralViga stores it; 3265 ("La viga no existe en el proyecto: "
// + nombre) if there is none.
std::string NombreVigaGuardado(BaseDatos& bd, const std::string& nombre);

// Renames the beam of the current row of RsGeneralViga to estado.NombreRenombrar in the
// nine tables, GeneralViga last. The caller requeries the list.
void RenombrarViga(EstadoProyecto& estado);

// Deletes the rows of `nombre` (case ignored) from the eight child tables, then the current
// row of RsGeneralViga.
void EliminarViga(EstadoProyecto& estado, const std::string& nombre);

} // namespace trevalo
