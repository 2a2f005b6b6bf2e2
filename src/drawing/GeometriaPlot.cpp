#include "drawing/GeometriaPlot.h"

#include <algorithm>

namespace trevalo {

void GeometriaPlot(VigaActual& viga, GeometriaJuntas& g) {
    const long n = viga.NT + 1;
    g.XPlot.Redim(n);
    g.YPlot.Redim(n);
    double suma = 0;
    for (long i = 1; i <= viga.NT; ++i) {
        g.XPlot(i) = suma;
        suma += viga.LT(i);
    }
    g.XPlot(n) = suma;
    for (long k = 1; k <= viga.NJDesp; ++k) {
        if (viga.R3(k) <= 0) continue; // a row the editor added, its joint not yet typed
        g.XPlot(viga.R3(k)) += viga.XX(k);
        g.YPlot(viga.R3(k)) += viga.YY(k);
    }
    double minX = g.XPlot(1), maxX = g.XPlot(1), minY = g.YPlot(1), maxY = g.YPlot(1);
    for (long i = 2; i <= n; ++i) {
        minX = std::min(minX, g.XPlot(i));
        maxX = std::max(maxX, g.XPlot(i));
        minY = std::min(minY, g.YPlot(i));
        maxY = std::max(maxY, g.YPlot(i));
    }
    viga.LongTotal = maxX - minX;
    g.AltoTotal = maxY - minY;
    for (long i = 1; i <= n; ++i) {
        g.XPlot(i) = g.XPlot(i) - ((maxX - minX) / 2 + minX);
        g.YPlot(i) = -(g.YPlot(i) - ((maxY - minY) / 2 + minY));
    }
}

} // namespace trevalo
