#include "store/Tapiz.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "model/Errores.h"
#include "store/CicloProyecto.h"
#include "store/Nombres.h"

namespace trevalo {

namespace {

using Bytes = std::vector<unsigned char>;

constexpr std::size_t MaxTextoTapiz = LongitudRegistroTapiz - 2;

std::size_t Inicio(int registro) {
    return static_cast<std::size_t>(registro - 1) * LongitudRegistroTapiz;
}

Bytes LeerBytes(const std::string& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(archivo), std::istreambuf_iterator<char>());
}

// Little-endian unsigned value of `ancho` bytes at `pos`; bytes past the end read as zero.
std::uint32_t LeerValor(const Bytes& bytes, std::size_t pos, int ancho) {
    std::uint32_t valor = 0;
    for (int i = ancho - 1; i >= 0; --i) {
        const std::size_t k = pos + static_cast<std::size_t>(i);
        valor = (valor << 8) | (k < bytes.size() ? bytes[k] : 0u);
    }
    return valor;
}

void PonerValor(Bytes& bytes, std::size_t pos, int ancho, std::uint32_t valor) {
    const std::size_t fin = pos + static_cast<std::size_t>(ancho);
    if (bytes.size() < fin) bytes.resize(fin, 0);
    for (int i = 0; i < ancho; ++i)
        bytes[pos + static_cast<std::size_t>(i)] = (valor >> (8 * i)) & 0xFF;
}

std::int16_t Entero16(const Bytes& bytes, int registro) {
    return static_cast<std::int16_t>(LeerValor(bytes, Inicio(registro), 2));
}

} // namespace

ConfiguracionTapiz LeerRegistrosTapiz(const std::string& ruta) {
    const Bytes bytes = LeerBytes(ruta);
    ConfiguracionTapiz t;
    const std::size_t longitud = std::min<std::size_t>(LeerValor(bytes, 0, 2), MaxTextoTapiz);
    for (std::size_t i = 0; i < longitud && 2 + i < bytes.size(); ++i)
        t.TapizArchivo.push_back(static_cast<char>(bytes[2 + i]));
    t.TapizVertical = Entero16(bytes, 2);
    t.TapizHorizontal = Entero16(bytes, 3);
    t.TapizAjustar = Entero16(bytes, 4);
    t.TapizEfecto = static_cast<std::uint8_t>(LeerValor(bytes, Inicio(5), 1));
    t.TipLetra = static_cast<std::uint8_t>(LeerValor(bytes, Inicio(6), 1));
    t.TipFondo = static_cast<std::int32_t>(LeerValor(bytes, Inicio(7), 4));
    t.TipTexto = static_cast<std::int32_t>(LeerValor(bytes, Inicio(8), 4));
    t.TipCentrado = Entero16(bytes, 9);
    t.TipTradicional = Entero16(bytes, 10);
    return t;
}

void EscribirRegistrosTapiz(const std::string& ruta, const ConfiguracionTapiz& v,
                            const AnchosTapiz& anchos) {
    if (v.TapizArchivo.size() > MaxTextoTapiz)
        throw ErrorTrevalo(ErrLongitudRegistro, "Longitud de registro incorrecta");
    Bytes bytes = LeerBytes(ruta);
    PonerValor(bytes, 0, 2, static_cast<std::uint32_t>(v.TapizArchivo.size()));
    if (bytes.size() < 2 + v.TapizArchivo.size()) bytes.resize(2 + v.TapizArchivo.size(), 0);
    std::copy(v.TapizArchivo.begin(), v.TapizArchivo.end(), bytes.begin() + 2);

    const std::int32_t valores[RegistrosTapiz - 1] = {
        v.TapizVertical, v.TapizHorizontal, v.TapizAjustar, v.TapizEfecto,   v.TipLetra,
        v.TipFondo,      v.TipTexto,        v.TipCentrado,  v.TipTradicional};
    for (int r = 2; r <= RegistrosTapiz; ++r)
        PonerValor(bytes, Inicio(r), anchos[r - 2], static_cast<std::uint32_t>(valores[r - 2]));

    std::ofstream archivo(ruta, std::ios::binary | std::ios::trunc);
    archivo.write(reinterpret_cast<const char*>(bytes.data()),
                  static_cast<std::streamsize>(bytes.size()));
    if (!archivo) throw ErrorTrevalo(ErrAccesoArchivo, "Error de acceso a la ruta o el archivo");
}

ConfiguracionTapiz TapizDefecto(const CarpetasPrograma& carpetas) {
    ConfiguracionTapiz t;
    t.TapizArchivo = carpetas.RutaBase + "/Tapices/TapizKorvel.jpg";
    t.TipLetra = 4;
    t.TipFondo = TipFondoDefecto;
    return t;
}

std::string LeerTapiz(const CarpetasPrograma& carpetas, ConfiguracionTapiz& tapiz) {
    const std::string ruta = carpetas.RutaBase + "/Tapiz.kvl";
    if (!ExisteArchivoDisco(ruta)) std::ofstream(ruta, std::ios::binary);
    tapiz = LeerRegistrosTapiz(ruta);
    if (tapiz.TapizVertical < 0 || tapiz.TapizVertical > 2) tapiz.TapizVertical = 0;
    if (tapiz.TapizHorizontal < 0 || tapiz.TapizHorizontal > 2) tapiz.TapizHorizontal = 0;
    if (tapiz.TapizEfecto > 27) tapiz.TapizEfecto = 0;

    const std::string archivo = Recortado(tapiz.TapizArchivo);
    if (archivo.empty() || !ExisteArchivoDisco(archivo)) {
        const ConfiguracionTapiz defecto = TapizDefecto(carpetas);
        try {
            EscribirRegistrosTapiz(ruta, defecto, AnchosTapizDefecto);
        } catch (const ErrorTrevalo&) {
            // Nothing is shown at start-up: the defaults stay in memory for this run.
        }
        tapiz.TapizArchivo = defecto.TapizArchivo;
    }

    if (tapiz.TipLetra > 7) tapiz.TipLetra = 4;
    if (tapiz.TipFondo == 0) tapiz.TipFondo = TipFondoDefecto;
    return ExisteArchivoDisco(tapiz.TapizArchivo) ? tapiz.TapizArchivo : std::string();
}

int PuntosLetraTip(int indice) {
    static constexpr int puntos[] = {6, 7, 8, 9, 10, 11, 12, 14};
    return indice >= 0 && indice <= 7 ? puntos[indice] : 10;
}

EstiloToolTip ConfigurarToolTip(ConfiguracionTapiz& tapiz) {
    if (tapiz.TipLetra < 1 || tapiz.TipLetra > 7) tapiz.TipLetra = 4;
    if (tapiz.TipFondo == 0) tapiz.TipFondo = TipFondoDefecto;
    return EstiloDe(tapiz);
}

EstiloToolTip EstiloDe(const ConfiguracionTapiz& tapiz) {
    EstiloToolTip estilo;
    estilo.Centrado = tapiz.TipCentrado != 0;
    estilo.Estilo = tapiz.TipTradicional == 0 ? 1 : 0;
    estilo.Puntos = PuntosLetraTip(tapiz.TipLetra);
    estilo.Fondo = tapiz.TipFondo;
    estilo.Texto = tapiz.TipTexto;
    return estilo;
}

} // namespace trevalo
