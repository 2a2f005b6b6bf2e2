#include "store/ColumnasViga.h"

#include <algorithm>

#include "model/Conversiones.h"

namespace trevalo {

namespace {
using V = VigaActual;
} // namespace

const TablaViga TablaGeneralViga{
    .nombre = "GeneralViga",
    .filas = FilasTabla::Cabecera,
    .columnas = {{"NT", &V::NT},
                 {"OpcionConcreto", &V::OpcionConcreto},
                 {"OpcionCarga", &V::OpcionCarga},
                 {"FMayoracionTC", &V::FMayoracionTC},
                 {"FMayoracion", &V::FMayoracion}},
};

const TablaViga TablaTramos{
    .nombre = "Tramos",
    .filas = FilasTabla::PorTramo,
    .columnas = {{"LT", &V::LT}, {"VT", &V::VT}},
    .numero = "Tramo",
};

const TablaViga TablaJuntas{
    .nombre = "Juntas",
    .filas = FilasTabla::PorJunta,
    .columnas = {{"NombreEje", &V::NombreEje},
                 {"LDer", &V::LDer},
                 {"LIzq", &V::LIzq},
                 {"HC", &V::HC}},
    .numero = "Numero",
};

const TablaViga TablaJuntasDesplazadas{
    .nombre = "JuntasDesplazadas",
    .filas = FilasTabla::Lista,
    .columnas = {{"R3", &V::R3}, {"XX", &V::XX}, {"YY", &V::YY}},
    .cuenta = &V::NJDesp,
};

// Spelled so in the interchange documents; the engine ignores the case of table names.
const TablaViga TablaJuntasRestringidas{
    .nombre = "Juntasrestringidas",
    .filas = FilasTabla::Lista,
    .columnas = {{"R1", &V::R1}, {"Apoyo", &V::Apoyo}},
    .cuenta = &V::NJRest,
};

const TablaViga TablaJuntasResortes{
    .nombre = "JuntasResortes",
    .filas = FilasTabla::Lista,
    .columnas = {{"R10", &V::R10}, {"SH10", &V::SH10}, {"SV10", &V::SV10}, {"SM10", &V::SM10}},
    .cuenta = &V::NJRes,
};

const TablaViga TablaTiposVigas{
    .nombre = "TiposVigas",
    .filas = FilasTabla::Tipos,
    .columnas = {{.nombre = "B1", .campo = &V::B1, .defecto = 0.3},
                 {.nombre = "T1", .campo = &V::T1, .defecto = 0.5},
                 {"Designacion", &V::Designacion}},
    .numero = "Tipo",
    .cuenta = &V::NTipos,
};

const TablaViga TablaCargasTramos{
    .nombre = "CargasTramos",
    .filas = FilasTabla::PorTramo,
    .columnas = {{"W1", &V::W1},
                 {"Gravedad", &V::Gravedad},
                 {"CantW2", &V::CantW2},
                 {"P", &V::P, &V::CantW2},
                 {"LP", &V::LP, &V::CantW2},
                 {"CantW3", &V::CantW3},
                 {"W3_", &V::W3_, &V::CantW3},
                 {"La3_", &V::La3_, &V::CantW3},
                 {"Lb3_", &V::Lb3_, &V::CantW3},
                 {"W4", &V::W4},
                 {"W5", &V::W5},
                 {"la5", &V::la5},
                 {"CantW6", &V::CantW6},
                 {"W6_", &V::W6_, &V::CantW6},
                 {"La6_", &V::La6_, &V::CantW6},
                 {"Lb6_", &V::Lb6_, &V::CantW6},
                 {"CantW7", &V::CantW7},
                 {"W7_", &V::W7_, &V::CantW7},
                 {"La7_", &V::La7_, &V::CantW7},
                 {"Lb7_", &V::Lb7_, &V::CantW7},
                 {"CantW8", &V::CantW8},
                 {"WIzq8_", &V::WIzq8_, &V::CantW8},
                 {"WDer8_", &V::WDer8_, &V::CantW8},
                 {"La8_", &V::La8_, &V::CantW8},
                 {"Lb8_", &V::Lb8_, &V::CantW8}},
    .numero = "Tramo",
};

const TablaViga TablaAccionesNodales{
    .nombre = "AccionesNodales",
    .filas = FilasTabla::Lista,
    .columnas = {{"R2", &V::R2}, {"QC1", &V::QC1}, {"QC2", &V::QC2}, {"QC3", &V::QC3}},
    .cuenta = &V::NAcc,
};

const TablaViga* const TablasHijas[8] = {
    &TablaTramos,         &TablaJuntas,     &TablaJuntasDesplazadas, &TablaJuntasRestringidas,
    &TablaJuntasResortes, &TablaTiposVigas, &TablaCargasTramos,      &TablaAccionesNodales,
};

std::string Clave(const TablaViga& t) {
    return t.numero ? t.numero : t.columnas.front().nombre;
}

long FilasViga(const TablaViga& t, const VigaActual& v) {
    switch (t.filas) {
    case FilasTabla::Cabecera:
        return 1;
    case FilasTabla::PorTramo:
        return v.NT;
    case FilasTabla::PorJunta:
        return v.NT + 1;
    default:
        return v.*t.cuenta;
    }
}

double DimensionTipo(std::optional<double> valor, bool concreto, double defecto) {
    if (valor && *valor > 0) return *valor;
    return concreto ? defecto : 0.0;
}

long PrepararTabla(const TablaViga& t, VigaActual& v, long filas) {
    if (t.cuenta == nullptr) return filas > 0 ? FilasViga(t, v) : 0;
    const long n = t.filas == FilasTabla::Tipos ? std::max(filas, 1L) : filas;
    v.*t.cuenta = Entero<std::int16_t>(n);
    for (const ColumnaViga& c : t.columnas)
        std::visit(
            [&](auto campo) {
                if constexpr (requires { (v.*campo).Redim(n); }) (v.*campo).Redim(n);
            },
            c.campo);
    if (filas == 0) // no types: one of default dimensions
        LeerDimensiones(t, v, 1, [](const std::string&) { return std::optional<double>(); });
    return filas;
}

void CompletarTramos(VigaActual& v, bool leidos) {
    v.LongTotal = 0;
    for (long t = 1; t <= v.NT; ++t) {
        v.LongTotal += v.LT(t);
        v.FMayorTramo(t) = leidos ? v.FMayoracion : 0;
    }
}

} // namespace trevalo
