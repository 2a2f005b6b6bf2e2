// trevalo-calc on project files: vigas, exportar, importar, and resolver on a beam of a
// project.

#include <fstream>

#include <nlohmann/json.hpp>

#include "CalcPrueba.h"
#include "comun/Proyecto.h"

namespace trevalo::calc {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

// A project of three beams whose names carry accents and double quotes, each of two spans
// under a uniform load and two point loads.
class ProyectosCalc : public ConCarpeta {
  protected:
    void SetUp() override {
        proyecto_ = Ruta("Obra.trv");
        ProyectoActual general;
        general.Proyecto = "Edificio Ñandú";
        std::vector<VigaActual> vigas;
        for (const char* nombre : {"V-2 Pórtico", "azotea", "Viga \"1\""}) {
            vigas.push_back(prueba::VigaDeTramos({5.0, 3.75}));
            vigas.back().NombreVigaActual = nombre;
            vigas.back().W1(1) = 1200;
            prueba::PonerApoyos(vigas.back(), {{1, ApoyoFijo}, {2, ApoyoFijo}});
            prueba::PonerCargas(vigas.back(), 2, 2, {{3000, 1.5}, {-500, 0}});
        }
        prueba::CrearProyecto(proyecto_, vigas, general);
    }
    Json Exportar(const std::string& proyecto, const std::string& viga) {
        const Salida r = Calc({"exportar", proyecto, "--viga", viga});
        EXPECT_EQ(r.codigo, 0) << r.errores;
        return Json::parse(r.salida);
    }

    std::string proyecto_;
};

TEST_F(ProyectosCalc, ImportarReemplazaPorNombreYLlenaUnProyectoNuevo) {
    Json documento = Exportar(proyecto_, "azotea");
    documento["Tramos"][0]["LT"] = 6.5;
    std::ofstream(Ruta("viga.json")) << documento.dump();
    const auto i = Calc({"importar", proyecto_, Ruta("viga.json"), "--nombre", "AZOTEA"});
    ASSERT_EQ(i.codigo, 0) << i.errores;
    EXPECT_EQ(i.salida, "Viga guardada: azotea\n");
    EXPECT_EQ(Calc({"vigas", proyecto_}).salida, "azotea\nV-2 Pórtico\nViga \"1\"\n");
    EXPECT_EQ(Exportar(proyecto_, "azotea")["Tramos"][0]["LT"], 6.5);
    // An empty project takes the settings of the document.
    fs::copy_file(TREVALO_RUTA_PROGRAMA "/Imagen/ImagenViga.kvl", Ruta("Vacio.trv"));
    ASSERT_EQ(Calc({"importar", Ruta("Vacio.trv"), Ruta("viga.json")}).codigo, 0);
    EXPECT_EQ(Exportar(Ruta("Vacio.trv"), "azotea")["GeneralProyecto"]["Proyecto"],
              "Edificio Ñandú");
}

TEST_F(ProyectosCalc, ResolverUnaVigaDelProyectoComoSuJson) {
    std::ofstream(Ruta("viga.json")) << Exportar(proyecto_, "V-2 Pórtico").dump();
    const auto desdeJson = Calc({"resolver", Ruta("viga.json"), "--estaciones", "4"});
    ASSERT_EQ(desdeJson.codigo, 0) << desdeJson.errores;
    const auto desdeProyecto =
        Calc({"resolver", proyecto_, "--viga", "v-2 pórtico", "--estaciones", "4"});
    EXPECT_EQ(desdeProyecto.salida, desdeJson.salida);
    EXPECT_NE(desdeProyecto.salida.find("\"ReacV\""), std::string::npos);
}

} // namespace
} // namespace trevalo::calc
