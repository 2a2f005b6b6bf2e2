#include "drawing/TrazosResultados.h"

#include <vector>

#include "model/Redondeo.h"

namespace trevalo {

void PoligonoEn(Lienzo& lienzo, std::initializer_list<PuntoPlot> puntos) {
    std::vector<PuntoApi> p;
    p.reserve(puntos.size());
    for (const auto& [x, y] : puntos) p.push_back({CI(x), CI(y)});
    lienzo.Polygon(p);
}

void RectanguloEn(Lienzo& lienzo, double x1, double y1, double x2, double y2) {
    PoligonoEn(lienzo, {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}});
}

void PoligonoConPluma(Lienzo& lienzo, const Pluma& pluma, std::initializer_list<PuntoPlot> puntos) {
    const Pluma anterior = lienzo.SelectObject(pluma);
    PoligonoEn(lienzo, puntos);
    lienzo.SelectObject(anterior);
}

} // namespace trevalo
