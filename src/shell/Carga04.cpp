#include "shell/Carga04.h"

namespace trevalo {

Carga04::Carga04(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent)
    : CargaUnica(programa, tramoCarga,
                 {"Carga Triangular", "Carga Triangular (kgf/m)",
                  "Carga Triangular =", &VigaActual::W4, false, false},
                 parent) {
    setObjectName(QStringLiteral("Carga04"));
}

} // namespace trevalo
