#include "platform/motor/MotorDatos.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>
#include <unicode/ucol.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <limits>

#include "model/Conversiones.h"
#include "model/Errores.h"

namespace trevalo {

struct ConexionDatos {
    ConexionDatos(const std::string& r, int banderas) : db(r, banderas), ruta(r) {}
    SQLite::Database db;
    std::string ruta;
    int profundidad = 0; // open transaction guards
};

namespace {

ErrorTrevalo ErrorMotor(const SQLite::Exception& e) {
    return {e.getExtendedErrorCode(), e.what()};
}

// Runs an engine call, turning the engine's exception into the program's error.
template <typename F> auto Motor(F&& f) -> decltype(f()) {
    try {
        return f();
    } catch (const SQLite::Exception& e) {
        throw ErrorMotor(e);
    }
}

std::string Identificador(const std::string& nombre) {
    std::string r = "\"";
    for (char ch : nombre) r += ch == '"' ? std::string("\"\"") : std::string(1, ch);
    return r + "\"";
}

// --- The collation of names ---------------------------------------------------------------

int CompararEspanol(void* contexto, int na, const void* a, int nb, const void* b) {
    UErrorCode estado = U_ZERO_ERROR;
    const auto r = ucol_strcollUTF8(static_cast<UCollator*>(contexto), static_cast<const char*>(a),
                                    na, static_cast<const char*>(b), nb, &estado);
    return r == UCOL_LESS ? -1 : (r == UCOL_GREATER ? 1 : 0);
}

void LiberarColador(void* contexto) {
    ucol_close(static_cast<UCollator*>(contexto));
}

// Spanish rules at secondary strength: case is a tertiary difference and so ignored;
// accents (secondary) and ñ (its own letter) stay significant.
void RegistrarColacion(ConexionDatos& c) {
    UErrorCode estado = U_ZERO_ERROR;
    UCollator* colador = ucol_open("es", &estado);
    if (U_FAILURE(estado)) throw ErrorTrevalo(estado, u_errorName(estado));
    ucol_setStrength(colador, UCOL_SECONDARY);
    const int r = sqlite3_create_collation_v2(c.db.getHandle(), "ESPANOL", SQLITE_UTF8, colador,
                                              CompararEspanol, LiberarColador);
    if (r != SQLITE_OK) {
        ucol_close(colador);
        throw ErrorTrevalo(r, sqlite3_errstr(r));
    }
}

std::shared_ptr<ConexionDatos> Conectar(const std::string& ruta, int banderas) {
    return Motor([&] {
        auto c = std::make_shared<ConexionDatos>(ruta, banderas);
        RegistrarColacion(*c);
        // A file that is not a database fails here rather than at the first query.
        c->db.execAndGet("SELECT count(*) FROM sqlite_master");
        return c;
    });
}

// --- Files of earlier versions, whose schema declared the collation ----------------------------

const char* const DeclaraColacion = "sql LIKE '%COLLATE%ESPANOL%'";

bool LlevaColacion(ConexionDatos& c) {
    return Motor([&] {
        return c.db.execAndGet(std::string("SELECT count(*) FROM sqlite_master WHERE ") +
                               DeclaraColacion)
                   .getInt() > 0;
    });
}

// The statement without its declarations of the collation: "COLLATE ESPANOL" in any case,
// the name bare or between double quotes, with the blanks before it.
std::string SinColacion(std::string sql) {
    auto esBlanco = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    std::string mayusculas = sql;
    for (char& c : mayusculas) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    for (std::size_t i = mayusculas.find("COLLATE"); i != std::string::npos;
         i = mayusculas.find("COLLATE", i + 1)) {
        std::size_t j = i + 7;
        while (j < sql.size() && esBlanco(sql[j])) ++j;
        const bool comillas = j < sql.size() && sql[j] == '"';
        if (mayusculas.compare(j + comillas, 7, "ESPANOL") != 0) continue;
        const std::size_t fin = j + comillas + 7 + comillas;
        if (comillas ? fin > sql.size() || sql[fin - 1] != '"'
                     : fin < sql.size() &&
                           (std::isalnum(static_cast<unsigned char>(sql[fin])) || sql[fin] == '_'))
            continue; // another collation's name
        std::size_t inicio = i;
        while (inicio > 0 && esBlanco(sql[inicio - 1])) --inicio;
        sql.erase(inicio, fin - inicio);
        mayusculas.erase(inicio, fin - inicio);
        i = inicio;
    }
    return sql;
}

// Rebuilds every table that declares the collation without it, rows and indexes kept (the
// way SQLite's documentation changes a column's declaration: a new table, the rows copied).
void QuitarColacion(BaseDatos& bd) {
    struct Tabla {
        std::string nombre, sql;
        std::vector<std::string> indices;
    };
    std::vector<Tabla> tablas;
    for (auto rs = bd.AbrirRecordset(std::string("SELECT name, sql FROM sqlite_master WHERE "
                                                 "type='table' AND ") +
                                     DeclaraColacion);
         !rs.AlFinal(); rs.MoveNext())
        tablas.push_back({rs.Campo("name").Texto(), rs.Campo("sql").Texto(), {}});
    for (Tabla& t : tablas) {
        for (auto rs = bd.AbrirRecordset("SELECT sql FROM sqlite_master WHERE type='index' AND "
                                         "tbl_name=? AND sql IS NOT NULL",
                                         {t.nombre});
             !rs.AlFinal(); rs.MoveNext())
            t.indices.push_back(rs.Campo("sql").Texto());
        const std::string nombre = Identificador(t.nombre);
        const std::string antigua = Identificador(t.nombre + "_conversion");
        bd.EjecutarGuion("ALTER TABLE " + nombre + " RENAME TO " + antigua + ";" +
                         SinColacion(t.sql) + ";INSERT INTO " + nombre + " SELECT * FROM " +
                         antigua + " ORDER BY rowid;DROP TABLE " + antigua + ";");
        for (const std::string& indice : t.indices) bd.EjecutarGuion(SinColacion(indice));
    }
}

void Borrar(const std::string& ruta) {
    std::error_code ec;
    std::filesystem::remove(ruta, ec);
}

// The first line of the engine's integrity check of the file: "ok" when sound.
std::string Integridad(const std::string& ruta) {
    auto c = Conectar(ruta, SQLite::OPEN_READONLY);
    return Motor([&] { return c->db.execAndGet("PRAGMA integrity_check").getString(); });
}

// SQLite's code for a damaged database.
constexpr long ErrBaseDanada = 11;

// --- Values ----------------------------------------------------------------------------------

void Enlazar(SQLite::Statement& s, int i, const Valor& v) {
    static const std::uint8_t vacio = 0;
    std::visit(
        [&](const auto& x) {
            using T = std::decay_t<decltype(x)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                s.bind(i);
            else if constexpr (std::is_same_v<T, Valor::Binario>)
                s.bind(i, x.empty() ? static_cast<const void*>(&vacio) : x.data(),
                       static_cast<int>(x.size()));
            else
                s.bind(i, x);
        },
        v.Crudo());
}

void EnlazarTodos(SQLite::Statement& s, const Parametros& p) {
    for (std::size_t i = 0; i < p.size(); ++i) Enlazar(s, static_cast<int>(i + 1), p[i]);
}

Valor LeerColumna(const SQLite::Column& c) {
    switch (c.getType()) {
    case SQLITE_INTEGER:
        return Valor(static_cast<std::int64_t>(c.getInt64()));
    case SQLITE_FLOAT:
        return Valor(c.getDouble());
    case SQLITE_TEXT:
        return Valor(c.getString());
    case SQLITE_BLOB: {
        const auto* p = static_cast<const std::uint8_t*>(c.getBlob());
        return Valor(Valor::Binario(p, p + c.getBytes()));
    }
    default:
        return Valor();
    }
}

std::string Recortar(const std::string& s) {
    const auto a = s.find_first_not_of(" \t\r\n");
    if (a == std::string::npos) return {};
    return s.substr(a, s.find_last_not_of(" \t\r\n") - a + 1);
}

bool IgualesSinCaso(const std::string& a, const std::string& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const auto x = static_cast<unsigned char>(a[i]);
        const auto y = static_cast<unsigned char>(b[i]);
        if (std::tolower(x) != std::tolower(y)) return false;
    }
    return true;
}

// Splits "SELECT * FROM Tabla [WHERE ...|ORDER ...]" into the table and the rest; false for
// any other shape of query.
bool SeleccionDeTabla(const std::string& f, std::string& tabla, std::string& resto) {
    std::size_t pos = 0;
    auto palabra = [&] {
        const auto a = std::min(f.find_first_not_of(" \t\r\n", pos), f.size());
        pos = std::min(f.find_first_of(" \t\r\n", a), f.size());
        return f.substr(a, pos - a);
    };
    if (!IgualesSinCaso(palabra(), "SELECT") || palabra() != "*" ||
        !IgualesSinCaso(palabra(), "FROM"))
        return false;
    tabla = palabra();
    const bool identificador =
        !tabla.empty() && std::all_of(tabla.begin(), tabla.end(),
                                      [](unsigned char c) { return std::isalnum(c) || c == '_'; });
    resto = f.substr(pos);
    const std::string siguiente = palabra();
    return identificador && (siguiente.empty() || IgualesSinCaso(siguiente, "WHERE") ||
                             IgualesSinCaso(siguiente, "ORDER"));
}

} // namespace

