#include "output/ContenidoInforme.h"

#include "model/Redondeo.h"

namespace trevalo {

std::vector<LineaCabecera> LineasCabecera(const ContenidoInforme& c) {
    const auto& g = c.Generales;
    auto texto = [](const char* etiqueta, const std::string& valor) {
        return LineaCabecera{etiqueta, valor, std::nullopt, {}, {}};
    };
    auto numero = [&](const char* etiqueta, double valor, const char* mascara, const char* unidad) {
        return LineaCabecera{
            etiqueta, Formato(valor, mascara, c.SeparadorDecimal, c.SeparadorMiles) + " " + unidad,
            valor, mascara, unidad};
    };
    return {
        texto("Proyecto", g.Proyecto),
        texto("Propietario", g.Propietario),
        texto("Calculista", g.Calculista),
        numero("Resistencia del concreto f'c", g.FC, "#,##0.00", "kgf/cm²"),
        numero("Fluencia del acero fy", g.FY, "#,##0.00", "kgf/cm²"),
        numero("Distancia al centroide del acero D8", g.D8, "0.000", "m"),
        texto("Usuario", g.Usuario),
        texto("Versión", g.Version),
    };
}

void UnirDibujos(ContenidoInforme& c, const DibujosInforme& dibujos) {
    if (dibujos.size() != c.Graficos.size()) return;
    for (std::size_t i = 0; i < dibujos.size(); ++i)
        if (c.Graficos[i].Numero != static_cast<std::int16_t>(i + 1)) return;
    for (std::size_t i = 0; i < dibujos.size(); ++i) c.Graficos[i].Dibujo = dibujos[i];
}

} // namespace trevalo
