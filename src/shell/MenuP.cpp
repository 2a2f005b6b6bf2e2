#include "shell/MenuP.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDropEvent>
#include <QFileInfo>
#include <QFrame>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QResizeEvent>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include "shell/Ayuda.h"
#include "shell/Compactar1.h"
#include "shell/ConfigurarPrograma.h"
#include "shell/DatosG.h"
#include "shell/Iconos.h"
#include "shell/OpcionPerfil.h"
#include "shell/ProyectosRecientes.h"
#include "shell/Sobre.h"
#include "shell/TextoQt.h"
#include "shell/ToolTipTrevalo.h"
#include "shell/VigasProyecto.h"

namespace trevalo {

namespace {

// A command of the menu: its key, caption, hint, and whether a separator follows it.
struct Comando {
    const char* clave;
    const char* titulo;
    const char* pista;
    bool separador;
};

struct Menu {
    const char* titulo;
    std::vector<Comando> comandos;
};

const std::vector<Menu>& Menus() {
    static const std::vector<Menu> menus = {
        {"Proyecto",
         {{"ID_Proyecto_Nuevo", "&NUEVO PROYECTO...", " CREAR NUEVO PROYECTO", false},
          {"ID_Proyecto_Abrir", "&ABRIR PROYECTO EXISTENTE...", " ABRIR UN PROYECTO EXISTENTE",
           false},
          {"ID_Proyecto_Modificar", "&EDITAR LOS DATOS GENERLAES...", " EDITAR LOS DATOS GENERLAES",
           true},
          {"ID_Proyecto_Salvarcomo", "SALVAR EL PROYECTO COMO...", " SALVAR EL PROYECTO COMO",
           true},
          {"ID_Proyecto_Eliminar", "&ELIMINAR PROYECTOS...", "", true},
          {"ID_ConfigurarPantalla", "&CONFIGURAR EL PROGRAMA...", " CONFIGURAR EL PROGRAMA", true},
          {"ID_Salida", "&SALIDA DEL PROGRAMA", "", false}}},
        {"&ANÁLISIS_DISEÑO",
         {{"ID_AnalizarVigas", "&ANÁLISIS Y DISEÑO DE VIGAS CONTINUAS...",
           "  ANÁLISIS Y DISEÑO DE VIGAS CONTINUAS", false}}},
        {"&PERFILES_METÁLICOS",
         {{"ID_BaseDatos_Perfiles", "TABLA DE PERFILES METÁLICOS...",
           " TABLA DE PERFILES METÁLICOS", false}}},
        {"&MANTENIMIENTO",
         {{"ID_Mantenimiento_Reparar", "&REPARAR Y COMPACTAR ARCHIVOS...", "", true},
          {"ID_Explorador", "EXPLORADOR DE ARCHIVOS...", " Explorador de Windows", false}}},
        {"&AYUDA",
         {{"ID_Ayuda_Temas", "TEMAS DE AYUDA...", " TEMAS DE AYUDA", true},
          {"ID_Manual", "MANUAL DEL PROGRAMA...", " MANUAL DEL PROGRAMA", true},
          {"ID_Acerca", "SOBRE TREVALO...", "", false}}},
    };
    return menus;
}

// The icon bar, from the left; an empty key is a separator.
const char* const BarraIconos[] = {"ID_Proyecto_Nuevo",     "ID_Proyecto_Abrir",
                                   "ID_Proyecto_Modificar", "",
                                   "ID_AnalizarVigas",      "",
                                   "ID_Ayuda_Temas",        "",
                                   "ID_Explorador"};

// The lifecycle's screens and files in the main window.
class PlataformaMenu : public PlataformaProyectoDisco {
  public:
    PlataformaMenu(Programa& programa, MenuP& menu)
        : PlataformaProyectoDisco(programa.Dialogo()), programa_(programa), menu_(menu) {}

