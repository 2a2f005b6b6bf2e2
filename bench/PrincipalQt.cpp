// The main of the benchmarks that paint or open windows. The toolkit's application lives on
// main's stack, so that it ends before the toolkit's own static objects do (an application
// kept in a static object outlived them and crashed at exit), and it runs on the offscreen
// platform, so that no display is needed.

#include <benchmark/benchmark.h>

#if TREVALO_BANCO_VENTANAS
#include <QApplication>
using Aplicacion = QApplication;
#else
#include <QGuiApplication>
using Aplicacion = QGuiApplication;
#endif

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Aplicacion aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
