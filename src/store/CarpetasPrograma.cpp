#include "store/CarpetasPrograma.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "store/CicloProyecto.h"

namespace trevalo {

namespace fs = std::filesystem;

namespace {

const std::string CarpetaKorvel = "/Korvel Software";
const std::string CarpetaTrevalo = "/Korvel Software/Trevalo 6.0";
const std::string TapizPrograma = "/Imagen/TapizKorvel.jpg";

bool ExisteCarpeta(const std::string& ruta) {
    std::error_code ec;
    return fs::is_directory(ruta, ec);
}

void CrearCarpetaSiFalta(const std::string& ruta) {
    std::error_code ec;
    if (!ExisteCarpeta(ruta)) fs::create_directory(ruta, ec);
}

void CopiarSiFalta(const std::string& origen, const std::string& destino) {
    std::error_code ec;
    if (!ExisteArchivoDisco(destino)) fs::copy_file(origen, destino, ec);
}

std::string SinBarraFinal(std::string ruta) {
    while (ruta.size() > 1 && ruta.back() == '/') ruta.pop_back();
    return ruta;
}

// The home folder when "Korvel Software" is a folder there or can be made; else documents.
// An unknown home folder (empty) is never taken for the root of the file system.
std::string Raiz(const EntornoInicio& entorno) {
    const std::string personal = SinBarraFinal(entorno.CarpetaPersonal);
    if (!personal.empty()) {
        CrearCarpetaSiFalta(personal + CarpetaKorvel);
        if (ExisteCarpeta(personal + CarpetaKorvel)) return personal;
    }
    return SinBarraFinal(entorno.CarpetaDocumentos);
}

// The profile tables the installation ships, in name order.
std::vector<std::string> TablasPerfiles(const std::string& carpetaImagen) {
    std::vector<std::string> nombres;
    std::error_code ec;
    for (fs::directory_iterator it(carpetaImagen, ec), fin; !ec && it != fin; it.increment(ec)) {
        if (it->path().extension() == ".pfl" && it->is_regular_file(ec))
            nombres.push_back(it->path().filename().string());
    }
    std::sort(nombres.begin(), nombres.end());
    return nombres;
}

char SeparadorAscii(wchar_t c, char usual) {
    if (c > 0 && c < 0x80) return static_cast<char>(c);
    const bool espacio = c == 0xA0 || c == 0x202F || c == 0x2009 || c == 0x2007;
    return espacio ? ' ' : usual;
}

} // namespace

std::string CarpetaInstalacion(const std::string& carpetaEjecutable) {
    const fs::path carpeta = (fs::path(carpetaEjecutable) / "../share/trevalo").lexically_normal();
    return SinBarraFinal(carpeta.string());
}

std::locale LocalDeLaMaquina() {
    try {
        return std::locale("");
    } catch (const std::runtime_error&) {
        return std::locale::classic();
    }
}

void SeparadoresNumericos(const std::locale& local, char& decimal, char& miles) {
    const auto& puntuacion = std::use_facet<std::numpunct<wchar_t>>(local);
    decimal = SeparadorAscii(puntuacion.decimal_point(), '.');
    miles = SeparadorAscii(puntuacion.thousands_sep(), decimal == ',' ? '.' : ',');
}

void VerificaTapizKorvel(const CarpetasPrograma& carpetas) {
    const std::string usuario = carpetas.RutaBase + "/Tapices/TapizKorvel.jpg";
    if (!ExisteArchivoDisco(usuario)) return;
    std::error_code ec1, ec2;
    const auto tamanoUsuario = fs::file_size(usuario, ec1);
    const auto tamanoPrograma = fs::file_size(carpetas.RutaPrograma + TapizPrograma, ec2);
    if (ec1 || ec2) return;
    const auto diferencia = tamanoUsuario > tamanoPrograma ? tamanoUsuario - tamanoPrograma
                                                           : tamanoPrograma - tamanoUsuario;
    if (diferencia > 10) fs::remove(usuario, ec1);
}

void DatosUsuario(const EntornoInicio& entorno, CarpetasPrograma& carpetas) {
    carpetas.VersionPrograma = VersionTrevalo;
    SeparadoresNumericos(entorno.Local, carpetas.SeparadorDecimal, carpetas.SeparadorMiles);
    carpetas.RutaPrograma = SinBarraFinal(entorno.RutaAplicacion);

    const std::string raiz = Raiz(entorno);
    CrearCarpetaSiFalta(raiz + CarpetaKorvel);
    CrearCarpetaSiFalta(raiz + CarpetaTrevalo);
    carpetas.RutaBase = raiz + CarpetaTrevalo;
    for (const char* sub : SubcarpetasBase) CrearCarpetaSiFalta(carpetas.RutaBase + "/" + sub);

    VerificaTapizKorvel(carpetas);

    const std::string imagen = carpetas.RutaPrograma + "/Imagen/";
    const std::string& base = carpetas.RutaBase;
    CopiarSiFalta(imagen + "Ejemplo Demostrativo.trv",
                  base + "/Proyectos/Ejemplo Demostrativo.trv");
    for (const std::string& tabla : TablasPerfiles(imagen))
        CopiarSiFalta(imagen + tabla, base + "/Perfiles/" + tabla);
    CopiarSiFalta(carpetas.RutaPrograma + TapizPrograma, base + "/Tapices/TapizKorvel.jpg");

    // The report database starts clean at every start (note the change of extension).
    const std::string temporal = base + "/Trabajo/Temporal.mdb";
    std::error_code ec;
    if (ExisteArchivoDisco(temporal)) fs::remove(temporal, ec);
    fs::copy_file(imagen + "Temporal.kvl", temporal, ec);

    carpetas.RutaExplorador = raiz + CarpetaTrevalo;
    carpetas.RutaProyectos = raiz + CarpetaTrevalo + "/Proyectos";
    carpetas.RutaPerfiles = raiz + CarpetaTrevalo + "/Perfiles";
    carpetas.RutaTapices = raiz + CarpetaTrevalo + "/Tapices";
}

} // namespace trevalo
