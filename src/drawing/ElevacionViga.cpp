#include "drawing/ElevacionViga.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "analysis/CorteMomentoTramo.h"
#include "drawing/Ploteos.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

// Colours, 0xBBGGRR.
constexpr Color FondoTramo = 0xF3DBCF;
constexpr Color FondoTramoMarcado = 0xB9ECFF;
constexpr Color FondoApoyo = 0xAAC6FF;
constexpr Color FondoRodillo = 0x8080FF;
constexpr Color FondoResorte = 0xFFFFFF;
constexpr Color FondoCargaW1 = 0xCFCFFA;
constexpr Color FondoCargaW3 = 0xDCE1D0;
constexpr Color PlumaCargaW3 = 0x376F00;
constexpr Color FondoCargaW4 = 0xB9ECFF;
constexpr Color PlumaCargaW4 = 0x005555;
constexpr Color FondoCargaW5 = 0xCDE4DC;
constexpr Color PlumaCargaW5 = 0x6C4900;
constexpr Color FondoPuntual = 0x9F9EF0;
constexpr Color FondoBurbuja = 0xD6F4FF;
constexpr Color Rojo = 0x0000FF;

struct Punto {
    double x, y;
};

// One redraw of the elevation: the canvas, the state and the beam, with the helpers that
// turn plot positions into pixels. k is FactorSimbolo.
class Elevacion {
  public:
    Elevacion(Lienzo& lienzo, EstadoPloteos& estado, const VigaActual& viga)
        : l_(lienzo), e_(estado), v_(viga), k_(estado.FactorSimbolo), h_(CI(12 * k_)) {}

    void Tramos();
    void LineasApoyo();
    void LineaCotas();
    void LongitudesTramos();
    void Apoyos();
    void Resortes();
    void EtiquetasTipo();
    void CargasTramos(const ProyectoActual& proyecto);
    void BurbujasEjes();
    void CargasJuntas();
    void Titulo();
    void NumerosJuntas();

  private:
    double X(long j) const { return XJuntaPantalla(e_, j); }
    double Y(long j) const { return YJuntaPantalla(e_, j); }
    double Ancho(long i) const { return e_.XPlot(i + 1) - e_.XPlot(i); }
    bool SinAncho(long i) const { return Ancho(i) == 0.0; }
    // Screen point of the span's line at `p` metres of plot width from its left joint.
    double XEn(long i, double p) const { return e_.Escala * (e_.XPlot(i) + p) + e_.OrigenX; }
    double YEn(long i, double p) const {
        return e_.Escala * (e_.YPlot(i) - std::tan(e_.AnguloTramo) * p) + e_.OrigenY;
    }
    Punto Medio(long i) const { return {XEn(i, Ancho(i) / 2), YEn(i, Ancho(i) / 2)}; }
    double Sen() const { return std::sin(e_.AnguloTramo); }
    double Cos() const { return std::cos(e_.AnguloTramo); }

    void Linea(double x1, double y1, double x2, double y2) {
        l_.MoveToEx(CI(x1), CI(y1));
        l_.LineTo(CI(x2), CI(y2));
    }
    void Relleno(Color fondo, std::initializer_list<Punto> puntos) {
        std::vector<PuntoApi> p;
        for (const auto& q : puntos) p.push_back({CI(q.x), CI(q.y)});
        l_.FillColor = TraducirColor(fondo);
        l_.FillStyle = RellenoSolido;
        l_.Polygon(p);
        l_.FillStyle = RellenoTransparente;
    }
    void Elipse(Color fondo, double x1, double y1, double x2, double y2) {
        l_.FillColor = TraducirColor(fondo);
        l_.FillStyle = RellenoSolido;
        l_.Ellipse(CI(x1), CI(y1), CI(x2), CI(y2));
        l_.FillStyle = RellenoTransparente;
    }
    void Letra(double base) { FijarLetra(l_, base, k_); }
    // Text turned with the span, its centre on (cx, cy).
    void EtiquetaCentrada(const std::string& texto, double cx, double cy) {
        const double w = l_.TextWidth(texto), e = l_.TextHeight(texto);
        const auto p = EsquinaTextoCentrado(cx, cy, w, e, e_.AnguloTramo);
        TextoRotado(l_, texto, p.x, p.y, e_.AnguloGrados);
    }

