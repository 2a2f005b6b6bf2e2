#pragma once
// The beam editor: nine pages of grids beside a live drawing of the beam. Every accepted cell
// changes the beam in the model at once and redraws; the file is written only by " Salvar "
// (Ctrl+S) and by the question on leaving, which every way out asks (" Retorno ", the close
// button, Esc, the moves to the previous and next beam). Validation is per cell, on entry:
// what the grids accept is what is stored.
//
// Pages (moved through with " Anterior " / " Siguiente "; the tabs are not clickable):
//   1 spans and axis names   2 displaced joints   3 restrained joints   4 spring joints
//   5 concrete types         6 steel types        7 span loads          8 joint actions
//   9 dimensions at the supports (not reached on a steel beam)

#include <QDialog>
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>

#include "shell/DelegadosCelda.h"
#include "shell/Programa.h"

class QAction;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTableView;
class QUndoStack;

namespace trevalo {

class CampoNumero;
class ListaVigas;
class PantallaViga;
class ToolTipTrevalo;
struct BandaSeleccion;

class VigaDatos : public QDialog {
    Q_OBJECT

  public:
    // `vigas` is the project window's list when the editor is opened from it: the moves to the
    // previous and next beam go through it, and the save writes to its current row.
    VigaDatos(Programa& programa, ListaVigas* vigas = nullptr, QWidget* parent = nullptr);
    ~VigaDatos() override;

    PantallaViga& Lienzo() { return *pantalla_; }
    // Page in front, 1 to 9.
    int Pagina() const;
    // The beam differs from the one saved or read: the history is not at its clean step.
    bool Modificada() const;
    // Every applied edit, one step each (a count, a cell, a block, a paste, a load, a capture).
    QUndoStack& Historia() { return *historia_; }
    // The grid of a list, and its model.
    QTableView& Vista(Rejilla lista) { return *rejillas_.at(static_cast<std::size_t>(lista)); }
    ModeloCeldas& Modelo(Rejilla lista) { return *modelos_.at(static_cast<std::size_t>(lista)); }
    // The grid SpreadN and the count box LongN, as the pages number them.
    QTableView& Spread(int n) { return Vista(static_cast<Rejilla>(n)); }
    QLineEdit& Long(int n) { return *cuentas_.at(static_cast<std::size_t>(n)); }
    QAction* Accion(const QString& clave) const;

    // " Salvar ": true when the file took the beam.
    bool Salvar();
    // The whole window filled again from the model.
    void ColoquePantalla();

  public slots:
    void reject() override; // every way out

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    // Building the window.
    QWidget* CrearPaginas();
    QWidget* PaginaTramos();
    QWidget* PaginaDesplazadas();
    QWidget* PaginaRestringidas();
    QWidget* PaginaResortes();
    QWidget* PaginaTiposConcreto();
    QWidget* PaginaTiposMetalicos();
    QWidget* PaginaCargas();
    QWidget* PaginaAcciones();
    QWidget* PaginaAcotamiento();
    QWidget* CrearHerramientas();
    QWidget* CrearPie();
    QTableView* CrearRejilla(Rejilla lista);
    QLineEdit* CrearCuenta(int n, const QString& titulo);
    QPushButton* CrearBoton(const char* nombre, const char* titulo);
    void ConfigurarToolTips();

    // Every grid read again from the beam.
    void Recargar();
    void MostrarCuenta(int n);

    // Moves between pages.
    void Siguiente();
    void Anterior();
    void IrA(int pagina, bool juntas);
    bool LongitudesValidas();

    // Count boxes.
    void TerminarCuenta(int n, bool retorno);
    void AplicarCuenta(int n);

    // Cells: the beam's edit, then the headers and the drawing that show it.
    Veredicto ReglaCelda(Rejilla lista, const Celda& celda);
    // A block of cells chosen: an input box for one value, or ticks on the load page.
    void BloqueSeleccionado(Rejilla lista);
    void EntradaBloque(Rejilla lista, int fila1, int fila2, int columna);
    // The cells of a paste or a block entered as one: one redraw at their end, if `redibujar`.
    void EnGrupo(const std::function<void()>& entradas, bool redibujar);
    void MarcarBloque(int fila1, int fila2);

    // Page 3, 7 and the material.
    void ColocarApoyo(int tipo);
    void Material(bool concreto);
    void TerminarFactor(bool retorno);
    void SeleccionarTodos();
    void DesmarcarTodos();
    void BandaSoltada(const BandaSeleccion& banda);
    void BotonCarga(int tipo);
    // The load dialog of kind 1..8 over the marked spans: the load accepted, or nothing.
    std::optional<EntradaCarga> MostrarCarga(int tipo, const Arreglo<std::int16_t>& tramoCarga);
    void EliminarCargas();
    // Back from a dialog of the editor: the editor active and the focus on a list.
    void VolverA(Rejilla lista);
    // " Perfiles Metálicos ": the steel profile window over the type in front in Spread8.
    void PerfilesMetalicos();

    // Tools, drawing, leaving.
    void Despachar(const QString& clave);
    void Redibujar();
    // An edit applied: one step of the history named `que`, when the beam changed.
    void Registrar(const QString& que);
    // A step undone or redone: the beam as it was then, shown and drawn.
    void Restaurar(const VigaActual& viga);
    // A beam read: a history of its own, clean.
    void EmpezarHistoria();
    // The grids, counts and options from the model.
    void MostrarViga();
    // The cell, count or factor being typed, entered as leaving it would: before every save
    // and every question about leaving the beam.
    void TerminarEntradas();
    // True when the beam may be left: unchanged, saved, or its changes dropped.
    bool PreguntarSalvar(bool conCancelar);
    void MoverViga(int indice);
    void Rotulos();
    // The moves to the previous and next beam as the list allows them.
    void CopiarMovimientos();

    Programa& programa_;
    EdicionViga edicion_;
    ListaVigas* vigas_;
    bool cargando_ = true;
    int pagina_ = 1;
    bool tecleando_ = false; // a count or the factor typed and not yet entered
    bool agrupando_ = false; // a block or a paste: one redraw at its end
    bool redibujoPendiente_ = false;

    QLabel* nombreViga_ = nullptr;
    QTabWidget* paginas_ = nullptr;
    PantallaViga* pantalla_ = nullptr;
    ToolTipTrevalo* toolTip_ = nullptr;
    QUndoStack* historia_ = nullptr;
    VigaActual registrada_; // the beam at the history's current step, without marks
    QPushButton* anterior_ = nullptr;
    QPushButton* siguiente_ = nullptr;
    QPushButton* salvar_ = nullptr;
    std::array<QPushButton*, 2> btoMove_{};
    QRadioButton* concreto_ = nullptr;
    QRadioButton* metalica_ = nullptr;
    CampoNumero* factor_ = nullptr;
    std::array<QTableView*, 13> rejillas_{}; // by Rejilla, 1 to 12
    std::array<ModeloCeldas*, 13> modelos_{};
    std::array<QLineEdit*, 8> cuentas_{};
    std::map<QString, QAction*> acciones_;
};

} // namespace trevalo
