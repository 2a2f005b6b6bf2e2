#pragma once
// The program's one error type: a number and a Spanish description, shown by the windows as
// the message box text with "Error: " and the number in the title.
//
// Runtime faults use the numbers the users know from the classic runtime, database faults
// those of the classic database engine; each number has one name below. Errors of the
// program's engine keep the engine's own number and text.

#include <stdexcept>
#include <string>
#include <system_error>

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

// The classic runtime.
inline constexpr long ErrLlamadaNoValida = 5;      // invalid procedure call or argument
inline constexpr long ErrDesbordamiento = 6;       // overflow
inline constexpr long ErrSubindice = 9;            // subscript out of range
inline constexpr long ErrDivisionPorCero = 11;     // division by zero
inline constexpr long ErrTiposNoCoinciden = 13;    // type mismatch
inline constexpr long ErrArchivoNoEncontrado = 53; // file not found
inline constexpr long ErrArchivoYaExiste = 58;     // file already exists
inline constexpr long ErrLongitudRegistro = 59;    // bad record length
inline constexpr long ErrPermisoDenegado = 70;     // permission denied
inline constexpr long ErrAccesoArchivo = 75;       // path/file access error
inline constexpr long ErrObjetoNoEstablecido = 91; // object variable or With block not set
inline constexpr long ErrUsoNull = 94;             // invalid use of Null
inline constexpr long ErrCancelado = 32755;        // cancel in a common dialog

// The classic database engine.
inline constexpr long ErrUpdateSinEdit = 3020;       // Update without AddNew or Edit
inline constexpr long ErrSinRegistroActual = 3021;   // no current record
inline constexpr long ErrSoloLectura = 3027;         // database or object is read-only
inline constexpr long ErrTablaNoEncontrada = 3078;   // the engine cannot find the table
inline constexpr long ErrNoEnColeccion = 3265;       // item not found in this collection
inline constexpr long ErrFormatoNoReconocido = 3343; // unrecognized database format
inline constexpr long ErrObjetoNoValido = 3420;      // object invalid or no longer set

// The program's error of a failed file operation: 53 no file, 70 permission, else 75.
ErrorTrevalo ErrorArchivo(const std::error_code& ec);

} // namespace trevalo
