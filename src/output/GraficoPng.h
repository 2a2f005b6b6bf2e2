#pragma once
// Report pictures as PNG files: lossless, tagged with the print resolution so that readers
// that honour it show a picture at its screen size (710 by 810 pixels at 96 dpi).

#include <QImage>

#include <cstdint>
#include <vector>

namespace trevalo {

// Encodes a picture as 24-bit RGB with fast compression, since a report writes hundreds.
std::vector<std::uint8_t> CodificarPng(const QImage& imagen);

// Decodes a stored picture; a null image if the bytes are empty or not a PNG.
QImage DecodificarPng(const std::vector<std::uint8_t>& png);

// While it lives, freed memory stays with the process for the next picture instead of going
// back to the system: a report passes gigabytes through buffers of a few megabytes, and
// faulting fresh pages in for each costs more than painting them. The memory is given back
// when it ends. One at a time, from the thread that starts the report.
class MemoriaGraficos {
  public:
    MemoriaGraficos();
    ~MemoriaGraficos();
    MemoriaGraficos(const MemoriaGraficos&) = delete;
    MemoriaGraficos& operator=(const MemoriaGraficos&) = delete;
};

} // namespace trevalo
