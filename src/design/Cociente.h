#pragma once
// Division as the design routines need it: a zero divisor is the runtime fault the users
// know (11 division by zero, or 6 overflow for 0/0) instead of an infinite area.

#include "model/Errores.h"

namespace trevalo {

inline double Cociente(double numerador, double divisor) {
    if (divisor == 0) {
        if (numerador == 0) throw ErrorTrevalo::Desbordamiento();
        throw ErrorTrevalo::DivisionPorCero();
    }
    return numerador / divisor;
}

} // namespace trevalo
