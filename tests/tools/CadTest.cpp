// trevalo-calc cad: concrete beams into a project of the drawing program, each with the steel
// of its own design (checked against the summary `diseno` prints for the beam); appending
// leaves the other beams byte for byte; every refusal leaves the target as it was.

#include <nlohmann/json.hpp>

#include <sys/stat.h>

#include "CalcPrueba.h"
#include "comun/Proyecto.h"
#include "comun/ProyectoCAD.h"

namespace trevalo::calc {
namespace {

using namespace trevalo::prueba;
namespace fs = std::filesystem;

class CadTest : public ConCarpeta {
  protected:
    // Beams V-1 (one span), V-2 (four spans), the steel beam P-1 and, when asked, V-3 whose
    // span of 99,999,999 m cannot be designed.
    void SetUp() override { Crear(false); }
    void Crear(bool conFallida) {
        VigaActual acero = VigaPrueba("P-1", 0);
        acero.OpcionConcreto = 1;
        PonerTipos(acero, {{53.8, 8360}});
        std::vector<VigaActual> vigas{VigaPrueba("V-1", 0), VigaPrueba("V-2", 3), acero};
        if (conFallida) {
            vigas.push_back(VigaPrueba("V-3", 0));
            vigas.back().LT(1) = 99999999;
        }
        CrearProyecto(proyecto, vigas, AjustesPrueba());
    }

    int Correr(Argumentos args) {
        args.insert(args.begin(), "cad");
        r = Calc(args);
        return r.codigo;
    }

    Recordset Leer(const std::string& sql, const Parametros& p = {}) const {
        return BaseDatos::Abrir(destino).AbrirRecordset(sql, p);
    }

    std::vector<std::string> Nombres(const char* tabla) const {
        std::vector<std::string> nombres;
        for (auto rs = Leer(std::string("SELECT DISTINCT Nombre FROM ") + tabla + " ORDER BY 1");
             !rs.AlFinal(); rs.MoveNext())
            nombres.push_back(rs.Campo("Nombre").Texto());
        return nombres;
    }

    // VigaRefTeorico of `nombre` against the steel summary of the design sheet's export.
    void CompararAcero(const std::string& nombre, std::size_t tramos) {
        const Salida d = Calc({"diseno", proyecto, "--viga", nombre});
        ASSERT_EQ(d.codigo, 0) << d.errores;
        const auto resumen = nlohmann::json::parse(d.salida).at("resumenCAD");
        auto rs = Leer("SELECT * FROM VigaRefTeorico WHERE Nombre=? ORDER BY Tramo", {nombre});
        ASSERT_EQ(rs.RecordCount(), static_cast<long>(tramos)) << nombre;
        for (std::size_t t = 0; t < tramos; ++t, rs.MoveNext())
            for (const auto& [campo, valores] : resumen.items())
                EXPECT_EQ(rs.Campo(campo).Doble(), valores.at(t).get<double>())
                    << nombre << " span " << t + 1 << " " << campo;
    }

