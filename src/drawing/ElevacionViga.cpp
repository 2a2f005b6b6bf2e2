#include "drawing/ElevacionViga.h"

#include "drawing/Ploteos.h"
#include "model/Redondeo.h"

namespace trevalo {

void PlotearElevacion(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual&,
                      const VigaActual& viga) {
    const double k = estado.FactorSimbolo;
    const long h = CI(12 * k);
    for (long i = 1; i <= viga.NT; ++i) {
        if (estado.XPlot(i + 1) - estado.XPlot(i) == 0.0) continue;
        const double x1 = XJuntaPantalla(estado, i), y1 = YJuntaPantalla(estado, i);
        const double x2 = XJuntaPantalla(estado, i + 1), y2 = YJuntaPantalla(estado, i + 1);
        lienzo.FillColor = viga.TramoMarcado(i) ? 0xB9ECFF : 0xF3DBCF;
        lienzo.FillStyle = RellenoSolido;
        lienzo.Polygon({{CI(x1), CI(y1 + h)},
                        {CI(x2), CI(y2 + h)},
                        {CI(x2), CI(y2 - h)},
                        {CI(x1), CI(y1 - h)}});
        lienzo.FillStyle = RellenoTransparente;
    }
}

void PlotearTitulo(Lienzo&, const EstadoPloteos&, const VigaActual&) {}

void PlotearNumerosJuntas(Lienzo&, const EstadoPloteos&, const VigaActual&) {}

} // namespace trevalo
