#pragma once
// A zlib stream for the rows of a drawing, made in one pass by a compressor that knows what a
// drawing is: long runs of one colour, and rows that repeat the row above, in whole or in
// part. At each byte it takes the longer of the run of the pixel before (3 bytes back) and of
// the row above, and writes it as one fixed-code deflate block. On drawings it packs about as
// tightly as a general compressor's fast level, several times faster; on anything else it
// is still correct, only larger.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace trevalo {

// The largest row the compressor takes: a deflate match reaches 32768 bytes back at most.
inline constexpr std::size_t FilaMaximaDibujo = 32768;

// Writes to `salida` (replacing its contents) the zlib stream of the `cuantos` bytes of
// `datos`, rows of `fila` bytes each (fila <= FilaMaximaDibujo).
void ComprimirDibujo(const std::uint8_t* datos, std::size_t cuantos, std::size_t fila,
                     std::vector<std::uint8_t>& salida);

} // namespace trevalo
