// Journeys through the steel profile windows: a table of each family created, filled, saved
// and read again; the section generator into a double-tee table; the questions on deleting
// and closing; a save the file refuses; a file of another family; the capture of a paired
// section into a beam type, with scripted dialogs, checked in the grid and in the file.

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <filesystem>

#include "VentanasPrueba.h"
#include "comun/Vigas.h"
#include "profiles/TablaPerfiles.h"
#include "shell/CampoNumero.h"
#include "shell/DelegadosCelda.h"
#include "shell/DobleTee.h"
#include "shell/OpcionPerfil.h"
#include "shell/TablaPerfil.h"
#include "shell/VigasMetalicas.h"
#include "store/BaseDatos.h"

using namespace trevalo;
using namespace trevalo::prueba;
using F = FamiliaPerfil;

namespace {

// A cell by the forms' numbering (row and column from 1), as the grid shows it.
QString Mostrado(const QTableView& grid, int fila, int columna) {
    return grid.model()->index(fila - 1, columna - 1).data().toString();
}

int FilasGrid(const QTableView& grid) {
    return grid.model()->rowCount();
}

QString Muestra(TablaPerfil& t, int fila, int columna) {
    return Mostrado(t.Grid(), fila, columna);
}

// A value typed into a cell; whether the cell took it.
bool Teclar(TablaPerfil& t, int fila, int columna, const QString& texto) {
    QAbstractItemModel& modelo = *t.Grid().model();
    return modelo.setData(modelo.index(fila - 1, columna - 1), texto);
}

void Elegir(QTableView& grid, int fila, int columna) {
    grid.setCurrentIndex(grid.model()->index(fila - 1, columna - 1));
}

ArchivoElegido Elegido(const std::string& carpeta, const std::string& nombre) {
    return {false, carpeta + "/" + nombre, nombre};
}

const Pregunta PreguntaSalvar{"Desea Salvar las Modificaciones?      ", "Tabla de Perfiles",
                              BotonesMensaje::SiNoCancelar, IconoMensaje::Pregunta, 1};

} // namespace

