#include "output/PasosPrograma.h"

#include <memory>

#include "analysis/AnalisisVigasP.h"
#include "drawing/LienzoGrabador.h"
#include "output/GraficoPng.h"
#include "platform/lienzos/LienzosArchivo.h"

namespace trevalo {

FilaGenerales FilaGeneralesDe(const ProyectoActual& p, const std::string& usuario,
                              const std::string& version) {
    FilaGenerales fila;
    fila.Usuario = usuario;
    fila.Version = version;
    fila.Proyecto = p.Proyecto;
    fila.Propietario = p.Propietario;
    fila.Calculista = p.Calculista;
    fila.FC = p.FC;
    fila.FY = p.FY;
    fila.D8 = p.D8;
    return fila;
}

void VistaDeInforme(EstadoPloteos& vista, VistaInforme paso) {
    vista.VerDiagramas = paso == VistaInforme::Diagramas;
    vista.VerDiseno = paso == VistaInforme::Diseno;
    vista.VerReacciones = paso == VistaInforme::Reacciones;
    ReiniciarVista(vista);
    vista.EnPantalla = false;
    vista.VerJuntas = false;
}

namespace {

// Runs `paso`; a fault of the program's error type becomes its message.
template <typename F>
std::optional<Pregunta> Avisando(F paso, Pregunta (*mensaje)(const ErrorTrevalo&)) {
    try {
        paso();
    } catch (const ErrorTrevalo& e) {
        return mensaje(e);
    }
    return std::nullopt;
}

// What one picture shows, copied so that it can be painted while the walk goes on.
struct CuadroInforme {
    ProyectoActual proyecto;
    VigaActual viga;
    ResultadosViga resultados;
    EstadoPloteos vista;
};

// The picture is recorded once, measured on the image canvas, and the image is painted from
// the recording: the raster picture and the drawing cannot differ.
GraficoPintado PintarCuadro(CuadroInforme& c) {
    LienzoImagen imagen(AnchoGraficoPantalla, AltoGraficoPantalla, FactorImpresion);
    LienzoGrabador lienzo(AnchoGraficoPantalla, AltoGraficoPantalla, &imagen);
    lienzo.Cls();
    GraficoPintado grafico;
    grafico.Aviso = Avisando(
        [&] { PlotearViga(lienzo, c.vista, c.proyecto, c.viga, c.resultados); }, MensajeFalla);
    auto dibujo = std::make_shared<const DibujoInforme>(lienzo.Soltar());
    Reproducir(*dibujo, imagen);
    grafico.Png = CodificarPng(imagen.Imagen());
    grafico.Dibujo = std::move(dibujo);
    return grafico;
}

} // namespace

PasosInforme PasosPrograma(ModeloInforme& m, Dialogos& dialogos) {
    PasosInforme pasos;
    pasos.CargarViga = [&m](const std::string& nombre) {
        m.viga.NombreVigaActual = nombre;
        return Avisando([&] { LeerViga(m.estado, m.viga); }, MensajeError);
    };
    pasos.Analizar = [&m] {
        return Avisando(
            [&] {
                AnalizarViga(LectorGeneralProyecto(*m.estado.BDProyecto), m.proyecto, m.viga,
                             m.resultados);
            },
            MensajeFalla);
    };
    pasos.Preparar = [&m](VistaInforme paso) -> TrabajoGrafico {
        VistaDeInforme(m.vista, paso);
        auto cuadro = std::make_shared<CuadroInforme>(
            CuadroInforme{m.proyecto, m.viga, m.resultados, m.vista});
        return [cuadro] { return PintarCuadro(*cuadro); };
    };
    pasos.Avisar = [&dialogos](const Pregunta& aviso) { dialogos.Mensaje(aviso); };
    return pasos;
}

} // namespace trevalo
