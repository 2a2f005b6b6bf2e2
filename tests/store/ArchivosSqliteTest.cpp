// Every file the program ships or writes is plain SQLite: a connection without the program's
// collation checks it, and Python's sqlite3 queries a project by name. A project of an
// earlier version, whose schema declared the collation, is converted once when opened and
// keeps every beam; one that cannot be converted stays as it was.

#include <SQLiteCpp/SQLiteCpp.h>

#include <cstring>

#include "ProyectoPrueba.h"
#include "comun/Proyecto.h"
#include "store/Nombres.h"

namespace trevalo::prueba {
namespace {

namespace fs = std::filesystem;

const std::string Imagen = TREVALO_RUTA_PROGRAMA "/Imagen";

// The first line of the integrity check of a plain SQLite connection, or the engine's
// message when it cannot even read the schema.
std::string IntegridadSinColacion(const std::string& ruta) {
    try {
        return SQLite::Database(ruta).execAndGet("PRAGMA integrity_check").getString();
    } catch (const SQLite::Exception& e) {
        return e.what();
    }
}

TEST(ArchivosSqlite, CadaArchivoEntregadoPasaLaVerificacionSinLaColacion) {
    std::set<std::string> vistos;
    for (const auto& entrada : fs::directory_iterator(Imagen)) {
        const std::string extension = entrada.path().extension().string();
        if (extension != ".kvl" && extension != ".trv" && extension != ".pfl") continue;
        SCOPED_TRACE(entrada.path().string());
        EXPECT_EQ(IntegridadSinColacion(entrada.path().string()), "ok");
        vistos.insert(entrada.path().filename().string());
    }
    for (const char* archivo :
         {"ImagenViga.kvl", "ImagenCAD8.kvl", "Temporal.kvl", "Ejemplo Demostrativo.trv",
          "SeccionDobleTee.kvl", "DobleTee_IPE.pfl"})
        EXPECT_TRUE(vistos.count(archivo)) << archivo;
}

// What Python's sqlite3 reads from the project: its integrity check, the count of span rows
// of the beam stored as `nombre`, and the beam names of a plain ORDER BY, one line each.
std::string LeidoPorPython(const std::string& ruta, const std::string& nombre,
                           const std::string& carpeta) {
    const std::string guion = carpeta + "/leer.py";
    EscribirArchivo(guion, "import sqlite3, sys\n"
                           "bd = sqlite3.connect(sys.argv[1])\n"
                           "print(bd.execute('PRAGMA integrity_check').fetchone()[0])\n"
                           "print(bd.execute('SELECT count(*) FROM Tramos WHERE NombreViga = ?',\n"
                           "                 (sys.argv[2],)).fetchone()[0])\n"
                           "print('|'.join(f[0] for f in bd.execute(\n"
                           "    'SELECT NombreViga FROM GeneralViga ORDER BY NombreViga')))\n");
    return SalidaOrden("python3 '" + guion + "' '" + ruta + "' '" + nombre + "' 2>&1");
}

TEST(ArchivosSqlite, PythonConsultaUnProyectoEscritoPorElPrograma) {
    CarpetaTemporal dir;
    const std::string ruta = dir / "Edificio.trv";
    CrearProyecto(ruta, {VigaPrueba("Viga ñ", 2), VigaPrueba("Azotea", 0)}, AjustesPrueba());
    EXPECT_EQ(LeidoPorPython(ruta, "Viga ñ", dir.Ruta()), "ok\n3\nAzotea|Viga ñ\n");
}

// A project as earlier versions wrote it: the template's tables and indexes with the
// collation declared on every NombreViga.
void CrearProyectoAntiguo(const std::string& ruta) {
    SQLite::Database plantilla(Imagen + "/ImagenViga.kvl");
    SQLite::Statement esquema(plantilla, "SELECT sql FROM sqlite_master WHERE sql IS NOT NULL "
                                         "ORDER BY type = 'index'");
    std::string guion;
    while (esquema.executeStep()) {
        std::string sql = esquema.getColumn(0).getString();
        for (const char* columna : {"NombreViga TEXT", "(NombreViga"})
            if (const auto i = sql.find(columna); i != std::string::npos)
                sql.insert(i + std::strlen(columna), " COLLATE ESPANOL");
        guion += sql + ";\n";
    }
    BaseDatos::Crear(ruta).EjecutarGuion(guion);
}

class ProyectoAntiguo : public ::testing::Test {
  protected:
    void SetUp() override {
        CrearProyectoAntiguo(ruta);
        EstadoProyecto estado;
        estado.BDProyecto = BaseDatos::AbrirComoEsta(ruta);
        SalvarGeneralProyecto(*estado.BDProyecto, AjustesPrueba());
        AbrirRsGeneralViga(estado, ConsultaListaVigas);
        std::mt19937 azar(20);
        for (const char* nombre : {"Viga ñ", "azotea", "VIGA 2", "Nivel 1"}) {
            std::set<long> conApoyo;
            auto v = VigaAleatoria(azar, nombre, true, conApoyo);
            v.VigaNueva = true;
            SalvarViga(estado, v);
            esperadas.emplace(nombre, TrasGuardar(v, conApoyo));
            filas.emplace(nombre, Volcar(*estado.BDProyecto, nombre));
        }
    }

