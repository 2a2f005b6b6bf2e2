// The windows as a person feels them: the project window's opening on the sample project, a
// click on a tab (solve and paint) on a beam of 20 spans with every load kind, and one step of
// a pan with the mouse on a canvas of 1600 x 900; the beam editor's opening on that beam and
// one cell typed in it (the cell's rule and the redraw on a canvas of 1600 x 900), and the
// undo of a change of its span count.

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QUndoStack>

#include "VigaBanco.h"
#include "analysis/AnalisisVigasP.h"
#include "shell/DialogosQt.h"
#include "shell/PantallaViga.h"
#include "shell/TextoQt.h"
#include "shell/VigaDatos.h"
#include "shell/VigasProyecto.h"
#include "store/BaseDatos.h"
#include "store/CicloProyecto.h"

namespace trevalo {
namespace {

// A program over a data folder of its own, holding the sample project and a project with
// the 20-span beam.
struct ProgramaBanco {
    ProgramaBanco() : programa(std::make_unique<DialogosQt>()) {
        EntornoInicio entorno;
        entorno.RutaAplicacion = TREVALO_RUTA_PROGRAMA;
        entorno.CarpetaPersonal = Std(carpeta.path());
        entorno.CarpetaDocumentos = entorno.CarpetaPersonal;
        DatosUsuario(entorno, programa.Carpetas);
        EstadoProyecto estado;
        const std::string ejemplo = programa.Carpetas.RutaProyectos + "/Ejemplo Demostrativo.trv";
        const std::string veinte = programa.Carpetas.RutaProyectos + "/Veinte.trv";
        std::filesystem::copy_file(ejemplo, veinte);
        estado.BDProyecto = BaseDatos::Abrir(veinte);
        AbrirRsGeneralViga(estado, ConsultaListaVigas);
        VigaActual viga = VigaTodasLasCargas(20);
        viga.NombreVigaActual = "A-20 Veinte Tramos"; // first in the list
        viga.VigaNueva = true;
        SalvarViga(estado, viga);
    }
    QTemporaryDir carpeta;
    Programa programa;
};

void AbrirVentanaProyecto(benchmark::State& estado) {
    ProgramaBanco p;
    p.programa.Estado.NombreProyecto = "Ejemplo Demostrativo.trv";
    for (auto _ : estado) {
        VigasProyecto ventana(p.programa);
        ventana.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(ventana.Lienzo().Imagen().constBits());
    }
}
BENCHMARK(AbrirVentanaProyecto)->Unit(benchmark::kMillisecond);

// range(0): the tab clicked, 2 diagrams, 3 design sheet, 4 reactions.
void ClicPestana(benchmark::State& estado) {
    ProgramaBanco p;
    p.programa.Estado.NombreProyecto = "Veinte.trv";
    VigasProyecto ventana(p.programa);
    ventana.showNormal();
    ventana.resize(1600 + 300, 900 + 120);
    QApplication::processEvents();
    const int pestana = static_cast<int>(estado.range(0));
    for (auto _ : estado) ventana.ElegirPestana(pestana);
    estado.counters["tramos"] = p.programa.Viga.NT;
    estado.counters["ancho"] = ventana.Lienzo().width();
}
BENCHMARK(ClicPestana)->DenseRange(2, 4)->Unit(benchmark::kMillisecond);

// One move of the mouse with the pan tool pressed, on the force diagrams.
void PasoPan(benchmark::State& estado) {
    ProgramaBanco p;
    auto& programa = p.programa;
    programa.Viga = VigaTodasLasCargas(20);
    AnalizarViga([](ProyectoActual&) {}, programa.Proyecto, programa.Viga, programa.Resultados);
    programa.Vista.VerDiagramas = true;
    PantallaViga lienzo(programa, true);
    lienzo.resize(1600, 900);
    QAction pan;
    pan.setCheckable(true);
    lienzo.FijarHerramientaPan(&pan);
    pan.setChecked(true);
    lienzo.show();
    lienzo.Pintar();
    QMouseEvent presion(QEvent::MouseButtonPress, QPointF(800, 450), QPointF(800, 450),
                        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&lienzo, &presion);
    double x = 800;
    for (auto _ : estado) {
        x += 1;
        QMouseEvent mover(QEvent::MouseMove, QPointF(x, 450), QPointF(x, 450), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&lienzo, &mover);
    }
    if (programa.Vista.PanX != x - 800) estado.SkipWithError("the pan did not follow the mouse");
}
BENCHMARK(PasoPan)->Unit(benchmark::kMillisecond);

// The editor over the 20-span beam in the model, its canvas 1600 x 900.
struct EditorBanco {
    EditorBanco() {
        p.programa.Viga = VigaTodasLasCargas(20);
        p.programa.Viga.VigaNueva = false;
    }
    // The editor open and painted, as a person sees it.
    std::unique_ptr<VigaDatos> Abierto() {
        auto editor = std::make_unique<VigaDatos>(p.programa);
        editor->Lienzo().setFixedSize(1600, 900);
        editor->show();
        QApplication::processEvents();
        return editor;
    }
    ProgramaBanco p;
};

void AbrirEditor(benchmark::State& estado) {
    EditorBanco b;
    for (auto _ : estado) {
        VigaDatos editor(b.p.programa);
        editor.Lienzo().setFixedSize(1600, 900);
        editor.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(editor.Lienzo().Imagen().constBits());
    }
}
BENCHMARK(AbrirEditor)->Unit(benchmark::kMillisecond);

// A length typed into the first span: the cell's rule, the model and the redraw.
void EdicionCelda(benchmark::State& estado) {
    EditorBanco b;
    const auto abierto = b.Abierto();
    VigaDatos& editor = *abierto;
    ModeloCeldas& luces = editor.Modelo(Rejilla::Longitudes);
    bool corta = false;
    for (auto _ : estado) {
        corta = !corta;
        luces.setData(luces.index(0, 0), corta ? QStringLiteral("4.5") : QStringLiteral("5.5"),
                      Qt::EditRole);
    }
    if (b.p.programa.Viga.LT(1) != (corta ? 4.5 : 5.5))
        estado.SkipWithError("the cell was refused");
    estado.counters["ancho"] = editor.Lienzo().width();
}
BENCHMARK(EdicionCelda)->Unit(benchmark::kMillisecond);

// The undo of a change of the span count from 20 to 21, and its redo, in turn: the beam
// restored, every grid filled again and the redraw.
void DeshacerCuentaTramos(benchmark::State& estado) {
    EditorBanco b;
    const auto abierto = b.Abierto();
    VigaDatos& editor = *abierto;
    QLineEdit& tramos = editor.Long(1);
    tramos.setText(QStringLiteral("21"));
    emit tramos.textEdited(tramos.text());
    emit tramos.returnPressed();
    QUndoStack& historia = editor.Historia();
    for (auto _ : estado) {
        if (historia.canUndo())
            historia.undo();
        else
            historia.redo();
    }
    if (historia.count() != 1) estado.SkipWithError("the count was not one step");
}
BENCHMARK(DeshacerCuentaTramos)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace trevalo
