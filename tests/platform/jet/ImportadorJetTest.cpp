// Import of Jet files: every table, row and value arrives with its type, the source is never
// changed, and a refused or failed import leaves no target. Expected values are those that
// the files' own tools list (counts and spot values of the data's notes).

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "comun/Aserciones.h"
#include "comun/Carpeta.h"
#include "platform/jet/ImportadorJet.h"
#include "platform/motor/MotorDatos.h"

namespace trevalo {
namespace {

namespace fs = std::filesystem;

std::string Jet(const std::string& nombre) {
    return std::string(TREVALO_DATOS_PRUEBA) + "/jet/" + nombre;
}

// A folder of its own for the targets of each test.
class ImportadorJet : public ::testing::Test {
  protected:
    std::string Destino(const std::string& nombre = "nuevo.trv") const { return carpeta / nombre; }
    // Files left in the work folder, to show that nothing half-written stays.
    long Archivos() const {
        return static_cast<long>(std::distance(fs::directory_iterator(carpeta.Ruta()), {}));
    }

    prueba::CarpetaTemporal carpeta;
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
    const std::string antes = prueba::LeerArchivo(Jet("testV1997.mdb"));
    const ResultadoImportacion r = ImportarJet(Jet("testV1997.mdb"), Destino());
    EXPECT_EQ(prueba::LeerArchivo(Jet("testV1997.mdb")), antes);
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

// The same one-row table of 74 columns in both versions; Jet 4 keeps its text as UCS-2 and
// its embedded document whole.
class ImportadorJetProyectos : public ImportadorJet,
                               public ::testing::WithParamInterface<const char*> {};

TEST_P(ImportadorJetProyectos, FilaCompleta) {
    const std::string origen = Jet(GetParam());
    const std::string antes = prueba::LeerArchivo(origen);
    const ResultadoImportacion r = ImportarJet(origen, Destino());
    EXPECT_EQ(prueba::LeerArchivo(origen), antes);
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
    const std::pair<const char*, Valor> valores[] = {
        {"PROJ_ID", Valor(1)},
        {"PROJ_NAME", Valor("Project1")},
        {"PROJ_OPT_MINUTES_PER_DAY", Valor(480)},
        {"PROJ_OPT_MINUTES_PER_WEEK", Valor(2400)},
        {"PROJ_OPT_CURRENCY_DIGITS", Valor(2)},
        {"PROJ_OPT_CALC_ACT_COSTS", Valor(1)},
        {"PROJ_OPT_NEW_ARE_EFFORT_DRIVEN", Valor(1)},
        {"PROJ_IS_RES_POOL", Valor(0)},
        {"PROJ_INFO_CAL_NAME", Valor("Standard")},
        {"PROJ_LAST_SAVED", Valor("2006-02-03 22:11:00")},
        {"PROJ_CREATION_DATE_EX", Valor("2006-02-03 22:11:05")},
        {"PROJ_DATA_SOURCE", Valor("Z:\\temp\\Project1.mpd")}};
    for (const auto& [campo, valor] : valores) EXPECT_EQ(rs.Campo(campo), valor) << campo;
    EXPECT_TRUE(rs.Campo("PROJ_PROP_CATEGORY").EsNulo());
    EXPECT_TRUE(rs.Campo("PROJ_CHECKEDOUTDATE").EsNulo());
    const std::string autor = rs.Campo("PROJ_PROP_AUTHOR").Texto();
    EXPECT_EQ(autor.rfind("Jon Iles this is a a vawesrasoih", 0), 0u);
    EXPECT_FALSE(rs.Campo("RESERVED_BINARY_DATA").EsNulo());
    if (std::string(GetParam()) != "test2V2000.mdb") return;
    EXPECT_EQ(rs.Campo("PROJ_OPT_CURRENCY_SYMBOL").Texto(), "£");
    const Valor::Binario ole = rs.Campo("RESERVED_BINARY_DATA").Bytes();
    ASSERT_EQ(ole.size(), 22970u);
    // The embedded document: the compound file signature follows the OLE header.
    const std::string contenido(ole.begin(), ole.end());
    EXPECT_NE(contenido.find("Word.Document.8"), std::string::npos);
    EXPECT_NE(contenido.find("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Versiones, ImportadorJetProyectos,
                         ::testing::Values("test2V1997.mdb", "test2V2000.mdb"));

TEST_F(ImportadorJet, ArchivoQueNoEsJetSeRechazaIntacto) {
    const std::string texto = Destino("viga.trv");
    prueba::EscribirArchivo(texto, "Esto no es una base de datos, aunque su nombre lo diga.\n");
    const std::string antes = prueba::LeerArchivo(texto);
    EXPECT_TREVALO_ERROR(ImportarJet(texto, Destino()), ErrFormatoNoReconocido,
                         "El archivo \"" + texto + "\" no es una base de datos Jet 3 ni Jet 4.");
    EXPECT_EQ(prueba::LeerArchivo(texto), antes);

    // A database of the new engine is not a Jet file either.
    const std::string sqlite = Destino("nuevo.sqlite");
    BaseDatos::Crear(sqlite).Ejecutar("CREATE TABLE T (a INTEGER)");
    const std::string antesSqlite = prueba::LeerArchivo(sqlite);
    EXPECT_TREVALO_ERROR(ImportarJet(sqlite, Destino()), ErrFormatoNoReconocido,
                         "El archivo \"" + sqlite + "\" no es una base de datos Jet 3 ni Jet 4.");
    EXPECT_EQ(prueba::LeerArchivo(sqlite), antesSqlite);

    // A Jet file cut short after its first page.
    const std::string cortado = Destino("cortado.mdb");
    prueba::EscribirArchivo(cortado, prueba::LeerArchivo(Jet("testV1997.mdb")).substr(0, 2048));
    EXPECT_THROW(ImportarJet(cortado, Destino()), ErrorTrevalo);
    EXPECT_EQ(Archivos(), 3); // the three sources, no target
}

TEST_F(ImportadorJet, FaltanArchivosOSobranDestinos) {
    EXPECT_TREVALO_ERROR(ImportarJet(Destino("no_existe.trv"), Destino()), ErrArchivoNoEncontrado,
                         "No se encontró el archivo \"" + Destino("no_existe.trv") + "\".");
    const std::string existente = Destino("existente.trv");
    prueba::EscribirArchivo(existente, "mío");
    EXPECT_TREVALO_ERROR(ImportarJet(Jet("testV1997.mdb"), existente), ErrArchivoYaExiste,
                         "Ya existe el archivo \"" + existente + "\".");
    EXPECT_EQ(prueba::LeerArchivo(existente), "mío");
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
