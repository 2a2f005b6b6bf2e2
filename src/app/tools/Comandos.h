#pragma once
// The commands of trevalo-calc. Each takes the words after its name, writes its result on
// `salida` and its messages on `errores`, and returns the process exit code.

#include <ostream>
#include <string>
#include <vector>

namespace trevalo::calc {

using Argumentos = std::vector<std::string>;
using Comando = int (*)(const Argumentos& args, std::ostream& salida, std::ostream& errores);

struct EntradaComando {
    const char* nombre;
    const char* uso;
    Comando comando;
};

// Every command of the tool, in the order of the usage text.
const std::vector<EntradaComando>& TablaComandos();

// Runs the tool on argv-style words (without the program name).
int EjecutarCalc(const Argumentos& args, std::ostream& salida, std::ostream& errores);

} // namespace trevalo::calc
