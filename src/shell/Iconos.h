#pragma once
// The icons of the tools. The file and help tools take the toolkit's standard icons; the
// tools of the drawing (zoom, pan, grid, stations, text size) are drawn here.

#include <QIcon>
#include <QString>

namespace trevalo {

// The icon of the tool with that key ("ID_ZoomIN", "ID_Proyecto_Abrir" ...); none for a key
// without one.
QIcon IconoHerramienta(const QString& clave);

} // namespace trevalo
