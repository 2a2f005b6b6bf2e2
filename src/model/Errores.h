#pragma once
// The program's one error type: a number and a Spanish description, shown by the windows as
// the message box text with "Error: " and the number in the title.
//
// Runtime faults use the numbers the users know from the classic runtime:
//   5 invalid procedure call (root of a negative), 6 overflow, 9 subscript out of range,
//   11 division by zero, 13 type mismatch, 53 file not found, 58 file already exists,
//   94 invalid use of Null, 32755 cancel of a dialog.
// Engine errors keep the engine's own number and text.

#include <stdexcept>
#include <string>

namespace trevalo {

class ErrorTrevalo : public std::runtime_error {
  public:
    ErrorTrevalo(long numero, const std::string& descripcion)
        : std::runtime_error(descripcion), numero_(numero), descripcion_(descripcion) {}

    long Numero() const { return numero_; }
    const std::string& Descripcion() const { return descripcion_; }

    static ErrorTrevalo LlamadaNoValida();
    static ErrorTrevalo Desbordamiento();
    static ErrorTrevalo SubindiceFueraDeIntervalo();
    static ErrorTrevalo DivisionPorCero();
    static ErrorTrevalo TiposNoCoinciden();
    static ErrorTrevalo UsoNoValidoDeNull();
    static ErrorTrevalo Cancelado();

  private:
    long numero_;
    std::string descripcion_;
};

inline constexpr long ErrLlamadaNoValida = 5;
inline constexpr long ErrDesbordamiento = 6;
inline constexpr long ErrSubindice = 9;
inline constexpr long ErrDivisionPorCero = 11;
inline constexpr long ErrTiposNoCoinciden = 13;
inline constexpr long ErrUsoNull = 94;
inline constexpr long ErrArchivoNoEncontrado = 53;
inline constexpr long ErrArchivoYaExiste = 58;
inline constexpr long ErrCancelado = 32755;

} // namespace trevalo
