// trevalo-calc diseno: the station table of the design sheet as JSON.
//
//   diseno PROYECTO.trv --viga NOMBRE [--estaciones N]
//   diseno VIGA.json [--estaciones N]
//
// Per span and station: the texts the sheet shows (row headings as keys), the numbers behind
// them (h and x in m, M, Mu in kgf-m sagging positive, V, Vu in kgf, steel in cm2), then the
// six summary values per span as the sheet leaves them ("resumenHoja") and as the export
// stores them ("resumenCAD", rounded, centre faces crossed). N stations per metre of
// horizontal span, a whole number from 1 to 1000, default 2.

#include <nlohmann/json.hpp>

#include "app/tools/CargaViga.h"
#include "app/tools/Comandos.h"
#include "app/tools/Resolver.h"
#include "design/TablaDiseno.h"
#include "drawing/GeometriaPlot.h"

namespace trevalo::calc {

namespace {

nlohmann::ordered_json Resumen(const ResumenAcero& r, long nt) {
    const auto lista = [nt](const Arreglo<double>& a) {
        nlohmann::ordered_json l = nlohmann::ordered_json::array();
        for (long t = 1; t <= nt; ++t) l.push_back(a(t));
        return l;
    };
    return {
        {"AsSupIzquierda", lista(r.AsSupIzquierda)}, {"AsInfIzquierda", lista(r.AsInfIzquierda)},
        {"AsSupCentro", lista(r.AsSupCentro)},       {"AsInfCentro", lista(r.AsInfCentro)},
        {"AsSupDerecha", lista(r.AsSupDerecha)},     {"AsInfDerecha", lista(r.AsInfDerecha)}};
}

nlohmann::ordered_json Estacion(const TramoDiseno& tramo, const EstacionDiseno& e, bool concreto) {
    const TextosEstacion tx = TextosDeEstacion(tramo, e);
    nlohmann::ordered_json textos;
    if (concreto) textos = {{"E(3/8)", tx.E}, {"AS(S)", tx.AsS}, {"AS(I)", tx.AsI}};
    textos["MU(S)"] = tx.MuS;
    textos["MU(I)"] = tx.MuI;
    textos["VU"] = tx.Vu;
    textos["PROGRES"] = tx.Progresiva;
    nlohmann::ordered_json j = {{"i", e.i}, {"h", e.h}};
    j.update(DescribirEstacion(e, concreto));
    j["textos"] = textos;
    return j;
}

// Reads the words of the command; false on a malformed line.
bool LeerArgumentos(const Argumentos& args, std::string& archivo, std::string& viga,
                    long& estaciones) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        const bool conValor = i + 1 < args.size();
        if (args[i] == "--viga" && conValor) {
            viga = args[++i];
        } else if (args[i] == "--estaciones" && conValor) {
            if (!LeerEstaciones(args[++i], estaciones)) return false;
        } else if (archivo.empty() && args[i].rfind("--", 0) != 0) {
            archivo = args[i];
        } else {
            return false;
        }
    }
    return !archivo.empty() && (EsArchivoJson(archivo) || !viga.empty());
}

} // namespace

int ComandoDiseno(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    std::string archivo, nombre;
    long estaciones = 2;
    if (!LeerArgumentos(args, archivo, nombre, estaciones)) {
        errores << "Uso: trevalo-calc diseno PROYECTO.trv --viga NOMBRE [--estaciones N]\n"
                   "     trevalo-calc diseno VIGA.json [--estaciones N]\n";
        return 2;
    }
    try {
        VigaCargada c = CargarYResolver(archivo, nombre);
        GeometriaJuntas g;
        GeometriaPlot(c.viga, g);
        const bool concreto = c.viga.OpcionConcreto == 0;
        ResumenAcero hoja, cad;
        const std::vector<TramoDiseno> tabla =
            TablaDiseno(c.proyecto, c.viga, c.resultados, g.XPlot, g.YPlot, estaciones, hoja);
        DisenoParaCAD(c.proyecto, c.viga, c.resultados, g.XPlot, g.YPlot, estaciones, cad);
        nlohmann::ordered_json tramos = nlohmann::ordered_json::array();
        for (const TramoDiseno& tramo : tabla) {
            nlohmann::ordered_json lista = nlohmann::ordered_json::array();
            for (const EstacionDiseno& e : tramo.Estaciones)
                lista.push_back(Estacion(tramo, e, concreto));
            tramos.push_back({{"tramo", tramo.t},
                              {"dX", tramo.dX},
                              {"L", tramo.L},
                              {"n", tramo.n},
                              {"estaciones", lista}});
        }
        nlohmann::ordered_json doc = {{"viga", c.viga.NombreVigaActual},
                                      {"concreto", concreto},
                                      {"estacionesPorMetro", estaciones},
                                      {"tramos", tramos}};
        doc["resumenHoja"] = Resumen(hoja, c.viga.NT);
        doc["resumenCAD"] = Resumen(cad, c.viga.NT);
        salida << doc.dump(2) << "\n";
        return 0;
    } catch (const ErrorTrevalo& e) {
        errores << "Error " << e.Numero() << ": " << e.Descripcion() << "\n";
        return 1;
    }
}

} // namespace trevalo::calc
