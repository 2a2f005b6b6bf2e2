#pragma once
// The load dialogs of one value per span (uniform, triangular, trapezoidal of type 1): the
// value of the last marked span is shown in Long1, red when negative (a negative load acts
// upward), and on acceptance the value rounded to the nearest integer, ties to even, is
// what is written to every marked span, with no range check beyond error 6.

#include <cstdint>

#include "shell/DialogoCarga.h"

class QRadioButton;

namespace trevalo {

class CampoNumero;

struct FormaCargaUnica {
    const char* titulo;
    const char* marco;
    const char* etiqueta; // caption of Long1
    Arreglo<std::int32_t> VigaActual::*valor;
    bool conLa;       // Double1 "La (m) =" with la5, the rise of the trapezoid
    bool conGravedad; // the direction options of the uniform load
};

class CargaUnica : public DialogoCarga {
    Q_OBJECT

  protected:
    CargaUnica(Programa& programa, const Arreglo<std::int16_t>& tramoCarga,
               const FormaCargaUnica& forma, QWidget* parent);

  private:
    void Mostrar(long tramo);
    void Colorear();
    EntradaCarga Tomar() override;

    FormaCargaUnica forma_;
    CampoNumero* valor_;
    CampoNumero* la_ = nullptr;
    QRadioButton* deGravedad_ = nullptr;
    QRadioButton* perpendicular_ = nullptr;
};

} // namespace trevalo
