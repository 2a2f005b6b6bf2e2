#include "shell/Carga07.h"

namespace trevalo {

Carga07::Carga07(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent)
    : CargaLista(programa, tramoCarga,
                 {"Cargas Triangulares Izquierdas",
                  "Triangular Izquierda",
                  "Cantidad de Cargas =",
                  MaxCargas5,
                  false,
                  &VigaActual::CantW7,
                  {{"(Kgf)", &VigaActual::W7_},
                   {"La (m)", &VigaActual::La7_},
                   {"Lb (m)", &VigaActual::Lb7_}}},
                 parent) {
    setObjectName(QStringLiteral("Carga07"));
}

} // namespace trevalo
