// A person asks for help: the topics from the menu with their contents, index and search;
// F1 in each window opens that window's own topic; every window has a topic in the help file
// and the manual was printed from them.

#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpSearchEngine>
#include <QSignalSpy>
#include <QTabWidget>

#include "VentanasPrueba.h"
#include "shell/Ayuda.h"
#include "shell/Compactar1.h"
#include "shell/ConfigurarPrograma.h"
#include "shell/MenuP.h"
#include "shell/Sobre.h"
#include "shell/VentanaAyuda.h"

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
        QTRY_COMPARE(motor.contentModel()->rowCount(QModelIndex()), 7);
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

    void CadaVentanaTieneSuTemaYElManualExiste() {
        ProgramaPrueba p;
        MenuP menu(p.programa);
        VentanaAyuda* ayuda = AbrirAyuda(p.programa, QString(), &menu);
        QVERIFY(ayuda);
        for (const auto& [clase, tema] : TemasVentanas()) {
            const QByteArray html = ayuda->Motor().fileData(VentanaAyuda::Direccion(tema));
            QVERIFY2(html.contains("<h1>"), qPrintable(clase + QStringLiteral(": ") + tema));
        }
        ayuda->close();
        // The four profile tables are one class, told apart by name.
        QDialog tabla;
        tabla.setObjectName(QStringLiteral("TablaSeccionU"));
        QCOMPARE(TemaDeVentana(tabla), QStringLiteral("TablasPerfiles.html"));

        QFile manual(Qs(p.programa.Carpetas.RutaPrograma + "/Manual/AyudaTrevalo6.pdf"));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        QVERIFY(manual.read(5) == "%PDF-");
        QVERIFY(manual.size() > 20000);
    }
};

TREVALO_PRUEBA_VENTANAS(AyudaTest)
#include "AyudaTest.moc"
