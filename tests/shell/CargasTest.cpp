// Journeys through the load dialogs of the beam editor: spans marked, the last marked span's
// values shown, values typed and accepted to every marked span, Cancel leaving the beam, and
// the count of the list dialogs with its limit.

#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

#include "VentanasPrueba.h"
#include "comun/Vigas.h"
#include "shell/Carga01.h"
#include "shell/Carga02.h"
#include "shell/Carga03.h"
#include "shell/Carga04.h"
#include "shell/Carga05.h"
#include "shell/Carga06.h"
#include "shell/Carga08.h"
#include "shell/DelegadosCelda.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

// The caption of a field: the label whose buddy it is.
QString Etiqueta(QWidget& ventana, const char* campo) {
    for (QLabel* l : ventana.findChildren<QLabel*>())
        if (l->buddy() == Control(ventana, campo)) return l->text();
    return {};
}

bool Rojo(QWidget& ventana, const char* campo) {
    return Control(ventana, campo)->palette().color(QPalette::Text) == QColor(255, 0, 0);
}

// The limit's message of the list dialogs.
Pregunta Limite(int limite) {
    return {"Número Máximo de Cargas por Viga = " + std::to_string(limite) + "    ",
            "Cargas en Vigas", BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1};
}

QTableView& Lista(QWidget& ventana) {
    return *Control<QTableView>(ventana, "Spread1");
}

// The rows of the list as they show: one vector of values per row.
Filas Valores(QWidget& ventana) {
    QTableView& lista = Lista(ventana);
    Filas filas(static_cast<std::size_t>(lista.model()->rowCount()));
    for (int r = 1; r <= lista.model()->rowCount(); ++r)
        for (int c = 1; c <= lista.model()->columnCount(); ++c)
            filas[static_cast<std::size_t>(r - 1)].push_back(ValorCelda(lista, r, c));
    return filas;
}

// Types into a cell of the list and ends with Return, all by the keyboard.
void EscribirCelda(QWidget& ventana, int fila, int columna, const QString& texto) {
    QTableView& lista = Lista(ventana);
    lista.setFocus();
    lista.setCurrentIndex(lista.model()->index(fila - 1, columna - 1));
    for (const QChar c : texto) QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

// The marks the editor hands over: 1 for the spans listed.
Arreglo<std::int16_t> Marcas(long nt, std::initializer_list<long> marcados) {
    Arreglo<std::int16_t> marcas(nt);
    for (long t : marcados) marcas(t) = 1;
    return marcas;
}

// Opens the dialog on the spans marked and runs the journey; an accepted load is written to
// the marked spans as the editor writes it. Says whether it was accepted.
template <typename T>
bool Abrir(Programa& programa, std::initializer_list<long> marcados,
           std::function<void(T&)> recorrido) {
    const Arreglo<std::int16_t> marcas = Marcas(programa.Viga.NT, marcados);
    T dialogo(programa, marcas);
    if (Ejecutar(dialogo, std::move(recorrido)) != QDialog::Accepted) return false;
    return EdicionViga(programa.Viga).AplicarCarga(marcas, dialogo.Entrada()).Aceptado;
}

} // namespace