    void PesoPropio(long i, const ProyectoActual& proyecto);
    void CargaW1(long i);
    void CargasW3(long i, double pila);
    void CargaW4(long i, double pila);
    void CargaW5(long i, double pila);
    void CargasTriangulares(long i, double pila, bool alDerecho);
    void CargasW8(long i, double pila);
    void CargasPuntuales(long i);
    void Momento(double x, double y, double valor);
    void FuerzaVertical(double x, double y, double valor, double ajuste);
    void FuerzaHorizontal(double x, double y, double valor, double ajuste);
    double AlturaTitulo() const;

    Lienzo& l_;
    EstadoPloteos& e_;
    const VigaActual& v_;
    double k_;
    long h_; // half depth of the band, whole pixels
};

// Puts a pen on the canvas for the life of a block and takes it back at the end.
class PlumaDeBloque {
  public:
    PlumaDeBloque(Lienzo& lienzo, Pluma pluma)
        : lienzo_(lienzo), anterior_(lienzo.SelectObject(pluma)) {}
    ~PlumaDeBloque() { lienzo_.SelectObject(anterior_); }
    PlumaDeBloque(const PlumaDeBloque&) = delete;
    PlumaDeBloque& operator=(const PlumaDeBloque&) = delete;

  private:
    Lienzo& lienzo_;
    Pluma anterior_;
};

std::string Entero(double valor) {
    return Formato(valor, "0");
}

