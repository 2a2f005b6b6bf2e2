#include "shell/Carga06.h"

namespace trevalo {

Carga06::Carga06(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent)
    : CargaLista(programa, tramoCarga,
                 {"Triangulares Derechas",
                  "Triangular Derecha",
                  "Cantidad de Cargas =",
                  MaxCargas5,
                  false,
                  &VigaActual::CantW6,
                  {{"(Kgf)", &VigaActual::W6_},
                   {"La (m)", &VigaActual::La6_},
                   {"Lb (m)", &VigaActual::Lb6_}}},
                 parent) {
    setObjectName(QStringLiteral("Carga06"));
}

} // namespace trevalo
