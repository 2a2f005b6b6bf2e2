#include "output/ProgramaInforme.h"

#include <cstdlib>

#include "model/Conversiones.h"
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
        if (vigas[i] == guardado) return Entero<std::int16_t>(static_cast<long long>(i) + 1);
    return 0;
}

DibujosInforme
LlenarInformePrograma(ModeloInforme& modelo, Dialogos& dialogos,
                      const std::vector<std::string>& vigas, const OpcionesImpresion& opciones,
                      const std::string& carpetaPrograma, const std::string& rutaTemporal,
                      const std::string& version,
                      const std::function<void(const std::string&, double)>& progreso) {
    CopiarArchivoDisco(carpetaPrograma + "/Imagen/Temporal.kvl", rutaTemporal);
    auto pasos = PasosPrograma(modelo, dialogos);
    pasos.Progreso = progreso;
    return LlenarImpreDatos(rutaTemporal, FilaGeneralesDe(modelo.proyecto, Usuario(), version),
                            vigas, opciones, pasos, HilosPintura());
}

} // namespace trevalo
