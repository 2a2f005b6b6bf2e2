#pragma once
// Profile table files (.pfl): one family per file, told by the file name's prefix. A file
// holds GeneralPerfil (one row: DescripcionTabla, ResistenciaFY in kgf/cm2) and DatosPerfil
// (Numero 1..n, Designacion, then the family's fields: areas cm2, dimensions mm, inertias cm4,
// moduli cm3, radii cm, warping constant cm6).
//
// Engine errors keep the engine's number and text: a missing file, a file that is no table,
// a field the family wants and the file lacks.

#include <cstdint>
#include <string>
#include <vector>

#include "profiles/FamiliasPerfil.h"

namespace trevalo {

struct FilaPerfil {
    std::int16_t Numero = 0;
    std::string Designacion;
    std::vector<double> Valores; // the family's fields, in the order of Familia().Campos
};

struct TablaPerfiles {
    std::string DescripcionTabla;
    std::int16_t ResistenciaFY = 0;
    std::vector<FilaPerfil> Filas;
};

// The table a table window opens: its file and whether it was just made.
struct EstadoTablaPerfiles {
    std::string ArchivoTabla; // full path
    std::string TituloTabla;  // file name with its extension, shown in the window title
    bool TablaNueva = false;  // just made from the template: the editor skips the read
};

// The value of a named field of a row of the given family; asserts the field is the family's.
double ValorCampo(FamiliaPerfil familia, const FilaPerfil& fila, const std::string& campo);

// Reads a table: GeneralPerfil when it has a row, DatosPerfil in Numero order.
TablaPerfiles LeerTablaPerfiles(const std::string& ruta, FamiliaPerfil familia);

// Rewrites the whole table in one transaction: the one row of GeneralPerfil with the trimmed
// description, then every row with Numero = its place from 1 and the trimmed designation.
// On any failure the file is as it was and the engine's error is raised. A description that
// is empty once trimmed writes nothing and returns false.
bool SalvarTablaPerfiles(const std::string& ruta, FamiliaPerfil familia,
                         const TablaPerfiles& tabla);

// Makes a new table at `ruta` from the family's template in `rutaPrograma`/Imagen, replacing
// any file there (the caller has asked). Raises error 53 when the template is missing.
void CrearTablaPerfiles(const std::string& rutaPrograma, FamiliaPerfil familia,
                        const std::string& ruta);

// Where a new table goes: always the tables folder, whatever folder the dialog was in, under
// the typed title with the family's prefix rule applied.
std::string RutaTablaNueva(const std::string& rutaPerfiles, FamiliaPerfil familia,
                           const std::string& tituloDialogo);

// The question asked, under the title "Crear Nueva Tabla", before a table is replaced.
std::string MensajeTablaExiste(const std::string& titulo);

// The tables of a family in a folder, by the family's pattern, sorted by name.
std::vector<std::string> TablasDeFamilia(const std::string& carpeta, FamiliaPerfil familia);

} // namespace trevalo
