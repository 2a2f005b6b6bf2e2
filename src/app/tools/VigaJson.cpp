#include "app/tools/VigaJson.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <limits>
#include <optional>
#include <sstream>

#include "model/Redondeo.h"
#include "store/ColumnasViga.h"

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

    // The value of a column of the model's type T.
    template <typename T> T Leer(const std::string& columna) const {
        if constexpr (std::is_same_v<T, double>)
            return Doble(columna);
        else if constexpr (std::is_same_v<T, std::string>)
            return Texto(columna);
        else
            return Entero<T>(columna);
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

// The document's side of reading a beam: the rows of one table at a time, or the header.
class LectorJson {
  public:
    explicit LectorJson(const Json& doc) : doc_(&doc) {}
    explicit LectorJson(const Fila& cabecera) : fila_(&cabecera) {}

    long Abrir(const TablaViga& t) {
        filas_ = Filas(*doc_, t.nombre, Clave(t));
        return static_cast<long>(filas_.size());
    }
    void Ir(const TablaViga& t, long fila, long filas) {
        fila_ = &FilaNecesaria(filas_, static_cast<std::size_t>(fila - 1), t.nombre, filas);
    }
    template <typename C> void Leer(const std::string& columna, C celda) {
        using T = std::remove_cvref_t<decltype(celda())>;
        T valor = fila_->Leer<T>(columna); // the column first: a missing one names itself
        celda() = std::move(valor);
    }
    std::optional<double> LeerONulo(const std::string& columna) const {
        return fila_->DobleONulo(columna);
    }

  private:
    const Json* doc_ = nullptr;
    std::vector<Fila> filas_;
    const Fila* fila_ = nullptr;
};

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

void LeerCabecera(const Fila& f, VigaActual& v) {
    v.NombreVigaActual = f.Texto("NombreViga");
    LectorJson lector(f);
    LeerFilaViga(lector, TablaGeneralViga, v, 1);
    if (v.NT < 0) throw f.FueraDeIntervalo("NT", "no puede ser negativa");
}

// A row of a table, with the beam's name first as every table has it.
Json FilaJson(const TablaViga& t, const VigaActual& v, long fila) {
    Json f{{"NombreViga", v.NombreVigaActual}};
    if (t.numero) f[t.numero] = fila;
    RecorrerFila(t, v, fila, [&f](const ColumnaViga&, const std::string& nombre, auto celda) {
        f[nombre] = celda();
    });
    return f;
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
    const Json* cabecera = FilaUnica(doc, TablaGeneralViga.nombre);
    if (cabecera == nullptr) {
        NuevaVigaDefecto(v);
        viga = std::move(v);
        return;
    }
    LeerCabecera(Fila(*cabecera, TablaGeneralViga.nombre, 0), v);
    LectorJson lector(doc);
    LeerTablasViga(lector, v);
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
    doc[TablaGeneralViga.nombre] = FilaJson(TablaGeneralViga, v, 1);
    for (const TablaViga* t : TablasHijas) {
        Json filas = Json::array();
        for (long i = 1; i <= FilasViga(*t, v); ++i) filas.push_back(FilaJson(*t, v, i));
        doc[t->nombre] = std::move(filas);
    }
    return doc;
}

} // namespace trevalo::calc
