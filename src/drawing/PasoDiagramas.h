#pragma once
// The stations of the force diagrams and the scale pass that the diagrams and the
// reactions view share: largest factored |M| and |V| over all stations and the peak
// positive moment of each span.
//
// Stations of a span: n = CI(plot width x stations per unit), step s = width / n, station
// k at x = (k - 1) s along the plot (the right end is not a station of this pass). Forces
// are the span statics at the length along the bar x / cos, times FMayorTramo: kgf-m and
// kgf, moment sagging positive. Raises error 6 if n overflows, 9 for a type beyond the
// list.

#include <cstdint>

#include "drawing/GeometriaPlot.h"
#include "model/Viga.h"

namespace trevalo {

// Direction of span i on the plot: plot width dx, plot length l, cos = dx / l and
// sin = (YPlot(i+1) - YPlot(i)) / l (screen direction).
struct DireccionTramo {
    double ancho = 0;
    double largo = 0;
    double cos = 1;
    double sin = 0;
};
DireccionTramo DireccionDeTramo(const GeometriaJuntas& g, long i);

// Number of stations of a span of plot width `ancho`: CI(ancho x estaciones), a 16-bit count
// (error 6 beyond it); a negative width has none.
long CantidadEstaciones(double ancho, long estaciones);

// Factored moment and shear of span i at plot abscissa x (measured from its left joint).
struct FuerzasEstacion {
    double M = 0;
    double V = 0;
};
FuerzasEstacion FuerzasEnEstacion(const ProyectoActual& proyecto, const VigaActual& viga,
                                  const ResultadosViga& resultados, const GeometriaJuntas& g,
                                  long i, double x);

struct EscalaDiagramas {
    double MaxMomento = 0;
    double MaxCorte = 0;
    Arreglo<double> MomentoPico;  // by span; 0 until a positive moment is found
    Arreglo<double> PosicionPico; // plot abscissa of the peak from the span's left joint
};

// The scale pass. A value of 0 in `estacionesDiagrama` becomes 10 first (the caller's view
// state keeps it). The peak test is strict: the first of equal values stays.
EscalaDiagramas PrimerPasoDiagramas(const ProyectoActual& proyecto, const VigaActual& viga,
                                    const ResultadosViga& resultados, const GeometriaJuntas& g,
                                    std::int16_t& estacionesDiagrama);

} // namespace trevalo
