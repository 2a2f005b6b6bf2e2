#include "store/BaseDatos.h"

#include <filesystem>
#include <optional>

#include "model/Conversiones.h"
#include "store/ColumnasViga.h"

namespace trevalo {

const char* const TablasViga[9] = {
    "AccionesNodales",    "CargasTramos", "Juntas", "JuntasDesplazadas", "JuntasResortes",
    "JuntasRestringidas", "TiposVigas",   "Tramos", "GeneralViga",
};

namespace {

// --- Fields of the program's types ---------------------------------------------------------

template <typename T> T Convertir(const Valor& v);
template <> double Convertir<double>(const Valor& v) {
    return v.Doble();
}
template <> std::int32_t Convertir<std::int32_t>(const Valor& v) {
    return v.Entero32();
}
template <> std::int16_t Convertir<std::int16_t>(const Valor& v) {
    return v.Entero16();
}
template <> std::uint8_t Convertir<std::uint8_t>(const Valor& v) {
    return v.Byte();
}
template <> std::string Convertir<std::string>(const Valor& v) {
    return v.Texto();
}

template <typename T> void Leer(const Recordset& rs, const std::string& campo, T& destino) {
    destino = Convertir<T>(rs.Campo(campo));
}

// The header of a beam in GeneralViga, by a name compared without regard to case.
const char* const CabeceraViga = "SELECT * FROM GeneralViga WHERE NombreViga=? COLLATE ESPANOL";

// The name of the beam as GeneralViga stores it, or `nombre` itself when there is none.
std::string NombreEnArchivo(BaseDatos& bd, const std::string& nombre) {
    auto rs = bd.AbrirRecordset(CabeceraViga, {nombre});
    return rs.RecordCount() ? rs.Campo("NombreViga").Texto() : nombre;
}

// Deletes the rows of the beam stored as `guardado` from the eight child tables.
void BorrarFilasHijas(BaseDatos& bd, const std::string& guardado) {
    for (long i = 0; i < 8; ++i)
        bd.Ejecutar(std::string("DELETE FROM ") + TablasViga[i] + " WHERE NombreViga=?",
                    {guardado});
}

// Opens the rows of one beam in a table, in the order of its key, with the count exact.
Recordset FilasDeViga(BaseDatos& bd, const std::string& tabla, const std::string& orden,
                      const std::string& nombre) {
    auto rs = bd.AbrirRecordset("SELECT * FROM " + tabla + " WHERE NombreViga=? ORDER BY " + orden,
                                {nombre});
    if (rs.RecordCount() > 0) {
        rs.MoveLast();
        rs.MoveFirst();
    }
    return rs;
}

// --- LeerViga --------------------------------------------------------------------------------

// The store's side of reading a beam: the rows of one table at a time, or the header's row.
class LectorTablas {
  public:
    LectorTablas(BaseDatos& bd, std::string nombre) : bd_(&bd), nombre_(std::move(nombre)) {}
    explicit LectorTablas(Recordset& rs) : rs_(&rs) {}

    long Abrir(const TablaViga& t) {
        abierto_.emplace(FilasDeViga(*bd_, t.nombre, Clave(t), nombre_));
        rs_ = &*abierto_;
        return rs_->RecordCount();
    }
    // Past the last row, the next field read raises 3021.
    void Ir(const TablaViga&, long fila, long) {
        if (fila > 1) rs_->MoveNext();
    }
    template <typename C> void Leer(const std::string& columna, C celda) {
        auto& destino = celda(); // the slot first: a count beyond the slots is error 9
        trevalo::Leer(*rs_, columna, destino);
    }
    std::optional<double> LeerONulo(const std::string& columna) const {
        const Valor& campo = rs_->Campo(columna);
        if (campo.EsNulo()) return std::nullopt;
        return campo.Doble();
    }

