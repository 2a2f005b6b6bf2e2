#include "drawing/PlotearDiagramas.h"

#include <cmath>

#include "drawing/PasoDiagramas.h"
#include "drawing/Ploteos.h"
#include "drawing/TrazosResultados.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

constexpr Color RellenoMomento = 0xCFCFFA;
constexpr Color PlumaMomento = 0x1F1FC9;
constexpr Color RellenoCorte = 0xFFD5D5;
constexpr Color PlumaCorte = 0xFF0000;

// One span of the diagrams: its place on the screen and the two scales.
struct TramoDiagrama {
    long i = 0;
    double ancho = 0;
    double tanA = 0, sinA = 0, cosA = 1;
    double grados = 0; // angle of the span, counter-clockwise positive
    double k = 1;
    double bajada = 0; // axis to the moment base line
    double F = 0, G = 0;
};

// Base line of the moment diagram at plot abscissa x of the span (the shear's is 110 k
// lower).
PuntoPlot Base(const EstadoPloteos& v, const TramoDiagrama& t, double x) {
    return {v.Escala * (x + v.XPlot(t.i)) + v.OrigenX,
            v.Escala * (v.YPlot(t.i) - x * t.tanA) + v.OrigenY + t.bajada};
}

// Ordinate of `largo` pixels at right angles to the span, down the screen when positive.
PuntoPlot Desplazado(PuntoPlot p, const TramoDiagrama& t, double largo) {
    return {p.first + largo * t.sinA, p.second + largo - largo * (1 - t.cosA)};
}

void Cuadrilatero(Lienzo& lienzo, PuntoPlot b0, PuntoPlot b1, const TramoDiagrama& t, double o0,
                  double o1, const Pluma& pluma) {
    PoligonoConPluma(lienzo, pluma, {b0, Desplazado(b0, t, o0), Desplazado(b1, t, o1), b1});
}

void EtiquetasMargen(Lienzo& lienzo, const EstadoPloteos& v, double longTotal) {
    const double k = v.FactorSimbolo;
    const double izquierda = v.OrigenX - (longTotal / 2) * v.Escala;
    const double y = v.BaseY + 210 * k;
    const auto etiqueta = [&](const std::string& texto, double dx, double dy, bool centrada) {
        FijarLetra(lienzo, 8, k);
        const double w = lienzo.TextWidth(texto);
        const double e = lienzo.TextHeight(texto);
        TextoRotado(lienzo, texto, izquierda - e - dx, y + dy - (centrada ? w / 2 : 0), 90);
    };
    etiqueta("MOMENTOS", 35 * k, 24 * k, false);
    etiqueta("(MU)", 23 * k, 20 * k, true);
    etiqueta("CORTES", 35 * k, 24 * k + 112 * k, false);
    etiqueta("(VU)", 23 * k, 20 * k + 112 * k, true);
}

// Labels of the station at x0 (the k-th of n) with its moment M0 and shear V0.
void EtiquetasEstacion(Lienzo& lienzo, const EstadoPloteos& v, const VigaActual& viga,
                       const ResultadosViga& r, const EscalaDiagramas& esc, const TramoDiagrama& t,
                       long estacion, long n, double x0, const FuerzasEstacion& f0) {
    const double k = t.k;
    const double xs = v.Escala * (x0 + v.XPlot(t.i)) + v.OrigenX;
    const double yi = v.Escala * v.YPlot(t.i) + v.OrigenY;
    const auto medir = [&](const std::string& texto, double& w, double& e) {
        FijarLetra(lienzo, 8, k);
        w = lienzo.TextWidth(texto);
        e = lienzo.TextHeight(texto);
    };
    // Base line at plot abscissa x, lifted by `sobre` pixels.
    const auto baseEn = [&](double x, double sobre) {
        return (v.YPlot(t.i) - x * t.tanA) * v.Escala + v.OrigenY + t.bajada - sobre;
    };
    double w = 0, e = 0;
    const bool positivo = RoundKorvel(f0.M, 0) > 0;
    if (estacion == 1) {
        const std::string texto = (positivo ? "+" : "") + Formato(f0.M, "0");
        medir(texto, w, e);
        const double y =
            positivo ? baseEn(x0 - (w / 2) / v.Escala, 4 * k) : yi + t.bajada - 2 * k + f0.M * t.F;
        TextoRotado(lienzo, texto, xs, y, 90);
    }
    if (estacion == n && t.i == viga.NT) {
        const double mj = r.MomJ(t.i) * viga.FMayorTramo(t.i);
        const std::string texto = Formato(mj, "0");
        medir(texto, w, e);
        double y =
            v.Escala * v.YPlot(t.i + 1) + v.OrigenY + t.bajada - 2 + RoundKorvel(mj, 0) * t.F;
        if (RoundKorvel(r.MomJ(t.i), 0) > 0) y += w + 5;
        TextoRotado(lienzo, texto, xs + e / 2, y, 90);
    }
    if (positivo && RoundKorvel(x0, 3) == RoundKorvel(esc.PosicionPico(t.i), 3) &&
        f0.M == esc.MomentoPico(t.i)) {
        const std::string texto = "+" + Formato(f0.M, "0");
        medir(texto, w, e);
        TextoRotado(lienzo, texto, xs, baseEn(x0 - (w / 2) / v.Escala, 4 * k), 90 + t.grados);
    }
    if (estacion == 1) {
        const std::string texto = Formato(f0.V, "0");
        medir(texto, w, e);
        TextoRotado(lienzo, texto, xs - e - 3 * k, yi + t.bajada + 105 * k - 2 * k, 90 + t.grados);
    }
    if (estacion == n) {
        const std::string texto = Formato(r.CorJ(t.i) * viga.FMayorTramo(t.i), "0");
        medir(texto, w, e);
        const double xj = v.Escala * v.XPlot(t.i + 1) + v.OrigenX;
        TextoRotado(lienzo, texto, xj + (4 * k + w) * t.sinA,
                    baseEn(x0, 0) + 112 * k + w + 4 * k - (4 * k + w) * (1 - t.cosA),
                    90 + t.grados);
    }
}

