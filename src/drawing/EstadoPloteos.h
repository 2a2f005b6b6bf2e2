#pragma once
// The state of the drawing shared by the windows that paint a beam: what the user changes
// (zoom, pan, stations, text factor, switches), the plot geometry and the transform that
// every redraw rebuilds. One instance lives in the program; tests make their own.
//
// Pixels: PanX, PanY, OrigenX, OrigenY, BaseY, ExtraDiseno. Escala is pixels per metre of
// the drawing, FactorZoom included. FactorSimbolo multiplies every base size of a symbol,
// offset or font (1.0 at zoom 1, so base numbers are pixels and points at zoom 1).

#include <cstdint>

#include "drawing/GeometriaPlot.h"

namespace trevalo {

struct EstadoPloteos : GeometriaJuntas {
    // What the user sets.
    double FactorZoom = 1.0; // 0.0 is taken as 1.0 at the start of a redraw
    double PanX = 0.0;
    double PanY = 0.0;
    std::int16_t EstacionesDiagrama = 10; // per metre; 0 is taken as 10 by the diagrams
    std::int16_t EstacionesDiseno = 2;    // per metre
    double FactorLetra = 1.0;             // texts of the design sheet and the reactions
    bool VerCuadricula = true;
    bool VerJuntas = false;
    bool EnPantalla = true; // false while report pictures are made
    bool ModoEditor = false;
    bool VerDiagramas = false; // at most one of the three result views
    bool VerDiseno = false;
    bool VerReacciones = false;

    // The transform, set at every redraw.
    double Escala = 0;
    double EscalaInversa = 0; // 1 / Escala of the last redraw at zoom exactly 1
    double FactorSimbolo = 0;
    double OrigenX = 0;
    double OrigenY = 0;
    double BaseY = 0;       // lower edge of the joints' bounding box on the screen
    double ExtraDiseno = 0; // extra height of the design sheet in a report picture

    // The span being drawn: angle of its line, rising to the right positive.
    double AnguloTramo = 0; // radians
    double AnguloGrados = 0;

    // Largest factored |M| and |V| at any station, found by the force diagrams.
    double MaxMomento = 0;
    double MaxCorte = 0;
};

// The view after opening a project or choosing a beam: zoom 1, no pan, 10 stations per
// metre for the diagrams, 2 for the design sheet, text factor 1.
void ReiniciarVista(EstadoPloteos& estado);

} // namespace trevalo
