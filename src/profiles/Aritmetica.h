#pragma once
// Double arithmetic that faults as the users know it instead of giving Inf or NaN:
// 11 division by zero, 6 for 0/0 or a result out of range, 5 root of a negative.

#include <cmath>

#include "model/Errores.h"

namespace trevalo {

inline double Finito(double x) {
    if (!std::isfinite(x)) throw ErrorTrevalo::Desbordamiento();
    return x;
}

inline double Div(double a, double b) {
    if (b == 0) throw a == 0 ? ErrorTrevalo::Desbordamiento() : ErrorTrevalo::DivisionPorCero();
    return Finito(a / b);
}

inline double Raiz(double x) {
    if (x < 0) throw ErrorTrevalo::LlamadaNoValida();
    return std::sqrt(x);
}

} // namespace trevalo
