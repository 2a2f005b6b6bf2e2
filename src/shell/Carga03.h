#pragma once
// Partial uniform loads on a span (W3_ in kgf/m from La3_ to Lb3_ metres), ten at most.

#include "shell/CargaLista.h"

namespace trevalo {

class Carga03 : public CargaLista {
    Q_OBJECT

  public:
    Carga03(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, QWidget* parent = nullptr);
};

} // namespace trevalo
