// The commands on project files: list the beams, export one as JSON, import one from JSON,
// export concrete beams to a project of the drawing program.
// Exit codes: 0 done, 1 a file or a beam that cannot be used (the project and the target
// are left as they were), 2 wrong words on the command line.

#include <map>
#include <set>

#include "app/tools/Comandos.h"
#include "app/tools/ProyectoCalc.h"
#include "app/tools/VigaJson.h"
#include "output/ExportarCAD.h"
#include "store/BaseDatos.h"

namespace trevalo::calc {

namespace {

struct Palabras {
    std::vector<std::string> posicionales;
    std::map<std::string, std::vector<std::string>> opciones; // "--viga" -> values, in order
    std::set<std::string> banderas;                           // options without a value

    // The value given last to an option that was given.
    const std::string& Opcion(const std::string& nombre) const {
        return opciones.at(nombre).back();
    }
};

// Splits the words into positional ones, the given options with their values and the flags.
// Anything else, or a count of positional words other than `cuantas`, is a usage error.
bool LeerPalabras(const Argumentos& args, std::size_t cuantas,
                  const std::set<std::string>& conocidas, Palabras& p, std::ostream& errores,
                  const std::set<std::string>& banderas = {}) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i].rfind("-", 0) != 0) {
            p.posicionales.push_back(args[i]);
        } else if (banderas.count(args[i])) {
            p.banderas.insert(args[i]);
        } else if (!conocidas.count(args[i])) {
            errores << "Opción desconocida: " << args[i] << "\n";
            return false;
        } else if (i + 1 == args.size()) {
            errores << "Falta el valor de la opción " << args[i] << "\n";
            return false;
        } else {
            p.opciones[args[i]].push_back(args[i + 1]);
            ++i;
        }
    }
    if (p.posicionales.size() == cuantas) return true;
    errores << "Número de argumentos incorrecto.\n";
    return false;
}

int Uso(const std::string& orden, std::ostream& errores) {
    for (const auto& e : TablaComandos())
        if (orden == e.nombre) errores << "Uso: trevalo-calc " << e.uso << "\n";
    return 2;
}

int Fallo(const ErrorTrevalo& e, std::ostream& errores) {
    errores << e.Descripcion() << "\n";
    return 1;
}

} // namespace

int ComandoVigas(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    Palabras p;
    if (!LeerPalabras(args, 1, {}, p, errores)) return Uso("vigas", errores);
    try {
        EstadoProyecto estado;
        AbrirProyectoArchivo(p.posicionales[0], estado);
        auto& rs = *estado.RsGeneralViga;
        for (; !rs.AlFinal(); rs.MoveNext()) salida << rs.Campo("NombreViga").Texto() << "\n";
        return 0;
    } catch (const ErrorTrevalo& e) {
        return Fallo(e, errores);
    }
}

int ComandoExportar(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    Palabras p;
    if (!LeerPalabras(args, 1, {"--viga"}, p, errores) || !p.opciones.count("--viga"))
        return Uso("exportar", errores);
    try {
        EstadoProyecto estado;
        AbrirProyectoArchivo(p.posicionales[0], estado);
        ProyectoActual proyecto;
        VigaActual viga;
        CargarVigaCalc(estado, p.Opcion("--viga"), proyecto, viga);
        salida << EscribirVigaJson(proyecto, viga).dump(2) << "\n";
        return 0;
    } catch (const ErrorTrevalo& e) {
        return Fallo(e, errores);
    }
}

// Writes the beam of the JSON file through the store, replacing a beam of the same name.
// A project without general data takes the settings of the file.
int ComandoImportar(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    Palabras p;
    if (!LeerPalabras(args, 2, {"--nombre"}, p, errores)) return Uso("importar", errores);
    try {
        EstadoProyecto estado;
        AbrirProyectoArchivo(p.posicionales[0], estado);
        ProyectoActual proyecto;
        VigaActual viga;
        LeerVigaJsonArchivo(p.posicionales[1], proyecto, viga);
        if (p.opciones.count("--nombre")) viga.NombreVigaActual = p.Opcion("--nombre");
        if (viga.NombreVigaActual.empty())
            throw ErrorTrevalo(ErrNoEnColeccion, "La viga no tiene nombre: use --nombre.");

        BaseDatos& bd = *estado.BDProyecto;
        viga.VigaNueva = !ExisteViga(bd, viga.NombreVigaActual);
        if (!viga.VigaNueva) {
            viga.NombreVigaActual = NombreVigaGuardado(bd, viga.NombreVigaActual);
            auto& rs = *estado.RsGeneralViga;
            while (rs.Campo("NombreViga").Texto() != viga.NombreVigaActual) rs.MoveNext();
        }
        Transaccion t(bd);
        if (bd.AbrirRecordset("GeneralProyecto").RecordCount() == 0)
            SalvarGeneralProyecto(bd, proyecto);
        SalvarViga(estado, viga);
        t.Confirmar();
        salida << "Viga guardada: " << viga.NombreVigaActual << "\n";
        return 0;
    } catch (const ErrorTrevalo& e) {
        return Fallo(e, errores);
    }
}

// Exports the beams named, or every concrete beam, to a project of the drawing program.
int ComandoCad(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    Palabras p;
    if (!LeerPalabras(args, 1, {"--viga", "-o"}, p, errores, {"--nuevo", "--columnas"}) ||
        !p.opciones.count("-o"))
        return Uso("cad", errores);
    try {
        EstadoProyecto estado;
        AbrirProyectoArchivo(p.posicionales[0], estado);
        ProyectoActual proyecto;
        LeerGeneralProyecto(*estado.BDProyecto, proyecto);
        const auto nombres =
            p.opciones.count("--viga") ? p.opciones.at("--viga") : std::vector<std::string>{};
        const OpcionesCAD opciones{p.banderas.count("--nuevo") > 0,
                                   p.banderas.count("--columnas") > 0};
        const std::string& destino = p.Opcion("-o");
        const auto vigas = ExportarVigasCAD(
            estado, proyecto, nombres, destino, RutaProgramaCalc() + "/Imagen/ImagenCAD8.kvl",
            opciones, EstadoPloteos{}.EstacionesDiseno, [&errores](const std::string& nombre) {
                errores << "Exportando la Viga: " << nombre << "\n";
            });
        salida << "Se exportaron " << vigas.size() << " viga(s) a " << destino << "\n";
        return 0;
    } catch (const ErrorTrevalo& e) {
        return Fallo(e, errores);
    }
}

} // namespace trevalo::calc
