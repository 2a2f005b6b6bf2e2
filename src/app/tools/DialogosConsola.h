#pragma once
// The dialogs of the companion tool, which has no screen: a message goes to the error
// stream as "<title>: <text>" and is answered with its first button; input and file dialogs
// are cancelled.

#include <ostream>

#include "store/Dialogos.h"

namespace trevalo::calc {

class DialogosConsola : public Dialogos {
  public:
    explicit DialogosConsola(std::ostream& errores) : errores_(errores) {}

    int Mensaje(const Pregunta& p) override {
        errores_ << p.Titulo << ": " << p.Texto << "\n";
        return p.Botones == BotonesMensaje::Aceptar ? RespuestaAceptar : RespuestaSi;
    }
    std::optional<std::string> Entrada(const PedidoTexto&) override { return std::nullopt; }
    ArchivoElegido Archivo(const DialogoArchivo&) override { return {}; }
    std::optional<std::int32_t> Color(std::int32_t) override { return std::nullopt; }

  private:
    std::ostream& errores_;
};

} // namespace trevalo::calc
