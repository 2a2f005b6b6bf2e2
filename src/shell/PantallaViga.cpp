#include "shell/PantallaViga.h"

#include <QAction>
#include <QKeyEvent>
#include <QPainter>
#include <QRubberBand>
#include <QWheelEvent>

#include "drawing/OperacionesVista.h"
#include "drawing/Ploteos.h"
#include "model/Conversiones.h"
#include "platform/lienzos/LienzoQt.h"

namespace trevalo {

namespace {

// The key codes of the view's operations; 0 for a key that does nothing.
int CodigoTecla(const QKeyEvent& evento) {
    const bool numerico = evento.modifiers() & Qt::KeypadModifier;
    switch (evento.key()) {
    case Qt::Key_Plus:
        return numerico ? TeclaMasNumerico : 0;
    case Qt::Key_Minus:
        return numerico ? TeclaMenosNumerico : 0;
    case Qt::Key_Escape:
        return TeclaEscape;
    case Qt::Key_Left:
        return TeclaIzquierda;
    case Qt::Key_Up:
        return TeclaArriba;
    case Qt::Key_Right:
        return TeclaDerecha;
    case Qt::Key_Down:
        return TeclaAbajo;
    default:
        return 0;
    }
}

const Qt::CursorShape ManoAbierta = Qt::OpenHandCursor;
const Qt::CursorShape ManoCerrada = Qt::ClosedHandCursor;

} // namespace

PantallaViga::PantallaViga(Programa& programa, bool ventanaProyecto, QWidget* parent)
    : QWidget(parent), programa_(programa), ventanaProyecto_(ventanaProyecto) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QStringLiteral("Dibujo de la viga"));
    setMinimumSize(200, 150);
}

void PantallaViga::PintarCon(const std::function<void(LienzoQt&)>& pintura) {
    const qreal densidad = devicePixelRatioF();
    QImage imagen(size() * densidad, QImage::Format_RGB32);
    imagen.setDevicePixelRatio(densidad);
    {
        QPainter painter(&imagen);
        painter.setRenderHint(QPainter::Antialiasing, false);
        LienzoQt lienzo(painter, width(), height(), true);
        pintura(lienzo);
    }
    imagen_ = std::move(imagen);
    update();
}

void PantallaViga::Pintar() {
    // A solve that failed leaves no results, and no view shows results that are not there:
    // the elevation alone, with the view the user chose kept for the next solve.
    auto& vista = programa_.Vista;
    const bool sinResultados = programa_.Resultados.NJuntas == 0;
    const bool diagramas = vista.VerDiagramas, diseno = vista.VerDiseno,
               reacciones = vista.VerReacciones;
    if (sinResultados) vista.VerDiagramas = vista.VerDiseno = vista.VerReacciones = false;
    std::optional<ErrorTrevalo> falla;
    PintarCon([&](LienzoQt& lienzo) {
        try {
            PlotearViga(lienzo, vista, programa_.Proyecto, programa_.Viga, programa_.Resultados);
        } catch (...) {
            falla = ErrorDeExcepcion(std::current_exception());
        }
    });
    vista.VerDiagramas = diagramas;
    vista.VerDiseno = diseno;
    vista.VerReacciones = reacciones;
    // The message comes after the picture is shown, as the user sees what was drawn.
    if (falla) programa_.Dialogo().Mensaje(MensajeFalla(*falla));
}

void PantallaViga::Limpiar() {
    PintarCon([&](LienzoQt& lienzo) {
        lienzo.Cls();
        if (programa_.Vista.VerCuadricula) DibujarCuadricula(lienzo, 45);
    });
}

void PantallaViga::ZoomIn() {
    EjecuteZoomIn(programa_.Vista);
    Pintar();
    setFocus();
}

void PantallaViga::ZoomOut() {
    EjecuteZoomOut(programa_.Vista);
    Pintar();
    setFocus();
}

void PantallaViga::ZoomExtents() {
    // The pan tool is let go without running its own handler.
    cambiandoTool_ = true;
    if (herramientaPan_) herramientaPan_->setChecked(false);
    cambiandoTool_ = false;
    enPan_ = false;
    unsetCursor();
    EjecuteZoomExtents(programa_.Vista, ventanaProyecto_);
    Pintar();
    setFocus();
}

