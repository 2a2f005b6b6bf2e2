#pragma once
// One beam with its project settings as JSON, the interchange form of the companion tool.
//
// The document is an object whose members are the project file's tables:
//   "GeneralProyecto": one object (the single row), "GeneralViga": one object (the beam's
//   header), and arrays of row objects for "Tramos", "Juntas", "JuntasDesplazadas",
//   "Juntasrestringidas", "JuntasResortes", "TiposVigas", "CargasTramos" (flat numbered
//   columns "P1", "LP1", "W3_1" ... as in the file) and "AccionesNodales".
// Table and column names match without regard to case. A missing table is empty. Rows of the
// keyed tables are taken in the order of their key (Tramo, Numero, R3, R1, R10, Tipo, R2);
// "NombreViga" in child rows is optional and not compared. "Fecha" is text "dd/MM/yyyy".
// Units are those of the model: metres, kgf, kgf/cm2.
//
// The beam is read as the store reads it from the file: no GeneralViga gives the default beam;
// a type with B1 or T1 null or not positive takes 0.3 or 0.5 on a concrete beam; FMayorTramo
// of every span is FMayoracion; only load slots up to their count are read.
//
// Errors (ErrorTrevalo, Spanish text naming the table and the column):
//   3343  the text is not JSON, or the document or a table has the wrong shape
//   3265  a column that is read is missing
//   3021  a table has fewer rows than the spans or joints need (GeneralProyecto none)
//   13    a value of the wrong type (text for a number ...)
//   94    a null where a value is needed
//   6     an integer beyond its column's range
//   53    the file cannot be opened

#include <iosfwd>
#include <string>

#include <nlohmann/json.hpp>

#include "model/Viga.h"

namespace trevalo::calc {

// Reads settings and beam from a parsed document.
void LeerVigaJson(const nlohmann::ordered_json& documento, ProyectoActual& proyecto,
                  VigaActual& viga);

// Parses the text and reads it (3343 when it is not JSON).
void LeerVigaJsonTexto(const std::string& texto, ProyectoActual& proyecto, VigaActual& viga);

// Reads the file at `ruta` (53 when it cannot be opened).
void LeerVigaJsonArchivo(const std::string& ruta, ProyectoActual& proyecto, VigaActual& viga);

// Writes settings and beam as the document above, every column of every table, slots up to
// their counts, the model's joint dimensions as they stand. Reading it back gives the same
// settings and beam (LongTotal recomputed, FMayorTramo set from FMayoracion).
nlohmann::ordered_json EscribirVigaJson(const ProyectoActual& proyecto, const VigaActual& viga);

} // namespace trevalo::calc
