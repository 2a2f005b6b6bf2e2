#pragma once
// The projects opened last, newest first, at the foot of the main menu's "Proyecto" menu.
// They are kept in the program's settings (QSettings, ini format, user scope: on Linux
// ~/.config/Trevalo/trevalo.ini), under the key ProyectosRecientes, as full paths.

#include <QStringList>

namespace trevalo {

// How many projects the list keeps.
inline constexpr qsizetype MaximoRecientes = 4;

// `lista` with the project at `ruta` first and only once, cut to the newest MaximoRecientes.
QStringList AgregarReciente(QStringList lista, const QString& ruta);

// The list as the settings keep it, and the list written back to them.
QStringList LeerRecientes();
void GuardarRecientes(const QStringList& lista);

} // namespace trevalo
