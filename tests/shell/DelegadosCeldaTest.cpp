// The grid cells every form shares: what a numeric cell takes and refuses, typed or pasted,
// with the machine's separators, the form's edit and its messages; the check cells.

#include <QClipboard>
#include <QLineEdit>
#include <QTableView>

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
    // Three rows, seven in each cell: column 1 two decimals unsigned, column 2 no decimals
    // signed, column 3 text, column 4 check cells.
    std::vector<std::vector<QVariant>> filas;
    std::function<Veredicto(const Celda&)> regla;
    int crecer = 0; // the rows a paste may grow the list to
    std::vector<Celda> vistas;
    std::unique_ptr<QTableView> grid;
    ModeloCeldas* modelo = nullptr;
    int pitos = 0;

    void Armar(char decimal = '.', char miles = ',') {
        filas.assign(3, {7.0, 7.0, QString(), 0.0});
        AccesoCeldas acceso;
        acceso.Filas = [this] { return static_cast<int>(filas.size()); };
        acceso.Leer = [this](int f, int c) { return filas[f - 1][c - 1]; };
        acceso.Escribir = [this](const Celda& c) {
            vistas.push_back(c);
            Veredicto v = regla ? regla(c) : Aceptar();
            if (!v.Aceptado) return v;
            filas[c.Fila - 1][c.Columna - 1] =
                c.Columna == 3 ? QVariant(c.Texto)
                               : QVariant(v.Valor.value_or(c.Numero.value_or(0)));
            return v;
        };
        acceso.Crecer = [this](int pedidas) {
            crecer = pedidas;
            filas.resize(4, {0.0, 0.0, QString(), 0.0});
            return true;
        };
        acceso.Fondo = [this](int f) -> std::optional<QColor> {
            if (filas[f - 1][3].toDouble() == 0) return std::nullopt;
            return QColor(0xFF, 0xEC, 0xB9);
        };
        grid = std::make_unique<QTableView>();
        modelo = new ModeloCeldas({{QStringLiteral("A"), FormatoCelda{2, false}, false, false},
                                   {QStringLiteral("B"), FormatoCelda{0, true}, false, false},
                                   {QStringLiteral("C"), std::nullopt, false, false},
                                   {QStringLiteral("D"), std::nullopt, true, true}},
                                  std::move(acceso), decimal, miles, grid.get());
        MostrarModelo(p->programa, *grid, *modelo);
        connect(modelo, &ModeloCeldas::Respuesta, this,
                [this](const Veredicto& v) { pitos += v.Pitido ? 1 : 0; });
    }

    QString Mostrado(int fila, int columna) {
        return modelo->index(fila - 1, columna - 1).data().toString();
    }

  private slots:
    void init() {
        p = std::make_unique<ProgramaPrueba>();
        regla = {};
        vistas.clear();
        pitos = 0;
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
        QCOMPARE(modelo->setData(modelo->index(1, columna - 1), texto, Qt::EditRole), tomado);
        QCOMPARE(ValorCelda(*grid, 2, columna), valor);
        QCOMPARE(Mostrado(2, columna), mostrado);
        QCOMPARE(pitos, tomado ? 0 : 1);
        QVERIFY(p->dialogos->preguntas.empty());
    }

    // A machine with a decimal comma reads and shows the comma; the point groups thousands.
    void separadoresDeLaMaquina() {
        Armar(',', '.');
        QVERIFY(modelo->Entrar(1, 1, QStringLiteral("1.234,5")).Aceptado);
        QCOMPARE(ValorCelda(*grid, 1, 1), 1234.5);
        QCOMPARE(Mostrado(1, 1), QStringLiteral("1234,50"));
    }

    // The form's edit sees the number (nothing for an empty cell), may change what the cell
    // keeps, or refuse with its message; an edit raising the program's error refuses with
    // that error's message and the grid goes on; a text column keeps the trimmed text.
    void reglaDelFormulario() {
        regla = [](const Celda& c) {
            if (c.Numero && *c.Numero > 1e9) CI(*c.Numero);
            if (!c.Numero && c.Columna != 3) return Aceptar(0.0);
            if (c.Numero && *c.Numero > 100) return Rechazar(Mayor);
            if (c.Numero && *c.Numero == 50) return Aceptar(5.0);
            return Aceptar();
        };
        const auto entrar = [this](int f, int c, const char* texto) {
            return modelo->setData(modelo->index(f - 1, c - 1), QString::fromUtf8(texto),
                                   Qt::EditRole);
        };
        QVERIFY(!entrar(1, 1, "2147483648"));
        QCOMPARE(ValorCelda(*grid, 1, 1), 7.0);
        QVERIFY(!entrar(1, 1, "101"));
        QCOMPARE(ValorCelda(*grid, 1, 1), 7.0);
        QVERIFY(entrar(2, 1, "50"));
        QCOMPARE(ValorCelda(*grid, 2, 1), 5.0);
        QVERIFY(entrar(3, 1, ""));
        QCOMPARE(ValorCelda(*grid, 3, 1), 0.0);
        QVERIFY(entrar(1, 3, "  Eje A "));
        QCOMPARE(Mostrado(1, 3), QStringLiteral("Eje A"));
        QCOMPARE(p->dialogos->preguntas,
                 (std::vector<Pregunta>{MensajeFalla(ErrorTrevalo::Desbordamiento()), Mayor}));
        QCOMPARE(vistas.size(), std::size_t(5));
        QVERIFY(!vistas[3].Numero.has_value());
        QCOMPARE(vistas[4].Texto, QStringLiteral("Eje A"));
    }

    // A block pasted from the second row: the list grows as the form allows (to 4 rows), the
    // bad cells keep their old values, the edit's message shows once, the check column, the
    // extra column and the row beyond the growth are dropped; one value typed into a block
    // goes to each of its rows.
    void pegarYLlenar() {
        regla = [](const Celda& c) {
            return c.Numero && *c.Numero > 100 ? Rechazar(Mayor) : Aceptar();
        };
        grid->setCurrentIndex(modelo->index(1, 0));
        QGuiApplication::clipboard()->setText(
            QStringLiteral("1.5\t-2\tA\t1\tY\r\n200\tx\r\n300\t4\n8\t9\n"));
        grid->setFocus();
        QTest::keyClick(grid.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(crecer, 5);
        QCOMPARE(modelo->rowCount(), 4);
        QCOMPARE(ValorCelda(*grid, 2, 1), 1.5);
        QCOMPARE(ValorCelda(*grid, 2, 2), -2.0);
        QCOMPARE(Mostrado(2, 3), QStringLiteral("A"));
        QVERIFY(!CeldaMarcada(*grid, 2, 4));
        QCOMPARE(ValorCelda(*grid, 3, 1), 7.0);
        QCOMPARE(ValorCelda(*grid, 3, 2), 7.0);
        QCOMPARE(ValorCelda(*grid, 4, 1), 0.0);
        QCOMPARE(ValorCelda(*grid, 4, 2), 4.0);
        QCOMPARE(p->dialogos->preguntas, std::vector<Pregunta>{Mayor});
        QCOMPARE(pitos, 1);
        QCOMPARE(modelo->Llenar(2, 9, 2, QStringLiteral("-3")), 3);
        for (int f = 2; f <= 4; ++f) QCOMPARE(ValorCelda(*grid, f, 2), -3.0);
        QCOMPARE(ValorCelda(*grid, 1, 2), 7.0);
    }

    // Typed on the keyboard: a key starts the edit, Return commits and moves down, F2 edits
    // with the value as the cell shows it.
    void teclado() {
        grid->show();
        QApplication::setActiveWindow(grid.get());
        QVERIFY(QTest::qWaitForWindowActive(grid.get()));
        grid->setFocus();
        grid->setCurrentIndex(modelo->index(0, 0));
        for (const char c : {'4', '.', '2', '5'}) QTest::keyClick(QApplication::focusWidget(), c);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(ValorCelda(*grid, 1, 1), 4.25);
        QCOMPARE(grid->currentIndex().row(), 1);
        QTest::keyClick(grid.get(), Qt::Key_F2);
        auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(editor);
        QCOMPARE(editor->text(), QStringLiteral("7.00"));
        editor->setText(QStringLiteral("9"));
        QTest::keyClick(editor, Qt::Key_Return);
        QCOMPARE(ValorCelda(*grid, 2, 1), 9.0);
        QCOMPARE(grid->currentIndex().row(), 2);
    }

    // A click or the space bar ticks a check cell through the form's edit; the row takes
    // the colour the form gives it.
    void marcas() {
        grid->show();
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                          grid->visualRect(modelo->index(1, 3)).center());
        QVERIFY(CeldaMarcada(*grid, 2, 4));
        QCOMPARE(modelo->index(1, 0).data(Qt::BackgroundRole).value<QColor>(),
                 QColor(0xFF, 0xEC, 0xB9));
        grid->setCurrentIndex(modelo->index(1, 3));
        QTest::keyClick(grid.get(), Qt::Key_Space);
        QVERIFY(!CeldaMarcada(*grid, 2, 4));
        QCOMPARE(vistas.size(), std::size_t(2));
        QCOMPARE(vistas[0].Numero, std::optional<double>(1.0));
        QVERIFY(!modelo->index(1, 0).data(Qt::BackgroundRole).isValid());
    }
};

TREVALO_PRUEBA_VENTANAS(DelegadosCelda)
#include "DelegadosCeldaTest.moc"
