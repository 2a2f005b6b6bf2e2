#include "profiles/DibujePerfil.h"

#include <algorithm>

#include "drawing/Ploteos.h"
#include "model/Redondeo.h"
#include "profiles/Aritmetica.h"

namespace trevalo {

namespace {

constexpr Color RellenoPerfil = 0xEFCBBA;
constexpr Color RojoCota = 255;
constexpr double Flecha = 5; // pixels, arrow heads and ticks

// Puts the canvas's pen back however the drawing ends.
class PlumaGuardada {
  public:
    PlumaGuardada(Lienzo& lienzo, const Pluma& pluma)
        : lienzo_(lienzo), anterior_(lienzo.SelectObject(pluma)) {}
    ~PlumaGuardada() { lienzo_.SelectObject(anterior_); }
    PlumaGuardada(const PlumaGuardada&) = delete;
    PlumaGuardada& operator=(const PlumaGuardada&) = delete;

  private:
    Lienzo& lienzo_;
    Pluma anterior_;
};

void Linea(Lienzo& l, double x1, double y1, double x2, double y2) {
    l.MoveToEx(CI(x1), CI(y1));
    l.LineTo(CI(x2), CI(y2));
}

// A vertical dimension line from y1 to y2 at x with arrow heads pointing at both ends.
void CotaVertical(Lienzo& l, double x, double y1, double y2) {
    Linea(l, x, y1, x, y2);
    for (auto [y, sentido] : {std::pair{y1, 1.0}, std::pair{y2, -1.0}}) {
        Linea(l, x, y, x - Flecha / 2, y + sentido * Flecha);
        Linea(l, x, y, x + Flecha / 2, y + sentido * Flecha);
    }
}

void CotaHorizontal(Lienzo& l, double y, double x1, double x2) {
    Linea(l, x1, y, x2, y);
    for (auto [x, sentido] : {std::pair{x1, 1.0}, std::pair{x2, -1.0}}) {
        Linea(l, x, y, x + sentido * Flecha, y - Flecha / 2);
        Linea(l, x, y, x + sentido * Flecha, y + Flecha / 2);
    }
}

struct Bosquejo {
    Lienzo& l;
    double d, tw, bf, tf, bf2, tf2;
    double e, cx, cy;

    double X(double mm) const { return cx + mm * e; }
    double Y(double mm) const { return cy + mm * e; }

    void Contorno() {
        const std::pair<double, double> p[] = {
            {-bf / 2, -d / 2},       {bf / 2, -d / 2},         {bf / 2, -(d / 2 - tf)},
            {tw / 2, -(d / 2 - tf)}, {tw / 2, d / 2 - tf2},    {bf2 / 2, d / 2 - tf2},
            {bf2 / 2, d / 2},        {-bf2 / 2, d / 2},        {-bf2 / 2, d / 2 - tf2},
            {-tw / 2, d / 2 - tf2},  {-tw / 2, -(d / 2 - tf)}, {-bf / 2, -(d / 2 - tf)}};
        std::vector<PuntoApi> puntos;
        for (const auto& [x, y] : p) puntos.push_back({CI(X(x)), CI(Y(y))});
        l.DrawMode = DrawModeCopiar;
        l.FillColor = RellenoPerfil;
        l.FillStyle = RellenoSolido;
        l.Polygon(puntos);
        l.DrawMode = DrawModeCopiar;
        l.FillStyle = RellenoTransparente;
    }

