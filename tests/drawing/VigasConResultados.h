#pragma once
// Beams with results worked out by hand (classic beam formulas), so that the result views can
// be checked without running the analysis, on a fixed transform: Escala 100 pixels per metre,
// zoom 1, origin (500, 200).

#include <algorithm>
#include <string>
#include <vector>

#include "comun/Vigas.h"
#include "drawing/EstadoPloteos.h"
#include "drawing/GeometriaPlot.h"
#include "drawing/LienzoGrabador.h"

namespace trevalo::prueba {

struct CasoViga {
    ProyectoActual proyecto;
    VigaActual viga;
    ResultadosViga r;
    EstadoPloteos estado;
};

// Spans of equal length `L` under a uniform load `w` (kgf/m), no own weight, load factor f.
// One span: simply supported. Two spans: continuous over the middle support
// (support moment -w L^2 / 8, end shears 3wL/8 and 5wL/8).
inline CasoViga VigaUniforme(int tramos, double L, int w, double f) {
    CasoViga c;
    c.proyecto.PPV = false;
    c.viga = VigaDeTramos(std::vector<double>(static_cast<std::size_t>(tramos), L));
    c.viga.FMayoracion = f;
    for (long i = 1; i <= tramos; ++i) {
        c.viga.W1(i) = w;
        c.viga.FMayorTramo(i) = f;
    }
    const long nj = tramos + 1;
    for (auto* a : {&c.r.MomI, &c.r.MomJ, &c.r.CorI, &c.r.CorJ}) a->Redim(tramos);
    for (auto* a : {&c.r.ReacV, &c.r.ReacH, &c.r.ReacM, &c.r.DespX, &c.r.DespY, &c.r.GiroZ})
        a->Redim(nj);
    c.r.NJuntas = static_cast<std::int16_t>(nj);
    const double wl = w * L;
    if (tramos == 1) {
        c.r.CorI(1) = c.r.CorJ(1) = wl / 2;
        c.r.ReacV(1) = c.r.ReacV(2) = wl / 2;
    } else {
        c.r.CorI(1) = c.r.CorJ(2) = 3 * wl / 8;
        c.r.CorJ(1) = c.r.CorI(2) = 5 * wl / 8;
        c.r.MomJ(1) = c.r.MomI(2) = -wl * L / 8;
        c.r.ReacV(1) = c.r.ReacV(3) = 3 * wl / 8;
        c.r.ReacV(2) = 10 * wl / 8;
    }
    GeometriaPlot(c.viga, c.estado);
    c.estado.Escala = 100;
    c.estado.EscalaInversa = 0.01;
    c.estado.FactorSimbolo = 1;
    c.estado.OrigenX = 500;
    c.estado.OrigenY = c.estado.BaseY = 200;
    return c;
}

// Texts written, in order, and how often one occurs.
inline long Veces(const LienzoGrabador& l, const std::string& texto) {
    const auto t = l.Textos();
    return std::count(t.begin(), t.end(), texto);
}

inline std::vector<OperacionGrabada> Poligonos(const LienzoGrabador& l) {
    return l.DelTipo(TipoOperacion::Poligono);
}

} // namespace trevalo::prueba
