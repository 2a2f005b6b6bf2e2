#include "store/Dialogos.h"

namespace trevalo {

Pregunta MensajeError(const ErrorTrevalo& error) {
    return {error.Descripcion(), "Error: " + std::to_string(error.Numero()),
            BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1};
}

Pregunta MensajeFalla(const ErrorTrevalo& error) {
    return {error.Descripcion() + "    ", "Error Número: " + std::to_string(error.Numero()),
            BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1};
}

} // namespace trevalo
