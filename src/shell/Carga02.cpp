#include "shell/Carga02.h"

namespace trevalo {

Carga02::Carga02(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent)
    : CargaLista(programa, tramoCarga,
                 {"Cargas Puntuales",
                  "",
                  "Cantidad de Puntuales =",
                  MaxCargas10,
                  false,
                  &VigaActual::CantW2,
                  {{"Puntual (Kgf)", &VigaActual::P}, {"Lp (m)", &VigaActual::LP}}},
                 parent) {
    setObjectName(QStringLiteral("Carga02"));
}

} // namespace trevalo
