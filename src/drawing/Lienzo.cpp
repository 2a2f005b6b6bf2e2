#include "drawing/Lienzo.h"

#include <cmath>
#include <numbers>

#include "model/Redondeo.h"

namespace trevalo {

void Lienzo::AngleArc(long x, long y, long radio, double inicio, double barrido) {
    TrazarArco(posicion_, x, y, radio, inicio, barrido);
    const double fin = (inicio + barrido) * std::numbers::pi / 180.0;
    posicion_ = {CI(x + radio * std::cos(fin)), CI(y - radio * std::sin(fin))};
}

} // namespace trevalo
