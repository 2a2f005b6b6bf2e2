#pragma once
// The pieces the screenshot tour shares with the captures of each area of the program.

#include <QDialog>
#include <QString>

#include "shell/Programa.h"

namespace trevalo {

class MenuP;
class VigasProyecto;

// The folder the pictures go to.
extern QString carpeta;

void Esperar(int ms);
// Writes the window's picture as carpeta/nombre.png.
void Guardar(QWidget& ventana, const QString& nombre);
// Shows a dialog without its own loop, takes its picture and closes it.
void Capturar(QDialog& dialogo, const QString& nombre);
// A message box as the program shows it, captured while it waits for an answer.
void CapturarMensaje(Programa& programa, const Pregunta& pregunta, const QString& nombre);

// Every page of the beam editor on the beam of the project window's active row (concrete),
// and every page it reaches on the same beam made of steel profiles.
void CapturasEditor(Programa& programa, VigasProyecto& ventana);

// The eight load dialogs over the beam editor, on the sample beam with spans marked.
void CapturasCargas(Programa& programa, QWidget& editor);

// The steel profile windows: the family chooser, each table window on a shipped table with
// the sketch of a section under the mouse, the generator on a computed section and the
// steel beam window on a loaded table.
void CapturasPerfiles(Programa& programa, QWidget& padre);

// The settings on both tabs with the sample tool tip, the file maintenance and the help
// window, over the main window.
void CapturasAjustes(Programa& programa, MenuP& menu);
// The export to the drawing program, from the project window on the sample project.
void CapturasExportar(Programa& programa, VigasProyecto& ventana);
// The report windows: the print dialog, the output kinds and the viewer on the sample
// project's report (its head and a picture), over the project window on screen.
void CapturasInformes(Programa& programa, VigasProyecto& ventana);
// The steps of the manual's worked example: a new beam of two equal spans in the sample
// project, typed, loaded and solved, from its name to its reactions.
void CapturasPrimeraViga(Programa& programa, VigasProyecto& ventana);

} // namespace trevalo
