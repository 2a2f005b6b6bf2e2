#include "output/EscritoresInforme.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>

#include "model/Errores.h"

namespace trevalo {

std::optional<ArchivoInforme> ArchivoPorExtension(const std::string& ruta) {
    std::string ext = std::filesystem::path(ruta).extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (ext == ".pdf") return ArchivoInforme::Pdf;
    if (ext == ".htm" || ext == ".html") return ArchivoInforme::Html;
    if (ext == ".xlsx") return ArchivoInforme::Hoja;
    if (ext == ".rtf") return ArchivoInforme::Texto;
    return std::nullopt;
}

void EscribirInforme(const ContenidoInforme& contenido, const std::string& ruta,
                     ArchivoInforme tipo) {
    switch (tipo) {
    case ArchivoInforme::Pdf:
        return EscribirInformePdf(contenido, ruta);
    case ArchivoInforme::Html:
        return EscribirInformeHtml(contenido, ruta);
    case ArchivoInforme::Hoja:
        return EscribirInformeHoja(contenido, ruta);
    case ArchivoInforme::Texto:
        return EscribirInformeTexto(contenido, ruta);
    }
}

void ErrorAccesoArchivo() {
    throw ErrorTrevalo(ErrAccesoArchivo, "Error de acceso a la ruta o el archivo");
}

void GuardarArchivo(const std::string& ruta, const std::string& bytes) {
    std::ofstream archivo(ruta, std::ios::binary | std::ios::trunc);
    if (!archivo) ErrorAccesoArchivo();
    archivo.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    archivo.close();
    if (!archivo) ErrorAccesoArchivo();
}

} // namespace trevalo