// --- Valor -------------------------------------------------------------------------------------

double Valor::Doble() const {
    if (EsNulo()) throw ErrorTrevalo::UsoNoValidoDeNull();
    if (const auto* i = std::get_if<std::int64_t>(&dato_)) return static_cast<double>(*i);
    if (const auto* d = std::get_if<double>(&dato_)) return *d;
    if (const auto* s = std::get_if<std::string>(&dato_)) {
        const std::string t = Recortar(*s);
        double r = 0;
        const auto [fin, ec] = std::from_chars(t.data(), t.data() + t.size(), r);
        if (!t.empty() && ec == std::errc() && fin == t.data() + t.size()) return r;
    }
    throw ErrorTrevalo::TiposNoCoinciden();
}

std::int64_t Valor::Entero() const {
    if (const auto* i = std::get_if<std::int64_t>(&dato_)) return *i;
    const double d = std::nearbyint(Doble()); // the default rounding: to nearest, ties to even
    if (!std::isfinite(d) || d < -9.2233720368547748e18 || d >= 9.2233720368547748e18)
        throw ErrorTrevalo::Desbordamiento();
    return static_cast<std::int64_t>(d);
}

std::int32_t Valor::Entero32() const {
    return trevalo::Entero<std::int32_t>(Entero());
}
std::int16_t Valor::Entero16() const {
    return trevalo::Entero<std::int16_t>(Entero());
}
std::uint8_t Valor::Byte() const {
    return trevalo::Entero<std::uint8_t>(Entero());
}
bool Valor::Logico() const {
    return Doble() != 0;
}

