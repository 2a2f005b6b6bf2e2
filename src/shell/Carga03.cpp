#include "shell/Carga03.h"

namespace trevalo {

Carga03::Carga03(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent)
    : CargaLista(programa, tramoCarga,
                 {"Cargas Parciales Uniformes",
                  "Parciales Uniformes",
                  "Cantidad de Parciales =",
                  MaxCargas10,
                  false,
                  &VigaActual::CantW3,
                  {{"(Kgf)", &VigaActual::W3_},
                   {"La (m)", &VigaActual::La3_},
                   {"Lb (m)", &VigaActual::Lb3_}}},
                 parent) {
    setObjectName(QStringLiteral("Carga03"));
}

} // namespace trevalo
