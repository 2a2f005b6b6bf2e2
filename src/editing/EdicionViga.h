#pragma once
// Every edit of the current beam that the beam editor, its load dialogs and the capture of a
// steel profile make: counts with the lists they resize and the defaults they fill, cells with
// their rules and limits, block values, supports, material, load factor, the marks of the
// spans, the loads of each dialog and the captured profile. Each edit answers with a Veredicto:
// applied, applied with the value clamped (Valor), or refused with its message or a beep; a
// refused edit leaves the beam as it was. The windows show the answer and redraw.

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "model/Viga.h"
#include "store/Dialogos.h"

namespace trevalo {

struct ListaPerfiles;

// The answer to an edit.
struct Veredicto {
    bool Aceptado = true;
    std::optional<double> Valor;   // the value kept when it differs from the one entered
    std::optional<Pregunta> Aviso; // a message box to show
    bool Pitido = false;           // a beep
};

inline Veredicto Aceptar(std::optional<double> valor = std::nullopt) {
    return {true, valor, std::nullopt, false};
}
// A refusal with a message, or with a beep when there is none.
inline Veredicto Rechazar(std::optional<Pregunta> aviso = std::nullopt) {
    const bool pitido = !aviso;
    return {false, std::nullopt, std::move(aviso), pitido};
}
// A refusal that says nothing: the control shows the old value again.
inline Veredicto Ignorar() {
    return {false, std::nullopt, std::nullopt, false};
}

// The editor's lists, numbered as its grids.
enum class Rejilla {
    NombresEje = 1,
    Longitudes,
    Desplazadas,
    Restringidas,
    Resortes,
    TiposConcreto,
    TipoTramoConcreto,
    TiposMetalicos,
    TipoTramoMetalico,
    TramosCargados,
    Acciones,
    Acotamientos,
};

// The editor's counts, numbered as its count boxes.
enum class Cuenta {
    Tramos = 1,
    Desplazadas,
    Restringidas,
    Resortes,
    TiposConcreto,
    TiposMetalicos,
    Acciones,
};

inline constexpr long MaximoTramos = 1000;

// A column of a list of loads per span: loads (whole kgf, with sign) or positions (m).
struct ColumnaCarga {
    const char* titulo;
    std::variant<Arreglo2<std::int32_t> VigaActual::*, Arreglo2<double> VigaActual::*> valores;
};

bool EsCarga(const ColumnaCarga& columna);

// One list of loads per span: its count, its columns and the loads a span holds.
struct ListaCargas {
    Arreglo<std::int16_t> VigaActual::*cantidad;
    std::vector<ColumnaCarga> columnas;
    long limite;
};

// One value per span: the load, the rise of the trapezoid and the direction where the kind
// has them.
struct CargaPorTramo {
    Arreglo<std::int32_t> VigaActual::*campo;
    double valor = 0;
    std::optional<double> la;
    std::optional<std::uint8_t> gravedad;
};

// The rows of a list of loads, one vector of values per row in the order of its columns.
struct FilasCarga {
    ListaCargas lista;
    std::vector<std::vector<double>> filas;
};

// What a load dialog entered, to be written to the marked spans.
using EntradaCarga = std::variant<CargaPorTramo, FilasCarga>;

class EdicionViga {
  public:
    explicit EdicionViga(VigaActual& viga) : viga_(viga) {}

    // The defaults the editor fills in when it shows a beam: one span for a new beam with
    // none, one type at least (0.3 x 0.5 on a concrete beam, as every empty concrete type),
    // span types of 0 made 1, the factor on every span, no marks, and no dimensions at
    // joints without a vertical support.
    void Preparar();

    long Valor(Cuenta cuenta) const;
    // The first span of length zero, which the spans' page does not let the user leave,
    // with its message; nothing when every span has a length.
    std::optional<std::pair<long, Pregunta>> TramoSinLongitud() const;

    // What a list shows: its rows, the value of a cell (a number, or the text of a name
    // column) and the caption of a span row ("A - B"). Slots beyond a list shorter than its
    // count read as zero.
    long Filas(Rejilla rejilla) const;
    std::variant<double, std::string> Leer(Rejilla rejilla, long fila, int columna) const;
    std::string RotuloTramo(long tramo) const;
    // A count typed in its box. Refused (the box shows the old count): spans outside 1..1000,
    // joints beyond NT + 1 with the box's message, a count the model cannot hold (error 6).
    // Applied with Valor when the box shows another number (no types becomes one).
    Veredicto CambiarCuenta(Cuenta cuenta, long valor);

    // A cell entered: `texto` trimmed, `numero` nothing for an empty or text cell. A span mark
    // is a cell of its own: 1 marks the span, 0 clears it.
    Veredicto CambiarCelda(Rejilla rejilla, long fila, int columna, const std::string& texto,
                           std::optional<double> numero);
    // The value asked for a block of cells, before it goes to each cell: a span type is
    // rounded to the nearest whole, 0 stops silently and one beyond NTipos is refused.
    Veredicto ValorBloque(Rejilla rejilla, double valor) const;

    void ColocarApoyo(long fila, std::int16_t tipo);
    void Material(bool concreto);
    // The load factor: above 0 and up to 5, else 1.5 (Valor); every span takes it.
    Veredicto Factor(double valor);

    void Marcar(long tramo, bool marcado);
    void MarcarTramos(long desde, long hasta);
    void DesmarcarTodos();
    // 1 for each marked span, 0 for the others; empty when none is marked.
    std::optional<Arreglo<std::int16_t>> TramosCarga() const;
    void EliminarCargas();

    // Whether the beam can take a load as entered, before it is written: a value the model
    // cannot hold is error 6; a count beyond the list's slots is the subscript error.
    Veredicto RevisarCarga(const EntradaCarga& carga) const;
    // A load entered written to every span of `tramos`: one value rounded to whole kgf, or a
    // list's count and rows with its loads rounded. Refused as RevisarCarga, nothing written.
    Veredicto AplicarCarga(const Arreglo<std::int16_t>& tramos, const EntradaCarga& carga);
    // A value typed in a column of a list of loads: a load the model cannot hold (error 6).
    Veredicto ValorCarga(const ColumnaCarga& columna, std::optional<double> numero) const;

    // Row `fila` of the profile list captured into steel type `tipo`.
    Veredicto CapturarPerfil(const ListaPerfiles& lista, long fila, long tipo);

  private:
    Veredicto Celda(Rejilla rejilla, long fila, int columna, const std::string& texto,
                    std::optional<double> numero);
    std::optional<Veredicto> Junta(Arreglo<std::int16_t>& lista, long fila, double valor,
                                   const char* titulo);
    Veredicto TipoTramo(long fila, double valor);
    void Tipos(long valor);
    void Escribir(const Arreglo<std::int16_t>& tramos, const CargaPorTramo& carga);
    void Escribir(const Arreglo<std::int16_t>& tramos, const FilasCarga& carga);

    VigaActual& viga_;
};

} // namespace trevalo
