#include "analysis/FuerzasEmpotramiento.h"

#include <algorithm>

#include "analysis/CorteMomentoTramo.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

double Cuad(double x) {
    return x * x;
}

// Projection of a load on the bar: positions along the bar and the two intensities.
struct Tramo {
    double a; // start of the load along the bar
    double e; // loaded length along the bar
    double b; // from the end of the load to J along the bar
};

Tramo EnBarra(double xa, double xb, double c, double L) {
    const double a = Dividir(xa, c);
    const double e = Dividir(xb - xa, c);
    const double b = L - Dividir(xb, c);
    return {a, e, b};
}

// Adds one load's own end moments and the shears and axial forces that go with them.
void SumarMomentos(double MIp, double MJp, double VIp, double VJp, double NIp, double NJp, double L,
                   FuerzasExtremos& f) {
    f.MI += MIp;
    f.MJ += MJp;
    f.VI += VIp - (MJp - MIp) / L;
    f.VJ += VJp + (MJp - MIp) / L;
    f.NI += NIp;
    f.NJ += NJp;
}

// Intensities of a triangular load across and along the bar, as whole kgf/m.
void IntensidadesRedondeadas(double w, double s, double c, double& Q, double& R) {
    Q = static_cast<double>(static_cast<std::int32_t>(CI(w * c)));
    R = static_cast<double>(static_cast<std::int32_t>(CI(w * s)));
}

std::int32_t SumaEntera(std::int64_t a, std::int64_t b) {
    const std::int64_t suma = a + b;
    if (suma < INT32_MIN || suma > INT32_MAX) throw ErrorTrevalo::Desbordamiento();
    return static_cast<std::int32_t>(suma);
}

} // namespace

double Dividir(double n, double d) {
    if (d == 0) throw ErrorTrevalo::DivisionPorCero();
    return n / d;
}

void FEUniforme(double w, std::uint8_t gravedad, double s, double c, double L, FuerzasExtremos& f) {
    double q = w;
    double r = 0;
    if (gravedad == 0) {
        q = w * c;
        r = w * s;
    }
    f.MI = Cuad(L) * q / 12;
    f.MJ = f.MI;
    f.VI = q * L / 2;
    f.VJ = f.VI;
    f.NI = r * L / 2;
    f.NJ = f.NI;
}

void FEPuntual(double P, double x, double s, double c, double L, FuerzasExtremos& f) {
    const double Pq = P * c;
    const double Pr = P * s;
    const double a = Dividir(x, c);
    const double b = L - Dividir(x, c);
    const double MIp = Pq * a * Cuad(b) / Cuad(L);
    const double MJp = Pq * Cuad(a) * b / Cuad(L);
    SumarMomentos(MIp, MJp, Pq * b / L, Pq * a / L, Pr * b / L, Pr * a / L, L, f);
}

void FEParcial(double w, double xa, double xb, double s, double c, double L, FuerzasExtremos& f) {
    const double q = w * c;
    const double r = w * s;
    const auto [a, e, b] = EnBarra(xa, xb, c, L);
    const double m = e / 2 + a;
    const double n = e / 2 + b;
    const double k = q * e / (12 * Cuad(L));
    const double MIp = k * (Cuad(e) * (L - 3 * n) + 12 * m * Cuad(n));
    const double MJp = k * (Cuad(e) * (L - 3 * m) + 12 * n * Cuad(m));
    SumarMomentos(MIp, MJp, q * e * n / L, q * e * m / L, r * e * n / L, r * e * m / L, L, f);
}

void FETriangularDerecha(double w, double xa, double xb, double s, double c, double L,
                         FuerzasExtremos& f) {
    double Q, R;
    IntensidadesRedondeadas(w, s, c, Q, R);
    auto [a, e, b] = EnBarra(xa, xb, c, L);
    if (b < 0) b = 0;
    const double k = Q * e / (60 * Cuad(L));
    const double MIp =
        k * (Cuad(e) * (10 * b + 5 * a + 2 * e) + 10 * Cuad(b) * (3 * a + 2 * e) + 20 * a * b * e);
    const double MJp =
        k * (Cuad(e) * (15 * b + 10 * a + 3 * e) + 10 * Cuad(a) * (3 * b + e) + 40 * a * b * e);
    SumarMomentos(MIp, MJp, (Q * e / 2) * (e / 3 + b) / L, (Q * e / 2) * (2 * e / 3 + a) / L,
                  (R * e / 2) * (e / 3 + b) / L, (R * e / 2) * (2 * e / 3 + a) / L, L, f);
}

