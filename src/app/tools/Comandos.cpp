#include "app/tools/Comandos.h"

namespace trevalo::calc {

int ComandoResolver(const Argumentos&, std::ostream&, std::ostream&);

const std::vector<EntradaComando>& TablaComandos() {
    static const std::vector<EntradaComando> tabla = {
        {"resolver", "resolver VIGA.json [--estaciones N]", &ComandoResolver},
    };
    return tabla;
}

int EjecutarCalc(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    if (!args.empty())
        for (const auto& e : TablaComandos())
            if (args[0] == e.nombre)
                return e.comando({args.begin() + 1, args.end()}, salida, errores);
    errores << "Uso: trevalo-calc ORDEN ...\nÓrdenes:\n";
    for (const auto& e : TablaComandos()) errores << "  trevalo-calc " << e.uso << "\n";
    return 2;
}

} // namespace trevalo::calc
