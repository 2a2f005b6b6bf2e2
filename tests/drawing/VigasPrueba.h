#pragma once
// Beams built in code for the drawing tests.

#include <string>
#include <vector>

#include "model/Viga.h"

namespace trevalo::prueba {

// Spans of the given lengths, one concrete type 0.30 x 0.50 on every span, nothing else.
inline VigaActual VigaDeTramos(const std::vector<double>& longitudes) {
    VigaActual v;
    v.NombreVigaActual = "V-1";
    v.NT = static_cast<std::int16_t>(longitudes.size());
    ReiniciarArreglosViga(v);
    v.B1(1) = 0.3;
    v.T1(1) = 0.5;
    for (long i = 1; i <= v.NT; ++i) {
        v.LT(i) = longitudes[static_cast<std::size_t>(i - 1)];
        v.VT(i) = 1;
    }
    return v;
}

// Grows a joint table by one row: the count and every column; returns the new row.
template <typename Cuenta, typename... Columnas> long NuevaFila(Cuenta& n, Columnas&... c) {
    ++n;
    (c.RedimPreserve(n), ...);
    return n;
}

inline void AgregarApoyo(VigaActual& v, std::int16_t junta, std::int16_t apoyo) {
    const long n = NuevaFila(v.NJRest, v.R1, v.Apoyo);
    v.R1(n) = junta;
    v.Apoyo(n) = apoyo;
}

inline void AgregarResorte(VigaActual& v, std::int16_t junta, double sh, double sv, double sm) {
    const long n = NuevaFila(v.NJRes, v.R10, v.SH10, v.SV10, v.SM10);
    v.R10(n) = junta;
    v.SH10(n) = sh;
    v.SV10(n) = sv;
    v.SM10(n) = sm;
}

inline void AgregarAccion(VigaActual& v, std::int16_t junta, double m, double fv, double fh) {
    const long n = NuevaFila(v.NAcc, v.R2, v.QC1, v.QC2, v.QC3);
    v.R2(n) = junta;
    v.QC1(n) = m;
    v.QC2(n) = fv;
    v.QC3(n) = fh;
}

inline void AgregarDesplazamiento(VigaActual& v, std::int16_t junta, double xx, double yy) {
    const long n = NuevaFila(v.NJDesp, v.R3, v.XX, v.YY);
    v.R3(n) = junta;
    v.XX(n) = xx;
    v.YY(n) = yy;
}

inline void AgregarPuntual(VigaActual& v, long t, std::int32_t p, double lp) {
    const long n = ++v.CantW2(t);
    v.P(t, n) = p;
    v.LP(t, n) = lp;
}

inline void AgregarParcial(VigaActual& v, long t, std::int32_t w, double a, double b) {
    const long n = ++v.CantW3(t);
    v.W3_(t, n) = w;
    v.La3_(t, n) = a;
    v.Lb3_(t, n) = b;
}

inline void AgregarTriangulo(VigaActual& v, long t, bool altoDerecho, std::int32_t w, double a,
                             double b) {
    auto& cant = altoDerecho ? v.CantW6 : v.CantW7;
    const long n = ++cant(t);
    (altoDerecho ? v.W6_ : v.W7_)(t, n) = w;
    (altoDerecho ? v.La6_ : v.La7_)(t, n) = a;
    (altoDerecho ? v.Lb6_ : v.Lb7_)(t, n) = b;
}

inline void AgregarTrapecio(VigaActual& v, long t, std::int32_t izq, std::int32_t der, double a,
                            double b) {
    const long n = ++v.CantW8(t);
    v.WIzq8_(t, n) = izq;
    v.WDer8_(t, n) = der;
    v.La8_(t, n) = a;
    v.Lb8_(t, n) = b;
}

// Three concrete spans with every support kind, a vertical spring, every load kind and the
// three joint actions; axes A to D.
inline VigaActual VigaCompleta() {
    auto v = VigaDeTramos({5, 6, 4});
    v.NombreVigaActual = "V-101 Completa";
    const char* ejes[] = {"A", "B", "C", "D"};
    for (long j = 1; j <= 4; ++j) v.NombreEje(j) = ejes[j - 1];
    AgregarApoyo(v, 1, ApoyoFijo);
    AgregarApoyo(v, 2, RodilloEnX);
    AgregarApoyo(v, 3, RodilloEnY);
    AgregarApoyo(v, 4, Empotramiento);
    AgregarResorte(v, 3, 0, 5000, 0);
    v.W1(1) = 1500;
    AgregarPuntual(v, 1, 3000, 2.0);
    AgregarParcial(v, 1, 800, 3.0, 4.5);
    v.W4(2) = 2000;
    v.W5(2) = 1000;
    v.la5(2) = 1.5;
    AgregarTriangulo(v, 2, true, 1200, 0.5, 2.5);
    AgregarTriangulo(v, 2, false, 900, 3.0, 5.5);
    AgregarTrapecio(v, 2, 500, 1500, 1.0, 5.0);
    v.W1(3) = 1000;
    AgregarPuntual(v, 3, -2000, 2.0);
    AgregarTrapecio(v, 3, 700, 700, 0.5, 3.5);
    AgregarAccion(v, 2, 5000, 0, 0);
    AgregarAccion(v, 3, -3000, 4000, 2000);
    return v;
}

// Two steel spans, the middle joint lifted 0.5 m, horizontal and rotational springs.
inline VigaActual VigaAceroInclinada() {
    auto v = VigaDeTramos({4, 4});
    v.NombreVigaActual = "VA-2 Inclinada";
    v.OpcionConcreto = 1;
    v.B1(1) = 28.5;
    v.T1(1) = 1940;
    v.Designacion(1) = "IPE 200";
    AgregarDesplazamiento(v, 2, 0, 0.5);
    AgregarApoyo(v, 1, ApoyoFijo);
    AgregarApoyo(v, 3, RodilloEnX);
    AgregarResorte(v, 2, 1000, 0, 2000);
    v.W1(1) = 800;
    v.Gravedad(1) = 1;
    v.W1(2) = 800;
    AgregarPuntual(v, 2, 1500, 1.0);
    AgregarAccion(v, 2, 0, -1000, -500);
    return v;
}

} // namespace trevalo::prueba
