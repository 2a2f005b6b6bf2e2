#include "model/Redondeo.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "model/Errores.h"

namespace trevalo {

double RedondeoPar(double valor) {
    return std::nearbyint(valor); // the default rounding mode: to nearest, ties to even
}

long CI(double valor) {
    if (!std::isfinite(valor)) throw ErrorTrevalo::Desbordamiento();
    const double r = RedondeoPar(valor);
    if (r < std::numeric_limits<int>::min() || r > std::numeric_limits<int>::max())
        throw ErrorTrevalo::Desbordamiento();
    return static_cast<long>(r);
}

namespace {

// Decimal digits of |valor| rounded half away from zero to `decimales` places, taken from
// its 15-significant-digit form. Returns the digits with the point implied `decimales`
// places from the right (at least decimales + 1 digits).
std::string DigitosRedondeados(double valor, int decimales) {
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.14e", std::fabs(valor));
    // buf: d.dddddddddddddde[+-]XX
    std::string mantisa;
    mantisa += buf[0];
    mantisa.append(buf + 2, 14);
    const int exponente = std::atoi(buf + 17);
    // Position of the decimal point within the mantissa digits.
    const long punto = exponente + 1;
    long conservar = punto + decimales; // digits kept
    std::string digitos;
    if (conservar < 0) {
        digitos = "0";
    } else {
        const bool subir = conservar < 15 && mantisa[static_cast<std::size_t>(conservar)] >= '5';
        digitos = mantisa.substr(0, static_cast<std::size_t>(std::min<long>(conservar, 15)));
        while (static_cast<long>(digitos.size()) < conservar) digitos += '0';
        if (subir) {
            long i = static_cast<long>(digitos.size()) - 1;
            while (i >= 0 && digitos[static_cast<std::size_t>(i)] == '9') {
                digitos[static_cast<std::size_t>(i)] = '0';
                --i;
            }
            if (i < 0)
                digitos.insert(digitos.begin(), '1');
            else
                ++digitos[static_cast<std::size_t>(i)];
        }
    }
    while (static_cast<long>(digitos.size()) < decimales + 1) digitos.insert(digitos.begin(), '0');
    return digitos;
}

} // namespace

double RoundKorvel(double valor, int decimales) {
    if (!std::isfinite(valor)) return valor;
    std::string d = DigitosRedondeados(valor, decimales);
    d.insert(d.size() - static_cast<std::size_t>(decimales), ".");
    const double r = std::strtod(d.c_str(), nullptr);
    return valor < 0 ? -r : r;
}

std::string Formato(double valor, const std::string& mascara, char separadorDecimal,
                    char separadorMiles) {
    const auto punto = mascara.find('.');
    const std::string entera = mascara.substr(0, punto);
    const int decimales =
        punto == std::string::npos ? 0 : static_cast<int>(mascara.size() - punto - 1);
    std::size_t minimoEnteros = 0;
    for (char c : entera)
        if (c == '0') ++minimoEnteros;
    const bool agrupar = entera.find(',') != std::string::npos;

    if (!std::isfinite(valor)) return std::isnan(valor) ? "NaN" : (valor < 0 ? "-Inf" : "Inf");
    const std::string d = DigitosRedondeados(valor, decimales);
    std::string ent = d.substr(0, d.size() - static_cast<std::size_t>(decimales));
    const std::string frac = d.substr(d.size() - static_cast<std::size_t>(decimales));
    // Leading zeros beyond the mask's least count are dropped.
    std::size_t primero = 0;
    while (primero + 1 < ent.size() && ent[primero] == '0' && ent.size() - primero > minimoEnteros)
        ++primero;
    ent = ent.substr(primero);
    if (minimoEnteros == 0 && ent == "0") ent.clear();
    while (ent.size() < minimoEnteros) ent.insert(ent.begin(), '0');
    if (agrupar)
        for (long i = static_cast<long>(ent.size()) - 3; i > 0; i -= 3)
            ent.insert(static_cast<std::size_t>(i), 1, separadorMiles);

    std::string s = valor < 0 ? "-" : "";
    s += ent;
    if (decimales > 0) {
        s += separadorDecimal;
        s += frac;
    }
    return s;
}

double NumeroDeTexto(const std::string& texto, char separadorDecimal, char separadorMiles) {
    std::string limpio;
    for (char c : texto)
        if (c != separadorMiles) limpio += c == separadorDecimal ? '.' : c;
    const auto inicio = limpio.find_first_not_of(" +");
    if (inicio == std::string::npos) return 0;
    double valor = 0;
    std::from_chars(limpio.data() + inicio, limpio.data() + limpio.size(), valor);
    return valor;
}

} // namespace trevalo
