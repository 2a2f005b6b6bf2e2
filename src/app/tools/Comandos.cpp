#include "app/tools/Comandos.h"

#include "model/Conversiones.h"
#include "store/CarpetasPrograma.h"

namespace trevalo::calc {

int ComandoResolver(const Argumentos&, std::ostream&, std::ostream&);
int ComandoVigas(const Argumentos&, std::ostream&, std::ostream&);
int ComandoExportar(const Argumentos&, std::ostream&, std::ostream&);
int ComandoImportar(const Argumentos&, std::ostream&, std::ostream&);
int ComandoDibujar(const Argumentos&, std::ostream&, std::ostream&);
int ComandoDiseno(const Argumentos&, std::ostream&, std::ostream&);
int ComandoPerfiles(const Argumentos&, std::ostream&, std::ostream&);
int ComandoSeccion(const Argumentos&, std::ostream&, std::ostream&);
int ComandoImportarJet(const Argumentos&, std::ostream&, std::ostream&);
int ComandoInforme(const Argumentos&, std::ostream&, std::ostream&);
int ComandoCad(const Argumentos&, std::ostream&, std::ostream&);

const std::vector<EntradaComando>& TablaComandos() {
    static const std::vector<EntradaComando> tabla = {
        {"resolver", "resolver VIGA.json|PROYECTO.trv [--viga NOMBRE] [--estaciones N]",
         &ComandoResolver},
        {"vigas", "vigas PROYECTO.trv", &ComandoVigas},
        {"exportar", "exportar PROYECTO.trv --viga NOMBRE", &ComandoExportar},
        {"importar", "importar PROYECTO.trv VIGA.json [--nombre NOMBRE]", &ComandoImportar},
        {"dibujar",
         "dibujar PROYECTO.trv --viga NOMBRE --vista 1|2|3|4 [--ancho W --alto H] [--reporte] "
         "-o ARCHIVO.png|.svg|.pdf",
         &ComandoDibujar},
        {"diseno", "diseno PROYECTO.trv --viga NOMBRE", &ComandoDiseno},
        {"perfiles", "perfiles TABLA.pfl", &ComandoPerfiles},
        {"seccion", "seccion --d D --tw TW --bf BF --tf TF", &ComandoSeccion},
        {"importar-jet", "importar-jet ANTIGUO NUEVO [--familia proyecto|perfiles]",
         &ComandoImportarJet},
        {"informe",
         "informe PROYECTO.trv [--viga NOMBRE] [--diagramas] [--reacciones] "
         "-o ARCHIVO.pdf|.htm|.xlsx|.rtf",
         &ComandoInforme},
        {"cad", "cad PROYECTO.trv -o OBRA.Cad [--nuevo] [--columnas] [--viga NOMBRE]...",
         &ComandoCad},
    };
    return tabla;
}

namespace {

// Runs a command; what it did not foresee ends it with the program's error, never the tool.
int Ejecutar(const EntradaComando& e, const Argumentos& args, std::ostream& salida,
             std::ostream& errores) {
    try {
        return e.comando(args, salida, errores);
    } catch (...) {
        const auto error = ErrorDeExcepcion(std::current_exception());
        errores << "Error " << error.Numero() << ": " << error.Descripcion() << "\n";
        return 1;
    }
}

void Uso(std::ostream& salida) {
    salida << "Uso: trevalo-calc ORDEN ...\nÓrdenes:\n";
    for (const auto& e : TablaComandos()) salida << "  trevalo-calc " << e.uso << "\n";
    salida << "  trevalo-calc --help      esta ayuda\n"
              "  trevalo-calc --version   la versión del programa\n";
}

} // namespace

int EjecutarCalc(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    if (args.size() == 1 && (args[0] == "--help" || args[0] == "-h")) {
        Uso(salida);
        return 0;
    }
    if (args.size() == 1 && args[0] == "--version") {
        salida << "trevalo-calc " << VersionTrevalo << "\n";
        return 0;
    }
    if (!args.empty())
        for (const auto& e : TablaComandos())
            if (args[0] == e.nombre)
                return Ejecutar(e, {args.begin() + 1, args.end()}, salida, errores);
    Uso(errores);
    return 2;
}

} // namespace trevalo::calc
