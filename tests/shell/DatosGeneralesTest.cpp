// Journeys through the general data of a project, the date picker and the about box, with
// real widgets and scripted message boxes; the settings are checked in the project file.

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <filesystem>

#include "VentanasPrueba.h"
#include "shell/Calendario.h"
#include "shell/CampoNumero.h"
#include "shell/DatosG.h"
#include "shell/Sobre.h"
#include "store/BaseDatos.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

const Pregunta PreguntaSalvar{"Desea Salvar las Modificaciones?      ",
                              "Datos Generales del Proyecto", BotonesMensaje::SiNoCancelar,
                              IconoMensaje::Pregunta, 1};

} // namespace

class DatosGenerales : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaPrueba> p;

    Programa& programa() { return p->programa; }
    DialogosGuion& dialogos() { return *p->dialogos; }

    // Opens the project as the menu does before showing its general data.
    void AbrirProyecto(const std::string& nombre, bool nuevo) {
        EstadoProyecto& estado = programa().Estado;
        estado.NombreProyecto = nombre;
        estado.BDProyecto = BaseDatos::Abrir(programa().Carpetas.RutaProyectos + "/" + nombre);
        estado.ProyectoNuevo = nuevo;
    }

    void Mostrar(std::function<void(DatosG&)> accion) {
        DatosG ventana(programa());
        Ejecutar(ventana, std::move(accion));
    }

    BaseDatos Archivo() {
        return BaseDatos::Abrir(programa().Carpetas.RutaProyectos + "/" +
                                programa().Estado.NombreProyecto);
    }

    // The row of GeneralProyecto as the file holds it now.
    ProyectoActual EnArchivo() {
        BaseDatos bd = Archivo();
        ProyectoActual leido;
        LeerGeneralProyecto(bd, leido);
        return leido;
    }

  private slots:
    void init() { p = std::make_unique<ProgramaPrueba>(); }

    void ProyectoNuevoQuedaConDefectosAunqueNoSeSalve() {
        qputenv("USER", "ingeniera");
        std::filesystem::copy_file(programa().Carpetas.RutaPrograma + "/Imagen/ImagenViga.kvl",
                                   programa().Carpetas.RutaProyectos + "/Nuevo.trv");
        AbrirProyecto("Nuevo.trv", true);
        programa().Proyecto.CFormaConcreto = 1.2;
        programa().Proyecto.CFormaAcero = 10.0 / 9;
        programa().Proyecto.Proyecto = "de otro proyecto";

        Mostrar([](DatosG& d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Datos Generales     Proyecto: [Nuevo.trv]"));
            QCOMPARE(Control(d, "Text1")->text(), QString());
            QCOMPARE(Control(d, "Text3")->text(), QStringLiteral("ingeniera"));
            QCOMPARE(Control(d, "Double5")->text(), QStringLiteral("2,100,000.00"));
            QCOMPARE(Control(d, "Double8")->text(), QStringLiteral("1.111"));
            QVERIFY(!Control(d, "Double7")->isEnabled());
            QTest::keyClick(&d, Qt::Key_Escape);
        });

        QVERIFY(dialogos().preguntas.empty());
        QCOMPARE(Archivo().AbrirRecordset("GeneralProyecto").RecordCount(), 1);
        const ProyectoActual f = EnArchivo();
        QCOMPARE(f.Proyecto, std::string());
        QCOMPARE(f.ProyFecha, Std(QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy"))));
        QCOMPARE(f.Calculista, std::string("ingeniera"));
        QVERIFY(f.PPV && !f.DEFCOR);
        QCOMPARE(f.FC, 250.0);
        QCOMPARE(f.FY, 4200.0);
        QCOMPARE(f.D8, 0.05);
        QCOMPARE(f.PesoConcreto, 2500.0);
        QCOMPARE(f.ModuloAcero, 2100000.0);
        QCOMPARE(f.PesoAcero, 7850.0);
        QCOMPARE(f.CFormaConcreto, 1.2);
        QCOMPARE(f.CFormaAcero, 10.0 / 9);
    }

    // Every way out asks after a change: Cancel stays on the project's name, No drops the
    // change, Yes saves it; without a change nothing is asked.
    void CadaSalidaPreguntaPorLosCambios() {
        AbrirProyecto("Ejemplo Demostrativo.trv", false);
        const ProyectoActual antes = EnArchivo();

        dialogos().respuestas = {RespuestaCancelar, RespuestaNo};
        Mostrar([](DatosG& d) {
            Escribir(d, "Text2", QStringLiteral("Otro dueño"));
            Pulsar(d, "LSButton1");
            QVERIFY(d.isVisible());
            QCOMPARE(d.focusWidget(), Control(d, "Text1"));
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        QCOMPARE(dialogos().preguntas, std::vector<Pregunta>(2, PreguntaSalvar));
        QCOMPARE(EnArchivo().Propietario, antes.Propietario);

        dialogos().respuestas = {RespuestaSi};
        Mostrar([](DatosG& d) {
            Escribir(d, "Text1", QStringLiteral("  Edificio \"Ñandú\" d'Ávila  "));
            Escribir(d, "Double2", QStringLiteral("3,000.5"));
            Escribir(d, "Double3", QString());
            QTest::keyClick(Control<QCheckBox>(d, "Check2"), Qt::Key_Space);
            QVERIFY(Control(d, "Double7")->isEnabled());
            Control(d, "Text1")->setFocus(); // leaving the field shows its value by the mask
            QCOMPARE(Control(d, "Double2")->text(), QStringLiteral("3,000.50"));
            d.close();
        });
        QCOMPARE(dialogos().preguntas.size(), 3u);
        const ProyectoActual f = EnArchivo();
        QCOMPARE(f.Proyecto, std::string("Edificio \"Ñandú\" d'Ávila"));
        QCOMPARE(f.FY, 3000.5);
        QCOMPARE(f.D8, 0.0);
        QVERIFY(f.DEFCOR);
        QCOMPARE(f.FC, antes.FC);
        QCOMPARE(programa().Proyecto.FY, 3000.5);

        Mostrar([](DatosG& d) { Pulsar(d, "LSButton1"); });
        Mostrar([](DatosG& d) { d.close(); });
        QCOMPARE(dialogos().preguntas.size(), 3u);
    }

    // The date button opens the picker on the field's date; the day accepted goes back into
    // the field, and " Salvar" writes it without a question on leaving.
    void FechaPorElCalendario() {
        AbrirProyecto("Ejemplo Demostrativo.trv", false);
        Mostrar([](DatosG& d) {
            auto* fecha = Control<QDateEdit>(d, "DateTime1");
            fecha->setDate(QDate(2022, 5, 9));
            AlAbrirse<Calendario>([](Calendario& c) {
                auto* calendario = c.findChild<QCalendarWidget*>();
                QCOMPARE(calendario->selectedDate(), QDate(2022, 5, 9));
                QTest::keyClick(calendario->findChild<QAbstractItemView*>(), Qt::Key_Right);
                Pulsar(c, "Aceptar");
            });
            Pulsar(d, "Fecha");
            QCOMPARE(fecha->text(), QStringLiteral("10/05/2022"));
            Pulsar(d, "LSButton2");
            Pulsar(d, "LSButton1");
        });
        QVERIFY(dialogos().preguntas.empty());
        QCOMPARE(EnArchivo().ProyFecha, std::string("10/05/2022"));
    }

    void CalendarioEmpiezaEnLaFechaDelCampoSiEsVerosimil() {
        const QDate hoy(2024, 7, 1);
        const struct {
            QDate campo, inicio;
        } casos[] = {{QDate(2021, 1, 1), QDate(2021, 1, 1)},
                     {QDate(2026, 12, 31), QDate(2026, 12, 31)},
                     {QDate(2020, 12, 31), hoy},
                     {QDate(2027, 1, 1), hoy},
                     {QDate(), hoy}};
        for (const auto& c : casos) QCOMPARE(Calendario::FechaInicial(c.campo, hoy), c.inicio);
    }

    void SobreMuestraCarpetasYSistema() {
        Sobre sobre(programa());
        const int salida = Ejecutar(sobre, [this](Sobre& s) {
            QCOMPARE(Control<QLabel>(s, "RutaProyectos")->text(),
                     Qs(programa().Carpetas.RutaProyectos));
            Pulsar(s, "Command2");
            Pulsar(s, "Command1");
        });
        QCOMPARE(salida, int(QDialog::Accepted));
        QCOMPARE(dialogos().preguntas.size(), 1u);
        const Pregunta& info = dialogos().preguntas[0];
        QCOMPARE(info.Titulo, std::string("Información del Sistema"));
        QVERIFY(
            Qs(info.Texto).contains(QStringLiteral("\nQt: ") + QString::fromLatin1(qVersion())));
        QVERIFY(Qs(info.Texto).contains(QStringLiteral("Pantalla ")));
    }
};

TREVALO_PRUEBA_VENTANAS(DatosGenerales)
#include "DatosGeneralesTest.moc"