void FETriangularIzquierda(double w, double xa, double xb, double s, double c, double L,
                           FuerzasExtremos& f) {
    double Q, R;
    IntensidadesRedondeadas(w, s, c, Q, R);
    auto [a, e, b] = EnBarra(xa, xb, c, L);
    if (b < 0) b = 0;
    const double k = Q * e / (60 * Cuad(L));
    const double MIp =
        k * (Cuad(e) * (15 * a + 10 * b + 3 * e) + 10 * Cuad(b) * (3 * a + e) + 40 * a * b * e);
    const double MJp =
        k * (Cuad(e) * (10 * a + 5 * b + 2 * e) + 10 * Cuad(a) * (3 * b + 2 * e) + 20 * a * b * e);
    SumarMomentos(MIp, MJp, (Q * e / 2) * (2 * e / 3 + b) / L, (Q * e / 2) * (e / 3 + a) / L,
                  (R * e / 2) * (2 * e / 3 + b) / L, (R * e / 2) * (e / 3 + a) / L, L, f);
}

void FETriangular(double w, double s, double c, double L, FuerzasExtremos& f) {
    FETriangularDerecha(w, 0, L / 2, s, c, L, f);
    FETriangularIzquierda(w, L / 2, L, s, c, L, f);
}

void FETrapecio1(double w, double la, double s, double c, double L, FuerzasExtremos& f) {
    const double H = L * c;
    FETriangularDerecha(w, 0, la, s, c, L, f);
    FEParcial(w, la, H - la, s, c, L, f);
    FETriangularIzquierda(w, H - la, H, s, c, L, f);
}

void FETrapecio2(double wi, double wd, double xa, double xb, double s, double c, double L,
                 FuerzasExtremos& f) {
    if (wd > wi) FETriangularDerecha(wd - wi, xa, xb, s, c, L, f);
    if (wd < wi) FETriangularIzquierda(wi - wd, xa, xb, s, c, L, f);
    FEParcial(std::min(wi, wd), xa, xb, s, c, L, f);
}

void FuerzasEmpotramientoTramo(const ProyectoActual& proyecto, const VigaActual& v, std::int16_t t,
                               double L, double s, double c, FuerzasExtremos& f) {
    if (L == 0) throw ErrorTrevalo::DivisionPorCero();
    const std::int32_t w1 = SumaEntera(v.W1(t), PesoPropioTramo(proyecto, v, t));
    if (w1 != 0) FEUniforme(w1, v.Gravedad(t), s, c, L, f);
    for (long k = 1; k <= v.CantW2(t); ++k) FEPuntual(v.P(t, k), v.LP(t, k), s, c, L, f);
    for (long k = 1; k <= v.CantW3(t); ++k)
        FEParcial(v.W3_(t, k), v.La3_(t, k), v.Lb3_(t, k), s, c, L, f);
    if (v.W4(t) != 0) FETriangular(v.W4(t), s, c, L, f);
    if (v.W5(t) != 0) FETrapecio1(v.W5(t), v.la5(t), s, c, L, f);
    for (long k = 1; k <= v.CantW6(t); ++k)
        FETriangularDerecha(v.W6_(t, k), v.La6_(t, k), v.Lb6_(t, k), s, c, L, f);
    for (long k = 1; k <= v.CantW7(t); ++k)
        FETriangularIzquierda(v.W7_(t, k), v.La7_(t, k), v.Lb7_(t, k), s, c, L, f);
    for (long k = 1; k <= v.CantW8(t); ++k)
        FETrapecio2(v.WIzq8_(t, k), v.WDer8_(t, k), v.La8_(t, k), v.Lb8_(t, k), s, c, L, f);
}

} // namespace trevalo