class Perfiles : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaPrueba> p;

    Programa& programa() { return p->programa; }
    DialogosGuion& dialogos() { return *p->dialogos; }
    std::string Carpeta() { return programa().Carpetas.RutaPerfiles; }

    // A table file of the family made from its template, with the given rows.
    std::string Tabla(F familia, const std::string& nombre, const TablaPerfiles& tabla) {
        const std::string ruta = Carpeta() + "/" + nombre;
        CrearTablaPerfiles(programa().Carpetas.RutaPrograma, familia, ruta);
        SalvarTablaPerfiles(ruta, familia, tabla);
        return ruta;
    }

    // The table window opened on a file, as "Editar" opens it.
    void Editar(F familia, const std::string& nombre, std::function<void(TablaPerfil&)> accion) {
        TablaPerfil t(programa(), familia, {Carpeta() + "/" + nombre, nombre, false});
        Ejecutar(t, std::move(accion));
    }

  private slots:
    void init() { p = std::make_unique<ProgramaPrueba>(); }

    // For each family: "Crear" through the family chooser, three rows through the count,
    // values typed, saved, and the table read back as the grid showed it.
    void CrearLlenarSalvarYReabrirCadaFamilia() {
        struct Caso {
            int opcion;
            F familia;
            std::string titulo, archivo, ventana;
            int columnas, designacion;
        };
        const std::vector<Caso> casos = {
            {1, F::DobleTee, "vigas", "DobleTee_vigas.pfl",
             "Perfiles de Sección Doble Tee     Tabla: [DobleTee_vigas.pfl]", 18, 2},
            {2, F::SeccionU, "u", "U_u.pfl", "Perfiles de Sección en U     Tabla: [U_u.pfl]", 14,
             1},
            {3, F::TuboCuadrado, "cuadrada_Mia", "cuadrada_Mia.pfl",
             "Perfiles Tubulares de Sección Cuadrada     Tabla: [cuadrada_Mia.pfl]", 8, 1},
            {4, F::TuboRectangular, "R", "Rectangular_R.pfl",
             "Perfiles Tubulares de Sección Rectangular     Tabla: [Rectangular_R.pfl]", 10, 1},
        };
        for (const Caso& c : casos) {
            dialogos().archivos.push_back(
                Elegido(programa().Carpetas.RutaProyectos, c.titulo + ".pfl"));
            OpcionPerfil opcion(programa());
            Ejecutar(opcion, [&](OpcionPerfil& o) {
                QCOMPARE(o.windowTitle(), QStringLiteral("Perfiles Metálicos"));
                QCOMPARE(o.findChild<QGroupBox*>()->title(), QStringLiteral("Tablas de Perfiles"));
                QVERIFY(Control<QRadioButton>(o, "Option1")->isChecked());
                Control<QRadioButton>(o, QStringLiteral("Option%1").arg(c.opcion).toLatin1())
                    ->setChecked(true);
                AlAbrirse<TablaPerfil>([&](TablaPerfil& t) {
                    QCOMPARE(t.windowTitle(), Qs(c.ventana));
                    QCOMPARE(FilasGrid(t.Grid()), 0);
                    QCOMPARE(t.Grid().model()->columnCount(), c.columnas);
                    QVERIFY(t.Cambiada());
                    QCOMPARE(Control(t, "Long1")->text(), QStringLiteral("0"));
                    QCOMPARE(Control(t, "Long2")->text(), QStringLiteral("0"));
                    QVERIFY(!Control(t, "Long1")->isEnabled());
                    Control<QCheckBox>(t, "Check1")->setChecked(true);
                    Escribir(t, "Long1", QStringLiteral("3"));
                    QTest::keyClick(Control(t, "Long1"), Qt::Key_Return);
                    QCOMPARE(FilasGrid(t.Grid()), 3);
                    QCOMPARE(Muestra(t, 3, 2),
                             c.designacion == 2 ? QStringLiteral("0") : QStringLiteral("0.00"));
                    // The double-tee count fills one column short of the last.
                    QCOMPARE(Muestra(t, 3, c.columnas).isEmpty(), c.familia == F::DobleTee);
                    QVERIFY(Teclar(t, 2, c.designacion, QStringLiteral(" P 200 ")));
                    QVERIFY(Teclar(t, 2, c.designacion + 1, QStringLiteral("12.345")));
                    // A negative value in a numeric cell: the old value back.
                    QVERIFY(!Teclar(t, 2, c.designacion + 2, QStringLiteral("-5")));
                    QCOMPARE(Muestra(t, 2, c.designacion + 2), Muestra(t, 3, c.designacion + 2));
                    Escribir(t, "Text1", QStringLiteral("  Mi tabla  "));
                    Escribir(t, "Long2", QStringLiteral("2530"));
                    Pulsar(t, "LSButton4");
                    QVERIFY(!t.Cambiada());
                    QTest::keyClick(&t, Qt::Key_Escape);
                });
                Pulsar(o, "LSButton3");
                Pulsar(o, "LSButton1");
            });
            const DialogoArchivo esperado{"Crear Tabla de Perfiles Metálicos",
                                          ModoDialogo::Salvar,
                                          Familia(c.familia).Filtro,
                                          1,
                                          Carpeta(),
                                          ""};
            QCOMPARE(dialogos().dialogosArchivo.back(), esperado);
            // The table went to the tables folder, whatever folder the dialog stood in.
            const TablaPerfiles leida = LeerTablaPerfiles(Carpeta() + "/" + c.archivo, c.familia);
            QCOMPARE(leida.DescripcionTabla, std::string("Mi tabla"));
            QCOMPARE(leida.ResistenciaFY, std::int16_t{2530});
            QCOMPARE(leida.Filas.size(), std::size_t{3});
            QCOMPARE(leida.Filas[1].Numero, std::int16_t{2});
            QCOMPARE(leida.Filas[1].Designacion, std::string("P 200"));
            QCOMPARE(leida.Filas[1].Valores[0], 12.35); // the area as its two decimals show it
            QCOMPARE(leida.Filas[2].Designacion, std::string(c.designacion == 2 ? "0" : ""));

            Editar(c.familia, c.archivo, [&](TablaPerfil& t) {
                QCOMPARE(Control(t, "Text1")->text(), QStringLiteral("Mi tabla"));
                QCOMPARE(Control(t, "Long1")->text(), QStringLiteral("3"));
                QCOMPARE(Muestra(t, 2, c.designacion), QStringLiteral("P 200"));
                QCOMPARE(Muestra(t, 2, c.designacion + 1), QStringLiteral("12.35"));
                // The value the cell holds typed again is no change; an empty number is refused.
                Control<QCheckBox>(t, "Check1")->setChecked(true);
                QVERIFY(Teclar(t, 2, c.designacion + 1, QStringLiteral("12.35")));
                QVERIFY(!Teclar(t, 2, c.designacion + 1, QString()));
                QVERIFY(!t.Cambiada());
                QTest::keyClick(&t, Qt::Key_Escape);
            });
        }
        QVERIFY(dialogos().preguntas.empty());
    }

    // The sketch of a row comes up while the left button is held on it, beside the mouse,
    // and goes when the button is let go.
    void CroquisBajoElRaton() {
        std::vector<double> valores(16, 5.0);
        valores[1] = 300; // d
        Tabla(F::DobleTee, "DobleTee_P.pfl", {"Vigas", 2530, {{1, "IPE 300", valores}}});
        Editar(F::DobleTee, "DobleTee_P.pfl", [&](TablaPerfil& t) {
            QWidget* vista = t.Grid().viewport();
            const QPoint celda = t.Grid().visualRect(t.Grid().model()->index(0, 3)).center();
            QTest::mousePress(vista, Qt::LeftButton, Qt::NoModifier, celda);
            QTRY_VERIFY_WITH_TIMEOUT(t.Emergente()->isVisible(), 2000);
            QCOMPARE(Control<QLabel>(*t.Emergente(), "LabelV6")->text(), QStringLiteral("IPE 300"));
            // The first sketch fills its picture, laid out in the frame.
            const auto* dibujo = Control<QLabel>(*t.Emergente(), "Picture5");
            QCOMPARE(dibujo->pixmap().size(), dibujo->size());
            QVERIFY(dibujo->width() > t.Emergente()->width() / 2);
            const QPoint raton = vista->mapTo(&t, celda);
            QVERIFY(t.Emergente()->geometry().left() > raton.x());
            QVERIFY(t.Emergente()->geometry().top() > raton.y());
            QTest::mouseRelease(vista, Qt::LeftButton, Qt::NoModifier, celda);
            QVERIFY(!t.Emergente()->isVisible());
            QTest::keyClick(&t, Qt::Key_Escape);
        });
    }

    // An existing name is asked about, No being the default; Yes replaces the table. The new
    // table closed at once offers to save: Yes without a description stays on it, No leaves.
    void CrearSobreUnaTablaExistentePregunta() {
        Tabla(F::DobleTee, "DobleTee_A.pfl", {"Vieja", 1, {}});
        const Pregunta existe{"La Tabla: \"DobleTee_A.pfl\" Ya Existe en el Programa...      "
                              "\nDesea Reemplazarla?      ",
                              "Crear Nueva Tabla", BotonesMensaje::SiNo, IconoMensaje::Advertencia,
                              2};
        for (const int respuesta : {RespuestaNo, RespuestaSi}) {
            dialogos().preguntas.clear();
            dialogos().archivos.push_back(Elegido(Carpeta(), "DobleTee_A.pfl"));
            dialogos().respuestas = {respuesta, RespuestaSi, RespuestaNo};
            OpcionPerfil opcion(programa());
            Ejecutar(opcion, [&](OpcionPerfil& o) {
                if (respuesta == RespuestaSi)
                    AlAbrirse<TablaPerfil>([](TablaPerfil& t) {
                        QCOMPARE(Control(t, "Text1")->text(), QString());
                        QTest::keyClick(&t, Qt::Key_Escape);
                        QVERIFY(t.isVisible());
                        QCOMPARE(t.focusWidget(), static_cast<QWidget*>(Control(t, "Text1")));
                        QTest::keyClick(&t, Qt::Key_Escape);
                    });
                Pulsar(o, "LSButton3");
                Pulsar(o, "LSButton1");
            });
            const std::vector<Pregunta> esperadas =
                respuesta == RespuestaNo
                    ? std::vector<Pregunta>{existe}
                    : std::vector<Pregunta>{existe, PreguntaSalvar, PreguntaSalvar};
            QCOMPARE(dialogos().preguntas, esperadas);
        }
        QCOMPARE(LeerTablaPerfiles(Carpeta() + "/DobleTee_A.pfl", F::DobleTee).DescripcionTabla,
                 std::string());
    }

    // The published case through the generator: d 300, tw 8, bf 150, tf 12. By hand,
    // A = 276 x 8 + 2 x 150 x 12 = 5808 mm2; Ix = 2 (144² x 1800 + 150 x 12³ / 12)
    // + 8 x 276³ / 12 = 88 709 184 mm4; Sx = 2 Ix / d; Rx = sqrt(Ix / A).
    void GeneradorCapturaUnaSeccionEnLaTabla() {
        Tabla(F::DobleTee, "DobleTee_G.pfl", {"Generadas", 2530, {}});
        Editar(F::DobleTee, "DobleTee_G.pfl", [&](TablaPerfil& t) {
            QCOMPARE(Control(t, "Long1")->text(), QStringLiteral("0")); // a table with no rows
            Control<QCheckBox>(t, "Check1")->setChecked(true);
            AlAbrirse<DobleTee>([&](DobleTee& g) {
                QCOMPARE(g.windowTitle(), QStringLiteral("Propiedades Geométricas"));
                Escribir(g, "Text1", QStringLiteral(" IG 300 "));
                const char* campos[] = {"Double1", "Double2", "Double3", "Double4"};
                const QString valores[] = {QStringLiteral("300"), QStringLiteral("8"),
                                           QStringLiteral("150"), QStringLiteral("12")};
                for (int i = 0; i < 4; ++i) {
                    Escribir(g, campos[i], valores[i]);
                    QTest::keyClick(Control(g, campos[i]), Qt::Key_Return);
                }
                QCOMPARE(g.focusWidget(),
                         static_cast<QWidget*>(Control<QPushButton>(g, "LSButton1")));
                Pulsar(g, "LSButton1");
                QCOMPARE(Control<QLabel>(g, "LSLabel10")->text(), QStringLiteral("139,968.0"));
                Pulsar(g, "LSButton3");
                Pulsar(g, "LSButton8");
            });
            Pulsar(t, "LSButton2");
            QCOMPARE(
                dialogos().preguntas.back(),
                (Pregunta{"Designación: IG 300\nCapturar la Sección y sus Propiedades...    ",
                          "Capturar Secciones", BotonesMensaje::SiNo, IconoMensaje::Pregunta, 1}));
            QVERIFY(t.Cambiada());
            QCOMPARE(FilasGrid(t.Grid()), 1);
            // The capture writes one column to the left of the table's fields: the name in
            // the hidden reference, the area under the designation, and so on.
            QCOMPARE(Muestra(t, 1, 1), QStringLiteral("IG 300"));
            QCOMPARE(Muestra(t, 1, 2), QStringLiteral("58.08"));
            QCOMPARE(Muestra(t, 1, 3), QStringLiteral("300.00"));
            QCOMPARE(Muestra(t, 1, 7), QStringLiteral("8871")); // Ix in a column of no decimals
            QCOMPARE(Muestra(t, 1, 8), QStringLiteral("591.40"));
            QCOMPARE(Muestra(t, 1, 18), QString());
            Pulsar(t, "LSButton4");
            QTest::keyClick(&t, Qt::Key_Escape);
        });
        const FilaPerfil f =
            LeerTablaPerfiles(Carpeta() + "/DobleTee_G.pfl", F::DobleTee).Filas.at(0);
        QCOMPARE(f.Designacion, std::string("58.08"));
        const std::vector<double> valores = {300,   150,  12,   8,     8871,   591.4, 12.36, 674.9,
                                             89.99, 3.41, 3.95, 21.58, 139968, 670.8, 139.4, 0};
        QCOMPARE(f.Valores, valores);
    }

    // A value still being typed in its cell is a change: the close button asks. Delete asks
    // with No as default; the last row gone leaves an empty grid. Every way out then asks to
    // save: Cancel stays, Yes without a description stays on the description, No leaves the
    // file as it was.
    void EliminarYPreguntaAlCerrar() {
        Tabla(F::SeccionU, "U_E.pfl",
              {"Canales", 2530, {{1, "UPN 100", std::vector<double>(13, 1.0)}}});
        Editar(F::SeccionU, "U_E.pfl", [&](TablaPerfil& t) {
            // The table is locked: no delete, no entry.
            QVERIFY(!Control<QPushButton>(t, "LSButton5")->isVisible());
            QVERIFY(!Teclar(t, 1, 2, QStringLiteral("5")));
            QCOMPARE(Muestra(t, 1, 2), QStringLiteral("1.00"));
            Control<QCheckBox>(t, "Check1")->setChecked(true);
            Elegir(t.Grid(), 1, 2);
            QTest::keyClick(&t.Grid(), Qt::Key_F2);
            auto* celda = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            QVERIFY(celda);
            celda->selectAll();
            QTest::keyClicks(celda, QStringLiteral("5"));
            dialogos().respuestas = {RespuestaCancelar};
            t.close();
            QVERIFY(t.isVisible());
            QCOMPARE(dialogos().preguntas, std::vector<Pregunta>{PreguntaSalvar});
            QCOMPARE(Muestra(t, 1, 2), QStringLiteral("5.00"));
            Elegir(t.Grid(), 1, 1);
            dialogos().respuestas = {RespuestaNo, RespuestaSi};
            Pulsar(t, "LSButton5");
            QCOMPARE(FilasGrid(t.Grid()), 1);
            Pulsar(t, "LSButton5");
            QCOMPARE(dialogos().preguntas.back(),
                     (Pregunta{"Eliminar el Perfil Seleccionado: UPN 100!      \n"
                               "¿Esta Usted Seguro?    ",
                               "Eliminando Perfiles de la Tabla", BotonesMensaje::SiNo,
                               IconoMensaje::Advertencia, 2}));
            QCOMPARE(FilasGrid(t.Grid()), 0);
            QCOMPARE(Control(t, "Long1")->text(), QStringLiteral("0"));
            Escribir(t, "Text1", QString());
            dialogos().respuestas = {RespuestaCancelar, RespuestaSi, RespuestaNo};
            QTest::keyClick(&t, Qt::Key_Escape);
            QVERIFY(t.isVisible());
            Pulsar(t, "LSButton1");
            QVERIFY(t.isVisible());
            QCOMPARE(t.focusWidget(), static_cast<QWidget*>(Control(t, "Text1")));
            t.close();
            QVERIFY(!t.isVisible());
        });
        QCOMPARE(dialogos().preguntas.size(), std::size_t{6});
        QCOMPARE(dialogos().preguntas.back(), PreguntaSalvar);
        QCOMPARE(LeerTablaPerfiles(Carpeta() + "/U_E.pfl", F::SeccionU).Filas.size(),
                 std::size_t{1});
    }

    // A save that fails half way (a field the file lacks) shows the engine's error and the
    // window keeps the change; the file is left as it was by the table store.
    void SalvarQueElArchivoRechaza() {
        const std::string ruta =
            Tabla(F::TuboCuadrado, "Cuadrada_R.pfl",
                  {"Tubos", 2530, {{1, "T 100", std::vector<double>(7, 2.0)}}});
        Editar(F::TuboCuadrado, "Cuadrada_R.pfl", [&](TablaPerfil& t) {
            BaseDatos::Abrir(ruta).Ejecutar(
                "ALTER TABLE DatosPerfil RENAME COLUMN RadioGiro TO Otro");
            Control<QCheckBox>(t, "Check1")->setChecked(true);
            Escribir(t, "Text1", QStringLiteral("Otra"));
            QVERIFY(!t.Salvar());
            QCOMPARE(dialogos().preguntas.back(),
                     (Pregunta{"Elemento no encontrado en esta colección....    ", "Error: 3265",
                               BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1}));
            QVERIFY(t.Cambiada());
            QCOMPARE(Control(t, "Text1")->text(), QStringLiteral("Otra"));
            dialogos().respuestas = {RespuestaNo};
            QTest::keyClick(&t, Qt::Key_Escape);
        });
    }

    // A file of another family, named by typing: a message that names the missing field;
    // the editor does not open, and the steel beam window keeps its earlier table.
    void ArchivoDeOtraFamilia() {
        Tabla(F::TuboCuadrado, "Cuadrada_X.pfl",
              {"Tubos", 2530, {{1, "T", std::vector<double>(7, 1.0)}}});
        Tabla(F::DobleTee, "DobleTee_X.pfl",
              {"Vigas", 2530, {{1, "W", std::vector<double>(16, 3.0)}}});
        const Pregunta falta{"La tabla no tiene el campo \"Espesor\": no es una tabla de esta "
                             "familia de perfiles.",
                             "Error: 3265", BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1};
        dialogos().archivos.push_back(Elegido(Carpeta(), "DobleTee_X.pfl"));
        OpcionPerfil opcion(programa());
        Ejecutar(opcion, [&](OpcionPerfil& o) {
            Control<QRadioButton>(o, "Option3")->setChecked(true);
            Pulsar(o, "LSButton2");
            Pulsar(o, "LSButton1");
        });
        QCOMPARE(dialogos().preguntas.back(), falta);

        programa().ListaPerfil = {};
        CargarListaPerfiles(Carpeta() + "/DobleTee_X.pfl", 1, programa().ListaPerfil);
        dialogos().archivos.push_back(Elegido(Carpeta(), "DobleTee_X.pfl"));
        VigasMetalicas ventana(programa());
        Ejecutar(ventana, [&](VigasMetalicas& v) {
            auto* lista = Control<QListWidget>(v, "fpList1");
            lista->setCurrentRow(5);
            emit lista->itemClicked(lista->item(5));
            QCOMPARE(lista->currentRow(), 0);
            QCOMPARE(v.ItemActual(), 1);
            QCOMPARE(Mostrado(*Control<QTableView>(v, "Spread1"), 1, 1), QStringLiteral("1 W"));
            v.reject();
        });
        QCOMPARE(dialogos().preguntas.back(), falta);
    }

    // A paired double tee captured into beam type 2: the grid shows area and inertia doubled,
    // the window answers with the row and the type and leaves the beam to its caller; it then
    // opens again on the same table without a file dialog, and a cancelled dialog after a
    // click on picture 6 puts the picture back.
    void CapturaDeUnaSeccionDobleEnUnTipo() {
        Tabla(F::DobleTee, "DobleTee_C.pfl",
              {"Vigas",
               2530,
               {{1, "IPE 300", {58.08, 300, 150, 12, 8, 8870.9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}}}});
        PonerTipos(programa().Viga, Filas(3, {0.3, 0.5}));

        dialogos().archivos.push_back(Elegido(Carpeta(), "DobleTee_C.pfl"));
        VigasMetalicas ventana(programa(), 2);
        const int r = Ejecutar(ventana, [&](VigasMetalicas& v) {
            QCOMPARE(v.windowTitle(), QStringLiteral("Base de Datos de Perfiles Metálicos"));
            QCOMPARE(v.findChild<QGroupBox*>()->title(),
                     QStringLiteral("Seleccione el Perfil de la Viga Tipo: 2"));
            auto* lista = Control<QListWidget>(v, "fpList1");
            QCOMPARE(lista->count(), 7);
            QCOMPARE(lista->currentRow(), 0);
            auto* grid = Control<QTableView>(v, "Spread1");
            QCOMPARE(FilasGrid(*grid), 0);
            Pulsar(v, "LSButton4"); // an empty grid only beeps
            QVERIFY(dialogos().preguntas.empty());
            lista->setCurrentRow(1);
            emit lista->itemClicked(lista->item(1));
            QCOMPARE(FilasGrid(*grid), 1);
            QCOMPARE(Mostrado(*grid, 1, 1), QStringLiteral("2 IPE 300"));
            QCOMPARE(Mostrado(*grid, 1, 2), QStringLiteral("116.16"));
            QCOMPARE(Mostrado(*grid, 1, 3), QStringLiteral("17741.80"));
            Elegir(*grid, 1, 1);
            Pulsar(v, "LSButton4");
        });
        QCOMPARE(r, int(QDialog::Accepted));
        QCOMPARE(dialogos().preguntas.back(),
                 (Pregunta{"Designación: 2 IPE 300    \nCapturar este Perfil como la Viga Tipo: "
                           "2?       \n",
                           "Capturar Sección de Perfil Metálico", BotonesMensaje::SiNo,
                           IconoMensaje::Pregunta, 1}));
        QCOMPARE(ventana.FilaCapturada(), 1L);
        QCOMPARE(ventana.TipoCapturado(), 2L);
        QVERIFY(programa().Viga.Designacion(2).empty());
        QCOMPARE(dialogos().dialogosArchivo.back(),
                 (DialogoArchivo{"Crear Tabla de Perfiles Metálicos", ModoDialogo::Abrir,
                                 Familia(F::DobleTee).Filtro, 1, Carpeta(), ""}));

        const std::size_t archivos = dialogos().dialogosArchivo.size();
        VigasMetalicas otra(programa(), 3);
        Ejecutar(otra, [&](VigasMetalicas& v) {
            auto* lista = Control<QListWidget>(v, "fpList1");
            QCOMPARE(lista->currentRow(), 1);
            QCOMPARE(FilasGrid(*Control<QTableView>(v, "Spread1")), 1);
            QCOMPARE(dialogos().dialogosArchivo.size(), archivos);
            lista->setCurrentRow(5);
            emit lista->itemClicked(lista->item(5));
            QCOMPARE(dialogos().dialogosArchivo.back().Filtro, Familia(F::TuboCuadrado).Filtro);
            QCOMPARE(lista->currentRow(), 1);
            QCOMPARE(Mostrado(*Control<QTableView>(v, "Spread1"), 1, 1),
                     QStringLiteral("2 IPE 300"));
            Pulsar(v, "LSButton1");
        });
        QCOMPARE(otra.TipoCapturado(), 0L);
    }
};

TREVALO_PRUEBA_VENTANAS(Perfiles)
#include "PerfilesTest.moc"
