#include "drawing/PlotearReacciones.h"

#include "drawing/Ploteos.h"
#include "drawing/TrazosResultados.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

constexpr Color RellenoUltima = 0x9F9EF0;
constexpr Color RellenoServicio = 0xFFCA95;
constexpr Color ColorNegativo = 0x0000FF; // red

// Arrows of this view are in plain pixels: only the texts follow the zoom and the text
// factor.
void FlechaVertical(Lienzo& lienzo, double x, double y0, bool haciaArriba) {
    if (haciaArriba) {
        PoligonoEn(lienzo, {{x, y0}, {x - 6, y0 + 6}, {x + 6, y0 + 6}});
        RectanguloEn(lienzo, x - 2, y0 + 6, x + 2, y0 + 30);
    } else {
        RectanguloEn(lienzo, x - 2, y0, x + 2, y0 + 21);
        // Base corners at 19 and 21, not level: kept, users know the picture so.
        PoligonoEn(lienzo, {{x, y0 + 25}, {x - 6, y0 + 19}, {x + 6, y0 + 21}});
    }
}

// Horizontal arrow pointing at the joint: from the left (haciaDerecha) or from the right.
void FlechaHorizontal(Lienzo& lienzo, double x, double y0, bool haciaDerecha) {
    const double s = haciaDerecha ? -1 : 1;
    PoligonoEn(lienzo, {{x + s * 5, y0}, {x + s * 11, y0 - 6}, {x + s * 11, y0 + 6}});
    RectanguloEn(lienzo, x + s * 11, y0 - 2, x + s * 35, y0 + 2);
}

struct Medida {
    double w = 0, e = 0;
};

Medida Medir(Lienzo& lienzo, const EstadoPloteos& v, const std::string& texto) {
    FijarLetra(lienzo, 8, v.FactorSimbolo * v.FactorLetra);
    return {lienzo.TextWidth(texto), lienzo.TextHeight(texto)};
}

// Caption of a row at the first joint, and "kgf" under it.
void Rotulo(Lienzo& lienzo, const EstadoPloteos& v, double longTotal, const std::string& texto,
            double sangria, double y0) {
    const double k = v.FactorSimbolo;
    const double izquierda = v.OrigenX - (longTotal / 2) * v.Escala;
    Medida m = Medir(lienzo, v, texto);
    TextoRotado(lienzo, texto, izquierda - m.e - sangria * k, y0 + m.w, 90);
    m = Medir(lienzo, v, "kgf");
    TextoRotado(lienzo, "kgf", izquierda - m.e - 23 * k, y0 + m.w + 0.4 * v.Escala, 90);
}

// One reaction row at joint j: vertical value `rv`, horizontal `rh` (already at the row's
// level); `hayV`, `arriba`, `hayH` are the row's own tests.
void Reacciones(Lienzo& lienzo, const EstadoPloteos& v, double x, double y0, double rv, double rh,
                bool hayV, bool arriba, bool hayH, bool haciaDerecha) {
    const double k = v.FactorSimbolo;
    if (hayV) {
        FlechaVertical(lienzo, x, y0, arriba);
        const std::string texto = Formato(rv, "0");
        const Medida m = Medir(lienzo, v, texto);
        TextoRotado(lienzo, texto, x + m.e / 2 - 2 * k, y0 + m.w + 8 * k, 90);
    }
    if (hayH) {
        FlechaHorizontal(lienzo, x, y0, haciaDerecha);
        const std::string texto = Formato(rh, "0");
        const Medida m = Medir(lienzo, v, texto);
        TextoRotado(lienzo, texto, haciaDerecha ? x - m.w - 18 * k : x + 18 * k, y0 + 4 * k, 0);
    }
}

void Desplazamientos(Lienzo& lienzo, const EstadoPloteos& v, const ResultadosViga& r, long j,
                     double x, double y0) {
    const Color normal = lienzo.ForeColor;
    const auto texto = [&](const std::string& rotulo, double valor, double xc, double yc) {
        lienzo.ForeColor = valor < 0 ? ColorNegativo : normal;
        TextoRotado(lienzo, rotulo, xc, yc, 90);
        lienzo.ForeColor = normal;
    };
    const std::string dy = "DY = " + Formato(r.DespY(j), "0.000000");
    const std::string dx = "DX = " + Formato(r.DespX(j), "0.000000");
    const std::string gr = "GR = " + Formato(r.GiroZ(j), "0.000000");
    const Medida m = Medir(lienzo, v, dy);
    texto(dy, r.DespY(j), x - m.e / 2, y0 + m.w);
    const Medida mx = Medir(lienzo, v, dx);
    texto(dx, r.DespX(j), x - 1.5 * mx.e, y0 + m.w);
    const Medida mg = Medir(lienzo, v, gr);
    texto(gr, r.GiroZ(j), x + mg.e / 2 + 1 * v.FactorSimbolo, y0 + m.w);
}

} // namespace

void PlotearReacciones(Lienzo& lienzo, EstadoPloteos& v, const ProyectoActual&,
                       const VigaActual& viga, const ResultadosViga& r) {
    if (v.EstacionesDiagrama == 0) v.EstacionesDiagrama = 10;
    const double k = v.FactorSimbolo;
    const double fm = viga.FMayoracion;
    lienzo.DrawMode = DrawModeCopiar;
    lienzo.FillStyle = RellenoSolido;
    lienzo.FillColor = RellenoUltima;
    for (long j = 1; j <= viga.NT + 1; ++j) {
        const double x = v.Escala * v.XPlot(j) + v.OrigenX;
        const double y0 = v.Escala * v.YPlot(j) + v.OrigenY + 75 * k;
        if (j == 1) Rotulo(lienzo, v, viga.LongTotal, "R(Última)", 55, y0);
        Reacciones(lienzo, v, x, y0, fm * r.ReacV(j), fm * r.ReacH(j), fm * r.ReacV(j) != 0,
                   RoundKorvel(r.ReacV(j), 0) * fm > 0, RoundKorvel(r.ReacH(j), 0) * fm != 0,
                   r.ReacH(j) > 0);
    }
    lienzo.FillStyle = RellenoTransparente;
    lienzo.FillColor = RellenoServicio;
    lienzo.FillStyle = RellenoSolido;
    for (long j = 1; j <= viga.NT + 1; ++j) {
        const double x = v.Escala * v.XPlot(j) + v.OrigenX;
        const double y0 = v.Escala * v.YPlot(j) + v.OrigenY + 135 * k;
        if (j == 1) Rotulo(lienzo, v, viga.LongTotal, "R(Servicio)", 43, y0);
        Reacciones(lienzo, v, x, y0, r.ReacV(j), r.ReacH(j), r.ReacV(j) != 0,
                   RoundKorvel(r.ReacV(j), 0) > 0, RoundKorvel(r.ReacH(j), 0) != 0, r.ReacH(j) > 0);
    }
    lienzo.FillStyle = RellenoTransparente;
    for (long j = 1; j <= viga.NT + 1; ++j) {
        const double x = v.Escala * v.XPlot(j) + v.OrigenX;
        Desplazamientos(lienzo, v, r, j, x, v.Escala * v.YPlot(j) + v.OrigenY + 195 * k);
    }
    lienzo.DrawMode = DrawModeCopiar;
    lienzo.FillStyle = RellenoTransparente;
}

} // namespace trevalo
