// Build-time tool: makes the four empty table templates from their SQL, and the shipped
// profile tables from the public data files of this folder.
//
//   generar_tablas_perfiles plantilla ESQUEMA.sql SALIDA.kvl
//   generar_tablas_perfiles tabla SERIE ORIGEN.json PLANTILLA.kvl SALIDA.pfl
//
// SERIE is IPE, HEA, HEB, HEM (sources in cm, written in mm), SHS, RHS (hot-finished hollow
// sections, sources in cm) or UPN (source in mm, warping constant in dm6). Each output is
// written beside its final name and renamed over it, so a failed run leaves no half file.

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "model/Errores.h"
#include "platform/motor/MotorDatos.h"
#include "profiles/TablaPerfiles.h"

namespace fs = std::filesystem;
using nlohmann::json;
using namespace trevalo;

namespace {

// Yield strengths in kgf/cm2 of the usual grades: S275 for rolled sections, S355 for
// hot-finished hollow sections (1 MPa = 10.19716 kgf/cm2).
constexpr std::int16_t FyS275 = 2804;
constexpr std::int16_t FyS355 = 3620;

struct Serie {
    std::string nombre;
    FamiliaPerfil familia;
    std::string descripcion; // at most 70 characters: the table editor's box
    std::int16_t fy;
};

const Serie Series[] = {
    {"IPE", FamiliaPerfil::DobleTee,
     "IPE (eurocodepy, MIT); rT calculado: ala + 1/3 del alma comprimida", FyS275},
    {"HEA", FamiliaPerfil::DobleTee,
     "HEA (eurocodepy, MIT); rT calculado: ala + 1/3 del alma comprimida", FyS275},
    {"HEB", FamiliaPerfil::DobleTee,
     "HEB (eurocodepy, MIT); rT calculado: ala + 1/3 del alma comprimida", FyS275},
    {"HEM", FamiliaPerfil::DobleTee,
     "HEM (eurocodepy, MIT); rT calculado: ala + 1/3 del alma comprimida", FyS275},
    {"SHS", FamiliaPerfil::TuboCuadrado,
     "Tubos SHS EN 10210 acabados en caliente, datos de eurocodepy (MIT)", FyS355},
    {"RHS", FamiliaPerfil::TuboRectangular,
     "Tubos RHS EN 10210 acabados en caliente, datos de eurocodepy (MIT)", FyS355},
    {"UPN", FamiliaPerfil::SeccionU,
     "UPN 50-400, valores de catálogo EN 10365 (tablas steelsnakes EU_UPN)", FyS275},
};

json LeerJson(const std::string& ruta) {
    std::ifstream f(ruta);
    if (!f) throw std::runtime_error("no se puede leer " + ruta);
    return json::parse(f);
}

// "IPE300" -> "IPE 300"; "SHS40x40x2_5" -> "SHS 40x40x2.5"; "UPN-200" -> "UPN 200".
std::string Designacion(std::string s) {
    std::replace(s.begin(), s.end(), '_', '.');
    std::replace(s.begin(), s.end(), '-', ' ');
    const auto i = s.find_first_of("0123456789");
    if (i != std::string::npos && i > 0 && s[i - 1] != ' ') s.insert(i, 1, ' ');
    return s;
}

// Bending constant rT (cm): radius of gyration, about the web's axis, of the compression
// flange plus one third of the compression web (h = d - 2 tf between the flanges). Dimensions
// in mm.
double ConstanteFlexion(double d, double bf, double tf, double tw) {
    const double h = d - 2 * tf;
    const double inercia = (tf * bf * bf * bf + (h / 6) * tw * tw * tw) / 12;
    const double area = bf * tf + h * tw / 6;
    return std::round(std::sqrt(inercia / area) * 10) / 100; // cm, to the hundredth
}

double Num(const json& o, const char* campo) {
    return o.at(campo).get<double>();
}

// A source length in cm as mm, to the hundredth, free of the binary noise of the product.
double Milimetros(const json& o, const char* campo) {
    return std::round(Num(o, campo) * 1000) / 100;
}

// Rows of the double-tee series (eurocodepy, dimensions in cm).
std::vector<FilaPerfil> FilasDobleTee(const json& origen, const std::string& serie) {
    std::vector<FilaPerfil> filas;
    for (const json& p : origen) {
        const std::string nombre = p.at("Section").get<std::string>();
        if (nombre.rfind(serie, 0) != 0 || nombre.find_first_of("0123456789") != serie.size())
            continue;
        const double d = Milimetros(p, "h"), bf = Milimetros(p, "b"), tf = Milimetros(p, "tf"),
                     tw = Milimetros(p, "tw");
        filas.push_back(
            {0,
             Designacion(nombre),
             {Num(p, "A"), d, bf, tf, tw, Num(p, "Iy"), Num(p, "Wel_y"), Num(p, "iy"), Num(p, "Iz"),
              Num(p, "Wel_z"), Num(p, "iz"), ConstanteFlexion(d, bf, tf, tw), Num(p, "IT"),
              Num(p, "Iw"), Num(p, "Wpl_y"), Num(p, "Wpl_z")}});
    }
    return filas;
}

// Rows of the hollow sections (eurocodepy, dimensions in cm; r is the outer corner radius).
std::vector<FilaPerfil> FilasTubo(const json& origen, FamiliaPerfil familia) {
    std::vector<FilaPerfil> filas;
    for (const json& p : origen) {
        const double t = Milimetros(p, "tf"), r = Milimetros(p, "r");
        FilaPerfil fila{0, Designacion(p.at("Section").get<std::string>()), {}};
        if (familia == FamiliaPerfil::TuboCuadrado)
            fila.Valores = {Num(p, "A"),    t, r, Num(p, "Iy"), Num(p, "Wel_y"), Num(p, "iy"),
                            Num(p, "Wpl_y")};
        else
            fila.Valores = {Num(p, "A"),
                            t,
                            r,
                            Num(p, "Iy"),
                            Num(p, "Wel_y"),
                            Num(p, "iy"),
                            Num(p, "Iz"),
                            Num(p, "Wel_z"),
                            Num(p, "iz")};
        filas.push_back(std::move(fila));
    }
    return filas;
}

// Rows of the channels (dimensions in mm, I_w in dm6 = 10^6 cm6).
std::vector<FilaPerfil> FilasUPN(const json& origen) {
    std::vector<FilaPerfil> filas;
    for (const auto& [clave, p] : origen.items())
        filas.push_back({0,
                         Designacion(clave),
                         {Num(p, "A"), Num(p, "h"), Num(p, "b"), Num(p, "tf"), Num(p, "tw"),
                          Num(p, "I_yy"), Num(p, "W_el_yy"), Num(p, "i_yy"), Num(p, "I_zz"),
                          Num(p, "W_el_zz"), Num(p, "i_zz"), Num(p, "I_t"), Num(p, "I_w") * 1e6}});
    return filas;
}

// Smallest first: by the numbers of the designation (depth, width, wall).
void Ordenar(std::vector<FilaPerfil>& filas) {
    auto clave = [](const std::string& s) {
        std::vector<double> numeros;
        std::string t = s;
        std::replace_if(
            t.begin(), t.end(), [](char c) { return !(std::isdigit(c) || c == '.'); }, ' ');
        std::istringstream in(t);
        for (double x; in >> x;) numeros.push_back(x);
        return numeros;
    };
    std::stable_sort(filas.begin(), filas.end(), [&](const FilaPerfil& a, const FilaPerfil& b) {
        return clave(a.Designacion) < clave(b.Designacion);
    });
}

void Plantilla(const std::string& esquema, const std::string& salida) {
    std::ifstream f(esquema);
    if (!f) throw std::runtime_error("no se puede leer " + esquema);
    std::stringstream sql;
    sql << f.rdbuf();
    const std::string temporal = salida + ".tmp";
    fs::remove(temporal);
    BaseDatos::Crear(temporal).EjecutarGuion(sql.str());
    fs::rename(temporal, salida);
}

void Tabla(const std::string& nombreSerie, const std::string& origen, const std::string& plantilla,
           const std::string& salida) {
    const auto s = std::find_if(std::begin(Series), std::end(Series),
                                [&](const Serie& x) { return x.nombre == nombreSerie; });
    if (s == std::end(Series)) throw std::runtime_error("serie desconocida " + nombreSerie);
    const json datos = LeerJson(origen);
    TablaPerfiles tabla{s->descripcion, s->fy, {}};
    if (s->familia == FamiliaPerfil::DobleTee)
        tabla.Filas = FilasDobleTee(datos, s->nombre);
    else if (s->familia == FamiliaPerfil::SeccionU)
        tabla.Filas = FilasUPN(datos);
    else
        tabla.Filas = FilasTubo(datos, s->familia);
    if (tabla.Filas.empty()) throw std::runtime_error("sin filas para " + nombreSerie);
    Ordenar(tabla.Filas);

    const std::string temporal = salida + ".tmp";
    fs::copy_file(plantilla, temporal, fs::copy_options::overwrite_existing);
    SalvarTablaPerfiles(temporal, s->familia, tabla);
    fs::rename(temporal, salida);
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> a(argv + 1, argv + argc);
    try {
        if (a.size() == 3 && a[0] == "plantilla") {
            Plantilla(a[1], a[2]);
            return 0;
        }
        if (a.size() == 5 && a[0] == "tabla") {
            Tabla(a[1], a[2], a[3], a[4]);
            return 0;
        }
    } catch (const ErrorTrevalo& e) {
        std::cerr << "generar_tablas_perfiles: error " << e.Numero() << ": " << e.Descripcion()
                  << "\n";
        return 1;
    } catch (const std::exception& e) {
        std::cerr << "generar_tablas_perfiles: " << e.what() << "\n";
        return 1;
    }
    std::cerr << "Uso: generar_tablas_perfiles plantilla ESQUEMA.sql SALIDA.kvl\n"
                 "     generar_tablas_perfiles tabla SERIE ORIGEN.json PLANTILLA.kvl SALIDA.pfl\n";
    return 2;
}
