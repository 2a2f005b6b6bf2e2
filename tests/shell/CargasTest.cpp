// Journeys through the load dialogs of the beam editor: spans marked, the last marked span's
// values shown, values typed and accepted to every marked span, Cancel leaving the beam, and
// the count of the list dialogs with its limit.

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "VentanasPrueba.h"
#include "comun/Vigas.h"
#include "shell/CampoNumero.h"
#include "shell/Carga01.h"
#include "shell/Carga04.h"
#include "shell/Carga05.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

template <typename T = QLineEdit> T* Control(QWidget& ventana, const char* nombre) {
    T* w = Hijo<T>(ventana, QString::fromLatin1(nombre));
    if (!w) qFatal("falta el control %s", nombre);
    return w;
}

// Replaces the text of a field as a person does: into the field, all selected, typed over.
void Escribir(QWidget& ventana, const char* campo, const QString& texto) {
    QLineEdit* w = Control(ventana, campo);
    w->setFocus();
    w->selectAll();
    QTest::keyClick(w, Qt::Key_Backspace);
    Teclear(w, texto);
}

void Pulsar(QWidget& ventana, const char* boton) {
    QTest::mouseClick(Control<QPushButton>(ventana, boton), Qt::LeftButton);
}

// The caption of a field: the label whose buddy it is.
QString Etiqueta(QWidget& ventana, const char* campo) {
    for (QLabel* l : ventana.findChildren<QLabel*>())
        if (l->buddy() == Control(ventana, campo)) return l->text();
    return {};
}

bool Rojo(QWidget& ventana, const char* campo) {
    return Control(ventana, campo)->palette().color(QPalette::Text) == QColor(255, 0, 0);
}

// The marks the editor hands over: 1 for the spans listed.
Arreglo<std::int16_t> Marcas(long nt, std::initializer_list<long> marcados) {
    Arreglo<std::int16_t> marcas(nt);
    for (long t : marcados) marcas(t) = 1;
    return marcas;
}

// Opens the dialog on the spans marked, runs the journey and says whether it was accepted.
template <typename T>
bool Abrir(Programa& programa, std::initializer_list<long> marcados,
           std::function<void(T&)> recorrido) {
    T dialogo(programa, Marcas(programa.Viga.NT, marcados));
    Ejecutar(dialogo, [&recorrido](T& d) {
        // Focus moves, and the ends of entries with it, only in the active window.
        if (!QTest::qWaitForWindowActive(&d)) QFAIL("la ventana no se activó");
        recorrido(d);
    });
    return dialogo.CargaAceptada();
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
        QCOMPARE(viga().W1(1), 2);
        QCOMPARE(viga().W1(2), 700);
        QCOMPARE(viga().W1(3), 2);
        QCOMPARE(viga().Gravedad(1), 0);
        QCOMPARE(viga().Gravedad(2), 0);
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
            Escribir(d, "Long1", QStringLiteral("-3.5"));
            Escribir(d, "Double1", QStringLiteral("0.8"));
            QVERIFY(Rojo(d, "Long1"));
            QTest::keyClick(Control(d, "Double1"), Qt::Key_Tab);
            QCOMPARE(Control(d, "Double1")->text(), QStringLiteral("0.80"));
            QTest::keyClick(d.focusWidget(), Qt::Key_Return); // " Aceptar" has the focus
        });
        QVERIFY(aceptada);
        QCOMPARE(viga().W5(2), -80);
        QCOMPARE(viga().W5(3), -4);
        QCOMPARE(viga().W5(4), -4);
        QCOMPARE(viga().la5(4), 0.8);

        Abrir<Carga04>(programa(), {4, 2}, [](Carga04& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Carga Triangular"));
            QCOMPARE(Control<QGroupBox>(d, "Frame1")->title(),
                     QStringLiteral("Carga Triangular (kgf/m)"));
            QCOMPARE(Etiqueta(d, "Long1"), QStringLiteral("Carga Triangular ="));
            QCOMPARE(Control(d, "Long1")->text(), QStringLiteral("1200"));
            QVERIFY(!Hijo<QLineEdit>(d, QStringLiteral("Double1")));
            Escribir(d, "Long1", QStringLiteral("1500.5"));
            Pulsar(d, "LSButton1");
        });
        QCOMPARE(viga().W4(2), 1500);
        QCOMPARE(viga().W4(4), 1500);
        QCOMPARE(viga().W4(1), 0);
    }
};

QTEST_MAIN(CargasTramos)
#include "CargasTest.moc"
