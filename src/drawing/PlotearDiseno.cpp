#include "drawing/PlotearDiseno.h"

#include "design/TablaDiseno.h"
#include "drawing/Ploteos.h"
#include "drawing/TrazosResultados.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

constexpr Color RellenoReaccion = 0xFFCA95;
constexpr Color ColorDespiece = 0x0000FF; // red

// Rows of the sheet, as distances below BaseY in pixels (k = FactorSimbolo).
struct FilasHoja {
    double k = 1;
    double H0 = 0;             // first row: 115 k for concrete, 30 k for steel
    double E4 = 0;             // gap added once per group of rows
    double extra = 0;          // ExtraDiseno
    double izquierda = 0;      // left end of the beam on the screen
    double YAsI = 0, YMuS = 0; // absolute heights kept for the detailing strip
    long TH = 0;               // line height of the sheet's font
};

// Every text of the sheet: size 7 k FactorLetra, turned 90 degrees (reading upward) unless
// told. Widths (TW) and the one line height (TH) are rounded like every other pixel amount.
void Letra(Lienzo& lienzo, const EstadoPloteos& v) {
    FijarLetra(lienzo, 7, v.FactorSimbolo * v.FactorLetra);
}

long TW(Lienzo& lienzo, const EstadoPloteos& v, const std::string& texto) {
    Letra(lienzo, v);
    return CI(lienzo.TextWidth(texto));
}

void Escribir(Lienzo& lienzo, const EstadoPloteos& v, const std::string& texto, double x, double y,
              double angulo = 90) {
    Letra(lienzo, v);
    TextoRotado(lienzo, texto, x, y, angulo);
}

// Headings stand left of the beam, names 35 k and units 23 k out; `altura(TW)` gives the
// corner's height from the heading's own width.
template <typename Altura>
void Encabezado(Lienzo& lienzo, const EstadoPloteos& v, const FilasHoja& f,
                const std::string& texto, bool unidad, Altura altura) {
    const double x = CI(f.izquierda - f.TH - (unidad ? 23 : 35) * f.k);
    Escribir(lienzo, v, texto, x, altura(TW(lienzo, v, texto)));
}

void Encabezados(Lienzo& lienzo, const EstadoPloteos& v, const FilasHoja& f, bool concreto) {
    const double k = f.k, H0 = f.H0, E4 = f.E4, ex = f.extra;
    const double b = v.BaseY;
    const auto fija = [b](double y) { return [b, y](long) { return b + y; }; };
    Encabezado(lienzo, v, f, "REACCION", false, fija(75 * k));
    Encabezado(lienzo, v, f, "kgf", true, fija(65 * k));
    if (concreto) {
        Encabezado(lienzo, v, f, "E(3/8)", false, fija(H0));
        Encabezado(lienzo, v, f, "@cm", true, fija(H0));
        Encabezado(lienzo, v, f, "AS(S)", false, fija(H0 + 35 * k));
        Encabezado(lienzo, v, f, "cm2", true, fija(H0 + 35 * k + E4));
        Encabezado(lienzo, v, f, "AS(I)", false, fija(H0 + 63 * k + E4));
        Encabezado(lienzo, v, f, "cm2", true, fija(H0 + 63 * k + E4));
    }
    const double mu = H0 + 105 * k + 2 * E4 + ex;
    Encabezado(lienzo, v, f, "MU(S)", false, fija(mu));
    Encabezado(lienzo, v, f, "kgf-m", true, fija(mu));
    Encabezado(lienzo, v, f, "MU(I)", false, [&](long tw) { return b + mu + tw + 5 * k; });
    Encabezado(lienzo, v, f, "kgf-m", true, [&](long tw) { return b + mu + tw + 8 * k; });
    Encabezado(lienzo, v, f, "VU", false, fija(H0 + 172 * k + 3 * E4 + ex));
    Encabezado(lienzo, v, f, "kgf", true, fija(H0 + 172 * k + 3 * E4 + ex));
    Encabezado(lienzo, v, f, "PROGRES", false,
               [&](long tw) { return b + H0 + 180 * k + tw + 4 * E4 + ex; });
    Encabezado(lienzo, v, f, "m", true,
               [&](long tw) { return b + H0 + 195 * k + tw + 5 * k + 4 * E4 + ex; });
}

// Reaction arrows of the sheet (service values, sizes following the zoom).
void Reacciones(Lienzo& lienzo, const EstadoPloteos& v, const FilasHoja& f, const VigaActual& viga,
                const ResultadosViga& r) {
    const double k = v.FactorSimbolo;
    lienzo.DrawMode = DrawModeCopiar;
    lienzo.FillStyle = RellenoSolido;
    lienzo.FillColor = RellenoReaccion;
    for (long j = 1; j <= viga.NT + 1; ++j) {
        const double x = v.Escala * v.XPlot(j) + v.OrigenX;
        const double y = v.Escala * v.YPlot(j) + v.OrigenY + CI(50 * k);
        if (r.ReacV(j) != 0.0) {
            if (RoundKorvel(r.ReacV(j), 0) > 0) {
                PoligonoEn(lienzo, {{x, y}, {x - 6 * k, y + 6 * k}, {x + 6 * k, y + 6 * k}});
                RectanguloEn(lienzo, x - 2 * k, y + 6 * k, x + 2 * k, y + 30 * k);
            } else {
                RectanguloEn(lienzo, x - 2 * k, y, x + 2 * k, y + 21 * k);
                // Head corners at 19 k and 21 k, not level: kept as users know it.
                PoligonoEn(lienzo,
                           {{x, y + 25 * k}, {x - 6 * k, y + 19 * k}, {x + 6 * k, y + 21 * k}});
            }
            const std::string texto = Formato(r.ReacV(j), "0");
            Escribir(lienzo, v, texto, CI(f.TH / 2.0 + x - 2 * k),
                     CI(y + TW(lienzo, v, texto) + 8 * k));
        }
        if (RoundKorvel(r.ReacH(j), 0) != 0) {
            const double s = r.ReacH(j) > 0 ? -1 : 1; // arrow left of the joint for > 0
            PoligonoEn(
                lienzo,
                {{x + s * 5 * k, y}, {x + s * 11 * k, y - 6 * k}, {x + s * 11 * k, y + 6 * k}});
            RectanguloEn(lienzo, x + s * 11 * k, y - 2 * k, x + s * 35 * k, y + 2 * k);
            const std::string texto = Formato(r.ReacH(j), "0");
            const double xt = r.ReacH(j) > 0 ? x - TW(lienzo, v, texto) - 14 * k : 16 * k + x;
            Escribir(lienzo, v, texto, CI(xt), CI(4 * k + y), 0);
        }
    }
}

