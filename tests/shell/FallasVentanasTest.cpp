// Journeys in which something goes wrong under the windows: a fault that no handler expected
// reaches the event loop, a beam too long for its stations, a beam whose rows are damaged.
// Each is told in a message and the program goes on with the same windows.

#include <QTimer>

#include "VentanasPrueba.h"
#include "shell/VigasProyecto.h"
#include "store/BaseDatos.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

const std::string Primera = "V-001 Fundación sobre Suelo Elástico"; // first of the sample

Pregunta Falla(const std::string& texto, long numero) {
    return {texto + "    ", "Error Número: " + std::to_string(numero), BotonesMensaje::Aceptar,
            IconoMensaje::Advertencia, 1};
}

void Ejecutar(ProgramaPrueba& p, const std::string& sql) {
    BaseDatos::Abrir(p.programa.Carpetas.RutaProyectos + "/" + Ejemplo).Ejecutar(sql, {Primera});
}

} // namespace

class FallasVentanas : public QObject {
    Q_OBJECT

  private slots:
    void UnaExcepcionEnElBucleDeEventosSeMuestraYElProgramaSigue() {
        ProgramaPrueba p;
        auto ventana = VentanaProyecto(p, Ejemplo);
        QCOMPARE(p.programa.Viga.NombreVigaActual, Primera);
        QTimer::singleShot(0, ventana.get(), [] { throw std::bad_alloc(); });
        QTimer::singleShot(0, ventana.get(), [] { throw std::runtime_error("sin nombre"); });
        QTRY_COMPARE(p.dialogos->preguntas.size(), 2u);
        QVERIFY(p.dialogos->preguntas[0] == Falla("Memoria insuficiente", 7));
        QVERIFY(p.dialogos->preguntas[1] == Falla("Error interno: sin nombre", 51));
        // The window is the same and still answers.
        QVERIFY(ventana->isVisible());
        ventana->ElegirPestana(2);
        QCOMPARE(p.programa.Resultados.NJuntas, std::int16_t{5});
        QCOMPARE(p.dialogos->preguntas.size(), 2u);
    }

    void UnTramoSinCabidaParaSusEstacionesAvisaEnCadaVista() {
        ProgramaPrueba p;
        Ejecutar(p, "UPDATE Tramos SET LT=99999999 WHERE NombreViga=? AND Tramo=1");
        auto ventana = VentanaProyecto(p, Ejemplo);
        QCOMPARE(p.programa.Viga.LT(1), 99999999.0);
        // The diagrams and the design sheet walk too many stations; the elevation under every
        // view has a scale of zero pixels a metre.
        for (int pestana : {2, 3, 4, 1}) {
            p.dialogos->preguntas.clear();
            ventana->ElegirPestana(pestana);
            QCOMPARE(p.dialogos->preguntas.size(), 1u);
            QVERIFY(p.dialogos->preguntas[0] == Falla("Desbordamiento", 6));
        }
    }

    void UnaVigaDanadaSeAvisaYQuedaLaVigaPorDefecto() {
        ProgramaPrueba p;
        Ejecutar(p, "DELETE FROM Tramos WHERE NombreViga=? AND Tramo=2");
        auto ventana = VentanaProyecto(p, Ejemplo);
        // The window reads the beam as it opens and again as it takes its size: the same
        // message each time, and nothing else.
        const Pregunta esperada{"Hay un Error en los Datos de la Viga: " + Primera + "...    ",
                                "Error: 3021", BotonesMensaje::Aceptar, IconoMensaje::Advertencia,
                                1};
        QVERIFY(!p.dialogos->preguntas.empty());
        for (const Pregunta& mensaje : p.dialogos->preguntas) QVERIFY(mensaje == esperada);
        QCOMPARE(p.programa.Viga.NT, std::int16_t{1}); // the default beam, 4 m
        QCOMPARE(p.programa.Viga.LT(1), 4.0);
    }
};

TREVALO_PRUEBA_VENTANAS(FallasVentanas)
#include "FallasVentanasTest.moc"
