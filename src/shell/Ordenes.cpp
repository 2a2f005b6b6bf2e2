#include "shell/Ordenes.h"

#include <QBoxLayout>
#include <QPushButton>

namespace trevalo {

QPushButton* CrearBoton(QWidget& ventana, const Orden& orden) {
    auto* b = new QPushButton(QString::fromUtf8(orden.texto), &ventana);
    b->setObjectName(QString::fromUtf8(orden.nombre));
    b->setAutoDefault(false);
    if (*orden.tipTexto != '\0') {
        b->setProperty("Tag", QString::fromUtf8(orden.tipTitulo));
        b->setToolTip(QString::fromUtf8(orden.tipTexto));
    }
    return b;
}

QPushButton* BotonDialogo(QWidget& padre, const char* nombre, const char* texto) {
    auto* b = new QPushButton(QString::fromUtf8(texto), &padre);
    b->setObjectName(QString::fromUtf8(nombre));
    return b;
}

void CrearBotones(QWidget& ventana, QBoxLayout& fila, const std::vector<Orden>& ordenes) {
    for (const Orden& o : ordenes) fila.addWidget(CrearBoton(ventana, o));
}

} // namespace trevalo
