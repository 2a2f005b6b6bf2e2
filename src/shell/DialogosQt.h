#pragma once
// The program's dialogs on the toolkit's own (non-native) message box, input box, file and
// colour dialogs, each modal over the window in front.

#include "store/Dialogos.h"

#include <QStringList>

class QWidget;

namespace trevalo {

class DialogosQt : public Dialogos {
  public:
    int Mensaje(const Pregunta& pregunta) override;
    std::optional<std::string> Entrada(const PedidoTexto& pedido) override;
    ArchivoElegido Archivo(const DialogoArchivo& dialogo) override;
    std::optional<std::int32_t> Color(std::int32_t inicial) override;
};

// The toolkit's own texts (file and colour dialogs, context menus) in Spanish, from its
// installed translations; without them they stay as they are.
void TraducirAlEspanol();

// The window in front, over which a dialog opens.
QWidget* VentanaActiva();

// "words|pattern|words|pattern" as the file dialog's name filters ("words (pattern)", the
// pattern last even when the words hold brackets).
QStringList FiltrosQt(const std::string& filtro);

} // namespace trevalo
