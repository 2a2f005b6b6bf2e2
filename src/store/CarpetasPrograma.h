#pragma once
// The program's folders and start-up files.
//
// The program's own folder (RutaPrograma) holds the installation's files under "Imagen";
// everything the user may change lies under the data folder RutaBase =
// raiz + "/Korvel Software/Trevalo 6.0", where raiz is the user's home folder when
// "Korvel Software" exists there or can be made, otherwise the documents folder.
// Paths are text joined with "/" and carry no trailing "/".
//
// No procedure here raises an error: a folder that cannot be made or a file that cannot be
// copied is skipped and the next step runs; a missing file shows up later, where it is used.

#include <cstdint>
#include <locale>
#include <string>

namespace trevalo {

// The program's own folder of an installation whose executables lie in `carpetaEjecutable`:
// "../share/trevalo" from there, as the install prefix lays it out (bin/trevalo,
// share/trevalo/Imagen ...) and the build tree does too, so that any prefix works and no
// absolute path is kept in the program. Given without "..", without a trailing "/".
std::string CarpetaInstalacion(const std::string& carpetaEjecutable);

// What the caller knows about the machine before start-up: the windows take the program's
// folder (CarpetaInstalacion of the executable's), the home and the documents folders from
// the system, and the locale from LocalDeLaMaquina().
struct EntornoInicio {
    std::string RutaAplicacion;    // the program's own folder; a trailing "/" is dropped
    std::string CarpetaPersonal;   // the user's home folder, first choice of raiz
    std::string CarpetaDocumentos; // the documents folder, the fallback
    std::locale Local;             // number format of the machine
};

// The locale the user's environment names, or the classic one when it names none known.
std::locale LocalDeLaMaquina();

// The program's version, as the start-up window and the command-line tool show it.
inline constexpr const char* VersionTrevalo = "6.0";

// Program-wide paths and start-up values, set once by DatosUsuario.
struct CarpetasPrograma {
    std::string VersionPrograma;
    std::string RutaPrograma;
    std::string RutaBase;
    std::string RutaExplorador;
    std::string RutaProyectos;
    std::string RutaPerfiles;
    std::string RutaTapices;
    char SeparadorDecimal = '.';
    char SeparadorMiles = ',';
};

// Folders made under RutaBase, in this order.
inline constexpr const char* SubcarpetasBase[] = {"Proyectos", "Perfiles", "Tapices",
                                                  "ReportesExportados", "Trabajo"};

// The separators of a number format: those of 1234.56 under the mask "#,##0.00". A
// separator outside ASCII is a blank when the locale uses a kind of space (as French does),
// otherwise the usual '.' or ','.
void SeparadoresNumericos(const std::locale& local, char& decimal, char& miles);

// Sets every path and value of `carpetas`, makes the folder tree, checks the wallpaper,
// copies the installation's files that are missing (the sample project, every profile
// table "Imagen/*.pfl", the wallpaper; a file present is never overwritten) and renews
// "Trabajo/Temporal.mdb" from "Imagen/Temporal.kvl".
void DatosUsuario(const EntornoInicio& entorno, CarpetasPrograma& carpetas);

// Deletes RutaBase + "/Tapices/TapizKorvel.jpg" when its size differs from that of the
// program's "Imagen/TapizKorvel.jpg" by more than 10 bytes either way, so that the start-up
// copies the program's file back. Needs RutaPrograma and RutaBase.
void VerificaTapizKorvel(const CarpetasPrograma& carpetas);

} // namespace trevalo
