#include "drawing/OperacionesVista.h"

#include <algorithm>
#include <cmath>

#include "drawing/Ploteos.h"
#include "model/Conversiones.h"

namespace trevalo {

void EjecuteZoomIn(EstadoPloteos& estado) {
    estado.FactorZoom += 0.1;
}

void EjecuteZoomOut(EstadoPloteos& estado) {
    estado.FactorZoom -= 0.1;
    if (estado.FactorZoom < 0.1) estado.FactorZoom = 0.1;
}

void EjecuteZoomExtents(EstadoPloteos& estado, bool ventanaProyecto) {
    estado.FactorZoom = 1.0;
    estado.PanX = 0.0;
    estado.PanY = 0.0;
    if (ventanaProyecto) {
        estado.EstacionesDiagrama = 10;
        estado.EstacionesDiseno = 2;
        estado.FactorLetra = 1.0;
    }
}

bool TeclaLienzo(EstadoPloteos& estado, int tecla, bool ventanaProyecto) {
    const double paso = 0.4 * estado.Escala; // 0.4 m of the drawing, so it follows the zoom
    switch (tecla) {
    case TeclaMasNumerico:
        EjecuteZoomIn(estado);
        return true;
    case TeclaMenosNumerico:
        EjecuteZoomOut(estado);
        return true;
    case TeclaEscape:
        EjecuteZoomExtents(estado, ventanaProyecto);
        return true;
    case TeclaIzquierda:
        estado.PanX += paso;
        return true;
    case TeclaDerecha:
        estado.PanX -= paso;
        return true;
    case TeclaArriba:
        estado.PanY += paso;
        return true;
    case TeclaAbajo:
        estado.PanY -= paso;
        return true;
    default:
        return false;
    }
}

void DesplazarVista(EstadoPloteos& estado, Direccion direccion) {
    switch (direccion) {
    case Direccion::Izquierda:
        estado.PanX -= 10.0;
        break;
    case Direccion::Derecha:
        estado.PanX += 10.0;
        break;
    case Direccion::Arriba:
        estado.PanY += 10.0;
        break;
    case Direccion::Abajo:
        estado.PanY -= 10.0;
        break;
    }
}

bool ArrastrarVista(EstadoPloteos& estado, double& ultimoX, double& ultimoY, double x, double y) {
    if (x == ultimoX && y == ultimoY) return false;
    estado.PanX += x - ultimoX;
    estado.PanY += y - ultimoY;
    ultimoX = x;
    ultimoY = y;
    return true;
}

void ElegirPestana(EstadoPloteos& estado, int pestana) {
    estado.VerDiagramas = pestana == 2;
    estado.VerDiseno = pestana == 3;
    estado.VerReacciones = pestana == 4;
    estado.EnPantalla = true;
    if (pestana == 2 || pestana == 3) {
        estado.EstacionesDiagrama = 10;
        estado.EstacionesDiseno = 2;
    }
    if (pestana == 3) estado.FactorLetra = 1.0;
}

void AumentarEstaciones(EstadoPloteos& estado, int pestana) {
    // Kept in 16 bits: a press beyond them is error 6.
    if (pestana == 2)
        estado.EstacionesDiagrama = Entero<std::int16_t>(estado.EstacionesDiagrama + 1);
    if (pestana == 3) estado.EstacionesDiseno = Entero<std::int16_t>(estado.EstacionesDiseno + 1);
}

void DisminuirEstaciones(EstadoPloteos& estado, int pestana) {
    if (pestana == 2 && estado.EstacionesDiagrama > 2) --estado.EstacionesDiagrama;
    if (pestana == 3 && estado.EstacionesDiseno > 1) --estado.EstacionesDiseno;
}

void LetraMas(EstadoPloteos& estado) {
    estado.FactorLetra += 0.1;
}

void LetraMenos(EstadoPloteos& estado) {
    estado.FactorLetra -= 0.1;
    if (estado.FactorLetra < 0.3) estado.FactorLetra = 0.3;
}

void LetraR(EstadoPloteos& estado) {
    estado.FactorLetra = 1.0;
}

BandaSeleccion BandaDeArrastre(float x0, float y0, float x, float y) {
    return {std::min(x0, x), std::min(y0, y), std::abs(x - x0), std::abs(y - y0)};
}

namespace {

// The five tests of a span against the band, with the span's screen end points.
bool BandaTomaTramo(const BandaSeleccion& b, double x1, double y1, double x2, double y2, double c,
                    double s) {
    const double L = b.Left, T = b.Top, W = b.Width, H = b.Height;
    const double d = (L - x1) * s / c;
    const bool entero = x1 > L && L + W > x2 && y1 > T && T + H > y2;
    const bool bordeIzquierdo = x1 < L && x2 > L && y1 + d > T && T + H > y1 + d;
    // Kept: the height at the right edge reuses d of the left edge with the opposite sign.
    const bool bordeDerecho = L + W > x1 && L + W < x2 && y1 - d > T && T + H > y1 - d;
    const bool primerExtremo = x1 > L && L + W > x1 && y1 > T && T + H > y1;
    const bool segundoExtremo = x2 > L && L + W > x2 && y2 > T && T + H > y2;
    return entero || bordeIzquierdo || bordeDerecho || primerExtremo || segundoExtremo;
}

} // namespace

std::vector<long> SeleccioneZoom(const EstadoPloteos& estado, VigaActual& viga,
                                 const BandaSeleccion& banda) {
    std::vector<long> tomados;
    for (long i = 1; i <= viga.NT; ++i) {
        const double ancho = estado.XPlot(i + 1) - estado.XPlot(i);
        if (ancho == 0.0) continue;
        const double alto = estado.YPlot(i + 1) - estado.YPlot(i);
        const double l = std::hypot(ancho, alto);
        if (BandaTomaTramo(banda, XJuntaPantalla(estado, i), YJuntaPantalla(estado, i),
                           XJuntaPantalla(estado, i + 1), YJuntaPantalla(estado, i + 1), ancho / l,
                           alto / l)) {
            viga.TramoMarcado(i) = true;
            tomados.push_back(i);
        }
    }
    return tomados;
}

} // namespace trevalo
