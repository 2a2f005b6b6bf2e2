#pragma once
// The four families of profile tables and what tells them apart: the name prefix of the file
// (nothing inside a file says its family), the template it is born from and the fields of
// its DatosPerfil table. Field names are those of the files, misspellings included
// ("CosntanteTorsionJ", "MOduloPlastico"), lest existing tables stop opening.

#include <string>
#include <vector>

namespace trevalo {

enum class FamiliaPerfil { DobleTee = 1, SeccionU = 2, TuboCuadrado = 3, TuboRectangular = 4 };

inline constexpr FamiliaPerfil TodasLasFamilias[] = {
    FamiliaPerfil::DobleTee, FamiliaPerfil::SeccionU, FamiliaPerfil::TuboCuadrado,
    FamiliaPerfil::TuboRectangular};

struct DatosFamilia {
    std::string Titulo;       // option caption of the family chooser
    std::string Prefijo;      // "DobleTee_", "U_", "Cuadrada_", "Rectangular_"
    std::string Prueba;       // the prefix in upper case, compared with the typed title
    std::string Filtro;       // open and save dialog filter, "*.plf" in the words kept
    std::string Plantilla;    // template file in the program's Imagen folder
    std::string Editor;       // name of the table window
    std::string CampoInercia; // inertia about X-X, the one that reaches a beam
    // Numeric fields of DatosPerfil after Numero and Designacion, in the order of the grid.
    std::vector<std::string> Campos;
};

const DatosFamilia& Familia(FamiliaPerfil familia);

// The file name of a new table: the trimmed, upper-cased title is compared with the family's
// test string over its length; if it differs, the mixed-case prefix goes before the title
// as typed. A title that has the prefix in any case stays as typed. No extension is added.
std::string TituloConPrefijo(FamiliaPerfil familia, const std::string& titulo);

// Whether a file name matches the family's pattern "Prefix?*.pfl": the prefix, at least one
// more character, the extension. Compared without regard to case, as the file dialogs do.
bool CoincidePatron(FamiliaPerfil familia, const std::string& nombreArchivo);

// The family whose pattern a file name matches; false when none does.
bool FamiliaDeArchivo(const std::string& nombreArchivo, FamiliaPerfil& familia);

} // namespace trevalo
