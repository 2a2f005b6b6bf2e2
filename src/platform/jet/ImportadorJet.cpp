#include "platform/jet/ImportadorJet.h"

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>

#include <mdbtools.h>

#include "platform/motor/MotorDatos.h"

namespace trevalo {

namespace {

namespace fs = std::filesystem;

constexpr int MascaraDesplazamiento = 0x1fff; // offset bits of a row pointer of a data page
constexpr size_t TamanoTextoMaximo = 262144;  // bytes of the longest memo, as UTF-8

// The first bytes of every Jet file: a page of type 0 and the "Standard Jet DB" signature.
bool PareceJet(const std::string& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    char cabecera[20] = {};
    if (!f.read(cabecera, sizeof cabecera)) return false;
    return cabecera[0] == 0 && std::string(cabecera + 4, 15) == "Standard Jet DB";
}

struct CerrarMdb {
    void operator()(MdbHandle* mdb) const { mdb_close(mdb); }
};
using Mdb = std::unique_ptr<MdbHandle, CerrarMdb>;

struct LiberarTabla {
    void operator()(MdbTableDef* t) const { mdb_free_tabledef(t); }
};
using TablaMdb = std::unique_ptr<MdbTableDef, LiberarTabla>;

std::string Comillas(const std::string& nombre) {
    std::string r = "\"";
    for (char c : nombre) r += c == '"' ? std::string("\"\"") : std::string(1, c);
    return r + "\"";
}

std::string TipoColumna(const MdbHandle* mdb, const MdbColumn* col) {
    const bool jet4 = mdb->f->jet_version != MDB_VER_JET3;
    switch (col->col_type) {
    case MDB_BOOL:
        return "BOOLEAN";
    case MDB_BYTE:
        return "TINYINT";
    case MDB_INT:
        return "SMALLINT";
    case MDB_LONGINT:
        return "INTEGER";
    case MDB_MONEY:
        return "CURRENCY";
    case MDB_FLOAT:
        return "REAL";
    case MDB_DOUBLE:
        return "DOUBLE";
    case MDB_DATETIME:
        return "DATETIME";
    case MDB_BINARY:
        return "VARBINARY(" + std::to_string(col->col_size) + ")";
    case MDB_TEXT: // Jet 4 keeps two bytes a character
        return "VARCHAR(" + std::to_string(jet4 ? col->col_size / 2 : col->col_size) + ")";
    case MDB_OLE:
        return "LONGBINARY";
    case MDB_MEMO:
        return "LONGTEXT";
    case MDB_REPID:
        return "GUID";
    case MDB_NUMERIC:
        return "DECIMAL(" + std::to_string(col->col_prec) + "," + std::to_string(col->col_scale) +
               ")";
    default:
        return "TEXT";
    }
}

} // namespace

std::string TextoFechaJet(double dias, FamiliaJet familia) {
    std::tm t{};
    mdb_date_to_tm(dias, &t);
    char texto[80];
    if (familia == FamiliaJet::Proyecto)
        std::snprintf(texto, sizeof texto, "%02d/%02d/%04d", t.tm_mday, t.tm_mon + 1,
                      t.tm_year + 1900);
    else
        std::snprintf(texto, sizeof texto, "%04d-%02d-%02d %02d:%02d:%02d", t.tm_year + 1900,
                      t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec);
    return texto;
}

namespace {

// One open table with its columns bound, read row by row.
class LectorTabla {
  public:
    LectorTabla(MdbHandle* mdb, MdbCatalogEntry* entrada, FamiliaJet familia)
        : mdb_(mdb), familia_(familia), tabla_(mdb_read_table(entrada)) {
        if (!tabla_) throw NoLegible(entrada->object_name);
        mdb_read_columns(tabla_.get());
        mdb_rewind_table(tabla_.get());
        const unsigned n = tabla_->num_cols;
        texto_.assign(n, std::vector<char>(mdb->bind_size + 1));
        largo_.assign(n, 0);
        for (unsigned i = 0; i < n; ++i)
            mdb_bind_column(tabla_.get(), i + 1, texto_[i].data(), &largo_[i]);
    }

    static ErrorTrevalo NoLegible(const std::string& tabla) {
        return {ErrFormatoNoReconocido, "No se puede leer la tabla \"" + tabla + "\" del archivo."};
    }

    unsigned Columnas() const { return tabla_->num_cols; }
    MdbColumn* Columna(unsigned i) const {
        return static_cast<MdbColumn*>(g_ptr_array_index(tabla_->columns, i));
    }

