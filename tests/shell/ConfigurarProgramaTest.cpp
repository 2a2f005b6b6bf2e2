// A person changes the program's settings from the main menu: a new wallpaper with its
// alignment and fitting, the tool tips' size, colours and form, accepted and written to
// Tapiz.kvl record by record; then a cancel, the same picture in other letters, a picture
// that cannot be read, a path too long for its record and a wallpaper deleted by hand.

#include <QComboBox>
#include <QLabel>
#include <QTabWidget>

#include "VentanasPrueba.h"
#include "shell/ConfigurarPrograma.h"
#include "shell/MenuP.h"
#include "shell/ToolTipTrevalo.h"

using namespace trevalo;
using namespace trevalo::prueba;

namespace {

const QString Clave = QStringLiteral("ID_ConfigurarPantalla");

// A picture of `ancho` x `alto` written at `ruta`.
void Dibujo(const std::string& ruta, int ancho, int alto) {
    QImage imagen(ancho, alto, QImage::Format_RGB32);
    imagen.fill(Qt::darkCyan);
    QVERIFY(imagen.save(Qs(ruta), "BMP"));
}

// The bytes of a record of Tapiz.kvl, `ancho` of them from its start.
std::string Registro(const std::string& archivo, int registro, std::size_t ancho) {
    return archivo.substr(static_cast<std::size_t>((registro - 1) * LongitudRegistroTapiz), ancho);
}

std::string Bytes(std::initializer_list<int> bytes) {
    return std::string(bytes.begin(), bytes.end());
}

std::string LeerTapizKvl(const ProgramaPrueba& p) {
    return LeerArchivo(p.programa.Carpetas.RutaBase + "/Tapiz.kvl");
}

} // namespace

class ConfigurarProgramaTest : public QObject {
    Q_OBJECT

