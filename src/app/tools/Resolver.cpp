#include "app/tools/Resolver.h"

#include <optional>
#include <ostream>
#include <string>

#include "analysis/AnalisisVigasP.h"
#include "app/tools/Comandos.h"
#include "app/tools/ProyectoCalc.h"
#include "app/tools/VigaJson.h"
#include "design/TablaDiseno.h"
#include "drawing/GeometriaPlot.h"
#include "store/BaseDatos.h"

namespace trevalo::calc {

namespace {

using Json = nlohmann::ordered_json;

template <typename T> Json Lista(const Arreglo<T>& a) {
    Json lista = Json::array();
    for (long i = 1; i <= a.Ubound(); ++i) lista.push_back(a(i));
    return lista;
}

Json Resultados(const ResultadosViga& r) {
    return Json{
        {"NJuntas", r.NJuntas},      {"XJunta", Lista(r.XJunta)}, {"YJunta", Lista(r.YJunta)},
        {"JuntaI", Lista(r.JuntaI)}, {"JuntaJ", Lista(r.JuntaJ)}, {"LBarra", Lista(r.LBarra)},
        {"CosX", Lista(r.CosX)},     {"CosY", Lista(r.CosY)},     {"DespX", Lista(r.DespX)},
        {"DespY", Lista(r.DespY)},   {"GiroZ", Lista(r.GiroZ)},   {"AxiI", Lista(r.AxiI)},
        {"AxiJ", Lista(r.AxiJ)},     {"CorI", Lista(r.CorI)},     {"CorJ", Lista(r.CorJ)},
        {"MomI", Lista(r.MomI)},     {"MomJ", Lista(r.MomJ)},     {"ReacV", Lista(r.ReacV)},
        {"ReacH", Lista(r.ReacH)},   {"ReacM", Lista(r.ReacM)}};
}

Json Resumen(const ResumenAcero& r) {
    return Json{
        {"AsSupIzquierda", Lista(r.AsSupIzquierda)}, {"AsInfIzquierda", Lista(r.AsInfIzquierda)},
        {"AsSupCentro", Lista(r.AsSupCentro)},       {"AsInfCentro", Lista(r.AsInfCentro)},
        {"AsSupDerecha", Lista(r.AsSupDerecha)},     {"AsInfDerecha", Lista(r.AsInfDerecha)}};
}

} // namespace

Json DescribirEstacion(const EstacionDiseno& e, bool concreto) {
    Json j{{"x", e.x}, {"M", e.M}, {"V", e.V}, {"Mu", e.Mu}, {"Vu", e.Vu}};
    if (concreto) {
        j["AsSup"] = e.AsSup;
        j["AsInf"] = e.AsInf;
        j["Excede"] = e.Excede;
        j["Estribos"] = e.Estribos;
    }
    return j;
}

Json ResolverYDescribir(ProyectoActual& proyecto, VigaActual& viga, long estacionesPorMetro) {
    const ProyectoActual leido = proyecto;
    ResultadosViga resultados;
    AnalizarViga([&leido](ProyectoActual& p) { p = leido; }, proyecto, viga, resultados);
    GeometriaJuntas geometria;
    GeometriaPlot(viga, geometria);
    ResumenAcero resumen;
    const auto tabla = TablaDiseno(proyecto, viga, resultados, geometria.XPlot, geometria.YPlot,
                                   static_cast<double>(estacionesPorMetro), resumen);

    const bool concreto = viga.OpcionConcreto == 0;
    Json tramos = Json::array();
    for (const TramoDiseno& tr : tabla) {
        Json estaciones = Json::array();
        for (const EstacionDiseno& e : tr.Estaciones)
            estaciones.push_back(DescribirEstacion(e, concreto));
        tramos.push_back(
            Json{{"Tramo", tr.t}, {"L", tr.L}, {"dX", tr.dX}, {"Estaciones", estaciones}});
    }
    Json doc{{"Viga", viga.NombreVigaActual},
             {"ResultadosViga", Resultados(resultados)},
             {"Tramos", tramos}};
    if (concreto) doc["Resumen"] = Resumen(resumen);
    return doc;
}

int ImprimirResolucion(ProyectoActual& proyecto, VigaActual& viga, long estacionesPorMetro,
                       std::ostream& salida, std::ostream& errores) {
    try {
        salida << ResolverYDescribir(proyecto, viga, estacionesPorMetro).dump(2) << "\n";
        return 0;
    } catch (const ErrorTrevalo& e) {
        errores << "Error " << e.Numero() << ": " << e.Descripcion() << "\n";
        return 1;
    }
}

bool LeerEstaciones(const std::string& texto, long& estaciones) {
    if (texto.empty() || texto.size() > 4 ||
        texto.find_first_not_of("0123456789") != std::string::npos)
        return false;
    estaciones = std::stol(texto);
    return estaciones >= 1 && estaciones <= 1000;
}

// resolver VIGA.json [--estaciones N], or resolver PROYECTO.trv --viga NOMBRE [--estaciones N]
// for a beam of a project, loaded through the beam store.
int ComandoResolver(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    std::string archivo;
    std::optional<std::string> nombreViga;
    long estaciones = EstacionesPorDefecto;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--estaciones") {
            if (i + 1 >= args.size() || !LeerEstaciones(args[i + 1], estaciones)) {
                errores << "El valor de --estaciones debe ser un número entero de 1 a 1000.\n";
                return 2;
            }
            ++i;
        } else if (args[i] == "--viga" && i + 1 < args.size()) {
            nombreViga = args[++i];
        } else if (archivo.empty() && args[i].rfind("--", 0) != 0) {
            archivo = args[i];
        } else {
            errores << "Argumento no reconocido: \"" << args[i] << "\".\n";
            return 2;
        }
    }
    if (archivo.empty()) {
        errores << "Uso: trevalo-calc resolver VIGA.json|PROYECTO.trv [--viga NOMBRE] "
                   "[--estaciones N]\n";
        return 2;
    }
    ProyectoActual proyecto;
    VigaActual viga;
    try {
        if (nombreViga) {
            EstadoProyecto estado;
            AbrirProyectoArchivo(archivo, estado);
            CargarVigaCalc(estado, *nombreViga, proyecto, viga);
        } else {
            LeerVigaJsonArchivo(archivo, proyecto, viga);
        }
    } catch (const ErrorTrevalo& e) {
        errores << "Error " << e.Numero() << ": " << e.Descripcion() << "\n";
        return 1;
    }
    return ImprimirResolucion(proyecto, viga, estaciones, salida, errores);
}

} // namespace trevalo::calc
