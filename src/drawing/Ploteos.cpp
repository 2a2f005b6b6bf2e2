#include "drawing/Ploteos.h"

#include <cmath>

#include "drawing/ElevacionViga.h"
#include "drawing/PlotearDiagramas.h"
#include "drawing/PlotearDiseno.h"
#include "drawing/PlotearReacciones.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

// Share of the canvas width that the beam may take, by the number of spans: a single span
// never fills more than about a third of it.
double FraccionAncho(long nt) {
    if (nt <= 1) return 0.35;
    if (nt == 2) return 0.5;
    if (nt == 3) return 0.7;
    return 0.75;
}

inline constexpr int PasoCuadricula = 45;

void PlotearVista(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                  VigaActual& viga, const ResultadosViga& resultados) {
    lienzo.LockWindowUpdate(true);
    lienzo.Cls();
    lienzo.FontName = "Arial";
    if (estado.EnPantalla && estado.VerCuadricula) DibujarCuadricula(lienzo, PasoCuadricula);
    GeometriaPlot(viga, estado);
    // Kept: the canvas stays frozen here; whoever asked for this redraw releases it.
    if (viga.LongTotal == 0.0 || viga.NT == 0) return;
    CalcularTransformacion(estado, lienzo, viga);
    PlotearElevacion(lienzo, estado, proyecto, viga);
    PlotearTitulo(lienzo, estado, viga);
    if (estado.VerJuntas) PlotearNumerosJuntas(lienzo, estado, viga);
    if (!estado.ModoEditor) {
        if (estado.VerDiagramas)
            PlotearDiagramas(lienzo, estado, proyecto, viga, resultados);
        else if (estado.VerDiseno)
            PlotearDiseno(lienzo, estado, proyecto, viga, resultados);
        else if (estado.VerReacciones)
            PlotearReacciones(lienzo, estado, proyecto, viga, resultados);
    }
    lienzo.DrawMode = DrawModeCopiar;
    lienzo.FillStyle = RellenoTransparente;
    lienzo.LockWindowUpdate(false);
    lienzo.Refresh();
}

} // namespace

void PlotearViga(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                 VigaActual& viga, const ResultadosViga& resultados) {
    try {
        PlotearVista(lienzo, estado, proyecto, viga, resultados);
    } catch (const ErrorTrevalo&) {
        lienzo.LockWindowUpdate(false);
        lienzo.Refresh();
        throw;
    }
}

void CalcularTransformacion(EstadoPloteos& estado, const Lienzo& lienzo, const VigaActual& viga) {
    const double escalaBase = static_cast<double>(
        CI(lienzo.ScaleWidth() * FraccionAncho(viga.NT) / (viga.LongTotal + estado.AltoTotal)));
    if (estado.FactorZoom == 0.0) estado.FactorZoom = 1.0;
    estado.Escala = escalaBase * estado.FactorZoom;
    // Only a redraw at zoom exactly 1 calibrates the symbol size; every path that changes
    // the beam also resets the zoom.
    if (estado.FactorZoom == 1.0) estado.EscalaInversa = 1.0 / estado.Escala;
    estado.FactorSimbolo = estado.EscalaInversa * estado.Escala;
    estado.OrigenX = lienzo.ScaleWidth() / 2 + estado.PanX;
    // The project window leaves the space under the beam to the result views.
    estado.OrigenY = estado.ModoEditor ? lienzo.ScaleHeight() / 2.2 + estado.PanY
                                       : lienzo.ScaleHeight() * 0.23 + estado.PanY;
    estado.BaseY = (estado.AltoTotal / 2) * estado.Escala + estado.OrigenY;
}

double XJuntaPantalla(const EstadoPloteos& estado, long j) {
    return estado.Escala * estado.XPlot(j) + estado.OrigenX;
}

double YJuntaPantalla(const EstadoPloteos& estado, long j) {
    return estado.Escala * estado.YPlot(j) + estado.OrigenY;
}

void FijarAnguloTramo(EstadoPloteos& estado, long i) {
    estado.AnguloTramo = std::atan((estado.YPlot(i) - estado.YPlot(i + 1)) /
                                   (estado.XPlot(i + 1) - estado.XPlot(i)));
    estado.AnguloGrados = estado.AnguloTramo * 180 / 3.14159265358979;
}

PuntoDoble EsquinaTextoCentrado(double cx, double cy, double w, double e, double angulo) {
    const double c = std::cos(angulo), s = std::sin(angulo);
    return {cx - ((w / 2) * c + (e / 2) * s), cy - ((e / 2) * c - (w / 2) * s)};
}

void TextoRotado(Lienzo& lienzo, const std::string& texto, double x, double y, double angulo) {
    // The angle travels in tenths of a degree, as a font's escapement does.
    lienzo.TextOutA(CI(x), CI(y), texto, CI(angulo * 10) / 10.0);
}

void LineaPen(Lienzo& lienzo, double x1, double y1, double x2, double y2, Color color, int ancho,
              int estilo) {
    const Pluma anterior = lienzo.SelectObject({estilo, ancho, TraducirColor(color)});
    lienzo.MoveToEx(CI(x1), CI(y1));
    lienzo.LineTo(CI(x2), CI(y2));
    lienzo.SelectObject(anterior);
}

Color TraducirColor(Color color) {
    return color;
}

void DibujarCuadricula(Lienzo& lienzo, int paso) {
    const Pluma anterior = lienzo.SelectObject({EstiloSolido, 1, TraducirColor(0xEAE1D9)});
    // Kept: `paso` is both the spacing and the loop's limit, so the grid ends at 44 lines
    // whatever the canvas's size.
    for (long i = 2; i <= paso; ++i) {
        lienzo.MoveToEx((i - 1) * paso, 0);
        lienzo.LineTo((i - 1) * paso, CI(lienzo.Height()));
    }
    for (long i = 2; i <= paso; ++i) {
        lienzo.MoveToEx(0, (i - 1) * paso);
        lienzo.LineTo(CI(lienzo.Width()), (i - 1) * paso);
    }
    lienzo.SelectObject(anterior);
}

void FijarLetra(Lienzo& lienzo, double base, double factor) {
    lienzo.FontSize = base * factor;
}

} // namespace trevalo
