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
};

// Text of the sheet: size 7 k FactorLetra, always turned 90 degrees (reading upward). TW and
// TH are rounded like every other pixel amount.
struct TextoHoja {
    long TW = 0, TH = 0;
};

TextoHoja Medir(Lienzo& lienzo, const EstadoPloteos& v, const std::string& texto) {
    FijarLetra(lienzo, 7, v.FactorSimbolo * v.FactorLetra);
    return {CI(lienzo.TextWidth(texto)), CI(lienzo.TextHeight(texto))};
}

// Writes `texto` turned 90 degrees at corner (x, y) and returns its measures.
TextoHoja Escribir(Lienzo& lienzo, const EstadoPloteos& v, const std::string& texto, double x,
                   double y, double angulo = 90) {
    const TextoHoja m = Medir(lienzo, v, texto);
    TextoRotado(lienzo, texto, x, y, angulo);
    return m;
}

// Headings stand left of the beam, names 35 k and units 23 k out; `arriba(TW)` gives the
// corner's height below BaseY from the heading's own width.
template <typename Altura>
void Encabezado(Lienzo& lienzo, const EstadoPloteos& v, const FilasHoja& f,
                const std::string& texto, bool unidad, Altura altura) {
    const TextoHoja m = Medir(lienzo, v, texto);
    const double x = CI(f.izquierda - m.TH - (unidad ? 23 : 35) * f.k);
    TextoRotado(lienzo, texto, x, v.BaseY + altura(m.TW), 90);
}

void Encabezados(Lienzo& lienzo, const EstadoPloteos& v, const FilasHoja& f, bool concreto) {
    const double k = f.k, H0 = f.H0, E4 = f.E4, ex = f.extra;
    const auto fija = [](double y) { return [y](long) { return y; }; };
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
    Encabezado(lienzo, v, f, "MU(I)", false, [&](long TW) { return mu + TW + 5 * k; });
    Encabezado(lienzo, v, f, "kgf-m", true, [&](long TW) { return mu + TW + 8 * k; });
    Encabezado(lienzo, v, f, "VU", false, fija(H0 + 172 * k + 3 * E4 + ex));
    Encabezado(lienzo, v, f, "kgf", true, fija(H0 + 172 * k + 3 * E4 + ex));
    Encabezado(lienzo, v, f, "PROGRES", false,
               [&](long TW) { return H0 + 180 * k + TW + 4 * E4 + ex; });
    Encabezado(lienzo, v, f, "m", true,
               [&](long TW) { return H0 + 195 * k + TW + 5 * k + 4 * E4 + ex; });
}

// Reaction arrows of the sheet (service values, sizes following the zoom).
void Reacciones(Lienzo& lienzo, const EstadoPloteos& v, const VigaActual& viga,
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
            const TextoHoja m = Medir(lienzo, v, texto);
            TextoRotado(lienzo, texto, CI(m.TH / 2.0 + x - 2 * k), CI(y + m.TW + 8 * k), 90);
        }
        if (RoundKorvel(r.ReacH(j), 0) != 0) {
            const double s = r.ReacH(j) > 0 ? -1 : 1; // arrow left of the joint for > 0
            PoligonoEn(
                lienzo,
                {{x + s * 5 * k, y}, {x + s * 11 * k, y - 6 * k}, {x + s * 11 * k, y + 6 * k}});
            RectanguloEn(lienzo, x + s * 11 * k, y - 2 * k, x + s * 35 * k, y + 2 * k);
            const std::string texto = Formato(r.ReacH(j), "0");
            const TextoHoja m = Medir(lienzo, v, texto);
            const double xt = r.ReacH(j) > 0 ? x - m.TW - 14 * k : 16 * k + x;
            TextoRotado(lienzo, texto, CI(xt), CI(4 * k + y), 0);
        }
    }
}

// The cells of one station, in paint order, at text column x.
void Celdas(Lienzo& lienzo, const EstadoPloteos& v, const FilasHoja& f,
            const TextosEstacion& textos, bool concreto, double x) {
    const double k = f.k, b = v.BaseY + f.H0, E4 = f.E4, ex = f.extra;
    if (concreto) {
        Escribir(lienzo, v, textos.E, x, b);
        const TextoHoja s = Escribir(lienzo, v, textos.AsS, x, b + 35 * k + E4);
        Escribir(lienzo, v, textos.AsI, x, b + 35 * k + s.TW + 8 * k + E4);
    }
    const double mu = b + 105 * k + 2 * E4 + ex;
    Escribir(lienzo, v, textos.MuS, x, mu);
    Escribir(lienzo, v, textos.MuI, x, mu + Medir(lienzo, v, textos.MuI).TW + 5 * k);
    Escribir(lienzo, v, textos.Vu, x, b + 175 * k + 3 * E4 + ex);
    const long tw = Medir(lienzo, v, textos.Progresiva).TW;
    Escribir(lienzo, v, textos.Progresiva, x, b + 195 * k + tw + 5 * k + 4 * E4 + ex);
}

// The empty strip for detailing bars by hand, on report pictures of concrete beams.
void Despiece(Lienzo& lienzo, const EstadoPloteos& v, const VigaActual& viga, const FilasHoja& f) {
    const double k = f.k;
    const double y = f.YAsI + (f.YMuS - f.YAsI) / 2 - 10 * k;
    LineaPen(lienzo, CI(v.Escala * v.XPlot(1) + v.OrigenX - 10 * k), CI(y),
             CI(v.Escala * v.XPlot(viga.NT + 1) + v.OrigenX + 10 * k), CI(y), ColorDespiece, 1,
             EstiloGuionPuntoPunto);
    const auto columna = [&](const std::string& texto, bool unidad, auto altura) {
        const TextoHoja m = Medir(lienzo, v, texto);
        TextoRotado(lienzo, texto, CI(f.izquierda - m.TH - (unidad ? 23 : 35) * k), altura(m.TW),
                    90);
    };
    columna("DESPIECE", false, [&](long TW) { return y + TW / 2.0; });
    columna("Superior", true, [&](long) { return y - 10 * k; });
    columna("Inferior", true, [&](long TW) { return y + TW + 10 * k; });
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

    Reacciones(lienzo, v, viga, r);
    const std::vector<TramoDiseno> tabla =
        TablaDiseno(proyecto, viga, r, v.XPlot, v.YPlot, v.EstacionesDiseno, resumen);
    const double e = 1 / v.Escala;
    for (const TramoDiseno& tramo : tabla) {
        double P = 9 * e;
        for (const EstacionDiseno& estacion : tramo.Estaciones) {
            const TextosEstacion textos = TextosDeEstacion(tramo, estacion);
            const long TH = Medir(lienzo, v, textos.Vu).TH;
            const double x = CI((P + v.XPlot(tramo.t)) * v.Escala + v.OrigenX - TH / 2.0);
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
