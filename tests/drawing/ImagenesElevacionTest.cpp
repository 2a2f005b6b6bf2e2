// Elevations painted on the raster canvas and compared with reference pictures that were
// looked at and found right. Fonts render slightly differently between machines, so a
// picture matches when few pixels differ clearly. TREVALO_NUEVAS_REFERENCIAS=1 rewrites
// the references (look at them before committing).

#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>
#include <filesystem>

#include "AplicacionQtPrueba.h"
#include "VigasPrueba.h"
#include "drawing/Ploteos.h"
#include "platform/LienzosArchivo.h"

using namespace trevalo;

namespace {

struct CasoImagen {
    const char* nombre;
    VigaActual (*viga)();
    int ancho, alto;
    bool enPantalla, editor, juntas;
    double zoom;
};

// Share of pixels whose colour differs by more than a quarter of the range in a channel.
double PixelesDistintos(const QImage& a, const QImage& b) {
    if (a.size() != b.size()) return 1.0;
    long distintos = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y), q = b.pixelColor(x, y);
            if (std::abs(p.red() - q.red()) > 64 || std::abs(p.green() - q.green()) > 64 ||
                std::abs(p.blue() - q.blue()) > 64)
                ++distintos;
        }
    return static_cast<double>(distintos) / (a.width() * a.height());
}

class ImagenElevacion : public ::testing::TestWithParam<CasoImagen> {};

TEST_P(ImagenElevacion, ComoLaReferencia) {
    prueba::AsegurarAplicacionQt();
    const auto& c = GetParam();
    auto viga = c.viga();
    ProyectoActual proyecto;
    ResultadosViga resultados;
    EstadoPloteos estado;
    estado.EnPantalla = c.enPantalla;
    estado.ModoEditor = c.editor;
    estado.VerJuntas = c.juntas;
    LienzoImagen lienzo(c.ancho, c.alto);
    if (c.zoom != 1.0) { // calibrate at zoom 1 first, as the window does
        PlotearViga(lienzo, estado, proyecto, viga, resultados, {});
        estado.FactorZoom = c.zoom;
    }
    std::string falla;
    PlotearViga(lienzo, estado, proyecto, viga, resultados,
                [&](const std::string& t, const std::string&) { falla = t; });
    EXPECT_EQ(falla, "");

    const std::filesystem::path salida = TREVALO_SALIDA_PRUEBA;
    std::filesystem::create_directories(salida);
    const std::string archivo = std::string(c.nombre) + ".png";
    lienzo.Guardar((salida / archivo).string());
    const auto referencia = std::filesystem::path(TREVALO_DATOS_PRUEBA) / "dibujo" / archivo;
    if (std::getenv("TREVALO_NUEVAS_REFERENCIAS")) {
        std::filesystem::create_directories(referencia.parent_path());
        lienzo.Guardar(referencia.string());
    }
    const QImage esperada(QString::fromStdString(referencia.string()));
    ASSERT_FALSE(esperada.isNull()) << "no reference " << referencia;
    EXPECT_LT(PixelesDistintos(lienzo.Imagen().convertToFormat(QImage::Format_RGB32),
                               esperada.convertToFormat(QImage::Format_RGB32)),
              0.003)
        << "compare " << (salida / archivo) << " with " << referencia;
}

INSTANTIATE_TEST_SUITE_P(
    Dibujo, ImagenElevacion,
    ::testing::Values(
        CasoImagen{"elevacion_completa", prueba::VigaCompleta, 1200, 700, true, false, false, 1},
        CasoImagen{"elevacion_completa_zoom2", prueba::VigaCompleta, 1200, 700, true, false, false,
                   2},
        CasoImagen{"elevacion_acero_inclinada", prueba::VigaAceroInclinada, 900, 600, true, false,
                   false, 1},
        CasoImagen{"editor_juntas", prueba::VigaCompleta, 1000, 500, true, true, true, 1},
        CasoImagen{"reporte_completa", prueba::VigaCompleta, 710, 810, false, false, false, 1}),
    [](const auto& info) { return std::string(info.param.nombre); });

} // namespace
