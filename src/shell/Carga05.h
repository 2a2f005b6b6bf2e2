#pragma once
// The symmetric trapezoidal load of type 1 (W5 in kgf/m on the plateau, rising over la5
// metres at each end).

#include "shell/CargaUnica.h"

namespace trevalo {

class Carga05 : public CargaUnica {
    Q_OBJECT

  public:
    Carga05(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent = nullptr);
};

} // namespace trevalo
