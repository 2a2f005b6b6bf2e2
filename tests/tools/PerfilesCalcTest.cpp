// trevalo-calc perfiles and seccion, run as the command line runs them.

#include <nlohmann/json.hpp>

#include "CalcPrueba.h"

namespace trevalo::calc {
namespace {

TEST(CalcSeccion, CasoPublicadoComoLoMuestranLasEtiquetas) {
    const Salida r = Calc({"seccion", "--d", "300", "--tw", "8", "--bf", "150", "--tf", "12"});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    const auto j = nlohmann::json::parse(r.salida);
    EXPECT_EQ(j.at("A"), "58.08");
    EXPECT_EQ(j.at("Ix"), "8,870.9");
    EXPECT_EQ(j.at("Cw"), "139,968.0");
    EXPECT_EQ(j.at("Zy"), "139.4");
    // A section whose web is wider than it is deep fails after the labels before Rt.
    const Salida f = Calc({"seccion", "--d", "4", "--tw", "80", "--bf", "90", "--tf", "8"});
    EXPECT_EQ(f.codigo, 1);
    EXPECT_NE(f.errores.find("Error en la Geometría del Perfil...    "), std::string::npos);
}

TEST(CalcPerfiles, TablaEntregada) {
    Salida r = Calc({"perfiles", std::string(TREVALO_RUTA_PROGRAMA) + "/Imagen/DobleTee_IPE.pfl"});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    const auto j = nlohmann::json::parse(r.salida);
    EXPECT_EQ(j.at("familia"), "DobleTee");
    ASSERT_EQ(j.at("perfiles").size(), 18u);
    const auto& ipe300 = j.at("perfiles").at(10);
    EXPECT_EQ(ipe300.at("Designacion"), "IPE 300");
    EXPECT_DOUBLE_EQ(ipe300.at("InerciaX").get<double>(), 8356); // cm4, the source table's
    EXPECT_TRUE(ipe300.contains("CosntanteTorsionJ"));           // the file's column name, misspelt
}

} // namespace
} // namespace trevalo::calc
