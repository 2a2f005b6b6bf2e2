#include "app/tools/ProyectoCalc.h"

#include <filesystem>

#include "store/BaseDatos.h"

namespace trevalo::calc {

namespace {

// A project holds GeneralProyecto and the nine tables of its beams.
bool EsProyecto(BaseDatos& bd) {
    for (const char* tabla : TablasViga)
        if (bd.AbrirRecordset("SELECT * FROM sqlite_master WHERE type='table' AND name=? "
                              "COLLATE NOCASE",
                              {tabla})
                .RecordCount() == 0)
            return false;
    return true;
}

} // namespace

EstadoProyecto AbrirProyectoCalc(const std::string& ruta) {
    if (!std::filesystem::is_regular_file(ruta))
        throw ErrorTrevalo(ErrArchivoNoEncontrado, "No existe el archivo: " + ruta);
    const ErrorTrevalo noEsProyecto(ErrFormatoNoReconocido,
                                    "El archivo no es un proyecto de vigas: " + ruta);
    EstadoProyecto estado;
    estado.NombreProyecto = std::filesystem::path(ruta).filename().string();
    try {
        estado.BDProyecto.emplace(BaseDatos::Abrir(ruta));
        if (!EsProyecto(*estado.BDProyecto)) throw noEsProyecto;
    } catch (const ErrorTrevalo& e) {
        if (e.Numero() == ErrFormatoNoReconocido) throw;
        throw ErrorTrevalo(ErrFormatoNoReconocido,
                           noEsProyecto.Descripcion() + " (" + e.Descripcion() + ")");
    }
    AbrirRsGeneralViga(estado, ConsultaListaVigas);
    return estado;
}

std::string NombreGuardado(EstadoProyecto& estado, const std::string& nombre) {
    auto rs =
        estado.BDProyecto->AbrirRecordset("SELECT * FROM GeneralViga WHERE NombreViga=?", {nombre});
    if (rs.RecordCount() == 0)
        throw ErrorTrevalo(ErrNoEnColeccion, "La viga no existe en el proyecto: " + nombre);
    return rs.Campo("NombreViga").Texto();
}

void CargarVigaCalc(EstadoProyecto& estado, const std::string& nombre, ProyectoActual& proyecto,
                    VigaActual& viga) {
    viga.NombreVigaActual = NombreGuardado(estado, nombre);
    if (estado.BDProyecto->AbrirRecordset("GeneralProyecto").RecordCount() == 0)
        throw ErrorTrevalo(ErrSinRegistroActual, "El proyecto no tiene datos generales.");
    LeerGeneralProyecto(*estado.BDProyecto, proyecto);
    LeerViga(estado, viga);
}

} // namespace trevalo::calc
