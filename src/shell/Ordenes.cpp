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

std::vector<QPushButton*> CrearBotones(QWidget& ventana, QBoxLayout& fila,
                                       const std::vector<Comando>& comandos) {
    std::vector<QPushButton*> botones;
    for (const auto& [orden, accion] : comandos) {
        QPushButton* boton = CrearBoton(ventana, orden);
        if (accion) QObject::connect(boton, &QPushButton::clicked, &ventana, accion);
        fila.addWidget(boton);
        botones.push_back(boton);
    }
    return botones;
}

} // namespace trevalo
