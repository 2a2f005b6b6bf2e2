#pragma once
// The nine tables that hold a beam in a project file, column by column, each column with the
// field of the model it holds. The readers and writers of the store and of the interchange
// documents walk this one description, so a column is named in one place.
//
// Every table begins with NombreViga, the beam's name, which each writer puts itself (in
// GeneralViga it is the key of the beam). Rows are ordered by a key: the row's number for the
// spans, joints and types (Tramo, Numero, Tipo, not a field of the model); the joint's number,
// the first column, for the lists of joints and of actions (R3, R1, R10, R2). A load group is
// a count column (CantW2) and the numbered columns it governs (P1, LP1, P2 ...): slots 1 to
// the count of the span.

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/Viga.h"

namespace trevalo {

// The field behind a column, whose type is the column's: a value of the header, slot i of an
// array for row i, or slot (t, k) of a load array for slot k of span t.
using CampoViga =
    std::variant<std::int16_t VigaActual::*, std::uint8_t VigaActual::*, double VigaActual::*,
                 Arreglo<std::string> VigaActual::*, Arreglo<double> VigaActual::*,
                 Arreglo<std::int32_t> VigaActual::*, Arreglo<std::int16_t> VigaActual::*,
                 Arreglo<std::uint8_t> VigaActual::*, Arreglo2<std::int32_t> VigaActual::*,
                 Arreglo2<double> VigaActual::*>;

struct ColumnaViga {
    std::string nombre; // for a load group, the stem of its numbered columns ("P", "W3_")
    CampoViga campo;
    Arreglo<std::int16_t> VigaActual::*cuenta = nullptr; // a load group's count
    // A dimension of a type: a Null or not positive value reads as this on a concrete beam,
    // as 0 on a steel one.
    double defecto = 0;
};

// How many rows a table holds for the beam.
enum class FilasTabla {
    Cabecera, // one
    PorTramo, // one per span
    PorJunta, // one per joint
    Lista,    // the count `cuenta`: as many as the table has
    Tipos,    // as a list, but at least one: without rows, one type of default dimensions
};

struct TablaViga {
    std::string nombre;
    FilasTabla filas;
    std::vector<ColumnaViga> columnas;
    const char* numero = nullptr;               // the key, when it holds the row's number
    std::int16_t VigaActual::*cuenta = nullptr; // of a list
};

extern const TablaViga TablaGeneralViga;
extern const TablaViga TablaTramos;
extern const TablaViga TablaJuntas;
extern const TablaViga TablaCargasTramos;
// The eight tables after the header, in the order the beam is read and written.
extern const TablaViga* const TablasHijas[8];

// The column that orders the rows.
std::string Clave(const TablaViga& t);

// The rows the table holds for the beam.
long FilasViga(const TablaViga& t, const VigaActual& v);

namespace detalle {
template <typename V, typename T> decltype(auto) Celda(V& v, T VigaActual::*m, long, long) {
    return (v.*m);
}
template <typename V, typename T>
decltype(auto) Celda(V& v, Arreglo<T> VigaActual::*m, long fila, long) {
    return (v.*m)(fila);
}
template <typename V, typename T>
decltype(auto) Celda(V& v, Arreglo2<T> VigaActual::*m, long fila, long k) {
    return (v.*m)(fila, k);
}
} // namespace detalle

// Calls f(columna, nombre, celda) for the columns of row `fila` (span `fila` for the loads)
// in order, a load group once per slot up to the count the beam holds when the group is
// reached (so a reader has just read it). celda() is the model's value, a reference (const
// for a const beam); a column of several slots is `nombre` and the slot's number. The key that
// holds the row's number is not among the columns.
template <typename V, typename F> void RecorrerFila(const TablaViga& t, V& v, long fila, F f) {
    for (const ColumnaViga& c : t.columnas) {
        const long ranuras = c.cuenta ? (v.*c.cuenta)(fila) : 1;
        for (long k = 1; k <= ranuras; ++k) {
            const std::string nombre = c.cuenta ? c.nombre + std::to_string(k) : c.nombre;
            std::visit(
                [&](auto campo) {
                    f(c, nombre, [&v, campo, fila, k]() -> decltype(auto) {
                        return detalle::Celda(v, campo, fila, k);
                    });
                },
                c.campo);
        }
    }
}

// --- Reading ---------------------------------------------------------------------------------
// One way of reading for every source of the tables, which supplies a lector with
//   long Abrir(const TablaViga&)         opens the beam's rows in key order; how many
//   void Ir(const TablaViga&, long fila, long filas)    goes to row `fila` of the `filas` read
//   void Leer(const std::string& columna, celda)        sets celda() from the column
//   std::optional<double> LeerONulo(const std::string& columna)    a number, or Null

// A dimension of a type as it is read.
double DimensionTipo(std::optional<double> valor, bool concreto, double defecto);

// Sets the dimensions of type `fila` from valor(columna), a number or Null.
template <typename F> void LeerDimensiones(const TablaViga& t, VigaActual& v, long fila, F valor) {
    for (const ColumnaViga& c : t.columnas)
        if (c.defecto != 0)
            (v.*std::get<Arreglo<double> VigaActual::*>(c.campo))(fila) =
                DimensionTipo(valor(c.nombre), v.OpcionConcreto == 0, c.defecto);
}

// Before the rows of a table with `filas` rows are read: a list takes its count from them and
// its arrays are sized to it. Returns the rows to read: none when the table is empty (the
// beam keeps the defaults), else those the beam holds.
long PrepararTabla(const TablaViga& t, VigaActual& v, long filas);

// After the spans: LongTotal, and FMayorTramo of every span FMayoracion when they were read,
// 0 when not.
void CompletarTramos(VigaActual& v, bool leidos);

// Reads row `fila` of the table where the lector stands. The dimensions of a type are read
// after its other columns.
template <typename L> void LeerFilaViga(L& lector, const TablaViga& t, VigaActual& v, long fila) {
    RecorrerFila(t, v, fila, [&](const ColumnaViga& c, const std::string& nombre, auto celda) {
        if (c.defecto == 0) lector.Leer(nombre, celda);
    });
    LeerDimensiones(t, v, fila, [&](const std::string& c) { return lector.LeerONulo(c); });
}

// Reads the tables after the header has been read, every array sized anew. A
// table shorter than the spans or joints raises the lector's error at the first missing row.
template <typename L> void LeerTablasViga(L& lector, VigaActual& v) {
    ReiniciarArreglosViga(v);
    for (const TablaViga* t : TablasHijas) {
        const long filas = PrepararTabla(*t, v, lector.Abrir(*t));
        for (long i = 1; i <= filas; ++i) {
            lector.Ir(*t, i, filas);
            LeerFilaViga(lector, *t, v, i);
        }
        if (t == &TablaTramos) CompletarTramos(v, filas > 0);
    }
}

} // namespace trevalo
