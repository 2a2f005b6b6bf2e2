#include "profiles/FamiliasPerfil.h"
#include "profiles/Recorte.h"

#include <algorithm>
#include <cassert>
#include <cctype>

namespace trevalo {

namespace {

const std::vector<std::string> CamposDobleTee = {"Area",
                                                 "DimensionD",
                                                 "DimensionBF",
                                                 "DimensionTF",
                                                 "DimensionTw",
                                                 "InerciaX",
                                                 "ModuloSeccionX",
                                                 "RadioGiroX",
                                                 "InerciaY",
                                                 "ModuloSeccionY",
                                                 "RadioGiroY",
                                                 "ConstanteFlexionRT",
                                                 "CosntanteTorsionJ",
                                                 "ConstanteAlabeoCW",
                                                 "ModuloPlasticoZX",
                                                 "ModuloPlasticoZY"};

const std::vector<std::string> CamposU = {
    "Area",       "DimensionD",        "DimensionBF",      "DimensionTF", "DimensionTw",
    "InerciaX",   "ModuloSeccionX",    "RadioGiroX",       "InerciaY",    "ModuloSeccionY",
    "RadioGiroY", "CosntanteTorsionJ", "ConstanteAlabeoCW"};

const std::vector<std::string> CamposCuadrada = {
    "Area", "Espesor", "Radio", "Inercia", "ModuloSeccion", "RadioGiro", "MOduloPlastico"};

const std::vector<std::string> CamposRectangular = {"Area",     "Espesor",        "Radio",
                                                    "InerciaX", "ModuloSeccionX", "RadioGiroX",
                                                    "InerciaY", "ModuloSeccionY", "RadioGiroY"};

std::string Mayusculas(std::string s) {
    for (char& c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return s;
}

} // namespace

const DatosFamilia& Familia(FamiliaPerfil familia) {
    static const DatosFamilia familias[] = {
        {"Tabla de Seccines Doble Tee", "DobleTee_", "DOBLETEE_",
         "Tabla de Perfiles (*.plf)|DobleTee_?*.pfl", "SeccionDobleTee.kvl", "TablaDobleTee",
         "InerciaX", CamposDobleTee},
        {"Tabla de Secciones en U", "U_", "U_", "Tabla de Perfiles (*.plf)|U_?*.pfl",
         "SeccionU.kvl", "TablaSeccionU", "InerciaX", CamposU},
        {"Tabla de Secciones Tubulares Cuadradas", "Cuadrada_", "CUADRADA_",
         "Tabla de Perfiles (*.plf)|Cuadrada_?*.pfl", "SeccionTubularCuadrada.kvl",
         "TablaTubularCuadrada", "Inercia", CamposCuadrada},
        {"Tabla de Secciones Tubulares Rectangulares", "Rectangular_", "RECTANGULAR_",
         "Tabla de Perfiles (*.plf)|Rectangular_?*.pfl", "SeccionTubularRectangular.kvl",
         "TablaTubularRectangular", "InerciaX", CamposRectangular},
    };
    const auto i = static_cast<int>(familia) - 1;
    assert(i >= 0 && i < 4);
    return familias[i];
}

std::string TituloConPrefijo(FamiliaPerfil familia, const std::string& titulo) {
    const DatosFamilia& f = Familia(familia);
    const std::string prueba = Mayusculas(Recortar(titulo)).substr(0, f.Prueba.size());
    return prueba == f.Prueba ? titulo : f.Prefijo + titulo;
}

bool CoincidePatron(FamiliaPerfil familia, const std::string& nombreArchivo) {
    const std::string prefijo = Familia(familia).Prueba;
    const std::string nombre = Mayusculas(nombreArchivo);
    const std::string extension = ".PFL";
    return nombre.size() > prefijo.size() + extension.size() &&
           nombre.compare(0, prefijo.size(), prefijo) == 0 &&
           nombre.compare(nombre.size() - extension.size(), extension.size(), extension) == 0;
}

bool FamiliaDeArchivo(const std::string& nombreArchivo, FamiliaPerfil& familia) {
    for (FamiliaPerfil f : TodasLasFamilias)
        if (CoincidePatron(f, nombreArchivo)) {
            familia = f;
            return true;
        }
    return false;
}

} // namespace trevalo
