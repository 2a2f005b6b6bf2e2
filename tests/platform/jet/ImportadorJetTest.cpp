// Import of Jet files: every table, row and value arrives with its type, the source is never
// changed, and a refused or failed import leaves no target. Expected values are those that
// the files' own tools list (counts and spot values of the data's notes).

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include <unistd.h>

#include "VerificaError.h"
#include "platform/jet/ImportadorJet.h"
#include "platform/motor/MotorDatos.h"

namespace trevalo {
namespace {

namespace fs = std::filesystem;

std::string Jet(const std::string& nombre) {
    return std::string(TREVALO_DATOS_PRUEBA) + "/jet/" + nombre;
}

std::string Bytes(const std::string& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

class ImportadorJet : public ::testing::Test {
  protected:
    void SetUp() override {
        carpeta = fs::temp_directory_path() /
                  ("importador_jet_" + std::to_string(::getpid()) + "_" +
                   ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(carpeta);
        fs::create_directories(carpeta);
    }
    void TearDown() override { fs::remove_all(carpeta); }

    std::string Destino(const std::string& nombre = "nuevo.trv") const {
        return (carpeta / nombre).string();
    }
    // Files left in the work folder, to show that nothing half-written stays.
    long Archivos() const {
        return static_cast<long>(std::distance(fs::directory_iterator(carpeta), {}));
    }

    fs::path carpeta;
};

long Filas(BaseDatos& bd, const std::string& tabla) {
    return bd.AbrirRecordset("SELECT * FROM \"" + tabla + "\"").RecordCount();
}

std::map<std::string, std::string> TiposDeclarados(BaseDatos& bd, const std::string& tabla) {
    std::map<std::string, std::string> tipos;
    Recordset rs = bd.AbrirRecordset("SELECT name, type FROM pragma_table_info('" + tabla + "')");
    for (; !rs.AlFinal(); rs.MoveNext()) tipos[rs.Campo("name").Texto()] = rs.Campo("type").Texto();
    return tipos;
}

TEST_F(ImportadorJet, Jet3TiposBasicos) {
    const std::string antes = Bytes(Jet("testV1997.mdb"));
    const ResultadoImportacion r = ImportarJet(Jet("testV1997.mdb"), Destino());
    EXPECT_EQ(Bytes(Jet("testV1997.mdb")), antes);
    EXPECT_EQ(r.Version, "Jet 3");
    const std::vector<std::pair<std::string, long>> tablas = {
        {"Table1", 2}, {"Table2", 0}, {"Table3", 0}, {"Table4", 0}};
    EXPECT_EQ(r.Tablas, tablas);

    BaseDatos bd = BaseDatos::Abrir(Destino());
    for (const auto& [tabla, filas] : tablas) EXPECT_EQ(Filas(bd, tabla), filas) << tabla;
    EXPECT_EQ(TiposDeclarados(bd, "Table2").size(), 89u);
    const std::map<std::string, std::string> tipos = {
        {"A", "VARCHAR(50)"}, {"B", "VARCHAR(100)"}, {"C", "TINYINT"},
        {"D", "SMALLINT"},    {"E", "INTEGER"},      {"F", "DOUBLE"},
        {"G", "DATETIME"},    {"H", "CURRENCY"},     {"I", "BOOLEAN"}};
    EXPECT_EQ(TiposDeclarados(bd, "Table1"), tipos);

    Recordset rs = bd.AbrirRecordset("SELECT * FROM Table1 ORDER BY E");
    ASSERT_EQ(rs.RecordCount(), 2);
    EXPECT_EQ(rs.Campo("A").Texto(), "a");
    EXPECT_EQ(rs.Campo("G").Texto(), "1981-12-12 00:00:00");
    EXPECT_EQ(rs.Campo("H").Doble(), 0.0);
    EXPECT_EQ(rs.Campo("I").Entero(), 0);
    rs.MoveNext();
    EXPECT_EQ(rs.Campo("A").Texto(), "abcdefg");
    EXPECT_EQ(rs.Campo("B").Texto(), "hijklmnop");
    EXPECT_EQ(rs.Campo("C").Entero(), 2);
    EXPECT_EQ(rs.Campo("D").Entero(), 222);
    EXPECT_EQ(rs.Campo("E").Entero(), 333333333);
    EXPECT_EQ(rs.Campo("F").Doble(), 444.555);
    EXPECT_EQ(rs.Campo("G").Texto(), "1974-09-21 00:00:00");
    EXPECT_EQ(rs.Campo("H").Doble(), 3.5);
    EXPECT_EQ(rs.Campo("I").Entero(), 1);
}

// The same one-row table of 74 columns in both versions; Jet 4 keeps its text as UCS-2.
class ImportadorJetProyectos : public ImportadorJet,
                               public ::testing::WithParamInterface<const char*> {};

TEST_P(ImportadorJetProyectos, FilaCompleta) {
    const std::string origen = Jet(GetParam());
    const std::string antes = Bytes(origen);
    const ResultadoImportacion r = ImportarJet(origen, Destino());
    EXPECT_EQ(Bytes(origen), antes);
    ASSERT_EQ(r.Tablas.size(), 1u);
    EXPECT_EQ(r.Tablas[0], (std::pair<std::string, long>{"MSP_PROJECTS", 1}));

    BaseDatos bd = BaseDatos::Abrir(Destino());
    const auto tipos = TiposDeclarados(bd, "MSP_PROJECTS");
    EXPECT_EQ(tipos.size(), 74u);
    EXPECT_EQ(tipos.at("PROJ_PROP_AUTHOR"), "LONGTEXT");
    EXPECT_EQ(tipos.at("PROJ_NAME"), "VARCHAR(255)");
    EXPECT_EQ(tipos.at("PROJ_OPT_DEF_OVT_RATE"), "DOUBLE");
    EXPECT_EQ(tipos.at("RESERVED_BINARY_DATA"), "LONGBINARY");

    Recordset rs = bd.AbrirRecordset("SELECT * FROM MSP_PROJECTS");
    ASSERT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(rs.Campo("PROJ_ID").Entero(), 1);
    EXPECT_EQ(rs.Campo("PROJ_NAME").Texto(), "Project1");
    EXPECT_EQ(rs.Campo("PROJ_OPT_MINUTES_PER_DAY").Entero(), 480);
    EXPECT_EQ(rs.Campo("PROJ_OPT_MINUTES_PER_WEEK").Entero(), 2400);
    EXPECT_EQ(rs.Campo("PROJ_OPT_CURRENCY_DIGITS").Entero(), 2);
    EXPECT_EQ(rs.Campo("PROJ_OPT_CALC_ACT_COSTS").Entero(), 1);
    EXPECT_EQ(rs.Campo("PROJ_OPT_NEW_ARE_EFFORT_DRIVEN").Entero(), 1);
    EXPECT_EQ(rs.Campo("PROJ_IS_RES_POOL").Entero(), 0);
    EXPECT_EQ(rs.Campo("PROJ_INFO_CAL_NAME").Texto(), "Standard");
    EXPECT_EQ(rs.Campo("PROJ_LAST_SAVED").Texto(), "2006-02-03 22:11:00");
    EXPECT_EQ(rs.Campo("PROJ_CREATION_DATE_EX").Texto(), "2006-02-03 22:11:05");
    EXPECT_EQ(rs.Campo("PROJ_DATA_SOURCE").Texto(), "Z:\\temp\\Project1.mpd");
    EXPECT_TRUE(rs.Campo("PROJ_PROP_CATEGORY").EsNulo());
    EXPECT_TRUE(rs.Campo("PROJ_CHECKEDOUTDATE").EsNulo());
    const std::string autor = rs.Campo("PROJ_PROP_AUTHOR").Texto();
    EXPECT_EQ(autor.rfind("Jon Iles this is a a vawesrasoih", 0), 0u);
    EXPECT_FALSE(rs.Campo("RESERVED_BINARY_DATA").EsNulo());
}

INSTANTIATE_TEST_SUITE_P(Versiones, ImportadorJetProyectos,
                         ::testing::Values("test2V1997.mdb", "test2V2000.mdb"));

TEST_F(ImportadorJet, Jet4TextoUnicodeYObjetoBinario) {
    ImportarJet(Jet("test2V2000.mdb"), Destino());
    BaseDatos bd = BaseDatos::Abrir(Destino());
    Recordset rs = bd.AbrirRecordset("SELECT * FROM MSP_PROJECTS");
    EXPECT_EQ(rs.Campo("PROJ_OPT_CURRENCY_SYMBOL").Texto(), "£");
    const Valor::Binario ole = rs.Campo("RESERVED_BINARY_DATA").Bytes();
    ASSERT_EQ(ole.size(), 22970u);
    // The embedded document: the compound file signature follows the OLE header.
    const std::string contenido(ole.begin(), ole.end());
    EXPECT_NE(contenido.find("Word.Document.8"), std::string::npos);
    EXPECT_NE(contenido.find("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"), std::string::npos);
}

TEST_F(ImportadorJet, ArchivoQueNoEsJetSeRechazaIntacto) {
    const std::string texto = Destino("viga.trv");
    {
        std::ofstream f(texto, std::ios::binary);
        f << "Esto no es una base de datos, aunque su nombre lo diga.\n";
    }
    const std::string antes = Bytes(texto);
    EXPECT_TREVALO_ERROR(ImportarJet(texto, Destino()), ErrFormatoNoReconocido,
                         "El archivo \"" + texto + "\" no es una base de datos Jet 3 ni Jet 4.");
    EXPECT_EQ(Bytes(texto), antes);

    // A database of the new engine is not a Jet file either.
    const std::string sqlite = Destino("nuevo.sqlite");
    BaseDatos::Crear(sqlite).Ejecutar("CREATE TABLE T (a INTEGER)");
    const std::string antesSqlite = Bytes(sqlite);
    EXPECT_TREVALO_ERROR(ImportarJet(sqlite, Destino()), ErrFormatoNoReconocido,
                         "El archivo \"" + sqlite + "\" no es una base de datos Jet 3 ni Jet 4.");
    EXPECT_EQ(Bytes(sqlite), antesSqlite);

    // A Jet file cut short after its first page.
    const std::string cortado = Destino("cortado.mdb");
    {
        std::ofstream f(cortado, std::ios::binary);
        f << Bytes(Jet("testV1997.mdb")).substr(0, 2048);
    }
    EXPECT_THROW(ImportarJet(cortado, Destino()), ErrorTrevalo);
    EXPECT_EQ(Archivos(), 3); // the three sources, no target
}

TEST_F(ImportadorJet, FaltanArchivosOSobranDestinos) {
    EXPECT_TREVALO_ERROR(ImportarJet(Destino("no_existe.trv"), Destino()), ErrArchivoNoEncontrado,
                         "No se encontró el archivo \"" + Destino("no_existe.trv") + "\".");
    const std::string existente = Destino("existente.trv");
    {
        std::ofstream f(existente);
        f << "mío";
    }
    EXPECT_TREVALO_ERROR(ImportarJet(Jet("testV1997.mdb"), existente), ErrArchivoYaExiste,
                         "Ya existe el archivo \"" + existente + "\".");
    EXPECT_EQ(Bytes(existente), "mío");
    // A target in a folder that does not exist: the engine's error, nothing written.
    EXPECT_THROW(ImportarJet(Jet("testV1997.mdb"), Destino("no/hay/carpeta.trv")), ErrorTrevalo);
    EXPECT_EQ(Archivos(), 1);
}

TEST_F(ImportadorJet, FamiliaIncompleta) {
    EXPECT_TREVALO_ERROR(
        ImportarJet(Jet("testV1997.mdb"), Destino(), FamiliaJet::Proyecto), ErrTablaNoEncontrada,
        "Al archivo \"" + Jet("testV1997.mdb") +
            "\" le faltan tablas de un proyecto: GeneralProyecto, GeneralViga, Tramos, Juntas, "
            "JuntasDesplazadas, Juntasrestringidas, JuntasResortes, TiposVigas, CargasTramos, "
            "AccionesNodales.");
    EXPECT_TREVALO_ERROR(ImportarJet(Jet("test2V2000.mdb"), Destino(), FamiliaJet::TablaPerfiles),
                         ErrTablaNoEncontrada,
                         "Al archivo \"" + Jet("test2V2000.mdb") +
                             "\" le faltan tablas de una tabla de perfiles: GeneralPerfil, "
                             "DatosPerfil.");
    EXPECT_EQ(Archivos(), 0);
}

// Day serials counted by hand from 30 December 1899.
TEST(FechaJet, TextoPorFamilia) {
    EXPECT_EQ(TextoFechaJet(29932, FamiliaJet::Cualquiera), "1981-12-12 00:00:00");
    EXPECT_EQ(TextoFechaJet(27293.75, FamiliaJet::TablaPerfiles), "1974-09-21 18:00:00");
    EXPECT_EQ(TextoFechaJet(0, FamiliaJet::Cualquiera), "1899-12-30 00:00:00");
    EXPECT_EQ(TextoFechaJet(27293.75, FamiliaJet::Proyecto), "21/09/1974");
}

} // namespace
} // namespace trevalo
