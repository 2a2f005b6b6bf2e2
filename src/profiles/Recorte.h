#pragma once
// Trim of leading and trailing blanks, as the tables and the dialogs store names.

#include <string>

namespace trevalo {

inline std::string Recortar(const std::string& s) {
    const auto a = s.find_first_not_of(' ');
    if (a == std::string::npos) return {};
    return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

} // namespace trevalo
