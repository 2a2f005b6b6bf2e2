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
    op.BackColor = BackColor;
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

Lienzo& LienzoGrabador::Medidor() {
    medidas_->FontName = FontName;
    medidas_->FontSize = FontSize;
    medidas_->FontBold = FontBold;
    medidas_->FontUnderline = FontUnderline;
    return *medidas_;
}

double LienzoGrabador::TextWidth(const std::string& texto) {
    if (medidas_) return Medidor().TextWidth(texto);
    return 0.75 * FontSize * Caracteres(texto);
}

double LienzoGrabador::TextHeight(const std::string& texto) {
    if (medidas_) return Medidor().TextHeight(texto);
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

void Reproducir(const std::vector<OperacionGrabada>& operaciones, Lienzo& l) {
    for (const auto& op : operaciones) {
        l.SelectObject(op.PlumaUsada);
        l.FillStyle = op.FillStyle;
        l.FillColor = op.FillColor;
        l.DrawMode = op.DrawMode;
        l.ForeColor = op.ForeColor;
        l.BackColor = op.BackColor;
        l.FontName = op.FontName;
        l.FontSize = op.FontSize;
        l.FontBold = op.FontBold;
        l.FontUnderline = op.FontUnderline;
        const auto& p = op.Puntos;
        switch (op.Tipo) {
        case TipoOperacion::Cls:
            l.Cls();
            break;
        case TipoOperacion::Linea:
            l.MoveToEx(p[0].x, p[0].y);
            l.LineTo(p[1].x, p[1].y);
            break;
        case TipoOperacion::Poligono:
            l.Polygon(p);
            break;
        case TipoOperacion::Elipse:
            l.Ellipse(p[0].x, p[0].y, p[1].x, p[1].y);
            break;
        case TipoOperacion::Arco:
            l.MoveToEx(p[0].x, p[0].y);
            l.AngleArc(p[1].x, p[1].y, op.Radio, op.Angulo, op.Barrido);
            break;
        case TipoOperacion::Texto:
            l.TextOutA(p[0].x, p[0].y, op.Texto, op.Angulo);
            break;
        case TipoOperacion::TextoEnRectangulo:
            l.DrawTextA(op.Texto, op.Rectangulo, op.Formato);
            break;
        }
    }
}

} // namespace trevalo
