// trevalo-calc diseno: the station table of the design sheet as JSON.

#include <nlohmann/json.hpp>

#include "CalcPrueba.h"
#include "app/tools/VigaJson.h"
#include "comun/Vigas.h"

namespace trevalo::calc {
namespace {

// A beam of two spans, 4 m and 2.25 m, on three fixed supports under 10000 kgf/m, written as
// the tool's beam document.
void EscribirViga(const std::string& ruta, std::uint8_t opcionConcreto) {
    ProyectoActual p;
    p.PPV = false;
    VigaActual v = opcionConcreto == 0 ? prueba::VigaDeTramos({4, 2.25})
                                       : prueba::VigaDeTramos({4, 2.25}, 50, 8000);
    v.OpcionConcreto = opcionConcreto;
    prueba::PonerApoyos(v, {{1, ApoyoFijo}, {2, ApoyoFijo}, {3, ApoyoFijo}});
    v.W1(1) = v.W1(2) = 10000;
    prueba::EscribirArchivo(ruta, EscribirVigaJson(p, v).dump());
}

using ComandoDiseno = ConCarpeta;

TEST_F(ComandoDiseno, VigaDeConcretoYDeAcero) {
    EscribirViga(Ruta("concreto.json"), 0);
    EscribirViga(Ruta("acero.json"), 1);
    Salida r = Calc({"diseno", Ruta("concreto.json")});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    auto j = nlohmann::json::parse(r.salida);
    ASSERT_EQ(j["tramos"].size(), 2u);
    // 4 m at 2 per metre: 9 stations; 2.25 m: 4.5 rounds to 4 (ties to even), 5 stations.
    EXPECT_EQ(j["tramos"][0]["estaciones"].size(), 9u);
    const auto& e = j["tramos"][1]["estaciones"];
    ASSERT_EQ(e.size(), 5u);
    const char* progresiva[] = {"0.00", "0.56", "1.13", "0.56", "0.00"};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(e[i]["textos"]["PROGRES"], progresiva[i]) << i;
        EXPECT_DOUBLE_EQ(e[i]["h"].get<double>(), 0.5625 * static_cast<double>(i)) << i;
    }
    // Hogging over the middle support: the first span's right end has top steel above the
    // minimum of its left end, which carries no moment.
    const auto& hoja = j["resumenHoja"];
    EXPECT_GT(hoja["AsSupDerecha"][0].get<double>(), hoja["AsSupIzquierda"][0].get<double>());
    EXPECT_TRUE(j["tramos"][0]["estaciones"][0]["textos"].contains("E(3/8)"));

    r = Calc({"diseno", Ruta("acero.json"), "--estaciones", "3"});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    j = nlohmann::json::parse(r.salida);
    EXPECT_EQ(j["concreto"], false);
    EXPECT_EQ(j["tramos"][1]["estaciones"].size(), 8u); // 6.75 rounds to 7 segments
    const auto& textos = j["tramos"][0]["estaciones"][0]["textos"];
    EXPECT_FALSE(textos.contains("E(3/8)")); // no concrete rows on a steel sheet
    EXPECT_TRUE(textos.contains("PROGRES"));
}

} // namespace
} // namespace trevalo::calc
