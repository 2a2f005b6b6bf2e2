#pragma once
// The help of every window: which topic of the help file belongs to which window, the F1 key
// that opens the topic of the window in front, and the opening of the help window itself.

#include <QString>
#include <utility>
#include <vector>

#include "shell/Programa.h"

class QObject;
class QWidget;

namespace trevalo {

class VentanaAyuda;

// Every window of the program by its class name (or, for a class that serves several
// windows, its object name), with the file of its topic. Windows of one family share a
// topic.
const std::vector<std::pair<QString, QString>>& TemasVentanas();

// The topic of a window by its class, without the namespace, or else by its object name; ""
// for a window without one.
QString TemaDeVentana(const QWidget& ventana);

// Opens the help window on `tema` ("" the first topic) over `frente`, the window in front,
// replacing a help window already open. A missing help file is told in a message and opens
// nothing (returns nullptr).
VentanaAyuda* AbrirAyuda(Programa& programa, const QString& tema, QWidget* frente);

// While `dueno` lives, F1 in any window of the application opens the topic of that window,
// or of the nearest window under it that has one (a message box shows its window's topic).
void InstalarTeclaAyuda(Programa& programa, QObject& dueno);

} // namespace trevalo
