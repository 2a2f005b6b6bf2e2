#pragma once
// The section generator of the double-tee tables: a name and four plate dimensions in mm, the
// sketch of the section to scale and its twelve properties; "Capturar" hands the section, as
// the labels show it, to the table that opened the window, and the window stays open for the
// next one.

#include <QDialog>
#include <QImage>
#include <array>
#include <functional>

#include "profiles/PropiedadesPerfil.h"
#include "shell/Programa.h"

class QLabel;
class QLineEdit;

namespace trevalo {

class CampoNumero;

class DobleTee : public QDialog {
    Q_OBJECT

  public:
    using Capturar = std::function<void(const CapturaSeccion&)>;
    DobleTee(Programa& programa, Capturar capturar, QWidget* parent = nullptr);

    void Calcular();
    void CapturarSeccion();
    void Borrar();
    const QImage& Imagen() const { return imagen_; }

  private:
    void CrearControles();
    void MostrarEtiquetas();

    Programa& programa_;
    Capturar capturar_;
    QLineEdit* designacion_;
    std::array<CampoNumero*, 4> doubles_{}; // d, tw, bf, tf
    std::array<QLabel*, 12> etiquetas_{};
    QLabel* dibujo_;
    QImage imagen_;
    EtiquetasPerfil valores_;
};

} // namespace trevalo
