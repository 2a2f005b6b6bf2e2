// Section properties of the double-tee generator. Expected values: the generator's published
// case and hand calculations of the formulas as users know them.

#include <gtest/gtest.h>

#include "comun/Aserciones.h"
#include "profiles/PropiedadesPerfil.h"

namespace trevalo {
namespace {

std::vector<std::string> Textos(const EtiquetasPerfil& e) {
    std::vector<std::string> v;
    for (long i = 1; i <= 12; ++i) v.push_back(e.LSLabel(i));
    return v;
}

TEST(PropiedadesPerfil, CasoPublicadoDelGenerador) {
    EtiquetasPerfil e;
    PropiedadesPerfil(300, 8, 150, 12, 150, 12, e);
    const std::vector<std::string> esperado = {"58.08",  "8,870.9",   "591.4", "12.36",
                                               "674.9",  "89.99",     "3.41",  "3.95",
                                               "21.579", "139,968.0", "670.8", "139.4"};
    EXPECT_EQ(Textos(e), esperado);
}

TEST(PropiedadesPerfil, SeparadoresDeLaMaquina) {
    EtiquetasPerfil e;
    PropiedadesPerfil(300, 8, 150, 12, 150, 12, e, ',', '.');
    EXPECT_EQ(e.LSLabel(2), "8.870,9");
    EXPECT_EQ(e.LSLabel(10), "139.968,0");
}

// Iy by hand: (2 * 150.5^3 * 12 / 12 + 300 - 8^3 * 24 / 12) / 10000 = 681.700125 cm4.
// Sy divides by the width rounded ties-to-even: B = 150, so 2 * 681.700125 / 15 = 90.893;
// dividing by 15.05 would give 90.59.
TEST(PropiedadesPerfil, AnchoDeAlaRedondeadoAlParEnElModuloY) {
    EtiquetasPerfil e;
    PropiedadesPerfil(300, 8, 150.5, 12, 150.5, 12, e);
    EXPECT_EQ(e.LSLabel(5), "681.7");
    EXPECT_EQ(e.LSLabel(6), "90.89");
}

// The wider of two different flanges sets B; 151.5 rounds to 152 (tie to even).
TEST(PropiedadesPerfil, AlaInferiorMasAnchaFijaElAncho) {
    EtiquetasPerfil e;
    PropiedadesPerfil(300, 8, 150, 12, 151.5, 12, e);
    // Iy = (151.5^3 + 150^3 + 300 - 1024) / 10000 = 685.1541875 cm4; Sy = 2 Iy / 15.2.
    EXPECT_EQ(e.LSLabel(5), "685.2");
    EXPECT_EQ(e.LSLabel(6), "90.15");
}

TEST(PropiedadesPerfil, PuertaDeCeros) {
    struct Caso {
        double d, tw, bf, tf;
        bool pasa;
    };
    const Caso casos[] = {{300, 8, 150, 12, true},  {0, 8, 150, 12, false},
                          {300, 0, 150, 12, false}, {300, 8, 0, 12, false},
                          {300, 8, 150, 0, false},  {0, 0, 0, 0, false}};
    for (const Caso& c : casos)
        EXPECT_EQ(DimensionesCompletas(c.d, c.tw, c.bf, c.tf), c.pasa)
            << c.d << " " << c.tw << " " << c.bf << " " << c.tf;
}

// d = 4 < 2 tf: h = -12. By hand A = 4.8, Ix = 0.192, Sx = 0.96, Rx = 0.2, Iy = 28.93,
// Sy = 6.43, Ry = 2.455; Rt's radicand is ((80^3 * -12 + 90^3 * 8) / 12) / 560 < 0.
TEST(PropiedadesPerfil, SeccionDelgadaFallaEnRtConSieteEtiquetasNuevas) {
    EtiquetasPerfil e;
    for (long i = 1; i <= 12; ++i) e.LSLabel(i) = "viejo";
    EXPECT_TREVALO_ERROR(PropiedadesPerfil(4, 80, 90, 8, 90, 8, e), 5,
                         "Argumento o llamada a procedimiento no válida");
    const std::vector<std::string> esperado = {"4.80", "0.2",   "1.0",   "0.20",  "28.9",  "6.43",
                                               "2.46", "viejo", "viejo", "viejo", "viejo", "viejo"};
    EXPECT_EQ(Textos(e), esperado);
}

TEST(PropiedadesPerfil, CerosQueLlegaranAlCalculoSonError) {
    EtiquetasPerfil e;
    // d = 0: Sx divides by zero.
    EXPECT_TREVALO_ERROR(PropiedadesPerfil(0, 8, 150, 12, 150, 12, e), 11, "División por cero");
    // tf = 0 with tw = 0: tw / tfs is 0 / 0.
    EXPECT_TREVALO_ERROR(PropiedadesPerfil(300, 0, 150, 0, 150, 0, e), 6, "Desbordamiento");
}

// The capture reads the numbers back from the labels' texts: rounded and without the
// thousands separators, in the grid's column order A, d, bf, tf, tw, Ix ... Zy.
TEST(CapturaDelGenerador, NumerosLeidosDeLasEtiquetas) {
    EtiquetasPerfil e;
    PropiedadesPerfil(300, 8, 150, 12, 150, 12, e, ',', '.');
    CapturaSeccion c;
    ASSERT_TRUE(CapturarSeccion("  W 300x8  ", 300, 8, 150, 12, e, c, ',', '.'));
    EXPECT_EQ(c.Designacion, "W 300x8");
    const std::vector<double> esperado = {58.08, 300,   150,  12,   8,      8870.9, 591.4, 12.36,
                                          674.9, 89.99, 3.41, 3.95, 21.579, 139968, 670.8, 139.4};
    EXPECT_EQ(c.Numeros, esperado);
    EXPECT_EQ(MensajeCapturaSeccion("  W 300x8  "),
              "Designación: W 300x8\nCapturar la Sección y sus Propiedades...    ");
}

TEST(CapturaDelGenerador, SinNombreOConCeroNoCaptura) {
    EtiquetasPerfil e;
    CapturaSeccion c{"previa", {1}};
    EXPECT_FALSE(CapturarSeccion("   ", 300, 8, 150, 12, e, c));
    EXPECT_FALSE(CapturarSeccion("W", 300, 8, 150, 0, e, c));
    EXPECT_EQ(c.Designacion, "previa");
    // Without a calculation the labels read as zeros.
    ASSERT_TRUE(CapturarSeccion("W", 300, 8, 150, 12, e, c));
    EXPECT_EQ(c.Numeros[0], 0);
    EXPECT_EQ(c.Numeros[15], 0);
}

} // namespace
} // namespace trevalo
