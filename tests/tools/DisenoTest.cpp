// trevalo-calc diseno: the station table of the design sheet as JSON.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <nlohmann/json.hpp>

#include "app/tools/Comandos.h"
#include "app/tools/VigaJson.h"
#include "model/Redondeo.h"

namespace trevalo::calc {
namespace {

// A beam of two spans, 4 m and 2.25 m, under 10000 kgf/m, written as the tool's beam
// document into a temporary file.
std::string ArchivoViga(const std::string& nombre, std::uint8_t opcionConcreto) {
    ProyectoActual p;
    p.PPV = false;
    VigaActual v;
    NuevaVigaDefecto(v);
    v.NombreVigaActual = "V-2";
    v.OpcionConcreto = opcionConcreto;
    v.NT = 2;
    RedimensionarViga(v);
    v.LT(1) = 4.0;
    v.LT(2) = 2.25;
    if (opcionConcreto != 0) {
        v.B1(1) = 50;
        v.T1(1) = 8000;
    }
    for (long i = 1; i <= 2; ++i) {
        v.VT(i) = 1;
        v.W1(i) = 10000;
    }
    v.NJRest = 3;
    v.R1.Redim(3);
    v.Apoyo.Redim(3);
    for (long j = 1; j <= 3; ++j) {
        v.R1(j) = static_cast<std::int16_t>(j);
        v.Apoyo(j) = ApoyoFijo;
    }
    const auto ruta = std::filesystem::temp_directory_path() / nombre;
    std::ofstream(ruta) << EscribirVigaJson(p, v).dump();
    return ruta.string();
}

struct Salida {
    int codigo;
    std::string salida, errores;
};

Salida Ejecutar(const Argumentos& args) {
    std::ostringstream s, e;
    const int codigo = EjecutarCalc(args, s, e);
    return {codigo, s.str(), e.str()};
}

TEST(ComandoDiseno, TablaDeUnaVigaDeConcreto) {
    const Salida r = Ejecutar({"diseno", ArchivoViga("diseno_concreto.json", 0)});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    const auto j = nlohmann::json::parse(r.salida);
    EXPECT_EQ(j["viga"], "V-2");
    EXPECT_EQ(j["concreto"], true);
    ASSERT_EQ(j["tramos"].size(), 2u);
    // 4 m at 2 per metre: 9 stations; 2.25 m: 4.5 rounds to 4 (ties to even), 5 stations.
    EXPECT_EQ(j["tramos"][0]["estaciones"].size(), 9u);
    EXPECT_EQ(j["tramos"][1]["estaciones"].size(), 5u);
    const auto& e = j["tramos"][1]["estaciones"];
    const char* progresiva[] = {"0.00", "0.56", "1.13", "0.56", "0.00"};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(e[i]["textos"]["PROGRES"], progresiva[i]) << i;
        EXPECT_DOUBLE_EQ(e[i]["h"].get<double>(), 0.5625 * static_cast<double>(i)) << i;
    }
    // Every row of a concrete sheet, and the texts match the numbers printed beside them.
    for (const auto& tramo : j["tramos"])
        for (const auto& s : tramo["estaciones"]) {
            const double mu = s["Mu"];
            EXPECT_EQ(s["textos"]["VU"], Formato(s["Vu"].get<double>(), "0"));
            EXPECT_EQ(s["textos"]["MU(S)"], mu < 0 ? Formato(mu, "0") : "0");
            EXPECT_EQ(s["textos"]["MU(I)"], mu < 0 ? "0" : Formato(mu, "0"));
            EXPECT_EQ(s["textos"]["E(3/8)"], s["Estribos"]);
            if (!s["Excede"].get<bool>()) {
                EXPECT_EQ(s["textos"]["AS(S)"], Formato(s["AsSup"].get<double>(), "0.00"));
            }
        }
    // Hogging over the middle support: the first span's right end has top steel above the
    // minimum of its left end, which carries no moment.
    const auto& hoja = j["resumenHoja"];
    const auto& cad = j["resumenCAD"];
    ASSERT_EQ(hoja["AsSupDerecha"].size(), 2u);
    EXPECT_GT(hoja["AsSupDerecha"][0].get<double>(), hoja["AsSupIzquierda"][0].get<double>());
    for (const char* campo : {"AsSupIzquierda", "AsInfIzquierda", "AsSupDerecha", "AsInfDerecha"})
        for (std::size_t t = 0; t < 2; ++t)
            EXPECT_DOUBLE_EQ(cad[campo][t].get<double>(),
                             RoundKorvel(hoja[campo][t].get<double>(), 2))
                << campo << t;
    // The export stores its centre values rounded to hundredths.
    for (const char* campo : {"AsSupCentro", "AsInfCentro"})
        for (std::size_t t = 0; t < 2; ++t) {
            const double v = cad[campo][t];
            EXPECT_DOUBLE_EQ(v, RoundKorvel(v, 2)) << campo << t;
            EXPECT_GT(v, 0) << campo << t;
        }
}

TEST(ComandoDiseno, VigaDeAceroSinFilasDeConcreto) {
    const Salida r = Ejecutar({"diseno", ArchivoViga("diseno_acero.json", 1)});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    const auto j = nlohmann::json::parse(r.salida);
    EXPECT_EQ(j["concreto"], false);
    const auto& textos = j["tramos"][0]["estaciones"][0]["textos"];
    EXPECT_FALSE(textos.contains("E(3/8)"));
    EXPECT_FALSE(textos.contains("AS(S)"));
    EXPECT_TRUE(textos.contains("PROGRES"));
}

TEST(ComandoDiseno, EstacionesPorMetro) {
    const Salida r =
        Ejecutar({"diseno", ArchivoViga("diseno_estaciones.json", 0), "--estaciones", "3"});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    const auto j = nlohmann::json::parse(r.salida);
    EXPECT_EQ(j["tramos"][0]["estaciones"].size(), 13u); // 12 segments
    EXPECT_EQ(j["tramos"][1]["estaciones"].size(), 8u);  // 6.75 rounds to 7
}

TEST(ComandoDiseno, ErroresDeUso) {
    struct Caso {
        Argumentos args;
        int codigo;
    };
    const Caso casos[] = {
        {{"diseno"}, 2},
        {{"diseno", "a.json", "--estaciones"}, 2},
        {{"diseno", "a.json", "--estaciones", "0"}, 2},
        {{"diseno", "a.json", "--estaciones", "dos"}, 2},
        {{"diseno", "a.json", "--estaciones", "2.5"}, 2},
        {{"diseno", "a.json", "b.json"}, 2},
        {{"diseno", "/no/existe/viga.json"}, 1},
    };
    for (const Caso& c : casos) {
        const Salida r = Ejecutar(c.args);
        EXPECT_EQ(r.codigo, c.codigo) << c.args.size();
        EXPECT_TRUE(r.salida.empty());
        EXPECT_FALSE(r.errores.empty());
    }
}

TEST(ComandoDiseno, VigasDelProyectoDeEjemplo) {
    const std::string proyecto =
        std::string(TREVALO_RUTA_PROGRAMA) + "/Imagen/Ejemplo Demostrativo.trv";
    ASSERT_TRUE(std::filesystem::exists(proyecto)) << proyecto;
    const Salida vigas = Ejecutar({"vigas", proyecto});
    ASSERT_EQ(vigas.codigo, 0) << vigas.errores;
    std::istringstream lista(vigas.salida);
    long cuantas = 0;
    for (std::string nombre; std::getline(lista, nombre); ++cuantas) {
        const Salida r = Ejecutar({"diseno", proyecto, "--viga", nombre});
        ASSERT_EQ(r.codigo, 0) << nombre << ": " << r.errores;
        const auto j = nlohmann::json::parse(r.salida);
        EXPECT_EQ(j["viga"], nombre);
        // Every span starts and ends on its joints: the distance from the nearer joint is 0.
        for (const auto& tramo : j["tramos"]) {
            EXPECT_EQ(tramo["estaciones"].front()["textos"]["PROGRES"], "0.00") << nombre;
            EXPECT_EQ(tramo["estaciones"].back()["textos"]["PROGRES"], "0.00") << nombre;
        }
    }
    EXPECT_GT(cuantas, 0);
    const Salida falta = Ejecutar({"diseno", proyecto, "--viga", "No Existe"});
    EXPECT_EQ(falta.codigo, 1);
    EXPECT_NE(falta.errores.find("La viga no existe en el proyecto: No Existe"), std::string::npos)
        << falta.errores;
    EXPECT_EQ(Ejecutar({"diseno", proyecto}).codigo, 2); // a project needs --viga
}

} // namespace
} // namespace trevalo::calc
