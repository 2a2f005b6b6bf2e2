#pragma once
// Left triangles on a span (W7_ kgf/m at La7_ down to zero at Lb7_), five at most.

#include "shell/CargaLista.h"

namespace trevalo {

class Carga07 : public CargaLista {
    Q_OBJECT

  public:
    Carga07(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent = nullptr);
};

} // namespace trevalo
