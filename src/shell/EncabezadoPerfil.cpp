#include "shell/EncabezadoPerfil.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace trevalo {

namespace {

constexpr int Lineas = 4;

// Whether columns a and b read alike on lines 0..linea.
bool Iguales(const std::vector<LineasEncabezado>& c, std::size_t a, std::size_t b, int linea) {
    for (int l = 0; l <= linea; ++l)
        if (c[a][static_cast<std::size_t>(l)] != c[b][static_cast<std::size_t>(l)]) return false;
    return true;
}

std::vector<EncabezadoPerfil::Celda> Celdas(const std::vector<LineasEncabezado>& c) {
    const std::size_t n = c.size();
    std::vector<std::vector<bool>> cubierta(Lineas, std::vector<bool>(n, false));
    std::vector<EncabezadoPerfil::Celda> celdas;
    for (int l = 0; l < Lineas; ++l) {
        const auto L = static_cast<std::size_t>(l);
        for (std::size_t i = 0; i < n; ++i) {
            if (cubierta[L][i]) continue;
            std::size_t fin = i;
            while (!c[i][L].isEmpty() && fin + 1 < n && !cubierta[L][fin + 1] &&
                   Iguales(c, i, fin + 1, l))
                ++fin;
            int abajo = l;
            const auto vacias = [&](int linea) {
                for (std::size_t j = i; j <= fin; ++j)
                    if (!c[j][static_cast<std::size_t>(linea)].isEmpty()) return false;
                return true;
            };
            while (abajo + 1 < Lineas && vacias(abajo + 1)) ++abajo;
            for (int m = l; m <= abajo; ++m)
                for (std::size_t j = i; j <= fin; ++j)
                    cubierta[static_cast<std::size_t>(m)][j] = true;
            celdas.push_back(
                {l, abajo - l + 1, static_cast<int>(i), static_cast<int>(fin), c[i][L]});
        }
    }
    return celdas;
}

} // namespace

EncabezadoPerfil::EncabezadoPerfil(std::vector<LineasEncabezado> columnas, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), columnas_(std::move(columnas)),
      celdas_(trevalo::Celdas(columnas_)) {
    setSectionsClickable(true);
    setDefaultAlignment(Qt::AlignCenter);
}

int EncabezadoPerfil::AltoLinea() const {
    return std::max(14, fontMetrics().height() + 2);
}

QSize EncabezadoPerfil::sizeHint() const {
    return {QHeaderView::sizeHint().width(), Lineas * AltoLinea()};
}

void EncabezadoPerfil::paintEvent(QPaintEvent*) {
    QPainter p(viewport());
    const int alto = AltoLinea();
    for (const Celda& c : celdas_) {
        int x = -1, ancho = 0;
        for (int col = c.primera; col <= c.ultima; ++col) {
            if (isSectionHidden(col)) continue;
            if (x < 0) x = sectionViewportPosition(col);
            ancho += sectionSize(col);
        }
        if (ancho == 0) continue;
        QStyleOptionHeader opcion;
        initStyleOption(&opcion);
        opcion.rect = QRect(x, c.linea * alto, ancho, c.lineas * alto);
        opcion.section = c.primera;
        opcion.text = c.texto;
        opcion.textAlignment = Qt::AlignCenter;
        opcion.position = QStyleOptionHeader::Middle;
        style()->drawControl(QStyle::CE_Header, &opcion, &p, this);
    }
}

} // namespace trevalo
