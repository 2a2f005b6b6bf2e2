#pragma once
// The load dialogs of a list of loads per span (point loads, partial uniform loads, right and
// left triangles, trapezoids of type 2). Long1 is the count of loads and Spread1 their rows;
// the list of the last marked span is shown. Return in Long1 applies the count and warns
// when it passes the limit of the kind (the field then shows the limit while the rows keep
// the count typed until the field is changed again); leaving Long1 applies it unchecked.
// The trapezoids check the limit on acceptance instead. A load typed with decimals is kept
// rounded to the nearest integer, ties to even (2.5 gives 2); one of 2,147,483,648 or more
// is refused with error 6. On acceptance the count and the rows are what is written to every
// marked span.
// Positions are not compared with the span's length.

#include <QString>
#include <cstdint>
#include <vector>

#include "editing/EdicionViga.h"
#include "shell/DialogoCarga.h"
#include "shell/ModeloCeldas.h"

class QTableView;

namespace trevalo {

struct FormaCargaLista {
    const char* titulo;
    const char* marco;
    const char* etiqueta; // caption of Long1
    long limite;          // loads per span
    bool limiteAlAceptar; // the limit is checked on acceptance, not on Return
    Arreglo<std::int16_t> VigaActual::*cantidad;
    std::vector<ColumnaCarga> columnas;
};

class CargaLista : public DialogoCarga {
    Q_OBJECT

  protected:
    CargaLista(Programa& programa, const Arreglo<std::int16_t>& tramoCarga, FormaCargaLista forma,
               QWidget* parent);

  private:
    void ConfigurarSpread();
    void Mostrar(long tramo);
    void Cantidad(bool retorno);
    void Filas(int n);
    void AvisoLimite();
    // The first n_ rows as they are written: loads rounded to integers, ties to even.
    std::vector<std::vector<double>> Tomadas() const;
    EntradaCarga Tomar() override;

    FormaCargaLista forma_;
    QLineEdit* cantidad_;
    QTableView* vistaCargas_;
    ModeloCeldas* modelo_ = nullptr;
    std::vector<std::vector<double>> filas_; // the rows shown, as typed
    int n_ = 0;                              // the count applied to the rows
    QString textoAplicado_;                  // Long1's text when it was last applied
};

} // namespace trevalo