void PlotearTramo(Lienzo& lienzo, const EstadoPloteos& v, const ProyectoActual& proyecto,
                  const VigaActual& viga, const ResultadosViga& r, const EscalaDiagramas& esc,
                  const TramoDiagrama& t) {
    const GeometriaJuntas& g = v;
    const long n = CantidadEstaciones(t.ancho, v.EstacionesDiagrama);
    const double s = t.ancho / static_cast<double>(n);
    const double bajadaCorte = 110 * t.k;
    double x0 = 0;
    for (long estacion = 1; estacion <= n; ++estacion) {
        const double x1 = x0 + s;
        const FuerzasEstacion f0 = FuerzasEnEstacion(proyecto, viga, r, g, t.i, x0);
        const FuerzasEstacion f1 = FuerzasEnEstacion(proyecto, viga, r, g, t.i, x1);
        const PuntoPlot b0 = Base(v, t, x0), b1 = Base(v, t, x1);
        lienzo.DrawMode = DrawModeCopiar;
        lienzo.FillColor = RellenoMomento;
        Cuadrilatero(lienzo, b0, b1, t, f0.M * t.F, f1.M * t.F, {EstiloSolido, 1, PlumaMomento});
        lienzo.DrawMode = DrawModeMascara;
        lienzo.FillColor = RellenoCorte;
        Cuadrilatero(lienzo, {b0.first, b0.second + bajadaCorte},
                     {b1.first, b1.second + bajadaCorte}, t, -f0.V * t.G, -f1.V * t.G,
                     {EstiloSolido, 1, PlumaCorte});
        lienzo.DrawMode = DrawModeCopiar;
        EtiquetasEstacion(lienzo, v, viga, r, esc, t, estacion, n, x0, f0);
        x0 = x1;
    }
}

} // namespace

void PlotearDiagramas(Lienzo& lienzo, EstadoPloteos& v, const ProyectoActual& proyecto,
                      const VigaActual& viga, const ResultadosViga& resultados) {
    const EscalaDiagramas esc =
        PrimerPasoDiagramas(proyecto, viga, resultados, v, v.EstacionesDiagrama);
    v.MaxMomento = esc.MaxMomento;
    v.MaxCorte = esc.MaxCorte;
    // A beam without moment or without shear has no scale: the division fault goes to the
    // redraw's handler.
    if (esc.MaxMomento == 0.0 || esc.MaxCorte == 0.0) throw ErrorTrevalo::DivisionPorCero();
    const double k = v.FactorSimbolo;
    EtiquetasMargen(lienzo, v, viga.LongTotal);
    lienzo.DrawMode = DrawModeCopiar;
    lienzo.FillStyle = RellenoSolido;
    for (long i = 1; i <= viga.NT; ++i) {
        TramoDiagrama t;
        t.i = i;
        t.ancho = v.XPlot(i + 1) - v.XPlot(i);
        if (t.ancho == 0.0) continue;
        FijarAnguloTramo(v, i);
        t.tanA = std::tan(v.AnguloTramo);
        t.sinA = std::sin(v.AnguloTramo);
        t.cosA = std::cos(v.AnguloTramo);
        t.grados = v.AnguloGrados;
        t.k = k;
        t.bajada = 210 * k;
        t.F = 60 * k / esc.MaxMomento;
        t.G = 60 * k / esc.MaxCorte;
        PlotearTramo(lienzo, v, proyecto, viga, resultados, esc, t);
    }
    lienzo.DrawMode = DrawModeCopiar;
    lienzo.FillStyle = RellenoTransparente;
}

} // namespace trevalo
