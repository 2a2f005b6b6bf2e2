#include "model/Errores.h"

namespace trevalo {

ErrorTrevalo ErrorTrevalo::LlamadaNoValida() {
    return {ErrLlamadaNoValida, "Argumento o llamada a procedimiento no válida"};
}
ErrorTrevalo ErrorTrevalo::Desbordamiento() {
    return {ErrDesbordamiento, "Desbordamiento"};
}
ErrorTrevalo ErrorTrevalo::SubindiceFueraDeIntervalo() {
    return {ErrSubindice, "El subíndice está fuera del intervalo"};
}
ErrorTrevalo ErrorTrevalo::DivisionPorCero() {
    return {ErrDivisionPorCero, "División por cero"};
}
ErrorTrevalo ErrorTrevalo::TiposNoCoinciden() {
    return {ErrTiposNoCoinciden, "No coinciden los tipos"};
}
ErrorTrevalo ErrorTrevalo::UsoNoValidoDeNull() {
    return {ErrUsoNull, "Uso no válido de Null"};
}
ErrorTrevalo ErrorTrevalo::Cancelado() {
    return {ErrCancelado, "Cancelado"};
}

ErrorTrevalo ErrorArchivo(const std::error_code& ec) {
    if (ec == std::errc::no_such_file_or_directory)
        return ErrorTrevalo(ErrArchivoNoEncontrado, "No se encontró el archivo");
    if (ec == std::errc::permission_denied || ec == std::errc::operation_not_permitted)
        return ErrorTrevalo(ErrPermisoDenegado, "Permiso denegado");
    return ErrorTrevalo(ErrAccesoArchivo, "Error de acceso a la ruta o el archivo");
}

} // namespace trevalo
