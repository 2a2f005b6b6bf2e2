#pragma once
// What the screenshots of every area share: the folder they go to, a pause for the event
// loop, and the picture of a window.

#include <QDialog>
#include <QString>

#include "shell/Programa.h"

namespace trevalo {

class VigasProyecto;

extern QString carpeta;

void Esperar(int ms);
// Writes the picture of `ventana` as carpeta/nombre.png.
void Guardar(QWidget& ventana, const QString& nombre);
// Shows a dialog without its own loop, takes its picture and closes it.
void Capturar(QDialog& dialogo, const QString& nombre);

// The steel profile windows: the family chooser, each table window on a shipped table with
// the sketch of a section under the mouse, the generator on a computed section and the
// steel beam window on a loaded table.
void CapturasPerfiles(Programa& programa, QWidget& padre);

} // namespace trevalo
