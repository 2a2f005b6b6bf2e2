// The drawing compressor, checked by a general inflater: every kind of content comes back
// byte for byte, and a drawing packs to a small fraction of its size.

#include <gtest/gtest.h>

#include <libdeflate.h>

#include <random>

#include "output/CompresionDibujo.h"

namespace trevalo {
namespace {

std::vector<std::uint8_t> Inflar(const std::vector<std::uint8_t>& zlib, std::size_t cuantos) {
    std::vector<std::uint8_t> datos(cuantos);
    libdeflate_decompressor* d = libdeflate_alloc_decompressor();
    std::size_t leidos = 0;
    const auto resultado =
        libdeflate_zlib_decompress(d, zlib.data(), zlib.size(), datos.data(), cuantos, &leidos);
    libdeflate_free_decompressor(d);
    EXPECT_EQ(resultado, LIBDEFLATE_SUCCESS);
    EXPECT_EQ(leidos, cuantos);
    return datos;
}

// Rows of `fila` bytes: a white ground, a line every 7 pixels down the rows, a band of one
// colour that shifts each row, and a few stray values.
std::vector<std::uint8_t> Dibujo(std::size_t fila, std::size_t filas) {
    std::vector<std::uint8_t> d(fila * filas, 255);
    std::mt19937 azar(7);
    for (std::size_t y = 0; y < filas; ++y) {
        std::uint8_t* r = d.data() + y * fila;
        r[0] = 0; // the row's filter byte
        for (std::size_t x = 1; x + 3 <= fila; x += 21) r[x] = r[x + 1] = r[x + 2] = 0;
        for (std::size_t x = 1 + 3 * (y % 50); x + 3 <= std::min(fila, 400 + 3 * y % 50); x += 3)
            r[x] = 200, r[x + 1] = 30, r[x + 2] = 40;
        r[1 + azar() % (fila - 1)] = static_cast<std::uint8_t>(azar());
    }
    return d;
}

TEST(CompresionDibujo, EveryContentComesBackWhole) {
    std::mt19937 azar(1);
    std::vector<std::uint8_t> ruido(100000);
    for (auto& b : ruido) b = static_cast<std::uint8_t>(azar());
    struct Caso {
        const char* nombre;
        std::vector<std::uint8_t> datos;
        std::size_t fila;
    };
    const Caso casos[] = {
        {"nothing", {}, 7},
        {"two bytes", {5, 5}, 1},
        {"noise", ruido, 1000},
        {"one colour", std::vector<std::uint8_t>(70000, 9), 6391},
        {"drawing", Dibujo(6391, 300), 6391},
        {"widest rows", Dibujo(FilaMaximaDibujo, 4), FilaMaximaDibujo},
    };
    std::vector<std::uint8_t> zlib;
    for (const Caso& c : casos) {
        ComprimirDibujo(c.datos.data(), c.datos.size(), c.fila, zlib);
        EXPECT_EQ(Inflar(zlib, c.datos.size()), c.datos) << c.nombre;
    }
    const auto dibujo = Dibujo(6391, 300);
    ComprimirDibujo(dibujo.data(), dibujo.size(), 6391, zlib);
    EXPECT_LT(zlib.size(), dibujo.size() / 20);
}

} // namespace
} // namespace trevalo
