// The result views painted on the raster canvas, on screen and as report pictures (710 x 810,
// no grid, taller design sheet), compared with reference pictures that were looked at and
// found right. TREVALO_NUEVAS_REFERENCIAS=1 rewrites the references (look at them before
// committing); every picture painted is also left in the build tree to be looked at.

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <filesystem>

#include "CompararImagenes.h"
#include "VigasPrueba.h"
#include "analysis/AnalisisVigasP.h"
#include "drawing/Ploteos.h"
#include "platform/LienzosArchivo.h"

namespace trevalo::prueba {
namespace {

enum class Vista { Diagramas, Diseno, Reacciones };

struct CasoResultado {
    const char* nombre;
    VigaActual (*viga)();
    Vista vista;
    bool reporte;
};

void Pintar(const CasoResultado& c, LienzoImagen& lienzo, std::string& falla) {
    ProyectoActual proyecto;
    VigaActual viga = c.viga();
    for (long i = 1; i <= viga.NT; ++i) viga.FMayorTramo(i) = viga.FMayoracion;
    ResultadosViga resultados;
    AnalizarViga([](ProyectoActual&) {}, proyecto, viga, resultados);
    EstadoPloteos estado;
    estado.EnPantalla = !c.reporte;
    estado.VerDiagramas = c.vista == Vista::Diagramas;
    estado.VerDiseno = c.vista == Vista::Diseno;
    estado.VerReacciones = c.vista == Vista::Reacciones;
    PlotearViga(lienzo, estado, proyecto, viga, resultados,
                [&](const std::string& texto, const std::string&) { falla = texto; });
}

// Fonts need the application object; one is made on the first picture unless there is one.
void AplicacionGrafica() {
    if (QGuiApplication::instance() != nullptr) return;
    static int argc = 1;
    static char nombre[] = "pruebas_drawing";
    static char* argv[] = {nombre, nullptr};
    static QGuiApplication aplicacion(argc, argv);
}

class ImagenResultado : public ::testing::TestWithParam<CasoResultado> {
  protected:
    void SetUp() override { AplicacionGrafica(); }
};

TEST_P(ImagenResultado, ComoLaReferencia) {
    const CasoResultado& c = GetParam();
    LienzoImagen lienzo(c.reporte ? 710 : 1200, c.reporte ? 810 : 760);
    std::string falla;
    Pintar(c, lienzo, falla);
    EXPECT_EQ(falla, "");

    const std::string archivo = std::string(c.nombre) + ".png";
    const std::filesystem::path salida = TREVALO_SALIDA_PRUEBA;
    std::filesystem::create_directories(salida);
    lienzo.Guardar((salida / archivo).string());
    const auto referencia = std::filesystem::path(TREVALO_DATOS_PRUEBA) / "dibujos" / archivo;
    if (std::getenv("TREVALO_NUEVAS_REFERENCIAS")) {
        std::filesystem::create_directories(referencia.parent_path());
        lienzo.Guardar(referencia.string());
    }
    const QImage esperada(QString::fromStdString(referencia.string()));
    ASSERT_FALSE(esperada.isNull()) << "no reference " << referencia;
    EXPECT_LT(PixelesDistintos(lienzo.Imagen(), esperada), 0.003)
        << "compare " << (salida / archivo) << " with " << referencia;
}

INSTANTIATE_TEST_SUITE_P(
    Dibujos, ImagenResultado,
    ::testing::Values(
        CasoResultado{"diagramas_completa", VigaCompleta, Vista::Diagramas, false},
        CasoResultado{"diseno_completa", VigaCompleta, Vista::Diseno, false},
        CasoResultado{"reacciones_completa", VigaCompleta, Vista::Reacciones, false},
        CasoResultado{"reporte_diagramas_completa", VigaCompleta, Vista::Diagramas, true},
        CasoResultado{"reporte_diseno_completa", VigaCompleta, Vista::Diseno, true},
        CasoResultado{"reporte_reacciones_completa", VigaCompleta, Vista::Reacciones, true},
        CasoResultado{"diagramas_acero_inclinada", VigaAceroInclinada, Vista::Diagramas, false},
        CasoResultado{"reporte_diseno_acero_inclinada", VigaAceroInclinada, Vista::Diseno, true}),
    [](const auto& info) { return std::string(info.param.nombre); });

} // namespace
} // namespace trevalo::prueba