std::string Valor::Texto() const {
    if (EsNulo()) throw ErrorTrevalo::UsoNoValidoDeNull();
    if (const auto* s = std::get_if<std::string>(&dato_)) return *s;
    if (const auto* i = std::get_if<std::int64_t>(&dato_)) return std::to_string(*i);
    if (const auto* d = std::get_if<double>(&dato_)) {
        char buf[64];
        const auto [fin, ec] = std::to_chars(buf, buf + sizeof buf, *d);
        return std::string(buf, fin);
    }
    throw ErrorTrevalo::TiposNoCoinciden();
}

Valor::Binario Valor::Bytes() const {
    if (EsNulo()) throw ErrorTrevalo::UsoNoValidoDeNull();
    if (const auto* b = std::get_if<Binario>(&dato_)) return *b;
    if (const auto* s = std::get_if<std::string>(&dato_)) return Binario(s->begin(), s->end());
    throw ErrorTrevalo::TiposNoCoinciden();
}

// --- BaseDatos -------------------------------------------------------------------------------

BaseDatos::BaseDatos(std::shared_ptr<ConexionDatos> conexion) : conexion_(std::move(conexion)) {}

BaseDatos BaseDatos::Abrir(const std::string& ruta) {
    auto conexion = Conectar(ruta, SQLite::OPEN_READWRITE);
    if (!LlevaColacion(*conexion)) return BaseDatos(std::move(conexion));
    conexion.reset(); // closed before the converted copy takes the file's place
    try {
        ReemplazarPorCopia(ruta, ruta + ".conversion", QuitarColacion);
    } catch (const ErrorTrevalo& e) {
        throw ErrorTrevalo(e.Numero(), "No se pudo convertir el archivo al formato actual: " +
                                           ruta + " (" + e.Descripcion() + ")");
    }
    return AbrirComoEsta(ruta);
}

