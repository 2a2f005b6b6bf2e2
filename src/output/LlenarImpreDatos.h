#pragma once
// The first stage of a report: walks the chosen beams, loads, solves and paints each one,
// and stores the project's general data and every picture in the report database.
//
// For each beam, in the order of the project window's list: step A the design sheet
// (after the one analysis of the beam), step B the force diagrams if ConDiagramas = 1,
// step C the reactions if ConDiagramas = 1 and ConReacciones = 1. Numero runs from 1 across
// all beams. The whole fill is one transaction: if anything raises, the database is left as
// it was and the error goes to the caller.
//
// Pictures may be painted on several threads at once: each one is prepared on the calling
// thread from a copy of what it shows, painted and encoded elsewhere, and stored, with every
// message of the walk, in the order of a painting one by one. The database holds the same
// bytes whatever the number of threads.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "output/ContenidoInforme.h"
#include "store/Dialogos.h"

namespace trevalo {

// The choices of the print dialog.
struct OpcionesImpresion {
    std::int16_t VigaReporte = 0;   // 0 all beams, else the 1-based number in the list
    std::uint8_t ConDiagramas = 0;  // 1 or 0
    std::uint8_t ConReacciones = 0; // 1 or 0; without the diagrams it has no effect
};

enum class VistaInforme { Diseno, Diagramas, Reacciones };

// The pictures each beam gets, in their order.
std::vector<VistaInforme> VistasInforme(const OpcionesImpresion& opciones);

// A picture painted: its drawing, the PNG made from it, and the message of a fault of its
// painting (the picture is then what the canvas held).
struct GraficoPintado {
    std::shared_ptr<const DibujoInforme> Dibujo;
    std::vector<std::uint8_t> Png;
    std::optional<Pregunta> Aviso;
};

// The painting of one picture, free of the program's state: it may run on any thread.
using TrabajoGrafico = std::function<GraficoPintado()>;

// What the walk asks of the rest of the program. Load and analysis give the message of
// their fault, which the walk shows through Avisar in its turn.
struct PasosInforme {
    std::function<std::optional<Pregunta>(const std::string& nombre)> CargarViga;
    std::function<std::optional<Pregunta>()> Analizar; // once per beam, before step A
    // Takes what the view shows of the loaded beam, now, for a painting that may come later.
    std::function<TrabajoGrafico(VistaInforme vista)> Preparar;
    std::function<void(const Pregunta&)> Avisar;
    // The progress panel: shown for all beams only; the label is "Exportando la Viga: " and
    // the name, the value the bar's (100 / beams, growing by as much at each beam).
    std::function<void(bool visible)> Panel;
    std::function<void(const std::string& etiqueta, double valor)> Progreso;
};

// Precondition: `vigas` is not empty (the report command returns before for an empty list).
// `hilos` threads paint (1: each picture on the calling thread, at once). Raises error 9 for
// a VigaReporte beyond the list, the errors of the steps, and the engine's errors of the
// report database. Returns the drawings of the pictures stored, in Numero order.
DibujosInforme LlenarImpreDatos(const std::string& rutaTemporal, const FilaGenerales& generales,
                                const std::vector<std::string>& vigas,
                                const OpcionesImpresion& opciones, const PasosInforme& pasos,
                                int hilos = 1);

// The painting threads a machine affords: one a core.
int HilosPintura();

} // namespace trevalo
