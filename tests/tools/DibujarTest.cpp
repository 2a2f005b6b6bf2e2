// trevalo-calc dibujar on a beam document written for the test and on every beam of the
// sample project: the files it paints and their size by mode.

#include <QImage>
#include <fstream>

#include "CalcPrueba.h"
#include "app/tools/VigaJson.h"
#include "comun/AplicacionQt.h"

namespace trevalo::calc {
namespace {

// A default beam under 2000 kgf/m, as a beam document.
class Dibujar : public ConCarpeta {
  protected:
    void SetUp() override {
        trevalo::prueba::AsegurarAplicacionQt();
        VigaActual v;
        NuevaVigaDefecto(v);
        v.W1(1) = 2000;
        std::ofstream(Ruta("viga.json")) << EscribirVigaJson(ProyectoActual{}, v).dump();
    }
    int Ejecutar(const Argumentos& args) {
        const Salida r = Calc(args);
        errores_ = r.errores;
        return r.codigo;
    }

    std::string errores_;
};

TEST_F(Dibujar, TamanoYCuadriculaSegunElModo) {
    struct Caso {
        std::vector<std::string> extra;
        int ancho, alto;
        bool cuadricula;
    };
    for (const auto& c : {Caso{{"--ancho", "640", "--alto", "480"}, 640, 480, true},
                          Caso{{"--reporte"}, 710, 810, false}}) {
        Argumentos args{"dibujar", Ruta("viga.json"), "--vista", "3", "-o", Ruta("v.png")};
        args.insert(args.end(), c.extra.begin(), c.extra.end());
        ASSERT_EQ(Ejecutar(args), 0) << errores_;
        const QImage imagen(QString::fromStdString(Ruta("v.png")));
        EXPECT_EQ(imagen.size(), QSize(c.ancho, c.alto));
        // A report picture has no grid: its top-left corner region stays white.
        EXPECT_EQ(imagen.pixelColor(45, 10) != QColor(Qt::white), c.cuadricula);
    }
}

TEST_F(Dibujar, CadaVigaDelEjemploEnCadaVista) {
    const std::string ejemplo =
        (std::filesystem::path(TREVALO_RUTA_PROGRAMA) / "Imagen" / "Ejemplo Demostrativo.trv")
            .string();
    ASSERT_TRUE(std::filesystem::exists(ejemplo)) << ejemplo;
    const Salida lista = Calc({"vigas", ejemplo});
    ASSERT_EQ(lista.codigo, 0);
    std::istringstream nombres(lista.salida);
    int vigas = 0;
    for (std::string nombre; std::getline(nombres, nombre); ++vigas)
        for (const std::string vista : {"1", "2", "3", "4"})
            for (const bool reporte : {false, true}) {
                Argumentos args{"dibujar", ejemplo, "--viga", nombre,
                                "--vista", vista,   "-o",     Ruta("ejemplo.png")};
                if (reporte) args.push_back("--reporte");
                EXPECT_EQ(Ejecutar(args), 0) << nombre << " " << vista << ": " << errores_;
                EXPECT_EQ(QImage(QString::fromStdString(Ruta("ejemplo.png"))).width(),
                          reporte ? 710 : 1000);
            }
    EXPECT_GE(vigas, 6);
}

} // namespace
} // namespace trevalo::calc