    // The next row's values, or false at the end.
    bool Siguiente(Parametros& valores) {
        if (!mdb_fetch_row(tabla_.get())) return false;
        const std::vector<bool> nulos = Nulos();
        valores.clear();
        for (unsigned i = 0; i < Columnas(); ++i)
            valores.push_back(nulos[i] ? Valor() : ValorDe(i));
        return true;
    }

  private:
    // Null flags of the row just fetched, from the row's own null mask (the bound text of a
    // null and of an empty text are alike).
    std::vector<bool> Nulos() {
        std::vector<bool> nulos(Columnas(), false);
        int inicio = 0;
        size_t largo = 0;
        if (mdb_find_row(mdb_, static_cast<int>(tabla_->cur_row) - 1, &inicio, &largo) != 0)
            return nulos;
        std::vector<MdbField> campos(Columnas());
        const int n =
            mdb_crack_row(tabla_.get(), inicio & MascaraDesplazamiento, largo, campos.data());
        for (int k = 0; k < n && k < static_cast<int>(Columnas()); ++k) {
            const unsigned col = static_cast<unsigned>(campos[k].colnum);
            if (col < Columnas() && Columna(col)->col_type != MDB_BOOL)
                nulos[col] = campos[k].is_null != 0;
        }
        return nulos;
    }

    Valor ValorDe(unsigned i) {
        MdbColumn* col = Columna(i);
        const std::string texto(texto_[i].data(), static_cast<size_t>(largo_[i]));
        unsigned char* fila = mdb_->pg_buf;
        const int inicio = col->cur_value_start;
        switch (col->col_type) {
        case MDB_BOOL:
            return Valor(texto == "1");
        case MDB_BYTE:
            return Valor(std::int64_t{mdb_get_byte(fila, inicio)});
        case MDB_INT:
            return Valor(std::int64_t{mdb_get_int16(fila, inicio)});
        case MDB_LONGINT:
            return Valor(std::int64_t{mdb_get_int32(fila, inicio)});
        case MDB_FLOAT:
            return Valor(double{mdb_get_single(fila, inicio)});
        case MDB_DOUBLE:
            return Valor(mdb_get_double(fila, inicio));
        case MDB_DATETIME:
            return Valor(TextoFechaJet(mdb_get_double(fila, inicio), familia_));
        case MDB_MONEY:
        case MDB_NUMERIC:
            return Valor(std::stod(texto));
        case MDB_BINARY:
            return Valor(Valor::Binario(fila + inicio, fila + inicio + col->cur_value_len));
        case MDB_OLE:
            return Ole(col);
        default:
            return Valor(texto);
        }
    }

    Valor Ole(MdbColumn* col) {
        size_t tamano = 0;
        void* datos = mdb_ole_read_full(mdb_, col, &tamano);
        if (datos == nullptr) return Valor(Valor::Binario{});
        const auto* bytes = static_cast<const std::uint8_t*>(datos);
        Valor v(Valor::Binario(bytes, bytes + tamano));
        g_free(datos);
        return v;
    }

    MdbHandle* mdb_;
    FamiliaJet familia_;
    TablaMdb tabla_;
    std::vector<std::vector<char>> texto_;
    std::vector<int> largo_;
};

std::vector<MdbCatalogEntry*> TablasDeUsuario(MdbHandle* mdb) {
    if (!mdb_read_catalog(mdb, MDB_TABLE)) throw LectorTabla::NoLegible("catálogo");
    std::vector<MdbCatalogEntry*> tablas;
    for (unsigned i = 0; i < mdb->num_catalog; ++i) {
        auto* e = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb->catalog, i));
        if (e->object_type == MDB_TABLE && mdb_is_user_table(e)) tablas.push_back(e);
    }
    return tablas;
}

std::vector<std::string> TablasDeFamilia(FamiliaJet familia) {
    switch (familia) {
    case FamiliaJet::Proyecto:
        return {"GeneralProyecto",   "GeneralViga",        "Tramos",         "Juntas",
                "JuntasDesplazadas", "Juntasrestringidas", "JuntasResortes", "TiposVigas",
                "CargasTramos",      "AccionesNodales"};
    case FamiliaJet::TablaPerfiles:
        return {"GeneralPerfil", "DatosPerfil"};
    default:
        return {};
    }
}

