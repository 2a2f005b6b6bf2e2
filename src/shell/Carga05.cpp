#include "shell/Carga05.h"

namespace trevalo {

Carga05::Carga05(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent)
    : CargaUnica(programa, tramoCarga,
                 {"Carga Trapezoidal Tipo 1", "Carga Trapezoidal1 (kgf/m)",
                  "Carga Trapezoidal =", &VigaActual::W5, true, false},
                 parent) {
    setObjectName(QStringLiteral("Carga05"));
}

} // namespace trevalo
