#pragma once
// The icons of the tools. The file and help tools take the toolkit's standard icons; the
// tools of the drawing (zoom, pan, grid, stations, text size) are drawn here.

#include <QIcon>
#include <QString>
#include <functional>
#include <initializer_list>
#include <map>
#include <span>

class QAction;
class QToolBar;
class QWidget;

namespace trevalo {

// The icon of the tool with that key ("ID_ZoomIN", "ID_Proyecto_Abrir" ...); none for a key
// without one.
QIcon IconoHerramienta(const QString& clave);

class PantallaViga;

// A tool of a window's toolbar: key, caption, and whether it stays pressed.
struct Herramienta {
    const char* clave;
    const char* titulo;
    bool presionable;
};

// The toolbar "ToolBar1" of `ventana`: one action per tool, named by its key, with its icon
// and caption, kept in `acciones` by key. The pan tool is handed to the canvas; every other
// tool calls `despachar` with its key. A separator follows each key of `separarTras`.
QToolBar* BarraHerramientas(QWidget& ventana, std::span<const Herramienta> herramientas,
                            PantallaViga& pantalla,
                            const std::function<void(const QString&)>& despachar,
                            std::initializer_list<const char*> separarTras,
                            std::map<QString, QAction*>& acciones);

} // namespace trevalo