BaseDatos BaseDatos::AbrirComoEsta(const std::string& ruta) {
    return BaseDatos(Conectar(ruta, SQLite::OPEN_READWRITE));
}

BaseDatos BaseDatos::Crear(const std::string& ruta) {
    return BaseDatos(Conectar(ruta, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE));
}

long BaseDatos::Ejecutar(const std::string& sql, const Parametros& parametros) {
    return Motor([&] {
        SQLite::Statement s(conexion_->db, sql);
        EnlazarTodos(s, parametros);
        return static_cast<long>(s.exec());
    });
}

void BaseDatos::EjecutarGuion(const std::string& sql) {
    Motor([&] { return conexion_->db.exec(sql); });
}

const std::string& BaseDatos::Ruta() const {
    return conexion_->ruta;
}

void ReemplazarPorCopia(const std::string& ruta, const std::string& temporal,
                        const std::function<void(BaseDatos& copia)>& preparar) {
    Borrar(temporal);
    try {
        BaseDatos::AbrirComoEsta(ruta).Ejecutar("VACUUM INTO ?", {temporal});
        if (preparar) {
            BaseDatos copia = BaseDatos::AbrirComoEsta(temporal);
            Transaccion t(copia);
            preparar(copia);
            t.Confirmar();
        }
        if (const std::string estado = Integridad(temporal); estado != "ok")
            throw ErrorTrevalo(ErrBaseDanada,
                               "La copia de " + ruta + " no pasó la verificación: " + estado);
        std::error_code ec;
        std::filesystem::rename(temporal, ruta, ec);
        if (ec) throw ErrorArchivo(ec);
    } catch (const ErrorTrevalo&) {
        Borrar(temporal);
        throw;
    }
}

// --- Transaccion -----------------------------------------------------------------------------

Transaccion::Transaccion(BaseDatos& bd) : conexion_(bd.conexion_) {
    nombre_ = "trevalo" + std::to_string(conexion_->profundidad + 1);
    Motor([&] { return conexion_->db.exec("SAVEPOINT " + nombre_); });
    ++conexion_->profundidad;
}

Transaccion::~Transaccion() {
    if (!abierta_) return;
    --conexion_->profundidad;
    try {
        // The outermost guard ends the transaction with a rollback, which leaves the file
        // byte for byte as it was; releasing it would commit and count a change in the header.
        if (conexion_->profundidad == 0) {
            conexion_->db.exec("ROLLBACK");
        } else {
            conexion_->db.exec("ROLLBACK TO " + nombre_);
            conexion_->db.exec("RELEASE " + nombre_);
        }
    } catch (const SQLite::Exception&) {
        // Nothing more can be done while an error is already on its way up.
    }
}

