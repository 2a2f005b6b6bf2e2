#pragma once
// Trapezoids of type 2 on a span (a straight line from WIzq8_ kgf/m at La8_ to WDer8_ at
// Lb8_), five at most; the only list whose limit is checked on acceptance.

#include "shell/CargaLista.h"

namespace trevalo {

class Carga08 : public CargaLista {
    Q_OBJECT

  public:
    Carga08(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent = nullptr);
};

} // namespace trevalo
