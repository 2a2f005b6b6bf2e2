// trevalo-calc perfiles TABLA.pfl: a profile table as JSON (the family told by the file's
// name prefix, as the program tells it).
// trevalo-calc seccion --d D --tw TW --bf BF --tf TF: the twelve properties of a double-tee
// section (mm) as the generator's labels show them.

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <filesystem>

#include "app/tools/Comandos.h"
#include "model/Errores.h"
#include "profiles/PropiedadesPerfil.h"
#include "profiles/TablaPerfiles.h"

namespace trevalo::calc {

namespace {

using Json = nlohmann::ordered_json;

const char* NombreFamilia(FamiliaPerfil f) {
    switch (f) {
    case FamiliaPerfil::DobleTee:
        return "DobleTee";
    case FamiliaPerfil::SeccionU:
        return "U";
    case FamiliaPerfil::TuboCuadrado:
        return "Cuadrada";
    case FamiliaPerfil::TuboRectangular:
        return "Rectangular";
    }
    return "";
}

Json TablaJson(const std::string& nombre, FamiliaPerfil familia, const TablaPerfiles& t) {
    Json filas = Json::array();
    for (const FilaPerfil& fila : t.Filas) {
        Json f = {{"Numero", fila.Numero}, {"Designacion", fila.Designacion}};
        const auto& campos = Familia(familia).Campos;
        for (std::size_t i = 0; i < campos.size(); ++i) f[campos[i]] = fila.Valores[i];
        filas.push_back(std::move(f));
    }
    return {{"archivo", nombre},
            {"familia", NombreFamilia(familia)},
            {"DescripcionTabla", t.DescripcionTabla},
            {"ResistenciaFY", t.ResistenciaFY},
            {"perfiles", std::move(filas)}};
}

// A number written whole, as a text box takes it.
bool LeerNumero(const std::string& texto, double& valor) {
    char* fin = nullptr;
    valor = std::strtod(texto.c_str(), &fin);
    return !texto.empty() && fin == texto.c_str() + texto.size();
}

} // namespace

int ComandoPerfiles(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    if (args.size() != 1) {
        errores << "Uso: trevalo-calc perfiles TABLA.pfl\n";
        return 2;
    }
    const std::string nombre = std::filesystem::path(args[0]).filename().string();
    FamiliaPerfil familia{};
    if (!FamiliaDeArchivo(nombre, familia)) {
        errores << "El nombre \"" << nombre
                << "\" no es el de una tabla de perfiles (DobleTee_, U_, Cuadrada_ o "
                   "Rectangular_ seguido de un nombre y .pfl).\n";
        return 1;
    }
    try {
        salida << TablaJson(nombre, familia, LeerTablaPerfiles(args[0], familia)).dump(2) << "\n";
        return 0;
    } catch (const ErrorTrevalo& e) {
        errores << "Error " << e.Numero() << ": " << e.Descripcion() << "\n";
        return 1;
    }
}

int ComandoSeccion(const Argumentos& args, std::ostream& salida, std::ostream& errores) {
    const char* nombres[] = {"--d", "--tw", "--bf", "--tf"};
    double valores[4] = {};
    bool dados[4] = {};
    for (std::size_t i = 0; i + 1 < args.size(); i += 2)
        for (int k = 0; k < 4; ++k)
            if (args[i] == nombres[k]) dados[k] = LeerNumero(args[i + 1], valores[k]);
    if (args.size() != 8 || !(dados[0] && dados[1] && dados[2] && dados[3])) {
        errores << "Uso: trevalo-calc seccion --d D --tw TW --bf BF --tf TF (milímetros)\n";
        return 2;
    }
    const auto [d, tw, bf, tf] = valores;
    if (!DimensionesCompletas(d, tw, bf, tf)) {
        errores << "Nada que calcular: d, tw, bf y tf deben ser distintos de 0.\n";
        return 1;
    }
    EtiquetasPerfil etiquetas;
    int codigo = 0;
    try {
        PropiedadesPerfil(d, tw, bf, tf, bf, tf, etiquetas);
    } catch (const ErrorTrevalo&) {
        errores << TituloErrorGeometria << ": " << MensajeErrorGeometria << "\n";
        codigo = 1;
    }
    const char* simbolos[] = {"A", "Ix", "Sx", "Rx", "Iy", "Sy", "Ry", "Rt", "J", "Cw", "Zx", "Zy"};
    Json j;
    for (long i = 1; i <= 12; ++i) j[simbolos[i - 1]] = etiquetas.LSLabel(i);
    salida << j.dump(2) << "\n";
    return codigo;
}

} // namespace trevalo::calc
