// trevalo-calc dibujar: one view of a beam painted as the project window paints it, or as a
// report picture, into a PNG, SVG or PDF file.
//
//   dibujar PROYECTO.trv --viga NOMBRE --vista 1|2|3|4 [--ancho W --alto H] [--reporte]
//           -o ARCHIVO.png|.svg|.pdf
//   dibujar VIGA.json --vista 1|2|3|4 ... (a beam document of the tool)
//
// Views: 1 the elevation alone, 2 force diagrams, 3 design sheet, 4 reactions; 2 to 4 solve
// the beam first. On screen the canvas is W by H pixels (default 1000 by 600) with the
// grid; a report picture is 710 by 810 pixels, without grid. Exit code 0, 1 on an error of
// the program (its number and text on the error stream), 2 on a malformed command line.

#include <functional>

#include "analysis/AnalisisVigasP.h"
#include "app/tools/Comandos.h"
#include "app/tools/ProyectoCalc.h"
#include "app/tools/VigaJson.h"
#include "drawing/OperacionesVista.h"
#include "drawing/Ploteos.h"
#include "platform/lienzos/LienzosArchivo.h"
#include "store/BaseDatos.h"

namespace trevalo::calc {

namespace {

struct OrdenDibujo {
    std::string archivo, viga, salida;
    int vista = 0;
    int ancho = 0, alto = 0;
    bool reporte = false;
};

bool Entero(const std::string& texto, int& valor) {
    try {
        std::size_t usados = 0;
        valor = std::stoi(texto, &usados);
        return usados == texto.size();
    } catch (const std::exception&) {
        return false;
    }
}

// Reads the words of the command; false on a malformed line.
bool LeerArgumentos(const Argumentos& args, OrdenDibujo& o) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        const bool conValor = i + 1 < args.size();
        const std::string& a = args[i];
        if (a == "--viga" && conValor) {
            o.viga = args[++i];
        } else if (a == "--vista" && conValor) {
            if (!Entero(args[++i], o.vista)) return false;
        } else if (a == "--ancho" && conValor) {
            if (!Entero(args[++i], o.ancho)) return false;
        } else if (a == "--alto" && conValor) {
            if (!Entero(args[++i], o.alto)) return false;
        } else if (a == "-o" && conValor) {
            o.salida = args[++i];
        } else if (a == "--reporte") {
            o.reporte = true;
        } else if (o.archivo.empty() && a.rfind("-", 0) != 0) {
            o.archivo = a;
        } else {
            return false;
        }
    }
    if (o.reporte) {
        o.ancho = o.ancho > 0 ? o.ancho : 710;
        o.alto = o.alto > 0 ? o.alto : 810;
    } else {
        o.ancho = o.ancho > 0 ? o.ancho : 1000;
        o.alto = o.alto > 0 ? o.alto : 600;
    }
    return !o.archivo.empty() && !o.salida.empty() && o.vista >= 1 && o.vista <= 4 &&
           o.ancho <= 20000 && o.alto <= 20000;
}

bool EsJson(const std::string& ruta) {
    return ruta.size() >= 5 && ruta.compare(ruta.size() - 5, 5, ".json") == 0;
}

// The view as the project window's tab sets it, or as a report picture makes it: zoom 1, no
// pan, no grid, no joint numbers, text factor 1.
EstadoPloteos EstadoVista(const OrdenDibujo& o) {
    EstadoPloteos estado;
    ReiniciarVista(estado);
    ElegirPestana(estado, o.vista);
    if (o.reporte) {
        estado.EnPantalla = false;
        estado.VerJuntas = false;
        estado.FactorLetra = 1.0;
    }
    return estado;
}

// Loads settings and beam, and solves it for the result views.
void CargarViga(const OrdenDibujo& o, ProyectoActual& proyecto, VigaActual& viga,
                ResultadosViga& resultados) {
    if (EsJson(o.archivo)) {
        LeerVigaJsonArchivo(o.archivo, proyecto, viga);
        // The settings came with the beam: the analysis has nothing to read again.
        if (o.vista > 1) AnalizarViga([](ProyectoActual&) {}, proyecto, viga, resultados);
        return;
    }
    EstadoProyecto estado;
    AbrirProyectoArchivo(o.archivo, estado);
    CargarVigaCalc(estado, o.viga, proyecto, viga);
    if (o.vista > 1)
        AnalizarViga(LectorGeneralProyecto(*estado.BDProyecto), proyecto, viga, resultados);
}

} // namespace

int ComandoDibujar(const Argumentos& args, std::ostream&, std::ostream& errores) {
    OrdenDibujo o;
    if (!LeerArgumentos(args, o) || (!EsJson(o.archivo) && o.viga.empty())) {
        errores << "Uso: trevalo-calc dibujar PROYECTO.trv --viga NOMBRE --vista 1|2|3|4 "
                   "[--ancho W --alto H] [--reporte] -o ARCHIVO.png|.svg|.pdf\n"
                   "     trevalo-calc dibujar VIGA.json --vista 1|2|3|4 ...\n";
        return 2;
    }
    try {
        ProyectoActual proyecto;
        VigaActual viga;
        ResultadosViga resultados;
        CargarViga(o, proyecto, viga, resultados);
        EstadoPloteos estado = EstadoVista(o);
        PintarEnArchivo(o.salida, o.ancho, o.alto, [&](Lienzo& lienzo) {
            PlotearViga(lienzo, estado, proyecto, viga, resultados);
        });
        return 0;
    } catch (const ErrorTrevalo& e) {
        errores << "Error " << e.Numero() << ": " << e.Descripcion() << "\n";
        return 1;
    }
}

} // namespace trevalo::calc
