#pragma once
// The rectangular section of a span's beam type in centimetres, as the design routines use it.

#include <cstdint>

#include "model/Viga.h"

namespace trevalo {

struct SeccionConcreto {
    double b = 0;  // width, cm
    double h = 0;  // depth, cm
    double dp = 0; // face to the centroid of either steel layer, cm
    double d = 0;  // effective depth h - dp, cm
};

// Section of the type VT(t) (rounded ties to even). Error 9 for a span or type beyond the
// lists, 6 for a type number beyond the integer range.
SeccionConcreto SeccionDelTramo(const ProyectoActual& proyecto, const VigaActual& viga,
                                std::int16_t t);

} // namespace trevalo
