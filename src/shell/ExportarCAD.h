#pragma once
// "Exportar a Korvel-CAD Estructural": the beams of the project window's list with a mark
// each, the preview of the beam of the current row, where the beams go (a project to append
// to or a new one) and how the continuous beam rests (on beams or on columns); "Exportar"
// sends the marked beams to a project of the drawing program.
//
// A marked row is painted in the colour 0xC4EFFF (0xBBGGRR), an unmarked one in white. The
// beams exported are taken from the list of concrete beams at the grid's positions, and the
// steel from the beam of the active row (see output/ExportarCAD.h); the window keeps that.

#include <QDialog>
#include <optional>
#include <vector>

#include "output/ExportarCAD.h"
#include "platform/motor/MotorDatos.h"
#include "shell/Programa.h"

class QFrame;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTableView;

namespace trevalo {

class ModeloCeldas;
class PantallaViga;
class ToolTipTrevalo;

class ExportarCAD : public QDialog {
    Q_OBJECT

  public:
    // `nombres`: the beam names of the project window's list, row by row.
    ExportarCAD(Programa& programa, const std::vector<std::string>& nombres,
                QWidget* parent = nullptr);

    // The mark of row r (from 1) and its setting with the row's colour, as a click on the
    // check cell does.
    bool Marcada(int fila) const;
    void Marcar(int fila, bool marcada);
    QPushButton* Boton(const QString& nombre) const;
    ToolTipTrevalo& ToolTip() { return *toolTip_; }

  private:
    void ColoquePantalla(const std::vector<std::string>& nombres);
    void CambioFila(int fila);
    void MarcarTodas(bool marcada);
    void Exportar();
    void Directorio();
    void MostrarPanel(bool visible);

    Programa& programa_;
    std::optional<Recordset> listaConcreto_;
    std::vector<FilaCAD> filas_; // the beams of the list and their marks, row by row
    QTableView* vistaVigas_;
    ModeloCeldas* modelo_;
    PantallaViga* lienzo_;
    QRadioButton* option_[4];
    QFrame* panelP_;
    QProgressBar* progreso_;
    QLabel* textoProgreso_;
    ToolTipTrevalo* toolTip_;
};

} // namespace trevalo
