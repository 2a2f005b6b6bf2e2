// Compaction of project files: the file keeps every beam and shrinks, an old temporary file
// is not reused, and a file the engine cannot compact is left byte for byte as it was.

#include <gtest/gtest.h>

#include <filesystem>

#include "comun/Carpeta.h"
#include "comun/Proyecto.h"
#include "store/Compactar.h"

namespace fs = std::filesystem;
using namespace trevalo;
using namespace trevalo::prueba;

namespace {

class CompactarTest : public ::testing::Test {
  protected:
    CarpetaTemporal carpeta;
    std::string proyectos = carpeta / "Proyectos";
    std::string temporal = TemporalCompactar(proyectos);

    // A project of `n` beams, of which all but the first and the last are then deleted, so
    // that the file holds free pages.
    std::string ProyectoConHuecos(const std::string& nombre, int n) {
        fs::create_directories(proyectos);
        const std::string ruta = proyectos + "/" + nombre;
        std::vector<VigaActual> vigas;
        for (int i = 0; i < n; ++i) vigas.push_back(VigaPrueba("V-" + std::to_string(100 + i), i));
        CrearProyecto(ruta, vigas, AjustesPrueba());
        EstadoProyecto estado;
        AbrirProyectoArchivo(ruta, estado);
        Recordset& lista = *estado.RsGeneralViga;
        lista.MoveNext();
        for (int i = 1; i + 1 < n; ++i, lista.MoveNext())
            EliminarViga(estado, lista.Campo("NombreViga").Texto());
        return ruta;
    }

    static std::vector<std::string> Vigas(const std::string& ruta) {
        EstadoProyecto estado;
        AbrirProyectoArchivo(ruta, estado);
        std::vector<std::string> nombres;
        for (Recordset& r = *estado.RsGeneralViga; !r.AlFinal(); r.MoveNext())
            nombres.push_back(r.Campo("NombreViga").Texto());
        return nombres;
    }
};

TEST_F(CompactarTest, ElTemporalVaJuntoALaCarpetaSinSeparador) {
    EXPECT_EQ(TemporalCompactar("/datos/Proyectos"), "/datos/ProyectosDatosKorvel.mdb");
    EXPECT_EQ(TemporalCompactar("/datos/Proyectos/"), "/datos/Proyectos/DatosKorvel.mdb");
}

TEST_F(CompactarTest, ElProyectoSeAchicaYConservaSusVigas) {
    const std::string ruta = ProyectoConHuecos("Edificio.trv", 40);
    // A file left by a run that crashed is deleted, not taken for the copy.
    EscribirArchivo(temporal, "restos de una corrida anterior");
    const auto antes = fs::file_size(ruta);

    CompactarArchivo(ruta, temporal);

    EXPECT_LT(fs::file_size(ruta), antes);
    EXPECT_FALSE(fs::exists(temporal));
    EXPECT_EQ(Vigas(ruta), (std::vector<std::string>{"V-100", "V-139"}));
    EstadoProyecto estado;
    AbrirProyectoArchivo(ruta, estado);
    VigaActual viga;
    viga.NombreVigaActual = "V-139";
    LeerViga(estado, viga);
    const VigaActual esperada = VigaPrueba("V-139", 39);
    ASSERT_EQ(viga.NT, esperada.NT);
    for (long t = 1; t <= viga.NT; ++t) {
        EXPECT_DOUBLE_EQ(viga.LT(t), esperada.LT(t));
        EXPECT_DOUBLE_EQ(viga.W1(t), esperada.W1(t));
    }
}

// A file the engine cannot read is left as it was; a project whose pages were overwritten is
// the window's test, which stops the run there.
TEST_F(CompactarTest, UnArchivoQueNoSePuedeCompactarQuedaIntacto) {
    const std::string texto = proyectos + "/Notas.trv";
    EscribirArchivo(texto, std::string(5000, 'x'));
    try {
        CompactarArchivo(texto, temporal);
        ADD_FAILURE() << "compactó un archivo ilegible";
    } catch (const ErrorTrevalo& e) {
        EXPECT_NE(e.Numero(), 0);
        EXPECT_FALSE(e.Descripcion().empty());
    }
    EXPECT_EQ(LeerArchivo(texto), std::string(5000, 'x'));
    EXPECT_FALSE(fs::exists(temporal));
}

} // namespace
