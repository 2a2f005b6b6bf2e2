#pragma once
// Right triangles on a span (zero at La6_ up to W6_ kgf/m at Lb6_), five at most.

#include "shell/CargaLista.h"

namespace trevalo {

class Carga06 : public CargaLista {
    Q_OBJECT

  public:
    Carga06(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent = nullptr);
};

} // namespace trevalo
