// Every file dialog of the program, opened by its window as a person opens it and shown by the
// toolkit's own dialog, over the folders that the start-up makes: the title, the words of the
// filter as they stand, the folder, and which files it lists and which it hides. The dialog is
// then cancelled.

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "VentanasPrueba.h"
#include "output/ContenidoInforme.h"
#include "shell/ConfigurarPrograma.h"
#include "shell/CristalReport.h"
#include "shell/DialogosQt.h"
#include "shell/ExportarCAD.h"
#include "shell/ImpreReport.h"
#include "shell/MenuP.h"
#include "shell/OpcionPerfil.h"
#include "shell/VigasMetalicas.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

// What a file dialog on screen shows.
struct Visto {
    QString titulo, filtro, carpeta;
    QStringList archivos; // the files of its list (folders aside), by name
};

QStringList Listados(QFileDialog& d) {
    auto* lista = d.findChild<QListView*>(QStringLiteral("listView"));
    const QAbstractItemModel* modelo = lista->model();
    QStringList nombres;
    for (int r = 0; r < modelo->rowCount(lista->rootIndex()); ++r) {
        const QModelIndex i = modelo->index(r, 0, lista->rootIndex());
        if (QFileInfo(i.data(QFileSystemModel::FilePathRole).toString()).isFile())
            nombres << i.data(QFileSystemModel::FileNameRole).toString();
    }
    nombres.sort();
    return nombres;
}

// Runs `abrir`, which brings up one file dialog of the program; once the dialog lists the
// files `esperados` (the folder is read in the background), or after five seconds, reads it
// and cancels it.
Visto Mirar(const QStringList& esperados, const std::function<void()>& abrir) {
    Visto visto;
    AlAbrirse<QFileDialog>([&](QFileDialog& d) {
        // A dialog that never lists them is read all the same, and the comparison tells.
        static_cast<void>(QTest::qWaitFor(
            [&] {
                const QStringList listados = Listados(d);
                return std::all_of(esperados.begin(), esperados.end(),
                                   [&](const QString& n) { return listados.contains(n); });
            },
            5000));
        visto = {d.windowTitle(),
                 d.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->currentText(),
                 d.directory().absolutePath(), Listados(d)};
        d.reject();
    });
    abrir();
    return visto;
}

// A click on a button of a window that is not on screen.
void Clic(QWidget& ventana, const char* boton) {
    Control<QAbstractButton>(ventana, boton)->click();
}

} // namespace

