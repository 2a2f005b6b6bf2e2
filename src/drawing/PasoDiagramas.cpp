#include "drawing/PasoDiagramas.h"

#include <cmath>

#include "analysis/CorteMomentoTramo.h"
#include "model/Conversiones.h"

namespace trevalo {

DireccionTramo DireccionDeTramo(const GeometriaJuntas& g, long i) {
    DireccionTramo d;
    d.ancho = g.XPlot(i + 1) - g.XPlot(i);
    const double alto = g.YPlot(i + 1) - g.YPlot(i);
    d.largo = std::sqrt(d.ancho * d.ancho + alto * alto);
    if (d.largo > 0) {
        d.cos = d.ancho / d.largo;
        d.sin = alto / d.largo;
    }
    return d;
}

long CantidadEstaciones(double ancho, long estaciones) {
    return CI16(ancho * static_cast<double>(estaciones));
}

FuerzasEstacion FuerzasEnEstacion(const ProyectoActual& proyecto, const VigaActual& viga,
                                  const ResultadosViga& resultados, const GeometriaJuntas& g,
                                  long i, double x) {
    const auto t = Entero<std::int16_t>(i);
    const DireccionTramo d = DireccionDeTramo(g, i);
    FuerzasEstacion f;
    CorteMomentoTramo(viga, resultados, t, PesoPropioTramo(proyecto, viga, t), d.largo, x / d.cos,
                      d.cos, d.sin, f.M, f.V);
    f.M *= viga.FMayorTramo(i);
    f.V *= viga.FMayorTramo(i);
    return f;
}

EscalaDiagramas PrimerPasoDiagramas(const ProyectoActual& proyecto, const VigaActual& viga,
                                    const ResultadosViga& resultados, const GeometriaJuntas& g,
                                    std::int16_t& estacionesDiagrama) {
    if (estacionesDiagrama == 0) estacionesDiagrama = 10;
    EscalaDiagramas e;
    e.MomentoPico.Redim(viga.NT);
    e.PosicionPico.Redim(viga.NT);
    for (long i = 1; i <= viga.NT; ++i) {
        const double ancho = g.XPlot(i + 1) - g.XPlot(i);
        if (ancho == 0.0) continue;
        const long n = CantidadEstaciones(ancho, estacionesDiagrama);
        const double s = ancho / static_cast<double>(n);
        double x = 0;
        for (long k = 1; k <= n; ++k) {
            const FuerzasEstacion f = FuerzasEnEstacion(proyecto, viga, resultados, g, i, x);
            if (std::abs(f.M) > e.MaxMomento) e.MaxMomento = std::abs(f.M);
            if (std::abs(f.V) > e.MaxCorte) e.MaxCorte = std::abs(f.V);
            if (f.M > 0 && f.M > e.MomentoPico(i)) {
                e.MomentoPico(i) = f.M;
                e.PosicionPico(i) = x;
            }
            x += s;
        }
    }
    return e;
}

} // namespace trevalo
