#include "output/PasosPrograma.h"

#include "analysis/AnalisisVigasP.h"
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

PasosInforme PasosPrograma(ModeloInforme& m, Dialogos& dialogos) {
    PasosInforme pasos;
    pasos.CargarViga = [&m, &dialogos](const std::string& nombre) {
        m.viga.NombreVigaActual = nombre;
        try {
            LeerViga(m.estado, m.viga);
        } catch (const ErrorTrevalo& e) {
            dialogos.Mensaje(MensajeError(e));
        }
    };
    pasos.Analizar = [&m, &dialogos] {
        try {
            AnalizarViga(LectorGeneralProyecto(*m.estado.BDProyecto), m.proyecto, m.viga,
                         m.resultados);
        } catch (const ErrorTrevalo& e) {
            dialogos.Mensaje(MensajeFalla(e));
        }
    };
    pasos.Pintar = [&m, &dialogos](VistaInforme paso) {
        VistaDeInforme(m.vista, paso);
        LienzoImagen lienzo(AnchoGraficoPantalla, AltoGraficoPantalla, FactorImpresion);
        lienzo.Cls();
        try {
            PlotearViga(lienzo, m.vista, m.proyecto, m.viga, m.resultados);
        } catch (const ErrorTrevalo& e) {
            dialogos.Mensaje(MensajeFalla(e));
        }
        return CodificarPng(lienzo.Imagen());
    };
    return pasos;
}

} // namespace trevalo
