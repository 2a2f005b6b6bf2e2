// trevalo-calc informe: the whole road of a report without windows. The project's beams are
// loaded, solved and painted by the program's own walk (LlenarInformePrograma) into a fresh
// report database in a working folder of its own, which is then written to the file by its
// extension. Progress goes to `errores`, a line a beam.

#include <QGuiApplication>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <ostream>
#include <random>

#include "app/tools/Comandos.h"
#include "app/tools/DialogosConsola.h"
#include "app/tools/ProyectoCalc.h"
#include "output/BaseInforme.h"
#include "output/EscritoresInforme.h"
#include "output/PaginaInforme.h"
#include "output/ProgramaInforme.h"
#include "store/BaseDatos.h"

namespace trevalo::calc {

namespace fs = std::filesystem;

namespace {

struct PedidoInforme {
    std::string proyecto;
    std::optional<std::string> viga;
    OpcionesImpresion opciones;
    std::string salida;
};

// Reads the words of the command; a message on `errores` and none if they do not fit.
std::optional<PedidoInforme> LeerPedido(const Argumentos& args, std::ostream& errores) {
    PedidoInforme p;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const auto& a = args[i];
        const bool conValor = i + 1 < args.size();
        if (a == "--viga" && conValor)
            p.viga = args[++i];
        else if (a == "-o" && conValor)
            p.salida = args[++i];
        else if (a == "--diagramas")
            p.opciones.ConDiagramas = 1;
        else if (a == "--reacciones")
            p.opciones.ConReacciones = 1;
        else if (p.proyecto.empty() && a.rfind("-", 0) != 0)
            p.proyecto = a;
        else {
            errores << "Argumento no válido: " << a << "\n";
            return std::nullopt;
        }
    }
    if (p.proyecto.empty() || p.salida.empty()) {
        errores << "Falta el proyecto o el archivo de salida (-o).\n";
        return std::nullopt;
    }
    if (!ArchivoPorExtension(p.salida)) {
        errores << "El archivo de salida debe terminar en .pdf, .htm, .xlsx o .rtf: " << p.salida
                << "\n";
        return std::nullopt;
    }
    return p;
}

// Painting needs a GUI application object; without a display the painting is offscreen.
void AsegurarAplicacion() {
    if (QCoreApplication::instance()) return;
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char nombre[] = "trevalo-calc";
    static char* argv[] = {nombre, nullptr};
    static QGuiApplication aplicacion(argc, argv);
}

// A working folder of its own for the report database, removed on leaving.
struct CarpetaTrabajo {
    CarpetaTrabajo() {
        std::random_device azar;
        ruta = fs::temp_directory_path() / ("trevalo-informe-" + std::to_string(azar()));
        fs::create_directories(ruta);
    }
    ~CarpetaTrabajo() {
        std::error_code e;
        fs::remove_all(ruta, e);
    }
    fs::path ruta;
};

int Informe(const PedidoInforme& pedido, std::ostream& salida, std::ostream& errores) {
    if (!fs::is_regular_file(pedido.proyecto)) {
        errores << "No existe el proyecto: " << pedido.proyecto << "\n";
        return 1;
    }
    EstadoProyecto estado;
    estado.BDProyecto = BaseDatos::Abrir(pedido.proyecto);
    estado.NombreProyecto = fs::path(pedido.proyecto).filename().string();
    ProyectoActual proyecto;
    LeerGeneralProyecto(*estado.BDProyecto, proyecto);
    const auto vigas = ListaVigasInforme(estado);
    if (vigas.empty()) {
        errores << "El proyecto no tiene vigas: " << pedido.proyecto << "\n";
        return 1;
    }
    auto opciones = pedido.opciones;
    if (pedido.viga) {
        opciones.VigaReporte = PosicionVigaInforme(*estado.BDProyecto, vigas, *pedido.viga);
        if (opciones.VigaReporte == 0) {
            errores << "No existe la viga " << *pedido.viga << " en el proyecto.\n";
            return 1;
        }
    }

    AsegurarAplicacion();
    const CarpetaTrabajo trabajo;
    const auto temporal = (trabajo.ruta / "Temporal.mdb").string();
    VigaActual viga;
    ResultadosViga resultados;
    EstadoPloteos vista;
    ModeloInforme modelo{estado, proyecto, viga, resultados, vista};
    DialogosConsola dialogos(errores);
    const auto dibujos = LlenarInformePrograma(
        modelo, dialogos, vigas, opciones, RutaProgramaCalc(), temporal, TREVALO_VERSION,
        [&errores](const std::string& etiqueta, double valor) {
            errores << etiqueta << " (" << static_cast<int>(valor + 0.5) << " %)\n";
        });

    auto contenido = LeerBaseInforme(temporal);
    UnirDibujos(contenido, dibujos);
    errores << "Escribiendo el informe: " << pedido.salida << "\n";
    EscribirInforme(contenido, pedido.salida, *ArchivoPorExtension(pedido.salida));
    salida << pedido.salida << ": " << CantidadPaginasInforme(contenido) << " páginas, "
           << contenido.Graficos.size() << " gráficos\n";
    return 0;
}

} // namespace

int ComandoInforme(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    const auto pedido = LeerPedido(args, errores);
    if (!pedido) return 2;
    try {
        return Informe(*pedido, salida, errores);
    } catch (const ErrorTrevalo& e) {
        errores << "Error: " << e.Numero() << "\n" << e.Descripcion();
        if (e.Numero() == ErrAccesoArchivo) errores << ": " << pedido->salida;
        errores << "\n";
        return 1;
    }
}

} // namespace trevalo::calc
