// trevalo-calc on project files: vigas, exportar, importar; the messages and exit codes of
// files and beams that cannot be used, with the project left byte for byte as it was.

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <nlohmann/json.hpp>

#include "app/tools/Comandos.h"
#include "store/BaseDatos.h"

namespace trevalo::calc {
namespace {

namespace fs = std::filesystem;

struct Resultado {
    int codigo;
    std::string salida, errores;
};

Resultado Calc(const Argumentos& args) {
    std::ostringstream salida, errores;
    const int codigo = EjecutarCalc(args, salida, errores);
    return {codigo, salida.str(), errores.str()};
}

std::string Bytes(const fs::path& p) {
    std::ifstream f(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

class ProyectosCalc : public ::testing::Test {
  protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() /
               ("trevalo_calc_" + std::to_string(::getpid()) + "_" +
                ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(dir_);
        fs::create_directories(dir_);
        proyecto_ = (dir_ / "Obra.trv").string();
        fs::copy_file(Plantilla(), proyecto_);
        EstadoProyecto estado;
        estado.BDProyecto.emplace(BaseDatos::Abrir(proyecto_));
        AbrirRsGeneralViga(estado, ConsultaListaVigas);
        ProyectoActual general;
        general.Proyecto = "Edificio Ñandú";
        general.ProyFecha = "01/02/2026";
        SalvarGeneralProyecto(*estado.BDProyecto, general);
        for (const char* nombre : {"V-2 Pórtico", "azotea", "Viga \"1\""}) {
            VigaActual v = VigaDeDosTramos(nombre);
            ASSERT_TRUE(SalvarViga(estado, v,
                                   [](const std::string& t, const std::string&) { FAIL() << t; }));
        }
    }
    void TearDown() override { fs::remove_all(dir_); }

    static fs::path Plantilla() {
        return fs::path(TREVALO_RUTA_PROGRAMA) / "Imagen" / "ImagenViga.kvl";
    }

    // Two spans on three supports, with loads of several kinds and a spring.
    static VigaActual VigaDeDosTramos(const std::string& nombre) {
        VigaActual v;
        v.NombreVigaActual = nombre;
        NuevaVigaDefecto(v);
        v.VigaNueva = true;
        v.NT = 2;
        RedimensionarViga(v);
        v.LT(1) = 5.0;
        v.LT(2) = 3.75;
        v.VT(2) = 1;
        v.NombreEje(3) = "C";
        v.LDer(3) = 0.2;
        v.LIzq(3) = 0.2;
        v.HC(3) = 0.6;
        v.NJRes = 1;
        for (auto* a : {&v.SH10, &v.SV10, &v.SM10}) a->Redim(1);
        v.R10.Redim(1);
        v.R10(1) = 3;
        v.SV10(1) = 250000;
        v.W1(1) = 1200;
        v.CantW2(2) = 2;
        v.P(2, 1) = 3000;
        v.LP(2, 1) = 1.5;
        v.P(2, 2) = -500;
        v.LP(2, 2) = 3.0;
        v.CantW3(1) = 1;
        v.W3_(1, 1) = 800;
        v.La3_(1, 1) = 1;
        v.Lb3_(1, 1) = 1.5;
        v.CantW8(2) = 1;
        v.WIzq8_(2, 1) = 100;
        v.WDer8_(2, 1) = 900;
        v.La8_(2, 1) = 0.5;
        v.Lb8_(2, 1) = 0.25;
        return v;
    }

    fs::path dir_;
    std::string proyecto_;
};

TEST_F(ProyectosCalc, VigasListaLosNombresEnOrden) {
    const auto r = Calc({"vigas", proyecto_});
    EXPECT_EQ(r.codigo, 0) << r.errores;
    EXPECT_EQ(r.salida, "azotea\nV-2 Pórtico\nViga \"1\"\n");
}

TEST_F(ProyectosCalc, ExportarEImportarDanLaMismaViga) {
    const auto a = Calc({"exportar", proyecto_, "--viga", "v-2 pórtico"});
    ASSERT_EQ(a.codigo, 0) << a.errores;
    auto documento = nlohmann::ordered_json::parse(a.salida);
    EXPECT_EQ(documento["GeneralViga"]["NombreViga"], "V-2 Pórtico"); // the stored name
    EXPECT_EQ(documento["GeneralProyecto"]["Proyecto"], "Edificio Ñandú");
    EXPECT_EQ(documento["Tramos"].size(), 2u);
    const auto json = dir_ / "viga.json";
    std::ofstream(json) << a.salida;

    const auto i = Calc({"importar", proyecto_, json.string(), "--nombre", "Copia ñ"});
    ASSERT_EQ(i.codigo, 0) << i.errores;
    EXPECT_EQ(i.salida, "Viga guardada: Copia ñ\n");
    const auto b = Calc({"exportar", proyecto_, "--viga", "COPIA Ñ"});
    ASSERT_EQ(b.codigo, 0) << b.errores;
    // Identical but for the name, wherever the name stands.
    std::string texto = b.salida;
    EXPECT_NE(texto.find("\"Copia ñ\""), std::string::npos);
    for (auto p = texto.find("\"Copia ñ\""); p != std::string::npos; p = texto.find("\"Copia ñ\""))
        texto.replace(p, std::string("\"Copia ñ\"").size(), "\"V-2 Pórtico\"");
    EXPECT_EQ(nlohmann::ordered_json::parse(texto), documento);
    EXPECT_EQ(Calc({"vigas", proyecto_}).salida.size(),
              std::string("azotea\nCopia ñ\nV-2 Pórtico\nViga \"1\"\n").size());
}

TEST_F(ProyectosCalc, ImportarSobreUnNombreExistenteLoReemplaza) {
    const auto a = Calc({"exportar", proyecto_, "--viga", "azotea"});
    auto documento = nlohmann::ordered_json::parse(a.salida);
    documento["Tramos"][0]["LT"] = 6.5;
    const auto json = dir_ / "viga.json";
    std::ofstream(json) << documento.dump();
    const auto i = Calc({"importar", proyecto_, json.string(), "--nombre", "AZOTEA"});
    ASSERT_EQ(i.codigo, 0) << i.errores;
    EXPECT_EQ(i.salida, "Viga guardada: azotea\n");
    EXPECT_EQ(Calc({"vigas", proyecto_}).salida, "azotea\nV-2 Pórtico\nViga \"1\"\n");
    const auto b =
        nlohmann::ordered_json::parse(Calc({"exportar", proyecto_, "--viga", "azotea"}).salida);
    EXPECT_EQ(b["Tramos"][0]["LT"], 6.5);
}

TEST_F(ProyectosCalc, UnProyectoNuevoTomaLosDatosGeneralesDelArchivo) {
    const auto json = dir_ / "viga.json";
    std::ofstream(json) << Calc({"exportar", proyecto_, "--viga", "azotea"}).salida;
    const auto vacio = dir_ / "Vacio.trv";
    fs::copy_file(Plantilla(), vacio);
    ASSERT_EQ(Calc({"importar", vacio.string(), json.string()}).codigo, 0);
    const auto b = nlohmann::ordered_json::parse(
        Calc({"exportar", vacio.string(), "--viga", "azotea"}).salida);
    EXPECT_EQ(b["GeneralProyecto"]["Proyecto"], "Edificio Ñandú");
}

TEST_F(ProyectosCalc, ResolverUnaVigaDelProyectoComoSuJson) {
    const auto json = dir_ / "viga.json";
    std::ofstream(json) << Calc({"exportar", proyecto_, "--viga", "V-2 Pórtico"}).salida;
    const auto desdeJson = Calc({"resolver", json.string(), "--estaciones", "4"});
    ASSERT_EQ(desdeJson.codigo, 0) << desdeJson.errores;
    const auto desdeProyecto =
        Calc({"resolver", proyecto_, "--viga", "v-2 pórtico", "--estaciones", "4"});
    ASSERT_EQ(desdeProyecto.codigo, 0) << desdeProyecto.errores;
    EXPECT_EQ(desdeProyecto.salida, desdeJson.salida);
    EXPECT_NE(desdeProyecto.salida.find("\"ReacV\""), std::string::npos);

    const auto malo = Calc({"resolver", proyecto_, "--viga", "Nadie"});
    EXPECT_EQ(malo.codigo, 1);
    EXPECT_EQ(malo.errores, "Error 3265: La viga no existe en el proyecto: Nadie\n");
}

struct CasoFallo {
    const char* descripcion;
    std::vector<std::string> args; // "@P" stands for the project, "@D" for the folder
    int codigo;
    std::string mensaje; // start of the message; "@P", "@D" as above
};

std::string Sustituir(std::string s, const std::string& proyecto, const std::string& dir) {
    for (auto [marca, valor] : {std::pair{std::string("@P"), proyecto}, {"@D", dir}})
        for (auto p = s.find(marca); p != std::string::npos; p = s.find(marca))
            s.replace(p, 2, valor);
    return s;
}

TEST_F(ProyectosCalc, LosFallosDanMensajeCodigoYDejanElArchivo) {
    std::ofstream(dir_ / "texto.trv") << "no soy un proyecto, sino un texto de prueba";
    std::ofstream(dir_ / "malo.json") << "{ \"GeneralViga\": ";
    BaseDatos::Crear((dir_ / "otra.trv").string()).EjecutarGuion("CREATE TABLE Otra (A TEXT);");
    const CasoFallo casos[] = {
        {"missing project", {"vigas", "@D/nada.trv"}, 1, "No existe el archivo: @D/nada.trv"},
        {"text file",
         {"vigas", "@D/texto.trv"},
         1,
         "El archivo no es un proyecto de vigas: @D/texto.trv"},
        {"other database",
         {"exportar", "@D/otra.trv", "--viga", "a"},
         1,
         "El archivo no es un proyecto de vigas: @D/otra.trv"},
        {"unknown beam",
         {"exportar", "@P", "--viga", "Viga 1"},
         1,
         "La viga no existe en el proyecto: Viga 1"},
        {"bad json", {"importar", "@P", "@D/malo.json"}, 1, ""},
        {"missing json", {"importar", "@P", "@D/nada.json"}, 1, ""},
        {"import into text",
         {"importar", "@D/texto.trv", "@D/malo.json"},
         1,
         "El archivo no es un proyecto de vigas"},
        {"no beam option", {"exportar", "@P"}, 2, "Uso: trevalo-calc exportar"},
        {"unknown option", {"vigas", "@P", "--todo", "x"}, 2, "Opción desconocida: --todo"},
        {"extra word", {"vigas", "@P", "otro"}, 2, "Número de argumentos incorrecto."},
    };
    const fs::path vigilados[] = {proyecto_, dir_ / "texto.trv", dir_ / "otra.trv"};
    std::vector<std::string> antes;
    for (const auto& p : vigilados) antes.push_back(Bytes(p));
    for (const auto& c : casos) {
        SCOPED_TRACE(c.descripcion);
        Argumentos args;
        for (const auto& a : c.args) args.push_back(Sustituir(a, proyecto_, dir_.string()));
        const auto r = Calc(args);
        EXPECT_EQ(r.codigo, c.codigo);
        EXPECT_TRUE(r.salida.empty());
        EXPECT_FALSE(r.errores.empty());
        EXPECT_EQ(r.errores.rfind(Sustituir(c.mensaje, proyecto_, dir_.string()), 0), 0u)
            << r.errores;
    }
    for (std::size_t i = 0; i < std::size(vigilados); ++i)
        EXPECT_EQ(Bytes(vigilados[i]), antes[i]) << vigilados[i];
    EXPECT_FALSE(fs::exists(dir_ / "nada.trv"));
}

} // namespace
} // namespace trevalo::calc
