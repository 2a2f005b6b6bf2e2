#pragma once
// Point loads on a span (P in kgf at LP metres from the left joint), ten at most.

#include "shell/CargaLista.h"

namespace trevalo {

class Carga02 : public CargaLista {
    Q_OBJECT

  public:
    Carga02(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent = nullptr);
};

} // namespace trevalo
