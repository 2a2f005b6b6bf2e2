#pragma once
// What the user does to the view, as plain operations on the drawing state. The windows
// wire them to tools, keys and the mouse, and redraw after each one that returns true (or
// after each one, for those that return nothing).

#include <cstdint>
#include <vector>

#include "drawing/EstadoPloteos.h"
#include "model/Viga.h"

namespace trevalo {

// Zoom steps add 0.1; they do not multiply. Zooming out stops at 0.1. No upper limit.
void EjecuteZoomIn(EstadoPloteos& estado);
void EjecuteZoomOut(EstadoPloteos& estado);
// Zoom 1, no pan. In the project window (not the editor) also 10 stations for the
// diagrams, 2 for the design sheet and text factor 1.
void EjecuteZoomExtents(EstadoPloteos& estado, bool ventanaProyecto);

// Key codes of the canvas.
inline constexpr int TeclaMasNumerico = 107;
inline constexpr int TeclaMenosNumerico = 109;
inline constexpr int TeclaEscape = 27;
inline constexpr int TeclaIzquierda = 37;
inline constexpr int TeclaArriba = 38;
inline constexpr int TeclaDerecha = 39;
inline constexpr int TeclaAbajo = 40;

// A key on the canvas: numeric-pad + and - zoom, Escape zooms to extents, the arrows pan by
// 0.4 m of the drawing (0.4 * Escala pixels) against their direction. Returns false for any
// other key, which does nothing.
bool TeclaLienzo(EstadoPloteos& estado, int tecla, bool ventanaProyecto);

// Direction tools of the editor: a fixed 10 pixels at any zoom.
enum class Direccion { Izquierda, Derecha, Arriba, Abajo };
void DesplazarVista(EstadoPloteos& estado, Direccion direccion);

// Drag pan: one pixel of mouse movement is one pixel of pan. `ultimo` is the last point of
// the drag and becomes (x, y). Returns whether the point moved (and a redraw is due).
bool ArrastrarVista(EstadoPloteos& estado, double& ultimoX, double& ultimoY, double x, double y);

// The project window's tabs: 1 elevation alone, 2 force diagrams, 3 design sheet, 4
// reactions. Sets the one result view and EnPantalla, and resets what the tab resets: tab 2
// the stations, tab 3 the stations and the text factor; tab 4 keeps the text factor that
// the design sheet left.
void ElegirPestana(EstadoPloteos& estado, int pestana);

// Station and text tools. `pestana` is the project window's tab: 2 diagrams, 3 design
// sheet; on other tabs the station tools do nothing.
void AumentarEstaciones(EstadoPloteos& estado, int pestana);
void DisminuirEstaciones(EstadoPloteos& estado, int pestana); // not below 2 and 1
void LetraMas(EstadoPloteos& estado);
void LetraMenos(EstadoPloteos& estado); // not below 0.3
void LetraR(EstadoPloteos& estado);

// The band as the shape holds it, single precision.
struct BandaSeleccion {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};

// Band of a drag from (x0, y0) to (x, y): corner at the lesser of each pair, size the
// absolute differences.
BandaSeleccion BandaDeArrastre(float x0, float y0, float x, float y);

// Marks in viga.TramoMarcado every span that one of the five band tests takes, from the
// transform of the last redraw; spans already marked stay marked. Returns the spans that a
// test took this time (so that the window can mark their grid rows).
std::vector<long> SeleccioneZoom(const EstadoPloteos& estado, VigaActual& viga,
                                 const BandaSeleccion& banda);

} // namespace trevalo
