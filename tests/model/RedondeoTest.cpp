#include <gtest/gtest.h>

#include "comun/Aserciones.h"
#include "model/Redondeo.h"

using namespace trevalo;

TEST(Redondeo, CIEmpataAlPar) {
    EXPECT_EQ(CI(2.5), 2);
    EXPECT_EQ(CI(3.5), 4);
    EXPECT_EQ(CI(-2.5), -2);
    EXPECT_EQ(CI(4.5000001), 5);
    EXPECT_EQ(CI(-0.4), 0);
    EXPECT_TREVALO_ERROR(CI(1e12), 6, "Desbordamiento");
    // The same rounding without the range, for cells beyond 32 bits.
    EXPECT_EQ(RedondeoPar(2500000000.5), 2500000000.0);
    EXPECT_EQ(RedondeoPar(2500000001.5), 2500000002.0);
    EXPECT_TREVALO_ERROR(CI(std::numeric_limits<double>::quiet_NaN()), 6, "Desbordamiento");
}

TEST(Redondeo, RoundKorvelMitadLejosDeCero) {
    EXPECT_EQ(RoundKorvel(2.675, 2), 2.68); // binary 2.67499999... read as typed
    EXPECT_EQ(RoundKorvel(-2.5, 0), -3.0);
    EXPECT_EQ(RoundKorvel(0.125, 2), 0.13);
    EXPECT_EQ(RoundKorvel(1234.5678, 1), 1234.6);
    EXPECT_EQ(RoundKorvel(9.995, 2), 10.0);
    EXPECT_EQ(RoundKorvel(0.0004, 3), 0.0);
    EXPECT_EQ(RoundKorvel(12345678.9, 0), 12345679.0);
}

TEST(Redondeo, Mascaras) {
    struct Caso {
        double valor;
        const char* mascara;
        const char* esperado;
    };
    const Caso casos[] = {
        {0.5, "0", "1"},
        {1.5, "0", "2"},
        {2.5, "0", "3"},
        {-2.5, "0", "-3"},
        {7, "00", "07"},
        {123, "00", "123"},
        {3.14159, "0.00", "3.14"},
        {0.005, "0.00", "0.01"},
        {1.0005, "0.000", "1.001"},
        {0.1234567, "0.000000", "0.123457"},
        {1234567.25, "#,##0.0", "1,234,567.3"},
        {999.995, "#,##0.00", "1,000.00"},
        {-1234.5, "#,##0.00", "-1,234.50"},
        {12, "#,##0.0", "12.0"},
        {0.04, "#,##0.0", "0.0"},
        {-0.2, "0", "-0"},
        {150.5, "0", "151"},
    };
    for (const auto& c : casos)
        EXPECT_EQ(Formato(c.valor, c.mascara), c.esperado) << c.valor << " " << c.mascara;
    EXPECT_EQ(Formato(1234567.25, "#,##0.00", ',', '.'), "1.234.567,25");
}

TEST(Redondeo, NumeroDeTextoLeeLoQueMuestraLaMascara) {
    EXPECT_EQ(NumeroDeTexto("1.234.567,25", ',', '.'), 1234567.25);
    EXPECT_EQ(NumeroDeTexto("-0.05"), -0.05);
    EXPECT_EQ(NumeroDeTexto("2 100 000,5", ',', ' '), 2100000.5);
    EXPECT_EQ(NumeroDeTexto(""), 0);
    EXPECT_EQ(NumeroDeTexto("-"), 0);
    EXPECT_EQ(NumeroDeTexto("12 kgf"), 12);
}
