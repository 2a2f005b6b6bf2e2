#include "app/tools/VigaJson.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <limits>
#include <optional>
#include <sstream>
#include <variant>

#include "model/Redondeo.h"

namespace trevalo::calc {

namespace {

using Json = nlohmann::ordered_json;

std::string Minusculas(std::string s) {
    for (char& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

// The member of an object whose name matches without regard to case, or null.
const Json* Miembro(const Json& objeto, const std::string& nombre) {
    const std::string buscado = Minusculas(nombre);
    for (auto it = objeto.begin(); it != objeto.end(); ++it)
        if (Minusculas(it.key()) == buscado) return &it.value();
    return nullptr;
}

// One row of a table, read column by column with the checks of the engine.
class Fila {
  public:
    Fila(const Json& fila, std::string tabla, std::size_t numero)
        : fila_(&fila), tabla_(std::move(tabla)), numero_(numero) {}

    std::string Texto(const std::string& columna) const {
        const Json& v = NoNulo(columna);
        if (!v.is_string()) throw Error(ErrTiposNoCoinciden, columna, "debe ser un texto");
        return v.get<std::string>();
    }

    double Doble(const std::string& columna) const { return Numero(NoNulo(columna), columna); }

    // Null when the column holds null.
    std::optional<double> DobleONulo(const std::string& columna) const {
        const Json& v = Valor(columna);
        if (v.is_null()) return std::nullopt;
        return Numero(v, columna);
    }

    // A whole number of the column's type; a fraction is rounded to the nearest, ties to even.
    template <typename T> T Entero(const std::string& columna) const {
        const Json& v = NoNulo(columna);
        long long n = 0;
        if (v.is_number_integer()) {
            n = v.get<long long>();
        } else {
            try {
                n = CI(Numero(v, columna));
            } catch (const ErrorTrevalo& e) {
                if (e.Numero() != ErrDesbordamiento) throw;
                n = std::numeric_limits<long long>::max();
            }
        }
        if (n < std::numeric_limits<T>::min() || n > std::numeric_limits<T>::max())
            throw Error(ErrDesbordamiento, columna, "no cabe en su tipo de número entero");
        return static_cast<T>(n);
    }

    // A value the column's type takes but the beam cannot (error 9, as an index would).
    ErrorTrevalo FueraDeIntervalo(const std::string& columna, const std::string& que) const {
        return Error(ErrSubindice, columna, que);
    }

    bool SiNo(const std::string& columna) const {
        const Json& v = NoNulo(columna);
        if (v.is_boolean()) return v.get<bool>();
        return Numero(v, columna) != 0;
    }

  private:
    const Json& Valor(const std::string& columna) const {
        const Json* v = Miembro(*fila_, columna);
        if (v == nullptr) throw Error(ErrNoEnColeccion, columna, "no existe");
        return *v;
    }
    const Json& NoNulo(const std::string& columna) const {
        const Json& v = Valor(columna);
        if (v.is_null()) throw Error(ErrUsoNull, columna, "es nula");
        return v;
    }
    double Numero(const Json& v, const std::string& columna) const {
        if (!v.is_number()) throw Error(ErrTiposNoCoinciden, columna, "debe ser un número");
        return v.get<double>();
    }
    ErrorTrevalo Error(long numero, const std::string& columna, const std::string& que) const {
        std::ostringstream texto;
        texto << "La columna \"" << columna << "\" de la tabla \"" << tabla_ << "\"";
        if (numero_ > 0) texto << " (fila " << numero_ << ")";
        texto << " " << que << ".";
        return {numero, texto.str()};
    }

    const Json* fila_;
    std::string tabla_;
    std::size_t numero_;
};

ErrorTrevalo FormaNoValida(const std::string& texto) {
    return {ErrFormatoNoReconocido, texto};
}

// The rows of a table (an array of objects; missing means empty), in the order of `clave`.
std::vector<Fila> Filas(const Json& doc, const std::string& tabla, const std::string& clave) {
    std::vector<Fila> filas;
    const Json* t = Miembro(doc, tabla);
    if (t == nullptr || t->is_null()) return filas;
    if (!t->is_array())
        throw FormaNoValida("La tabla \"" + tabla + "\" debe ser una lista de filas.");
    std::vector<std::pair<std::int16_t, std::size_t>> orden;
    for (std::size_t i = 0; i < t->size(); ++i) {
        if (!(*t)[i].is_object())
            throw FormaNoValida("La fila " + std::to_string(i + 1) + " de la tabla \"" + tabla +
                                "\" debe ser un objeto con sus columnas.");
        filas.emplace_back((*t)[i], tabla, i + 1);
        orden.emplace_back(filas.back().Entero<std::int16_t>(clave), i);
    }
    std::stable_sort(orden.begin(), orden.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<Fila> ordenadas;
    for (const auto& [valor, i] : orden) ordenadas.push_back(filas[i]);
    return ordenadas;
}

// The single-row tables: one object, or missing.
const Json* FilaUnica(const Json& doc, const std::string& tabla) {
    const Json* t = Miembro(doc, tabla);
    if (t == nullptr || t->is_null()) return nullptr;
    if (!t->is_object())
        throw FormaNoValida("La tabla \"" + tabla + "\" debe ser un objeto con sus columnas.");
    return t;
}

// Row i (from 0) of a table that must hold one row per span or joint.
const Fila& FilaNecesaria(const std::vector<Fila>& filas, std::size_t i, const std::string& tabla,
                          long necesarias) {
    if (i >= filas.size())
        throw ErrorTrevalo(ErrSinRegistroActual,
                           "La tabla \"" + tabla + "\" tiene " + std::to_string(filas.size()) +
                               " filas y la viga necesita " + std::to_string(necesarias) + ".");
    return filas[i];
}

// Slot groups of the loads of a span: the count column and the numbered columns it governs.
using Columna2 = std::variant<Arreglo2<std::int32_t> VigaActual::*, Arreglo2<double> VigaActual::*>;
struct GrupoCargas {
    const char* cantidad;
    Arreglo<std::int16_t> VigaActual::*cant;
    std::vector<std::pair<const char*, Columna2>> columnas;
};

const std::vector<GrupoCargas>& GruposAntes() {
    static const std::vector<GrupoCargas> g = {
        {"CantW2", &VigaActual::CantW2, {{"P", &VigaActual::P}, {"LP", &VigaActual::LP}}},
        {"CantW3",
         &VigaActual::CantW3,
         {{"W3_", &VigaActual::W3_}, {"La3_", &VigaActual::La3_}, {"Lb3_", &VigaActual::Lb3_}}},
    };
    return g;
}

const std::vector<GrupoCargas>& GruposDespues() {
    static const std::vector<GrupoCargas> g = {
        {"CantW6",
         &VigaActual::CantW6,
         {{"W6_", &VigaActual::W6_}, {"La6_", &VigaActual::La6_}, {"Lb6_", &VigaActual::Lb6_}}},
        {"CantW7",
         &VigaActual::CantW7,
         {{"W7_", &VigaActual::W7_}, {"La7_", &VigaActual::La7_}, {"Lb7_", &VigaActual::Lb7_}}},
        {"CantW8",
         &VigaActual::CantW8,
         {{"WIzq8_", &VigaActual::WIzq8_},
          {"WDer8_", &VigaActual::WDer8_},
          {"La8_", &VigaActual::La8_},
          {"Lb8_", &VigaActual::Lb8_}}},
    };
    return g;
}

void LeerGrupo(const Fila& f, VigaActual& v, long t, const GrupoCargas& g) {
    const std::int16_t n = f.Entero<std::int16_t>(g.cantidad);
    (v.*g.cant)(t) = n;
    for (long k = 1; k <= n; ++k)
        for (const auto& [base, columna] : g.columnas) {
            const std::string nombre = base + std::to_string(k);
            std::visit(
                [&](auto miembro) {
                    auto& arreglo = v.*miembro;
                    using T = std::remove_reference_t<decltype(arreglo(t, k))>;
                    if constexpr (std::is_same_v<T, double>)
                        arreglo(t, k) = f.Doble(nombre);
                    else
                        arreglo(t, k) = f.Entero<T>(nombre);
                },
                columna);
        }
}

void EscribirGrupo(Json& fila, const VigaActual& v, long t, const GrupoCargas& g) {
    const std::int16_t n = (v.*g.cant)(t);
    fila[g.cantidad] = n;
    for (const auto& [base, columna] : g.columnas)
        for (long k = 1; k <= n; ++k)
            std::visit([&](auto miembro) { fila[base + std::to_string(k)] = (v.*miembro)(t, k); },
                       columna);
}

void LeerProyecto(const Json& doc, ProyectoActual& p) {
    const Json* fila = FilaUnica(doc, "GeneralProyecto");
    if (fila == nullptr)
        throw ErrorTrevalo(ErrSinRegistroActual, "La tabla \"GeneralProyecto\" no tiene su fila.");
    const Fila f(*fila, "GeneralProyecto", 0);
    p.Proyecto = f.Texto("Proyecto");
    p.Propietario = f.Texto("Propietario");
    p.ProyFecha = f.Texto("Fecha");
    p.Calculista = f.Texto("Calculista");
    p.Comentario = f.Texto("Comentario");
    p.Cliente = f.Texto("Cliente");
    p.PPV = f.SiNo("PPV");
    p.DEFCOR = f.SiNo("DEFCOR");
    p.FC = f.Doble("FC");
    p.FY = f.Doble("FY");
    p.D8 = f.Doble("D8");
    p.PesoConcreto = f.Doble("PesoConcreto");
    p.CFormaConcreto = f.Doble("CFormaConcreto");
    p.ModuloAcero = f.Doble("ModuloAcero");
    p.PesoAcero = f.Doble("PesoAcero");
    p.CFormaAcero = f.Doble("CFormaAcero");
    p.OpcionEstribos = f.SiNo("OpcionEstribos");
}

void LeerTramos(const Json& doc, VigaActual& v) {
    const auto filas = Filas(doc, "Tramos", "Tramo");
    v.LongTotal = 0;
    v.FMayorTramo.Redim(v.NT); // stays 0 when the table is empty
    if (filas.empty()) return;
    for (long t = 1; t <= v.NT; ++t) {
        const Fila& f = FilaNecesaria(filas, static_cast<std::size_t>(t - 1), "Tramos", v.NT);
        v.LT(t) = f.Doble("LT");
        v.LongTotal += v.LT(t);
        v.VT(t) = f.Doble("VT");
        v.FMayorTramo(t) = v.FMayoracion;
    }
}

void LeerJuntas(const Json& doc, VigaActual& v) {
    const auto filas = Filas(doc, "Juntas", "Numero");
    if (filas.empty()) return; // the default dimensions stand, the axis names stay empty
    for (long j = 1; j <= v.NT + 1; ++j) {
        const Fila& f = FilaNecesaria(filas, static_cast<std::size_t>(j - 1), "Juntas", v.NT + 1);
        v.NombreEje(j) = f.Texto("NombreEje");
        v.LDer(j) = f.Doble("LDer");
        v.LIzq(j) = f.Doble("LIzq");
        v.HC(j) = f.Doble("HC");
    }
}

template <typename... A> void RedimLista(long n, A&... arreglos) {
    (arreglos.Redim(n), ...);
}

// Rows of a list table read into slots 1..n; the count is the number of rows.
template <typename Leer, typename... A>
void LeerLista(const Json& doc, const std::string& tabla, const std::string& clave,
               std::int16_t& cantidad, Leer leer, A&... arreglos) {
    const auto filas = Filas(doc, tabla, clave);
    cantidad = static_cast<std::int16_t>(filas.size());
    RedimLista(cantidad, arreglos...);
    for (long k = 1; k <= cantidad; ++k) leer(filas[static_cast<std::size_t>(k - 1)], k);
}

void LeerListas(const Json& doc, VigaActual& v) {
    LeerLista(
        doc, "JuntasDesplazadas", "R3", v.NJDesp,
        [&v](const Fila& f, long k) {
            v.R3(k) = f.Entero<std::int16_t>("R3");
            v.XX(k) = f.Doble("XX");
            v.YY(k) = f.Doble("YY");
        },
        v.R3, v.XX, v.YY);
    LeerLista(
        doc, "Juntasrestringidas", "R1", v.NJRest,
        [&v](const Fila& f, long k) {
            v.R1(k) = f.Entero<std::int16_t>("R1");
            v.Apoyo(k) = f.Entero<std::int16_t>("Apoyo");
        },
        v.R1, v.Apoyo);
    LeerLista(
        doc, "JuntasResortes", "R10", v.NJRes,
        [&v](const Fila& f, long k) {
            v.R10(k) = f.Entero<std::int16_t>("R10");
            v.SH10(k) = f.Doble("SH10");
            v.SV10(k) = f.Doble("SV10");
            v.SM10(k) = f.Doble("SM10");
        },
        v.R10, v.SH10, v.SV10, v.SM10);
    LeerLista(
        doc, "AccionesNodales", "R2", v.NAcc,
        [&v](const Fila& f, long k) {
            v.R2(k) = f.Entero<std::int16_t>("R2");
            v.QC1(k) = f.Doble("QC1");
            v.QC2(k) = f.Doble("QC2");
            v.QC3(k) = f.Doble("QC3");
        },
        v.R2, v.QC1, v.QC2, v.QC3);
}

// A null or non-positive width or depth takes the default section on a concrete beam.
void LeerTipos(const Json& doc, VigaActual& v) {
    const auto filas = Filas(doc, "TiposVigas", "Tipo");
    const bool concreto = v.OpcionConcreto == 0;
    const auto medida = [concreto](std::optional<double> valor, double defecto) {
        if (valor && *valor > 0) return *valor;
        return concreto ? defecto : 0.0;
    };
    v.NTipos = static_cast<std::int16_t>(std::max<std::size_t>(filas.size(), 1));
    v.B1.Redim(v.NTipos);
    v.T1.Redim(v.NTipos);
    v.Designacion.Redim(v.NTipos);
    if (filas.empty()) {
        v.B1(1) = medida(std::nullopt, 0.3);
        v.T1(1) = medida(std::nullopt, 0.5);
        return;
    }
    for (long k = 1; k <= v.NTipos; ++k) {
        const Fila& f = filas[static_cast<std::size_t>(k - 1)];
        v.Designacion(k) = f.Texto("Designacion");
        v.B1(k) = medida(f.DobleONulo("B1"), 0.3);
        v.T1(k) = medida(f.DobleONulo("T1"), 0.5);
    }
}

void LeerCargas(const Json& doc, VigaActual& v) {
    const auto filas = Filas(doc, "CargasTramos", "Tramo");
    if (filas.empty()) return;
    for (long t = 1; t <= v.NT; ++t) {
        const Fila& f = FilaNecesaria(filas, static_cast<std::size_t>(t - 1), "CargasTramos", v.NT);
        v.W1(t) = f.Entero<std::int32_t>("W1");
        v.Gravedad(t) = f.Entero<std::uint8_t>("Gravedad");
        for (const auto& g : GruposAntes()) LeerGrupo(f, v, t, g);
        v.W4(t) = f.Entero<std::int32_t>("W4");
        v.W5(t) = f.Entero<std::int32_t>("W5");
        v.la5(t) = f.Doble("la5");
        for (const auto& g : GruposDespues()) LeerGrupo(f, v, t, g);
    }
}

void LeerCabecera(const Fila& f, VigaActual& v) {
    v.NombreVigaActual = f.Texto("NombreViga");
    v.NT = f.Entero<std::int16_t>("NT");
    v.OpcionConcreto = f.Entero<std::uint8_t>("OpcionConcreto");
    v.OpcionCarga = f.Entero<std::uint8_t>("OpcionCarga");
    v.FMayoracionTC = f.Doble("FMayoracionTC");
    v.FMayoracion = f.Doble("FMayoracion");
    if (v.NT < 0) throw f.FueraDeIntervalo("NT", "no puede ser negativa");
}

// The numbers of a row, with the beam's name first as every child table has it.
Json FilaHija(const VigaActual& v) {
    return Json{{"NombreViga", v.NombreVigaActual}};
}

// A list table written from slots 1..n, one row each.
template <typename Escribir> Json EscribirLista(const VigaActual& v, long n, Escribir escribir) {
    Json filas = Json::array();
    for (long k = 1; k <= n; ++k) {
        Json f = FilaHija(v);
        escribir(f, k);
        filas.push_back(std::move(f));
    }
    return filas;
}

void EscribirListas(const VigaActual& v, Json& doc) {
    doc["Tramos"] = EscribirLista(v, v.NT, [&v](Json& f, long t) {
        f["Tramo"] = t;
        f["LT"] = v.LT(t);
        f["VT"] = v.VT(t);
    });
    doc["Juntas"] = EscribirLista(v, v.NT + 1, [&v](Json& f, long j) {
        f["Numero"] = j;
        f["NombreEje"] = v.NombreEje(j);
        f["LDer"] = v.LDer(j);
        f["LIzq"] = v.LIzq(j);
        f["HC"] = v.HC(j);
    });
    doc["JuntasDesplazadas"] = EscribirLista(v, v.NJDesp, [&v](Json& f, long k) {
        f["R3"] = v.R3(k);
        f["XX"] = v.XX(k);
        f["YY"] = v.YY(k);
    });
    doc["Juntasrestringidas"] = EscribirLista(v, v.NJRest, [&v](Json& f, long k) {
        f["R1"] = v.R1(k);
        f["Apoyo"] = v.Apoyo(k);
    });
    doc["JuntasResortes"] = EscribirLista(v, v.NJRes, [&v](Json& f, long k) {
        f["R10"] = v.R10(k);
        f["SH10"] = v.SH10(k);
        f["SV10"] = v.SV10(k);
        f["SM10"] = v.SM10(k);
    });
    doc["TiposVigas"] = EscribirLista(v, v.NTipos, [&v](Json& f, long k) {
        f["Tipo"] = k;
        f["B1"] = v.B1(k);
        f["T1"] = v.T1(k);
        f["Designacion"] = v.Designacion(k);
    });
    doc["CargasTramos"] = EscribirLista(v, v.NT, [&v](Json& f, long t) {
        f["Tramo"] = t;
        f["W1"] = v.W1(t);
        f["Gravedad"] = v.Gravedad(t);
        for (const auto& g : GruposAntes()) EscribirGrupo(f, v, t, g);
        f["W4"] = v.W4(t);
        f["W5"] = v.W5(t);
        f["la5"] = v.la5(t);
        for (const auto& g : GruposDespues()) EscribirGrupo(f, v, t, g);
    });
    doc["AccionesNodales"] = EscribirLista(v, v.NAcc, [&v](Json& f, long k) {
        f["R2"] = v.R2(k);
        f["QC1"] = v.QC1(k);
        f["QC2"] = v.QC2(k);
        f["QC3"] = v.QC3(k);
    });
}

// Line and column of a byte offset, for the message of a syntax error.
std::string Posicion(const std::string& texto, std::size_t byte) {
    std::size_t linea = 1, columna = 1;
    for (std::size_t i = 0; i + 1 < byte && i < texto.size(); ++i) {
        if (texto[i] == '\n') {
            ++linea;
            columna = 1;
        } else {
            ++columna;
        }
    }
    return "línea " + std::to_string(linea) + ", columna " + std::to_string(columna);
}

} // namespace

void LeerVigaJson(const Json& doc, ProyectoActual& proyecto, VigaActual& viga) {
    if (!doc.is_object())
        throw FormaNoValida("El documento debe ser un objeto cuyos miembros son las tablas del "
                            "proyecto.");
    LeerProyecto(doc, proyecto);
    VigaActual v;
    const Json* cabecera = FilaUnica(doc, "GeneralViga");
    if (cabecera == nullptr) {
        NuevaVigaDefecto(v);
        viga = std::move(v);
        return;
    }
    LeerCabecera(Fila(*cabecera, "GeneralViga", 0), v);
    ReiniciarArreglosViga(v);
    LeerTramos(doc, v);
    LeerJuntas(doc, v);
    LeerListas(doc, v);
    LeerTipos(doc, v);
    LeerCargas(doc, v);
    viga = std::move(v);
}

void LeerVigaJsonTexto(const std::string& texto, ProyectoActual& proyecto, VigaActual& viga) {
    Json doc;
    try {
        doc = Json::parse(texto);
    } catch (const Json::parse_error& e) {
        throw FormaNoValida("El texto no es un JSON válido: error de sintaxis en la " +
                            Posicion(texto, e.byte) + ".");
    }
    LeerVigaJson(doc, proyecto, viga);
}

void LeerVigaJsonArchivo(const std::string& ruta, ProyectoActual& proyecto, VigaActual& viga) {
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo)
        throw ErrorTrevalo(ErrArchivoNoEncontrado,
                           "No se puede abrir el archivo \"" + ruta + "\".");
    std::ostringstream texto;
    texto << archivo.rdbuf();
    LeerVigaJsonTexto(texto.str(), proyecto, viga);
}

Json EscribirVigaJson(const ProyectoActual& p, const VigaActual& v) {
    Json doc;
    doc["GeneralProyecto"] = Json{{"Proyecto", p.Proyecto},
                                  {"Propietario", p.Propietario},
                                  {"Fecha", p.ProyFecha},
                                  {"Calculista", p.Calculista},
                                  {"Comentario", p.Comentario},
                                  {"Cliente", p.Cliente},
                                  {"PPV", p.PPV},
                                  {"DEFCOR", p.DEFCOR},
                                  {"FC", p.FC},
                                  {"FY", p.FY},
                                  {"D8", p.D8},
                                  {"PesoConcreto", p.PesoConcreto},
                                  {"CFormaConcreto", p.CFormaConcreto},
                                  {"ModuloAcero", p.ModuloAcero},
                                  {"PesoAcero", p.PesoAcero},
                                  {"CFormaAcero", p.CFormaAcero},
                                  {"OpcionEstribos", p.OpcionEstribos}};
    doc["GeneralViga"] = Json{{"NombreViga", v.NombreVigaActual},   {"NT", v.NT},
                              {"OpcionConcreto", v.OpcionConcreto}, {"OpcionCarga", v.OpcionCarga},
                              {"FMayoracionTC", v.FMayoracionTC},   {"FMayoracion", v.FMayoracion}};
    EscribirListas(v, doc);
    return doc;
}

} // namespace trevalo::calc