std::string Mayusculas(std::string s) {
    for (char& c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return s;
}

void ComprobarFamilia(const std::vector<MdbCatalogEntry*>& tablas, FamiliaJet familia,
                      const std::string& origen) {
    std::string faltan;
    for (const std::string& nombre : TablasDeFamilia(familia)) {
        bool esta = false;
        for (const MdbCatalogEntry* e : tablas)
            esta = esta || Mayusculas(e->object_name) == Mayusculas(nombre);
        if (!esta) faltan += (faltan.empty() ? "" : ", ") + nombre;
    }
    if (faltan.empty()) return;
    const std::string que =
        familia == FamiliaJet::Proyecto ? "un proyecto" : "una tabla de perfiles";
    throw ErrorTrevalo(ErrTablaNoEncontrada, "Al archivo \"" + origen + "\" le faltan tablas de " +
                                                 que + ": " + faltan + ".");
}

long CopiarTabla(MdbHandle* mdb, MdbCatalogEntry* entrada, FamiliaJet familia, BaseDatos& bd) {
    LectorTabla lector(mdb, entrada, familia);
    std::string columnas, marcas, nombres;
    for (unsigned i = 0; i < lector.Columnas(); ++i) {
        const MdbColumn* c = lector.Columna(i);
        const std::string sep = i == 0 ? "" : ", ";
        columnas += sep + Comillas(c->name) + " " + TipoColumna(mdb, c);
        nombres += sep + Comillas(c->name);
        marcas += sep + "?";
    }
    const std::string tabla = Comillas(entrada->object_name);
    bd.Ejecutar("CREATE TABLE " + tabla + " (" + columnas + ")");
    const std::string insertar =
        "INSERT INTO " + tabla + " (" + nombres + ") VALUES (" + marcas + ")";
    long filas = 0;
    Parametros valores;
    while (lector.Siguiente(valores)) {
        bd.Ejecutar(insertar, valores);
        ++filas;
    }
    return filas;
}

// Writes every table into the scratch file, in one transaction.
ResultadoImportacion Copiar(MdbHandle* mdb, const std::vector<MdbCatalogEntry*>& tablas,
                            FamiliaJet familia, const std::string& temporal) {
    ResultadoImportacion r;
    r.Version = mdb->f->jet_version == MDB_VER_JET3 ? "Jet 3" : "Jet 4";
    BaseDatos bd = BaseDatos::Crear(temporal);
    Transaccion tr(bd);
    for (MdbCatalogEntry* e : tablas)
        r.Tablas.emplace_back(e->object_name, CopiarTabla(mdb, e, familia, bd));
    tr.Confirmar();
    return r;
}

Mdb AbrirJet(const std::string& origen) {
    std::error_code ec;
    if (!fs::is_regular_file(origen, ec))
        throw ErrorTrevalo(ErrArchivoNoEncontrado, "No se encontró el archivo \"" + origen + "\".");
    const ErrorTrevalo noEsJet(ErrFormatoNoReconocido,
                               "El archivo \"" + origen +
                                   "\" no es una base de datos Jet 3 ni Jet 4.");
    if (!PareceJet(origen)) throw noEsJet;
    Mdb mdb(mdb_open(origen.c_str(), MDB_NOFLAGS));
    if (!mdb) throw noEsJet;
    if (mdb->f->jet_version != MDB_VER_JET3 && mdb->f->jet_version != MDB_VER_JET4) throw noEsJet;
    mdb_set_boolean_fmt_numbers(mdb.get());
    mdb_set_bind_size(mdb.get(), TamanoTextoMaximo);
    return mdb;
}

void BorrarTemporal(const std::string& temporal) {
    std::error_code ec;
    for (const char* sufijo : {"", "-journal", "-wal", "-shm"}) fs::remove(temporal + sufijo, ec);
}

} // namespace

ResultadoImportacion ImportarJet(const std::string& origen, const std::string& destino,
                                 FamiliaJet familia) {
    std::error_code ec;
    if (fs::exists(destino, ec))
        throw ErrorTrevalo(ErrArchivoYaExiste, "Ya existe el archivo \"" + destino + "\".");
    Mdb mdb = AbrirJet(origen);
    const auto tablas = TablasDeUsuario(mdb.get());
    ComprobarFamilia(tablas, familia, origen);

    const std::string temporal = destino + ".importando";
    BorrarTemporal(temporal);
    try {
        ResultadoImportacion r = Copiar(mdb.get(), tablas, familia, temporal);
        fs::rename(temporal, destino);
        return r;
    } catch (...) {
        BorrarTemporal(temporal);
        throw;
    }
}

} // namespace trevalo
