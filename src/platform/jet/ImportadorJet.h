#pragma once
// Import of files written by the earlier Windows program (projects .trv, profile tables
// .pfl): Jet 3 or Jet 4 databases, read through mdbtools, copied whole into a new file of the
// program's engine with the same tables, columns and column types.
//
// Types: text VARCHAR(n) and memo LONGTEXT (UTF-8, no collation declared: the program's
// statements compare names by its own rules); byte TINYINT, integer SMALLINT, long INTEGER; single
// REAL, double DOUBLE, currency CURRENCY and decimal DECIMAL(p,s) as reals; boolean BOOLEAN as 0 or
// 1; date DATETIME as the text "yyyy-mm-dd hh:mm:ss"; binary VARBINARY(n) and OLE LONGBINARY as
// bytes; replication ids GUID as text. Null stays Null. In a project the date is the text
// "dd/MM/yyyy", the form in which the program keeps a project's date.
//
// The source is opened read-only and never changed. The target is written into a scratch
// file beside it in one transaction and renamed into place at the end: on any failure no
// target file is left.
//
// Errors (ErrorTrevalo, Spanish text naming the file):
//   53    the source file does not exist
//   58    the target file already exists
//   3343  the source is not a Jet 3 or Jet 4 database
//   3078  the source lacks a table of the family asked for
//   and the engine's errors while writing.

#include <string>
#include <utility>
#include <vector>

#include "model/Errores.h"

namespace trevalo {

enum class FamiliaJet {
    Cualquiera,   // any database: every table is copied
    Proyecto,     // a project: the tables of the project file must all be there
    TablaPerfiles // a profile table: GeneralPerfil and DatosPerfil
};

struct ResultadoImportacion {
    std::string Version;                              // "Jet 3" or "Jet 4"
    std::vector<std::pair<std::string, long>> Tablas; // name and rows copied, catalogue order
};

// A date of the engine (days since 30 December 1899, the fraction the time of day) as the
// import writes it for the family.
std::string TextoFechaJet(double dias, FamiliaJet familia);

ResultadoImportacion ImportarJet(const std::string& origen, const std::string& destino,
                                 FamiliaJet familia = FamiliaJet::Cualquiera);

} // namespace trevalo
