// The load dialogs as the beam editor opens them: the first and the last span of the sample
// beam marked, so each shows the last span's loads; a list with none shows two rows typed.

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>
#include <QTimer>

#include "app/capturas/Capturas.h"
#include "shell/Carga01.h"
#include "shell/Carga02.h"
#include "shell/Carga03.h"
#include "shell/Carga04.h"
#include "shell/Carga05.h"
#include "shell/Carga06.h"
#include "shell/Carga07.h"
#include "shell/Carga08.h"

namespace trevalo {

namespace {

// Types `texto` over Long1 and ends the entry with Return.
void EntrarLong1(QDialog& dialogo, const QString& texto) {
    auto* long1 = dialogo.findChild<QLineEdit*>(QStringLiteral("Long1"));
    long1->setText(texto);
    QKeyEvent retorno(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(long1, &retorno);
}

template <class Dialogo>
void Mostrar(Programa& programa, QWidget& editor, const Arreglo<std::int16_t>& marcas,
             const QString& nombre) {
    Dialogo dialogo(programa, marcas, &editor);
    dialogo.show();
    auto* lista = dialogo.template findChild<QTableView*>();
    if (lista && lista->model()->rowCount() == 0) EntrarLong1(dialogo, QStringLiteral("2"));
    Guardar(dialogo, nombre);
    dialogo.hide();
}

} // namespace

void CapturasCargas(Programa& programa, QWidget& editor) {
    const long nt = programa.Viga.NT;
    Arreglo<std::int16_t> marcas(nt);
    marcas(1) = 1;
    marcas(nt) = 1;
    Mostrar<Carga01>(programa, editor, marcas, QStringLiteral("06_carga01"));
    Mostrar<Carga02>(programa, editor, marcas, QStringLiteral("06_carga02"));
    Mostrar<Carga03>(programa, editor, marcas, QStringLiteral("06_carga03"));
    Mostrar<Carga04>(programa, editor, marcas, QStringLiteral("06_carga04"));
    Mostrar<Carga05>(programa, editor, marcas, QStringLiteral("06_carga05"));
    Mostrar<Carga06>(programa, editor, marcas, QStringLiteral("06_carga06"));
    Mostrar<Carga07>(programa, editor, marcas, QStringLiteral("06_carga07"));
    Mostrar<Carga08>(programa, editor, marcas, QStringLiteral("06_carga08"));
    // An upward load shows in red once its entry ends.
    Carga01 negativa(programa, marcas, &editor);
    negativa.show();
    EntrarLong1(negativa, QStringLiteral("-350"));
    Guardar(negativa, QStringLiteral("06_carga01_negativa"));
    negativa.hide();
    // A count over the limit of a list, told on Return.
    Carga03 lista(programa, marcas, &editor);
    lista.show();
    QTimer::singleShot(300, [] {
        if (QWidget* caja = QApplication::activeModalWidget()) {
            Guardar(*caja, QStringLiteral("06_carga03_limite"));
            caja->close();
        }
    });
    EntrarLong1(lista, QStringLiteral("12"));
    Guardar(lista, QStringLiteral("06_carga03_tras_limite"));
    lista.hide();
}

} // namespace trevalo
