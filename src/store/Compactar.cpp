#include "store/Compactar.h"

#include <filesystem>

#include "model/Errores.h"
#include "platform/motor/MotorDatos.h"
#include "store/CicloProyecto.h"

namespace trevalo {

namespace {

namespace fs = std::filesystem;

// SQLite's code for a damaged database.
constexpr long ErrBaseDanada = 11;

void Borrar(const std::string& ruta) {
    std::error_code ec;
    fs::remove(ruta, ec);
}

// The first line of the engine's integrity check of the file: "ok" when sound.
std::string Integridad(const std::string& ruta) {
    BaseDatos bd = BaseDatos::Abrir(ruta);
    Recordset r = bd.AbrirRecordset("PRAGMA integrity_check");
    return r.AlFinal() ? std::string() : r.Campo(r.Columnas().front()).Texto();
}

} // namespace

std::string TemporalCompactar(const std::string& carpeta) {
    return carpeta + "DatosKorvel.mdb";
}

void CompactarArchivo(const std::string& ruta, const std::string& temporal) {
    Borrar(temporal);
    try {
        BaseDatos::Abrir(ruta).Ejecutar("VACUUM INTO ?", {temporal});
        if (const std::string estado = Integridad(temporal); estado != "ok")
            throw ErrorTrevalo(ErrBaseDanada, "La copia compactada de " + ruta +
                                                  " no pasó la verificación: " + estado);
        std::error_code ec;
        fs::rename(temporal, ruta, ec);
        if (ec) throw ErrorArchivo(ec);
    } catch (const ErrorTrevalo&) {
        Borrar(temporal);
        throw;
    }
}

} // namespace trevalo
