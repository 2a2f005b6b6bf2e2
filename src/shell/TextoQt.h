#pragma once
// Texts and colours between the program's types and the toolkit's: every text of the
// program is UTF-8, every colour 0xBBGGRR (the other way: ColorQt of the canvas).

#include <QColor>
#include <QString>
#include <cstdint>
#include <string>

namespace trevalo {

inline QString Qs(const std::string& texto) {
    return QString::fromStdString(texto);
}

inline std::string Std(const QString& texto) {
    return texto.toStdString();
}

inline std::int32_t ColorTrevalo(const QColor& color) {
    return color.red() | (color.green() << 8) | (color.blue() << 16);
}

} // namespace trevalo
