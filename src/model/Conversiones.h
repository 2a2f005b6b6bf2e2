#pragma once
// What arrives from a file, a cell or an unforeseen fault, turned into what the model keeps:
// whole numbers into the integer type of their field, any exception into the program's error.

#include <concepts>
#include <cstdint>
#include <exception>
#include <limits>

#include "model/Errores.h"

namespace trevalo {

inline constexpr long ErrMemoria = 7;  // out of memory
inline constexpr long ErrInterno = 51; // internal error

// A whole number into the integer type in which the model keeps it (a 16-bit count or joint
// number, an 8-bit flag, a 32-bit load): every count of the model is formed through here, so
// a value beyond the type's range raises error 6 wherever it arises instead of wrapping.
template <std::integral T> T Entero(long long valor) {
    if (valor < std::numeric_limits<T>::min() || valor > std::numeric_limits<T>::max())
        throw ErrorTrevalo::Desbordamiento();
    return static_cast<T>(valor);
}

// CI into a 16-bit count (stations of a span ...): to the nearest, ties to even; error 6
// beyond -32768..32767 or for a non-finite value. A negative count is a loop that does not run.
std::int16_t CI16(double valor);

// Any exception as the program's error, so that what no procedure foresaw still reaches the
// user as a message: the program's own error as it is, a failed allocation as error 7, a
// container sized beyond its limit as error 6, anything else as error 51 with its own text.
ErrorTrevalo ErrorDeExcepcion(std::exception_ptr excepcion);

} // namespace trevalo