void PantallaViga::FijarHerramientaPan(QAction* herramienta) {
    herramientaPan_ = herramienta;
    connect(herramienta, &QAction::toggled, this, &PantallaViga::CambioHerramientaPan);
}

void PantallaViga::CambioHerramientaPan(bool presionada) {
    if (cambiandoTool_) return;
    enPan_ = presionada;
    if (presionada)
        setCursor(ManoAbierta);
    else
        unsetCursor();
}

void PantallaViga::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (imagen_.isNull())
        painter.fillRect(rect(), Qt::white);
    else
        painter.drawImage(QPointF(0, 0), imagen_);
}

void PantallaViga::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    emit Redimensionado();
}

void PantallaViga::keyPressEvent(QKeyEvent* evento) {
    const int codigo = CodigoTecla(*evento);
    if (codigo == TeclaEscape) return ZoomExtents();
    if (codigo == 0 || !TeclaLienzo(programa_.Vista, codigo, ventanaProyecto_))
        return QWidget::keyPressEvent(evento);
    Pintar();
}

void PantallaViga::wheelEvent(QWheelEvent* evento) {
    if (!hasFocus()) return evento->ignore();
    const int giro = evento->angleDelta().y();
    if (giro == 0) return evento->ignore();
    // A turn away from the user zooms in; one notch is one step.
    if (giro > 0)
        ZoomIn();
    else
        ZoomOut();
}

void PantallaViga::mousePressEvent(QMouseEvent* evento) {
    const QPointF p = evento->position();
    switch (evento->button()) {
    case Qt::LeftButton:
        if (ventanaProyecto_ || enPan_) {
            setCursor(ManoCerrada);
            arrastreIzquierdo_ = true;
            ultimoX_ = p.x();
            ultimoY_ = p.y();
        } else if (bandaPermitida_ && bandaPermitida_()) {
            if (!banda_) banda_ = new QRubberBand(QRubberBand::Rectangle, this);
            inicioBanda_ = p;
            banda_->setGeometry(QRect(p.toPoint(), QSize()));
            banda_->show();
        } else if (banda_) {
            banda_->hide();
        }
        break;
    case Qt::MiddleButton:
        setCursor(ManoCerrada);
        arrastreMedio_ = true;
        ultimoX_ = p.x();
        ultimoY_ = p.y();
        break;
    case Qt::RightButton:
        emit MenuContextual(evento->globalPosition().toPoint());
        break;
    default:
        break;
    }
    setFocus();
}

void PantallaViga::mouseMoveEvent(QMouseEvent* evento) {
    const QPointF p = evento->position();
    const bool izquierdo = (evento->buttons() & Qt::LeftButton) && arrastreIzquierdo_ && enPan_;
    const bool medio = (evento->buttons() & Qt::MiddleButton) && arrastreMedio_;
    if ((izquierdo || medio) && ArrastrarVista(programa_.Vista, ultimoX_, ultimoY_, p.x(), p.y()))
        Pintar();
    if ((evento->buttons() & Qt::LeftButton) && banda_ && banda_->isVisible()) {
        const BandaSeleccion b = BandaDeArrastre(
            static_cast<float>(inicioBanda_.x()), static_cast<float>(inicioBanda_.y()),
            static_cast<float>(p.x()), static_cast<float>(p.y()));
        banda_->setGeometry(QRectF(b.Left, b.Top, b.Width, b.Height).toRect());
    }
}

void PantallaViga::mouseReleaseEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton) arrastreIzquierdo_ = false;
    if (evento->button() == Qt::MiddleButton) arrastreMedio_ = false;
    if (evento->button() == Qt::LeftButton && banda_ && banda_->isVisible()) {
        banda_->hide();
        const QPointF p = evento->position();
        emit BandaSoltada(BandaDeArrastre(static_cast<float>(inicioBanda_.x()),
                                          static_cast<float>(inicioBanda_.y()),
                                          static_cast<float>(p.x()), static_cast<float>(p.y())));
    }
    if (enPan_)
        setCursor(ManoAbierta);
    else
        unsetCursor();
}

} // namespace trevalo
