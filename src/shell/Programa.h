#pragma once
// The one owner of the state that the windows share: the folders and start-up values, the
// look of Tapiz.kvl, the project's settings, the current beam and its results, the view of
// the drawing, the open project with its beam list, and the dialogs through which every
// window speaks to the user. The application makes one; every window takes it by reference;
// tests make their own with scripted dialogs.

#include <memory>
#include <string>

#include "drawing/EstadoPloteos.h"
#include "model/Viga.h"
#include "output/LlenarImpreDatos.h"
#include "profiles/ListaPerfiles.h"
#include "store/CarpetasPrograma.h"
#include "store/Dialogos.h"
#include "store/EstadoProyecto.h"
#include "store/Tapiz.h"

namespace trevalo {

struct Programa {
    explicit Programa(std::unique_ptr<Dialogos> dialogos) : dialogos_(std::move(dialogos)) {}

    CarpetasPrograma Carpetas;
    ConfiguracionTapiz Tapiz;
    ProyectoActual Proyecto;
    VigaActual Viga;
    ResultadosViga Resultados;
    EstadoPloteos Vista;
    EstadoProyecto Estado;
    ListaPerfiles ListaPerfil;   // the last table loaded for the steel beam types, for the run
    std::string ArchivoAyuda;    // the help file
    OpcionesImpresion Impresion; // the choice of the last accepted print dialog
    DibujosInforme Dibujos;      // the drawings of the last report's pictures

    Dialogos& Dialogo() { return *dialogos_; }

  private:
    std::unique_ptr<Dialogos> dialogos_;
};

} // namespace trevalo
