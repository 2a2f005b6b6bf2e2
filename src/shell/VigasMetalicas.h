#pragma once
// The sections of a steel beam from the profile tables: seven pictures of families (single and
// paired double tees, channels, square and rectangular tubes), the table loaded for the chosen
// picture (kept for the whole run, so the window opens again on it without reading a file),
// and "Capturar", which makes a row the section of the beam type on which the beam editor
// stands: its designation, area (B1, cm2) and inertia (T1, cm4) as the grid shows them.
//
// The beam type is the active row of the parent's grid named "Spread8" (the type 1 when there
// is none). A capture writes Programa::Viga and ends the window with Accepted; TipoCapturado()
// and the signal PerfilCapturado name the type, so that the editor shows that row again.

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
    VigasMetalicas(Programa& programa, QWidget* parent = nullptr);

    long Tipo() const { return tipo_; }
    // The beam type written by a capture; 0 when none was.
    long TipoCapturado() const { return tipoCapturado_; }

    void Tablas();
    void Capturar();
    int ItemActual() const { return itemActual_; }

  signals:
    void PerfilCapturado(long tipo);

  private:
    void CrearControles();
    void ColoquePantalla();
    void ElegirItem(int item);

    Programa& programa_;
    long tipo_;
    long tipoCapturado_ = 0;
    QGroupBox* marco_;
    QListWidget* fpList1_;
    QTableView* spread1_;
    ModeloCeldas* modelo_;
    int itemActual_ = 1;
    bool cancelarItem_ = false;
};

} // namespace trevalo
