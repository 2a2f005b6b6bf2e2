#include "drawing/LienzoGrabador.h"

namespace trevalo {

namespace {

// Characters, not bytes: a UTF-8 continuation byte does not count.
double Caracteres(const std::string& texto) {
    double n = 0;
    for (unsigned char c : texto)
        if ((c & 0xC0) != 0x80) ++n;
    return n;
}

} // namespace

OperacionGrabada LienzoGrabador::Nueva(TipoOperacion tipo) const {
    OperacionGrabada op;
    op.Tipo = tipo;
    op.PlumaUsada = PlumaActual();
    op.FillStyle = FillStyle;
    op.FillColor = FillColor;
    op.DrawMode = DrawMode;
    op.ForeColor = ForeColor;
    op.FontName = FontName;
    op.FontSize = FontSize;
    op.FontBold = FontBold;
    op.FontUnderline = FontUnderline;
    return op;
}

void LienzoGrabador::Cls() {
    operaciones_.push_back(Nueva(TipoOperacion::Cls));
}

void LienzoGrabador::TrazarLinea(PuntoApi desde, PuntoApi hasta) {
    auto op = Nueva(TipoOperacion::Linea);
    op.Puntos = {desde, hasta};
    operaciones_.push_back(op);
}

void LienzoGrabador::TrazarArco(PuntoApi desde, long x, long y, long radio, double inicio,
                                double barrido) {
    auto op = Nueva(TipoOperacion::Arco);
    op.Puntos = {desde, {x, y}};
    op.Radio = radio;
    op.Angulo = inicio;
    op.Barrido = barrido;
    operaciones_.push_back(op);
}

void LienzoGrabador::Polygon(const std::vector<PuntoApi>& puntos) {
    auto op = Nueva(TipoOperacion::Poligono);
    op.Puntos = puntos;
    operaciones_.push_back(op);
}

void LienzoGrabador::Ellipse(long izquierda, long arriba, long derecha, long abajo) {
    auto op = Nueva(TipoOperacion::Elipse);
    op.Puntos = {{izquierda, arriba}, {derecha, abajo}};
    operaciones_.push_back(op);
}

void LienzoGrabador::TextOutA(long x, long y, const std::string& texto, double angulo) {
    auto op = Nueva(TipoOperacion::Texto);
    op.Puntos = {{x, y}};
    op.Texto = texto;
    op.Angulo = angulo;
    operaciones_.push_back(op);
}

void LienzoGrabador::DrawTextA(const std::string& texto, const Rect& rectangulo, int formato) {
    auto op = Nueva(TipoOperacion::TextoEnRectangulo);
    op.Texto = texto;
    op.Rectangulo = rectangulo;
    op.Formato = formato;
    operaciones_.push_back(op);
}

double LienzoGrabador::TextWidth(const std::string& texto) {
    return 0.75 * FontSize * Caracteres(texto);
}

double LienzoGrabador::TextHeight(const std::string&) {
    return 1.75 * FontSize;
}

std::vector<OperacionGrabada> LienzoGrabador::DelTipo(TipoOperacion tipo) const {
    std::vector<OperacionGrabada> r;
    for (const auto& op : operaciones_)
        if (op.Tipo == tipo) r.push_back(op);
    return r;
}

std::vector<std::string> LienzoGrabador::Textos() const {
    std::vector<std::string> r;
    for (const auto& op : operaciones_)
        if (op.Tipo == TipoOperacion::Texto || op.Tipo == TipoOperacion::TextoEnRectangulo)
            r.push_back(op.Texto);
    return r;
}

const OperacionGrabada* LienzoGrabador::BuscarTexto(const std::string& texto) const {
    for (const auto& op : operaciones_)
        if ((op.Tipo == TipoOperacion::Texto || op.Tipo == TipoOperacion::TextoEnRectangulo) &&
            op.Texto == texto)
            return &op;
    return nullptr;
}

} // namespace trevalo
