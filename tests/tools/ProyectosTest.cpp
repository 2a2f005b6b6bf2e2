// trevalo-calc on project files: vigas, exportar, importar; the messages and exit codes of
// files and beams that cannot be used, with the project left byte for byte as it was.

#include <fstream>

#include <nlohmann/json.hpp>

#include "CalcPrueba.h"
#include "store/BaseDatos.h"

namespace trevalo::calc {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

std::string Bytes(const fs::path& p) {
    std::ifstream f(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

fs::path Plantilla() {
    return fs::path(TREVALO_RUTA_PROGRAMA) / "Imagen" / "ImagenViga.kvl";
}

// Two spans under a uniform load and two point loads.
VigaActual VigaDeDosTramos(const std::string& nombre) {
    VigaActual v;
    v.NombreVigaActual = nombre;
    NuevaVigaDefecto(v);
    v.VigaNueva = true;
    v.NT = 2;
    RedimensionarViga(v);
    v.LT(1) = 5.0;
    v.LT(2) = 3.75;
    v.VT(2) = 1;
    v.W1(1) = 1200;
    v.CantW2(2) = 2;
    v.P(2, 1) = 3000;
    v.LP(2, 1) = 1.5;
    v.P(2, 2) = -500;
    return v;
}

// A project of three beams whose names carry accents and double quotes.
class ProyectosCalc : public ConCarpeta {
  protected:
    void SetUp() override {
        ConCarpeta::SetUp();
        proyecto_ = Ruta("Obra.trv");
        fs::copy_file(Plantilla(), proyecto_);
        EstadoProyecto estado;
        estado.BDProyecto.emplace(BaseDatos::Abrir(proyecto_));
        AbrirRsGeneralViga(estado, ConsultaListaVigas);
        ProyectoActual general;
        general.Proyecto = "Edificio Ñandú";
        SalvarGeneralProyecto(*estado.BDProyecto, general);
        for (const char* nombre : {"V-2 Pórtico", "azotea", "Viga \"1\""}) {
            VigaActual v = VigaDeDosTramos(nombre);
            ASSERT_NO_THROW(SalvarViga(estado, v));
        }
    }
    Json Exportar(const std::string& proyecto, const std::string& viga) {
        const Salida r = Calc({"exportar", proyecto, "--viga", viga});
        EXPECT_EQ(r.codigo, 0) << r.errores;
        return Json::parse(r.salida);
    }

    std::string proyecto_;
};

TEST_F(ProyectosCalc, ExportarEImportarDanLaMismaViga) {
    const Json documento = Exportar(proyecto_, "v-2 pórtico");
    EXPECT_EQ(documento["GeneralViga"]["NombreViga"], "V-2 Pórtico"); // the stored name
    std::ofstream(Ruta("viga.json")) << documento.dump();

    const auto i = Calc({"importar", proyecto_, Ruta("viga.json"), "--nombre", "Copia ñ"});
    ASSERT_EQ(i.codigo, 0) << i.errores;
    EXPECT_EQ(i.salida, "Viga guardada: Copia ñ\n");
    // Identical but for the name, wherever the name stands.
    std::string texto = Exportar(proyecto_, "COPIA Ñ").dump();
    EXPECT_NE(texto.find("\"Copia ñ\""), std::string::npos);
    for (auto p = texto.find("\"Copia ñ\""); p != std::string::npos; p = texto.find("\"Copia ñ\""))
        texto.replace(p, std::string("\"Copia ñ\"").size(), "\"V-2 Pórtico\"");
    EXPECT_EQ(Json::parse(texto), documento);
}

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
    fs::copy_file(Plantilla(), Ruta("Vacio.trv"));
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
    const auto malo = Calc({"resolver", proyecto_, "--viga", "Nadie"});
    EXPECT_EQ(malo.codigo, 1);
    EXPECT_EQ(malo.errores, "Error 3265: La viga no existe en el proyecto: Nadie\n");
}

TEST_F(ProyectosCalc, LosFallosDanMensajeCodigoYDejanElArchivo) {
    std::ofstream(Ruta("texto.trv")) << "no soy un proyecto, sino un texto de prueba";
    std::ofstream(Ruta("malo.json")) << "{ \"GeneralViga\": ";
    BaseDatos::Crear(Ruta("otra.trv")).EjecutarGuion("CREATE TABLE Otra (A TEXT);");
    // Arguments separated by "|"; "@" stands for the folder. The message is a beginning.
    const std::tuple<std::string, int, std::string> casos[] = {
        {"vigas|@/nada.trv", 1, "No existe el archivo: @/nada.trv"},
        {"vigas|@/texto.trv", 1, "El archivo no es un proyecto de vigas: @/texto.trv"},
        {"exportar|@/otra.trv|--viga|a", 1, "El archivo no es un proyecto de vigas: @/otra.trv"},
        {"exportar|@/Obra.trv|--viga|Viga 1", 1, "La viga no existe en el proyecto: Viga 1"},
        {"importar|@/Obra.trv|@/malo.json", 1, ""},
        {"importar|@/Obra.trv|@/nada.json", 1, ""},
        {"importar|@/texto.trv|@/malo.json", 1, "El archivo no es un proyecto de vigas"},
        {"exportar|@/Obra.trv", 2, "Uso: trevalo-calc exportar"},
        {"vigas|@/Obra.trv|--todo|x", 2, "Opción desconocida: --todo"},
        {"vigas|@/Obra.trv|otro", 2, "Número de argumentos incorrecto."},
    };
    const auto sustituir = [this](std::string s) {
        for (auto p = s.find('@'); p != std::string::npos; p = s.find('@'))
            s.replace(p, 1, carpeta.string());
        return s;
    };
    const fs::path vigilados[] = {proyecto_, Ruta("texto.trv"), Ruta("otra.trv")};
    std::vector<std::string> antes;
    for (const auto& p : vigilados) antes.push_back(Bytes(p));
    for (const auto& [linea, codigo, mensaje] : casos) {
        SCOPED_TRACE(linea);
        Argumentos args;
        std::istringstream partes(sustituir(linea));
        for (std::string a; std::getline(partes, a, '|');) args.push_back(a);
        const auto r = Calc(args);
        EXPECT_EQ(r.codigo, codigo);
        EXPECT_TRUE(r.salida.empty());
        EXPECT_FALSE(r.errores.empty());
        EXPECT_EQ(r.errores.rfind(sustituir(mensaje), 0), 0u) << r.errores;
    }
    for (std::size_t i = 0; i < std::size(vigilados); ++i)
        EXPECT_EQ(Bytes(vigilados[i]), antes[i]) << vigilados[i];
    EXPECT_FALSE(fs::exists(Ruta("nada.trv")));
}

} // namespace
} // namespace trevalo::calc
