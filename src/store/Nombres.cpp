#include "store/Nombres.h"

#include <unicode/unistr.h>

namespace trevalo {

std::string Recortado(const std::string& texto) {
    const auto inicio = texto.find_first_not_of(' ');
    if (inicio == std::string::npos) return "";
    return texto.substr(inicio, texto.find_last_not_of(' ') - inicio + 1);
}

std::string Mayusculas(const std::string& texto) {
    std::string resultado;
    icu::UnicodeString::fromUTF8(texto).toUpper().toUTF8String(resultado);
    return resultado;
}

} // namespace trevalo
