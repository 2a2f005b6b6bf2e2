#pragma once
// The report viewer: the report's pages painted by the same page painter as the PDF and the
// printer, one at a time, with page navigation and zoom; export (the export assistant),
// printing through the system's print dialog and a print preview. " Cerrar la Vista Actual"
// is there and does nothing, as users know it.

#include <QDialog>
#include <QPrinter>
#include <array>

#include "output/ContenidoInforme.h"
#include "shell/Programa.h"

class QComboBox;
class QLabel;
class QPushButton;
class QScrollArea;
class QSpinBox;

namespace trevalo {

class HojaInforme;

class VerReportes : public QDialog {
    Q_OBJECT

  public:
    VerReportes(Programa& programa, ContenidoInforme contenido, QWidget* parent = nullptr);

    // The page shown (from 1) and the count.
    int Pagina() const;
    int Paginas() const;
    void IrAPagina(int pagina);
    // Zoom in percent: 100 shows the page at its printed size.
    int Zoom() const;
    void FijarZoom(int porcentaje);

    // The printer that the print dialog and the preview start from.
    QPrinter& Impresora() { return impresora_; }
    QPushButton* Boton(const QString& nombre) const;

    void Imprimir();
    void VistaPreliminar();

  private:
    QWidget* CrearNavegacion();
    QWidget* CrearPanelOrdenes();
    void Actualizar();

    Programa& programa_;
    ContenidoInforme contenido_;
    QPrinter impresora_;
    HojaInforme* hoja_;
    QScrollArea* area_;
    QSpinBox* pagina_;
    QLabel* total_;
    QComboBox* zoom_;
    std::array<QPushButton*, 2> haciaAtras_{};    // the first and the previous page
    std::array<QPushButton*, 2> haciaAdelante_{}; // the next and the last page
};

} // namespace trevalo
