#pragma once
// The command buttons of a form: the control's name, its caption, and the title and text of
// its tool tip (taken over by ToolTipTrevalo when the form configures its tips).

#include <functional>
#include <vector>

class QBoxLayout;
class QPushButton;
class QWidget;

namespace trevalo {

struct Orden {
    const char* nombre;
    const char* texto;
    const char* tipTitulo;
    const char* tipTexto; // "" for none
};

QPushButton* CrearBoton(QWidget& ventana, const Orden& orden);

// A dialog's button, which keeps the dialog's auto-default: Return presses the button that
// has the focus, else the dialog's first button. CrearBoton turns it off, since in a main
// window Return must not run a command.
QPushButton* BotonDialogo(QWidget& padre, const char* nombre, const char* texto);

// A button and what a click on it does (nothing for a button shown without a command).
struct Comando {
    Orden orden;
    std::function<void()> accion;
};

// The buttons in a row, in order, added to `fila`, each clicking its command; they are
// answered in the same order.
std::vector<QPushButton*> CrearBotones(QWidget& ventana, QBoxLayout& fila,
                                       const std::vector<Comando>& comandos);

} // namespace trevalo
