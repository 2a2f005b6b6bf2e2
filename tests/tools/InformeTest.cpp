// trevalo-calc informe: the whole road to each kind of file, for every beam or for one.

#include "CalcPrueba.h"
#include "comun/Proyecto.h"

namespace trevalo::calc {
namespace {

namespace fs = std::filesystem;

class InformeTest : public ConCarpeta {
  protected:
    void SetUp() override {
        proyecto = Ruta("Dos Vigas.trv");
        prueba::CrearProyecto(proyecto,
                              {prueba::VigaPrueba("V-1", 0), prueba::VigaPrueba("v-ñandú", 1)},
                              prueba::AjustesPrueba());
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

} // namespace
} // namespace trevalo::calc