std::string Recortado(const std::string& s) {
    const auto a = s.find_first_not_of(' ');
    if (a == std::string::npos) return "";
    return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

void Elevacion::Tramos() {
    for (long i = 1; i <= v_.NT; ++i) {
        if (SinAncho(i)) continue;
        Relleno(v_.TramoMarcado(i) ? FondoTramoMarcado : FondoTramo, {{X(i), Y(i) + h_},
                                                                      {X(i + 1), Y(i + 1) + h_},
                                                                      {X(i + 1), Y(i + 1) - h_},
                                                                      {X(i), Y(i) - h_}});
        if (v_.OpcionConcreto == 1) { // the flanges of a steel beam
            Linea(X(i), Y(i) + 8 * k_, X(i + 1), Y(i + 1) + 8 * k_);
            Linea(X(i), Y(i) - 8 * k_, X(i + 1), Y(i + 1) - 8 * k_);
        }
    }
}

void Elevacion::LineasApoyo() {
    const PlumaDeBloque pluma(l_, {EstiloGuionPuntoPunto, 1, Rojo});
    const double b = e_.BaseY;
    for (long j = 1; j <= v_.NT + 1; ++j) {
        const double x = X(j), y = Y(j) + h_;
        if (e_.VerDiseno) {
            Linea(x, y, x, b + 45 * k_);
            Linea(x, y, x, b - 85 * k_);
            Linea(x, y + 75 * k_, x, b + 380 * k_ + e_.ExtraDiseno);
        } else if (e_.VerReacciones) {
            Linea(x, y, x, b + 75 * k_);
            Linea(x, y, x, b - 85 * k_);
        } else {
            Linea(x, y, x, b + (e_.VerDiagramas ? 370 : 78) * k_);
        }
    }
}

void Elevacion::LineaCotas() {
    const PlumaDeBloque pluma(l_, {EstiloMarcoInterior, 1, Rojo});
    const double d = e_.BaseY + (e_.VerDiseno ? 35 : 55) * k_;
    Linea(X(1) - 8 * k_, d, X(v_.NT + 1) + 8 * k_, d);
    for (long j = 1; j <= v_.NT + 1; ++j)
        Linea(X(j) - 6 * k_, d + 6 * k_, X(j) + 6 * k_, d - 6 * k_);
}

void Elevacion::LongitudesTramos() {
    Letra(8);
    const double t = e_.BaseY + (e_.VerDiseno ? 44 : 49) * k_;
    for (long i = 1; i <= v_.NT; ++i) {
        if (SinAncho(i)) continue;
        // The plot's horizontal projection, which shows imposed displacements.
        const double xm = e_.Escala * (e_.XPlot(i) + e_.XPlot(i + 1)) / 2 + e_.OrigenX;
        l_.DrawTextA(Formato(Ancho(i), "0.00"),
                     {CI(xm - 30 * k_), CI(t - 30 * k_), CI(xm + 30 * k_), CI(t + 30 * k_)},
                     TextoCentrado);
    }
}

void Elevacion::Apoyos() {
    for (long n = 1; n <= v_.NJRest; ++n) {
        if (v_.R1(n) <= 0) continue;
        const double x = X(v_.R1(n)), y = Y(v_.R1(n)), yp = y + h_;
        switch (v_.Apoyo(n)) {
        case ApoyoFijo:
            Relleno(FondoApoyo,
                    {{x, yp}, {x - 12 * k_, yp + 12 * k_}, {x + 12 * k_, yp + 12 * k_}});
            break;
        case RodilloEnX: // the wheel keeps its size in plain pixels under zoom
            Elipse(FondoRodillo, x - 7, yp + 5, x + 8, yp + 18);
            Relleno(FondoApoyo,
                    {{x, yp}, {x - 10 * k_, yp + 10 * k_}, {x + 10 * k_, yp + 10 * k_}});
            break;
        case RodilloEnY:
            Elipse(FondoRodillo, x - 5, yp - 6, x - 18, yp + 8);
            Relleno(FondoApoyo,
                    {{x, yp}, {x - 10 * k_, yp - 10 * k_}, {x - 10 * k_, yp + 10 * k_}});
            break;
        case Empotramiento:
            Relleno(FondoApoyo, {{x - 4 * k_, y - 15 * k_},
                                 {x - 4 * k_, y + 16 * k_},
                                 {x + 4 * k_, y + 16 * k_},
                                 {x + 4 * k_, y - 15 * k_}});
            break;
        default:
            break;
        }
    }
}

void Elevacion::Resortes() {
    const double k = k_;
    for (long n = 1; n <= v_.NJRes; ++n) {
        if (v_.R10(n) <= 0) continue;
        const double x = X(v_.R10(n)), y = Y(v_.R10(n));
        if (v_.SV10(n) > 0) {
            Linea(x, y + 7 * k, x, y + 14 * k);
            for (double a : {14.0, 20.0, 26.0})
                Elipse(FondoResorte, x - 5 * k, y + a * k, x + 5 * k, y + (a + 6) * k);
            Linea(x - 9 * k, y + 32 * k, x + 10 * k, y + 32 * k);
        }
        if (v_.SH10(n) > 0) {
            Linea(x, y + 5 * k, x, y + 14 * k);
            for (double a : {3.0, -2.0, -7.0})
                l_.Ellipse(CI(x + (a - 6) * k), CI(y + 14 * k), CI(x + a * k), CI(y + 20 * k));
            Linea(x - 14 * k, y + 12 * k, x - 14 * k, y + 23 * k);
        }
        if (v_.SM10(n) > 0) {
            for (double a : {0.0, 2.0, 4.0})
                l_.Ellipse(CI(x - (2 + a) * k), CI(y + (14 - a) * k), CI(x + (4 + a) * k),
                           CI(y + (20 + a) * k));
        }
    }
}

void Elevacion::EtiquetasTipo() {
    l_.FontName = "Arial";
    const bool concreto = v_.OpcionConcreto == 0;
    for (long i = 1; i <= v_.NT; ++i) {
        if (SinAncho(i) || v_.VT(i) <= 0) continue;
        const long t = CI(v_.VT(i));
        std::string texto;
        if (concreto)
            texto = v_.B1(t) > 0 && v_.T1(t) > 0
                        ? Formato(v_.B1(t), "0.00") + "x" + Formato(v_.T1(t), "0.00")
                        : "0x0";
        else if (v_.B1(t) > 0)
            texto = v_.Designacion(t);
        FijarAnguloTramo(e_, i);
        Letra(8);
        // Below the band, at right angles to the span.
        const Punto m = Medio(i);
        const double desvio = (concreto ? 24 : 22) * k_;
        EtiquetaCentrada(texto, m.x + desvio * Sen(), m.y + 22 * k_ * Cos());
    }
}

void Elevacion::PesoPropio(long i, const ProyectoActual& proyecto) {
    if (!proyecto.PPV || v_.VT(i) <= 0) return;
    Letra(8);
    const Punto m = Medio(i);
    EtiquetaCentrada(Entero(PesoPropioTramo(proyecto, v_, static_cast<std::int16_t>(i))), m.x,
                     m.y + 1);
}

void Elevacion::CargaW1(long i) {
    const double alto = CI(40 * k_), pie = CI(16 * k_), altura = alto - pie;
    // Perpendicular loads have their top edge at right angles to the span.
    const bool normal = v_.Gravedad(i) != 0;
    const double dx = normal ? -(altura * Sen()) : 0, dy = normal ? (1 - Cos()) * altura : 0;
    Relleno(FondoCargaW1, {{X(i) + dx, Y(i) - alto + dy},
                           {X(i + 1) + dx, Y(i + 1) - alto + dy},
                           {X(i + 1), Y(i + 1) - pie},
                           {X(i), Y(i) - pie}});
    Letra(8);
    const Punto m = Medio(i);
    EtiquetaCentrada(Entero(v_.W1(i)), m.x - 26 * k_ * Sen(), m.y - 26 * k_ * Cos());
}

void Elevacion::CargasW3(long i, double pila) {
    const double alto = CI(40 * k_), pie = CI(16 * k_);
    for (long n = 1; n <= v_.CantW3(i); ++n) {
        const double a = v_.La3_(i, n), b = v_.Lb3_(i, n);
        Relleno(FondoCargaW3, {{XEn(i, a), YEn(i, a) - alto - pila},
                               {XEn(i, b), YEn(i, b) - alto - pila},
                               {XEn(i, b), YEn(i, b) - pie - pila},
                               {XEn(i, a), YEn(i, a) - pie - pila}});
        Letra(8);
        const double c = (a + b) / 2;
        EtiquetaCentrada(Entero(v_.W3_(i, n)), XEn(i, c), YEn(i, c) - (16 * k_ + pila + alto / 4));
    }
}

void Elevacion::CargaW4(long i, double pila) {
    const Punto m = Medio(i);
    Relleno(FondoCargaW4, {{X(i), Y(i) - 17 * k_ - pila},
                           {X(i + 1), Y(i + 1) - 17 * k_ - pila},
                           {m.x - 35 * k_ * Sen(), m.y - 55 * k_ + 35 * k_ * (1 - Cos()) - pila}});
    Letra(8);
    EtiquetaCentrada(Entero(v_.W4(i)), m.x - 35 * k_ * Sen(), m.y - 30 * k_ - pila);
}

void Elevacion::CargaW5(long i, double pila) {
    const double pie = 16 * k_, sube = 24 * k_;
    const double a = v_.la5(i), b = Ancho(i) - v_.la5(i);
    const double dx = -sube * Sen(), dy = (1 - Cos()) * sube;
    Relleno(FondoCargaW5, {{X(i), Y(i) - pie - pila},
                           {XEn(i, a) + dx, YEn(i, a) - pie - sube - pila + dy},
                           {XEn(i, b) + dx, YEn(i, b) - pie - sube - pila + dy},
                           {X(i + 1), Y(i + 1) - pie - pila}});
    Letra(8);
    const Punto m = Medio(i);
    EtiquetaCentrada(Entero(v_.W5(i)), m.x - 26 * k_ * Sen(), m.y - 26 * k_ * Cos() - pila);
}

// Right triangles: kind 6 highest at its right end Lb, kind 7 at its left end La.
void Elevacion::CargasTriangulares(long i, double pila, bool alDerecho) {
    const long cantidad = alDerecho ? v_.CantW6(i) : v_.CantW7(i);
    for (long n = 1; n <= cantidad; ++n) {
        const double a = alDerecho ? v_.La6_(i, n) : v_.La7_(i, n);
        const double b = alDerecho ? v_.Lb6_(i, n) : v_.Lb7_(i, n);
        const double valor = alDerecho ? v_.W6_(i, n) : v_.W7_(i, n);
        const double alto = alDerecho ? b : a;
        const double base = 16 * k_ + pila;
        // Kept: the apex's offset across the span is 35 plain pixels, not scaled.
        Relleno(FondoCargaW1, {{XEn(i, a), YEn(i, a) - base},
                               {XEn(i, b), YEn(i, b) - base},
                               {XEn(i, alto) - 35 * Sen(),
                                YEn(i, alto) - base - 35 * k_ + 35 * k_ * (1 - Cos())}});
        Letra(8);
        const std::string texto = Entero(valor);
        const double w = l_.TextWidth(texto);
        // Beside the tall side, moved toward the low end.
        const double cx = alDerecho ? XEn(i, b) - (w / 2 + 3) - 3 : XEn(i, a) + (w / 2 + 5) + 2;
        const double p = (cx - e_.OrigenX) / e_.Escala - e_.XPlot(i);
        EtiquetaCentrada(texto, cx, YEn(i, p) - base - 12 * k_);
    }
}

void Elevacion::CargasW8(long i, double pila) {
    const double base = 16 * k_ + pila;
    for (long n = 1; n <= v_.CantW8(i); ++n) {
        const double a = v_.La8_(i, n), b = v_.Lb8_(i, n);
        const long izq = v_.WIzq8_(i, n), der = v_.WDer8_(i, n);
        const long u = std::abs(izq), v = std::abs(der);
        // Three fixed shapes: the figure does not scale with the load.
        double altoA = 31, altoB = 31;
        if (der != izq) {
            altoA = v > u ? 36 : 48;
            altoB = v > u ? 46 : 36;
        }
        Relleno(FondoCargaW1, {{XEn(i, a), YEn(i, a) - base},
                               {XEn(i, b), YEn(i, b) - base},
                               {XEn(i, b), YEn(i, b) - pila - altoB * k_},
                               {XEn(i, a), YEn(i, a) - pila - altoA * k_}});
        Letra(8);
        if (der == izq) {
            const double c = (a + b) / 2;
            EtiquetaCentrada(Entero(izq), XEn(i, c), YEn(i, c) - pila - (16 + 31) / 2.0 * k_);
            continue;
        }
        // One upright label per end, inside the band's edges.
        const std::string ti = Entero(izq), td = Entero(der);
        const double e = l_.TextHeight(ti);
        TextoRotado(l_, ti, XEn(i, a) + 2 * k_, YEn(i, a) - base - 2 * k_, 90);
        TextoRotado(l_, td, XEn(i, b) - e - 2 * k_, YEn(i, b) - base - 2 * k_, 90);
    }
}

void Elevacion::CargasPuntuales(long i) {
    const double pila = (v_.W1(i) != 0 ? 34 : 6) * k_, k = k_;
    for (long n = 1; n <= v_.CantW2(i); ++n) {
        const double lp = v_.LP(i, n), valor = v_.P(i, n);
        const double px = XEn(i, lp);
        const double y0 = Y(i) - std::tan(e_.AnguloTramo) * lp * e_.Escala - pila;
        if (valor > 0) { // acting down
            Relleno(FondoPuntual, {{px - 2 * k, y0 - 45 * k},
                                   {px - 2 * k, y0 - 15 * k},
                                   {px + 2 * k, y0 - 15 * k},
                                   {px + 2 * k, y0 - 45 * k}});
            Relleno(FondoPuntual,
                    {{px, y0 - 9 * k}, {px + 6 * k, y0 - 15 * k}, {px - 6 * k, y0 - 15 * k}});
        } else {
            Relleno(FondoPuntual, {{px - 1 * k, y0 - 39 * k},
                                   {px - 1 * k, y0 - 9 * k},
                                   {px + 1 * k, y0 - 9 * k},
                                   {px + 1 * k, y0 - 39 * k}});
            Relleno(FondoPuntual,
                    {{px, y0 - 45 * k}, {px + 6 * k, y0 - 39 * k}, {px - 6 * k, y0 - 39 * k}});
        }
        Letra(8);
        const std::string texto = Entero(valor);
        const double t = l_.TextWidth(texto), e = l_.TextHeight(texto);
        TextoRotado(l_, texto, px - e / 2 + 0.8 * e, y0 - t - 0.9 * e, 90);
    }
}

void Elevacion::CargasTramos(const ProyectoActual& proyecto) {
    const Pluma negra{EstiloMarcoInterior, 1, ColorNegro};
    for (long i = 1; i <= v_.NT; ++i) {
        if (SinAncho(i)) continue;
        FijarAnguloTramo(e_, i);
        PesoPropio(i, proyecto);
        const bool w1 = v_.W1(i) != 0, w3 = v_.CantW3(i) > 0, w4 = v_.W4(i) != 0;
        const bool w5 = v_.W5(i) != 0, w67 = v_.CantW6(i) > 0 || v_.CantW7(i) > 0;
        // How far each kind is lifted by the kinds drawn before it on the span; the
        // amounts differ from kind to kind and are kept as they are.
        auto pila = [this](std::initializer_list<std::pair<bool, double>> partes) {
            double s = 0;
            for (const auto& [hay, cuanto] : partes)
                if (hay) s += cuanto * k_;
            return s;
        };
        if (w1) {
            const PlumaDeBloque pluma(l_, negra);
            CargaW1(i);
        }
        if (w3) {
            const PlumaDeBloque pluma(l_, {EstiloMarcoInterior, 1, PlumaCargaW3});
            CargasW3(i, pila({{w1, 27}}));
        }
        if (w4) {
            const PlumaDeBloque pluma(l_, {EstiloMarcoInterior, 1, PlumaCargaW4});
            CargaW4(i, pila({{w1, 28}, {w3, 28}, {w5, 28}}));
        }
        if (w5) {
            const PlumaDeBloque pluma(l_, {EstiloMarcoInterior, 1, PlumaCargaW5});
            CargaW5(i, pila({{w1, 28}, {w3, 28}}));
        }
        const double pila67 = pila({{w1, 28}, {w3, 32}, {w4, 40}, {w5, 20}});
        if (v_.CantW6(i) > 0) {
            const PlumaDeBloque pluma(l_, negra);
            CargasTriangulares(i, pila67, true);
        }
        if (v_.CantW7(i) > 0) {
            const PlumaDeBloque pluma(l_, negra);
            CargasTriangulares(i, pila67, false);
        }
        if (v_.CantW8(i) > 0) {
            const PlumaDeBloque pluma(l_, negra);
            CargasW8(i, pila({{w1, 38}, {w3, 27}, {w4, 40}, {w5, 24}, {w67, 27}}));
        }
        CargasPuntuales(i);
    }
}

void Elevacion::BurbujasEjes() {
    Letra(10);
    const double d = CI(l_.TextWidth("WW") + 4 * k_);
    const double c = e_.BaseY + (e_.VerDiseno || e_.VerReacciones ? -95 : 90) * k_;
    const PlumaDeBloque pluma(l_, {EstiloMarcoInterior, 1, ColorNegro});
    for (long j = 1; j <= v_.NT + 1; ++j) {
        const std::string nombre = Recortado(v_.NombreEje(j));
        if (nombre.empty()) continue;
        const double x = X(j);
        Elipse(FondoBurbuja, x + 1 - d / 2, c - d / 2, x + 1 + d / 2, c + d / 2);
        l_.DrawTextA(nombre, {CI(x - 19 * k_), CI(c - 20 * k_), CI(x + 21 * k_), CI(c + 20 * k_)},
                     TextoCentrado);
    }
}

void Elevacion::Momento(double x, double y, double valor) {
    const double k = k_, ya = y - 26 * k;
    // Two half circles a pixel apart make a thicker line.
    for (double lado : {-1.0, 1.0}) {
        l_.MoveToEx(CI(x + 14 * k), CI(ya));
        l_.AngleArc(CI(x + lado), CI(ya), CI(14 * k), 0.0, 180.0);
    }
    if (valor < 0) {
        Relleno(FondoPuntual, {{x - 14 * k, y - 20 * k}, {x - 8 * k, ya}, {x - 20 * k, ya}});
    } else {
        Relleno(FondoPuntual, {{x + 14 * k, y - 20 * k}, {x + 20 * k, ya}, {x + 8 * k, ya}});
        Linea(x - 15 * k, ya, x - 13 * k, ya);
    }
    Letra(8);
    const std::string texto = Entero(valor);
    const double w = l_.TextWidth(texto), e = l_.TextHeight(texto);
    const double cx = x + (valor < 0 ? -28 : 28) * k;
    TextoRotado(l_, texto, cx - w / 2, y - 50 * k - e / 2, 0);
}

void Elevacion::FuerzaVertical(double x, double y, double valor, double ajuste) {
    const double k = k_, yb = y + ajuste;
    if (valor > 0) {
        Relleno(FondoPuntual,
                {{x, yb - 36 * k}, {x + 6 * k, yb - 42 * k}, {x - 6 * k, yb - 42 * k}});
        Relleno(FondoPuntual, {{x - 2 * k, yb - 42 * k},
                               {x - 2 * k, yb - 60 * k},
                               {x + 2 * k, yb - 60 * k},
                               {x + 2 * k, yb - 42 * k}});
    } else {
        Relleno(FondoPuntual,
                {{x, yb - 60 * k}, {x + 6 * k, yb - 54 * k}, {x - 6 * k, yb - 54 * k}});
        Relleno(FondoPuntual, {{x - 2 * k, yb - 36 * k},
                               {x - 2 * k, yb - 54 * k},
                               {x + 2 * k, yb - 54 * k},
                               {x + 2 * k, yb - 36 * k}});
    }
    Letra(8);
    const std::string texto = Entero(valor);
    const double t = l_.TextWidth(texto), e = l_.TextHeight(texto);
    // Upright, beside the shaft, as the point loads' labels.
    TextoRotado(l_, texto, x + 0.3 * e + 2 * k, yb - 36 * k - t, 90);
}

void Elevacion::FuerzaHorizontal(double x, double y, double valor, double ajuste) {
    const double k = k_, ya = y - 18 * k + ajuste;
    // Positive acts toward decreasing x: the arrow on the left of the joint, pointing left;
    // a negative one on the right, pointing right.
    const double s = valor > 0 ? -1 : 1;
    Relleno(FondoPuntual,
            {{x + s * 60 * k, ya}, {x + s * 54 * k, ya - 6 * k}, {x + s * 54 * k, ya + 6 * k}});
    Relleno(FondoPuntual, {{x + s * 36 * k, ya - 2 * k},
                           {x + s * 54 * k, ya - 2 * k},
                           {x + s * 54 * k, ya + 2 * k},
                           {x + s * 36 * k, ya + 2 * k}});
    Letra(8);
    const std::string texto = Entero(valor);
    const double w = l_.TextWidth(texto), e = l_.TextHeight(texto);
    TextoRotado(l_, texto, valor > 0 ? x - 36 * k - w : x + 36 * k, y - 24 * k - e + ajuste, 0);
}

void Elevacion::CargasJuntas() {
    const double f = CI((e_.VerJuntas ? 16 : 22) * k_);
    const double levante = CI(-2 * k_);
    for (long n = 1; n <= v_.NAcc; ++n) {
        if (v_.R2(n) <= 0) continue;
        const double x = X(v_.R2(n)), y = Y(v_.R2(n));
        if (v_.QC1(n) != 0) Momento(x, y, v_.QC1(n));
        if (v_.QC2(n) != 0) FuerzaVertical(x, y, v_.QC2(n), levante + f);
        if (v_.QC3(n) != 0) FuerzaHorizontal(x, y, v_.QC3(n), levante + f);
    }
}

double Elevacion::AlturaTitulo() const {
    if (e_.VerDiagramas) return 370 * k_;
    if (e_.VerDiseno) return 368 * k_ + e_.ExtraDiseno;
    if (e_.VerReacciones) return 300 * k_ + e_.ExtraDiseno;
    return 120 * k_;
}

void Elevacion::Titulo() {
    l_.DrawMode = DrawModeCopiar;
    l_.FillStyle = RellenoTransparente;
    l_.FontName = "Tahoma";
    l_.FontBold = true;
    l_.FontUnderline = true;
    Letra(11);
    const std::string& nombre = v_.NombreVigaActual;
    const double w = l_.TextWidth(nombre), e = l_.TextHeight(nombre);
    const double t = e_.BaseY + AlturaTitulo();
    l_.DrawTextA(nombre, {CI(X(1) + 4 * k_), CI(t), CI(X(1) + w + 6 * k_), CI(t + e)},
                 TextoIzquierda);
    l_.FontBold = false;
    l_.FontUnderline = false;
    l_.FontSize = 8;
}

void Elevacion::NumerosJuntas() {
    const PlumaDeBloque pluma(l_, {EstiloSolido, 1, ColorNegro});
    for (long j = 1; j <= v_.NT + 1; ++j) {
        Letra(8);
        const double w = l_.TextWidth("WW");
        const double x = X(j), y = Y(j), r = w / 2 + 4 * k_;
        Elipse(FondoBurbuja, x - r, y - r, x + r, y + r);
        const std::string numero = std::to_string(j);
        TextoRotado(l_, numero, x - l_.TextWidth(numero) / 2, y - l_.TextHeight(numero) / 2, 0);
    }
}

} // namespace

void PlotearElevacion(Lienzo& lienzo, EstadoPloteos& estado, const ProyectoActual& proyecto,
                      const VigaActual& viga) {
    // The design sheet of a concrete beam grows in a report picture, up to 160 pixels.
    estado.ExtraDiseno =
        estado.EnPantalla || viga.OpcionConcreto != 0 ? 0.0 : std::min(5.0 * estado.Escala, 160.0);
    Elevacion e(lienzo, estado, viga);
    e.Tramos();
    e.LineasApoyo();
    e.LineaCotas();
    e.LongitudesTramos();
    e.Apoyos();
    e.Resortes();
    e.EtiquetasTipo();
    e.CargasTramos(proyecto);
    e.BurbujasEjes();
    e.CargasJuntas();
}

void PlotearTitulo(Lienzo& lienzo, EstadoPloteos& estado, const VigaActual& viga) {
    Elevacion(lienzo, estado, viga).Titulo();
}

void PlotearNumerosJuntas(Lienzo& lienzo, EstadoPloteos& estado, const VigaActual& viga) {
    Elevacion(lienzo, estado, viga).NumerosJuntas();
}

} // namespace trevalo
