// The load dialogs as the beam editor opens them: the first and the last span of the sample
// beam marked, so each shows the last span's loads.

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include "app/capturas/Capturas.h"
#include "shell/Carga01.h"
#include "shell/Carga04.h"
#include "shell/Carga05.h"

namespace trevalo {

namespace {

template <class Dialogo>
void Mostrar(Programa& programa, QWidget& editor, const Arreglo<std::int16_t>& marcas,
             const QString& nombre) {
    Dialogo dialogo(programa, marcas, &editor);
    Capturar(dialogo, nombre);
}

} // namespace

void CapturasCargas(Programa& programa, QWidget& editor) {
    const long nt = programa.Viga.NT;
    Arreglo<std::int16_t> marcas(nt);
    marcas(1) = 1;
    marcas(nt) = 1;
    Mostrar<Carga01>(programa, editor, marcas, QStringLiteral("06_carga01"));
    Mostrar<Carga04>(programa, editor, marcas, QStringLiteral("06_carga04"));
    Mostrar<Carga05>(programa, editor, marcas, QStringLiteral("06_carga05"));
    // An upward load shows in red once its entry ends.
    Carga01 negativa(programa, marcas, &editor);
    negativa.show();
    auto* long1 = negativa.findChild<QLineEdit*>(QStringLiteral("Long1"));
    long1->setText(QStringLiteral("-350"));
    QKeyEvent retorno(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(long1, &retorno);
    Guardar(negativa, QStringLiteral("06_carga01_negativa"));
}

} // namespace trevalo
