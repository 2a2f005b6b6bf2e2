#pragma once
// The symmetric triangular load over the span (W4), its peak in kgf/m at mid-span.

#include "shell/CargaUnica.h"

namespace trevalo {

class Carga04 : public CargaUnica {
    Q_OBJECT

  public:
    Carga04(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent = nullptr);
};

} // namespace trevalo
