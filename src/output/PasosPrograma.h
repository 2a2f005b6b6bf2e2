#pragma once
// The report's walk bound to the program: a beam is loaded from the open project by the
// beam store, solved by the frame analysis and painted by PlotearViga into a recording of a
// canvas of 710 by 810 pixels, which is painted on a hidden image at print resolution
// (FactorImpresion image pixels to the canvas pixel), stored as PNG.
//
// Before each picture the view is reset as a report needs it: zoom 1, no pan, no grid
// (EnPantalla false), no joint numbers, text factor 1, 10 stations per metre on the
// diagrams and 2 on the design sheet, and the one result view of the step. ModoEditor is
// left as it is. On return from the walk the model holds the last beam reported, solved;
// the caller puts back its own view.

#include "drawing/EstadoPloteos.h"
#include "drawing/Ploteos.h"
#include "model/Viga.h"
#include "output/LlenarImpreDatos.h"
#include "store/BaseDatos.h"
#include "store/Dialogos.h"
#include "store/EstadoProyecto.h"

namespace trevalo {

// The program's state that the walk reads and overwrites.
struct ModeloInforme {
    EstadoProyecto& estado; // its BDProyecto is open
    ProyectoActual& proyecto;
    VigaActual& viga;
    ResultadosViga& resultados;
    EstadoPloteos& vista;
};

// The row of Generales for the open project's settings.
FilaGenerales FilaGeneralesDe(const ProyectoActual& proyecto, const std::string& usuario,
                              const std::string& version);

// The view state of a report picture of the given step.
void VistaDeInforme(EstadoPloteos& vista, VistaInforme paso);

// Load, solve and paint bound to the model. A bad beam shows the store's message
// (MensajeError); a fault of the analysis or of the painting shows MensajeFalla; then the walk
// goes on with what the model and the canvas hold: a beam that cannot be solved is painted
// with no results. A picture is painted from a copy of the model taken when it is prepared,
// so the model keeps no transform of a painting. Progress and panel are left to the caller.
PasosInforme PasosPrograma(ModeloInforme& modelo, Dialogos& dialogos);

} // namespace trevalo
