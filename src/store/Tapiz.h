#pragma once
// The settings file "Tapiz.kvl" in RutaBase: the wallpaper of the main window and the look
// of the tool tips.
//
// Fixed records of 128 bytes; record n begins at byte (n - 1) * 128 and holds one value at
// its start, little-endian; the rest of a record is left as it was found. Record 1 is a
// 16-bit length and that many bytes of the wallpaper's path (at most 126). Records read
// past the end of the file read as zero.
//
//   record  value            read as   range on reading
//   1       TapizArchivo     text
//   2       TapizVertical    16-bit    outside 0..2: 0   (0 centre, 1 top, 2 bottom)
//   3       TapizHorizontal  16-bit    outside 0..2: 0   (0 left, 1 centre, 2 right)
//   4       TapizAjustar     16-bit                      (non-zero: fitted and centred)
//   5       TapizEfecto      8-bit     outside 0..27: 0
//   6       TipLetra         8-bit     outside 0..7: 4
//   7       TipFondo         32-bit    0: 0xD6F4FF       (colours 0xBBGGRR)
//   8       TipTexto         32-bit
//   9       TipCentrado      16-bit
//   10      TipTradicional   16-bit
//
// Writers store a value in fewer or more bytes than a reader takes (AnchosTapiz); since the
// following bytes of a fresh record are zero, the reader sees the same number.
//
// Errors: 59 "Longitud de registro incorrecta" for a path longer than 126 bytes, 75 "Error
// de acceso a la ruta o el archivo" when the file cannot be written.

#include <array>
#include <cstdint>
#include <string>

#include "store/CarpetasPrograma.h"

namespace trevalo {

inline constexpr int LongitudRegistroTapiz = 128;
inline constexpr int RegistrosTapiz = 10;
inline constexpr std::int32_t TipFondoDefecto = 0xD6F4FF;

struct ConfiguracionTapiz {
    std::string TapizArchivo;
    std::int16_t TapizVertical = 0;
    std::int16_t TapizHorizontal = 0;
    std::int16_t TapizAjustar = 0;
    std::uint8_t TapizEfecto = 0;
    std::uint8_t TipLetra = 0;
    std::int32_t TipFondo = 0;
    std::int32_t TipTexto = 0;
    std::int16_t TipCentrado = 0;
    std::int16_t TipTradicional = 0;
};

// Bytes written for records 2 to 10 (index 0 is record 2); record 1 is always the text.
using AnchosTapiz = std::array<int, RegistrosTapiz - 1>;
// The default set: 16-bit values but for the 32-bit background colour.
inline constexpr AnchosTapiz AnchosTapizDefecto = {2, 2, 2, 2, 2, 4, 2, 2, 2};
// The settings dialog: alignments, effect and font size in one byte, colours in four.
inline constexpr AnchosTapiz AnchosTapizDialogo = {1, 1, 2, 1, 1, 4, 4, 2, 2};

// The ten records as stored, without the ranges; a missing file reads as all zero.
ConfiguracionTapiz LeerRegistrosTapiz(const std::string& ruta);

// Writes the ten records with the given widths, creating the file if needed and keeping
// every other byte of it; a file that grows is filled with zeros up to each value and ends
// after the last value written.
void EscribirRegistrosTapiz(const std::string& ruta, const ConfiguracionTapiz& valores,
                            const AnchosTapiz& anchos);

// The defaults written when no wallpaper is set: RutaBase + "/Tapices/TapizKorvel.jpg",
// background 0xD6F4FF, font index 4, every other value 0.
ConfiguracionTapiz TapizDefecto(const CarpetasPrograma& carpetas);

// Reads RutaBase + "/Tapiz.kvl" into `tapiz` with the ranges applied; the file comes into
// being when missing. When the wallpaper's path is empty or names no file, the default set
// is written to the file and TapizArchivo takes the default path, while the other values
// stay as read. Returns the picture to show: TapizArchivo if that file exists, else "".
// Shows nothing and raises nothing.
std::string LeerTapiz(const CarpetasPrograma& carpetas, ConfiguracionTapiz& tapiz);

// The tool tip look of every window.
struct EstiloToolTip {
    bool Centrado = false;
    int Estilo = 0;  // 1 balloon, 0 the plain form of the system
    int Puntos = 10; // font size
    std::int32_t Fondo = TipFondoDefecto;
    std::int32_t Texto = 0;
    std::string Fuente = "Arial";
};

// Font size of a TipLetra index 0..7: 6, 7, 8, 9, 10, 11, 12, 14 points.
int PuntosLetraTip(int indice);

// The look of the tool tips of the settings as they stand, ranges not applied.
EstiloToolTip EstiloDe(const ConfiguracionTapiz& tapiz);

// Applies the tool tip ranges again to `tapiz` (TipLetra outside 1..7 becomes 4, so a
// stored 0 shows as 10 points, kept: users know it; TipFondo 0 becomes 0xD6F4FF) and gives
// the look to apply.
EstiloToolTip ConfigurarToolTip(ConfiguracionTapiz& tapiz);

} // namespace trevalo
