// Pictures painted on the raster canvas, on screen and as report pictures (710 x 810, no
// grid, taller design sheet), compared with reference pictures that were looked at and found
// right. Fonts render slightly differently between machines, so a picture matches when few
// pixels differ clearly. TREVALO_NUEVAS_REFERENCIAS=1 rewrites the references (look at them
// before committing); every picture painted is also left in the build tree to be looked at.

#include <gtest/gtest.h>

#include <filesystem>

#include "AplicacionQtPrueba.h"
#include "CompararImagenes.h"
#include "analysis/AnalisisVigasP.h"
#include "drawing/Ploteos.h"
#include "drawing/VigasPrueba.h"
#include "platform/lienzos/LienzosArchivo.h"

namespace trevalo::prueba {
namespace {

enum class Vista { Elevacion, Diagramas, Diseno, Reacciones };

struct CasoImagen {
    const char* carpeta;
    const char* nombre;
    VigaActual (*viga)();
    Vista vista;
    int ancho, alto;
    bool enPantalla = true, editor = false;
    double zoom = 1;
};

class Imagen : public ::testing::TestWithParam<CasoImagen> {};

TEST_P(Imagen, ComoLaReferencia) {
    AsegurarAplicacionQt();
    const auto& c = GetParam();
    ProyectoActual proyecto;
    VigaActual viga = c.viga();
    ResultadosViga resultados;
    if (c.vista != Vista::Elevacion) {
        for (long i = 1; i <= viga.NT; ++i) viga.FMayorTramo(i) = viga.FMayoracion;
        AnalizarViga([](ProyectoActual&) {}, proyecto, viga, resultados);
    }
    EstadoPloteos estado;
    estado.EnPantalla = c.enPantalla;
    estado.ModoEditor = estado.VerJuntas = c.editor;
    estado.VerDiagramas = c.vista == Vista::Diagramas;
    estado.VerDiseno = c.vista == Vista::Diseno;
    estado.VerReacciones = c.vista == Vista::Reacciones;
    LienzoImagen lienzo(c.ancho, c.alto);
    if (c.zoom != 1.0) { // calibrate at zoom 1 first, as the window does
        PlotearViga(lienzo, estado, proyecto, viga, resultados);
        estado.FactorZoom = c.zoom;
    }
    ASSERT_NO_THROW(PlotearViga(lienzo, estado, proyecto, viga, resultados));

    const std::string archivo = std::string(c.nombre) + ".png";
    const std::filesystem::path salida = TREVALO_SALIDA_PRUEBA;
    std::filesystem::create_directories(salida);
    lienzo.Guardar((salida / archivo).string());
    const auto referencia = std::filesystem::path(TREVALO_DATOS_PRUEBA) / c.carpeta / archivo;
    if (std::getenv("TREVALO_NUEVAS_REFERENCIAS")) lienzo.Guardar(referencia.string());
    const QImage esperada(QString::fromStdString(referencia.string()));
    ASSERT_FALSE(esperada.isNull()) << "no reference " << referencia;
    EXPECT_LT(PixelesDistintos(lienzo.Imagen(), esperada), 0.003)
        << "compare " << (salida / archivo) << " with " << referencia;
}

constexpr auto E = Vista::Elevacion, M = Vista::Diagramas, D = Vista::Diseno, R = Vista::Reacciones;

INSTANTIATE_TEST_SUITE_P(
    Dibujo, Imagen,
    ::testing::Values(
        CasoImagen{"dibujo", "elevacion_completa", VigaCompleta, E, 1200, 700},
        CasoImagen{"dibujo", "elevacion_completa_zoom2", VigaCompleta, E, 1200, 700, true, false,
                   2},
        CasoImagen{"dibujo", "elevacion_acero_inclinada", VigaAceroInclinada, E, 900, 600},
        CasoImagen{"dibujo", "editor_juntas", VigaCompleta, E, 1000, 500, true, true},
        CasoImagen{"dibujo", "reporte_completa", VigaCompleta, E, 710, 810, false},
        CasoImagen{"dibujos", "diagramas_completa", VigaCompleta, M, 1200, 760},
        CasoImagen{"dibujos", "diseno_completa", VigaCompleta, D, 1200, 760},
        CasoImagen{"dibujos", "reacciones_completa", VigaCompleta, R, 1200, 760},
        CasoImagen{"dibujos", "reporte_diagramas_completa", VigaCompleta, M, 710, 810, false},
        CasoImagen{"dibujos", "reporte_diseno_completa", VigaCompleta, D, 710, 810, false},
        CasoImagen{"dibujos", "reporte_reacciones_completa", VigaCompleta, R, 710, 810, false},
        CasoImagen{"dibujos", "diagramas_acero_inclinada", VigaAceroInclinada, M, 1200, 760},
        CasoImagen{"dibujos", "reporte_diseno_acero_inclinada", VigaAceroInclinada, D, 710, 810,
                   false}),
    [](const auto& info) { return std::string(info.param.nombre); });

} // namespace
} // namespace trevalo::prueba