    std::string proyecto = Ruta("Obra.trv");
    std::string destino = Ruta("Obra.Cad");
    Salida r;
};

TEST_F(CadTest, NewProjectOfEveryConcreteBeamEachWithItsOwnSteel) {
    EscribirArchivo(destino, LeerArchivo(TREVALO_RUTA_PROGRAMA "/Imagen/ImagenCAD8.kvl"));
    BaseDatos::Abrir(destino).Ejecutar("INSERT INTO VigaDatos (Nombre) VALUES ('Vieja')");
    ASSERT_EQ(Correr({proyecto, "-o", destino, "--nuevo", "--columnas"}), 0) << r.errores;
    EXPECT_EQ(r.salida, "Se exportaron 2 viga(s) a " + destino + "\n");
    EXPECT_EQ(r.errores, "Exportando la Viga: V-1\nExportando la Viga: V-2\n");

    auto p = Leer("SELECT * FROM Proyecto");
    ASSERT_EQ(p.RecordCount(), 1);
    EXPECT_EQ(p.Campo("Proyecto").Texto(), "Edificio de prueba");
    EXPECT_EQ(p.Campo("RVigasR").Doble(), 0.04);
    EXPECT_EQ(Nombres("VigaDatos"), (std::vector<std::string>{"V-1", "V-2"})); // Vieja gone
    EXPECT_EQ(Leer("SELECT * FROM VigaEjes WHERE OpcionColInf=0").RecordCount(), 0);
    EXPECT_EQ(Leer("SELECT * FROM VigaEjes").RecordCount(), 2 + 5);
    CompararAcero("V-1", 1);
    CompararAcero("V-2", 4);
    EXPECT_FALSE(fs::exists(destino + ".nuevo"));
}

// Without --nuevo: a missing target made from the template, no project row; beams named in
// any case; a second export of one beam leaves every other row as it was.
TEST_F(CadTest, AppendsTheBeamsNamed) {
    ASSERT_EQ(Correr({proyecto, "-o", destino, "--viga", "v-2"}), 0) << r.errores;
    EXPECT_EQ(Leer("SELECT * FROM Proyecto").RecordCount(), 0);
    EXPECT_EQ(Nombres("VigaTramos"), std::vector<std::string>{"V-2"});
    EXPECT_EQ(Leer("SELECT * FROM VigaEjes WHERE OpcionColInf=1").RecordCount(), 0);

    ASSERT_EQ(Correr({proyecto, "-o", destino, "--viga", "V-1"}), 0) << r.errores;
    const std::string otras = VolcadoCAD(destino, "V-1");
    ASSERT_EQ(Correr({proyecto, "-o", destino, "--viga", "V-1", "--viga", "V-1"}), 0);
    EXPECT_EQ(VolcadoCAD(destino, "V-1"), otras);
    EXPECT_EQ(Nombres("VigaDatos"), (std::vector<std::string>{"V-1", "V-2"}));
    EXPECT_EQ(Leer("SELECT * FROM VigaRefTeorico WHERE Nombre='V-1'").RecordCount(), 1);
    CompararAcero("V-2", 4);
}

// Every refusal: exit code 1 (2 for wrong words) with the message, the target untouched,
// nothing left beside it. A beam that fails mid-way undoes the beams before it.
TEST_F(CadTest, RefusalsLeaveTheTargetAsItWas) {
    Crear(true);
    const std::string plantilla = TREVALO_RUTA_PROGRAMA "/Imagen/ImagenCAD8.kvl";
    const std::string texto = Ruta("Texto.Cad"), fijo = Ruta("Fijo.Cad");
    EscribirArchivo(texto, "no es una base de datos");
    fs::copy_file(plantilla, destino);
    fs::copy_file(plantilla, fijo);
    ::chmod(fijo.c_str(), 0444);
    const std::string noEs = "El archivo no es un proyecto de Korvel-CAD Estructural 8.0: ";
    struct Caso {
        Argumentos args;
        int codigo;
        std::string mensaje; // the start of the error stream's last line
    };
    const Caso casos[] = {
        {{Ruta("Falta.trv"), "-o", destino}, 1, "No existe el archivo: " + Ruta("Falta.trv")},
        {{proyecto, "-o", destino, "--viga", "V-1", "--viga", "V-9"},
         1,
         "La viga no existe en el proyecto: V-9"},
        {{proyecto, "-o", destino, "--viga", "p-1"},
         1,
         "La viga es de acero; sólo las vigas de concreto se exportan a Korvel-CAD Estructural "
         "8.0: P-1"},
        {{proyecto, "-o", texto}, 1, noEs + texto},
        {{proyecto, "-o", texto, "--nuevo"}, 1, noEs + texto},
        {{proyecto, "-o", proyecto, "--nuevo", "--viga", "V-1"}, 1, noEs + proyecto},
        {{proyecto, "-o", fijo, "--viga", "V-1"}, 1, "El archivo es de sólo lectura: " + fijo},
        {{proyecto, "-o", destino}, 1, "Desbordamiento"}, // V-3 after V-1 and V-2
        {{proyecto, "-o", Ruta("Nueva.Cad"), "--nuevo"}, 1, "Desbordamiento"},
        {{proyecto, "--viga", "V-1"}, 2, "Uso: trevalo-calc cad PROYECTO.trv -o OBRA.Cad"},
        {{proyecto, "-o", destino, "--todas"}, 2, "Opción desconocida: --todas"},
    };
    for (const Caso& c : casos) {
        std::map<std::string, std::string> antes;
        for (const std::string& f : {texto, fijo, destino, proyecto}) antes[f] = LeerArchivo(f);
        EXPECT_EQ(Correr(c.args), c.codigo) << c.mensaje;
        EXPECT_NE(r.errores.find(c.mensaje), std::string::npos) << r.errores;
        EXPECT_EQ(r.salida, "");
        for (const auto& [f, contenido] : antes)
            EXPECT_TRUE(LeerArchivo(f) == contenido) << f << " changed by: " << c.mensaje;
        std::size_t archivos = 0;
        for ([[maybe_unused]] const auto& e : fs::directory_iterator(tmp.Ruta())) ++archivos;
        EXPECT_EQ(archivos, 4u) << c.mensaje; // no new file, no work file left behind
    }
}

} // namespace
} // namespace trevalo::calc