void Transaccion::Confirmar() {
    Motor([&] { return conexion_->db.exec("RELEASE " + nombre_); });
    abierta_ = false;
    --conexion_->profundidad;
}

// --- Recordset -------------------------------------------------------------------------------

namespace {
struct Fila {
    std::int64_t id = 0;
    std::vector<Valor> valores;
};
enum class Modo { Ninguno, Nuevo, Edicion };
} // namespace

struct Recordset::Datos {
    std::shared_ptr<ConexionDatos> con;
    std::string consulta;
    Parametros parametros;
    std::string tabla; // empty: read-only
    std::vector<std::string> columnas;
    std::vector<Fila> filas;
    long pos = 0;         // current row; -1 before the first, size() past the last
    bool borrada = false; // the current row was deleted
    Modo modo = Modo::Ninguno;
    std::vector<Valor> buffer;
    std::vector<bool> puesto;

    long Cuenta() const { return static_cast<long>(filas.size()); }
    bool HayActual() const { return !borrada && pos >= 0 && pos < Cuenta(); }
    void ExigirActual() const {
        if (!HayActual())
            throw ErrorTrevalo(ErrSinRegistroActual, "No hay ningún registro activo.");
    }
    void ExigirAbierto() const {
        if (!con)
            throw ErrorTrevalo(ErrObjetoNoValido, "El objeto no es válido o ya no está definido.");
    }
    void ExigirActualizable() const {
        ExigirAbierto();
        if (tabla.empty())
            throw ErrorTrevalo(ErrSoloLectura, "No se puede actualizar. La base de datos o el "
                                               "objeto es de sólo lectura.");
    }
    std::size_t Indice(const std::string& nombre) const {
        for (std::size_t i = 0; i < columnas.size(); ++i)
            if (IgualesSinCaso(columnas[i], nombre)) return i;
        throw ErrorTrevalo(ErrNoEnColeccion, "Elemento no encontrado en esta colección.");
    }

    // Reads the rows of a statement; with a table the first column is the rowid.
    std::vector<Fila> LeerFilas(SQLite::Statement& s, bool nombrar) {
        const int primera = tabla.empty() ? 0 : 1;
        if (nombrar) {
            columnas.clear();
            for (int i = primera; i < s.getColumnCount(); ++i)
                columnas.emplace_back(s.getColumnName(i));
        }
        std::vector<Fila> r;
        while (s.executeStep()) {
            Fila f;
            if (primera) f.id = s.getColumn(0).getInt64();
            for (int i = primera; i < s.getColumnCount(); ++i)
                f.valores.push_back(LeerColumna(s.getColumn(i)));
            r.push_back(std::move(f));
        }
        return r;
    }

    void Cargar() {
        Motor([&] {
            SQLite::Statement s(con->db, consulta);
            EnlazarTodos(s, parametros);
            filas = LeerFilas(s, true);
            return 0;
        });
        pos = 0;
        borrada = false;
        modo = Modo::Ninguno;
    }

    std::vector<Fila> LeerPorId(std::int64_t id) {
        return Motor([&] {
            SQLite::Statement s(con->db,
                                "SELECT rowid, * FROM " + Identificador(tabla) + " WHERE rowid=?");
            s.bind(1, static_cast<int64_t>(id));
            return LeerFilas(s, false);
        });
    }

    Fila ReleerFila(std::int64_t id) {
        auto r = LeerPorId(id);
        if (r.empty()) throw ErrorTrevalo(ErrSinRegistroActual, "No hay ningún registro activo.");
        return r.front();
    }