// The cells of one station, in paint order, at text column x.
void Celdas(Lienzo& lienzo, const EstadoPloteos& v, const FilasHoja& f,
            const TextosEstacion& textos, bool concreto, double x) {
    const double k = f.k, b = v.BaseY + f.H0, E4 = f.E4, ex = f.extra;
    if (concreto) {
        Escribir(lienzo, v, textos.E, x, b);
        Escribir(lienzo, v, textos.AsS, x, b + 35 * k + E4);
        Escribir(lienzo, v, textos.AsI, x, b + 35 * k + TW(lienzo, v, textos.AsS) + 8 * k + E4);
    }
    const double mu = b + 105 * k + 2 * E4 + ex;
    Escribir(lienzo, v, textos.MuS, x, mu);
    Escribir(lienzo, v, textos.MuI, x, mu + TW(lienzo, v, textos.MuI) + 5 * k);
    Escribir(lienzo, v, textos.Vu, x, b + 175 * k + 3 * E4 + ex);
    Escribir(lienzo, v, textos.Progresiva, x,
             b + 195 * k + TW(lienzo, v, textos.Progresiva) + 5 * k + 4 * E4 + ex);
}

// The empty strip for detailing bars by hand, on report pictures of concrete beams.
void Despiece(Lienzo& lienzo, const EstadoPloteos& v, const VigaActual& viga, const FilasHoja& f) {
    const double k = f.k;
    const double y = f.YAsI + (f.YMuS - f.YAsI) / 2 - 10 * k;
    LineaPen(lienzo, CI(v.Escala * v.XPlot(1) + v.OrigenX - 10 * k), CI(y),
             CI(v.Escala * v.XPlot(viga.NT + 1) + v.OrigenX + 10 * k), CI(y), ColorDespiece, 1,
             EstiloGuionPuntoPunto);
    Encabezado(lienzo, v, f, "DESPIECE", false, [&](long tw) { return y + tw / 2.0; });
    Encabezado(lienzo, v, f, "Superior", true, [&](long) { return y - 10 * k; });
    Encabezado(lienzo, v, f, "Inferior", true, [&](long tw) { return y + tw + 10 * k; });
}

} // namespace

void PlotearDiseno(Lienzo& lienzo, EstadoPloteos& v, const ProyectoActual& proyecto,
                   const VigaActual& viga, const ResultadosViga& r, ResumenAcero& resumen) {
    const bool concreto = viga.OpcionConcreto == 0;
    FilasHoja f;
    f.k = v.FactorSimbolo;
    f.H0 = (concreto ? 115 : 30) * f.k;
    f.E4 = 4 * f.k;
    f.extra = v.ExtraDiseno;
    f.izquierda = v.OrigenX - (viga.LongTotal / 2) * v.Escala;
    f.YAsI = v.BaseY + f.H0 + 63 * f.k + f.E4;
    f.YMuS = v.BaseY + f.H0 + 105 * f.k + 2 * f.E4 + f.extra;

    Letra(lienzo, v);
    f.TH = CI(lienzo.TextHeight("0"));
    Reacciones(lienzo, v, f, viga, r);
    const std::vector<TramoDiseno> tabla =
        TablaDiseno(proyecto, viga, r, v.XPlot, v.YPlot, v.EstacionesDiseno, resumen);
    const double e = 1 / v.Escala;
    for (const TramoDiseno& tramo : tabla) {
        double P = 9 * e;
        for (const EstacionDiseno& estacion : tramo.Estaciones) {
            const TextosEstacion textos = TextosDeEstacion(tramo, estacion);
            const double x = CI((P + v.XPlot(tramo.t)) * v.Escala + v.OrigenX - f.TH / 2.0);
            Celdas(lienzo, v, f, textos, concreto, x);
            if (tramo.t == 1 && estacion.i == 0) Encabezados(lienzo, v, f, concreto);
            P += (tramo.dX - 18 * e) / static_cast<double>(tramo.n);
        }
    }
    if (concreto && !v.EnPantalla && viga.NT > 0) Despiece(lienzo, v, viga, f);
}

void PlotearDiseno(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                   const VigaActual& viga, const ResultadosViga& resultados) {
    ResumenAcero resumen;
    PlotearDiseno(lienzo, estado, proyecto, viga, resultados, resumen);
}

} // namespace trevalo
