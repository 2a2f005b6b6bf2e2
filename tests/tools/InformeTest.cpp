// trevalo-calc informe: the whole road to each kind of file, and the clear refusals of a
// project without beams, an unknown beam, an unwritable file and a wrong extension.

#include "CalcPrueba.h"
#include "output/ProyectoPrueba.h"

namespace trevalo::calc {
namespace {

namespace fs = std::filesystem;

class InformeTest : public ConCarpeta {
  protected:
    void SetUp() override {
        ConCarpeta::SetUp();
        proyecto = Ruta("Dos Vigas.trv");
        CrearProyecto(proyecto, {VigaPrueba("V-1", 0), VigaPrueba("v-ñandú", 1)});
    }
    int Correr(Argumentos args) {
        args.insert(args.begin(), "informe");
        r = Calc(args);
        return r.codigo;
    }

    std::string proyecto;
    Salida r;
};

TEST_F(InformeTest, WritesEachKindWithProgressForEveryBeam) {
    for (const char* ext : {"pdf", "htm", "xlsx", "rtf"}) {
        const auto archivo = Ruta(std::string("informe.") + ext);
        ASSERT_EQ(Correr({proyecto, "--diagramas", "--reacciones", "-o", archivo}), 0) << r.errores;
        EXPECT_GT(fs::file_size(archivo), 10000u) << ext;
        EXPECT_NE(r.salida.find("7 páginas, 6 gráficos"), std::string::npos) << r.salida;
        EXPECT_NE(r.errores.find("Exportando la Viga: V-1 (50 %)\n"), std::string::npos);
        EXPECT_NE(r.errores.find("Exportando la Viga: v-ñandú (100 %)\n"), std::string::npos);
    }
}

TEST_F(InformeTest, OneBeamByItsNameInAnyCaseWithoutProgress) {
    const auto archivo = Ruta("una.rtf");
    ASSERT_EQ(Correr({proyecto, "--viga", "V-ÑANDÚ", "--reacciones", "-o", archivo}), 0)
        << r.errores;
    EXPECT_NE(r.salida.find("2 páginas, 1 gráficos"), std::string::npos) << r.salida;
    EXPECT_EQ(r.errores.find("Exportando"), std::string::npos);
}

TEST_F(InformeTest, RefusalsAreClearAndNonZero) {
    const auto vacio = Ruta("Vacio.trv");
    CrearProyecto(vacio, {});
    const auto pdf = Ruta("r.pdf");
    struct Caso {
        Argumentos args;
        int codigo;
        std::string mensaje;
    };
    const std::vector<Caso> casos = {
        {{vacio, "-o", pdf}, 1, "El proyecto no tiene vigas: " + vacio + "\n"},
        {{proyecto, "--viga", "V-9", "-o", pdf}, 1, "No existe la viga V-9 en el proyecto.\n"},
        {{Ruta("falta.trv"), "-o", pdf}, 1, "No existe el proyecto: " + Ruta("falta.trv") + "\n"},
        {{proyecto, "-o", (carpeta / "no hay" / "r.pdf").string()},
         1,
         "Error: 75\nError de acceso a la ruta o el archivo: " +
             (carpeta / "no hay" / "r.pdf").string() + "\n"},
        {{proyecto, "-o", Ruta("r.doc")},
         2,
         "El archivo de salida debe terminar en .pdf, .htm, .xlsx o .rtf: " + Ruta("r.doc") + "\n"},
        {{proyecto}, 2, "Falta el proyecto o el archivo de salida (-o).\n"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(Correr(caso.args), caso.codigo) << caso.mensaje;
        EXPECT_NE(r.errores.find(caso.mensaje), std::string::npos) << r.errores;
    }
    EXPECT_FALSE(fs::exists(pdf));
}

} // namespace
} // namespace trevalo::calc
