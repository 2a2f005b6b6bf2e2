#include "output/CompresionDibujo.h"

#include <libdeflate.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace trevalo {

namespace {

constexpr std::size_t LargoMinimo = 3, LargoMaximo = 258;

// The bits of a deflate stream, least significant first.
class Bits {
  public:
    explicit Bits(std::vector<std::uint8_t>& salida) : salida_(salida) {}
    void Poner(std::uint32_t valor, int cuantos) {
        acumulado_ |= std::uint64_t{valor} << llenos_;
        llenos_ += cuantos;
        for (; llenos_ >= 8; llenos_ -= 8, acumulado_ >>= 8)
            salida_.push_back(static_cast<std::uint8_t>(acumulado_));
    }
    void Cerrar() {
        if (llenos_ > 0) salida_.push_back(static_cast<std::uint8_t>(acumulado_));
        acumulado_ = 0;
        llenos_ = 0;
    }

  private:
    std::vector<std::uint8_t>& salida_;
    std::uint64_t acumulado_ = 0;
    int llenos_ = 0;
};

// A Huffman code as the stream holds it: its bits reversed, and their count.
struct Codigo {
    std::uint32_t bits = 0;
    int largo = 0;
};

Codigo Invertido(std::uint32_t codigo, int largo) {
    std::uint32_t invertido = 0;
    for (int i = 0; i < largo; ++i) invertido |= ((codigo >> i) & 1u) << (largo - 1 - i);
    return {invertido, largo};
}

// The fixed literal/length code of deflate (RFC 1951, 3.2.6).
const std::array<Codigo, 288>& CodigosFijos() {
    static const std::array<Codigo, 288> codigos = [] {
        std::array<Codigo, 288> c{};
        for (std::uint32_t s = 0; s < 288; ++s)
            c[s] = s < 144   ? Invertido(0x30 + s, 8)
                   : s < 256 ? Invertido(0x190 + s - 144, 9)
                   : s < 280 ? Invertido(s - 256, 7)
                             : Invertido(0xC0 + s - 280, 8);
        return c;
    }();
    return codigos;
}

// A length or a distance as its symbol and extra bits.
struct Simbolo {
    std::uint32_t simbolo = 0, extra = 0;
    int bitsExtra = 0;
};

constexpr std::uint16_t BaseLargo[29] = {3,  4,  5,  6,   7,   8,   9,   10,  11, 13,
                                         15, 17, 19, 23,  27,  31,  35,  43,  51, 59,
                                         67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr std::uint8_t ExtraLargo[29] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                         2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
constexpr std::uint16_t BaseDistancia[30] = {
    1,   2,   3,   4,   5,   7,    9,    13,   17,   25,   33,   49,   65,    97,    129,
    193, 257, 385, 513, 769, 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
constexpr std::uint8_t ExtraDistancia[30] = {0, 0, 0, 0, 1, 1, 2, 2,  3,  3,  4,  4,  5,  5,  6,
                                             6, 7, 7, 8, 8, 9, 9, 10, 10, 11, 11, 12, 12, 13, 13};

template <std::size_t N>
Simbolo Buscar(const std::uint16_t (&base)[N], const std::uint8_t (&extra)[N], std::size_t valor,
               std::uint32_t primero) {
    std::size_t k = N - 1;
    while (base[k] > valor) --k;
    return {primero + static_cast<std::uint32_t>(k), static_cast<std::uint32_t>(valor - base[k]),
            extra[k]};
}

const std::array<Simbolo, LargoMaximo + 1>& SimbolosLargo() {
    static const std::array<Simbolo, LargoMaximo + 1> simbolos = [] {
        std::array<Simbolo, LargoMaximo + 1> s{};
        for (std::size_t largo = LargoMinimo; largo <= LargoMaximo; ++largo)
            s[largo] = Buscar(BaseLargo, ExtraLargo, largo, 257);
        return s;
    }();
    return simbolos;
}

// How many bytes from `a` equal those from `b` (b before a), up to `tope`.
std::size_t Comunes(const std::uint8_t* a, const std::uint8_t* b, std::size_t tope) {
    std::size_t n = 0;
    while (n + 8 <= tope) {
        std::uint64_t x, y;
        std::memcpy(&x, a + n, 8);
        std::memcpy(&y, b + n, 8);
        if (x != y) return n + static_cast<std::size_t>(__builtin_ctzll(x ^ y) / 8);
        n += 8;
    }
    while (n < tope && a[n] == b[n]) ++n;
    return n;
}

} // namespace

void ComprimirDibujo(const std::uint8_t* datos, std::size_t cuantos, std::size_t fila,
                     std::vector<std::uint8_t>& salida) {
    const auto& codigos = CodigosFijos();
    const auto& largos = SimbolosLargo();
    constexpr std::size_t Pixel = 3;
    const Simbolo distanciaPixel = Buscar(BaseDistancia, ExtraDistancia, Pixel, 0);
    const Simbolo distanciaFila = Buscar(BaseDistancia, ExtraDistancia, fila, 0);
    const Codigo codigoPixel = Invertido(distanciaPixel.simbolo, 5); // distance codes: 5 bits
    const Codigo codigoFila = Invertido(distanciaFila.simbolo, 5);

    salida.clear();
    salida.push_back(0x78); // deflate with a 32 KiB window,
    salida.push_back(0x01); // fastest level
    Bits bits(salida);
    bits.Poner(1, 1); // the last block
    bits.Poner(1, 2); // fixed codes
    auto poner = [&bits](const Codigo& c) { bits.Poner(c.bits, c.largo); };
    for (std::size_t i = 0; i < cuantos;) {
        const std::size_t tope = std::min(LargoMaximo, cuantos - i);
        const std::size_t porPixel = i >= Pixel ? Comunes(datos + i, datos + i - Pixel, tope) : 0;
        const std::size_t porFila = i >= fila ? Comunes(datos + i, datos + i - fila, tope) : 0;
        const std::size_t largo = std::max(porPixel, porFila);
        if (largo < LargoMinimo) {
            poner(codigos[datos[i++]]);
            continue;
        }
        const Simbolo& l = largos[largo];
        poner(codigos[l.simbolo]);
        bits.Poner(l.extra, l.bitsExtra);
        const bool arriba = porFila >= porPixel;
        poner(arriba ? codigoFila : codigoPixel);
        const Simbolo& d = arriba ? distanciaFila : distanciaPixel;
        bits.Poner(d.extra, d.bitsExtra);
        i += largo;
    }
    poner(codigos[256]); // end of block
    bits.Cerrar();
    const std::uint32_t suma = libdeflate_adler32(1, datos, cuantos);
    for (int corrimiento = 24; corrimiento >= 0; corrimiento -= 8)
        salida.push_back(static_cast<std::uint8_t>(suma >> corrimiento));
}

} // namespace trevalo
