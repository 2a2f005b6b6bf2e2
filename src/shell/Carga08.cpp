#include "shell/Carga08.h"

namespace trevalo {

Carga08::Carga08(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent)
    : CargaLista(programa, tramoCarga,
                 {"Cargas Trapezoidales",
                  "Trapezoidal  Tipo 2 (kgf/m)",
                  "Cantidad de Cargas =",
                  MaxCargas5,
                  true,
                  &VigaActual::CantW8,
                  {{"W (izquierda)\n(Kgf)", &VigaActual::WIzq8_},
                   {"W (derecha)\n(Kgf)", &VigaActual::WDer8_},
                   {"La (m)", &VigaActual::La8_},
                   {"Lb (m)", &VigaActual::Lb8_}}},
                 parent) {
    setObjectName(QStringLiteral("Carga08"));
}

} // namespace trevalo
