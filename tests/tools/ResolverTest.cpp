// The command "resolver": a simply supported beam checked against its closed form.

#include <fstream>

#include "CalcPrueba.h"
#include "app/tools/VigaJson.h"

namespace trevalo::calc {
namespace {

using Json = nlohmann::ordered_json;

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

class Resolver : public ConCarpeta {
  protected:
    std::string Archivo(const std::string& texto) {
        std::ofstream(Ruta("viga.json")) << texto;
        return Ruta("viga.json");
    }
};

TEST_F(Resolver, VigaSimplementeApoyada) {
    const Salida r = Calc({"resolver", Archivo(VigaSimple().dump()), "--estaciones", "2"});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    const Json d = Json::parse(r.salida);
    const Json& res = d["ResultadosViga"];
    ASSERT_EQ(res["ReacV"].size(), 2u);
    EXPECT_NEAR(res["ReacV"][0].get<double>(), 6000, 1e-6);
    EXPECT_NEAR(res["ReacV"][1].get<double>(), 6000, 1e-6);

    const Json& est = d["Tramos"][0]["Estaciones"];
    ASSERT_EQ(est.size(), 13u); // 6 m at 2 a metre
    EXPECT_NEAR(est[0]["V"].get<double>(), 6000, 1e-6);
    EXPECT_NEAR(est[0]["Vu"].get<double>(), 9000, 1e-6);
    const Json& centro = est[6];
    EXPECT_NEAR(centro["x"].get<double>(), 3, 1e-12);
    EXPECT_NEAR(centro["M"].get<double>(), 9000, 1e-6);
    EXPECT_NEAR(centro["Mu"].get<double>(), 13500, 1e-6);
    EXPECT_NEAR(centro["V"].get<double>(), 0, 1e-6);
    // Hand calculation: As = Mn / (fy j2 d) = 8.5798 cm2; the top face at Amin 4.5.
    EXPECT_NEAR(centro["AsInf"].get<double>(), 8.579781008110404, 1e-9);
    EXPECT_NEAR(centro["AsSup"].get<double>(), 4.5, 1e-9);
    EXPECT_EQ(centro["Estribos"], "@23");
    EXPECT_NEAR(d["Resumen"]["AsInfCentro"][0].get<double>(), 8.579781008110404, 1e-9);
}

TEST_F(Resolver, EstacionesPorDefectoYVigaDeAcero) {
    Json viga = VigaSimple();
    viga["GeneralViga"]["OpcionConcreto"] = 1;
    viga["TiposVigas"][0]["B1"] = 53.8; // cm2
    viga["TiposVigas"][0]["T1"] = 8356; // cm4
    const Salida r = Calc({"resolver", Archivo(viga.dump())});
    ASSERT_EQ(r.codigo, 0) << r.errores;
    const Json d = Json::parse(r.salida);
    const Json& est = d["Tramos"][0]["Estaciones"];
    EXPECT_EQ(est.size(), 61u); // ten a metre
    EXPECT_NEAR(est[30]["M"].get<double>(), 9000, 1e-6);
    EXPECT_FALSE(est[30].contains("AsInf")); // no concrete design on a steel beam
    EXPECT_FALSE(d.contains("Resumen"));
}

} // namespace
} // namespace trevalo::calc