class DialogosArchivo : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaPrueba> p;
    DialogosQt reales;

    Programa& programa() { return p->programa; }
    std::string Base() { return programa().Carpetas.RutaBase; }

    void Comprobar(const Visto& visto, const char* titulo, const char* filtro,
                   const std::string& carpeta, const QStringList& archivos) {
        QCOMPARE(visto.titulo, QString::fromUtf8(titulo));
        QCOMPARE(visto.filtro, QString::fromUtf8(filtro));
        QCOMPARE(visto.carpeta, QDir(Qs(Base() + "/" + carpeta)).absolutePath());
        QCOMPARE(visto.archivos, archivos);
    }

  private slots:
    // The sample project and the tables and wallpaper of the start-up, and beside them files
    // that no dialog of those folders may list.
    void init() {
        p = std::make_unique<ProgramaPrueba>();
        p->dialogos->archivosReales = &reales;
        for (const char* carpeta : {"Proyectos", "Perfiles", "Tapices", "ReportesExportados"})
            EscribirArchivo(Base() + "/" + carpeta + "/Notas.txt", "x");
        EscribirArchivo(Base() + "/Perfiles/DobleTee_.pfl", "x");
        EscribirArchivo(Base() + "/Perfiles/Tabla.plf", "x");
        for (const char* informe : {"Vigas.pdf", "Vigas.htm", "Vigas.xlsx", "Vigas.rtf"})
            EscribirArchivo(Base() + "/ReportesExportados/" + informe, "x");
        EscribirArchivo(Base() + "/Proyectos/Edificio.Cad", "x");
    }

    void Proyectos() {
        MenuP menu(programa());
        const QStringList ejemplo{QStringLiteral("Ejemplo Demostrativo.trv")};
        const auto abrir = [&](const char* clave) {
            return Mirar(ejemplo, [&] { menu.Despachar(QString::fromLatin1(clave)); });
        };
        Comprobar(abrir("ID_Proyecto_Abrir"), "Abrir un Proyecto Existente", "Trevalo (*.trv)",
                  "Proyectos", ejemplo);
        Comprobar(abrir("ID_Proyecto_Nuevo"), "Crear un Nuevo Proyecto", "Trevalo (*.trv)",
                  "Proyectos", ejemplo);
    }

    // Each family lists its own tables only: not those of the other families, not a name with
    // nothing behind the prefix, not a file of the extension that the filter's words show.
    void TablasDePerfiles() {
        const std::vector<QStringList> familias = {
            {QStringLiteral("DobleTee_HEA.pfl"), QStringLiteral("DobleTee_HEB.pfl"),
             QStringLiteral("DobleTee_HEM.pfl"), QStringLiteral("DobleTee_IPE.pfl")},
            {QStringLiteral("U_UPN.pfl")},
            {QStringLiteral("Cuadrada_SHS.pfl")},
            {QStringLiteral("Rectangular_RHS.pfl")}};
        OpcionPerfil opcion(programa());
        for (int i = 1; i <= 4; ++i) {
            Control<QRadioButton>(opcion, QStringLiteral("Option%1").arg(i).toLatin1())
                ->setChecked(true);
            const QStringList& tablas = familias[static_cast<std::size_t>(i - 1)];
            Comprobar(Mirar(tablas, [&] { Clic(opcion, "LSButton2"); }),
                      "Crear Tabla de Perfiles Metálicos", "Tabla de Perfiles (*.plf)", "Perfiles",
                      tablas);
        }
        Comprobar(Mirar(familias[3], [&] { Clic(opcion, "LSButton3"); }),
                  "Crear Tabla de Perfiles Metálicos", "Tabla de Perfiles (*.plf)", "Perfiles",
                  familias[3]);
        VigasMetalicas metalicas(programa());
        Comprobar(Mirar(familias[0], [&] { Clic(metalicas, "LSButton2"); }),
                  "Crear Tabla de Perfiles Metálicos", "Tabla de Perfiles (*.plf)", "Perfiles",
                  familias[0]);
    }

    void Tapiz() {
        ConfigurarPrograma configurar(programa());
        const QStringList tapiz{QStringLiteral("TapizKorvel.jpg")};
        Comprobar(Mirar(tapiz, [&] { Clic(configurar, "Abrir"); }),
                  "Cambiar el Tapiz del Menú Principal", "Archivos de Dibujo", "Tapices", tapiz);
    }

    // Each kind of report lists its own files; the export assistant starts on the first kind,
    // whose words hold brackets of their own.
    void Informes() {
        ImpreReport impresion(programa());
        struct Caso {
            const char* opcion;
            const char* titulo;
            const char* filtro;
            const char* archivo;
        };
        for (const Caso& c :
             {Caso{"Option1", "Exportar el Reporte a formato: Adobe Acrobat(PDF)", "*.pdf",
                   "Vigas.pdf"},
              Caso{"Option2", "Exportar el Reporte a formato: HTLM 4.0", "*.htm", "Vigas.htm"},
              Caso{"Option7", "Exportar el Reporte a formato: Microsoft Excel 97-2000 (XLS)",
                   "*.xlsx", "Vigas.xlsx"},
              Caso{"Option4", "Exportar el Reporte a formato: Microsoft Word (RTF)", "*.rtf",
                   "Vigas.rtf"}}) {
            Control<QRadioButton>(impresion, c.opcion)->setChecked(true);
            const QStringList informe{QString::fromLatin1(c.archivo)};
            Comprobar(Mirar(informe, [&] { Clic(impresion, "Command1"); }), c.titulo, c.filtro,
                      "ReportesExportados", informe);
        }
        const QStringList pdf{QStringLiteral("Vigas.pdf")};
        Comprobar(Mirar(pdf, [&] { AsistenteExportacion(programa(), ContenidoInforme{}); }),
                  "Asistente de Exportación", "Adobe Acrobat (PDF)", "ReportesExportados", pdf);
    }

    void ProyectoDelProgramaDeDibujo() {
        auto ventana = VentanaProyecto(*p, "Ejemplo Demostrativo.trv");
        const QStringList edificio{QStringLiteral("Edificio.Cad")};
        const Visto visto = Mirar(edificio, [&] {
            AlAbrirse<ExportarCAD>([](ExportarCAD& f) {
                Pulsar(f, "SSCommand1");
                Pulsar(f, "LSButton1");
                f.reject();
            });
            QTest::mouseClick(ventana->Boton(QStringLiteral("KorvelButton1")), Qt::LeftButton);
        });
        // The name it suggests, the project's beside it, brings it to the projects folder.
        Comprobar(visto, "Abrir un Proyecto en Korvel-CAD Estructural 8.0", "Korvel-Cad",
                  "Proyectos", edificio);
    }
};

TREVALO_PRUEBA_VENTANAS(DialogosArchivo)
#include "DialogosArchivoTest.moc"
