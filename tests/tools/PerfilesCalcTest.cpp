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
}

TEST(CalcSeccion, ArgumentosCerosYFallas) {
    const std::tuple<Argumentos, int, std::string> casos[] = {
        {{"seccion", "--d", "300", "--tw", "8", "--bf", "150"}, 2, "Uso:"},
        {{"seccion", "--d", "3x", "--tw", "8", "--bf", "150", "--tf", "12"}, 2, "Uso:"},
        {{"seccion", "--d", "300", "--tw", "8", "--bf", "150", "--tx", "12"}, 2, "Uso:"},
        {{"seccion", "--d", "300", "--tw", "8", "--bf", "0", "--tf", "12"}, 1, "Nada que calcular"},
        {{"seccion", "--d", "4", "--tw", "80", "--bf", "90", "--tf", "8"},
         1,
         "Error en la Geometría del Perfil...    "},
    };
    for (const auto& [args, codigo, error] : casos) {
        const Salida r = Calc(args);
        EXPECT_EQ(r.codigo, codigo) << args[2];
        EXPECT_NE(r.errores.find(error), std::string::npos) << r.errores;
    }
}

TEST(CalcPerfiles, TablaEntregadaYFallas) {
    Salida r = Calc({"perfiles", std::string(TREVALO_RUTA_PROGRAMA) + "/Imagen/DobleTee_IPE.pfl"});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    const auto j = nlohmann::json::parse(r.salida);
    EXPECT_EQ(j.at("familia"), "DobleTee");
    ASSERT_EQ(j.at("perfiles").size(), 18u);
    const auto& ipe300 = j.at("perfiles").at(10);
    EXPECT_EQ(ipe300.at("Designacion"), "IPE 300");
    EXPECT_DOUBLE_EQ(ipe300.at("InerciaX").get<double>(), 8356); // cm4, the source table's
    EXPECT_TRUE(ipe300.contains("CosntanteTorsionJ"));           // the file's column name, misspelt

    r = Calc({"perfiles", "/tmp/Tabla.pfl"});
    EXPECT_EQ(r.codigo, 1);
    EXPECT_NE(r.errores.find("no es el de una tabla de perfiles"), std::string::npos);
    r = Calc({"perfiles", "/no/existe/U_Canales.pfl"});
    EXPECT_EQ(r.codigo, 1);
    EXPECT_EQ(r.errores.rfind("Error ", 0), 0u) << r.errores;
    EXPECT_EQ(Calc({"perfiles"}).codigo, 2);
}

} // namespace
} // namespace trevalo::calc
