#include "shell/Iconos.h"

#include <QAction>
#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStyle>
#include <QToolBar>
#include <cmath>
#include <functional>
#include <map>

#include "shell/PantallaViga.h"

namespace trevalo {

namespace {

constexpr int Lado = 32;
const QColor Tinta(35, 55, 90);
const QColor Acento(200, 60, 40);

QIcon Dibujado(const std::function<void(QPainter&)>& dibujo) {
    QPixmap mapa(Lado, Lado);
    mapa.fill(Qt::transparent);
    QPainter p(&mapa);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Tinta, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    dibujo(p);
    return QIcon(mapa);
}

// A magnifying glass with a sign inside: '+', '-' or a frame for the extents.
QIcon Lupa(char signo) {
    return Dibujado([signo](QPainter& p) {
        p.drawEllipse(QPointF(13, 13), 9, 9);
        p.setPen(QPen(Tinta, 4.5, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(20, 20), QPointF(29, 29));
        p.setPen(QPen(Acento, 2.4, Qt::SolidLine, Qt::RoundCap));
        if (signo != 'e') p.drawLine(QPointF(8.5, 13), QPointF(17.5, 13));
        if (signo == '+') p.drawLine(QPointF(13, 8.5), QPointF(13, 17.5));
        if (signo == 'e') p.drawRect(QRectF(8.5, 9.5, 9, 7));
    });
}

QIcon Mano() {
    return Dibujado([](QPainter& p) {
        QPainterPath palma;
        palma.addRoundedRect(QRectF(8, 14, 17, 14), 5, 5);
        for (int i = 0; i < 4; ++i)
            palma.addRoundedRect(QRectF(8 + 4.4 * i, 5 + (i % 3), 4, 14), 2, 2);
        p.setBrush(QColor(250, 225, 190));
        p.drawPath(palma.simplified());
    });
}

QIcon Cuadricula() {
    return Dibujado([](QPainter& p) {
        p.setPen(QPen(Tinta, 1.6));
        for (double i = 5; i <= 28; i += 7.5) {
            p.drawLine(QPointF(i, 4), QPointF(i, 28));
            p.drawLine(QPointF(4, i), QPointF(28, i));
        }
    });
}

// A sampled diagram with a sign: more or fewer stations.
QIcon Estaciones(char signo) {
    return Dibujado([signo](QPainter& p) {
        p.drawLine(QPointF(3, 12), QPointF(29, 12));
        p.setPen(QPen(Tinta, 1.4));
        const int paso = signo == '+' ? 3 : 6;
        for (int x = 4; x <= 28; x += paso) {
            const double y = 12 + 11 * std::sin((x - 4) * 3.14159 / 24);
            p.drawLine(QPointF(x, 12), QPointF(x, y));
        }
        p.setPen(QPen(Acento, 2.6, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(22, 5), QPointF(30, 5));
        if (signo == '+') p.drawLine(QPointF(26, 1), QPointF(26, 9));
    });
}

// A letter A with a sign: larger, smaller or back to normal.
QIcon Letra(char signo) {
    return Dibujado([signo](QPainter& p) {
        QFont fuente(QStringLiteral("DejaVu Sans"));
        fuente.setPixelSize(signo == '+' ? 24 : (signo == '-' ? 15 : 20));
        fuente.setBold(true);
        p.setFont(fuente);
        p.drawText(QRectF(0, 2, 24, 30), Qt::AlignCenter, QStringLiteral("A"));
        p.setPen(QPen(Acento, 2.6, Qt::SolidLine, Qt::RoundCap));
        if (signo == 'r') {
            p.drawArc(QRectF(20, 3, 10, 10), 30 * 16, 300 * 16);
            return;
        }
        p.drawLine(QPointF(22, 6), QPointF(30, 6));
        if (signo == '+') p.drawLine(QPointF(26, 2), QPointF(26, 10));
    });
}

// The elevation of a beam on two supports, for the tools that lead to a beam.
QIcon VigaIcono() {
    return Dibujado([](QPainter& p) {
        p.setBrush(QColor(190, 200, 215));
        p.drawRect(QRectF(3, 11, 26, 6));
        p.setBrush(Qt::NoBrush);
        for (double x : {7.0, 25.0}) {
            QPainterPath t;
            t.moveTo(x, 17);
            t.lineTo(x - 4, 25);
            t.lineTo(x + 4, 25);
            t.closeSubpath();
            p.drawPath(t);
        }
    });
}

// An arrow pointing at `grados` (0 right, 90 up), for the direction tools.
QIcon Flecha(double grados) {
    return Dibujado([grados](QPainter& p) {
        p.translate(16, 16);
        p.rotate(-grados);
        p.drawLine(QPointF(-11, 0), QPointF(10, 0));
        p.drawLine(QPointF(10, 0), QPointF(3, -7));
        p.drawLine(QPointF(10, 0), QPointF(3, 7));
    });
}

// A hooked arrow turning back (undo) or forward (redo).
QIcon Vuelta(bool atras) {
    return Dibujado([atras](QPainter& p) {
        if (!atras) {
            p.translate(Lado, 0);
            p.scale(-1, 1);
        }
        QPainterPath gancho(QPointF(8, 12));
        gancho.lineTo(19, 12);
        gancho.cubicTo(QPointF(30, 12), QPointF(30, 27), QPointF(19, 27));
        gancho.lineTo(12, 27);
        p.drawPath(gancho);
        p.setPen(QPen(Acento, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPolyline(QPolygonF({QPointF(13, 6), QPointF(7, 12), QPointF(13, 18)}));
    });
}

// Joint numbers: two circled digits on a beam line.
QIcon NumerosJuntas() {
    return Dibujado([](QPainter& p) {
        p.drawLine(QPointF(3, 24), QPointF(29, 24));
        QFont letra = p.font();
        letra.setPixelSize(11);
        letra.setBold(true);
        p.setFont(letra);
        for (int i = 0; i < 2; ++i) {
            const QRectF circulo(3 + 15 * i, 4, 12, 12);
            p.drawEllipse(circulo);
            p.drawText(circulo, Qt::AlignCenter, QString::number(i + 1));
        }
    });
}

QIcon Estandar(QStyle::StandardPixmap pixmap) {
    return QApplication::style()->standardIcon(pixmap);
}

} // namespace

QIcon IconoHerramienta(const QString& clave) {
    static const std::map<QString, std::function<QIcon()>> iconos = {
        {QStringLiteral("ID_Proyecto_Nuevo"), [] { return Estandar(QStyle::SP_FileIcon); }},
        {QStringLiteral("ID_Proyecto_Abrir"), [] { return Estandar(QStyle::SP_DirOpenIcon); }},
        {QStringLiteral("ID_Abrir"), [] { return Estandar(QStyle::SP_DirOpenIcon); }},
        {QStringLiteral("ID_Proyecto_Modificar"),
         [] { return Estandar(QStyle::SP_FileDialogDetailedView); }},
        {QStringLiteral("ID_AnalizarVigas"), [] { return VigaIcono(); }},
        {QStringLiteral("ID_Editar"), [] { return VigaIcono(); }},
        {QStringLiteral("ID_Ayuda_Temas"), [] { return Estandar(QStyle::SP_DialogHelpButton); }},
        {QStringLiteral("ID_Explorador"), [] { return Estandar(QStyle::SP_DirHomeIcon); }},
        {QStringLiteral("ID_KorvelCAD"), [] { return Estandar(QStyle::SP_DialogSaveButton); }},
        {QStringLiteral("ID_ZoomIN"), [] { return Lupa('+'); }},
        {QStringLiteral("ID_ZoomOut"), [] { return Lupa('-'); }},
        {QStringLiteral("ID_ZoomExtents"), [] { return Lupa('e'); }},
        {QStringLiteral("ID_PanRealtime"), [] { return Mano(); }},
        {QStringLiteral("ID_Cuadricula"), [] { return Cuadricula(); }},
        {QStringLiteral("ID_NJuntas"), [] { return NumerosJuntas(); }},
        {QStringLiteral("ID_Deshacer"), [] { return Vuelta(true); }},
        {QStringLiteral("ID_Rehacer"), [] { return Vuelta(false); }},
        {QStringLiteral("ID_DIzquierda"), [] { return Flecha(180); }},
        {QStringLiteral("ID_DDerecha"), [] { return Flecha(0); }},
        {QStringLiteral("ID_DArriba"), [] { return Flecha(90); }},
        {QStringLiteral("ID_DAbajo"), [] { return Flecha(270); }},
        {QStringLiteral("ID_Aumentar"), [] { return Estaciones('+'); }},
        {QStringLiteral("ID_Disminuir"), [] { return Estaciones('-'); }},
        {QStringLiteral("ID_LetraMas"), [] { return Letra('+'); }},
        {QStringLiteral("ID_LetraMenos"), [] { return Letra('-'); }},
        {QStringLiteral("ID_LetraR"), [] { return Letra('r'); }},
    };
    const auto i = iconos.find(clave);
    return i == iconos.end() ? QIcon() : i->second();
}

QToolBar* BarraHerramientas(QWidget& ventana, std::span<const Herramienta> herramientas,
                            PantallaViga& pantalla,
                            const std::function<void(const QString&)>& despachar,
                            std::initializer_list<const char*> separarTras,
                            std::map<QString, QAction*>& acciones) {
    auto* barra = new QToolBar(&ventana);
    barra->setObjectName(QStringLiteral("ToolBar1"));
    barra->setIconSize(QSize(24, 24));
    for (const Herramienta& h : herramientas) {
        const QString clave = QString::fromUtf8(h.clave);
        QAction* a = barra->addAction(IconoHerramienta(clave), QString::fromUtf8(h.titulo));
        a->setObjectName(clave);
        a->setCheckable(h.presionable);
        if (clave == QStringLiteral("ID_PanRealtime"))
            pantalla.FijarHerramientaPan(a);
        else
            QObject::connect(a, &QAction::triggered, &ventana,
                             [despachar, clave] { despachar(clave); });
        acciones[clave] = a;
        for (const char* tras : separarTras)
            if (clave == QString::fromUtf8(tras)) barra->addSeparator();
    }
    return barra;
}

} // namespace trevalo
