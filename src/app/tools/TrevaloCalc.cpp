#include <QDir>
#include <QGuiApplication>
#include <iostream>
#include <unistd.h>

#include "app/tools/Comandos.h"

namespace {

// Painting needs fonts and fonts need an application object. The tool opens no window, so
// it needs no display; a shell without a session gets a private runtime folder so that
// nothing but the command's own output reaches the terminal.
void PrepararEntornoQt() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        const QString carpeta = QDir::tempPath() + QStringLiteral("/runtime-%1").arg(getuid());
        QDir().mkpath(carpeta);
        QFile::setPermissions(carpeta, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", carpeta.toLocal8Bit());
    }
}

} // namespace

int main(int argc, char** argv) {
    const trevalo::calc::Argumentos args(argv + 1, argv + argc);
    PrepararEntornoQt();
    QGuiApplication aplicacion(argc, argv);
    return trevalo::calc::EjecutarCalc(args, std::cout, std::cerr);
}
