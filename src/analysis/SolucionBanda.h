#pragma once
// The stiffness system of a beam in band form and its solution by Gauss elimination
// without pivoting.
//
// Only the upper half of the symmetric matrix is kept: S(1, r) is the diagonal of row r and
// S(m, r) the term of row r, column r + m - 1, for m from 1 to the band width. A chain of
// bars couples the three degrees of freedom of a joint with those of the next joint only,
// so a band of 6 holds every non-zero term, whatever the number of spans: time and memory
// grow linearly with the spans.

#include <cstddef>
#include <vector>

namespace trevalo {

struct SistemaBanda {
    SistemaBanda(long neq, long ancho)
        : NEq(neq), Ancho(ancho), datosS(static_cast<std::size_t>(neq * ancho), 0.0),
          datosX(static_cast<std::size_t>(neq + 1), 0.0) {}

    double& S(long m, long r) { return datosS[static_cast<std::size_t>((r - 1) * Ancho + m - 1)]; }
    double S(long m, long r) const {
        return datosS[static_cast<std::size_t>((r - 1) * Ancho + m - 1)];
    }
    // Right-hand side, reduced in place to the solution; rows 1..NEq.
    double& X(long r) { return datosX[static_cast<std::size_t>(r)]; }
    double X(long r) const { return datosX[static_cast<std::size_t>(r)]; }

    long NEq;
    long Ancho;
    std::vector<double> datosS;
    std::vector<double> datosX;
};

// Solves S x = X in place (X holds the solution afterwards; S its factors). A pivot that is
// exactly zero becomes 1e-20, so a mechanism solves to very large numbers without a
// message. The values are bit for bit those of the same elimination run over a full-width
// band: the terms it skips are exact zeros, which change no non-zero value.
void ResolverBanda(SistemaBanda& sistema);

// The solve step of the analysis; tests put another elimination in its place.
using ResolvedorBanda = void (*)(SistemaBanda& sistema);

} // namespace trevalo
