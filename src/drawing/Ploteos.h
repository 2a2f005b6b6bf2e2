#pragma once
// The one drawing entry, PlotearViga, and the helpers that every view of a beam uses: the
// transform from the plot geometry to pixels, rotated text, one-line pens, the background
// grid. Rounding to pixels is CI (ties to even), applied only when a value is handed to the
// canvas; offsets are added in double before.

#include <string>

#include "drawing/EstadoPloteos.h"
#include "drawing/Lienzo.h"
#include "model/Viga.h"

namespace trevalo {

// Paints the current beam: grid (on screen), elevation, title, joint numbers and, outside
// the editor, the result view chosen by VerDiagramas, VerDiseno or VerReacciones. Sets
// viga.LongTotal and the geometry and transform of `estado`. A beam with no span or no
// length leaves the grid alone, and the canvas frozen. Any fault of the program's error type
// unfreezes and refreshes the canvas and is raised again for the window to show; the state
// stays as it is, and the next redraw starts from the beginning.
void PlotearViga(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                 VigaActual& viga, const ResultadosViga& resultados);

// The transform for this canvas: Escala, EscalaInversa, FactorSimbolo, OrigenX, OrigenY,
// BaseY, from the geometry already in `estado` (GeometriaPlot) and the beam's LongTotal.
// FactorZoom 0.0 becomes 1.0. Error 6 when the base scale overflows.
void CalcularTransformacion(EstadoPloteos& estado, const Lienzo& lienzo, const VigaActual& viga);

// Pixel position of joint j, unrounded.
double XJuntaPantalla(const EstadoPloteos& estado, long j);
double YJuntaPantalla(const EstadoPloteos& estado, long j);

// AnguloTramo and AnguloGrados of span i from the plot geometry.
void FijarAnguloTramo(EstadoPloteos& estado, long i);

// Top-left corner of a text of width w and height e turned by `angulo` radians so that its
// centre lands on (cx, cy).
struct PuntoDoble {
    double x = 0;
    double y = 0;
};
PuntoDoble EsquinaTextoCentrado(double cx, double cy, double w, double e, double angulo);

// Text turned by `angulo` degrees about its top-left corner (x, y), in the canvas's font;
// the angle is taken in tenths of a degree.
void TextoRotado(Lienzo& lienzo, const std::string& texto, double x, double y, double angulo);

// One line with a pen of its own; the canvas's pen is put back.
void LineaPen(Lienzo& lienzo, double x1, double y1, double x2, double y2, Color color, int ancho,
              int estilo);

// Colour resolver. There is no system palette to resolve a system colour reference against,
// so every colour is returned as it is.
Color TraducirColor(Color color);

// Background grid: `paso` pixels apart, and as many lines as `paso` - 1 counted from 2 (the
// one number serves both): vertical lines at paso, 2 paso ... from 0 to Height, then
// horizontal ones from 0 to Width. Fixed on the canvas: no pan, no zoom.
void DibujarCuadricula(Lienzo& lienzo, int paso);

// Sets the font size in points for a text whose base size is `base` at zoom 1.
void FijarLetra(Lienzo& lienzo, double base, double factor);

} // namespace trevalo
