#include "shell/VigaDatos.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/PantallaViga.h"
#include "shell/TextoQt.h"

namespace trevalo {

VigaDatos::VigaDatos(Programa& programa, QWidget* parent) : QDialog(parent), programa_(programa) {
    setObjectName(QStringLiteral("VigaDatos"));
    const QString nombre = Qs(programa_.Viga.NombreVigaActual);
    setWindowTitle(QStringLiteral("Datos Generales de la Viga: [ ") + nombre +
                   QStringLiteral(" ]"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* lblNombre = new QLabel(nombre, this);
    lblNombre->setObjectName(QStringLiteral("LblNombre"));
    pantalla_ = new PantallaViga(programa_, false, this);
    pantalla_->setObjectName(QStringLiteral("Picture1"));
    auto* retorno = new QPushButton(QStringLiteral(" Retorno "), this);
    retorno->setObjectName(QStringLiteral("LSButton2"));
    retorno->setAutoDefault(false);
    connect(retorno, &QPushButton::clicked, this, &QDialog::reject);
    connect(pantalla_, &PantallaViga::Redimensionado, pantalla_, &PantallaViga::Pintar);

    auto* capas = new QVBoxLayout(this);
    capas->addWidget(lblNombre);
    capas->addWidget(pantalla_, 1);
    auto* pie = new QHBoxLayout;
    pie->addStretch();
    pie->addWidget(retorno);
    capas->addLayout(pie);
    resize(1100, 700);
    programa_.Vista.ModoEditor = true;
    pantalla_->setFocus();
}

} // namespace trevalo
