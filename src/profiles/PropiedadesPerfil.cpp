#include "profiles/PropiedadesPerfil.h"

#include <cmath>
#include <cstdlib>

#include "model/Errores.h"
#include "model/Redondeo.h"
#include "profiles/Aritmetica.h"
#include "profiles/Recorte.h"

namespace trevalo {

namespace {

double Cubo(double x) {
    return x * x * x;
}

} // namespace

bool DimensionesCompletas(double d, double tw, double bf, double tf) {
    return d != 0 && tw != 0 && bf != 0 && tf != 0;
}

void PropiedadesPerfil(double d, double tw, double bfs, double tfs, double bfi, double tfi,
                       EtiquetasPerfil& etiquetas, char separadorDecimal, char separadorMiles) {
    auto poner = [&](long i, double valor, const char* mascara) {
        etiquetas.LSLabel(i) = Formato(Finito(valor), mascara, separadorDecimal, separadorMiles);
    };

    const double A = ((d - (tfs + tfi)) * tw + bfs * tfs + bfi * tfi) / 100;
    poner(1, A, "#,##0.00");

    const double Ix = (std::pow(d / 2 - tfi / 2, 2) * (bfi * tfi) + Cubo(tfi) * bfi / 12 +
                       std::pow(d / 2 - tfs / 2, 2) * (bfs * tfs) + Cubo(tfs) * bfs / 12 +
                       Cubo(d - (tfs + tfi)) * tw / 12) /
                      10000;
    poner(2, Ix, "#,##0.0");
    poner(3, Div(2 * Ix, d / 10), "#,##0.0");
    poner(4, Raiz(Div(Ix, A)), "#,##0.00");

    // Kept: d in mm is added and the web enters as d - tw^3 (tfs + tfi) / 12.
    const double Iy =
        (Cubo(bfi) * tfi / 12 + Cubo(bfs) * tfs / 12 + d - Cubo(tw) * (tfs + tfi) / 12) / 10000;
    poner(5, Iy, "#,##0.0");

    // Kept: the wider flange as a whole number of millimetres, ties to even.
    long B = CI(bfs);
    if (B < bfi) B = CI(bfi);
    poner(6, Div(2 * Iy, static_cast<double>(B) / 10), "#,##0.00");
    poner(7, Raiz(Div(Iy, A)), "#,##0.00");

    const double h = d - 2 * tfs;
    poner(8, Raiz(Div((Cubo(tw) * h + Cubo(bfs) * tfs) / 12, bfs * tfs + h * tw / 6)) / 10,
          "#,##0.00");

    const double r = Div(tw, tfs);
    const double alfa = -0.042 + 0.2204 * r - 0.0725 * r * r;
    const double D = Div(0.25 * tw * tw + tfs * tfs, tfs);
    const double J = (alfa * 2 * std::pow(D, 4) + Cubo(tw) * h / 3 + (2.0 / 3.0) * bfs * Cubo(tfs) -
                      0.42 * std::pow(tfs, 4)) /
                     10000;
    poner(9, J, "#,##0.000");

    poner(10, Cubo(bfs) * std::pow(d - tfs, 2) * tfs / 24 / 1000000, "#,##0.0");

    // Kept: the web over the full depth, the flanges as what is left of the area.
    poner(11, (d * d * tw / 4 + (100 * A - d * tw) * (d - tfs) / 2) / 1000, "#,##0.0");
    poner(12, (tw * tw * h / 4 + (100 * A - h * tw) * (bfs / 4)) / 1000, "#,##0.0");
}

bool CapturarSeccion(const std::string& nombre, double d, double tw, double bf, double tf,
                     const EtiquetasPerfil& etiquetas, CapturaSeccion& captura,
                     char separadorDecimal, char separadorMiles) {
    const std::string recortado = Recortar(nombre);
    if (recortado.empty() || !DimensionesCompletas(d, tw, bf, tf)) return false;
    auto etiqueta = [&](long i) {
        return NumeroDeTexto(etiquetas.LSLabel(i), separadorDecimal, separadorMiles);
    };
    captura = {recortado, {etiqueta(1), d, bf, tf, tw}};
    for (long i = 2; i <= 12; ++i) captura.Numeros.push_back(etiqueta(i));
    return true;
}

std::string MensajeCapturaSeccion(const std::string& nombre) {
    return "Designación: " + Recortar(nombre) + "\nCapturar la Sección y sus Propiedades...    ";
}

} // namespace trevalo