  private:
    BaseDatos* bd_ = nullptr;
    std::string nombre_;
    std::optional<Recordset> abierto_;
    Recordset* rs_ = nullptr;
};

void LeerCabecera(Recordset& rs, VigaActual& v) {
    LectorTablas lector(rs);
    LeerFilaViga(lector, TablaGeneralViga, v, 1);
}

void LeerTablasHijas(BaseDatos& bd, const std::string& guardado, VigaActual& v) {
    LectorTablas lector(bd, guardado);
    LeerTablasViga(lector, v);
}

// --- SalvarViga and CopiarViga ---------------------------------------------------------------

// How the two writers differ: the name written, the copy's quirks.
struct FormaEscritura {
    std::string nombre;
    bool copia; // every joint's dimensions written; W3_k receives P(t, k)
};

// The dimensions of a joint, written by SalvarViga only where it carries a vertical support.
bool CotaJunta(const CampoViga& c) {
    return c == CampoViga{&VigaActual::LDer} || c == CampoViga{&VigaActual::LIzq} ||
           c == CampoViga{&VigaActual::HC};
}

// Sets the fields of a row from the beam; a joint's dimensions as 0 without `cotas`.
void EscribirCampos(Recordset& rs, const TablaViga& t, const VigaActual& v, long fila,
                    bool cotas = true) {
    if (t.numero) rs.Campo(t.numero, Valor(static_cast<int>(fila)));
    RecorrerFila(t, v, fila, [&](const ColumnaViga& c, const std::string& nombre, auto celda) {
        rs.Campo(nombre, cotas || !CotaJunta(c.campo) ? Valor(celda()) : Valor(0.0));
    });
}

void EscribirCabecera(Recordset& rs, const VigaActual& v) {
    EscribirCampos(rs, TablaGeneralViga, v, 1);
    rs.Update();
}

// Clears the beam's rows of a table, then adds rows 1..n through `escribirFila`.
template <typename F>
void ReescribirTabla(BaseDatos& bd, const std::string& tabla, const std::string& nombre, long n,
                     F escribirFila) {
    bd.Ejecutar("DELETE FROM " + tabla + " WHERE NombreViga=?", {nombre});
    auto rs = bd.AbrirRecordset("SELECT * FROM " + tabla + " WHERE NombreViga=?", {nombre});
    for (long i = 1; i <= n; ++i) {
        rs.AddNew();
        rs.Campo("NombreViga", Valor(nombre));
        escribirFila(rs, i);
        rs.Update();
    }
    rs.Close();
}

// A joint carries a vertical support: restrained other than a roller in Y, or a spring
// with vertical stiffness.
bool ApoyoVertical(const VigaActual& v, long j) {
    for (long i = 1; i <= v.NJRest; ++i)
        if (v.R1(i) == j && v.Apoyo(i) != RodilloEnY) return true;
    for (long i = 1; i <= v.NJRes; ++i)
        if (v.R10(i) == j && v.SV10(i) != 0) return true;
    return false;
}

// The loads as the copy writes them: column W3_k receives P(t, k). Kept: users rely on it.
const TablaViga& CargasDeCopia() {
    static const TablaViga cargas = [] {
        TablaViga t = TablaCargasTramos;
        for (ColumnaViga& c : t.columnas)
            if (c.campo == CampoViga{&VigaActual::W3_}) c.campo = &VigaActual::P;
        return t;
    }();
    return cargas;
}

void EscribirTablasHijas(BaseDatos& bd, const VigaActual& v, const FormaEscritura& forma) {
    for (const TablaViga* t : TablasHijas) {
        const TablaViga& tabla = forma.copia && t == &TablaCargasTramos ? CargasDeCopia() : *t;
        ReescribirTabla(
            bd, tabla.nombre, forma.nombre, FilasViga(tabla, v), [&](Recordset& rs, long i) {
                const bool cotas = forma.copia || t != &TablaJuntas || ApoyoVertical(v, i);
                EscribirCampos(rs, tabla, v, i, cotas);
            });
    }
}

// Runs a write of the beam in one transaction; on failure brings the beam list back in line
// with the file and raises the engine's error with the text the user reads.
template <typename F> void EscribirViga(EstadoProyecto& estado, F escribir) {
    try {
        Transaccion t(ProyectoAbierto(estado));
        escribir(ProyectoAbierto(estado), ListaVigasAbierta(estado));
        t.Confirmar();
    } catch (const ErrorTrevalo& e) {
        // The transaction is taken back by now; the list re-reads the rows it had touched.
        try {
            if (estado.RsGeneralViga) estado.RsGeneralViga->Refrescar();
        } catch (const ErrorTrevalo&) {
            // The list stays as it was; the message below is the one that matters.
        }
        throw ErrorTrevalo(e.Numero(), e.Descripcion() + "...    ");
    }
}

} // namespace

// --- Public operations -----------------------------------------------------------------------

BaseDatos& ProyectoAbierto(EstadoProyecto& estado) {
    if (!estado.BDProyecto)
        throw ErrorTrevalo(ErrObjetoNoEstablecido,
                           "Variable de objeto o bloque With no establecido");
    return *estado.BDProyecto;
}

Recordset& ListaVigasAbierta(EstadoProyecto& estado) {
    if (!estado.RsGeneralViga)
        throw ErrorTrevalo(ErrObjetoNoEstablecido,
                           "Variable de objeto o bloque With no establecido");
    return *estado.RsGeneralViga;
}

namespace {

// Whether the database holds every table named.
bool TieneTablas(BaseDatos& bd, const std::vector<std::string>& tablas) {
    for (const auto& tabla : tablas)
        if (bd.AbrirRecordset("SELECT * FROM sqlite_master WHERE type='table' AND name=? "
                              "COLLATE NOCASE",
                              {tabla})
                .RecordCount() == 0)
            return false;
    return true;
}

} // namespace

BaseDatos AbrirBaseConTablas(const std::string& ruta, const std::vector<std::string>& tablas,
                             const std::string& noEs) {
    if (!std::filesystem::is_regular_file(ruta))
        throw ErrorTrevalo(ErrArchivoNoEncontrado, "No existe el archivo: " + ruta);
    const ErrorTrevalo noEsBase(ErrFormatoNoReconocido, noEs + ruta);
    try {
        BaseDatos bd = BaseDatos::AbrirComoEsta(ruta);
        if (!TieneTablas(bd, tablas)) throw noEsBase;
    } catch (const ErrorTrevalo& e) {
        if (e.Numero() == ErrFormatoNoReconocido) throw;
        throw ErrorTrevalo(ErrFormatoNoReconocido,
                           noEsBase.Descripcion() + " (" + e.Descripcion() + ")");
    }
    return BaseDatos::Abrir(ruta); // a file of an earlier version is converted here
}

void AbrirProyectoArchivo(const std::string& ruta, EstadoProyecto& estado) {
    BaseDatos bd = AbrirBaseConTablas(ruta, {std::begin(TablasViga), std::end(TablasViga)},
                                      "El archivo no es un proyecto de vigas: ");
    estado.BDProyecto = std::move(bd);
    estado.NombreProyecto = std::filesystem::path(ruta).filename().string();
    AbrirRsGeneralViga(estado, ConsultaListaVigas);
}

void AbrirRsGeneralViga(EstadoProyecto& estado, const std::string& sql) {
    estado.RsGeneralViga.emplace(ProyectoAbierto(estado).AbrirRecordset(sql));
    if (estado.RsGeneralViga->RecordCount() > 0) {
        estado.RsGeneralViga->MoveLast();
        estado.RsGeneralViga->MoveFirst();
    }
}

void LeerGeneralProyecto(BaseDatos& bd, ProyectoActual& p) {
    auto rs = bd.AbrirRecordset("GeneralProyecto");
    rs.MoveFirst();
    Leer(rs, "Proyecto", p.Proyecto);
    Leer(rs, "Propietario", p.Propietario);
    Leer(rs, "Fecha", p.ProyFecha);
    Leer(rs, "Calculista", p.Calculista);
    Leer(rs, "Comentario", p.Comentario);
    Leer(rs, "Cliente", p.Cliente);
    p.PPV = rs.Campo("PPV").Logico();
    p.DEFCOR = rs.Campo("DEFCOR").Logico();
    Leer(rs, "FC", p.FC);
    Leer(rs, "FY", p.FY);
    Leer(rs, "D8", p.D8);
    Leer(rs, "PesoConcreto", p.PesoConcreto);
    Leer(rs, "CFormaConcreto", p.CFormaConcreto);
    Leer(rs, "ModuloAcero", p.ModuloAcero);
    Leer(rs, "PesoAcero", p.PesoAcero);
    Leer(rs, "CFormaAcero", p.CFormaAcero);
    p.OpcionEstribos = rs.Campo("OpcionEstribos").Logico();
    rs.Close();
}

void SalvarGeneralProyecto(BaseDatos& bd, const ProyectoActual& p) {
    Transaccion t(bd);
    bd.Ejecutar("DELETE FROM GeneralProyecto");
    auto rs = bd.AbrirRecordset("GeneralProyecto");
    rs.AddNew();
    rs.Campo("Proyecto", Valor(p.Proyecto));
    rs.Campo("Propietario", Valor(p.Propietario));
    rs.Campo("Fecha", Valor(p.ProyFecha));
    rs.Campo("Calculista", Valor(p.Calculista));
    rs.Campo("Comentario", Valor(p.Comentario));
    rs.Campo("Cliente", Valor(p.Cliente));
    rs.Campo("PPV", Valor(p.PPV));
    rs.Campo("DEFCOR", Valor(p.DEFCOR));
    rs.Campo("FC", Valor(p.FC));
    rs.Campo("FY", Valor(p.FY));
    rs.Campo("D8", Valor(p.D8));
    rs.Campo("PesoConcreto", Valor(p.PesoConcreto));
    rs.Campo("CFormaConcreto", Valor(p.CFormaConcreto));
    rs.Campo("ModuloAcero", Valor(p.ModuloAcero));
    rs.Campo("PesoAcero", Valor(p.PesoAcero));
    rs.Campo("CFormaAcero", Valor(p.CFormaAcero));
    rs.Campo("OpcionEstribos", Valor(p.OpcionEstribos));
    rs.Update();
    t.Confirmar();
}

std::function<void(ProyectoActual&)> LectorGeneralProyecto(const BaseDatos& bd) {
    return [bd](ProyectoActual& p) {
        BaseDatos copia = bd;
        LeerGeneralProyecto(copia, p);
    };
}

void LeerViga(EstadoProyecto& estado, VigaActual& v) {
    try {
        BaseDatos& bd = ProyectoAbierto(estado);
        auto cabecera = bd.AbrirRecordset(CabeceraViga, {v.NombreVigaActual});
        if (cabecera.RecordCount() == 0) {
            NuevaVigaDefecto(v);
            return;
        }
        const std::string guardado = cabecera.Campo("NombreViga").Texto();
        LeerCabecera(cabecera, v);
        cabecera.Close();
        LeerTablasHijas(bd, guardado, v);
    } catch (...) {
        // Whatever stopped the read, nothing half read is left to be shown as the beam.
        NuevaVigaDefecto(v);
        throw ErrorTrevalo(ErrorDeExcepcion(std::current_exception()).Numero(),
                           "Hay un Error en los Datos de la Viga: " + v.NombreVigaActual +
                               "...    ");
    }
}

void SalvarViga(EstadoProyecto& estado, VigaActual& v) {
    EscribirViga(estado, [&](BaseDatos& bd, Recordset& lista) {
        std::string guardado = v.NombreVigaActual;
        if (v.VigaNueva) {
            lista.AddNew();
            lista.Campo("NombreViga", Valor(guardado));
        } else {
            lista.Edit();
            guardado = lista.Campo("NombreViga").Texto();
        }
        EscribirCabecera(lista, v);
        EscribirTablasHijas(bd, v, {guardado, false});
    });
    v.VigaNueva = false;
}

void CopiarViga(EstadoProyecto& estado, const VigaActual& v) {
    const std::string copia = estado.NombreCopiaViga;
    EscribirViga(estado, [&](BaseDatos& bd, Recordset& lista) {
        const std::string anterior = NombreEnArchivo(bd, copia);
        BorrarFilasHijas(bd, anterior);
        bd.Ejecutar("DELETE FROM GeneralViga WHERE NombreViga=?", {anterior});
        lista.AddNew();
        lista.Campo("NombreViga", Valor(copia));
        EscribirCabecera(lista, v);
        EscribirTablasHijas(bd, v, {copia, true});
    });
}

bool ExisteViga(BaseDatos& bd, const std::string& nombre) {
    return bd.AbrirRecordset(CabeceraViga, {nombre}).RecordCount() > 0;
}

std::string NombreVigaGuardado(BaseDatos& bd, const std::string& nombre) {
    auto rs = bd.AbrirRecordset(CabeceraViga, {nombre});
    if (rs.RecordCount() == 0)
        throw ErrorTrevalo(ErrNoEnColeccion, "La viga no existe en el proyecto: " + nombre);
    return rs.Campo("NombreViga").Texto();
}

void RenombrarViga(EstadoProyecto& estado) {
    BaseDatos& bd = ProyectoAbierto(estado);
    Recordset& lista = ListaVigasAbierta(estado);
    Transaccion t(bd);
    for (const char* tabla : TablasViga) {
        const std::string viejo = lista.Campo("NombreViga").Texto();
        bd.Ejecutar(std::string("UPDATE ") + tabla + " SET NombreViga=? WHERE NombreViga=?",
                    {estado.NombreRenombrar, viejo});
    }
    t.Confirmar();
}

void EliminarViga(EstadoProyecto& estado, const std::string& nombre) {
    BaseDatos& bd = ProyectoAbierto(estado);
    Recordset& lista = ListaVigasAbierta(estado);
    Transaccion t(bd);
    BorrarFilasHijas(bd, NombreEnArchivo(bd, nombre));
    lista.Delete();
    t.Confirmar();
}

} // namespace trevalo
