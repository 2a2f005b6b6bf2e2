// Journeys through the three dialogs that name a beam (new, save as, rename) on the sample
// project, opened as the project window opens it: names with quotes, apostrophes and
// accents, names taken in another case or with outer blanks, and every message shown.

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "VentanasPrueba.h"
#include "shell/NuevaViga.h"
#include "shell/Renombrar.h"
#include "shell/VigaSalvarComo.h"
#include "store/BaseDatos.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

Pregunta Aviso(const std::string& texto, const std::string& titulo) {
    return {texto, titulo, BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1};
}

} // namespace

class NombresViga : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaPrueba> p;

    Programa& programa() { return p->programa; }
    std::vector<Pregunta>& preguntas() { return p->dialogos->preguntas; }

    // The names of the project window's list, a row each, in the list's order.
    std::vector<std::string> Lista() {
        Recordset& rs = *programa().Estado.RsGeneralViga;
        std::vector<std::string> nombres;
        for (rs.MoveFirst(); !rs.AlFinal(); rs.MoveNext())
            nombres.push_back(rs.Campo("NombreViga").Texto());
        return nombres;
    }

    // The beam of that name as the project file holds it now.
    VigaActual EnArchivo(const std::string& nombre) {
        EstadoProyecto otro;
        otro.BDProyecto = BaseDatos::Abrir(programa().Estado.BDProyecto->Ruta());
        VigaActual viga;
        viga.NombreVigaActual = nombre;
        LeerViga(otro, viga);
        return viga;
    }

  private slots:
    void init() {
        p = std::make_unique<ProgramaPrueba>();
        EstadoProyecto& estado = programa().Estado;
        estado.NombreProyecto = "Ejemplo Demostrativo.trv";
        estado.BDProyecto =
            BaseDatos::Abrir(programa().Carpetas.RutaProyectos + "/" + estado.NombreProyecto);
        AbrirRsGeneralViga(estado, ConsultaListaVigas);
    }

    void NuevaVigaRecorreLasVigasYCreaLaDeNombreLibre() {
        const std::vector<std::string> lista = Lista();
        QCOMPARE(lista.size(), 6u);
        std::vector<int> mostradas;
        NuevaViga ventana(programa(), 2, lista, [&](int fila) { mostradas.push_back(fila); });
        const int creada = Ejecutar(ventana, [&](NuevaViga& v) {
            QCOMPARE(v.windowTitle(), QStringLiteral("Crear Nueva Viga"));
            auto* barra = Hijo<QScrollBar>(v, QStringLiteral("VScroll1"));
            QCOMPARE(barra->maximum(), 6);
            QCOMPARE(barra->value(), 2);
            QVERIFY(barra->isEnabled());
            QTest::keyClick(barra, Qt::Key_Down);
            QCOMPARE(mostradas, std::vector<int>{3});
            QCOMPARE(programa().Estado.RsGeneralViga->Campo("NombreViga").Texto(), lista[2]);

            Proponer(v, QStringLiteral("   "), "Button1");
            QVERIFY(preguntas().empty());
            Proponer(v, QStringLiteral("  v-102 balcón EN volado "), "Button1");
            QCOMPARE(preguntas(),
                     std::vector{Aviso(
                         "Nombre de la Viga: V-102 BALCÓN EN VOLADO\n\nExiste una Viga con el "
                         "mismo Nombre en el Proyecto!      ",
                         "Creando una Nueva Viga")});
            QVERIFY(v.isVisible());
            Proponer(v, QStringLiteral(" 2\"x4 d'alembert \"ñandú\" "), "Button1");
        });

        const std::string nombre = "2''X4 D'ALEMBERT ''ÑANDÚ''";
        QCOMPARE(preguntas().size(), 1u);
        QCOMPARE(programa().Viga.NombreVigaActual, nombre);
        QCOMPARE(creada, int(QDialog::Accepted));
        QCOMPARE(programa().Estado.RsGeneralViga->RecordCount(), 7);
        const VigaActual guardada = EnArchivo(nombre);
        QCOMPARE(guardada.NT, std::int16_t{1});
        QCOMPARE(guardada.LT(1), 4.0);
        QVERIFY(ExisteViga(*programa().Estado.BDProyecto, nombre));

        // Cancel changes nothing.
        NuevaViga otra(programa(), 7, Lista(), [](int) {});
        const int cancelada = Ejecutar(otra, [](NuevaViga& v) {
            Teclear(Hijo<QLineEdit>(v, QStringLiteral("Text1")), QStringLiteral("V-9"));
            QTest::keyClick(&v, Qt::Key_Escape);
        });
        QCOMPARE(cancelada, int(QDialog::Rejected));
        QCOMPARE(programa().Estado.RsGeneralViga->RecordCount(), 7);
    }

    void SalvarComoCopiaLaSeleccionadaConElNombreTalCual() {
        const std::string origen = Lista()[0];
        VigaSalvarComo ventana(programa(), 1);
        const int aceptada = Ejecutar(ventana, [&](VigaSalvarComo& v) {
            QCOMPARE(v.windowTitle(), QStringLiteral("Salvar Como..."));
            Proponer(v, QStringLiteral("  v-101 ENTREPISO eje b "), "Command1");
            QCOMPARE(preguntas(),
                     std::vector{Aviso("La Viga: v-101 ENTREPISO eje b       \nLa Viga ya "
                                       "Existe en el Proyecto...        ",
                                       "Creando Nueva Viga")});
            p->dialogos->respuestas = {RespuestaNo, RespuestaSi};
            Proponer(v, QStringLiteral(" Copia \"Ñ\" d'Ávila "), "Command1");
            QVERIFY(v.isVisible());
            QTest::mouseClick(Hijo<QPushButton>(v, QStringLiteral("Command1")), Qt::LeftButton);
        });

        const std::string copia = "Copia \"Ñ\" d'Ávila";
        const Pregunta salvar{"Salvar Como (Crear) la Viga: " + copia +
                                  "       \nA Partir de la Viga Seleccionada: " + origen +
                                  "       \n\n",
                              "Salvar Como", BotonesMensaje::SiNo, IconoMensaje::Pregunta, 1};
        QCOMPARE(preguntas().size(), 3u);
        QCOMPARE(preguntas()[1], salvar);
        QCOMPARE(preguntas()[2], salvar);
        QCOMPARE(aceptada, int(QDialog::Accepted));
        QCOMPARE(Lista().back(), copia);
        const VigaActual original = EnArchivo(origen), copiada = EnArchivo(copia);
        QCOMPARE(copiada.NT, original.NT);
        QCOMPARE(copiada.LT(original.NT), original.LT(original.NT));
    }

    void RenombrarRechazaElNombreTomadoYDevuelveElNuevo() {
        const std::string actual = Lista()[1];
        programa().Estado.RsGeneralViga->AbsolutePosition(1); // the caller's selected row
        Renombrar ventana(programa());
        const int renombrada = Ejecutar(ventana, [&](Renombrar& v) {
            QCOMPARE(v.windowTitle(), QStringLiteral("Renombrar Vigas"));
            QCOMPARE(Hijo<QLabel>(v, QStringLiteral("LabelN"))->text(), Qs(actual));
            Proponer(v, QStringLiteral(" v-102 BALCÓN en volado"), "Command2");
            QCOMPARE(preguntas(),
                     std::vector{Aviso("Nombre: v-102 BALCÓN en volado       \nEste Nombre "
                                       "ya Existe en las Vigas del Proyecto...       \n",
                                       "Renombrar")});
            p->dialogos->respuestas = {RespuestaSi};
            Proponer(v, QStringLiteral(" Eje \"C\" l'Ñu "), "Command2");
        });

        QCOMPARE(
            preguntas().back(),
            (Pregunta{"Renombrar la Viga: " + actual +
                          "   Por el Nombre: Eje \"C\" l'Ñu       \n\nEsta Usted Seguro?       \n",
                      "Renombrar", BotonesMensaje::SiNo, IconoMensaje::Pregunta, 1}));
        QCOMPARE(programa().Estado.NombreRenombrar, std::string("Eje \"C\" l'Ñu"));
        QCOMPARE(renombrada, int(QDialog::Accepted));
        QVERIFY(ExisteViga(*programa().Estado.BDProyecto, actual)); // the caller renames
    }
};

TREVALO_PRUEBA_VENTANAS(NombresViga)
#include "NombresVigaTest.moc"
