#pragma once
// The project window: on the left the list of the project's beams, on the right the drawing
// of the selected beam on one of four tabs, and around them the commands that create, edit,
// copy, rename and delete beams and lead to reports and export.
//
// It owns the rule that joins store, analysis and drawing: choosing a beam loads it; a tab
// other than the first solves it; every change of beam or tab solves anew, nothing is kept
// between two of these events. A fault of the load, the analysis or the drawing is shown as
// its message and the beam is drawn without results (the canvas shows no view of results
// that a failed solve cleared).

#include <QDialog>
#include <map>

#include "shell/Programa.h"

class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;
class QTabBar;
class QTableView;
class QToolBar;

namespace trevalo {

class ListaVigas;
class PantallaViga;
class ToolTipTrevalo;

class VigasProyecto : public QDialog {
    Q_OBJECT

  public:
    VigasProyecto(Programa& programa, QWidget* parent = nullptr);
    ~VigasProyecto() override;

    // Whether the load opened the project. When it could not (the file moved, damaged, not a
    // project), the error has been shown, no database or beam list is left open, and the
    // window is not to be shown: nothing can write into the project open before.
    bool Abierto() const { return abierto_; }

    // The list of beams, its current row and its moves, shared with the beam editor.
    ListaVigas& Lista() { return *lista_; }
    // Moves to the previous (0) or next (1) beam of the list.
    void BtoMove_Click(int indice);
    // Fills the list from RsGeneralViga.
    void ColoquePantalla();
    // Loads and shows the beam of row r.
    void ColoqueVigasSpread(int fila);
    // The active row of the list (1-based; 0 when the list is empty) and its count.
    int FilaActiva() const;
    int Filas() const;
    void FijarFilaActiva(int fila);
    // The names the list shows, row by row.
    std::vector<std::string> NombresLista() const;

    // The tool with that key, and the dispatcher of the tools.
    QAction* Accion(const QString& clave) const;
    void Despachar(const QString& clave);
    int Pestana() const;
    void ElegirPestana(int pestana);

    PantallaViga& Lienzo() { return *pantalla_; }
    QPushButton* Boton(const QString& nombre) const;
    ToolTipTrevalo& ToolTip() { return *toolTip_; }

  private:
    void ConfigurarSpread();
    QToolBar* CrearHerramientas();
    QWidget* CrearBotones();

    // The steps of the rule of load, analysis and drawing.
    void Tomar(int fila);
    // The analysis when the tab needs results; a fault is shown and leaves no results.
    void Resolver();
    void Botones();
    void Vista();
    void Pintar();
    void ResolverYPintar();
    // The tool states of a tab: the station tools on tabs 2 and 3, the text tools on tab 3.
    void HabilitarHerramientas(int pestana);
    void ClickPestana(int pestana);
    void CambioFila(int fila);
    // The list's current row shown in its view and in the moves.
    void SeguirActual(int fila);
    void Redimensionado();
    void MostrarMenuContextual(const QPoint& lugar);

    // The beam commands.
    void CrearViga();
    void EditarViga();
    void CopiarVigaSeleccionada();
    void RenombrarSeleccionada();
    void EliminarVigaSeleccionada();
    void AbrirProyectoVentana();
    // The editor over the beam in the model.
    void MostrarEditor();
    // The new beam, last record of the list, on a last row of its own, loaded and shown.
    void AgregarUltimaFila();
    // The nine updates of a rename, then the list in name order on its first beam.
    void RenombrarVigaSeleccionada();
    // Back from a walk over the beams (report, export): the beam of the active row read again
    // and solved as the tab in front needs, the view reset and zoomed to the whole beam.
    void RestaurarTrasRecorrido();
    // The export to the drawing program's project.
    void ExportaVigasCAD();
    // Back from the editor or a dialog: the beam of the active row read again, the view reset,
    // on the tab given with its flags, solved.
    void RestaurarVigaActiva(int pestana);
    // The report command: which beams, the report database filled with the progress on the
    // panel, the kind of output; then the beam on screen as it was.
    void ExportarResultados();
    void LlenarImpreDatos();

    Programa& programa_;
    bool cargando_ = true;
    bool abierto_ = false;
    bool enPestana_ = false; // a tab change made by the program, not by the user
    ListaVigas* lista_;
    QTableView* vistaVigas_;
    QLabel* nombreViga_;
    QTabBar* pestanas_;
    PantallaViga* pantalla_;
    QPushButton* btoMove_[2];
    std::map<QString, QPushButton*> botones_;
    std::map<QString, QAction*> acciones_;
    QMenu* menuLienzo_;
    QProgressBar* progreso_;
    QLabel* textoProgreso_;
    QWidget* panelProgreso_;
    ToolTipTrevalo* toolTip_;
};

} // namespace trevalo