class CargasTramos : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaPrueba> p;

    Programa& programa() { return p->programa; }
    VigaActual& viga() { return p->programa.Viga; }

  private slots:
    void init() {
        p = std::make_unique<ProgramaPrueba>();
        viga() = VigaDeTramos({4, 5, 3, 6});
        PonerCargas(viga(), {{1, 1, {{500}}}, {2, 1, {{700}}}, {3, 1, {{-250}}}});
        viga().Gravedad(3) = 1;
    }

    // Spans 1 and 3 marked: the third's upward load shows in red with its direction; 2.5 kgf/m
    // typed becomes 2 on both, vertical, and span 2 keeps its load.
    void UniformeAVariosTramos() {
        const bool aceptada = Abrir<Carga01>(programa(), {1, 3}, [](Carga01& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Carga Uniforme"));
            QCOMPARE(Control<QGroupBox>(d, "Frame1")->title(),
                     QStringLiteral("Carga Uniforme (kgf/ml)"));
            QCOMPARE(Control(d, "Long1")->text(), QStringLiteral("-250"));
            QVERIFY(Rojo(d, "Long1"));
            QVERIFY(Control<QRadioButton>(d, "Option2")->isChecked());
            Escribir(d, "Long1", QStringLiteral("2.5"));
            QVERIFY(Rojo(d, "Long1")); // the colour follows on Return or on leaving
            QTest::keyClick(Control(d, "Long1"), Qt::Key_Return);
            QVERIFY(d.isVisible());
            QVERIFY(!Rojo(d, "Long1"));
            QTest::keyClick(Control(d, "Long1"), Qt::Key_Tab);
            QCOMPARE(d.focusWidget(), Control<QRadioButton>(d, "Option1"));
            QTest::keyClick(d.focusWidget(), Qt::Key_Space);
            QVERIFY(Control<QRadioButton>(d, "Option1")->isChecked());
            Pulsar(d, "LSButton1");
        });
        QVERIFY(aceptada);
        QCOMPARE(viga().W1(3), 2);
        QCOMPARE(viga().Gravedad(3), 0);
    }

    // The triangular and trapezoidal loads: their texts, the last marked span shown, Return
    // and Esc that do not write, then the values accepted to the marked spans alone.
    void TriangularYTrapezoidal() {
        PonerCargas(viga(), {{2, 4, {{900}}}, {4, 4, {{1200}}}, {2, 5, {{-80, 0.5}}}});
        const bool cancelada = Abrir<Carga05>(programa(), {1, 2}, [](Carga05& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Carga Trapezoidal Tipo 1"));
            QCOMPARE(Control<QGroupBox>(d, "Frame1")->title(),
                     QStringLiteral("Carga Trapezoidal1 (kgf/m)"));
            QCOMPARE(Etiqueta(d, "Long1"), QStringLiteral("Carga Trapezoidal ="));
            QCOMPARE(Etiqueta(d, "Double1"), QStringLiteral("La (m) ="));
            QCOMPARE(Control(d, "Long1")->text(), QStringLiteral("-80"));
            QCOMPARE(Control(d, "Double1")->text(), QStringLiteral("0.50"));
            QVERIFY(Rojo(d, "Long1"));
            Escribir(d, "Long1", QStringLiteral("300"));
            QTest::keyClick(Control(d, "Long1"), Qt::Key_Tab);
            QVERIFY(!Rojo(d, "Long1"));
            Escribir(d, "Double1", QStringLiteral("1.25"));
            QTest::keyClick(Control(d, "Double1"), Qt::Key_Enter);
            QVERIFY(d.isVisible());
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        QVERIFY(!cancelada);
        QCOMPARE(viga().W5(2), -80);
        QCOMPARE(viga().la5(2), 0.5);

        const bool aceptada = Abrir<Carga05>(programa(), {3, 4}, [](Carga05& d) {
            QCOMPARE(Control(d, "Long1")->text(), QStringLiteral("0"));
            Escribir(d, "Double1", QStringLiteral("0.8"));
            QTest::keyClick(Control(d, "Double1"), Qt::Key_Tab);
            QCOMPARE(Control(d, "Double1")->text(), QStringLiteral("0.80"));
            QTest::keyClick(d.focusWidget(), Qt::Key_Return); // " Aceptar" has the focus
        });
        QVERIFY(aceptada);
        QCOMPARE(viga().la5(4), 0.8);

        Abrir<Carga04>(programa(), {4, 2}, [](Carga04& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Carga Triangular"));
            QCOMPARE(Control<QGroupBox>(d, "Frame1")->title(),
                     QStringLiteral("Carga Triangular (kgf/m)"));
            QCOMPARE(Etiqueta(d, "Long1"), QStringLiteral("Carga Triangular ="));
            QCOMPARE(Control(d, "Long1")->text(), QStringLiteral("1200"));
            QVERIFY(!Hijo<QLineEdit>(d, QStringLiteral("Double1")));
            Pulsar(d, "LSButton9");
        });
    }

    // Partial uniform loads on spans 2 and 4: the fourth's list shows. A count of 12 with
    // Return is warned of, the field shows 10 while the rows keep 12; a count of 3 typed and
    // left keeps the rows that remain and adds a row of zeros; a load past 32 bits is error 6
    // and the cell keeps its value, then a load typed is taken; a position still being typed
    // when " Aceptar" is pressed is part of the load; accepted to both spans, spans 1 and 3
    // as they were.
    void ParcialesConLimite() {
        PonerCargas(viga(), {{4, 3, {{1200, 0.5, 2}, {-300, 3, 5.5}}}, {1, 3, {{99, 1, 2}}}});
        const bool aceptada = Abrir<Carga03>(programa(), {2, 4}, [this](Carga03& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Cargas Parciales Uniformes"));
            QCOMPARE(Control<QGroupBox>(d, "Frame1")->title(),
                     QStringLiteral("Parciales Uniformes"));
            QCOMPARE(Etiqueta(d, "Long1"), QStringLiteral("Cantidad de Parciales ="));
            QCOMPARE(Lista(d).model()->headerData(0, Qt::Horizontal).toString(),
                     QStringLiteral("(Kgf)"));
            QCOMPARE(Control(d, "Long1")->text(), QStringLiteral("2"));
            QCOMPARE(Valores(d), (Filas{{1200, 0.5, 2}, {-300, 3, 5.5}}));
            Escribir(d, "Long1", QStringLiteral("12"));
            QTest::keyClick(Control(d, "Long1"), Qt::Key_Return);
            QCOMPARE(p->dialogos->preguntas, std::vector<Pregunta>{Limite(10)});
            QCOMPARE(Control(d, "Long1")->text(), QStringLiteral("10"));
            QCOMPARE(Lista(d).model()->rowCount(), 12);
            QCOMPARE(d.focusWidget(), &Lista(d));
            QCOMPARE(Valores(d)[11], (std::vector<double>{0, 0, 0}));

            Escribir(d, "Long1", QStringLiteral("3"));
            QTest::keyClick(Control(d, "Long1"), Qt::Key_Tab);
            QCOMPARE(p->dialogos->preguntas.size(), 1u);
            QCOMPARE(Valores(d), (Filas{{1200, 0.5, 2}, {-300, 3, 5.5}, {0, 0, 0}}));
            EscribirCelda(d, 3, 1, QStringLiteral("2147483648"));
            QCOMPARE(p->dialogos->preguntas.back(), MensajeFalla(ErrorTrevalo::Desbordamiento()));
            QCOMPARE(ValorCelda(Lista(d), 3, 1), 0.0);
            EscribirCelda(d, 3, 1, QStringLiteral("750.5")); // a load rounds to even: 750
            QCOMPARE(Lista(d).model()->index(2, 0).data().toString(), QStringLiteral("750"));
            Lista(d).setCurrentIndex(Lista(d).model()->index(2, 2));
            QTest::keyClick(&Lista(d), Qt::Key_F2);
            QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("6"));
            Control<QPushButton>(d, "LSButton1")->click(); // the cell's editor still open
        });
        QVERIFY(aceptada);
        for (long t : {2, 4}) {
            QCOMPARE(viga().CantW3(t), 3);
            QCOMPARE(viga().W3_(t, 3), 750);
            QCOMPARE(viga().Lb3_(t, 3), 6.0);
        }
    }

    // A count over the limit that skips Return reaches the acceptance: the lists of a span
    // have ten slots, so the subscript error shows and the dialog stays open with the beam
    // as it was; Esc then leaves it.
    void CantidadSinRetornoNoPasaDelArreglo() {
        PonerCargas(viga(), {{1, 2, {{500, 1}}}});
        const bool aceptada = Abrir<Carga02>(programa(), {1}, [this](Carga02& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Cargas Puntuales"));
            QCOMPARE(Control<QGroupBox>(d, "Frame1")->title(), QString());
            Escribir(d, "Long1", QStringLiteral("11"));
            Pulsar(d, "LSButton1");
            QCOMPARE(Lista(d).model()->rowCount(), 11);
            QVERIFY(d.isVisible());
            QCOMPARE(p->dialogos->preguntas, std::vector<Pregunta>{MensajeFalla(
                                                 ErrorTrevalo::SubindiceFueraDeIntervalo())});
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        QVERIFY(!aceptada);
        QCOMPARE(viga().CantW2(1), 1);
        QCOMPARE(viga().P(1, 1), 500);
    }

    // The trapezoids check their limit on acceptance only: 7 with Return takes 7 rows without
    // a word; " Aceptar" warns, shows 5 and writes the first five rows.
    void TrapezoidalesLimiteAlAceptar() {
        Abrir<Carga08>(programa(), {2}, [this](Carga08& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Cargas Trapezoidales"));
            QCOMPARE(Control<QGroupBox>(d, "Frame1")->title(),
                     QStringLiteral("Trapezoidal  Tipo 2 (kgf/m)"));
            QCOMPARE(Lista(d).model()->headerData(1, Qt::Horizontal).toString(),
                     QStringLiteral("W (derecha)\n(Kgf)"));
            Escribir(d, "Long1", QStringLiteral("7"));
            QTest::keyClick(Control(d, "Long1"), Qt::Key_Return);
            QVERIFY(p->dialogos->preguntas.empty());
            QCOMPARE(Lista(d).model()->rowCount(), 7);
            for (int r = 1; r <= 7; ++r) EscribirCelda(d, r, 2, QString::number(100 * r));
            QTest::keyClick(&Lista(d), Qt::Key_Tab);
            QCOMPARE(d.focusWidget(), Control<QPushButton>(d, "LSButton1"));
            QTest::keyClick(d.focusWidget(), Qt::Key_Return);
            QCOMPARE(Control(d, "Long1")->text(), QStringLiteral("5"));
        });
        QCOMPARE(p->dialogos->preguntas, std::vector<Pregunta>{Limite(5)});
        QCOMPARE(viga().CantW8(2), 5);
        QCOMPARE(viga().WDer8_(2, 5), 500);
        QCOMPARE(viga().WIzq8_(2, 5), 0);
    }

    // A block pasted from a spreadsheet into the right triangles: the text cell keeps its old
    // value, the rows beyond the list grow it up to the limit of five and the count follows.
    void PegarBloqueConCeldaMala() {
        PonerCargas(viga(), {{2, 6, {{400, 1, 2}, {450, 2, 3}}}});
        Abrir<Carga06>(programa(), {2}, [](Carga06& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Triangulares Derechas"));
            QCOMPARE(Control<QGroupBox>(d, "Frame1")->title(),
                     QStringLiteral("Triangular Derecha"));
            QGuiApplication::clipboard()->setText(QStringLiteral(
                "100\t0.5\t1\nabc\t1.5\t2.5\n120\t2\t3\n130\t3\t4\n140\t4\t5\n150\t5\t6\n"));
            Lista(d).setFocus();
            Lista(d).setCurrentIndex(Lista(d).model()->index(0, 0));
            QTest::keyClick(&Lista(d), Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(Control(d, "Long1")->text(), QStringLiteral("5"));
            QCOMPARE(
                Valores(d),
                (Filas{{100, 0.5, 1}, {450, 1.5, 2.5}, {120, 2, 3}, {130, 3, 4}, {140, 4, 5}}));
            Pulsar(d, "LSButton1");
        });
        QCOMPARE(viga().CantW6(2), 5);
    }
};

TREVALO_PRUEBA_VENTANAS(CargasTramos)
#include "CargasTest.moc"
