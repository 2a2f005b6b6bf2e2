#include "analysis/SolucionBanda.h"

#include <algorithm>

namespace trevalo {

void ResolverBanda(SistemaBanda& sistema) {
    const long neq = sistema.NEq;
    const long ancho = sistema.Ancho;
    double* const S = sistema.datosS.data();
    double* const X = sistema.datosX.data();
    // S(m, r) is fila(r)[m - 1]; X(r) is X[r].
    const auto fila = [&](long r) { return S + (r - 1) * ancho; };

    for (long n = 1; n <= neq; ++n) {
        double* const sn = fila(n);
        if (sn[0] == 0) sn[0] = 1e-20;
        const long ultima = std::min(ancho, neq - n + 1);
        for (long l = 2; l <= ultima; ++l) {
            const long row = n + l - 1;
            double* const srow = fila(row);
            const double C = sn[l - 1] / sn[0];
            for (long k = l; k <= ancho; ++k) srow[k - l] -= C * sn[k - 1];
            sn[l - 1] = C;
            X[row] -= C * X[n];
        }
        X[n] = X[n] / sn[0];
    }
    for (long n = 2; n <= neq; ++n) {
        const long e = neq - n + 1;
        const double* const se = fila(e);
        const long ultima = std::min(ancho, neq - e + 1);
        for (long l = 2; l <= ultima; ++l) X[e] -= se[l - 1] * X[e + l - 1];
    }
}

} // namespace trevalo
