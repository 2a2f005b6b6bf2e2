// A person asks for help: the topics from the menu with their contents, index and search;
// F1 in each window opens that window's own topic; every window has a topic in the help file,
// found under the title the window shows, and the manual was printed from them; the manual's
// worked example prints the program's own results.

#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpSearchEngine>
#include <QPrintPreviewDialog>
#include <QSignalSpy>
#include <QTabWidget>
#include <cmath>

#include "VentanasPrueba.h"
#include "analysis/AnalisisVigasP.h"
#include "app/capturas/PrimeraViga.h"
#include "design/TablaDiseno.h"
#include "drawing/GeometriaPlot.h"
#include "shell/Ayuda.h"
#include "shell/Calendario.h"
#include "shell/Carga01.h"
#include "shell/Carga02.h"
#include "shell/Carga03.h"
#include "shell/Carga04.h"
#include "shell/Carga05.h"
#include "shell/Carga06.h"
#include "shell/Carga07.h"
#include "shell/Carga08.h"
#include "shell/Compactar1.h"
#include "shell/ConfigurarPrograma.h"
#include "shell/DatosG.h"
#include "shell/DobleTee.h"
#include "shell/ExportarCAD.h"
#include "shell/ImpreReport.h"
#include "shell/ImpreVigas.h"
#include "shell/ListaVigas.h"
#include "shell/MenuP.h"
#include "shell/NuevaViga.h"
#include "shell/OpcionPerfil.h"
#include "shell/Renombrar.h"
#include "shell/Sobre.h"
#include "shell/Splash.h"
#include "shell/TablaPerfil.h"
#include "shell/VentanaAyuda.h"
#include "shell/VerReportes.h"
#include "shell/VigaDatos.h"
#include "shell/VigaSalvarComo.h"
#include "shell/VigasMetalicas.h"
#include "store/BaseDatos.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

// The help window open over `ventana`, if any.
VentanaAyuda* AyudaSobre(QWidget& ventana) {
    for (VentanaAyuda* a : ventana.findChildren<VentanaAyuda*>())
        if (a->isVisible()) return a;
    return nullptr;
}

// Presses F1 in the window's focus widget (or the window) and gives the topic shown.
QString TemaConF1(QWidget& ventana) {
    QWidget* foco = ventana.focusWidget() ? ventana.focusWidget() : &ventana;
    QTest::keyClick(foco, Qt::Key_F1);
    VentanaAyuda* ayuda = AyudaSobre(ventana);
    if (!ayuda) return QStringLiteral("(ninguna)");
    const QString tema = ayuda->Actual().fileName();
    ayuda->close();
    return tema;
}

const QString Variable = QStringLiteral("…"); // a name in a title, as the contents write it

// The title of every window of the program, the name of a project, beam or table in it
// written as the help's contents write it. The windows are made over the sample project.
QStringList TitulosVentanas(ProgramaPrueba& p) {
    Programa& programa = p.programa;
    auto ventana = VentanaProyecto(p, Ejemplo);
    QStringList titulos;
    const auto titulo = [&titulos](const QWidget& w, const std::string& nombre = {}) {
        QString t = w.windowTitle();
        titulos << (nombre.empty() ? t : t.replace(Qs(nombre), Variable));
    };
    titulos << Splash(programa, p.entorno).windowTitle();
    MenuP menu(programa);
    titulo(menu, Ejemplo);
    titulo(*ventana, Ejemplo);
    titulo(DatosG(programa, &menu), Ejemplo);
    titulo(Calendario(QDate::currentDate()));
    titulo(ConfigurarPrograma(programa, &menu));
    titulo(Compactar1(programa, &menu));
    titulo(Sobre(programa, &menu));
    if (VentanaAyuda* ayuda = AbrirAyuda(programa, QString(), &menu)) {
        titulo(*ayuda);
        ayuda->close();
    }
    const int fila = ventana->FilaActiva();
    titulo(NuevaViga(
        programa, fila, ventana->NombresLista(), [](int) {}, ventana.get()));
    titulo(VigaSalvarComo(programa, fila, ventana.get()));
    titulo(Renombrar(programa, ventana.get()));
    {
        VigaDatos editor(programa, &ventana->Lista(), ventana.get());
        titulo(editor, programa.Viga.NombreVigaActual);
        Arreglo<std::int16_t> marcas(programa.Viga.NT);
        marcas(1) = 1;
        titulo(Carga01(programa, marcas, &editor));
        titulo(Carga02(programa, marcas, &editor));
        titulo(Carga03(programa, marcas, &editor));
        titulo(Carga04(programa, marcas, &editor));
        titulo(Carga05(programa, marcas, &editor));
        titulo(Carga06(programa, marcas, &editor));
        titulo(Carga07(programa, marcas, &editor));
        titulo(Carga08(programa, marcas, &editor));
        titulo(VigasMetalicas(programa, 1, &editor));
    }
    titulo(OpcionPerfil(programa, ventana.get()));
    for (const FamiliaPerfil familia : TodasLasFamilias) {
        titulo(TablaPerfil(
            programa, familia,
            {programa.Carpetas.RutaPerfiles + "/DobleTee_IPE.pfl", Std(Variable), false},
            ventana.get()));
    }
    titulo(DobleTee(
        programa, [](const CapturaSeccion&) {}, ventana.get()));
    titulo(ImpreVigas(programa, ventana->NombresLista(), ventana.get()));
    titulo(ImpreReport(programa, ventana.get()));
    VerReportes visor(programa, ContenidoInforme{}, ventana.get());
    titulo(visor);
    AlAbrirse<QPrintPreviewDialog>([&](QPrintPreviewDialog& vista) {
        titulo(vista);
        vista.reject();
    });
    visor.VistaPreliminar();
    titulo(ExportarCAD(programa, ventana->NombresLista(), ventana.get()));
    return titulos;
}

