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

// The report windows: the print dialog, the output kinds and the viewer on the sample
// project's report (its head and a picture), over the project window on screen.
void CapturasInformes(Programa& programa, VigasProyecto& ventana);

} // namespace trevalo
