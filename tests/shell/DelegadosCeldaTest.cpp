// The grid cells every form shares: what a numeric cell takes and refuses, typed or pasted,
// with the machine's separators, the form's rule and its messages; the check cells.

#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>

#include "VentanasPrueba.h"
#include "model/Redondeo.h"
#include "shell/DelegadosCelda.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

const Pregunta Mayor{"Mayor que 100", "Prueba", BotonesMensaje::Aceptar, IconoMensaje::Advertencia,
                     1};

} // namespace

class DelegadosCelda : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaPrueba> p;
    std::unique_ptr<QTableWidget> grid;
    DelegadoNumero* delegado = nullptr;

    // A grid of three rows: column 1 two decimals unsigned, column 2 no decimals signed,
    // column 3 text, column 4 check cells.
    void Armar() {
        grid = std::make_unique<QTableWidget>(3, 4);
        delegado = new DelegadoNumero(p->programa, *grid);
        FormatoCeldas(*grid, 1, -1, 1, -1, 2, false);
        FormatoCeldas(*grid, 2, -1, 2, -1, 0, true);
        for (int f = 1; f <= 3; ++f) {
            delegado->ColocarValor(f, 1, 7.0);
            delegado->ColocarValor(f, 2, 7.0);
        }
    }

    QString Mostrado(int fila, int columna) {
        QStyleOptionViewItem opcion;
        delegado->initStyleOption(&opcion, grid->model()->index(fila - 1, columna - 1));
        return opcion.text;
    }

  private slots:
    void init() {
        p = std::make_unique<ProgramaPrueba>();
        Armar();
    }

    void entradas_data() {
        QTest::addColumn<int>("columna");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<bool>("tomado");
        QTest::addColumn<double>("valor");
        QTest::addColumn<QString>("mostrado");
        QTest::newRow("decimales redondeados") << 1 << "12.345" << true << 12.35 << "12.35";
        QTest::newRow("entero con dos decimales") << 1 << " 3 " << true << 3.0 << "3.00";
        QTest::newRow("maximo") << 1 << "9999999999.99" << true << 9999999999.99 << "9999999999.99";
        QTest::newRow("sobre el maximo") << 1 << "10000000000" << false << 7.0 << "7.00";
        QTest::newRow("negativo sin signo") << 1 << "-3" << false << 7.0 << "7.00";
        QTest::newRow("texto") << 1 << "abc" << false << 7.0 << "7.00";
        QTest::newRow("vacio sin regla") << 1 << "" << false << 7.0 << "7.00";
        QTest::newRow("solo signo") << 2 << "-" << false << 7.0 << "7";
        QTest::newRow("entero empata al par") << 2 << "2.5" << true << 2.0 << "2";
        QTest::newRow("entero impar empata al par") << 2 << "3.5" << true << 4.0 << "4";
        QTest::newRow("negativo con signo") << 2 << "-2.5" << true << -2.0 << "-2";
        QTest::newRow("minimo con signo")
            << 2 << "-99999999.99" << true << -100000000.0 << "-100000000";
        QTest::newRow("bajo el minimo") << 2 << "-100000000" << false << 7.0 << "7";
        QTest::newRow("miles del usuario") << 2 << "1,234" << true << 1234.0 << "1234";
    }

    // A value entered keeps what it shows, and a refused one beeps and keeps the old value.
    void entradas() {
        QFETCH(int, columna);
        QFETCH(QString, texto);
        QFETCH(bool, tomado);
        QFETCH(double, valor);
        QFETCH(QString, mostrado);
        QSignalSpy pitos(delegado, &DelegadoNumero::Pito);
        QCOMPARE(delegado->Aplicar(2, columna, texto), tomado);
        QCOMPARE(ValorCelda(*grid, 2, columna), valor);
        QCOMPARE(Mostrado(2, columna), mostrado);
        QCOMPARE(pitos.count(), tomado ? 0 : 1);
        QVERIFY(p->dialogos->preguntas.empty());
    }

    // A machine with a decimal comma reads and shows the comma; the point groups thousands.
    void separadoresDeLaMaquina() {
        p->programa.Carpetas.SeparadorDecimal = ',';
        p->programa.Carpetas.SeparadorMiles = '.';
        QVERIFY(delegado->Aplicar(1, 1, QStringLiteral("1.234,5")));
        QCOMPARE(ValorCelda(*grid, 1, 1), 1234.5);
        QCOMPARE(Mostrado(1, 1), QStringLiteral("1234,50"));
    }

    // The form's rule sees the number (nothing for an empty cell), may change what the cell
    // keeps, or refuse with its message; a rule raising the program's error refuses with
    // that error's message and the grid goes on; a text column keeps the trimmed text.
    void reglaDelFormulario() {
        std::vector<Celda> vistas;
        delegado->ColocarRegla([&](const Celda& c) {
            vistas.push_back(c);
            if (c.Numero && *c.Numero > 1e9) CI(*c.Numero);
            if (!c.Numero && c.Columna != 3) return Aceptar(0.0);
            if (c.Numero && *c.Numero > 100) return Rechazar(Mayor);
            if (c.Numero && *c.Numero == 50) return Aceptar(5.0);
            return Aceptar();
        });
        QVERIFY(!delegado->Aplicar(1, 1, QStringLiteral("2147483648")));
        QCOMPARE(ValorCelda(*grid, 1, 1), 7.0);
        QVERIFY(!delegado->Aplicar(1, 1, QStringLiteral("101")));
        QCOMPARE(ValorCelda(*grid, 1, 1), 7.0);
        QVERIFY(delegado->Aplicar(2, 1, QStringLiteral("50")));
        QCOMPARE(ValorCelda(*grid, 2, 1), 5.0);
        QVERIFY(delegado->Aplicar(3, 1, QString()));
        QCOMPARE(ValorCelda(*grid, 3, 1), 0.0);
        QVERIFY(delegado->Aplicar(1, 3, QStringLiteral("  Eje A ")));
        QCOMPARE(grid->item(0, 2)->text(), QStringLiteral("Eje A"));
        QCOMPARE(p->dialogos->preguntas,
                 (std::vector<Pregunta>{MensajeFalla(ErrorTrevalo::Desbordamiento()), Mayor}));
        QCOMPARE(vistas.size(), std::size_t(5));
        QVERIFY(!vistas[3].Numero.has_value());
        QCOMPARE(vistas[4].Texto, QStringLiteral("Eje A"));
    }

    // A block pasted from the second row: the grid grows as the form allows (to 4 rows), the
    // bad cells keep their old values, the rule's message shows once, the extra column and
    // the row beyond the growth are dropped.
    void pegarBloque() {
        delegado->ColocarRegla([](const Celda& c) {
            return c.Numero && *c.Numero > 100 ? Rechazar(Mayor) : Aceptar();
        });
        int pedidas = 0;
        delegado->ColocarCrecimiento([&](int filas) {
            pedidas = filas;
            grid->setRowCount(4);
            return true;
        });
        QSignalSpy pitos(delegado, &DelegadoNumero::Pito);
        grid->setCurrentCell(1, 0);
        QGuiApplication::clipboard()->setText(
            QStringLiteral("1.5\t-2\tA\tX\tY\r\n200\tx\r\n300\t4\n8\t9\n"));
        grid->setFocus();
        QTest::keyClick(grid.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(pedidas, 5);
        QCOMPARE(grid->rowCount(), 4);
        QCOMPARE(ValorCelda(*grid, 2, 1), 1.5);
        QCOMPARE(ValorCelda(*grid, 2, 2), -2.0);
        QCOMPARE(grid->item(1, 2)->text(), QStringLiteral("A"));
        QCOMPARE(grid->item(1, 3)->text(), QStringLiteral("X"));
        QCOMPARE(ValorCelda(*grid, 3, 1), 7.0);
        QCOMPARE(ValorCelda(*grid, 3, 2), 7.0);
        QCOMPARE(ValorCelda(*grid, 4, 1), 0.0);
        QCOMPARE(ValorCelda(*grid, 4, 2), 4.0);
        QCOMPARE(p->dialogos->preguntas, std::vector<Pregunta>{Mayor});
        QCOMPARE(pitos.count(), 1);
    }

    // Typed on the keyboard: a key starts the edit, Return commits and moves down, F2 edits.
    void teclado() {
        grid->show();
        QApplication::setActiveWindow(grid.get());
        QVERIFY(QTest::qWaitForWindowActive(grid.get()));
        grid->setFocus();
        grid->setCurrentCell(0, 0);
        for (const char c : {'4', '.', '2', '5'}) QTest::keyClick(QApplication::focusWidget(), c);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(ValorCelda(*grid, 1, 1), 4.25);
        QCOMPARE(grid->currentRow(), 1);
        QTest::keyClick(grid.get(), Qt::Key_F2);
        auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(editor);
        QCOMPARE(editor->text(), QStringLiteral("7.00"));
        editor->setText(QStringLiteral("9"));
        QTest::keyClick(editor, Qt::Key_Return);
        QCOMPARE(ValorCelda(*grid, 2, 1), 9.0);
        QCOMPARE(grid->currentRow(), 2);
    }

    // A click or the space bar ticks a check cell, the form hears it, the row takes colour.
    void marcas() {
        std::vector<std::pair<int, bool>> oidas;
        new DelegadoMarca(*grid, 4, [&](int fila, bool m) { oidas.emplace_back(fila, m); });
        for (int f = 1; f <= 3; ++f) MarcarCelda(*grid, f, 4, false);
        grid->show();
        const QRect celda = grid->visualItemRect(grid->item(1, 3));
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, celda.center());
        QVERIFY(CeldaMarcada(*grid, 2, 4));
        grid->setCurrentCell(1, 3);
        QTest::keyClick(grid.get(), Qt::Key_Space);
        QVERIFY(!CeldaMarcada(*grid, 2, 4));
        QCOMPARE(oidas, (std::vector<std::pair<int, bool>>{{2, true}, {2, false}}));
        ColorFila(*grid, 2, 0xB9ECFF);
        QCOMPARE(grid->item(1, 0)->background().color(), QColor(0xFF, 0xEC, 0xB9));
    }
};

TREVALO_PRUEBA_VENTANAS(DelegadosCelda)
#include "DelegadosCeldaTest.moc"