// The help's contents, depth first: each section's title and the address of its topic.
void Secciones(QHelpContentItem* item, QList<std::pair<QString, QUrl>>& secciones) {
    for (int i = 0; i < item->childCount(); ++i) {
        secciones.append({item->child(i)->title(), item->child(i)->url()});
        Secciones(item->child(i), secciones);
    }
}

} // namespace

class AyudaTest : public QObject {
    Q_OBJECT

  private slots:
    void TemasDeAyudaDesdeElMenu() {
        ProgramaPrueba p;
        MenuP menu(p.programa);
        menu.Despachar(QStringLiteral("ID_Ayuda_Temas"));
        VentanaAyuda* ayuda = AyudaSobre(menu);
        QVERIFY(ayuda);
        // The index of the words of the topics is made in the background.
        QSignalSpy indexado(ayuda->Motor().searchEngine(), &QHelpSearchEngine::indexingFinished);
        QCOMPARE(ayuda->windowTitle(), QStringLiteral("Ayuda de Trevalo 6.0"));
        QCOMPARE(ayuda->Actual(), VentanaAyuda::Direccion(QStringLiteral("Introduccion.html")));
        QVERIFY(p.dialogos->preguntas.empty());

        QTabWidget& paneles = ayuda->Paneles();
        QCOMPARE(paneles.tabText(0), QStringLiteral("Contenido"));
        QCOMPARE(paneles.tabText(1), QStringLiteral("Índice"));
        QCOMPARE(paneles.tabText(2), QStringLiteral("Buscar"));
        QHelpEngine& motor = ayuda->Motor();
        // The chapters of the manual.
        QTRY_COMPARE(motor.contentModel()->rowCount(QModelIndex()), 8);
        QTRY_VERIFY(motor.indexModel()->stringList().contains(QStringLiteral("compactar")));

        // A word of a topic's text finds it.
        QHelpSearchEngine* buscador = motor.searchEngine();
        QTRY_VERIFY_WITH_TIMEOUT(indexado.size() > 0, 15000);
        QSignalSpy encontrados(buscador, &QHelpSearchEngine::searchingFinished);
        buscador->search(QStringLiteral("DatosKorvel"));
        QTRY_COMPARE_WITH_TIMEOUT(encontrados.size(), 1, 15000);
        QStringList paginas;
        for (const QHelpSearchResult& r : buscador->searchResults(0, buscador->searchResultCount()))
            paginas << r.url().fileName();
        QVERIFY2(paginas.contains(QStringLiteral("Compactar1.html")),
                 qPrintable(paginas.join(u' ')));
    }

    void F1AbreElTemaDeLaVentanaDelFrente() {
        ProgramaPrueba p;
        MenuP menu(p.programa);
        menu.show();
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QCOMPARE(TemaConF1(menu), QStringLiteral("MenuP.html"));

        QStringList temas;
        const auto enVentana = [&temas](QDialog& v) {
            temas << TemaConF1(v);
            v.reject();
        };
        AlAbrirse<ConfigurarPrograma>(enVentana);
        menu.Despachar(QStringLiteral("ID_ConfigurarPantalla"));
        AlAbrirse<Compactar1>(enVentana);
        menu.Despachar(QStringLiteral("ID_Mantenimiento_Reparar"));
        AlAbrirse<Sobre>(enVentana);
        menu.Despachar(QStringLiteral("ID_Acerca"));
        QCOMPARE(temas,
                 (QStringList{QStringLiteral("ConfigurarPrograma.html"),
                              QStringLiteral("Compactar1.html"), QStringLiteral("Sobre.html")}));
        menu.close();
    }

