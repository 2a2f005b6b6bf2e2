#pragma once
// How the program compares the names of beams and projects that a person types: outer
// blanks dropped, letters in upper case by Unicode rules (á -> Á, ñ -> Ñ, ß -> SS).

#include <string>

namespace trevalo {

// The text without its leading and trailing blanks (other white space is kept).
std::string Recortado(const std::string& texto);

// The UTF-8 text in upper case.
std::string Mayusculas(const std::string& texto);

} // namespace trevalo
