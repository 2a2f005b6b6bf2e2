#pragma once
// The uniform load over the whole span (W1), in kgf/m, acting vertically or perpendicular
// to the span (Gravedad).

#include "shell/CargaUnica.h"

namespace trevalo {

class Carga01 : public CargaUnica {
    Q_OBJECT

  public:
    Carga01(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent = nullptr);
};

} // namespace trevalo
