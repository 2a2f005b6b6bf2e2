// The band solve against the literal elimination over the full width of the matrix
// (band width 3 (NJuntas + 1), rows beyond the last equation that only absorb arithmetic,
// the zero pivot replaced inside the loop), and the reactions against a walk over every
// pair of the four passes. Over many random beams the results must be the same bit for bit.

#include <cstdint>
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

// Every result list of the two runs, field by field.
void CompararBits(const ResultadosViga& a, const ResultadosViga& b, int caso) {
    EXPECT_EQ(a.NJuntas, b.NJuntas) << "caso " << caso;
    for (const auto& [nombre, campo] : kCamposResultado)
        EXPECT_TRUE(MismosBits(a.*campo, b.*campo)) << nombre << ", caso " << caso;
}

// The four reaction passes walked over every pair, as written.
void ReaccionesLiterales(const VigaActual& v, ResultadosViga& r) {
    r.ReacV.Redim(r.NJuntas);
    r.ReacH.Redim(r.NJuntas);
    r.ReacM.Redim(r.NJuntas);
    const auto rest = [&](long k, int eje) {
        const int a = v.Apoyo(k);
        if (a < 1 || a > 4) return false;
        const bool tabla[4][3] = {{1, 1, 0}, {0, 1, 0}, {1, 0, 0}, {1, 1, 1}};
        return tabla[a - 1][eje];
    };
    enum { X, Y, Z };
    for (long t = 1; t <= v.NT; ++t)
        for (long k = 1; k <= v.NJRest; ++k) {
            const long n = v.R1(k);
            if (n == r.JuntaI(t) && rest(k, Y))
                r.ReacV(n) += r.AxiI(t) * r.CosY(t) + r.CorI(t) * r.CosX(t);
            if (n == r.JuntaI(t) && rest(k, X))
                r.ReacH(n) += r.AxiI(t) * r.CosX(t) - r.CorI(t) * r.CosY(t);
            if (n == r.JuntaI(t) && rest(k, Z)) r.ReacM(n) -= r.MomI(t);
            if (n == r.JuntaJ(t) && rest(k, Y))
                r.ReacV(n) += -r.AxiJ(t) * r.CosY(t) + r.CorJ(t) * r.CosX(t);
            if (n == r.JuntaJ(t) && rest(k, X))
                r.ReacH(n) += -r.AxiJ(t) * r.CosX(t) - r.CorJ(t) * r.CosY(t);
            if (n == r.JuntaJ(t) && rest(k, Z)) r.ReacM(n) += r.MomJ(t);
        }
    for (long a = 1; a <= v.NAcc; ++a)
        for (long k = 1; k <= v.NJRest; ++k) {
            const long n = v.R1(k);
            if (n != v.R2(a)) continue;
            if (rest(k, Y)) r.ReacV(n) += v.QC2(a);
            if (rest(k, X)) r.ReacH(n) -= v.QC3(a);
        }
    if (v.NJRes > 0) {
        for (long t = 1; t <= v.NT; ++t)
            for (long k = 1; k <= v.NJRes; ++k) {
                const long n = v.R10(k);
                if (n == r.JuntaI(t) && v.SV10(k) > 0)
                    r.ReacV(n) += -r.AxiI(t) * r.CosY(t) + r.CorI(t) * r.CosX(t);
                if (n == r.JuntaI(t) && v.SH10(k) > 0)
                    r.ReacH(n) += -r.AxiI(t) * r.CosX(t) - r.CorI(t) * r.CosY(t);
                if (n == r.JuntaI(t) && v.SM10(k) > 0) r.ReacM(n) -= r.MomI(t);
                if (n == r.JuntaJ(t) && v.SV10(k) > 0)
                    r.ReacV(n) += r.AxiJ(t) * r.CosY(t) + r.CorJ(t) * r.CosX(t);
                if (n == r.JuntaJ(t) && v.SH10(k) > 0)
                    r.ReacH(n) += r.AxiJ(t) * r.CosX(t) - r.CorJ(t) * r.CosY(t);
                if (n == r.JuntaJ(t) && v.SM10(k) > 0) r.ReacM(n) += r.MomJ(t);
            }
        for (long a = 1; a <= v.NAcc; ++a)
            for (long k = 1; k <= v.NJRes; ++k) {
                const long n = v.R10(k);
                if (n != v.R2(a)) continue;
                if (v.SV10(k) > 0) r.ReacV(n) += v.QC2(a);
                if (v.SH10(k) == 1.0) r.ReacH(n) -= v.QC3(a);
            }
    }
}

TEST(SolucionBanda, IgualBitABitAlAnchoCompleto) {
    GeneradorVigas gen(20261121);
    int resueltas = 0, fallidas = 0;
    for (int caso = 0; caso < 400; ++caso) {
        ProyectoActual p = gen.Proyecto();
        const VigaActual v = gen.Viga({});
        ResultadosViga banda, completo;
        long errBanda = 0, errCompleto = 0;
        try {
            AnalizarViga({}, p, v, banda);
        } catch (const ErrorTrevalo& e) {
            errBanda = e.Numero();
        }
        try {
            AnalizarViga({}, p, v, completo, ResolverAnchoCompleto);
        } catch (const ErrorTrevalo& e) {
            errCompleto = e.Numero();
        }
        ASSERT_EQ(errBanda, errCompleto) << "caso " << caso;
        if (errBanda != 0) {
            ++fallidas;
            continue;
        }
        ++resueltas;
        CompararBits(banda, completo, caso);
        ResultadosViga literal = banda;
        ReaccionesLiterales(v, literal);
        CompararBits(banda, literal, caso);
    }
    // The random beams are meant to solve: a generator that only made faults would prove
    // nothing.
    EXPECT_GT(resueltas, 350);
    EXPECT_LT(fallidas, 50);
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
