// The tables the installation ships, checked against the numbers of their public source
// files after the change of units (cm -> mm for dimensions, dm6 -> cm6 for warping).

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "profiles/TablaPerfiles.h"

namespace trevalo {
namespace {

using F = FamiliaPerfil;

TablaPerfiles Entregada(const std::string& nombre, F& familia) {
    EXPECT_TRUE(FamiliaDeArchivo(nombre, familia)) << nombre;
    return LeerTablaPerfiles(TREVALO_RUTA_PROGRAMA "/Imagen/" + nombre, familia);
}

const FilaPerfil& Buscar(const TablaPerfiles& t, const std::string& designacion) {
    for (const FilaPerfil& f : t.Filas)
        if (f.Designacion == designacion) return f;
    throw std::runtime_error("no hay " + designacion);
}

struct Caso {
    std::string archivo;
    std::size_t filas;
    std::int16_t fy;
    std::string designacion;
    std::string valores; // field and value, from the source file converted by hand
};

TEST(TablasEntregadas, FilasComoEnLaFuente) {
    const Caso casos[] = {
        {"DobleTee_IPE.pfl", 18, 2804, "IPE 300",
         "Area 53.81 DimensionD 300 DimensionBF 150 DimensionTF 10.7 DimensionTw 7.1 InerciaX 8356 "
         "ModuloSeccionX 557.1 InerciaY 603.8 RadioGiroY 3.35 CosntanteTorsionJ 19.75 "
         "ConstanteAlabeoCW 124260 ModuloPlasticoZX 628.4 ModuloPlasticoZY 125.2"},
        {"DobleTee_HEA.pfl", 24, 2804, "HEA 300",
         "Area 112.53 DimensionD 290 DimensionBF 300 DimensionTw 8.5 DimensionTF 14 InerciaX 18260 "
         "InerciaY 6310 ConstanteAlabeoCW 1174700"},
        {"DobleTee_HEB.pfl", 24, 2804, "HEB 200",
         "Area 78.08 DimensionD 200 DimensionTF 15 DimensionTw 9 InerciaX 5696 CosntanteTorsionJ "
         "59.59 ModuloPlasticoZX 642.5"},
        {"DobleTee_HEM.pfl", 24, 2804, "HEM 1000",
         "Area 444.21 DimensionD 1008 DimensionBF 302 DimensionTw 21 InerciaX 722300"},
        {"Cuadrada_SHS.pfl", 123, 3620, "SHS 100x100x5",
         "Area 18.7 Espesor 5 Radio 7.5 Inercia 279 ModuloSeccion 55.9 RadioGiro 3.86 "
         "MOduloPlastico 66.4"},
        {"Rectangular_RHS.pfl", 125, 3620, "RHS 200x100x6.3",
         "Area 35.8 Espesor 6.3 InerciaX 1829 ModuloSeccionX 183 InerciaY 613 RadioGiroY 4.14"},
        {"U_UPN.pfl", 18, 2804, "UPN 200",
         "Area 32.2 DimensionD 200 DimensionBF 75 DimensionTF 11.5 DimensionTw 8.5 InerciaX 1910 "
         "ModuloSeccionX 191 InerciaY 148 CosntanteTorsionJ 11.9 ConstanteAlabeoCW 9070"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.archivo);
        F familia{};
        const TablaPerfiles t = Entregada(c.archivo, familia);
        EXPECT_EQ(t.Filas.size(), c.filas);
        EXPECT_EQ(t.ResistenciaFY, c.fy);
        EXPECT_LE(t.DescripcionTabla.size(), 70u);
        const FilaPerfil& fila = Buscar(t, c.designacion);
        std::istringstream valores(c.valores);
        for (std::string campo; valores >> campo;) {
            double valor = 0;
            valores >> valor;
            EXPECT_NEAR(ValorCampo(familia, fila, campo), valor, 1e-9 * std::max(1.0, valor))
                << campo;
        }
    }
}

// rT by hand, h = d - 2 tf: IPE 300, h = 278.6: sqrt((10.7 * 150^3 + 46.43 * 7.1^3) / 12 /
// (1605 + 329.68)) = 39.45 mm; HEB 200, h = 170: 55.43 mm.
TEST(TablasEntregadas, ConstanteDeFlexionCalculada) {
    F familia{};
    EXPECT_DOUBLE_EQ(ValorCampo(F::DobleTee,
                                Buscar(Entregada("DobleTee_IPE.pfl", familia), "IPE 300"),
                                "ConstanteFlexionRT"),
                     3.94);
    EXPECT_DOUBLE_EQ(ValorCampo(F::DobleTee,
                                Buscar(Entregada("DobleTee_HEB.pfl", familia), "HEB 200"),
                                "ConstanteFlexionRT"),
                     5.54);
}

TEST(TablasEntregadas, NumeradasDeMenorAMayor) {
    const std::pair<const char*, const char*> extremos[] = {
        {"DobleTee_IPE.pfl", "IPE 80"},        {"DobleTee_HEA.pfl", "HEA 100"},
        {"DobleTee_HEM.pfl", "HEM 100"},       {"U_UPN.pfl", "UPN 50"},
        {"Cuadrada_SHS.pfl", "SHS 40x40x2.5"}, {"Rectangular_RHS.pfl", "RHS 50x30x2.5"}};
    for (const auto& [archivo, primera] : extremos) {
        F familia{};
        const TablaPerfiles t = Entregada(archivo, familia);
        EXPECT_EQ(t.Filas.front().Designacion, primera) << archivo;
        for (std::size_t i = 0; i < t.Filas.size(); ++i)
            EXPECT_EQ(t.Filas[i].Numero, static_cast<std::int16_t>(i + 1));
        if (familia != F::DobleTee && familia != F::SeccionU) continue;
        for (std::size_t i = 1; i < t.Filas.size(); ++i) {
            EXPECT_LE(ValorCampo(familia, t.Filas[i - 1], "DimensionD"),
                      ValorCampo(familia, t.Filas[i], "DimensionD"))
                << archivo << " " << t.Filas[i].Designacion;
        }
    }
}

} // namespace
} // namespace trevalo
