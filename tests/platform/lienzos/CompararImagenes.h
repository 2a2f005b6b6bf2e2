#pragma once
// Pictures compared within what font rendering allows: a picture matches its reference when
// few pixels differ clearly (by more than a quarter of the range in a channel).

#include <QImage>
#include <cstdlib>

namespace trevalo::prueba {

inline double PixelesDistintos(const QImage& a, const QImage& b) {
    if (a.size() != b.size()) return 1.0;
    const QImage x = a.convertToFormat(QImage::Format_RGB32);
    const QImage y = b.convertToFormat(QImage::Format_RGB32);
    long distintos = 0;
    for (int f = 0; f < x.height(); ++f) {
        const auto* p = reinterpret_cast<const QRgb*>(x.constScanLine(f));
        const auto* q = reinterpret_cast<const QRgb*>(y.constScanLine(f));
        for (int c = 0; c < x.width(); ++c)
            distintos += std::abs(qRed(p[c]) - qRed(q[c])) > 64 ||
                         std::abs(qGreen(p[c]) - qGreen(q[c])) > 64 ||
                         std::abs(qBlue(p[c]) - qBlue(q[c])) > 64;
    }
    return static_cast<double>(distintos) / (static_cast<double>(x.width()) * x.height());
}

} // namespace trevalo::prueba