    std::int64_t Insertar() {
        std::string nombres, marcas;
        Parametros valores;
        for (std::size_t i = 0; i < columnas.size(); ++i) {
            if (!puesto[i]) continue;
            nombres += (valores.empty() ? "" : ",") + Identificador(columnas[i]);
            marcas += valores.empty() ? "?" : ",?";
            valores.push_back(buffer[i]);
        }
        const std::string sql =
            "INSERT INTO " + Identificador(tabla) +
            (valores.empty() ? " DEFAULT VALUES" : " (" + nombres + ") VALUES (" + marcas + ")");
        return Motor([&] {
            SQLite::Statement s(con->db, sql);
            EnlazarTodos(s, valores);
            s.exec();
            return static_cast<std::int64_t>(con->db.getLastInsertRowid());
        });
    }

    void Modificar(std::int64_t id) {
        std::string asignaciones;
        Parametros valores;
        for (std::size_t i = 0; i < columnas.size(); ++i) {
            if (!puesto[i]) continue;
            asignaciones += (valores.empty() ? "" : ",") + Identificador(columnas[i]) + "=?";
            valores.push_back(buffer[i]);
        }
        if (valores.empty()) return;
        valores.emplace_back(id);
        Motor([&] {
            SQLite::Statement s(con->db, "UPDATE " + Identificador(tabla) + " SET " + asignaciones +
                                             " WHERE rowid=?");
            EnlazarTodos(s, valores);
            return s.exec();
        });
    }

    void Mover(long nueva) {
        modo = Modo::Ninguno;
        borrada = false;
        pos = nueva;
    }
};

Recordset BaseDatos::AbrirRecordset(const std::string& fuente, const Parametros& parametros) {
    auto d = std::make_unique<Recordset::Datos>();
    d->con = conexion_;
    d->parametros = parametros;
    const std::string f = Recortar(fuente);
    std::string resto;
    if (f.find_first_of(" \t\r\n") == std::string::npos)
        d->tabla = f;
    else if (!SeleccionDeTabla(f, d->tabla, resto))
        d->tabla.clear(); // read-only
    d->consulta = d->tabla.empty() ? f : "SELECT rowid, * FROM " + Identificador(d->tabla) + resto;
    d->Cargar();
    return Recordset(std::move(d));
}

