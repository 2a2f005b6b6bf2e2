#include "shell/ProyectosRecientes.h"

#include <QFileInfo>
#include <QSettings>

namespace trevalo {

namespace {

const QString Clave = QStringLiteral("ProyectosRecientes");

QSettings Ajustes() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Trevalo"),
                     QStringLiteral("trevalo"));
}

} // namespace

QStringList AgregarReciente(QStringList lista, const QString& ruta) {
    const QString completa = QFileInfo(ruta).absoluteFilePath();
    lista.removeAll(completa);
    lista.prepend(completa);
    return lista.mid(0, MaximoRecientes);
}

QStringList LeerRecientes() {
    return Ajustes().value(Clave).toStringList().mid(0, MaximoRecientes);
}

void GuardarRecientes(const QStringList& lista) {
    Ajustes().setValue(Clave, lista);
}

} // namespace trevalo
