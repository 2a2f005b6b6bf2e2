#pragma once
// The report written to a file, one writer per kind of output, each from the report's
// content alone (what LeerBaseInforme gives, joined to the fill's drawings by UnirDibujos):
//   PDF    the page layout of PaginaInforme, A4 portrait, pictures as vectors and text with
//          their fonts embedded as subsets;
//   HTML   one self-contained .htm, pictures as inline SVG, text as text;
//   xlsx   the head's data in cells (numbers as numbers), each picture's PNG placed on the sheet;
//   RTF    the head as a table, each picture's PNG on a page of its own.
// The PNG is the database's picture, painted from the drawing at print resolution. A picture
// without a drawing goes to the PDF and the HTML page as its PNG.
//
// Errors: 75 "Error de acceso a la ruta o el archivo" when the file cannot be written.

#include <optional>
#include <string>

#include "model/Errores.h"
#include "output/ContenidoInforme.h"

namespace trevalo {

enum class ArchivoInforme { Pdf, Html, Hoja, Texto };

// The kind of output of a file name by its extension (.pdf, .htm or .html, .xlsx, .rtf),
// without regard to case; none for any other name.
std::optional<ArchivoInforme> ArchivoPorExtension(const std::string& ruta);

void EscribirInformePdf(const ContenidoInforme& contenido, const std::string& ruta);
void EscribirInformeHtml(const ContenidoInforme& contenido, const std::string& ruta);
void EscribirInformeHoja(const ContenidoInforme& contenido, const std::string& ruta);
void EscribirInformeTexto(const ContenidoInforme& contenido, const std::string& ruta);

// The writer of the given kind.
void EscribirInforme(const ContenidoInforme& contenido, const std::string& ruta,
                     ArchivoInforme tipo);

// The error of a file that cannot be written.
[[noreturn]] void ErrorAccesoArchivo();

// Writes bytes to a file whole, or raises error 75.
void GuardarArchivo(const std::string& ruta, const std::string& bytes);

} // namespace trevalo
