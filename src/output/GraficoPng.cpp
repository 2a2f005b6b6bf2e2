#include "output/GraficoPng.h"

#include <libdeflate.h>
#include <malloc.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <utility>

#include "output/CompresionDibujo.h"
#include "output/ContenidoInforme.h"

namespace trevalo {

// A report makes hundreds of pictures of millions of pixels, so their PNG files are written
// and read here rather than by the image codecs of the toolkit: compression is most of a
// report's time. The file is the plainest PNG: 8-bit RGB, rows unfiltered (the drawing
// compressor finds the runs and the repeated rows itself), one IDAT chunk. Reading takes
// that form on the fast path, on a fast inflate library, and hands any other PNG to the
// toolkit's reader.

namespace {

constexpr std::uint8_t Firma[8] = {137, 80, 78, 71, 13, 10, 26, 10};
constexpr std::uint8_t RGB = 2; // PNG colour type of 8-bit red, green, blue samples

void Poner32(std::vector<std::uint8_t>& salida, std::uint32_t valor) {
    for (int corrimiento = 24; corrimiento >= 0; corrimiento -= 8)
        salida.push_back(static_cast<std::uint8_t>(valor >> corrimiento));
}

std::uint32_t Leer32(const std::uint8_t* p) {
    return std::uint32_t{p[0]} << 24 | std::uint32_t{p[1]} << 16 | std::uint32_t{p[2]} << 8 | p[3];
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
struct LiberarDescompresor {
    void operator()(libdeflate_decompressor* d) const { libdeflate_free_decompressor(d); }
};

// The image of a PNG in the form CodificarPng writes; none for any other form or a damaged
// file.
std::optional<QImage> LeerPngSimple(const std::vector<std::uint8_t>& png) {
    const std::uint8_t* p = png.data();
    const std::uint8_t* const fin = p + png.size();
    if (png.size() < 8 || std::memcmp(p, Firma, 8) != 0) return std::nullopt;
    p += 8;
    std::uint32_t ancho = 0, alto = 0;
    std::optional<std::pair<std::uint32_t, std::uint32_t>> puntosPorMetro;
    std::vector<std::pair<const std::uint8_t*, std::size_t>> idat;
    for (bool primero = true;; primero = false) {
        if (fin - p < 12) return std::nullopt;
        const std::uint32_t largo = Leer32(p);
        if (largo > static_cast<std::size_t>(fin - p) - 12) return std::nullopt;
        const std::uint8_t* tipo = p + 4;
        const std::uint8_t* datos = p + 8;
        if (libdeflate_crc32(0, tipo, largo + 4) != Leer32(datos + largo)) return std::nullopt;
        p = datos + largo + 4;
        if (primero != (std::memcmp(tipo, "IHDR", 4) == 0)) return std::nullopt;
        if (primero) {
            if (largo != 13 || datos[8] != 8 || datos[9] != RGB || datos[10] != 0 ||
                datos[11] != 0 || datos[12] != 0)
                return std::nullopt;
            ancho = Leer32(datos);
            alto = Leer32(datos + 4);
        } else if (std::memcmp(tipo, "pHYs", 4) == 0 && largo == 9 && datos[8] == 1) {
            puntosPorMetro = {Leer32(datos), Leer32(datos + 4)};
        } else if (std::memcmp(tipo, "IDAT", 4) == 0) {
            idat.emplace_back(datos, largo);
        } else if (std::memcmp(tipo, "IEND", 4) == 0) {
            break;
        }
    }
    // Pictures are a few million pixels; a larger header is not this program's.
    constexpr std::uint64_t PixelesMaximos = std::uint64_t{1} << 26;
    if (ancho == 0 || alto == 0 || std::uint64_t{ancho} * alto > PixelesMaximos)
        return std::nullopt;
    if (idat.empty()) return std::nullopt;
    if (idat.size() > 1) { // the zlib stream split over several chunks, joined
        std::size_t total = 0;
        for (const auto& [datos, largo] : idat) total += largo;
        std::uint8_t* junto = Espacio(ComprimidoHilo, total);
        for (const auto& [datos, largo] : idat) junto = std::copy(datos, datos + largo, junto);
        idat = {{ComprimidoHilo.data(), total}};
    }
    const std::size_t fila = 1 + 3 * std::size_t{ancho};
    const std::uint8_t* filas = Espacio(FilasHilo, fila * alto);
    const std::unique_ptr<libdeflate_decompressor, LiberarDescompresor> descompresor(
        libdeflate_alloc_decompressor());
    if (!descompresor) throw std::bad_alloc();
    if (libdeflate_zlib_decompress(descompresor.get(), idat[0].first, idat[0].second,
                                   FilasHilo.data(), fila * alto, nullptr) != LIBDEFLATE_SUCCESS)
        return std::nullopt;
    QImage imagen(static_cast<int>(ancho), static_cast<int>(alto), QImage::Format_RGB32);
    if (imagen.isNull()) throw std::bad_alloc();
    if (puntosPorMetro) {
        imagen.setDotsPerMeterX(static_cast<int>(puntosPorMetro->first));
        imagen.setDotsPerMeterY(static_cast<int>(puntosPorMetro->second));
    }
    for (std::uint32_t y = 0; y < alto; ++y) {
        const std::uint8_t* origen = filas + y * fila;
        if (*origen++ != 0) return std::nullopt; // a filtered row
        auto* destino = reinterpret_cast<QRgb*>(imagen.scanLine(static_cast<int>(y)));
        for (std::uint32_t x = 0; x < ancho; ++x, origen += 3)
            destino[x] = qRgb(origen[0], origen[1], origen[2]);
    }
    return imagen;
}

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

QImage DecodificarPng(const std::vector<std::uint8_t>& png) {
    if (auto simple = LeerPngSimple(png)) return *std::move(simple);
    QImage imagen;
    if (!png.empty())
        imagen.loadFromData(reinterpret_cast<const uchar*>(png.data()),
                            static_cast<int>(png.size()), "PNG");
    return imagen;
}

namespace {
constexpr int UmbralNormal = 128 * 1024; // the allocator's own starting thresholds
} // namespace

MemoriaGraficos::MemoriaGraficos() {
    mallopt(M_MMAP_THRESHOLD, 256 * 1024 * 1024);
    mallopt(M_TRIM_THRESHOLD, 1024 * 1024 * 1024);
}

MemoriaGraficos::~MemoriaGraficos() {
    mallopt(M_MMAP_THRESHOLD, UmbralNormal);
    mallopt(M_TRIM_THRESHOLD, UmbralNormal);
    malloc_trim(0);
}

} // namespace trevalo
