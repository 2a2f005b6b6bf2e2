#pragma once
// The kinds of output of the print dialog, with their texts as the users see them (the
// "HTLM" of the HTML title is theirs). The spreadsheet is written as .xlsx: only its
// filter's pattern changes, its title stays. Kinds 0 (the viewer) and 5 (the export
// assistant) ask for no file.

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "output/EscritoresInforme.h"

namespace trevalo {

struct SalidaInforme {
    std::uint8_t TipoSalida;
    const char* Opcion;        // the option button's name
    const char* Leyenda;       // its caption
    const char* TituloDialogo; // the Save dialog's title; empty: no dialog
    const char* Filtro;        // the Save dialog's filter
    std::optional<ArchivoInforme> Archivo;
};

inline constexpr std::array<SalidaInforme, 6> SalidasInforme = {{
    {0, "LSOption1", "Impresión Normal", "", "", std::nullopt},
    {1, "Option1", "Adobe Acrobat (PDF)", "Exportar el Reporte a formato: Adobe Acrobat(PDF)",
     "*.pdf|*.pdf", ArchivoInforme::Pdf},
    {2, "Option2", "HTML 4.0 (Para la Web)", "Exportar el Reporte a formato: HTLM 4.0",
     "*.htm|*.htm", ArchivoInforme::Html},
    {3, "Option7", "Microsoft Excel Normal",
     "Exportar el Reporte a formato: Microsoft Excel 97-2000 (XLS)", "*.xlsx|*.xlsx",
     ArchivoInforme::Hoja},
    {4, "Option4", "Microsoft Word (RTF)", "Exportar el Reporte a formato: Microsoft Word (RTF)",
     "*.rtf|*.rtf", ArchivoInforme::Texto},
    {5, "Option5", "Asistente de Exportación.", "", "", std::nullopt},
}};

// The question after a file was written: title "Abrir el Archivo Exportado", Yes and No.
inline std::string PreguntaAbrirArchivo(const std::string& tituloSalida) {
    return "¿Desea Abrir el Archivo " + tituloSalida + "?    ";
}

} // namespace trevalo
