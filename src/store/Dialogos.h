#pragma once
// The one dialog interface of the program: message boxes, input boxes, file dialogs and the
// colour dialog, with no type of the windowing toolkit. The windows implement it with the
// toolkit's own dialogs; tests implement it with scripted answers that record every
// question asked. The texts, titles, icons and default buttons are those the user reads.

#include <cstdint>
#include <optional>
#include <string>

#include "model/Errores.h"

namespace trevalo {

enum class BotonesMensaje { Aceptar, SiNo, SiNoCancelar };
enum class IconoMensaje { Ninguno, Pregunta, Advertencia, Informacion };

// Buttons pressed, as the message box reports them.
inline constexpr int RespuestaAceptar = 1;
inline constexpr int RespuestaCancelar = 2;
inline constexpr int RespuestaSi = 6;
inline constexpr int RespuestaNo = 7;

// One message box: text (lines joined by "\n", trailing blanks part of it), title, buttons,
// icon and the default button (1 the first, 2 the second, 3 the third).
struct Pregunta {
    std::string Texto;
    std::string Titulo;
    BotonesMensaje Botones = BotonesMensaje::Aceptar;
    IconoMensaje Icono = IconoMensaje::Ninguno;
    int BotonDefecto = 1;

    bool operator==(const Pregunta&) const = default;
};

// An input box: the prompt, the title and the text it starts with.
struct PedidoTexto {
    std::string Texto;
    std::string Titulo;
    std::string Defecto;

    bool operator==(const PedidoTexto&) const = default;
};

enum class ModoDialogo { Abrir, Salvar };

// A file dialog. The filter is "words|pattern" pairs joined by "|" ("Trevalo (*.trv)|*.trv");
// IndiceFiltro counts from 1. In save mode a name typed without extension takes the one of
// the chosen filter.
struct DialogoArchivo {
    std::string Titulo;
    ModoDialogo Modo = ModoDialogo::Abrir;
    std::string Filtro;
    int IndiceFiltro = 1;
    std::string Carpeta;
    std::string Nombre; // the file name it starts with
    // Open mode: a name that does not exist may be chosen, after the dialog asks whether to
    // create it (the caller creates the file).
    bool CrearSiFalta = false;
    bool PreguntarReemplazo = false; // a save dialog asks before it overwrites a file

    bool operator==(const DialogoArchivo&) const = default;
};

// The answer of a file dialog: the full path and the file title (name with extension).
// Cancel is the error 32755 of the classic runtime, which every caller tests at once; here
// it is Cancelado.
struct ArchivoElegido {
    bool Cancelado = true;
    std::string FileName;
    std::string FileTitle;
};

class Dialogos {
  public:
    virtual ~Dialogos() = default;
    // Shows the box modally; returns the button pressed (RespuestaAceptar, RespuestaSi, ...).
    // Closing the box counts as its cancel button, or as its only button.
    virtual int Mensaje(const Pregunta& pregunta) = 0;
    // The text typed, or nothing on cancel.
    virtual std::optional<std::string> Entrada(const PedidoTexto& pedido) = 0;
    virtual ArchivoElegido Archivo(const DialogoArchivo& dialogo) = 0;
    // A colour 0xBBGGRR starting from `inicial`, or nothing on cancel.
    virtual std::optional<std::int32_t> Color(std::int32_t inicial) = 0;
};

// A store error as its operations show it: the error's text, "Error: " and the number in the
// title, exclamation mark.
Pregunta MensajeError(const ErrorTrevalo& error);
// A fault of the analysis or of a redraw: the error's text and four blanks, "Error Número: "
// and the number in the title, exclamation mark.
Pregunta MensajeFalla(const ErrorTrevalo& error);

} // namespace trevalo
