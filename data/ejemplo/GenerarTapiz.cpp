// Paints the wallpaper of the main window, Imagen/TapizKorvel.jpg: a blueprint with a
// continuous beam of three equal spans under a uniform load, its supports and its bending
// moment diagram (support moments -wL^2/10, drawn on the tension side), and the program's
// name. Usage: generar-tapiz DESTINO.jpg (the format follows the extension)

#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

namespace {

constexpr int Ancho = 1280;
constexpr int Alto = 800;

void PintarCuadricula(QPainter& p) {
    QLinearGradient fondo(0, 0, 0, Alto);
    fondo.setColorAt(0, QColor(18, 44, 82));
    fondo.setColorAt(1, QColor(8, 22, 46));
    p.fillRect(0, 0, Ancho, Alto, fondo);
    p.setPen(QPen(QColor(255, 255, 255, 18), 1));
    for (int x = 0; x <= Ancho; x += 20) p.drawLine(x, 0, x, Alto);
    for (int y = 0; y <= Alto; y += 20) p.drawLine(0, y, Ancho, y);
    p.setPen(QPen(QColor(255, 255, 255, 40), 1));
    for (int x = 0; x <= Ancho; x += 100) p.drawLine(x, 0, x, Alto);
    for (int y = 0; y <= Alto; y += 100) p.drawLine(0, y, Ancho, y);
}

// Moment of a span of length 1 under a unit uniform load with end moments ma, mb (sagging
// positive): x (1 - x) / 2 + ma (1 - x) + mb x.
double Momento(double x, double ma, double mb) {
    return x * (1 - x) / 2 + ma * (1 - x) + mb * x;
}

void PintarViga(QPainter& p) {
    const double x0 = 190, luz = 300, yViga = 370, yDiagrama = 610, escala = 900;
    const double extremos[4] = {0, -0.1, -0.1, 0};
    const QColor claro(220, 235, 255);

    // Uniform load: arrows over the whole beam.
    p.setPen(QPen(QColor(255, 196, 64), 2));
    p.drawLine(QPointF(x0, yViga - 70), QPointF(x0 + 3 * luz, yViga - 70));
    for (double x = x0; x <= x0 + 3 * luz + 0.5; x += 30) {
        p.drawLine(QPointF(x, yViga - 70), QPointF(x, yViga - 12));
        p.drawLine(QPointF(x, yViga - 12), QPointF(x - 5, yViga - 22));
        p.drawLine(QPointF(x, yViga - 12), QPointF(x + 5, yViga - 22));
    }

    // Moment diagram on its own axis below the beam, sagging below the axis.
    p.setPen(QPen(QColor(255, 255, 255, 70), 1, Qt::DashLine));
    for (int j = 0; j <= 3; ++j)
        p.drawLine(QPointF(x0 + j * luz, yViga + 50), QPointF(x0 + j * luz, yDiagrama + 90));
    QPainterPath diagrama;
    diagrama.moveTo(x0, yDiagrama);
    for (int t = 0; t < 3; ++t)
        for (int i = 0; i <= 60; ++i) {
            const double x = i / 60.0;
            diagrama.lineTo(x0 + (t + x) * luz,
                            yDiagrama + escala * Momento(x, extremos[t], extremos[t + 1]));
        }
    diagrama.lineTo(x0 + 3 * luz, yDiagrama);
    diagrama.closeSubpath();
    p.setPen(QPen(QColor(120, 200, 255), 2));
    p.setBrush(QColor(120, 200, 255, 60));
    p.drawPath(diagrama);
    p.setPen(QPen(claro, 2));
    p.drawLine(QPointF(x0, yDiagrama), QPointF(x0 + 3 * luz, yDiagrama));

    // The beam and its supports.
    p.setPen(Qt::NoPen);
    p.setBrush(claro);
    p.drawRect(QRectF(x0, yViga - 10, 3 * luz, 20));
    for (int j = 0; j <= 3; ++j) {
        const double x = x0 + j * luz;
        const QPointF triangulo[3] = {{x, yViga + 10}, {x - 16, yViga + 38}, {x + 16, yViga + 38}};
        p.drawPolygon(triangulo, 3);
        p.fillRect(QRectF(x - 24, yViga + 42, 48, 4), claro);
    }
}

void PintarTitulo(QPainter& p) {
    QFont grande(QStringLiteral("DejaVu Sans"), 64, QFont::Bold);
    p.setFont(grande);
    p.setPen(QColor(235, 244, 255));
    p.drawText(QRect(0, 70, Ancho, 110), Qt::AlignHCenter, QStringLiteral("Trevalo 6.0"));
    QFont subtitulo(QStringLiteral("DejaVu Sans"), 24);
    p.setFont(subtitulo);
    p.setPen(QColor(160, 196, 235));
    p.drawText(QRect(0, 180, Ancho, 50), Qt::AlignHCenter,
               QStringLiteral("Análisis y Diseño de Vigas Continuas"));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "uso: generar-tapiz DESTINO.jpg\n");
        return 2;
    }
    QGuiApplication aplicacion(argc, argv);
    QImage imagen(Ancho, Alto, QImage::Format_RGB32);
    QPainter p(&imagen);
    p.setRenderHint(QPainter::Antialiasing);
    PintarCuadricula(p);
    PintarViga(p);
    PintarTitulo(p);
    p.end();
    if (!imagen.save(QString::fromLocal8Bit(argv[1]), nullptr, 90)) {
        std::fprintf(stderr, "no se pudo escribir %s\n", argv[1]);
        return 1;
    }
    return 0;
}
