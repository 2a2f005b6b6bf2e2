// trevalo-calc dibujar on beam documents written for the test: the files it paints, their
// size by mode, and its answers to bad command lines.

#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "AplicacionQtPrueba.h"
#include "app/tools/Comandos.h"
#include "app/tools/VigaJson.h"

using namespace trevalo;

namespace {

class Dibujar : public ::testing::Test {
  protected:
    void SetUp() override {
        prueba::AsegurarAplicacionQt();
        // A folder per test: ctest runs the tests of this file side by side.
        dir_ = std::filesystem::temp_directory_path() /
               (std::string("trevalo_dibujar_") +
                ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::create_directories(dir_);
        VigaActual v;
        v.NombreVigaActual = "V-7";
        NuevaVigaDefecto(v);
        v.W1(1) = 2000;
        std::ofstream(Ruta("viga.json")) << calc::EscribirVigaJson(ProyectoActual{}, v).dump();
    }
    void TearDown() override { std::filesystem::remove_all(dir_); }

    std::string Ruta(const std::string& nombre) const { return (dir_ / nombre).string(); }

    int Ejecutar(const calc::Argumentos& args) {
        std::ostringstream salida;
        errores_.str("");
        return calc::EjecutarCalc(args, salida, errores_);
    }

    std::filesystem::path dir_;
    std::ostringstream errores_;
};

TEST_F(Dibujar, CadaVistaEnPantallaYComoReporte) {
    struct Caso {
        std::vector<std::string> extra;
        int ancho, alto;
    };
    for (const std::string vista : {"1", "2", "3", "4"})
        for (const auto& c :
             {Caso{{}, 1000, 600}, Caso{{"--ancho", "640", "--alto", "480"}, 640, 480},
              Caso{{"--reporte"}, 710, 810}}) {
            calc::Argumentos args{"dibujar", Ruta("viga.json"), "--vista", vista,
                                  "-o",      Ruta("vista.png")};
            args.insert(args.end(), c.extra.begin(), c.extra.end());
            ASSERT_EQ(Ejecutar(args), 0) << errores_.str();
            const QImage imagen(QString::fromStdString(Ruta("vista.png")));
            EXPECT_EQ(imagen.size(), QSize(c.ancho, c.alto)) << vista;
            // A report picture has no grid: its top-left corner region stays white.
            const bool conCuadricula = imagen.pixelColor(45, 10) != QColor(Qt::white);
            EXPECT_EQ(conCuadricula, c.extra.empty() || c.extra[0] != "--reporte") << vista;
        }
}

TEST_F(Dibujar, ArchivosVectoriales) {
    for (const std::string ext : {"svg", "pdf"}) {
        const std::string archivo = Ruta("vista." + ext);
        ASSERT_EQ(Ejecutar({"dibujar", Ruta("viga.json"), "--vista", "2", "-o", archivo}), 0)
            << errores_.str();
        std::ifstream f(archivo);
        std::string inicio(5, ' ');
        f.read(inicio.data(), 5);
        EXPECT_EQ(inicio, ext == "pdf" ? "%PDF-" : "<?xml");
    }
}

TEST_F(Dibujar, OrdenesMalFormadas) {
    const std::string v = Ruta("viga.json"), o = Ruta("x.png");
    for (const auto& args : std::vector<calc::Argumentos>{
             {"dibujar", v, "--vista", "1"},            // no output
             {"dibujar", v, "--vista", "5", "-o", o},   // no such view
             {"dibujar", v, "--vista", "dos", "-o", o}, // not a number
             {"dibujar", v, "--vista", "1", "--ancho", "0x", "-o", o},
             {"dibujar", Ruta("p.trv"), "--vista", "1", "-o", o}, // a project needs a beam
             {"dibujar", v, "--vista", "1", "-o", o, "--otra"}}) {
        EXPECT_EQ(Ejecutar(args), 2);
        EXPECT_NE(errores_.str().find("Uso: trevalo-calc dibujar"), std::string::npos);
    }
    EXPECT_FALSE(std::filesystem::exists(o));
}

TEST_F(Dibujar, CadaVigaDelEjemploEnCadaVista) {
    const std::string ejemplo =
        (std::filesystem::path(TREVALO_RUTA_PROGRAMA) / "Imagen" / "Ejemplo Demostrativo.trv")
            .string();
    ASSERT_TRUE(std::filesystem::exists(ejemplo)) << ejemplo;
    std::ostringstream lista;
    ASSERT_EQ(calc::EjecutarCalc({"vigas", ejemplo}, lista, errores_), 0);
    std::istringstream nombres(lista.str());
    int vigas = 0;
    for (std::string nombre; std::getline(nombres, nombre); ++vigas)
        for (const std::string vista : {"1", "2", "3", "4"})
            for (const bool reporte : {false, true}) {
                calc::Argumentos args{"dibujar", ejemplo, "--viga", nombre,
                                      "--vista", vista,   "-o",     Ruta("ejemplo.png")};
                if (reporte) args.push_back("--reporte");
                EXPECT_EQ(Ejecutar(args), 0) << nombre << " " << vista << ": " << errores_.str();
                EXPECT_EQ(errores_.str(), "");
                EXPECT_EQ(QImage(QString::fromStdString(Ruta("ejemplo.png"))).width(),
                          reporte ? 710 : 1000);
            }
    EXPECT_GE(vigas, 6);
}

TEST_F(Dibujar, ArchivoQueNoExiste) {
    EXPECT_EQ(Ejecutar({"dibujar", Ruta("nada.json"), "--vista", "1", "-o", Ruta("x.png")}), 1);
    EXPECT_EQ(errores_.str().rfind("Error 53: ", 0), 0u) << errores_.str();
    EXPECT_EQ(
        Ejecutar({"dibujar", Ruta("nada.trv"), "--viga", "V", "--vista", "1", "-o", Ruta("x.png")}),
        1);
    EXPECT_EQ(errores_.str().rfind("Error 53: ", 0), 0u) << errores_.str();
}

} // namespace