    void Cotas() {
        const double derecha = X(std::max(bf, bf2) / 2), arriba = Y(-d / 2), abajo = Y(d / 2);
        // Depth, right of the wider flange.
        Linea(l, derecha + 10, arriba, derecha + 30, arriba);
        Linea(l, derecha + 10, abajo, derecha + 30, abajo);
        CotaVertical(l, derecha + 20, arriba, abajo);
        // Flange widths, above and below.
        Linea(l, X(-bf / 2), arriba - 5, X(-bf / 2), arriba - 20);
        Linea(l, X(bf / 2), arriba - 5, X(bf / 2), arriba - 20);
        CotaHorizontal(l, arriba - 15, X(-bf / 2), X(bf / 2));
        Linea(l, X(-bf2 / 2), abajo + 5, X(-bf2 / 2), abajo + 20);
        Linea(l, X(bf2 / 2), abajo + 5, X(bf2 / 2), abajo + 20);
        CotaHorizontal(l, abajo + 15, X(-bf2 / 2), X(bf2 / 2));
        // Flange thicknesses, left of each flange's end.
        const double interiorSup = Y(-(d / 2 - tf)), interiorInf = Y(d / 2 - tf2);
        Linea(l, X(-bf / 2) - 4, interiorSup, X(-bf / 2) - 16, interiorSup);
        Linea(l, X(-bf / 2) - 4, arriba, X(-bf / 2) - 16, arriba);
        Linea(l, X(-bf / 2) - 10, arriba - 8, X(-bf / 2) - 10, interiorSup);
        Linea(l, X(-bf2 / 2) - 4, interiorInf, X(-bf2 / 2) - 16, interiorInf);
        Linea(l, X(-bf2 / 2) - 4, abajo, X(-bf2 / 2) - 16, abajo);
        Linea(l, X(-bf2 / 2) - 10, interiorInf, X(-bf2 / 2) - 10, abajo + 8);
    }

    void Etiquetas(char sep, char mil) {
        auto texto = [&](const char* nombre, double valor) {
            return std::string(nombre) + Formato(valor, "0.0", sep, mil);
        };
        std::string t = texto("d = ", d);
        TextoRotado(l, t, X(std::max(bf, bf2) / 2) + 20 - l.TextHeight(t), cy + l.TextWidth(t) / 2,
                    90);
        t = texto("bf = ", bf);
        TextoRotado(l, t, cx - l.TextWidth(t) / 2, Y(-d / 2) - 21 - l.TextHeight(t), 0);
        t = texto("bf = ", bf2);
        TextoRotado(l, t, cx - l.TextWidth(t) / 2, Y(d / 2) + 22, 0);
        // Kept: tw in millimetres is added to the pixel position.
        t = texto("tw = ", tw);
        TextoRotado(l, t, tw / 2 + cx + 3, cy + 4, 0);
        // Kept: both thickness labels stand at the upper flange's end.
        t = texto("tf = ", tf);
        TextoRotado(l, t, cx - (bf / 2) * e - l.TextWidth(t) / 2, cy - (d / 2 - tf) * e + 2, 0);
        t = texto("tf = ", tf2);
        TextoRotado(l, t, cx - (bf / 2) * e - l.TextWidth(t) / 2,
                    (d / 2 - tf) * e + cy - l.TextHeight(t), 0);
    }
};

} // namespace

bool DibujePerfil(Lienzo& lienzo, double d, double tw, double bf, double tf, double bf2, double tf2,
                  EtiquetasPerfil& etiquetas, char separadorDecimal, char separadorMiles) {
    try {
        const double e = std::min({Div(lienzo.Width() - 90, bf), Div(lienzo.Width() - 90, bf2),
                                   Div(lienzo.Height() - 90, d)});
        // Integer division of the rounded sizes, as the centre has always been taken.
        Bosquejo b{lienzo,
                   d,
                   tw,
                   bf,
                   tf,
                   bf2,
                   tf2,
                   e,
                   static_cast<double>(CI(lienzo.Width()) / 2),
                   static_cast<double>(CI(lienzo.Height()) / 2)};
        b.Contorno();
        {
            PlumaGuardada roja(lienzo, {EstiloSolido, 1, RojoCota});
            b.Cotas();
        }
        b.Etiquetas(separadorDecimal, separadorMiles);
        PropiedadesPerfil(d, tw, bf, tf, bf2, tf2, etiquetas, separadorDecimal, separadorMiles);
        return true;
    } catch (const ErrorTrevalo&) {
        lienzo.FillStyle = RellenoTransparente;
        return false;
    }
}

ResultadoCalculo CalcularPerfil(Lienzo& lienzo, double d, double tw, double bf, double tf,
                                EtiquetasPerfil& etiquetas, char separadorDecimal,
                                char separadorMiles) {
    if (!DimensionesCompletas(d, tw, bf, tf)) return ResultadoCalculo::SinCambio;
    lienzo.Cls();
    return DibujePerfil(lienzo, d, tw, bf, tf, bf, tf, etiquetas, separadorDecimal, separadorMiles)
               ? ResultadoCalculo::Calculado
               : ResultadoCalculo::FallaGeometria;
}

} // namespace trevalo
