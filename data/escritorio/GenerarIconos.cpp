// Renders the program's SVG icon into PNG files of the sizes of the icon theme.
// Usage: generar-iconos ICONO.svg CARPETA LADO... writes CARPETA/LADOxLADO/apps/NOMBRE.png,
// NOMBRE being the SVG's file name without its extension.

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    QGuiApplication aplicacion(argc, argv);
    if (argc < 4) {
        std::fputs("Uso: generar-iconos ICONO.svg CARPETA LADO...\n", stderr);
        return 2;
    }
    const QString svg = QString::fromLocal8Bit(argv[1]);
    QSvgRenderer dibujo(svg);
    if (!dibujo.isValid()) {
        std::fprintf(stderr, "No se pudo leer el icono %s\n", argv[1]);
        return 1;
    }
    const QString nombre = QFileInfo(svg).completeBaseName() + QStringLiteral(".png");
    for (int i = 3; i < argc; ++i) {
        const int lado = QString::fromLocal8Bit(argv[i]).toInt();
        const QString carpeta =
            QString::fromLocal8Bit(argv[2]) + QStringLiteral("/%1x%1/apps").arg(lado);
        QImage imagen(lado, lado, QImage::Format_ARGB32_Premultiplied);
        imagen.fill(Qt::transparent);
        QPainter pintor(&imagen);
        pintor.setRenderHint(QPainter::Antialiasing);
        dibujo.render(&pintor);
        pintor.end();
        if (lado <= 0 || !QDir().mkpath(carpeta) || !imagen.save(carpeta + u'/' + nombre)) {
            std::fprintf(stderr, "No se pudo escribir el icono de %s px\n", argv[i]);
            return 1;
        }
    }
    return 0;
}
