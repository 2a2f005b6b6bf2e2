// A person repairs and compacts project files from the main menu: nothing marked, then three
// projects of the folder (the open one among them) over an old temporary file left by a
// crash; then every file, with a damaged one in the middle of the list; and the folder tree,
// which reaches beyond the home folder.

#include <QFileSystemModel>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeView>

#include "VentanasPrueba.h"
#include "comun/Proyecto.h"
#include "shell/Compactar1.h"
#include "shell/MenuP.h"
#include "store/BaseDatos.h"
#include "store/Compactar.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

const QString Clave = QStringLiteral("ID_Mantenimiento_Reparar");

QStringList Nombres(QListWidget* lista, bool soloMarcados) {
    QStringList r;
    for (int i = 0; i < lista->count(); ++i)
        if (!soloMarcados || lista->item(i)->checkState() == Qt::Checked)
            r << lista->item(i)->text();
    return r;
}

void Marcar(QListWidget* lista, const QStringList& nombres) {
    for (int i = 0; i < lista->count(); ++i)
        if (nombres.contains(lista->item(i)->text())) lista->item(i)->setCheckState(Qt::Checked);
}

long CantidadVigas(const std::string& ruta) {
    EstadoProyecto estado;
    AbrirProyectoArchivo(ruta, estado);
    return estado.RsGeneralViga->RecordCount();
}

Pregunta Cuenta(int n) {
    return {"¡Se Repararon y Compactaron (" + std::to_string(n) + ") Archivos con Exito!    ",
            "Mantenimientos de Archivos", BotonesMensaje::Aceptar, IconoMensaje::Informacion, 1};
}

struct Carpeta {
    ProgramaPrueba p;
    std::string proyectos = p.programa.Carpetas.RutaProyectos;
    std::string Ruta(const char* nombre) const { return proyectos + "/" + nombre; }

    Carpeta() {
        std::vector<VigaActual> vigas;
        for (int i = 0; i < 12; ++i) vigas.push_back(VigaPrueba("V-" + std::to_string(i), i));
        CrearProyecto(Ruta("Aulas.trv"), vigas, AjustesPrueba());
        CrearProyecto(Ruta("Zapatería.trv"), {vigas[0], vigas[1]}, AjustesPrueba());
        EscribirArchivo(Ruta("Notas.txt"), "no es un proyecto");
    }
};

} // namespace

class Compactar1Test : public QObject {
    Q_OBJECT

  private slots:
    void NadaMarcadoYLuegoTresProyectos() {
        Carpeta c;
        MenuP menu(c.p.programa);
        const std::string ejemplo = c.Ruta("Ejemplo Demostrativo.trv");
        AbrirProyectoArchivo(ejemplo, c.p.programa.Estado);
        const std::string temporal = TemporalCompactar(c.proyectos);
        EscribirArchivo(temporal, "restos de una corrida que no terminó");
        const long vigasAulas = CantidadVigas(c.Ruta("Aulas.trv"));
        const long vigasEjemplo = CantidadVigas(ejemplo);

        EnVentana<Compactar1>([&](Compactar1& v) {
            QCOMPARE(v.windowTitle(), QStringLiteral("Reparar y Compactar Archivos"));
            QCOMPARE(v.DirActual(), Qs(c.proyectos));
            auto* lista = Hijo<QListWidget>(v, QStringLiteral("FileView1"));
            QCOMPARE(Nombres(lista, false), (QStringList{QStringLiteral("Aulas.trv"),
                                                         QStringLiteral("Ejemplo Demostrativo.trv"),
                                                         QStringLiteral("Zapatería.trv")}));
            QVERIFY(Nombres(lista, true).isEmpty());
            QVERIFY(Hijo<QProgressBar>(v, QStringLiteral("ProgressBar1"))->isHidden());
            QVERIFY(Hijo<QLabel>(v, QStringLiteral("LSLabel1"))->isHidden());
            QCOMPARE(Hijo<QPushButton>(v, QStringLiteral("SSCommand1"))->text(),
                     QStringLiteral(" Marcar Todas las Partidas del Presupuesto "));
            QCOMPARE(Hijo<QPushButton>(v, QStringLiteral("LSButton1"))->text(),
                     QStringLiteral(" Desmarcar Todas las Partidas del Presupuesto "));

            // Nothing marked: a message, and the open project stays open.
            Pulsar(v, "Command2");
            QCOMPARE(c.p.dialogos->preguntas.back(),
                     (Pregunta{"No ha Seleccionado ningún Archivo...    ", "Respardar Archivos",
                               BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1}));
            QVERIFY(c.p.programa.Estado.BDProyecto.has_value());

            Pulsar(v, "SSCommand1");
            QCOMPARE(Nombres(lista, true).size(), 3);
            Pulsar(v, "LSButton1");
            QVERIFY(Nombres(lista, true).isEmpty());
            Marcar(lista, Nombres(lista, false));
            Pulsar(v, "Command2");
            QCOMPARE(c.p.dialogos->preguntas.back(), Cuenta(3));
            QVERIFY(v.isVisible()); // the dialog stays open
            QVERIFY(Hijo<QProgressBar>(v, QStringLiteral("ProgressBar1"))->isHidden());
            Pulsar(v, "Command1");
        });
        menu.Despachar(Clave);

        QCOMPARE(c.p.dialogos->preguntas.size(), std::size_t(2));
        QVERIFY(!c.p.programa.Estado.BDProyecto.has_value()); // closed for the run
        QVERIFY(!QFile::exists(Qs(temporal)));
        QCOMPARE(CantidadVigas(c.Ruta("Aulas.trv")), vigasAulas);
        QCOMPARE(CantidadVigas(ejemplo), vigasEjemplo);
        QCOMPARE(CantidadVigas(c.Ruta("Zapatería.trv")), 2L);
    }

