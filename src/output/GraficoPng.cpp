#include "output/GraficoPng.h"

#include <png.h>

#include <cmath>
#include <new>

#include "output/ContenidoInforme.h"

namespace trevalo {

namespace {

void Escribir(png_structp png, png_bytep datos, png_size_t cuantos) {
    auto* salida = static_cast<std::vector<std::uint8_t>*>(png_get_io_ptr(png));
    salida->insert(salida->end(), datos, datos + cuantos);
}

} // namespace

// Written through libpng itself rather than the image writer of the toolkit: a report makes
// hundreds of pictures of five million pixels, and the writer's adaptive row filters cost
// most of a report's time. A drawing is mostly long runs of one colour, which fast deflate
// packs well without filtering.
std::vector<std::uint8_t> CodificarPng(const QImage& imagen) {
    constexpr double MetrosPorPulgada = 0.0254;
    const auto puntosPorMetro =
        static_cast<png_uint_32>(std::lround(96.0 * FactorImpresion / MetrosPorPulgada));
    const QImage rgb = imagen.convertToFormat(QImage::Format_RGB888);
    std::vector<std::uint8_t> salida;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    if (!info || setjmp(png_jmpbuf(png))) { // libpng fails only for want of memory
        png_destroy_write_struct(&png, &info);
        throw std::bad_alloc();
    }
    png_set_write_fn(png, &salida, Escribir, nullptr);
    png_set_IHDR(png, info, static_cast<png_uint_32>(rgb.width()),
                 static_cast<png_uint_32>(rgb.height()), 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_pHYs(png, info, puntosPorMetro, puntosPorMetro, PNG_RESOLUTION_METER);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_compression_level(png, 1);
    png_write_info(png, info);
    for (int y = 0; y < rgb.height(); ++y) png_write_row(png, rgb.constScanLine(y));
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
    return salida;
}

QImage DecodificarPng(const std::vector<std::uint8_t>& png) {
    QImage imagen;
    if (!png.empty())
        imagen.loadFromData(reinterpret_cast<const uchar*>(png.data()),
                            static_cast<int>(png.size()), "PNG");
    return imagen;
}

} // namespace trevalo
