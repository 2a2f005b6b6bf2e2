#pragma once
// Rounding and number masks shared by the whole program.

#include <string>

namespace trevalo {

// A double to the nearest whole number, ties to the even one (2.5 -> 2, 3.5 -> 4, -2.5 -> -2),
// kept as a double: the rounding of CI without its range, for whole-number cells whose
// values pass 32 bits.
double RedondeoPar(double valor);

// CI: a double becomes an integer to the nearest, ties to the even integer (RedondeoPar).
// Raises error 6 (overflow) beyond the 32-bit range or for a non-finite value.
long CI(double valor);

// RoundKorvel: the value rounded to the given number of decimals, half away from zero, on
// the value's 15-significant-digit decimal form (so 2.675 gives 2.68, as the user reads it).
double RoundKorvel(double valor, int decimales);

// Formats a value through a number mask: "0", "00", "0.00", "0.000", "0.000000",
// "#,##0.0", "#,##0.00" ... The count of '0' before the point is the least number of
// integer digits, the characters after the point the decimals, a ',' groups thousands.
// Rounds half away from zero like RoundKorvel; a negative value keeps its sign even when
// it rounds to zero ("-0"). The separators are the machine's, passed in.
std::string Formato(double valor, const std::string& mascara, char separadorDecimal = '.',
                    char separadorMiles = ',');

// A number read back from the text a mask made: thousands separators dropped, the decimal
// separator read as the point, whatever the locale of the process. The leading number is
// read and the rest ignored; a text with none (an empty field) reads 0.
double NumeroDeTexto(const std::string& texto, char separadorDecimal = '.',
                     char separadorMiles = ',');

} // namespace trevalo
