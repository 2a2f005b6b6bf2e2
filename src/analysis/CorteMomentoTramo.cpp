#include "analysis/CorteMomentoTramo.h"

#include "analysis/FuerzasEmpotramiento.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

// Running sums of the loads to the left of the point: SM their moment about it, SV their
// sum. Every intensity is the part across the bar (w x c), never rounded.
struct Sumas {
    double SM = 0;
    double SV = 0;
};

void Uniforme(double q, double x, Sumas& s) {
    s.SM = q * (x * x) / 2;
    s.SV = q * x;
}

void Puntual(double q, double a, double x, Sumas& s) {
    if (x >= a) {
        s.SM += q * (x - a);
        s.SV += q;
    }
}

void Parcial(double q, double a, double b, double x, Sumas& s) {
    if (a < x && x <= b) {
        s.SM += q * ((x - a) * (x - a)) / 2;
        s.SV += q * (x - a);
    } else if (x > b) {
        const double e = b - a;
        s.SM += q * e * (x - (a + b) / 2);
        s.SV += q * e;
    }
}

void Triangular(double q, double L, double x, Sumas& s) {
    if (x <= L / 2) {
        const double g = 2 * q * x / L;
        s.SM += (g * x / 2) * (x / 3);
        s.SV += g * x / 2;
    } else {
        const double y = x - L / 2;
        const double g = 2 * y * q / L;
        const double h = q - g;
        s.SM += (q * L / 4) * (L / 6 + y) + (y * g / 2) * (2 * y / 3) + y * y * h / 2;
        s.SV += q * L / 4 + y * g / 2 + h * y;
    }
}

void Trapecio1(double q, double a, double L, double x, Sumas& s) {
    if (x <= a) {
        // With no rising part (a = 0) only x = 0 falls here, where nothing lies to the left.
        if (a == 0) return;
        const double g = q * x / a;
        s.SM += (g * x / 2) * (x / 3);
        s.SV += g * x / 2;
    } else if (x <= L - a) {
        const double y = x - a;
        s.SM += (q * a / 2) * (a / 3 + y) + y * y * q / 2;
        s.SV += q * a / 2 + q * y;
    } else {
        const double y = x - (L - a);
        const double e = L - 2 * a;
        const double g = q * y / a;
        const double h = q - g;
        s.SM += (q * a / 2) * (a / 3 + e + y) + q * e * (e / 2 + y) + (g * y / 2) * (2 * y / 3) +
                y * y * h / 2;
        s.SV += q * a / 2 + q * e + g * y / 2 + h * y;
    }
}

void TriangularDerecha(double q, double a, double b, double x, Sumas& s) {
    const double e = b - a;
    if (a < x && x <= b) {
        const double y = x - a;
        const double g = q * y / e;
        s.SM += (g * y / 2) * (y / 3);
        s.SV += g * y / 2;
    } else if (x > b) {
        const double y = x - b;
        s.SM += (q * e / 2) * (e / 3 + y);
        s.SV += q * e / 2;
    }
}

void TriangularIzquierda(double q, double a, double b, double x, Sumas& s) {
    const double e = b - a;
    if (a < x && x <= b) {
        const double y = x - a;
        const double g = q * y / e;
        const double h = q - g;
        s.SM += (g * y / 2) * (2 * y / 3) + y * y * h / 2;
        s.SV += g * y / 2 + h * y;
    } else if (x > b) {
        const double y = x - b;
        s.SM += (q * e / 2) * (2 * e / 3 + y);
        s.SV += q * e / 2;
    }
}

void Trapecio2(double qi, double qd, double a, double b, double x, Sumas& s) {
    const double e = b - a;
    if (a < x && x <= b) {
        const double y = x - a;
        if (qd > qi) {
            const double d = qd - qi;
            const double g = d * y / e;
            s.SM += (g * y / 2) * (y / 3) + y * y * qi / 2;
            s.SV += g * y / 2 + qi * y;
        } else if (qd < qi) {
            const double d = qi - qd;
            const double g = d * y / e;
            const double h = d - g;
            s.SM += (g * y / 2) * (2 * y / 3) + y * y * h / 2 + y * y * qd / 2;
            s.SV += g * y / 2 + h * y + qd * y;
        } else {
            s.SM += y * y * qd / 2;
            s.SV += qd * y;
        }
    } else if (x > b) {
        const double y = x - b;
        if (qd > qi) {
            const double d = qd - qi;
            s.SM += (d * e / 2) * (e / 3 + y) + qi * e * (e / 2 + y);
            s.SV += d * e / 2 + qi * e;
        } else if (qd < qi) {
            const double d = qi - qd;
            s.SM += (d * e / 2) * (2 * e / 3 + y) + qd * e * (e / 2 + y);
            s.SV += d * e / 2 + qd * e;
        } else {
            s.SM += qd * e * (e / 2 + y);
            s.SV += qd * e;
        }
    }
}

} // namespace

std::int32_t PesoPropioTramo(const ProyectoActual& proyecto, const VigaActual& v, std::int16_t t) {
    if (!proyecto.PPV) return 0;
    const long tipo = CI(v.VT(t));
    if (v.OpcionConcreto == 0)
        return static_cast<std::int32_t>(CI(v.B1(tipo) * v.T1(tipo) * proyecto.PesoConcreto));
    return static_cast<std::int32_t>(CI(proyecto.PesoAcero * v.B1(tipo) / 10000));
}

void CorteMomentoTramo(const VigaActual& v, const ResultadosViga& r, std::int16_t t,
                       std::int32_t Wp, double L, double x, double c, double /*s*/, double& M,
                       double& V) {
    Sumas s;
    const double w1 = static_cast<double>(v.W1(t)) + Wp;
    if (w1 != 0) Uniforme(v.Gravedad(t) == 0 ? w1 * c : w1, x, s);
    for (long k = 1; k <= v.CantW2(t); ++k) Puntual(v.P(t, k) * c, Dividir(v.LP(t, k), c), x, s);
    for (long k = 1; k <= v.CantW3(t); ++k)
        Parcial(v.W3_(t, k) * c, Dividir(v.La3_(t, k), c), Dividir(v.Lb3_(t, k), c), x, s);
    if (v.W4(t) != 0) Triangular(v.W4(t) * c, L, x, s);
    if (v.W5(t) != 0) Trapecio1(v.W5(t) * c, Dividir(v.la5(t), c), L, x, s);
    for (long k = 1; k <= v.CantW6(t); ++k)
        TriangularDerecha(v.W6_(t, k) * c, Dividir(v.La6_(t, k), c), Dividir(v.Lb6_(t, k), c), x,
                          s);
    for (long k = 1; k <= v.CantW7(t); ++k)
        TriangularIzquierda(v.W7_(t, k) * c, Dividir(v.La7_(t, k), c), Dividir(v.Lb7_(t, k), c), x,
                            s);
    for (long k = 1; k <= v.CantW8(t); ++k)
        Trapecio2(v.WIzq8_(t, k) * c, v.WDer8_(t, k) * c, Dividir(v.La8_(t, k), c),
                  Dividir(v.Lb8_(t, k), c), x, s);
    M = r.CorI(t) * x + r.MomI(t) - s.SM;
    V = r.CorI(t) - s.SV;
}

} // namespace trevalo
