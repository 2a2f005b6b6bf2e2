#pragma once
// The window of one profile table (the double-tee, channel, square tube and rectangular tube
// tables differ only in their columns): the grid of profiles under its four-line header, the
// table's description and yield strength, "Modificar la Tabla" that unlocks the cells, the
// count of rows, the delete of a row, the save of the whole table in one transaction, and the
// question on every way out while something is unsaved. The double-tee and channel tables
// show a sketch of the section under the mouse while the button is held on a row; the
// double-tee table also takes new rows from the section generator.
//
// The table opened is the one the window is given; a table just made from its template
// (TablaNueva) starts empty and is offered for saving even if left untouched.

#include <QDialog>
#include <QTimer>
#include <optional>
#include <vector>

#include "profiles/FamiliasPerfil.h"
#include "profiles/PropiedadesPerfil.h"
#include "profiles/TablaPerfiles.h"
#include "shell/Programa.h"

class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QTableView;
class QWidget;

namespace trevalo {

class CampoNumero;
class ModeloCeldas;
class ToolTipTrevalo;
struct Celda;
struct Veredicto;

class TablaPerfil : public QDialog {
    Q_OBJECT

  public:
    TablaPerfil(Programa& programa, FamiliaPerfil familia, EstadoTablaPerfiles tabla,
                QWidget* parent = nullptr);
    ~TablaPerfil() override;

    FamiliaPerfil Familia() const { return familia_; }
    // Whether the table was read (a file that is no table of this family is told and not
    // shown).
    bool Leida() const { return leida_; }
    bool Cambiada() const { return tablaCambiada_; }
    QTableView& Grid() { return *vistaPerfiles_; }

    // A section of the generator as a new last row, made the current row: its name in the
    // first column, its numbers in the following ones, in the order the generator gives.
    void AgregarCaptura(const CapturaSeccion& captura);

    // Writes the whole table; false, with the focus on the description, when it is empty,
    // and false, with the error shown, when the file refused it (the file is then as it was).
    bool Salvar();
    // The count of rows typed in "Total Perfiles:" applied to the grid.
    void AplicarTotal();
    void Eliminar();
    // The sketch of the section of a row, as the mouse shows it (null for the tube tables).
    QWidget* Emergente() const;

    void reject() override;

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    // A profile as the grid shows it: a numeric cell stays empty until a value is typed,
    // read, captured or filled by the count.
    struct Fila {
        QString Referencia; // the double-tee table's hidden first column
        QString Designacion;
        std::vector<std::optional<double>> Valores; // the family's fields
    };

    void CrearControles();
    void ConfigurarPantalla();
    void ColoquePantalla();
    void Modificar(bool activo);
    void CrearPerfil();
    void MostrarEmergente();
    void ColocarEmergente();
    FilaPerfil FilaDelGrid(int fila) const;

    // Cells by the forms' numbering: rows and columns from 1. A number is kept as its cell
    // shows it.
    Fila FilaVacia() const;
    QVariant Leer(int fila, int columna) const;
    void Colocar(Fila& fila, int columna, const QVariant& valor) const;
    Veredicto Escribir(const Celda& celda);
    QString Designacion(int fila) const;

    Programa& programa_;
    EstadoTablaPerfiles tabla_;
    FamiliaPerfil familia_;
    std::vector<Fila> filas_;
    QTableView* vistaPerfiles_;
    ModeloCeldas* modelo_ = nullptr;
    QLineEdit* descripcion_;
    CampoNumero* resistencia_;
    CampoNumero* totalPerfiles_;
    QCheckBox* modificar_;
    QWidget* panelEdicion_;
    QFrame* emergente_ = nullptr;
    QLabel* croquis_ = nullptr;
    QLabel* rotuloCroquis_ = nullptr;
    ToolTipTrevalo* toolTip_;
    QTimer esperaCroquis_;
    bool leida_ = true;
    bool tablaCambiada_ = false;
    bool totalCambiado_ = false;
    bool cargando_ = true;
    bool popupActivo_ = false;
    QPoint popup_;
    int filaEmergente_ = 0;
};

} // namespace trevalo
