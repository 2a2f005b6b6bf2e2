#include <QGuiApplication>
#include <iostream>

#include "app/tools/Comandos.h"

int main(int argc, char** argv) {
    const trevalo::calc::Argumentos args(argv + 1, argv + argc);
    // Painting needs fonts and fonts need an application object. The tool opens no window,
    // so it needs no display either.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication aplicacion(argc, argv);
    return trevalo::calc::EjecutarCalc(args, std::cout, std::cerr);
}