    void CadaVentanaSeEncuentraPorSuTitulo() {
        ProgramaPrueba p;
        const QStringList titulos = TitulosVentanas(p);
        QVERIFY(titulos.contains(QStringLiteral("Perfiles de Sección Doble Tee     Tabla: […]")));
        MenuP menu(p.programa);
        VentanaAyuda* ayuda = AbrirAyuda(p.programa, QString(), &menu);
        QVERIFY(ayuda);
        QHelpContentModel& contenido = *ayuda->Motor().contentModel();
        QTRY_COMPARE(contenido.rowCount(QModelIndex()), 8);
        QList<std::pair<QString, QUrl>> secciones;
        for (int r = 0; r < contenido.rowCount(QModelIndex()); ++r) {
            QHelpContentItem* item = contenido.contentItemAt(contenido.index(r, 0));
            secciones.append({item->title(), item->url()});
            Secciones(item, secciones);
        }
        QStringList enContenido;
        for (const auto& [titulo, direccion] : secciones) {
            enContenido << titulo;
            // The topic opens under the same title, a section at its heading; every topic
            // shows a picture of its window in the manual.
            QUrl tema = direccion;
            tema.setFragment(QString());
            const QString html = QString::fromUtf8(ayuda->Motor().fileData(tema));
            const QString encabezado =
                direccion.hasFragment()
                    ? QStringLiteral("<a name=\"%1\"></a>%2</h2>").arg(direccion.fragment(), titulo)
                    : QStringLiteral("<h1>%1</h1>").arg(titulo);
            QVERIFY2(html.contains(encabezado), qPrintable(encabezado));
            QVERIFY2(html.contains(QStringLiteral("<!-- captura: ")), qPrintable(titulo));
        }
        for (const QString& titulo : titulos)
            QVERIFY2(enContenido.contains(titulo), qPrintable(titulo));
        // F1 opens a topic of the contents in every window.
        QStringList temas;
        for (const auto& seccion : secciones) temas << seccion.second.fileName();
        for (const auto& [clase, tema] : TemasVentanas())
            QVERIFY2(temas.contains(tema), qPrintable(clase + QStringLiteral(": ") + tema));
        ayuda->close();

        // The four profile tables are one class, told apart by name.
        QDialog tabla;
        tabla.setObjectName(QStringLiteral("TablaSeccionU"));
        QCOMPARE(TemaDeVentana(tabla), QStringLiteral("TablasPerfiles.html"));

        QFile manual(Qs(p.programa.Carpetas.RutaPrograma + "/Manual/AyudaTrevalo6.pdf"));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        QVERIFY(manual.read(5) == "%PDF-");
        QVERIFY(manual.size() > 500000); // the pictures of the windows are in it
    }

    // The worked example's beam solved and designed by the program on the sample project's
    // settings: the numbers the manual prints are the program's, and those of the closed form
    // of two equal spans under a uniform load.
    void ElEjemploImprimeLosResultadosDelPrograma() {
        ProgramaPrueba p;
        EstadoProyecto estado;
        estado.BDProyecto = BaseDatos::Abrir(p.programa.Carpetas.RutaProyectos + "/" + Ejemplo);
        ProyectoActual proyecto;
        VigaActual viga = PrimeraViga();
        ResultadosViga r;
        AnalizarViga(LectorGeneralProyecto(*estado.BDProyecto), proyecto, viga, r);
        GeometriaJuntas geometria;
        GeometriaPlot(viga, geometria);
        ResumenAcero resumen;
        const auto tabla =
            TablaDiseno(proyecto, viga, r, geometria.XPlot, geometria.YPlot, 10, resumen);
        const EstacionDiseno& apoyo = tabla.front().Estaciones.back();

        // Own weight folded into the load typed; a support moment hogging, negative.
        const double w = 0.30 * 0.50 * proyecto.PesoConcreto + 1625, L = 5.0;
        QCOMPARE(w, 2000.0);
        const double EI = 15100 * std::sqrt(proyecto.FC) * 10000 * 0.30 * 0.125 / 12;
        const auto entero = [](double x) { return QString::number(qRound(x)); };
        const auto decimales = [](double x, int n) {
            return QString::number(x, 'f', n).replace(QLatin1Char('.'), QLatin1Char(','));
        };
        const struct {
            double programa, mano;
            QString texto;
        } valores[] = {
            {r.ReacV(1), 0.375 * w * L, entero(r.ReacV(1))},
            {r.ReacV(2), 1.25 * w * L, entero(r.ReacV(2))},
            {r.ReacV(3), 0.375 * w * L, entero(r.ReacV(3))},
            {r.MomJ(1), -w * L * L / 8, entero(r.MomJ(1))},
            {r.GiroZ(1), -w * L * L * L / (48 * EI), decimales(r.GiroZ(1), 6)},
            {apoyo.Mu, -1.5 * w * L * L / 8, entero(apoyo.Mu)},
            {apoyo.AsSup, apoyo.AsSup, decimales(apoyo.AsSup, 2)},
        };
        MenuP menu(p.programa);
        VentanaAyuda* ayuda = AbrirAyuda(p.programa, QString(), &menu);
        QVERIFY(ayuda);
        const QString tema = QString::fromUtf8(
            ayuda->Motor().fileData(VentanaAyuda::Direccion(QStringLiteral("SuPrimeraViga.html"))));
        for (const auto& v : valores) {
            QVERIFY2(qAbs(v.programa - v.mano) <= 1e-9 * qAbs(v.mano), qPrintable(v.texto));
            const QString celda = QStringLiteral("<td class=\"trevalo\">%1</td>").arg(v.texto);
            QVERIFY2(tema.contains(celda), qPrintable(celda));
        }
        QVERIFY(apoyo.AsSup > 4.5); // above the least steel, which governs elsewhere
        ayuda->close();
    }
};

TREVALO_PRUEBA_VENTANAS(AyudaTest)
#include "AyudaTest.moc"
