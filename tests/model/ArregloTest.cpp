#include <gtest/gtest.h>

#include "comun/Aserciones.h"
#include "model/Arreglo.h"
#include "model/Viga.h"

using namespace trevalo;

TEST(Arreglo, IndicesFueraDeUnoAnRaisenError9) {
    Arreglo<double> a(3);
    a(3) = 2.5;
    EXPECT_EQ(a(3), 2.5);
    EXPECT_TREVALO_ERROR(a(0), 9, "El subíndice está fuera del intervalo");
    EXPECT_TREVALO_ERROR(a(4), 9, "El subíndice está fuera del intervalo");
    Arreglo2<int> b(2, 10);
    b(2, 10) = 7;
    EXPECT_EQ(b(2, 10), 7);
    EXPECT_TREVALO_ERROR(b(3, 1), 9, "El subíndice está fuera del intervalo");
    EXPECT_TREVALO_ERROR(b(1, 11), 9, "El subíndice está fuera del intervalo");
}

TEST(Arreglo, RedimPreserveKeepsRemainingSlotsAndZeroesNewOnes) {
    Arreglo2<int> b(3, 5);
    b(1, 5) = 15;
    b(3, 1) = 31;
    b.RedimPreserve(1);
    b.RedimPreserve(3);
    EXPECT_EQ(b(1, 5), 15);
    EXPECT_EQ(b(3, 1), 0);
}

TEST(ModeloViga, NuevaVigaDefecto) {
    VigaActual v;
    v.FMayoracionTC = 7;
    NuevaVigaDefecto(v);
    EXPECT_EQ(v.NT, 1);
    EXPECT_EQ(v.LT(1), 4.0);
    EXPECT_EQ(v.VT(1), 1.0);
    EXPECT_EQ(v.B1(1), 0.3);
    EXPECT_EQ(v.T1(1), 0.5);
    EXPECT_EQ(v.FMayorTramo(1), 1.5);
    EXPECT_EQ(v.FMayoracionTC, 7);
    EXPECT_EQ(v.NombreEje(2), "2");
    ASSERT_EQ(v.NJRest, 2);
    EXPECT_EQ(v.R1(2), 2);
    EXPECT_EQ(v.Apoyo(1), ApoyoFijo);
    EXPECT_EQ(v.Apoyo(2), ApoyoFijo);
    EXPECT_EQ(v.HC(2), 0.5);
    EXPECT_EQ(v.LIzq(1), 0.15);
    EXPECT_EQ(v.CantW2(1), 0);
    EXPECT_EQ(v.NJDesp + v.NJRes + v.NAcc, 0);
}

TEST(ModeloViga, ReducirYCrecerNTDevuelveCeroEnLosTramosCortados) {
    VigaActual v;
    NuevaVigaDefecto(v);
    v.NT = 3;
    RedimensionarViga(v);
    v.LT(2) = 5;
    v.LT(3) = 6;
    v.P(3, 10) = 900;
    v.TramoMarcado(1) = true;
    v.NT = 2;
    RedimensionarViga(v);
    v.NT = 3;
    RedimensionarViga(v);
    EXPECT_EQ(v.LT(1), 4.0);
    EXPECT_EQ(v.LT(2), 5.0);
    EXPECT_EQ(v.LT(3), 0.0);
    EXPECT_EQ(v.P(3, 10), 0);
    EXPECT_FALSE(v.TramoMarcado(1));
    EXPECT_EQ(v.NombreEje(4), "");
    EXPECT_EQ(v.HC(4), 0.0);
    EXPECT_EQ(v.NJRest, 2); // lists untouched
}

TEST(ModeloViga, ReiniciarUsaElLiteral15YConservaNT) {
    VigaActual v;
    NuevaVigaDefecto(v);
    v.NT = 2;
    RedimensionarViga(v);
    v.FMayoracion = 1.7;
    ReiniciarArreglosViga(v);
    EXPECT_EQ(v.NT, 2);
    EXPECT_EQ(v.FMayorTramo(2), 1.5);
    EXPECT_EQ(v.NTipos, 1);
    EXPECT_EQ(v.B1(1), 0.0);
    EXPECT_EQ(v.NJRest, 0);
    EXPECT_EQ(v.LT(1), 0.0);
    EXPECT_EQ(v.NombreEje(1), "");
    EXPECT_EQ(v.LDer(3), 0.15);
}

TEST(ModeloViga, EliminarCargasVaciaLasOchoClasesYConservaLoDemas) {
    VigaActual v;
    NuevaVigaDefecto(v);
    v.NT = 2;
    RedimensionarViga(v);
    v.LT(2) = 3;
    v.W1(2) = 500;
    v.Gravedad(2) = 1;
    v.CantW2(1) = 1;
    v.P(1, 1) = 900;
    v.LP(1, 1) = 1.5;
    v.W5(2) = 40;
    v.la5(2) = 0.7;
    v.CantW8(2) = 5;
    v.WDer8_(2, 5) = 70;
    v.Lb7_(1, 5) = 2.5;
    const VigaActual antes = v;
    EliminarCargas(v);
    EXPECT_EQ(v.W1(2) + v.Gravedad(2) + v.CantW2(1) + v.P(1, 1) + v.W5(2) + v.CantW8(2) +
                  v.WDer8_(2, 5),
              0);
    EXPECT_EQ(v.LP(1, 1) + v.la5(2) + v.Lb7_(1, 5), 0.0);
    EXPECT_EQ(v.P.Ubound2(), MaxCargas10);
    EXPECT_EQ(v.WDer8_.Ubound2(), MaxCargas5);
    EXPECT_EQ(v.LT, antes.LT);
    EXPECT_EQ(v.R1, antes.R1);
}
