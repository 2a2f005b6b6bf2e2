#include "model/Conversiones.h"

#include <new>
#include <stdexcept>
#include <string>

#include "model/Redondeo.h"

namespace trevalo {

std::int16_t CI16(double valor) {
    return Entero<std::int16_t>(CI(valor));
}

ErrorTrevalo ErrorDeExcepcion(std::exception_ptr excepcion) {
    try {
        std::rethrow_exception(excepcion);
    } catch (const ErrorTrevalo& e) {
        return e;
    } catch (const std::bad_alloc&) {
        return {ErrMemoria, "Memoria insuficiente"};
    } catch (const std::length_error&) {
        return ErrorTrevalo::Desbordamiento();
    } catch (const std::exception& e) {
        return {ErrInterno, std::string("Error interno: ") + e.what()};
    } catch (...) {
        return {ErrInterno, "Error interno"};
    }
}

} // namespace trevalo
