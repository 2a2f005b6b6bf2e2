#pragma once
// Dialogs answered from a script: each kind of dialog takes its answers in order from a
// queue, and every dialog shown is recorded with all that the user would read. An empty
// queue answers as the user who presses the default button (or cancels a file, input or
// colour dialog).

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "store/Dialogos.h"

namespace trevalo::prueba {

class DialogosGuion : public Dialogos {
  public:
    std::deque<int> respuestas;
    std::deque<std::optional<std::string>> entradas;
    std::deque<ArchivoElegido> archivos;
    std::deque<std::optional<std::int32_t>> colores;

    std::vector<Pregunta> preguntas;
    std::vector<PedidoTexto> pedidos;
    std::vector<DialogoArchivo> dialogosArchivo;
    // When set, file dialogs are recorded and then shown by these (the toolkit's own).
    Dialogos* archivosReales = nullptr;

    int Mensaje(const Pregunta& p) override {
        preguntas.push_back(p);
        return Tomar(respuestas, BotonDefecto(p));
    }
    std::optional<std::string> Entrada(const PedidoTexto& p) override {
        pedidos.push_back(p);
        return Tomar(entradas, std::optional<std::string>());
    }
    ArchivoElegido Archivo(const DialogoArchivo& d) override {
        dialogosArchivo.push_back(d);
        if (archivosReales) return archivosReales->Archivo(d);
        return Tomar(archivos, ArchivoElegido{});
    }
    std::optional<std::int32_t> Color(std::int32_t) override {
        return Tomar(colores, std::optional<std::int32_t>());
    }

    // The answer of the default button of a box.
    static int BotonDefecto(const Pregunta& p) {
        switch (p.Botones) {
        case BotonesMensaje::Aceptar:
            return RespuestaAceptar;
        case BotonesMensaje::SiNo:
            return p.BotonDefecto == 2 ? RespuestaNo : RespuestaSi;
        case BotonesMensaje::SiNoCancelar:
            return p.BotonDefecto == 3 ? RespuestaCancelar
                                       : (p.BotonDefecto == 2 ? RespuestaNo : RespuestaSi);
        }
        return RespuestaAceptar;
    }

  private:
    template <typename T> static T Tomar(std::deque<T>& cola, T siVacia) {
        if (cola.empty()) return siVacia;
        T r = std::move(cola.front());
        cola.pop_front();
        return r;
    }
};

} // namespace trevalo::prueba
