#pragma once
// The database engine of the program's files (projects, profile tables, the report
// database): SQLite files behind a small handle, statements with bound parameters, an
// updatable recordset with a current position, and a transaction guard.
//
// Names. Every connection of the program carries the collation "ESPANOL" (ICU, Spanish
// rules, secondary strength): comparisons ignore case for every letter (á = Á, ñ = Ñ,
// ü = Ü, "viga ñ" = "VIGA Ñ") but keep accents and the ñ apart ("a" <> "á", "n" <> "ñ"), as
// the earlier engine of the users' files compared text. No schema declares it: the program's
// own statements name it where they look up or sort names ("... WHERE Nombre=? COLLATE
// ESPANOL", "ORDER BY Nombre COLLATE ESPANOL"), so that every file stays plain SQLite that
// any tool checks and queries (the stock shell, Python), with SQLite's binary comparison.
//
// Files of earlier versions declared the collation in their schema, and no other tool could
// read them. Abrir converts such a file once: a copy written beside it as "<file>.conversion"
// gets every table rebuilt without the collation, in one transaction, passes the integrity
// check, and is renamed over the file (as compaction does). A file that cannot be converted
// is left as it was, and the error of the failed step is raised with the text "No se pudo
// convertir el archivo al formato actual: " + path + " (" + the step's text + ")".
//
// Errors. Every engine failure becomes ErrorTrevalo with SQLite's extended result code and
// its text. Recordset misuse raises the numbers users know from the earlier engine:
//   3020 Update without AddNew or Edit, 3021 no current record (read past the end),
//   3027 the recordset cannot be updated, 3265 no field of that name.
// Conversions of a field value raise 94 (Null), 13 (not a number) and 6 (out of range).

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace trevalo {

// The value of one field or parameter: Null, integer, real, text (UTF-8) or binary.
class Valor {
  public:
    using Binario = std::vector<std::uint8_t>;

    Valor() = default; // Null
    Valor(std::int64_t v) : dato_(v) {}
    Valor(int v) : dato_(std::int64_t{v}) {}
    Valor(std::int16_t v) : dato_(std::int64_t{v}) {}
    Valor(std::uint8_t v) : dato_(std::int64_t{v}) {}
    Valor(bool v) : dato_(std::int64_t{v ? 1 : 0}) {}
    Valor(double v) : dato_(v) {}
    Valor(std::string v) : dato_(std::move(v)) {}
    Valor(const char* v) : dato_(std::string(v)) {}
    Valor(Binario v) : dato_(std::move(v)) {}

    bool EsNulo() const { return std::holds_alternative<std::monostate>(dato_); }

    // Numbers. A text that reads whole as a number converts; a real becomes an integer
    // to the nearest, ties to even. Null: 94; other text or binary: 13; out of range: 6.
    double Doble() const;
    std::int64_t Entero() const;
    std::int32_t Entero32() const;
    std::int16_t Entero16() const;
    std::uint8_t Byte() const;
    bool Logico() const; // any number other than 0 is true

    // Text of the value; a number gives its shortest exact form. Null: 94; binary: 13.
    std::string Texto() const;
    // The bytes of a binary value (a text gives its bytes). Null: 94; a number: 13.
    Binario Bytes() const;

    bool operator==(const Valor&) const = default;

    using Dato = std::variant<std::monostate, std::int64_t, double, std::string, Binario>;
    const Dato& Crudo() const { return dato_; }

  private:
    Dato dato_;
};

using Parametros = std::vector<Valor>;

class Recordset;
struct ConexionDatos; // the open SQLite connection, shared by the handle and its recordsets

// Handle of one open database file. Copies share the connection; the connection closes
// when the last handle and the last recordset on it are gone.
class BaseDatos {
  public:
    // Opens an existing file for reading and writing; a file whose schema declares the
    // collation is converted first (above). A missing file or a file that is not a database
    // raises the engine's error (14, 26).
    static BaseDatos Abrir(const std::string& ruta);
    // Opens the file as it stands, never converting it: to look into a file before it is
    // taken for one of the program's.
    static BaseDatos AbrirComoEsta(const std::string& ruta);
    // Opens the file, creating an empty database if it does not exist. Used to build
    // templates and by tests; the program copies templates instead.
    static BaseDatos Crear(const std::string& ruta);

    // Runs one statement with '?' parameters; returns the number of rows it changed.
    long Ejecutar(const std::string& sql, const Parametros& parametros = {});
    // Runs a script of statements without parameters (schemas of the templates).
    void EjecutarGuion(const std::string& sql);

    // A recordset on a table name or a SELECT. "SELECT * FROM Tabla ..." and a bare table
    // name give an updatable recordset; any other query gives a read-only one. The rows are
    // those of the query at the time of opening, in its order; it is positioned on the
    // first row (AlFinal when empty).
    Recordset AbrirRecordset(const std::string& fuente, const Parametros& parametros = {});

    const std::string& Ruta() const;

  private:
    explicit BaseDatos(std::shared_ptr<ConexionDatos> conexion);
    std::shared_ptr<ConexionDatos> conexion_;
    friend class Transaccion;
};

// Writes a copy of the database `ruta` at `temporal` (compacted: SQLite's VACUUM INTO), lets
// `preparar` change the copy inside one transaction, checks the copy's integrity and renames
// it over `ruta` in one step: at no moment does the data live only in the copy. An older file
// at `temporal` is deleted first and never reused. On any failure `ruta` is untouched,
// `temporal` is gone and the error is raised: the engine's (26, 11, 14 ...); 11 when the copy
// fails its integrity check; 70 or 75 when the copy cannot take the file's place. `ruta` must
// not be open.
void ReemplazarPorCopia(const std::string& ruta, const std::string& temporal,
                        const std::function<void(BaseDatos& copia)>& preparar = {});

// One transaction around a multi-statement write: Confirmar() makes the writes permanent;
// leaving the scope without it (an exception) takes every write back, so the file is as it
// was. Guards nest: an inner guard's writes become permanent with the outermost one.
class Transaccion {
  public:
    explicit Transaccion(BaseDatos& bd);
    ~Transaccion();
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;

    void Confirmar();

  private:
    std::shared_ptr<ConexionDatos> conexion_;
    std::string nombre_;
    bool abierta_ = true;
};

// The rows of a query with a current position, kept in memory: a dynaset. Changes made
// through it go to the file at once (Update, Delete) and are reflected in its rows; rows
// added appear at the end; changes by other statements show after Requery.
class Recordset {
  public:
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    // Number of rows. Always exact (the earlier engine needed MoveLast for that; callers
    // that still do it lose nothing).
    long RecordCount() const;
    bool AlFinal() const;     // past the last row, or no rows (EOF)
    bool AlPrincipio() const; // before the first row, or no rows (BOF)

    // Zero-based position of the current row; setting it moves there (beyond the rows: 3021).
    long AbsolutePosition() const;
    void AbsolutePosition(long posicion);

    // Moves. With no rows, or past either end, they raise 3021; a move drops an AddNew or
    // Edit that was not updated.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    // Field of the current row, by column name without regard to case. During AddNew or
    // Edit the reading gives the value being written.
    const Valor& Campo(const std::string& nombre) const;
    // Sets a field of the row being added or edited (3020 outside AddNew/Edit).
    void Campo(const std::string& nombre, Valor valor);

    void AddNew(); // starts a new row, every field Null (the column's default if not set)
    void Edit();   // starts changes to the current row
    void Update(); // writes the new row or the changes; the position stays where it was
    void CancelUpdate();
    void Delete(); // deletes the current row; fields read 3021 until the next move

    // Runs the query again; positioned on the first row.
    void Requery();
    // Reads every row again from the file keeping the recordset's order and position; rows
    // no longer in the file drop out. Brings the rows back in line after a transaction was
    // taken back, without the reordering of a Requery.
    void Refrescar();
    void Close();

    const std::vector<std::string>& Columnas() const;

  private:
    friend class BaseDatos;
    struct Datos;
    explicit Recordset(std::unique_ptr<Datos> datos);
    std::unique_ptr<Datos> d_;
};

} // namespace trevalo