Recordset::Recordset(std::unique_ptr<Datos> datos) : d_(std::move(datos)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

long Recordset::RecordCount() const {
    d_->ExigirAbierto();
    return d_->Cuenta();
}

bool Recordset::AlFinal() const {
    d_->ExigirAbierto();
    return d_->filas.empty() || d_->pos >= d_->Cuenta();
}

bool Recordset::AlPrincipio() const {
    d_->ExigirAbierto();
    return d_->filas.empty() || d_->pos < 0;
}

long Recordset::AbsolutePosition() const {
    d_->ExigirAbierto();
    return d_->HayActual() ? d_->pos : -1;
}

void Recordset::AbsolutePosition(long posicion) {
    d_->ExigirAbierto();
    if (posicion < 0 || posicion >= d_->Cuenta())
        throw ErrorTrevalo(ErrSinRegistroActual, "No hay ningún registro activo.");
    d_->Mover(posicion);
}

void Recordset::MoveFirst() {
    AbsolutePosition(0);
}

void Recordset::MoveLast() {
    AbsolutePosition(d_->Cuenta() - 1);
}

void Recordset::MoveNext() {
    d_->ExigirAbierto();
    if (d_->borrada) return d_->Mover(d_->pos); // the row after the deleted one moved up
    if (AlFinal()) throw ErrorTrevalo(ErrSinRegistroActual, "No hay ningún registro activo.");
    d_->Mover(d_->pos + 1);
}

void Recordset::MovePrevious() {
    d_->ExigirAbierto();
    if (AlPrincipio()) throw ErrorTrevalo(ErrSinRegistroActual, "No hay ningún registro activo.");
    d_->Mover(d_->pos - 1);
}

const Valor& Recordset::Campo(const std::string& nombre) const {
    d_->ExigirAbierto();
    const std::size_t i = d_->Indice(nombre);
    if (d_->modo != Modo::Ninguno) return d_->buffer[i];
    d_->ExigirActual();
    return d_->filas[static_cast<std::size_t>(d_->pos)].valores[i];
}

void Recordset::Campo(const std::string& nombre, Valor valor) {
    d_->ExigirAbierto();
    const std::size_t i = d_->Indice(nombre);
    if (d_->modo == Modo::Ninguno)
        throw ErrorTrevalo(ErrUpdateSinEdit, "Update o CancelUpdate sin AddNew o Edit.");
    d_->buffer[i] = std::move(valor);
    d_->puesto[i] = true;
}

void Recordset::AddNew() {
    d_->ExigirActualizable();
    d_->modo = Modo::Nuevo;
    d_->buffer.assign(d_->columnas.size(), Valor());
    d_->puesto.assign(d_->columnas.size(), false);
}

void Recordset::Edit() {
    d_->ExigirActualizable();
    d_->ExigirActual();
    d_->modo = Modo::Edicion;
    d_->buffer = d_->filas[static_cast<std::size_t>(d_->pos)].valores;
    d_->puesto.assign(d_->columnas.size(), false);
}

void Recordset::Update() {
    d_->ExigirAbierto();
    if (d_->modo == Modo::Nuevo) {
        const bool alFinal = d_->pos >= d_->Cuenta();
        d_->filas.push_back(d_->ReleerFila(d_->Insertar()));
        if (alFinal) d_->pos = d_->Cuenta();
    } else if (d_->modo == Modo::Edicion) {
        auto& fila = d_->filas[static_cast<std::size_t>(d_->pos)];
        d_->Modificar(fila.id);
        fila = d_->ReleerFila(fila.id);
    } else {
        throw ErrorTrevalo(ErrUpdateSinEdit, "Update o CancelUpdate sin AddNew o Edit.");
    }
    d_->modo = Modo::Ninguno;
}

void Recordset::CancelUpdate() {
    d_->ExigirAbierto();
    if (d_->modo == Modo::Ninguno)
        throw ErrorTrevalo(ErrUpdateSinEdit, "Update o CancelUpdate sin AddNew o Edit.");
    d_->modo = Modo::Ninguno;
}

void Recordset::Delete() {
    d_->ExigirActualizable();
    d_->ExigirActual();
    const auto i = static_cast<std::size_t>(d_->pos);
    Motor([&] {
        SQLite::Statement s(d_->con->db,
                            "DELETE FROM " + Identificador(d_->tabla) + " WHERE rowid=?");
        s.bind(1, static_cast<int64_t>(d_->filas[i].id));
        return s.exec();
    });
    d_->filas.erase(d_->filas.begin() + static_cast<std::ptrdiff_t>(i));
    d_->borrada = true;
}

void Recordset::Requery() {
    d_->ExigirAbierto();
    d_->Cargar();
}

void Recordset::Refrescar() {
    d_->ExigirActualizable();
    const bool habiaActual = d_->HayActual();
    const std::int64_t actual = habiaActual ? d_->filas[static_cast<std::size_t>(d_->pos)].id : 0;
    std::vector<Fila> quedan;
    long nuevaPos = -1;
    for (const auto& f : d_->filas) {
        auto leidas = d_->LeerPorId(f.id);
        if (leidas.empty()) continue;
        if (habiaActual && f.id == actual) nuevaPos = static_cast<long>(quedan.size());
        quedan.push_back(std::move(leidas.front()));
    }
    const long viejaPos = d_->pos;
    d_->filas = std::move(quedan);
    d_->Mover(nuevaPos >= 0 ? nuevaPos : std::min(std::max(viejaPos, 0L), d_->Cuenta()));
}

void Recordset::Close() {
    d_->con.reset();
    d_->filas.clear();
}

const std::vector<std::string>& Recordset::Columnas() const {
    d_->ExigirAbierto();
    return d_->columnas;
}

} // namespace trevalo
