#pragma once
// Report pictures as PNG files: lossless, tagged with the print resolution so that readers
// that honour it show a picture at its screen size (710 by 810 pixels at 96 dpi).

#include <QImage>

#include <cstdint>
#include <vector>

namespace trevalo {

// Encodes a picture as 24-bit RGB with fast compression, since a report writes hundreds.
std::vector<std::uint8_t> CodificarPng(const QImage& imagen);

} // namespace trevalo