  private slots:
    void CambiaElTapizYLosToolTipsYLosEncuentraAlVolver() {
        ProgramaPrueba p;
        MenuP menu(p.programa);
        const std::string tapices = p.programa.Carpetas.RutaBase + "/Tapices";
        const std::string otro = tapices + "/Puente.bmp";
        Dibujo(otro, 200, 100);
        p.dialogos->archivos = {{false, otro, "Puente.bmp"}};
        p.dialogos->colores = {0x123456, 0x0000FF};
        p.dialogos->respuestas = {RespuestaSi};

        EnVentana<ConfigurarPrograma>([&](ConfigurarPrograma& v) {
            QCOMPARE(v.windowTitle(), QStringLiteral("Configurar la Pantalla de Korvel-Altora"));
            auto* tab = Hijo<QTabWidget>(v, QStringLiteral("Tab1"));
            QCOMPARE(tab->currentIndex(), 0);
            QCOMPARE(tab->tabText(0), QStringLiteral("Imágen del Menú Principal"));
            QCOMPARE(tab->tabText(1), QStringLiteral("ToolTip de Ayuda de los Botones"));
            QCOMPARE(v.TapizNuevo(), Qs(tapices + "/TapizKorvel.jpg"));
            QVERIFY(!v.Imagen().isNull());
            QCOMPARE(Control<QAbstractButton>(v, "Abrir")->text(),
                     QStringLiteral("Capturar Imagen"));
            QCOMPARE(ToolTipTrevalo::Texto(Control<QAbstractButton>(v, "Abrir")),
                     QStringLiteral("Capturar una Imágen para el tapiz del menú principal. "));
            QVERIFY(
                Control<QAbstractButton>(v, "Option5")->isChecked()); // the defaults: centre, left
            QVERIFY(Control<QAbstractButton>(v, "Option1")->isChecked());

            // A new picture: fitted into the 320 x 240 preview keeping 2 : 1, centred, left
            // to its natural size.
            Control<QAbstractButton>(v, "Option3")->click();
            Control<QAbstractButton>(v, "Check1")->click();
            Pulsar(v, "Abrir");
            // Its title, the filter's words and the folder are checked on the real dialog.
            QCOMPARE(p.dialogos->dialogosArchivo.back().Filtro,
                     std::string("Archivos de Dibujo|*.bmp; *.jpg; *.gif; *.dib; *.wmf, *.emf"));
            QCOMPARE(v.TapizNuevo(), Qs(otro));
            QCOMPARE(Hijo<QLabel>(v, QStringLiteral("Image1"))->size(), QSize(320, 160));
            QVERIFY(Control<QAbstractButton>(v, "Option1")->isChecked());
            QVERIFY(Control<QAbstractButton>(v, "Option4")->isChecked());
            QVERIFY(!Control<QAbstractButton>(v, "Check1")->isChecked());
            Control<QAbstractButton>(v, "Option3")->click(); // at the bottom
            Control<QAbstractButton>(v, "Option6")->click(); // at the right
            Control<QAbstractButton>(v, "Check1")->click();

            // The tool tips: 14 points, a colour of the dialog then a swatch, the text
            // colour, centred and traditional; the sample follows at once.
            tab->setCurrentIndex(1);
            auto* combo = Hijo<QComboBox>(v, QStringLiteral("Combo1"));
            QStringList tamanos;
            for (int i = 0; i < combo->count(); ++i) tamanos << combo->itemText(i);
            QCOMPARE(tamanos.join(QLatin1Char(' ')), QStringLiteral("6 7 8 9 10 11 12 14"));
            QCOMPARE(combo->currentIndex(), 4);
            combo->setCurrentIndex(7);
            Pulsar(v, "LColor");
            QCOMPARE(Hijo<QLabel>(v, QStringLiteral("LSLabel1"))->palette().color(QPalette::Window),
                     QColor(0x56, 0x34, 0x12));
            QTest::mouseClick(Hijo<QLabel>(v, QStringLiteral("LSLabel5")), Qt::LeftButton);
            Pulsar(v, "OwlButton3");
            Control<QAbstractButton>(v, "Check3")->click();
            Control<QAbstractButton>(v, "Check4")->click();
            auto* boton = Control<QAbstractButton>(v, "OwlButton1");
            v.ToolTip().Mostrar(boton);
            const auto etiquetas = v.ToolTip().Globo()->findChildren<QLabel*>();
            QCOMPARE(etiquetas.size(), 2);
            QCOMPARE(etiquetas[0]->text(), QStringLiteral("Mensaje del Botón"));
            QCOMPARE(etiquetas[1]->text(),
                     QStringLiteral("ToolTip Ejemplo de la descripción del botón seleccionado."));
            QCOMPARE(etiquetas[1]->font().pointSize(), 14);
            QCOMPARE(etiquetas[1]->alignment(), Qt::AlignHCenter);
            QVERIFY(v.ToolTip().Globo()->styleSheet().contains(QStringLiteral("#ffe1e1")));
            v.ToolTip().Ocultar();

            Pulsar(v, "Command6");
        });
        menu.Despachar(Clave);

        QCOMPARE(p.dialogos->preguntas.size(), std::size_t(1));
        QCOMPARE(p.dialogos->preguntas[0],
                 (Pregunta{"Tapiz de la Pantalla: " + otro +
                               "       \nAsumir por Defecto estas Opciones?       ",
                           "Configurar la Pantalla del Menu", BotonesMensaje::SiNo,
                           IconoMensaje::Pregunta, 1}));

        // The ten records: the path with its length, the alignments and the effect in one
        // byte, the fitting and the flags as true (-1) in two, the colours in four.
        const std::string kvl = LeerTapizKvl(p);
        QCOMPARE(kvl.size(), std::size_t(9 * LongitudRegistroTapiz + 2));
        QCOMPARE(Registro(kvl, 1, 2 + otro.size()),
                 Bytes({int(otro.size()) & 0xFF, int(otro.size()) >> 8}) + otro);
        QCOMPARE(Registro(kvl, 2, 2), Bytes({2, 0}));
        QCOMPARE(Registro(kvl, 3, 2), Bytes({2, 0}));
        QCOMPARE(Registro(kvl, 4, 2), Bytes({0xFF, 0xFF}));
        QCOMPARE(Registro(kvl, 5, 2), Bytes({0, 0}));
        QCOMPARE(Registro(kvl, 6, 2), Bytes({7, 0}));
        QCOMPARE(Registro(kvl, 7, 4), Bytes({0xFF, 0xE1, 0xE1, 0}));
        QCOMPARE(Registro(kvl, 8, 4), Bytes({0xFF, 0, 0, 0}));
        QCOMPARE(Registro(kvl, 9, 2), Bytes({0xFF, 0xFF}));
        QCOMPARE(Registro(kvl, 10, 2), Bytes({0xFF, 0xFF}));

        // The main window shows the new picture at once, and the program the new tips.
        const QPixmap tapiz = menu.Tapiz().pixmap();
        QVERIFY(!tapiz.isNull());
        QCOMPARE(tapiz.width(), 2 * tapiz.height());
        QCOMPARE(p.programa.Tapiz.TipFondo, 0xE1E1FF);
        QVERIFY(p.programa.Tapiz.TipCentrado != 0 && p.programa.Tapiz.TipTradicional != 0);
    }