    void UnArchivoDanadoDetieneLaCorrida() {
        Carpeta c;
        const std::string danado = c.Ruta("Dañado.trv");
        CrearProyecto(danado, {VigaPrueba("V-1", 1)}, AjustesPrueba());
        {
            std::string bytes = LeerArchivo(danado);
            std::fill(bytes.begin() + 4096, bytes.end(), '\x5A');
            EscribirArchivo(danado, bytes);
        }
        const std::string antesDanado = LeerArchivo(danado);
        const std::string antesZapateria = LeerArchivo(c.Ruta("Zapatería.trv"));
        Compactar1 v(c.p.programa);
        Ejecutar(v, [&](Compactar1& w) {
            auto* lista = Hijo<QListWidget>(w, QStringLiteral("FileView1"));
            QCOMPARE(Nombres(lista, false).at(1), QStringLiteral("Dañado.trv"));
            Pulsar(w, "SSCommand1");
            Pulsar(w, "Command2");
            w.reject();
        });
        // One message: the engine's, naming the file, the stop and the count of the one done
        // before it; no word of success.
        const auto& preguntas = c.p.dialogos->preguntas;
        QCOMPARE(preguntas.size(), std::size_t(1));
        QVERIFY(preguntas[0].Titulo.starts_with("Error: "));
        QCOMPARE(preguntas[0].Icono, IconoMensaje::Advertencia);
        QVERIFY(preguntas[0].Texto.ends_with(
            "    \nArchivo: Dañado.trv    \n"
            "Se Detuvo el Proceso: se Repararon y Compactaron (1) de (4) Archivos.    "));
        QCOMPARE(LeerArchivo(danado), antesDanado);
        QCOMPARE(LeerArchivo(c.Ruta("Zapatería.trv")), antesZapateria); // after the stop
        QVERIFY(!QFile::exists(Qs(TemporalCompactar(c.proyectos))));
    }

    // With the data folder in the user's home, the tree still reaches other disks and any
    // folder outside the home, whose projects the list shows.
    void ElArbolAlcanzaOtrosDiscos() {
        Carpeta c;
        const QByteArray casa = qgetenv("HOME");
        qputenv("HOME", c.p.carpeta.Ruta().c_str());
        CarpetaTemporal otroDisco;
        CrearProyecto(otroDisco / "Puente.trv", {VigaPrueba("V-1", 1)}, AjustesPrueba());
        Compactar1 v(c.p.programa);
        qputenv("HOME", casa);
        auto* arbol = Hijo<QTreeView>(v, QStringLiteral("FolderView1"));
        const auto* modelo = static_cast<const QFileSystemModel*>(arbol->model());
        const auto alcanza = [&](const QString& carpeta) {
            QModelIndex nodo = modelo->index(carpeta);
            while (nodo.isValid() && nodo != arbol->rootIndex()) nodo = nodo.parent();
            return nodo.isValid();
        };
        for (const QString& carpeta : {QStringLiteral("/media"), QStringLiteral("/mnt"),
                                       Qs(c.proyectos), Qs(otroDisco.Ruta())})
            QVERIFY2(alcanza(carpeta), qPrintable(carpeta));
        v.CambiarCarpeta(Qs(otroDisco.Ruta()));
        QCOMPARE(v.DirActual(), Qs(otroDisco.Ruta()));
        QCOMPARE(modelo->filePath(arbol->currentIndex()), Qs(otroDisco.Ruta()));
        QCOMPARE(Nombres(Hijo<QListWidget>(v, QStringLiteral("FileView1")), false),
                 QStringList{QStringLiteral("Puente.trv")});
    }
};

TREVALO_PRUEBA_VENTANAS(Compactar1Test)
#include "Compactar1Test.moc"