    CarpetaTemporal dir;
    std::string ruta = dir / "Antiguo.trv";
    std::map<std::string, VigaActual> esperadas;
    std::map<std::string, Tablas> filas;
};

TEST_F(ProyectoAntiguo, SeConvierteAlAbrirloYConservaCadaViga) {
    EXPECT_EQ(IntegridadSinColacion(ruta), "no such collation sequence: ESPANOL");

    EstadoProyecto estado;
    AbrirProyectoArchivo(ruta, estado);
    EXPECT_EQ(IntegridadSinColacion(ruta), "ok");
    EXPECT_FALSE(fs::exists(ruta + ".conversion"));
    BaseDatos& bd = *estado.BDProyecto;
    EXPECT_EQ(bd.AbrirRecordset("SELECT * FROM sqlite_master WHERE type='index'").RecordCount(), 9);
    EXPECT_EQ(bd.AbrirRecordset("GeneralProyecto").RecordCount(), 1); // a table without names
    std::vector<std::string> lista;
    for (Recordset& rs = *estado.RsGeneralViga; !rs.AlFinal(); rs.MoveNext())
        lista.push_back(rs.Campo("NombreViga").Texto());
    EXPECT_EQ(lista, (std::vector<std::string>{"azotea", "Nivel 1", "VIGA 2", "Viga ñ"}));
    std::vector<std::string> guardadas; // the rows keep the order they were written in
    for (auto rs = bd.AbrirRecordset("SELECT NombreViga FROM GeneralViga ORDER BY rowid");
         !rs.AlFinal(); rs.MoveNext())
        guardadas.push_back(rs.Campo("NombreViga").Texto());
    EXPECT_EQ(guardadas, (std::vector<std::string>{"Viga ñ", "azotea", "VIGA 2", "Nivel 1"}));
    for (const auto& [nombre, esperada] : esperadas) {
        SCOPED_TRACE(nombre);
        EXPECT_TRUE(Volcar(bd, nombre) == filas.at(nombre));
        VigaActual leida;
        leida.NombreVigaActual = Mayusculas(nombre); // names still compare without case
        LeerViga(estado, leida);
        leida.NombreVigaActual = nombre;
        ExpectVigasIguales(leida, esperada);
    }
    EXPECT_EQ(LeidoPorPython(ruta, "VIGA 2", dir.Ruta()).substr(0, 3), "ok\n");
}

TEST_F(ProyectoAntiguo, SiNoSePuedeConvertirQuedaComoEstaba) {
    // The copy's place is taken by a folder that is not the program's to remove.
    EscribirArchivo(ruta + ".conversion/ajeno.txt", "de otro");
    const std::string antes = LeerArchivo(ruta);
    EstadoProyecto estado;
    try {
        AbrirProyectoArchivo(ruta, estado);
        FAIL() << "the conversion must fail";
    } catch (const ErrorTrevalo& e) {
        EXPECT_EQ(e.Descripcion().rfind(
                      "No se pudo convertir el archivo al formato actual: " + ruta + " (", 0),
                  0u)
            << e.Descripcion();
    }
    EXPECT_FALSE(estado.BDProyecto);
    EXPECT_TRUE(LeerArchivo(ruta) == antes);
    EXPECT_EQ(LeerArchivo(ruta + ".conversion/ajeno.txt"), "de otro");
}

} // namespace
} // namespace trevalo::prueba
