#include "shell/Carga01.h"

namespace trevalo {

Carga01::Carga01(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent)
    : CargaUnica(
          programa, tramoCarga,
          {"Carga Uniforme", "Carga Uniforme (kgf/ml)", "Carga W =", &VigaActual::W1, false, true},
          parent) {
    setObjectName(QStringLiteral("Carga01"));
}

} // namespace trevalo
