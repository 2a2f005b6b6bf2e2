// trevalo-calc diseno: the station table of the design sheet as JSON.

#include <fstream>

#include <nlohmann/json.hpp>

#include "CalcPrueba.h"
#include "app/tools/VigaJson.h"

namespace trevalo::calc {
namespace {

// A beam of two spans, 4 m and 2.25 m, on three fixed supports under 10000 kgf/m, written as
// the tool's beam document.
void EscribirViga(const std::string& ruta, std::uint8_t opcionConcreto) {
    ProyectoActual p;
    p.PPV = false;
    VigaActual v;
    NuevaVigaDefecto(v);
    v.OpcionConcreto = opcionConcreto;
    v.NT = 2;
    RedimensionarViga(v);
    v.LT(1) = 4.0;
    v.LT(2) = 2.25;
    if (opcionConcreto != 0) {
        v.B1(1) = 50;
        v.T1(1) = 8000;
    }
    v.NJRest = 3;
    v.R1.Redim(3);
    v.Apoyo.Redim(3);
    for (long j = 1; j <= 3; ++j) {
        v.R1(j) = static_cast<std::int16_t>(j);
        v.Apoyo(j) = ApoyoFijo;
        if (j < 3) {
            v.VT(j) = 1;
            v.W1(j) = 10000;
        }
    }
    std::ofstream(ruta) << EscribirVigaJson(p, v).dump();
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

TEST_F(ComandoDiseno, ErroresDeUso) {
    for (const auto& [args, codigo] : std::initializer_list<std::pair<Argumentos, int>>{
             {{"diseno"}, 2},
             {{"diseno", "a.json", "--estaciones", "2.5"}, 2},
             {{"diseno", "/no/existe/viga.json"}, 1}}) {
        const Salida r = Calc(args);
        EXPECT_EQ(r.codigo, codigo) << args.size();
        EXPECT_TRUE(r.salida.empty());
        EXPECT_FALSE(r.errores.empty());
    }
}

TEST_F(ComandoDiseno, VigasDelProyectoDeEjemplo) {
    const std::string proyecto =
        std::string(TREVALO_RUTA_PROGRAMA) + "/Imagen/Ejemplo Demostrativo.trv";
    ASSERT_TRUE(std::filesystem::exists(proyecto)) << proyecto;
    const Salida vigas = Calc({"vigas", proyecto});
    ASSERT_EQ(vigas.codigo, 0) << vigas.errores;
    std::istringstream lista(vigas.salida);
    long cuantas = 0;
    for (std::string nombre; std::getline(lista, nombre); ++cuantas) {
        const Salida r = Calc({"diseno", proyecto, "--viga", nombre});
        ASSERT_EQ(r.codigo, 0) << nombre << ": " << r.errores;
        const auto j = nlohmann::json::parse(r.salida);
        // Every span starts and ends on its joints: the distance from the nearer joint is 0.
        for (const auto& tramo : j["tramos"]) {
            EXPECT_EQ(tramo["estaciones"].front()["textos"]["PROGRES"], "0.00") << nombre;
            EXPECT_EQ(tramo["estaciones"].back()["textos"]["PROGRES"], "0.00") << nombre;
        }
    }
    EXPECT_GT(cuantas, 0);
    EXPECT_EQ(Calc({"diseno", proyecto}).codigo, 2); // a project needs --viga
}

} // namespace
} // namespace trevalo::calc