    // The hourglass stays while a window loads; once it is up the pointer is normal.
    void MostrarDatosGenerales(bool) override {
        DatosG datos(programa_, &menu_);
        PunteroEspera(false);
        datos.exec();
    }
    bool MostrarVigasProyecto() override {
        VigasProyecto ventana(programa_, &menu_);
        if (!ventana.Abierto()) return false;
        PunteroEspera(false);
        ventana.exec();
        return true;
    }
    void RecordarProyecto(const std::string& ruta) override { menu_.RecordarProyecto(Qs(ruta)); }
    void ColocarTituloMenu(const std::string& titulo) override { menu_.setWindowTitle(Qs(titulo)); }
    void HabilitarSalvarComo(bool habilitado) override {
        menu_.Accion(QStringLiteral("ID_Proyecto_Salvarcomo"))->setEnabled(habilitado);
    }
    void PunteroEspera(bool espera) override {
        if (espera) {
            if (!QApplication::overrideCursor()) QApplication::setOverrideCursor(Qt::WaitCursor);
            return;
        }
        while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
    }

  private:
    Programa& programa_;
    MenuP& menu_;
};

// VB's integer division: the quotient cut towards zero.
int Mitad(int n) {
    return n / 2;
}

} // namespace

QRect GeometriaTapiz(QSize interior, int altoPanel, QSize imagen, const ConfiguracionTapiz& t) {
    const int ancho = interior.width(), alto = interior.height();
    if (t.TapizAjustar == 0) {
        int arriba = 0, izquierda = 0;
        if (t.TapizVertical == 0) arriba = (alto - imagen.height()) >> 1;
        if (t.TapizVertical == 2) arriba = alto - imagen.height();
        if (t.TapizHorizontal == 1) izquierda = Mitad(ancho - imagen.width());
        if (t.TapizHorizontal == 2) izquierda = ancho - imagen.width();
        return {QPoint(izquierda, arriba), imagen};
    }
    QSize tamano = imagen;
    if (imagen.height() + altoPanel >= alto || imagen.width() > ancho) {
        const double r1 = static_cast<double>(imagen.height()) / (alto - altoPanel);
        const double r2 = static_cast<double>(imagen.width()) / ancho;
        const double r = std::max(r1, r2);
        tamano = QSize(static_cast<int>(imagen.width() / r), static_cast<int>(imagen.height() / r));
    }
    return {QPoint(Mitad(ancho - tamano.width()), Mitad(alto - altoPanel - tamano.height())),
            tamano};
}

MenuP::MenuP(Programa& programa)
    : programa_(programa), plataforma_(std::make_unique<PlataformaMenu>(programa, *this)),
      toolTip_(new ToolTipTrevalo(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("MenuP"));
    setAcceptDrops(true);
    area_ = new QWidget(this);
    area_->setObjectName(QStringLiteral("Fondo"));
    area_->setAutoFillBackground(true);
    setCentralWidget(area_);
    imagen_ = new QLabel(area_);
    imagen_->setObjectName(QStringLiteral("Image1"));
    imagen_->setFocusPolicy(Qt::StrongFocus);
    // The line across the top of the inner area, at its full width.
    auto* capas = new QVBoxLayout(area_);
    capas->setContentsMargins(0, 0, 0, 0);
    linea_ = new QFrame(area_);
    linea_->setObjectName(QStringLiteral("LSLine1"));
    linea_->setFrameShape(QFrame::HLine);
    linea_->setFrameShadow(QFrame::Sunken);
    capas->addWidget(linea_);
    capas->addStretch();
    statusBar()->setObjectName(QStringLiteral("LSPanel1"));
    statusBar()->setSizeGripEnabled(false);
    CrearMenus();
    ColocarRecientes();
    InstalarTeclaAyuda(programa_, *this);

    toolTip_->Configurar(programa_.Tapiz);
    setWindowTitle(Qs(TituloMenu(programa_.Estado.NombreProyecto)));
    ConfigurarPantalla1();
    programa_.Vista.VerCuadricula = true;

    // 90 per cent of the screen, centred, then maximised.
    if (const QScreen* pantalla = screen()) {
        const QRect zona = pantalla->availableGeometry();
        resize(zona.width() * 9 / 10, zona.height() * 9 / 10);
        move(zona.center() - rect().center());
    }
    setWindowState(Qt::WindowMaximized);
}

MenuP::~MenuP() = default;

void MenuP::CrearMenus() {
    for (const Menu& menu : Menus()) {
        QMenu* m = menuBar()->addMenu(QString::fromUtf8(menu.titulo));
        if (!menuProyecto_) menuProyecto_ = m;
        for (const Comando& c : menu.comandos) {
            const QString clave = QString::fromUtf8(c.clave);
            QAction* a = m->addAction(IconoHerramienta(clave), QString::fromUtf8(c.titulo));
            a->setObjectName(clave);
            a->setStatusTip(QString::fromUtf8(c.pista));
            connect(a, &QAction::triggered, this, [this, clave] { Despachar(clave); });
            acciones_[clave] = a;
            if (c.separador) m->addSeparator();
        }
    }
    QToolBar* barra = addToolBar(QStringLiteral("ToolBar2"));
    barra->setObjectName(QStringLiteral("ToolBar2"));
    barra->setMovable(false);
    barra->setIconSize(QSize(28, 28));
    for (const char* clave : BarraIconos) {
        if (*clave == '\0')
            barra->addSeparator();
        else
            barra->addAction(Accion(QString::fromUtf8(clave)));
    }
}

QAction* MenuP::Accion(const QString& clave) const {
    const auto i = acciones_.find(clave);
    return i == acciones_.end() ? nullptr : i->second;
}

PlataformaProyecto& MenuP::Plataforma() {
    return *plataforma_;
}

void MenuP::AbrirArchivoProyecto(const QString& ruta) {
    AbrirProyectoRuta(Std(QFileInfo(ruta).absoluteFilePath()), programa_.Estado, *plataforma_);
}

void MenuP::RecordarProyecto(const QString& ruta) {
    GuardarRecientes(AgregarReciente(LeerRecientes(), ruta));
    ColocarRecientes();
}

void MenuP::ColocarRecientes() {
    // The entry chosen may be the one being rebuilt: the old entries go once its signal ends.
    if (separadorRecientes_) recientes_.prepend(separadorRecientes_);
    for (QAction* a : recientes_) {
        menuProyecto_->removeAction(a);
        a->deleteLater();
    }
    recientes_.clear();
    separadorRecientes_ = nullptr;
    const QStringList lista = LeerRecientes();
    if (lista.isEmpty()) return;
    separadorRecientes_ = menuProyecto_->addSeparator();
    menuProyecto_->setToolTipsVisible(true);
    for (qsizetype i = 0; i < lista.size(); ++i) {
        const QString ruta = lista[i];
        QAction* a = menuProyecto_->addAction(
            QStringLiteral("&%1 %2").arg(i + 1).arg(QFileInfo(ruta).fileName()));
        a->setObjectName(QStringLiteral("ID_Reciente%1").arg(i + 1));
        a->setToolTip(ruta);
        a->setStatusTip(ruta);
        connect(a, &QAction::triggered, this, [this, ruta] { AbrirReciente(ruta); });
        recientes_.append(a);
    }
}

void MenuP::AbrirReciente(const QString& ruta) {
    if (QFileInfo(ruta).isFile()) {
        AbrirArchivoProyecto(ruta);
        return;
    }
    QStringList lista = LeerRecientes();
    lista.removeAll(ruta);
    GuardarRecientes(lista);
    ColocarRecientes();
    programa_.Dialogo().Mensaje({"El proyecto ya no existe:    \n" + Std(ruta) +
                                     "    \n\nSe quitó de la lista de los últimos proyectos.    ",
                                 "Abrir un Proyecto Existente", BotonesMensaje::Aceptar,
                                 IconoMensaje::Advertencia, 1});
}

QString ProyectoArrastrado(const QMimeData& datos) {
    const QList<QUrl> urls = datos.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
    const QString ruta = urls.front().toLocalFile();
    return ruta.endsWith(QStringLiteral(".trv"), Qt::CaseInsensitive) ? ruta : QString();
}

void MenuP::dragEnterEvent(QDragEnterEvent* evento) {
    if (evento->mimeData() && !ProyectoArrastrado(*evento->mimeData()).isEmpty())
        evento->acceptProposedAction();
}

void MenuP::dropEvent(QDropEvent* evento) {
    const QString ruta = evento->mimeData() ? ProyectoArrastrado(*evento->mimeData()) : QString();
    if (ruta.isEmpty()) return;
    evento->acceptProposedAction();
    // Opened once the drop has ended, so that the file manager is not kept waiting by a
    // message about the file.
    QTimer::singleShot(0, this, [this, ruta] { AbrirArchivoProyecto(ruta); });
}

void MenuP::Despachar(const QString& clave) {
    auto& c = programa_.Carpetas;
    auto& e = programa_.Estado;
    if (clave == QStringLiteral("ID_Proyecto_Nuevo"))
        CrearNuevoProyecto(c, e, *plataforma_);
    else if (clave == QStringLiteral("ID_Proyecto_Abrir"))
        AbrirProyecto(c, e, *plataforma_);
    else if (clave == QStringLiteral("ID_Proyecto_Modificar"))
        ModificarProyecto(c, e, *plataforma_);
    else if (clave == QStringLiteral("ID_Proyecto_Salvarcomo"))
        SalvarComoProyecto(c, e, *plataforma_);
    else if (clave == QStringLiteral("ID_Proyecto_Eliminar"))
        EliminarProyecto(c, e, *plataforma_);
    else if (clave == QStringLiteral("ID_Salida"))
        close();
    else if (clave == QStringLiteral("ID_AnalizarVigas"))
        AnalizarVigas(c, e, *plataforma_);
    else if (clave == QStringLiteral("ID_Explorador"))
        ExploradorWindows();
    else if (clave == QStringLiteral("ID_Ayuda_Temas"))
        AyudaTemas();
    else if (clave == QStringLiteral("ID_Manual"))
        ManualPrograma();
    else if (clave == QStringLiteral("ID_Acerca")) {
        Sobre sobre(programa_, this);
        sobre.exec();
    } else if (clave == QStringLiteral("ID_ConfigurarPantalla")) {
        ConfigurarPrograma configurar(programa_, this);
        if (configurar.exec() == QDialog::Accepted) ColocarTapiz(configurar.Imagen());
    } else if (clave == QStringLiteral("ID_Mantenimiento_Reparar")) {
        Compactar1 compactar(programa_, this);
        compactar.exec();
    } else if (clave == QStringLiteral("ID_BaseDatos_Perfiles")) {
        OpcionPerfil opcion(programa_, this);
        opcion.exec();
    }
    plataforma_->PunteroEspera(false);
}

void MenuP::ConfigurarPantalla1() {
    const std::string imagen = LeerTapiz(programa_.Carpetas, programa_.Tapiz);
    // A picture that cannot be read leaves the window without a wallpaper.
    tapiz_ = imagen.empty() ? QPixmap() : QPixmap(Qs(imagen));
    programa_.ArchivoAyuda = programa_.Carpetas.RutaPrograma + "/AyudaTrevalo.qch";
    Accion(QStringLiteral("ID_Proyecto_Salvarcomo"))->setEnabled(false);
}

void MenuP::ColoqueImagen() {
    if (tapiz_.isNull()) {
        imagen_->clear();
        return;
    }
    const int panel = statusBar()->isVisible() ? statusBar()->height() : 0;
    const QSize interior(area_->width(), area_->height() + panel);
    const QRect lugar = GeometriaTapiz(interior, panel, tapiz_.size(), programa_.Tapiz);
    imagen_->setPixmap(
        lugar.size() == tapiz_.size()
            ? tapiz_
            : tapiz_.scaled(lugar.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    imagen_->setGeometry(lugar);
}

void MenuP::ColocarTapiz(const QPixmap& imagen) {
    setUpdatesEnabled(false);
    tapiz_ = imagen;
    ColoqueImagen();
    setUpdatesEnabled(true);
}

void MenuP::ConfigurarPantalla() {
    ColoqueImagen();
    imagen_->lower();
}

void MenuP::resizeEvent(QResizeEvent* evento) {
    QMainWindow::resizeEvent(evento);
    // The wallpaper is placed once, when the window first stands at its full size: restoring
    // and maximising again leave it where it stood.
    if (yaConfigurado_) return;
    ConfigurarPantalla();
    yaConfigurado_ = isVisible() && isMaximized();
}

void MenuP::ExploradorWindows() {
    QDesktopServices::openUrl(QUrl::fromLocalFile(Qs(programa_.Carpetas.RutaExplorador)));
}

void MenuP::ManualPrograma() {
    // A failure of the system to open the document shows nothing.
    QDesktopServices::openUrl(
        QUrl::fromLocalFile(Qs(programa_.Carpetas.RutaPrograma + "/Manual/AyudaTrevalo6.pdf")));
}

void MenuP::AyudaTemas() {
    AbrirAyuda(programa_, QString(), this);
}

} // namespace trevalo
