#pragma once
// Fonts and painting need a Qt application object; tests that paint call this first. It
// makes one only when none exists, so test files of one binary can all call it.

#include <QGuiApplication>

namespace trevalo::prueba {

inline void AsegurarAplicacionQt() {
    if (QCoreApplication::instance()) return;
    static int argc = 1;
    static char nombre[] = "pruebas";
    static char* argv[] = {nombre, nullptr};
    static QGuiApplication aplicacion(argc, argv);
}

} // namespace trevalo::prueba
