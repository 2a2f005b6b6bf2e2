#include "app/tools/Comandos.h"

namespace trevalo::calc {

// Placeholder until the command is built.
int ComandoDiseno(const Argumentos&, std::ostream&, std::ostream& errores) {
    errores << "Orden aún no disponible.\n";
    return 1;
}

} // namespace trevalo::calc