    void CancelarYArchivosQueNoSirven() {
        ProgramaPrueba p;
        MenuP menu(p.programa);
        const std::string tapices = p.programa.Carpetas.RutaBase + "/Tapices";
        const std::string korvel = tapices + "/TapizKorvel.jpg";
        const std::string roto = tapices + "/Roto.jpg";
        const std::string larga = p.carpeta / (std::string(120, 'c') + "/Lejos.bmp");
        EscribirArchivo(roto, "esto no es una imagen");
        EscribirArchivo(larga, "");
        Dibujo(larga, 40, 30);
        const std::string antes = LeerTapizKvl(p);
        std::string mayusculas = korvel;
        for (char& c : mayusculas) c = static_cast<char>(std::toupper(c));
        p.dialogos->archivos = {{false, mayusculas, "TAPIZKORVEL.JPG"},
                                {false, roto, "Roto.jpg"},
                                {false, larga, "Lejos.bmp"}};

        EnVentana<ConfigurarPrograma>([&](ConfigurarPrograma& v) {
            const QSize vista = Hijo<QLabel>(v, QStringLiteral("Image1"))->size();
            Control<QAbstractButton>(v, "Option2")->click();
            // The same picture in capitals: nothing is reset.
            Pulsar(v, "Abrir");
            QVERIFY(Control<QAbstractButton>(v, "Option2")->isChecked());
            QCOMPARE(v.TapizNuevo(), Qs(korvel));
            QCOMPARE(p.dialogos->dialogosArchivo.size(), std::size_t(1));
            // A file that is not a picture and a path too long for its record: a message
            // each, the picture and its path kept.
            Pulsar(v, "Abrir");
            Pulsar(v, "Abrir");
            // Each dialog starts in the folder of the file chosen last.
            QCOMPARE(p.dialogos->dialogosArchivo[1].Carpeta,
                     mayusculas.substr(0, mayusculas.rfind('/')));
            QCOMPARE(p.dialogos->preguntas.size(), std::size_t(2));
            const Pregunta& ilegible = p.dialogos->preguntas[0];
            QCOMPARE(ilegible.Texto, "No se puede leer la imagen:    \n" + roto +
                                         "    \nEl archivo está dañado o no es una imagen.    ");
            QCOMPARE(ilegible.Titulo, std::string("Cambiar el Tapiz del Menú Principal"));
            QCOMPARE(ilegible.Icono, IconoMensaje::Advertencia);
            QVERIFY(p.dialogos->preguntas[1].Texto.starts_with(
                "La ruta de la imagen es demasiado larga: tiene " + std::to_string(larga.size()) +
                " caracteres y caben 126."));
            QCOMPARE(v.TapizNuevo(), Qs(korvel));
            QCOMPARE(Hijo<QLabel>(v, QStringLiteral("Image1"))->size(), vista);

            // The font size takes effect for the run at once; Cancel keeps it and nothing
            // else.
            Hijo<QComboBox>(v, QStringLiteral("Combo1"))->setCurrentIndex(1);
            Control<QAbstractButton>(v, "Check3")->click();
            Pulsar(v, "Command5");
        });
        menu.Despachar(Clave);
        QCOMPARE(LeerTapizKvl(p), antes);
        QCOMPARE(p.programa.Tapiz.TipLetra, 1);
        QCOMPARE(p.programa.Tapiz.TipCentrado, 0);
        QCOMPARE(p.programa.Tapiz.TapizVertical, 0);
        QCOMPARE(p.dialogos->preguntas.size(), std::size_t(2)); // no question of Aceptar

        // A wallpaper deleted by hand: an empty preview, its path still shown.
        QFile::remove(Qs(korvel));
        EnVentana<ConfigurarPrograma>([&](ConfigurarPrograma& v) {
            QVERIFY(v.Imagen().isNull());
            QVERIFY(Hijo<QLabel>(v, QStringLiteral("Image1"))->pixmap().isNull());
            QCOMPARE(v.TapizNuevo(), Qs(korvel));
            Pulsar(v, "Command5");
        });
        menu.Despachar(Clave);
    }
};

TREVALO_PRUEBA_VENTANAS(ConfigurarProgramaTest)
#include "ConfigurarProgramaTest.moc"
