// The band solve against the literal elimination over the full width of the matrix
// (band width 3 (NJuntas + 1), rows beyond the last equation that only absorb arithmetic,
// the zero pivot replaced inside the loop). Over many random beams the results must be the
// same bit for bit.

#include <vector>

#include <gtest/gtest.h>

#include "analysis/AnalisisVigasP.h"
#include "analysis/VigasAleatorias.h"

namespace trevalo {
namespace {

using namespace prueba;

// The elimination as the analysis has always described it, on a full-width copy of the
// band: S(m, r) with m from 1 to MBanda and r from 1 to NEq + MBanda.
void ResolverAnchoCompleto(SistemaBanda& sis) {
    const long NEq = sis.NEq;
    const long MBanda = NEq + 3;
    const long filas = NEq + MBanda;
    std::vector<double> datos(static_cast<std::size_t>((MBanda + 1) * (filas + 1)), 0.0);
    std::vector<double> X(static_cast<std::size_t>(filas + 1), 0.0);
    const auto S = [&](long m, long r) -> double& {
        return datos[static_cast<std::size_t>(r * (MBanda + 1) + m)];
    };
    for (long r = 1; r <= NEq; ++r) {
        for (long m = 1; m <= sis.Ancho; ++m) S(m, r) = sis.S(m, r);
        X[static_cast<std::size_t>(r)] = sis.X(r);
    }
    const auto x = [&](long r) -> double& { return X[static_cast<std::size_t>(r)]; };
    for (long n = 1; n <= NEq; ++n) {
        long row = n;
        for (long l = 2; l <= MBanda; ++l) {
            if (S(1, n) == 0) S(1, n) = 1e-20;
            row += 1;
            const double C = S(l, n) / S(1, n);
            long j = 0;
            for (long k = l; k <= MBanda; ++k) {
                j += 1;
                S(j, row) -= C * S(k, n);
            }
            S(l, n) = C;
            x(row) -= C * x(n);
        }
        x(n) = x(n) / S(1, n);
    }
    for (long n = 2; n <= NEq; ++n) {
        const long e = NEq - n + 1;
        for (long l = 2; l <= MBanda; ++l) x(e) -= S(l, e) * x(e + l - 1);
    }
    for (long r = 1; r <= NEq; ++r) sis.X(r) = x(r);
}

TEST(SolucionBanda, IgualBitABitAlAnchoCompleto) {
    GeneradorVigas gen(20261121);
    int resueltas = 0;
    for (int caso = 0; caso < 400; ++caso) {
        ProyectoActual p = gen.Proyecto();
        const VigaActual v = gen.Viga({});
        ResultadosViga banda, completo;
        const auto numeroError = [&](auto correr) {
            try {
                correr();
            } catch (const ErrorTrevalo& e) {
                return e.Numero();
            }
            return 0L;
        };
        const auto errBanda = numeroError([&] { AnalizarViga({}, p, v, banda); });
        const auto errCompleto =
            numeroError([&] { AnalizarViga({}, p, v, completo, ResolverAnchoCompleto); });
        ASSERT_EQ(errBanda, errCompleto) << "caso " << caso;
        if (errBanda != 0) continue;
        ++resueltas;
        EXPECT_STREQ(PrimeraDiferencia(banda, completo), nullptr) << "caso " << caso;
    }
    // The random beams are meant to solve: a generator that only made faults would prove
    // nothing.
    EXPECT_GT(resueltas, 350);
}

TEST(SolucionBanda, SistemaPequenoConocido) {
    // [4 1 0; 1 3 1; 0 1 2] x = [1 2 3], solution by Cramer's rule: x = (2/9, 1/9, 13/9).
    SistemaBanda sis(3, 6);
    sis.S(1, 1) = 4;
    sis.S(2, 1) = 1;
    sis.S(1, 2) = 3;
    sis.S(2, 2) = 1;
    sis.S(1, 3) = 2;
    sis.X(1) = 1;
    sis.X(2) = 2;
    sis.X(3) = 3;
    ResolverBanda(sis);
    EXPECT_DOUBLE_EQ(sis.X(1), 2.0 / 9);
    EXPECT_DOUBLE_EQ(sis.X(2), 1.0 / 9);
    EXPECT_DOUBLE_EQ(sis.X(3), 13.0 / 9);
}

} // namespace
} // namespace trevalo
