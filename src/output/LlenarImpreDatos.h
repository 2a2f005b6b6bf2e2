#pragma once
// The first stage of a report: walks the chosen beams, loads, solves and paints each one,
// and stores the project's general data and every picture in the report database.
//
// For each beam, in the order of the project window's list: step A the design sheet
// (after the one analysis of the beam), step B the force diagrams if ConDiagramas = 1,
// step C the reactions if ConDiagramas = 1 and ConReacciones = 1. Numero runs from 1 across
// all beams. The whole fill is one transaction: if anything raises, the database is left as
// it was and the error goes to the caller.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "output/ContenidoInforme.h"

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

// What the walk asks of the rest of the program.
struct PasosInforme {
    std::function<void(const std::string& nombre)> CargarViga; // the beam into the model
    std::function<void()> Analizar;                            // once per beam, before step A
    // Paints one view of the loaded beam and returns it as PNG; a painting fault is shown
    // by the painter and what the canvas holds is returned all the same.
    std::function<std::vector<std::uint8_t>(VistaInforme vista)> Pintar;
    // The progress panel: shown for all beams only; the label is "Exportando la Viga: " and
    // the name, the value the bar's (100 / beams, growing by as much at each beam).
    std::function<void(bool visible)> Panel;
    std::function<void(const std::string& etiqueta, double valor)> Progreso;
};

// Precondition: `vigas` is not empty (the report command returns before for an empty list).
// Raises error 9 for a VigaReporte beyond the list, and the engine's errors of the report
// database.
void LlenarImpreDatos(const std::string& rutaTemporal, const FilaGenerales& generales,
                      const std::vector<std::string>& vigas, const OpcionesImpresion& opciones,
                      const PasosInforme& pasos);

} // namespace trevalo
