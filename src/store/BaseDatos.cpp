#include "store/BaseDatos.h"

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

// Reads slots 1..n of span t; the field of slot k is the base and k ("P3", "La6_2").
template <typename T>
void LeerRanuras(const Recordset& rs, const std::string& base, Arreglo2<T>& a, long t, long n) {
    for (long k = 1; k <= n; ++k) Leer(rs, base + std::to_string(k), a(t, k));
}

template <typename T>
void EscribirRanuras(Recordset& rs, const std::string& base, const Arreglo2<T>& a, long t, long n) {
    for (long k = 1; k <= n; ++k) rs.Campo(base + std::to_string(k), Valor(a(t, k)));
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

// --- LeerViga, table by table ------------------------------------------------------------

void LeerCabecera(Recordset& rs, VigaActual& v) {
    Leer(rs, "NT", v.NT);
    Leer(rs, "OpcionConcreto", v.OpcionConcreto);
    Leer(rs, "OpcionCarga", v.OpcionCarga);
    Leer(rs, "FMayoracionTC", v.FMayoracionTC);
    Leer(rs, "FMayoracion", v.FMayoracion);
}

void LeerTramos(BaseDatos& bd, VigaActual& v) {
    for (auto* a : {&v.LT, &v.VT, &v.FMayorTramo}) a->Redim(v.NT);
    for (auto* a : {&v.CantW2, &v.CantW3, &v.CantW6, &v.CantW7, &v.CantW8}) a->Redim(v.NT);
    v.TramoMarcado.Redim(v.NT);
    v.LongTotal = 0;
    auto rs = FilasDeViga(bd, "Tramos", "Tramo", v.NombreVigaActual);
    if (rs.RecordCount() == 0) return;
    for (long t = 1; t <= v.NT; ++t) {
        Leer(rs, "LT", v.LT(t));
        v.LongTotal += v.LT(t);
        Leer(rs, "VT", v.VT(t));
        v.FMayorTramo(t) = v.FMayoracion;
        rs.MoveNext();
    }
}

void LeerJuntas(BaseDatos& bd, VigaActual& v) {
    v.NombreEje.Redim(v.NT + 1);
    for (auto* a : {&v.LDer, &v.LIzq, &v.HC}) a->Redim(v.NT + 1);
    auto rs = FilasDeViga(bd, "Juntas", "Numero", v.NombreVigaActual);
    for (long j = 1; j <= v.NT + 1; ++j) {
        if (rs.RecordCount() == 0) {
            v.LDer(j) = 0.15;
            v.LIzq(j) = 0.15;
            v.HC(j) = 0.5;
            continue;
        }
        Leer(rs, "NombreEje", v.NombreEje(j));
        Leer(rs, "LDer", v.LDer(j));
        Leer(rs, "LIzq", v.LIzq(j));
        Leer(rs, "HC", v.HC(j));
        rs.MoveNext();
    }
}

// A list of joints or actions: a count, the arrays sized to it, the rows in key order.
template <typename D, typename F>
void LeerLista(BaseDatos& bd, const VigaActual& v, const std::string& tabla,
               const std::string& clave, std::int16_t& cuenta, D dimensionar, F leerFila) {
    auto rs = FilasDeViga(bd, tabla, clave, v.NombreVigaActual);
    cuenta = Valor(rs.RecordCount()).Entero16();
    dimensionar(cuenta);
    for (long i = 1; i <= cuenta; ++i) {
        leerFila(rs, i);
        rs.MoveNext();
    }
}

void LeerListas(BaseDatos& bd, VigaActual& v) {
    LeerLista(
        bd, v, "JuntasDesplazadas", "R3", v.NJDesp,
        [&](long n) {
            v.R3.Redim(n);
            for (auto* a : {&v.XX, &v.YY}) a->Redim(n);
        },
        [&](Recordset& rs, long i) {
            Leer(rs, "R3", v.R3(i));
            Leer(rs, "XX", v.XX(i));
            Leer(rs, "YY", v.YY(i));
        });
    LeerLista(
        bd, v, "Juntasrestringidas", "R1", v.NJRest,
        [&](long n) {
            for (auto* a : {&v.R1, &v.Apoyo}) a->Redim(n);
        },
        [&](Recordset& rs, long i) {
            Leer(rs, "R1", v.R1(i));
            Leer(rs, "Apoyo", v.Apoyo(i));
        });
    LeerLista(
        bd, v, "JuntasResortes", "R10", v.NJRes,
        [&](long n) {
            v.R10.Redim(n);
            for (auto* a : {&v.SH10, &v.SV10, &v.SM10}) a->Redim(n);
        },
        [&](Recordset& rs, long i) {
            Leer(rs, "R10", v.R10(i));
            Leer(rs, "SH10", v.SH10(i));
            Leer(rs, "SV10", v.SV10(i));
            Leer(rs, "SM10", v.SM10(i));
        });
}

void LeerAcciones(BaseDatos& bd, VigaActual& v) {
    LeerLista(
        bd, v, "AccionesNodales", "R2", v.NAcc,
        [&](long n) {
            v.R2.Redim(n);
            for (auto* a : {&v.QC1, &v.QC2, &v.QC3}) a->Redim(n);
        },
        [&](Recordset& rs, long i) {
            Leer(rs, "R2", v.R2(i));
            Leer(rs, "QC1", v.QC1(i));
            Leer(rs, "QC2", v.QC2(i));
            Leer(rs, "QC3", v.QC3(i));
        });
}

// A dimension of a type: the field if positive; else, for a concrete beam, the default.
// A Null counts as not positive.
double DimensionTipo(const Valor& campo, bool concreto, double defecto) {
    if (!campo.EsNulo() && campo.Doble() > 0) return campo.Doble();
    return concreto ? defecto : 0.0;
}

void LeerTipos(BaseDatos& bd, VigaActual& v) {
    auto rs = FilasDeViga(bd, "TiposVigas", "Tipo", v.NombreVigaActual);
    const bool concreto = v.OpcionConcreto == 0;
    v.NTipos = rs.RecordCount() > 0 ? Valor(rs.RecordCount()).Entero16() : std::int16_t{1};
    v.B1.Redim(v.NTipos);
    v.T1.Redim(v.NTipos);
    v.Designacion.Redim(v.NTipos);
    if (rs.RecordCount() == 0) {
        v.B1(1) = concreto ? 0.3 : 0.0;
        v.T1(1) = concreto ? 0.5 : 0.0;
        return;
    }
    for (long k = 1; k <= v.NTipos; ++k) {
        Leer(rs, "Designacion", v.Designacion(k));
        v.B1(k) = DimensionTipo(rs.Campo("B1"), concreto, 0.3);
        v.T1(k) = DimensionTipo(rs.Campo("T1"), concreto, 0.5);
        rs.MoveNext();
    }
}

void DimensionarCargas(VigaActual& v) {
    for (auto* a : {&v.W1, &v.W4, &v.W5}) a->Redim(v.NT);
    v.Gravedad.Redim(v.NT);
    v.la5.Redim(v.NT);
    for (auto* a : {&v.P, &v.W3_}) a->Redim(v.NT, MaxCargas10);
    for (auto* a : {&v.LP, &v.La3_, &v.Lb3_}) a->Redim(v.NT, MaxCargas10);
    for (auto* a : {&v.W6_, &v.W7_, &v.WIzq8_, &v.WDer8_}) a->Redim(v.NT, MaxCargas5);
    for (auto* a : {&v.La6_, &v.Lb6_, &v.La7_, &v.Lb7_, &v.La8_, &v.Lb8_})
        a->Redim(v.NT, MaxCargas5);
}

void LeerCargas(BaseDatos& bd, VigaActual& v) {
    DimensionarCargas(v);
    auto rs = FilasDeViga(bd, "CargasTramos", "Tramo", v.NombreVigaActual);
    if (rs.RecordCount() == 0) return;
    for (long t = 1; t <= v.NT; ++t) {
        Leer(rs, "W1", v.W1(t));
        Leer(rs, "Gravedad", v.Gravedad(t));
        Leer(rs, "CantW2", v.CantW2(t));
        LeerRanuras(rs, "P", v.P, t, v.CantW2(t));
        LeerRanuras(rs, "LP", v.LP, t, v.CantW2(t));
        Leer(rs, "CantW3", v.CantW3(t));
        LeerRanuras(rs, "W3_", v.W3_, t, v.CantW3(t));
        LeerRanuras(rs, "La3_", v.La3_, t, v.CantW3(t));
        LeerRanuras(rs, "Lb3_", v.Lb3_, t, v.CantW3(t));
        Leer(rs, "W4", v.W4(t));
        Leer(rs, "W5", v.W5(t));
        Leer(rs, "la5", v.la5(t));
        Leer(rs, "CantW6", v.CantW6(t));
        LeerRanuras(rs, "W6_", v.W6_, t, v.CantW6(t));
        LeerRanuras(rs, "La6_", v.La6_, t, v.CantW6(t));
        LeerRanuras(rs, "Lb6_", v.Lb6_, t, v.CantW6(t));
        Leer(rs, "CantW7", v.CantW7(t));
        LeerRanuras(rs, "W7_", v.W7_, t, v.CantW7(t));
        LeerRanuras(rs, "La7_", v.La7_, t, v.CantW7(t));
        LeerRanuras(rs, "Lb7_", v.Lb7_, t, v.CantW7(t));
        Leer(rs, "CantW8", v.CantW8(t));
        LeerRanuras(rs, "WIzq8_", v.WIzq8_, t, v.CantW8(t));
        LeerRanuras(rs, "WDer8_", v.WDer8_, t, v.CantW8(t));
        LeerRanuras(rs, "La8_", v.La8_, t, v.CantW8(t));
        LeerRanuras(rs, "Lb8_", v.Lb8_, t, v.CantW8(t));
        rs.MoveNext();
    }
}

// --- SalvarViga and CopiarViga ---------------------------------------------------------------

// How the two writers differ: the name written, the copy's quirks.
struct FormaEscritura {
    std::string nombre;
    bool copia; // every joint's dimensions written; W3_k receives P(t, k)
};

void EscribirCabecera(Recordset& rs, const VigaActual& v) {
    rs.Campo("NT", Valor(v.NT));
    rs.Campo("OpcionConcreto", Valor(v.OpcionConcreto));
    rs.Campo("OpcionCarga", Valor(v.OpcionCarga));
    rs.Campo("FMayoracionTC", Valor(v.FMayoracionTC));
    rs.Campo("FMayoracion", Valor(v.FMayoracion));
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

void EscribirCargas(Recordset& rs, const VigaActual& v, long t, bool copia) {
    rs.Campo("Tramo", Valor(static_cast<int>(t)));
    rs.Campo("W1", Valor(v.W1(t)));
    rs.Campo("Gravedad", Valor(v.Gravedad(t)));
    rs.Campo("CantW2", Valor(v.CantW2(t)));
    EscribirRanuras(rs, "P", v.P, t, v.CantW2(t));
    EscribirRanuras(rs, "LP", v.LP, t, v.CantW2(t));
    rs.Campo("CantW3", Valor(v.CantW3(t)));
    EscribirRanuras(rs, "W3_", copia ? v.P : v.W3_, t, v.CantW3(t)); // kept: users rely on it
    EscribirRanuras(rs, "La3_", v.La3_, t, v.CantW3(t));
    EscribirRanuras(rs, "Lb3_", v.Lb3_, t, v.CantW3(t));
    rs.Campo("W4", Valor(v.W4(t)));
    rs.Campo("W5", Valor(v.W5(t)));
    rs.Campo("la5", Valor(v.la5(t)));
    rs.Campo("CantW6", Valor(v.CantW6(t)));
    EscribirRanuras(rs, "W6_", v.W6_, t, v.CantW6(t));
    EscribirRanuras(rs, "La6_", v.La6_, t, v.CantW6(t));
    EscribirRanuras(rs, "Lb6_", v.Lb6_, t, v.CantW6(t));
    rs.Campo("CantW7", Valor(v.CantW7(t)));
    EscribirRanuras(rs, "W7_", v.W7_, t, v.CantW7(t));
    EscribirRanuras(rs, "La7_", v.La7_, t, v.CantW7(t));
    EscribirRanuras(rs, "Lb7_", v.Lb7_, t, v.CantW7(t));
    rs.Campo("CantW8", Valor(v.CantW8(t)));
    EscribirRanuras(rs, "WIzq8_", v.WIzq8_, t, v.CantW8(t));
    EscribirRanuras(rs, "WDer8_", v.WDer8_, t, v.CantW8(t));
    EscribirRanuras(rs, "La8_", v.La8_, t, v.CantW8(t));
    EscribirRanuras(rs, "Lb8_", v.Lb8_, t, v.CantW8(t));
}

void EscribirTablasHijas(BaseDatos& bd, const VigaActual& v, const FormaEscritura& forma) {
    const std::string& n = forma.nombre;
    ReescribirTabla(bd, "Tramos", n, v.NT, [&](Recordset& rs, long t) {
        rs.Campo("Tramo", Valor(static_cast<int>(t)));
        rs.Campo("LT", Valor(v.LT(t)));
        rs.Campo("VT", Valor(v.VT(t)));
    });
    ReescribirTabla(bd, "Juntas", n, v.NT + 1, [&](Recordset& rs, long j) {
        const bool cotas = forma.copia || ApoyoVertical(v, j);
        rs.Campo("Numero", Valor(static_cast<int>(j)));
        rs.Campo("NombreEje", Valor(v.NombreEje(j)));
        rs.Campo("LDer", Valor(cotas ? v.LDer(j) : 0.0));
        rs.Campo("LIzq", Valor(cotas ? v.LIzq(j) : 0.0));
        rs.Campo("HC", Valor(cotas ? v.HC(j) : 0.0));
    });
    ReescribirTabla(bd, "JuntasDesplazadas", n, v.NJDesp, [&](Recordset& rs, long i) {
        rs.Campo("R3", Valor(v.R3(i)));
        rs.Campo("XX", Valor(v.XX(i)));
        rs.Campo("YY", Valor(v.YY(i)));
    });
    ReescribirTabla(bd, "Juntasrestringidas", n, v.NJRest, [&](Recordset& rs, long i) {
        rs.Campo("R1", Valor(v.R1(i)));
        rs.Campo("Apoyo", Valor(v.Apoyo(i)));
    });
    ReescribirTabla(bd, "JuntasResortes", n, v.NJRes, [&](Recordset& rs, long i) {
        rs.Campo("R10", Valor(v.R10(i)));
        rs.Campo("SH10", Valor(v.SH10(i)));
        rs.Campo("SV10", Valor(v.SV10(i)));
        rs.Campo("SM10", Valor(v.SM10(i)));
    });
    ReescribirTabla(bd, "TiposVigas", n, v.NTipos, [&](Recordset& rs, long k) {
        rs.Campo("Tipo", Valor(static_cast<int>(k)));
        rs.Campo("B1", Valor(v.B1(k)));
        rs.Campo("T1", Valor(v.T1(k)));
        rs.Campo("Designacion", Valor(v.Designacion(k)));
    });
    ReescribirTabla(bd, "CargasTramos", n, v.NT,
                    [&](Recordset& rs, long t) { EscribirCargas(rs, v, t, forma.copia); });
    ReescribirTabla(bd, "AccionesNodales", n, v.NAcc, [&](Recordset& rs, long i) {
        rs.Campo("R2", Valor(v.R2(i)));
        rs.Campo("QC1", Valor(v.QC1(i)));
        rs.Campo("QC2", Valor(v.QC2(i)));
        rs.Campo("QC3", Valor(v.QC3(i)));
    });
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
        throw ErrorTrevalo(91, "Variable de objeto o bloque With no establecido");
    return *estado.BDProyecto;
}

Recordset& ListaVigasAbierta(EstadoProyecto& estado) {
    if (!estado.RsGeneralViga)
        throw ErrorTrevalo(91, "Variable de objeto o bloque With no establecido");
    return *estado.RsGeneralViga;
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
        auto cabecera =
            bd.AbrirRecordset("SELECT * FROM GeneralViga WHERE NombreViga=?", {v.NombreVigaActual});
        if (cabecera.RecordCount() == 0) {
            NuevaVigaDefecto(v);
            return;
        }
        LeerCabecera(cabecera, v);
        cabecera.Close();
        LeerTramos(bd, v);
        LeerJuntas(bd, v);
        LeerListas(bd, v);
        LeerTipos(bd, v);
        LeerCargas(bd, v);
        LeerAcciones(bd, v);
    } catch (const ErrorTrevalo& e) {
        NuevaVigaDefecto(v);
        throw ErrorTrevalo(
            e.Numero(), "Hay un Error en los Datos de la Viga: " + v.NombreVigaActual + "...    ");
    }
}

void SalvarViga(EstadoProyecto& estado, VigaActual& v) {
    EscribirViga(estado, [&](BaseDatos& bd, Recordset& lista) {
        if (v.VigaNueva) {
            lista.AddNew();
            lista.Campo("NombreViga", Valor(v.NombreVigaActual));
        } else {
            lista.Edit();
        }
        EscribirCabecera(lista, v);
        EscribirTablasHijas(bd, v, {v.NombreVigaActual, false});
    });
    estado.BeamNuevo = true;
    v.VigaNueva = false;
}

void CopiarViga(EstadoProyecto& estado, const VigaActual& v) {
    const std::string copia = estado.NombreCopiaViga;
    EscribirViga(estado, [&](BaseDatos& bd, Recordset& lista) {
        bd.Ejecutar("DELETE FROM GeneralViga WHERE NombreViga=?", {copia});
        lista.AddNew();
        lista.Campo("NombreViga", Valor(copia));
        EscribirCabecera(lista, v);
        EscribirTablasHijas(bd, v, {copia, true});
    });
}

bool ExisteViga(BaseDatos& bd, const std::string& nombre) {
    return bd.AbrirRecordset("SELECT * FROM GeneralViga WHERE NombreViga=?", {nombre})
               .RecordCount() > 0;
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
    for (long i = 0; i < 8; ++i)
        bd.Ejecutar(std::string("DELETE FROM ") + TablasViga[i] + " WHERE NombreViga=?", {nombre});
    lista.Delete();
    t.Confirmar();
}

} // namespace trevalo
