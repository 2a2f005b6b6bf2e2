#pragma once
// The tool tips of a window: a title over a text, in the look that Tapiz.kvl sets (font size,
// background and text colours, centred or not, balloon or the plain form of the system).
//
// A window gives each control its title in the property "Tag" and its text as the control's
// tool tip; Configurar then takes every such text over, except those of controls whose name
// begins with "Tab0", and blanks the control's own tip so that only this one shows.

#include <QObject>
#include <QPointer>

#include "store/Tapiz.h"

class QFrame;
class QLabel;
class QWidget;

namespace trevalo {

class ToolTipTrevalo : public QObject {
    Q_OBJECT

  public:
    explicit ToolTipTrevalo(QWidget* ventana);

    // ConfigurarToolTip of the window: the look from `tapiz` (with its ranges applied again)
    // and the tips of the window's controls taken over.
    void Configurar(ConfiguracionTapiz& tapiz);
    // A look given as it stands, without the ranges (the sample of the settings).
    void Estilo(const EstiloToolTip& estilo);

    // The title and text taken from a control, empty when it has none.
    static QString Titulo(const QWidget* control);
    static QString Texto(const QWidget* control);

    // The tip of `control` shown at once, as the pointer resting on it would (tests and the
    // screenshots use it); hidden again by Ocultar.
    void Mostrar(QWidget* control);
    void Ocultar();
    QWidget* Globo() const;

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    QWidget* ventana_;
    EstiloToolTip estilo_;
    QPointer<QFrame> globo_;
    QLabel* titulo_ = nullptr;
    QLabel* texto_ = nullptr;
};

} // namespace trevalo
