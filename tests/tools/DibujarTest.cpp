// trevalo-calc dibujar on beam documents written for the test: the files it paints, their
// size by mode, and its answers to bad command lines.

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
        ConCarpeta::SetUp();
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

TEST_F(Dibujar, ArchivosVectoriales) {
    for (const std::string ext : {"svg", "pdf"}) {
        const std::string archivo = Ruta("vista." + ext);
        ASSERT_EQ(Ejecutar({"dibujar", Ruta("viga.json"), "--vista", "2", "-o", archivo}), 0)
            << errores_;
        std::ifstream f(archivo);
        std::string inicio(5, ' ');
        f.read(inicio.data(), 5);
        EXPECT_EQ(inicio, ext == "pdf" ? "%PDF-" : "<?xml");
    }
}

TEST_F(Dibujar, OrdenesMalFormadasYArchivosAusentes) {
    const std::string v = Ruta("viga.json"), o = Ruta("x.png");
    for (const auto& args : std::vector<Argumentos>{
             {"dibujar", v, "--vista", "1"},          // no output
             {"dibujar", v, "--vista", "5", "-o", o}, // no such view
             {"dibujar", v, "--vista", "1", "--ancho", "0x", "-o", o},
             {"dibujar", Ruta("p.trv"), "--vista", "1", "-o", o}, // a project needs a beam
             {"dibujar", v, "--vista", "1", "-o", o, "--otra"}}) {
        EXPECT_EQ(Ejecutar(args), 2);
        EXPECT_NE(errores_.find("Uso: trevalo-calc dibujar"), std::string::npos);
    }
    for (const auto& args : std::vector<Argumentos>{
             {"dibujar", Ruta("nada.json"), "--vista", "1", "-o", o},
             {"dibujar", Ruta("nada.trv"), "--viga", "V", "--vista", "1", "-o", o}}) {
        EXPECT_EQ(Ejecutar(args), 1);
        EXPECT_EQ(errores_.rfind("Error 53: ", 0), 0u) << errores_;
    }
    EXPECT_FALSE(std::filesystem::exists(o));
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
