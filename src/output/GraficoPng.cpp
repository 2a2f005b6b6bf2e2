#include "output/GraficoPng.h"

#include <QBuffer>
#include <QImageWriter>

#include <cmath>

#include "output/ContenidoInforme.h"

namespace trevalo {

std::vector<std::uint8_t> CodificarPng(const QImage& imagen) {
    constexpr double MetrosPorPulgada = 0.0254;
    const int puntosPorMetro =
        static_cast<int>(std::lround(96.0 * FactorImpresion / MetrosPorPulgada));
    QImage copia = imagen;
    copia.setDotsPerMeterX(puntosPorMetro);
    copia.setDotsPerMeterY(puntosPorMetro);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter escritor(&buffer, "png");
    // Quality 85 is zlib level 1 for this writer: a line drawing compresses well even so.
    escritor.setQuality(85);
    escritor.write(copia);
    return {bytes.begin(), bytes.end()};
}

QImage DecodificarPng(const std::vector<std::uint8_t>& png) {
    QImage imagen;
    if (!png.empty())
        imagen.loadFromData(reinterpret_cast<const uchar*>(png.data()),
                            static_cast<int>(png.size()), "PNG");
    return imagen;
}

} // namespace trevalo
