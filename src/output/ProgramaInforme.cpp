#include "output/ProgramaInforme.h"

#include <cstdlib>
#include <filesystem>

#include "store/CicloProyecto.h"

namespace trevalo {

namespace {

// The name of the user logged in, as the report's head prints it; empty if unknown.
std::string Usuario() {
    for (const char* variable : {"USER", "LOGNAME"})
        if (const char* valor = std::getenv(variable)) return valor;
    return {};
}

} // namespace

std::vector<std::string> ListaVigasInforme(EstadoProyecto& estado) {
    std::vector<std::string> vigas;
    for (auto rs = ProyectoAbierto(estado).AbrirRecordset(ConsultaListaVigas); !rs.AlFinal();
         rs.MoveNext())
        vigas.push_back(rs.Campo("NombreViga").Texto());
    return vigas;
}

std::int16_t PosicionVigaInforme(BaseDatos& bd, const std::vector<std::string>& vigas,
                                 const std::string& nombre) {
    if (!ExisteViga(bd, nombre)) return 0;
    const auto guardado = NombreVigaGuardado(bd, nombre);
    for (std::size_t i = 0; i < vigas.size(); ++i)
        if (vigas[i] == guardado) return static_cast<std::int16_t>(i + 1);
    return 0;
}

void LlenarInformePrograma(ModeloInforme& modelo, Dialogos& dialogos,
                           const std::vector<std::string>& vigas, const OpcionesImpresion& opciones,
                           const std::string& carpetaPrograma, const std::string& rutaTemporal,
                           const std::string& version,
                           const std::function<void(const std::string&, double)>& progreso) {
    std::error_code ec;
    std::filesystem::copy_file(carpetaPrograma + "/Imagen/Temporal.kvl", rutaTemporal,
                               std::filesystem::copy_options::overwrite_existing, ec);
    if (ec) throw ErrorArchivo(ec);
    auto pasos = PasosPrograma(modelo, dialogos);
    pasos.Progreso = progreso;
    LlenarImpreDatos(rutaTemporal, FilaGeneralesDe(modelo.proyecto, Usuario(), version), vigas,
                     opciones, pasos, HilosPintura());
}

} // namespace trevalo
