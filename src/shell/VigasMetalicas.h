#pragma once
// The sections of a steel beam from the profile tables: seven pictures of families (single and
// paired double tees, channels, square and rectangular tubes), the table loaded for the chosen
// picture (kept for the whole run, so the window opens again on it without reading a file),
// and "Capturar", which chooses a row as the section of the beam type on which the beam
// editor stands: its designation, area (B1, cm2) and inertia (T1, cm4) as the grid shows them.
//
// The beam type is the active row of the parent's grid named "Spread8" (the type 1 when there
// is none). The window writes nothing: a capture the user confirms ends it with Accepted, and
// FilaCapturada() and TipoCapturado() say which row of the list goes into which type.

#include <QDialog>

#include "shell/Programa.h"

class QGroupBox;
class QListWidget;
class QTableView;

namespace trevalo {

class ModeloCeldas;

class VigasMetalicas : public QDialog {
    Q_OBJECT

  public:
    // `tipo`: the beam type a capture is for (the editor's type in front; 1 from the menus).
    VigasMetalicas(Programa& programa, long tipo = 1, QWidget* parent = nullptr);

    long Tipo() const { return tipo_; }
    // The row of the profile list captured and the beam type it is for; 0 when none was.
    long FilaCapturada() const { return filaCapturada_; }
    long TipoCapturado() const { return filaCapturada_ > 0 ? tipo_ : 0; }

    void Tablas();
    void Capturar();
    int ItemActual() const { return itemActual_; }

  private:
    void CrearControles();
    void ColoquePantalla();
    void ElegirItem(int item);

    Programa& programa_;
    long tipo_;
    long filaCapturada_ = 0;
    QGroupBox* marco_;
    QListWidget* familias_;
    QTableView* vistaPerfiles_;
    ModeloCeldas* modelo_;
    int itemActual_ = 1;
    bool cancelarItem_ = false;
};

} // namespace trevalo
