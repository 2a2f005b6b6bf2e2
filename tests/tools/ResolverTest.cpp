// The command "resolver": a simply supported beam checked against its closed form, and the
// answers to bad input (message on the error stream, non-zero exit).

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <unistd.h>

#include "app/tools/Comandos.h"
#include "app/tools/VigaJson.h"

namespace trevalo::calc {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

struct Salida {
    int codigo;
    std::string salida;
    std::string errores;
};

Salida Ejecutar(const Argumentos& args) {
    std::ostringstream s, e;
    const int codigo = EjecutarCalc(args, s, e);
    return {codigo, s.str(), e.str()};
}

// One span of 6 m on two fixed supports, 30 x 50 cm, f'c 210, 2000 kgf/m without own weight,
// load factor 1.5: reactions wL/2 = 6000, mid-span moment wL^2/8 = 9000 kgf-m.
Json VigaSimple() {
    ProyectoActual p;
    p.FC = 210;
    p.PPV = false;
    VigaActual v;
    NuevaVigaDefecto(v);
    v.NombreVigaActual = "Simple";
    v.LT(1) = 6;
    v.W1(1) = 2000;
    return EscribirVigaJson(p, v);
}

class Resolver : public ::testing::Test {
  protected:
    void SetUp() override {
        carpeta = fs::temp_directory_path() /
                  ("resolver_" + std::to_string(::getpid()) + "_" +
                   std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::create_directories(carpeta);
    }
    void TearDown() override { fs::remove_all(carpeta); }
    std::string Archivo(const std::string& texto, const std::string& nombre = "viga.json") {
        const std::string ruta = (carpeta / nombre).string();
        std::ofstream(ruta) << texto;
        return ruta;
    }
    fs::path carpeta;
};

TEST_F(Resolver, VigaSimplementeApoyada) {
    const Salida r = Ejecutar({"resolver", Archivo(VigaSimple().dump()), "--estaciones", "2"});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    EXPECT_EQ(r.errores, "");
    const Json d = Json::parse(r.salida);
    EXPECT_EQ(d["Viga"], "Simple");
    const Json& res = d["ResultadosViga"];
    EXPECT_EQ(res["NJuntas"], 2);
    ASSERT_EQ(res["ReacV"].size(), 2u);
    EXPECT_NEAR(res["ReacV"][0].get<double>(), 6000, 1e-6);
    EXPECT_NEAR(res["ReacV"][1].get<double>(), 6000, 1e-6);

    ASSERT_EQ(d["Tramos"].size(), 1u);
    const Json& est = d["Tramos"][0]["Estaciones"];
    ASSERT_EQ(est.size(), 13u); // 6 m at 2 a metre
    EXPECT_NEAR(est[0]["x"].get<double>(), 0, 1e-12);
    EXPECT_NEAR(est[0]["V"].get<double>(), 6000, 1e-6);
    EXPECT_NEAR(est[0]["Vu"].get<double>(), 9000, 1e-6);
    EXPECT_NEAR(est[12]["x"].get<double>(), 6, 1e-12);
    const Json& centro = est[6];
    EXPECT_NEAR(centro["x"].get<double>(), 3, 1e-12);
    EXPECT_NEAR(centro["M"].get<double>(), 9000, 1e-6);
    EXPECT_NEAR(centro["Mu"].get<double>(), 13500, 1e-6);
    EXPECT_NEAR(centro["V"].get<double>(), 0, 1e-6);
    // Hand calculation: As = Mn / (fy j2 d) = 8.5798 cm2; the top face at Amin 4.5.
    EXPECT_NEAR(centro["AsInf"].get<double>(), 8.579781008110404, 1e-9);
    EXPECT_NEAR(centro["AsSup"].get<double>(), 4.5, 1e-9);
    EXPECT_EQ(centro["Excede"], false);
    EXPECT_EQ(centro["Estribos"], "@23");
    EXPECT_NEAR(d["Resumen"]["AsInfCentro"][0].get<double>(), 8.579781008110404, 1e-9);
}

TEST_F(Resolver, EstacionesPorDefectoYVigaDeAcero) {
    Json viga = VigaSimple();
    viga["GeneralViga"]["OpcionConcreto"] = 1;
    viga["TiposVigas"][0]["B1"] = 53.8; // cm2
    viga["TiposVigas"][0]["T1"] = 8356; // cm4
    const Salida r = Ejecutar({"resolver", Archivo(viga.dump())});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    const Json d = Json::parse(r.salida);
    const Json& est = d["Tramos"][0]["Estaciones"];
    EXPECT_EQ(est.size(), 61u); // ten a metre
    EXPECT_NEAR(est[30]["M"].get<double>(), 9000, 1e-6);
    EXPECT_FALSE(est[30].contains("AsInf")); // no concrete design on a steel beam
    EXPECT_FALSE(d.contains("Resumen"));
}

struct CasoMalo {
    const char* nombre;
    Argumentos args;       // "@" stands for the written file
    const char* contenido; // of the file, or null for none
    int codigo;
    const char* mensaje; // start of the error text
};

class ResolverMal : public Resolver, public ::testing::WithParamInterface<CasoMalo> {};

TEST_P(ResolverMal, MensajeYCodigo) {
    const CasoMalo& k = GetParam();
    Argumentos args = k.args;
    for (auto& a : args)
        if (a == "@") a = k.contenido ? Archivo(k.contenido) : (carpeta / "falta.json").string();
    const Salida r = Ejecutar(args);
    EXPECT_EQ(r.codigo, k.codigo);
    EXPECT_EQ(r.salida, "");
    EXPECT_EQ(r.errores.rfind(k.mensaje, 0), 0u) << r.errores;
}

// The project of the simple beam with one change.
std::string Cambiada(const char* tabla, int fila, const char* columna, Json valor) {
    Json v = VigaSimple();
    Json& f = fila < 0 ? v[tabla] : v[tabla][static_cast<std::size_t>(fila)];
    f[columna] = std::move(valor);
    return v.dump();
}

const std::string SinLargo = Cambiada("Tramos", 0, "LT", 0);
const std::string TipoFuera = Cambiada("Tramos", 0, "VT", 3);
const std::string TextoPorNumero = Cambiada("GeneralProyecto", -1, "FY", "4200");

INSTANTIATE_TEST_SUITE_P(
    Casos, ResolverMal,
    ::testing::Values(
        CasoMalo{"sin archivo", {"resolver"}, nullptr, 2, "Uso: trevalo-calc resolver"},
        CasoMalo{"archivo ausente",
                 {"resolver", "@"},
                 nullptr,
                 1,
                 "Error 53: No se puede abrir el archivo"},
        CasoMalo{"json roto",
                 {"resolver", "@"},
                 "{\"GeneralProyecto\": ",
                 1,
                 "Error 3343: El texto no es un JSON válido"},
        CasoMalo{"columna ausente",
                 {"resolver", "@"},
                 "{\"GeneralProyecto\": {\"FC\": 210}}",
                 1,
                 "Error 3265: La columna \"Proyecto\" de la tabla \"GeneralProyecto\" no existe."},
        CasoMalo{"tipo erroneo",
                 {"resolver", "@"},
                 TextoPorNumero.c_str(),
                 1,
                 "Error 13: La columna \"FY\" de la tabla \"GeneralProyecto\" debe ser un número."},
        CasoMalo{"tramo sin largo", {"resolver", "@"}, SinLargo.c_str(), 1, "Error 11: "},
        CasoMalo{"tipo inexistente",
                 {"resolver", "@"},
                 TipoFuera.c_str(),
                 1,
                 "Error 9: El subíndice está fuera del intervalo"},
        CasoMalo{"estaciones cero",
                 {"resolver", "@", "--estaciones", "0"},
                 "{}",
                 2,
                 "El valor de --estaciones debe ser un número entero de 1 a 1000."},
        CasoMalo{"estaciones texto",
                 {"resolver", "@", "--estaciones", "dos"},
                 "{}",
                 2,
                 "El valor de --estaciones"},
        CasoMalo{"estaciones sin valor",
                 {"resolver", "@", "--estaciones"},
                 "{}",
                 2,
                 "El valor de --estaciones"},
        CasoMalo{"opcion desconocida",
                 {"resolver", "@", "--rapido"},
                 "{}",
                 2,
                 "Argumento no reconocido: \"--rapido\"."}),
    [](const auto& info) { return "caso" + std::to_string(info.index); });

TEST(ImportarJetOrden, UsoYErrores) {
    Salida r = Ejecutar({"importar-jet", "solo-uno.mdb"});
    EXPECT_EQ(r.codigo, 2);
    EXPECT_EQ(r.errores.rfind("Uso: trevalo-calc importar-jet", 0), 0u);
    r = Ejecutar({"importar-jet", "/no/existe.mdb", "/no/existe/nuevo.trv", "--familia", "otra"});
    EXPECT_EQ(r.codigo, 2);
    r = Ejecutar({"importar-jet", "/no/existe.mdb", "/no/existe/nuevo.trv"});
    EXPECT_EQ(r.codigo, 1);
    EXPECT_EQ(r.errores, "Error 53: No se encontró el archivo \"/no/existe.mdb\".\n");
}

} // namespace
} // namespace trevalo::calc
