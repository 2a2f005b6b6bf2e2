#include "output/GraficoPng.h"

#include <libdeflate.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <new>

#include "output/CompresionDibujo.h"
#include "output/ContenidoInforme.h"

namespace trevalo {

// A report makes hundreds of pictures of millions of pixels, so their PNG files are written
// here rather than by the image codecs of the toolkit: per picture, banco_grafico_png measures
// 2-3 ms of processor for the drawing compressor, 9 ms for libdeflate (14 ms at its level 1)
// and 45 ms for the toolkit's libpng writer, for files 2 to 3 times larger than libdeflate's.
// The file is the plainest PNG: 8-bit RGB, rows unfiltered (the drawing compressor finds the
// runs and the repeated rows itself), one IDAT chunk.

namespace {

constexpr std::uint8_t Firma[8] = {137, 80, 78, 71, 13, 10, 26, 10};
constexpr std::uint8_t RGB = 2; // PNG colour type of 8-bit red, green, blue samples

void Poner32(std::vector<std::uint8_t>& salida, std::uint32_t valor) {
    for (int corrimiento = 24; corrimiento >= 0; corrimiento -= 8)
        salida.push_back(static_cast<std::uint8_t>(valor >> corrimiento));
}

// One chunk: length, type, data, and the CRC of type and data.
void Trozo(std::vector<std::uint8_t>& salida, const char (&tipo)[5], const std::uint8_t* datos,
           std::size_t cuantos) {
    Poner32(salida, static_cast<std::uint32_t>(cuantos));
    const std::size_t inicio = salida.size();
    salida.insert(salida.end(), tipo, tipo + 4);
    salida.insert(salida.end(), datos, datos + cuantos);
    Poner32(salida, libdeflate_crc32(0, salida.data() + inicio, cuantos + 4));
}

// Scratch memory of a thread, kept from one picture to the next: taking megabytes of fresh
// memory for every picture costs more in page faults than the compression itself.
thread_local std::vector<std::uint8_t> FilasHilo, ComprimidoHilo;

// `buffer` with room for `cuantos` bytes, grown but never shrunk or cleared.
std::uint8_t* Espacio(std::vector<std::uint8_t>& buffer, std::size_t cuantos) {
    if (buffer.size() < cuantos) buffer.resize(cuantos);
    return buffer.data();
}

struct LiberarCompresor {
    void operator()(libdeflate_compressor* c) const { libdeflate_free_compressor(c); }
};

} // namespace

std::vector<std::uint8_t> CodificarPng(const QImage& imagen) {
    constexpr double MetrosPorPulgada = 0.0254;
    const auto puntosPorMetro =
        static_cast<std::uint32_t>(std::lround(96.0 * FactorImpresion / MetrosPorPulgada));
    const QImage rgb = imagen.format() == QImage::Format_RGB32
                           ? imagen
                           : imagen.convertToFormat(QImage::Format_RGB32);
    const auto ancho = static_cast<std::size_t>(rgb.width());
    const auto alto = static_cast<std::size_t>(rgb.height());

    const std::size_t tamano = (1 + 3 * ancho) * alto;
    std::uint8_t* destino = Espacio(FilasHilo, tamano);
    for (std::size_t y = 0; y < alto; ++y) {
        *destino++ = 0; // filter type None
        const auto* linea = reinterpret_cast<const QRgb*>(rgb.constScanLine(static_cast<int>(y)));
        for (std::size_t x = 0; x < ancho; ++x) {
            *destino++ = static_cast<std::uint8_t>(qRed(linea[x]));
            *destino++ = static_cast<std::uint8_t>(qGreen(linea[x]));
            *destino++ = static_cast<std::uint8_t>(qBlue(linea[x]));
        }
    }
    const std::size_t fila = 1 + 3 * ancho;
    if (fila <= FilaMaximaDibujo) {
        ComprimirDibujo(FilasHilo.data(), tamano, fila, ComprimidoHilo);
    } else { // wider than the drawing compressor reaches back
        const std::unique_ptr<libdeflate_compressor, LiberarCompresor> compresor(
            libdeflate_alloc_compressor(1));
        if (!compresor) throw std::bad_alloc();
        const std::size_t cota = libdeflate_zlib_compress_bound(compresor.get(), tamano);
        ComprimidoHilo.resize(libdeflate_zlib_compress(compresor.get(), FilasHilo.data(), tamano,
                                                       Espacio(ComprimidoHilo, cota), cota));
    }

    std::vector<std::uint8_t> salida(std::begin(Firma), std::end(Firma));
    std::vector<std::uint8_t> cabecera;
    Poner32(cabecera, static_cast<std::uint32_t>(ancho));
    Poner32(cabecera, static_cast<std::uint32_t>(alto));
    cabecera.insert(cabecera.end(), {8, RGB, 0, 0, 0}); // depth, colour, deflate, filters, rows
    Trozo(salida, "IHDR", cabecera.data(), cabecera.size());
    std::vector<std::uint8_t> resolucion;
    Poner32(resolucion, puntosPorMetro);
    Poner32(resolucion, puntosPorMetro);
    resolucion.push_back(1); // the unit is the metre
    Trozo(salida, "pHYs", resolucion.data(), resolucion.size());
    Trozo(salida, "IDAT", ComprimidoHilo.data(), ComprimidoHilo.size());
    Trozo(salida, "IEND", nullptr, 0);
    return salida;
}

} // namespace trevalo
