#pragma once
// The canvas on which a window shows its beam. It owns no drawing: Pintar hands PlotearViga
// a canvas on an image the size of the widget (at the screen's pixel density) and shows it.
// It turns the keys, the wheel and the mouse into the operations of the view: numeric-pad
// + and - zoom, Escape zooms to extents, the arrows pan; the wheel zooms only while the
// canvas has the focus; the middle button always pans, the left button pans in the project
// window and with the pan tool; the right button asks for the context menu. In the editor,
// on the page that allows it, a left drag draws the selection band of spans instead.

#include <QImage>
#include <QWidget>
#include <functional>

#include "drawing/OperacionesVista.h"
#include "shell/Programa.h"

class QAction;
class QRubberBand;

namespace trevalo {

class PantallaViga : public QWidget {
    Q_OBJECT

  public:
    // `ventanaProyecto`: the project window, whose zoom to extents also resets the stations
    // and the text factor; otherwise the beam editor.
    PantallaViga(Programa& programa, bool ventanaProyecto, QWidget* parent = nullptr);

    // Redraws the beam. A fault of the drawing is shown as its message and the picture keeps
    // what was drawn up to it.
    void Pintar();
    // The canvas cleared with the background grid alone.
    void Limpiar();

    void ZoomIn();
    void ZoomOut();
    void ZoomExtents();
    // The pan tool, a checkable action that the window puts in its toolbar.
    void FijarHerramientaPan(QAction* herramienta);
    bool EnPan() const { return enPan_; }
    // The editor's selection band, drawn while `permitida` answers true.
    void PermitirBanda(std::function<bool()> permitida) { bandaPermitida_ = std::move(permitida); }

    // The picture as shown, for the window tests and the screenshots.
    const QImage& Imagen() const { return imagen_; }

  signals:
    void MenuContextual(const QPoint& global);
    // The canvas has a new size: the window draws again.
    void Redimensionado();
    // The left button let go at the end of a band.
    void BandaSoltada(const BandaSeleccion& banda);

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    // Paints onto a fresh image of the widget's size with `pintura`, then shows it.
    void PintarCon(const std::function<void(class LienzoQt&)>& pintura);
    void CambioHerramientaPan(bool presionada);

    Programa& programa_;
    bool ventanaProyecto_;
    QImage imagen_;
    QAction* herramientaPan_ = nullptr;
    bool enPan_ = false;
    bool cambiandoTool_ = false;
    bool arrastreIzquierdo_ = false;
    bool arrastreMedio_ = false;
    double ultimoX_ = 0, ultimoY_ = 0;
    std::function<bool()> bandaPermitida_;
    QRubberBand* banda_ = nullptr;
    QPointF inicioBanda_;
};

} // namespace trevalo
