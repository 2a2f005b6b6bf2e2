#pragma once
// The design table of a beam: stations along every span with the factored moment and shear
// from statics and, for a concrete beam, the steel at top and bottom and the stirrup text.
// Computed on the fly, never stored.
//
// Stations of span t: dX, dY the differences of the joint plot positions (XPlot, YPlot of the
// plot geometry, 1..NT+1, the caller's), L = sqrt(dX^2 + dY^2), n = round(dX x
// EstacionesDiseno) ties to even and at least 1; station i = 0..n stands at the horizontal
// position h = i dX / n, at x = h / c along the bar. The first and last stations are on the
// joints. Mu = M x FMayorTramo(t), Vu = V x FMayorTramo(t) (kgf-m sagging positive, kgf).
//
// Summary per span (cm2, slots 1..NT, zeroed at the start of each walk): the steel at the
// first and last station, and at the governing interior station: on the sheet the interior
// station of greatest bottom steel (first maximum wins; stays 0 with n = 1). The export walk
// DisenoParaCAD rounds to 2 decimals and crosses the two centre faces (kept: the companion
// drawing program reads them so): AsInfCentro holds the greatest interior top steel and
// AsSupCentro the bottom steel at that station.
//
// Errors: those of the statics and of the section design (9, 11, 6 ...); a vertical bar
// (dX = 0, dY not 0) divides 0 by 0 at its first station, error 6 as the runtime has it.

#include <cstdint>
#include <string>
#include <vector>

#include "model/Viga.h"

namespace trevalo {

struct EstacionDiseno {
    long i = 0;
    double h = 0;  // horizontal distance from the left joint, m
    double x = 0;  // distance along the bar, m
    double M = 0;  // service moment, kgf-m, sagging positive
    double V = 0;  // service shear, kgf
    double Mu = 0; // factored
    double Vu = 0;
    // Concrete only (left 0, false and empty on a steel beam).
    double AsSup = 0; // cm2
    double AsInf = 0;
    bool Excede = false;
    std::string Estribos; // "@22", "@08 (4R)"
};

struct TramoDiseno {
    std::int16_t t = 0;
    double dX = 0, dY = 0, L = 0, c = 0, s = 0;
    std::int32_t Wp = 0; // own weight, kgf/m (0 without PPV)
    long n = 0;          // segments; stations 0..n
    std::vector<EstacionDiseno> Estaciones;
};

struct ResumenAcero {
    Arreglo<double> AsSupIzquierda;
    Arreglo<double> AsInfIzquierda;
    Arreglo<double> AsSupDerecha;
    Arreglo<double> AsInfDerecha;
    Arreglo<double> AsSupCentro;
    Arreglo<double> AsInfCentro;
};

// The texts a station shows on the sheet, row by row; the masks use the machine's
// separators. A steel beam shows MU(S), MU(I), VU and PROGRES only.
struct TextosEstacion {
    std::string E;          // "E(3/8)"
    std::string AsS;        // "AS(S)": "0.00" or ">FMáx"
    std::string AsI;        // "AS(I)"
    std::string MuS;        // "MU(S)": hogging moment, else 0
    std::string MuI;        // "MU(I)": sagging moment, else 0
    std::string Vu;         // "VU"
    std::string Progresiva; // "PROGRES": distance from the nearer joint, "0.00"
};

// Segments of a span of horizontal length dX at the given stations per metre, a 16-bit
// count: error 6 beyond it. A span of negative length has none, and no stations.
long SegmentosTramo(double dX, double estacionesPorMetro);

// The stations of span t with their values (concrete steel and stirrups when OpcionConcreto
// is 0). XPlot, YPlot: joint positions, 1..NT+1.
TramoDiseno DisenarTramo(const ProyectoActual& proyecto, const VigaActual& viga,
                         const ResultadosViga& resultados, const Arreglo<double>& XPlot,
                         const Arreglo<double>& YPlot, double estacionesPorMetro, std::int16_t t);

// The sheet's walk: every span, and the summary with the sheet's rule (concrete only).
std::vector<TramoDiseno> TablaDiseno(const ProyectoActual& proyecto, const VigaActual& viga,
                                     const ResultadosViga& resultados, const Arreglo<double>& XPlot,
                                     const Arreglo<double>& YPlot, double estacionesPorMetro,
                                     ResumenAcero& resumen);

// The silent walk of the export: steel at every station for any beam, rounded to 2 decimals,
// with the crossed centre rule above.
void DisenoParaCAD(const ProyectoActual& proyecto, const VigaActual& viga,
                   const ResultadosViga& resultados, const Arreglo<double>& XPlot,
                   const Arreglo<double>& YPlot, double estacionesPorMetro, ResumenAcero& resumen);

// Texts of one station of span `tramo` as the sheet prints them.
TextosEstacion TextosDeEstacion(const TramoDiseno& tramo, const EstacionDiseno& estacion,
                                char separadorDecimal = '.', char separadorMiles = ',');

} // namespace trevalo
