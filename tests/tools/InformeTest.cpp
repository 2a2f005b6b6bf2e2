// trevalo-calc informe: the whole road to each kind of file, and the clear refusals of a
// project without beams, an unknown beam, an unwritable file and a wrong extension.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/tools/Comandos.h"
#include "output/ProyectoPrueba.h"

namespace trevalo::calc {
namespace {

namespace fs = std::filesystem;

class InformeTest : public testing::Test {
  protected:
    void SetUp() override {
        carpeta = fs::temp_directory_path() /
                  ("trevalo_calc_informe_" +
                   std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(carpeta);
        fs::create_directories(carpeta);
        proyecto = (carpeta / "Dos Vigas.trv").string();
        CrearProyecto(proyecto, {VigaPrueba("V-1", 0), VigaPrueba("v-ñandú", 1)});
    }
    void TearDown() override { fs::remove_all(carpeta); }

    int Correr(const Argumentos& args) {
        salida.str({});
        errores.str({});
        Argumentos todo{"informe"};
        todo.insert(todo.end(), args.begin(), args.end());
        return EjecutarCalc(todo, salida, errores);
    }

    fs::path carpeta;
    std::string proyecto;
    std::ostringstream salida, errores;
};

TEST_F(InformeTest, WritesEachKindWithProgressForEveryBeam) {
    for (const char* ext : {"pdf", "htm", "xlsx", "rtf"}) {
        const auto archivo = (carpeta / (std::string("informe.") + ext)).string();
        ASSERT_EQ(Correr({proyecto, "--diagramas", "--reacciones", "-o", archivo}), 0)
            << errores.str();
        EXPECT_GT(fs::file_size(archivo), 10000u) << ext;
        EXPECT_NE(salida.str().find("7 páginas, 6 gráficos"), std::string::npos) << salida.str();
        EXPECT_NE(errores.str().find("Exportando la Viga: V-1 (50 %)\n"), std::string::npos);
        EXPECT_NE(errores.str().find("Exportando la Viga: v-ñandú (100 %)\n"), std::string::npos);
    }
}

TEST_F(InformeTest, OneBeamByItsNameInAnyCaseWithoutProgress) {
    const auto archivo = (carpeta / "una.rtf").string();
    ASSERT_EQ(Correr({proyecto, "--viga", "V-ÑANDÚ", "--reacciones", "-o", archivo}), 0)
        << errores.str();
    EXPECT_NE(salida.str().find("2 páginas, 1 gráficos"), std::string::npos) << salida.str();
    EXPECT_EQ(errores.str().find("Exportando"), std::string::npos);
}

TEST_F(InformeTest, RefusalsAreClearAndNonZero) {
    const auto vacio = (carpeta / "Vacio.trv").string();
    CrearProyecto(vacio, {});
    const auto pdf = (carpeta / "r.pdf").string();
    struct Caso {
        Argumentos args;
        int codigo;
        std::string mensaje;
    };
    const std::vector<Caso> casos = {
        {{vacio, "-o", pdf}, 1, "El proyecto no tiene vigas: " + vacio + "\n"},
        {{proyecto, "--viga", "V-9", "-o", pdf}, 1, "No existe la viga V-9 en el proyecto.\n"},
        {{(carpeta / "falta.trv").string(), "-o", pdf},
         1,
         "No existe el proyecto: " + (carpeta / "falta.trv").string() + "\n"},
        {{proyecto, "-o", (carpeta / "no hay" / "r.pdf").string()},
         1,
         "Error: 75\nError de acceso a la ruta o el archivo: " +
             (carpeta / "no hay" / "r.pdf").string() + "\n"},
        {{proyecto, "-o", (carpeta / "r.doc").string()},
         2,
         "El archivo de salida debe terminar en .pdf, .htm, .xlsx o .rtf: " +
             (carpeta / "r.doc").string() + "\n"},
        {{proyecto}, 2, "Falta el proyecto o el archivo de salida (-o).\n"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(Correr(caso.args), caso.codigo) << caso.mensaje;
        EXPECT_NE(errores.str().find(caso.mensaje), std::string::npos) << errores.str();
    }
    EXPECT_FALSE(fs::exists(pdf));
}

} // namespace
} // namespace trevalo::calc
