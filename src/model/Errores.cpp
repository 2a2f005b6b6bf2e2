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

} // namespace trevalo
