#pragma once
// File maintenance: the user picks a folder in the tree, marks any of its project files in
// the list and runs them, one after the other in the order of the list, through the
// engine's compaction, which also repairs. Each file is replaced in place; the open project
// is closed first (the project window opens it again when it is next shown). A file that
// cannot be compacted stops the run with the engine's message, which also says how many were
// done before it: the files done stay done and that file is left as it was. The folder tree
// covers the whole file system. The dialog stays open after a run.

#include <QDialog>
#include <memory>

#include "shell/Programa.h"

class QFileSystemModel;

namespace Ui {
class Compactar1;
}

namespace trevalo {

class Compactar1 : public QDialog {
    Q_OBJECT

  public:
    Compactar1(Programa& programa, QWidget* padre = nullptr);
    ~Compactar1() override;

    // The folder whose project files the list shows (DirActual).
    const QString& DirActual() const { return dirActual_; }
    // Shows the folder in the tree and its project files in the list, none marked.
    void CambiarCarpeta(const QString& carpeta);

  private:
    void Marcar(bool marca);
    void Aceptar();
    // The names of the marked files, in the order of the list.
    QStringList Marcados() const;

    Programa& programa_;
    std::unique_ptr<Ui::Compactar1> ui_;
    QFileSystemModel* modelo_;
    QString dirActual_;
};

} // namespace trevalo
