#pragma once
// The door to the profile tables: the four families, "Crear" a new table from the family's
// template (always in the tables folder, with the family's name prefix), "Editar" a table
// anywhere on the disk (also a double click on a family), each in the family's table window.
// "Eliminar" is shown and does nothing in this release.

#include <QDialog>
#include <array>

#include "profiles/FamiliasPerfil.h"
#include "profiles/TablaPerfiles.h"
#include "shell/Programa.h"

class QRadioButton;

namespace trevalo {

class OpcionPerfil : public QDialog {
    Q_OBJECT

  public:
    explicit OpcionPerfil(Programa& programa, QWidget* parent = nullptr);

    FamiliaPerfil Elegida() const;
    void Crear();
    void Editar();

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void AbrirTabla(FamiliaPerfil familia, const EstadoTablaPerfiles& archivo);

    Programa& programa_;
    std::array<QRadioButton*, 4> opciones_{};
};

} // namespace trevalo
