#pragma once
// The main window: the menu and the icon bar of the program's commands, the wallpaper behind
// them and the bottom panel that shows each command's hint. It does no engineering itself:
// every command opens a modal window, so it is the root of the window stack. The title
// names the current project; "SALVAR EL PROYECTO COMO..." is enabled only while one is
// chosen. A project comes from "ABRIR PROYECTO EXISTENTE...", from the last projects listed
// at the foot of the "Proyecto" menu, from a ".trv" dropped on the window, or from the
// command line; each opens it the same way.

#include <QMainWindow>
#include <QPixmap>
#include <map>
#include <memory>

#include "shell/Programa.h"
#include "store/CicloProyecto.h"

class QLabel;
class QFrame;
class QMimeData;

namespace trevalo {

class ToolTipTrevalo;

// Where the wallpaper goes in an inner area of `interior` with a bottom panel of height
// `altoPanel`, for a picture of `imagen`: its natural size at the alignment of the settings,
// or, fitted, a picture larger than the area scaled down keeping its proportions and centred
// above the panel (a smaller one is centred and not enlarged).
QRect GeometriaTapiz(QSize interior, int altoPanel, QSize imagen, const ConfiguracionTapiz& tapiz);

// The project file that a drag carries: exactly one local file named *.trv (any case);
// empty for anything else.
QString ProyectoArrastrado(const QMimeData& datos);

class MenuP : public QMainWindow {
    Q_OBJECT

  public:
    explicit MenuP(Programa& programa);
    ~MenuP() override;

    // The command of a tool by its key, compared as exact text; an unknown key does nothing.
    void Despachar(const QString& clave);
    QAction* Accion(const QString& clave) const;

    // Reads Tapiz.kvl and the help file's place, and disables "save as" (no project yet).
    void ConfigurarPantalla1();
    // Places the wallpaper by its settings.
    void ColoqueImagen();
    // Takes `imagen` as the wallpaper and places it by the settings.
    void ColocarTapiz(const QPixmap& imagen);
    // The wallpaper as it stands on the window.
    const QLabel& Tapiz() const { return *imagen_; }
    // Lays the controls out.
    void ConfigurarPantalla();

    PlataformaProyecto& Plataforma();
    ToolTipTrevalo& ToolTip() { return *toolTip_; }

    // Opens the project file at `ruta` as "ABRIR PROYECTO EXISTENTE..." does with the file
    // chosen; a file that is missing or not a project is told and leaves no project open.
    void AbrirArchivoProyecto(const QString& ruta);
    // Puts the project at `ruta` first in the list of the last projects opened.
    void RecordarProyecto(const QString& ruta);
    // The entries of the last projects opened, newest first.
    QList<QAction*> Recientes() const { return recientes_; }

  protected:
    void resizeEvent(QResizeEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;

  private:
    void CrearMenus();
    // Rebuilds the entries of the last projects at the foot of the "Proyecto" menu.
    void ColocarRecientes();
    // A last project chosen: opened, or, when its file has gone, dropped from the list.
    void AbrirReciente(const QString& ruta);
    void ExploradorWindows();
    void ManualPrograma();
    void AyudaTemas();

    Programa& programa_;
    std::unique_ptr<PlataformaProyecto> plataforma_;
    ToolTipTrevalo* toolTip_;
    std::map<QString, QAction*> acciones_;
    QMenu* menuProyecto_ = nullptr;
    QAction* separadorRecientes_ = nullptr;
    QList<QAction*> recientes_;
    QWidget* area_;
    QLabel* imagen_;
    QFrame* linea_;
    QPixmap tapiz_;
    bool yaConfigurado_ = false;
};

} // namespace trevalo
