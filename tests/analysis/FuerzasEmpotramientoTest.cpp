// Fixed-end forces of every load kind against an oracle of their own: the load, described as
// straight pieces, integrated against the influence lines of the end reactions of a
// fixed-fixed beam (three-point Gauss on each piece, exact for these polynomials).

#include <cmath>

#include <gtest/gtest.h>

#include "analysis/AnalisisPrueba.h"
#include "analysis/CargasPrueba.h"
#include "analysis/CorteMomentoTramo.h"
#include "analysis/FuerzasEmpotramiento.h"
#include "comun/Aserciones.h"

namespace trevalo {
namespace {

using namespace prueba;

const double L = LCarga;

// End forces of a fixed-fixed beam of length L, as equivalent joint loads.
FuerzasExtremos Integrar(const CasoCarga& caso) {
    FuerzasExtremos f;
    IntegrarCarga(caso, L, [&](double x, double peso) {
        const double y = L - x;
        f.MI += peso * x * y * y / (L * L);
        f.MJ += peso * x * x * y / (L * L);
        f.VI += peso * y * y * (L + 2 * x) / (L * L * L);
        f.VJ += peso * x * x * (3 * L - 2 * x) / (L * L * L);
    });
    return f;
}

class FuerzasPorTipo : public ::testing::TestWithParam<CasoCarga> {};

TEST_P(FuerzasPorTipo, CoincidenConLaIntegracion) {
    const CasoCarga& caso = GetParam();
    VigaActual v = VigaDeTramos({L});
    ProyectoActual p = ProyectoPrueba();
    PonerCargas(v, 1, caso.tipo, caso.filas);
    FuerzasExtremos f;
    FuerzasEmpotramientoTramo(p, v, 1, L, 0, 1, f);
    const FuerzasExtremos o = Integrar(caso);
    const double escala = 1e-12 * 5000 * L * L;
    EXPECT_NEAR(f.MI, o.MI, escala);
    EXPECT_NEAR(f.MJ, o.MJ, escala);
    EXPECT_NEAR(f.VI, o.VI, escala);
    EXPECT_NEAR(f.VJ, o.VJ, escala);
    // On a horizontal bar nothing acts along it.
    EXPECT_EQ(f.NI, 0.0);
    EXPECT_EQ(f.NJ, 0.0);
}

INSTANTIATE_TEST_SUITE_P(Cargas, FuerzasPorTipo, ::testing::ValuesIn(CasosCarga()),
                         [](const auto& info) { return info.param.nombre; });

// Own weight: 0.25 x 0.5 x 2500 = 312.5 kgf/m, rounded to the even 312; steel by its area.
// A load of kind 1 that cancels it leaves even an inclined span unloaded.
TEST(PesoPropio, RedondeoAlPar) {
    VigaActual v = VigaDeTramos({L}, 0.25, 0.5);
    ProyectoActual p = ProyectoPrueba();
    p.PesoConcreto = 2500;
    EXPECT_EQ(PesoPropioTramo(p, v, 1), 0); // PPV off
    p.PPV = true;
    EXPECT_EQ(PesoPropioTramo(p, v, 1), 312);
    FuerzasExtremos f;
    FuerzasEmpotramientoTramo(p, v, 1, L, 0, 1, f);
    EXPECT_EQ(f.VI, 312 * L / 2);
    v.W1(1) = -312;
    FuerzasExtremos nula;
    FuerzasEmpotramientoTramo(p, v, 1, L, 0.6, 0.8, nula);
    EXPECT_EQ(nula.MI, 0.0);
    EXPECT_EQ(nula.NI, 0.0);

    v.OpcionConcreto = 1;
    v.B1(1) = 100; // cm2: 7850 x 100 / 10000 = 78.5 -> 78
    p.PesoAcero = 7850;
    EXPECT_EQ(PesoPropioTramo(p, v, 1), 78);
    v.VT(1) = 2; // no such type
    EXPECT_TREVALO_ERROR(PesoPropioTramo(p, v, 1), 9, "El subíndice está fuera del intervalo");
}

TEST(FEPuntual, EnElApoyoIzquierdo) {
    FuerzasExtremos f;
    FEPuntual(3000, 0, 0, 1, L, f);
    EXPECT_EQ(f.MI, 0.0);
    EXPECT_EQ(f.MJ, 0.0);
    EXPECT_EQ(f.VI, 3000.0);
    EXPECT_EQ(f.VJ, 0.0);
}

// Inclined bar: c = 0.8, s = 0.6, true length 10 over a horizontal span of 8.
TEST(FEUniforme, DireccionEnBarraInclinada) {
    const double Li = 10, c = 0.8, s = 0.6, w = 1000;
    FuerzasExtremos vertical, perpendicular;
    FEUniforme(w, 0, s, c, Li, vertical);
    FEUniforme(w, 1, s, c, Li, perpendicular);
    EXPECT_DOUBLE_EQ(vertical.MI, w * c * Li * Li / 12);
    EXPECT_DOUBLE_EQ(vertical.VJ, w * c * Li / 2);
    EXPECT_DOUBLE_EQ(vertical.NI, w * s * Li / 2);
    EXPECT_DOUBLE_EQ(perpendicular.MI, w * Li * Li / 12);
    EXPECT_EQ(perpendicular.NI, 0.0);
}

// A partial load entered backwards acts with the opposite sign; nothing is reordered.
TEST(FEParcial, LongitudNegativa) {
    FuerzasExtremos adelante, atras;
    FEParcial(1000, 1, 3, 0, 1, L, adelante);
    FEParcial(1000, 3, 1, 0, 1, L, atras);
    EXPECT_LT(atras.MI, 0);
    EXPECT_DOUBLE_EQ(atras.MI, -adelante.MI);
    EXPECT_DOUBLE_EQ(atras.VJ, -adelante.VJ);
}

// Kinds 6 to 8 round the intensity across the bar to whole kgf/m, ties to even; kinds 1 to 3
// do not. With c = 0.5: 5 -> 2.5 -> 2, the same as 4 -> 2, while 6 -> 3.
TEST(FETriangular, RedondeoDeIntensidad) {
    const double c = 0.5, s = std::sqrt(0.75);
    const auto MI = [&](double w) {
        FuerzasExtremos f;
        FETriangularDerecha(w, 0, 2, s, c, L, f);
        return f.MI;
    };
    EXPECT_EQ(MI(5), MI(4));
    EXPECT_DOUBLE_EQ(MI(6), 1.5 * MI(4));
    FuerzasExtremos p5, p4;
    FEParcial(5, 0, 2, s, c, L, p5);
    FEParcial(4, 0, 2, s, c, L, p4);
    EXPECT_DOUBLE_EQ(p5.MI, 1.25 * p4.MI);
}

TEST(FuerzasEmpotramiento, FallasDeGeometria) {
    VigaActual v = VigaDeTramos({L});
    ProyectoActual p = ProyectoPrueba();
    v.W1(1) = 100;
    FuerzasExtremos f;
    EXPECT_TREVALO_ERROR(FuerzasEmpotramientoTramo(p, v, 1, 0, 0, 0, f), 11, "División por cero");
    FuerzasExtremos g;
    EXPECT_TREVALO_ERROR(FEPuntual(100, 1, 1, 0, L, g), 11, "División por cero");
    FuerzasExtremos h;
    EXPECT_TREVALO_ERROR(FETriangularDerecha(3e9, 0, 1, 0, 1, L, h), 6, "Desbordamiento");
}

} // namespace
} // namespace trevalo
