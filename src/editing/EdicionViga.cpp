#include "editing/EdicionViga.h"

#include <algorithm>

#include "model/Conversiones.h"
#include "model/Redondeo.h"
#include "profiles/ListaPerfiles.h"

namespace trevalo {

namespace {

Pregunta Aviso(const std::string& texto, const std::string& titulo) {
    return {texto, titulo, BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1};
}

// The value of a slot, or zero beyond the list (a list shorter than its count).
template <typename T> T En(const Arreglo<T>& a, long i) {
    return i >= 1 && i <= a.Ubound() ? a(i) : T{};
}

template <typename... A> void Preservar(long n, A&... a) {
    (a.RedimPreserve(n), ...);
}

// The boxes that count joints, with the message of a count beyond NT + 1.
Pregunta AvisoJuntas(Cuenta cuenta, long tope) {
    const std::string n = std::to_string(tope) + "    ";
    switch (cuenta) {
    case Cuenta::Desplazadas:
        return Aviso("El Número de Juntas Desplazadas no puede ser mayor que " + n,
                     "Juntas Desplazadas");
    case Cuenta::Restringidas:
        return Aviso("El Número de Juntas ser mayor que " + n, "Juntas Totalmente restringidas");
    case Cuenta::Resortes:
        return Aviso("El Número de Juntas ser mayor que " + n, "Juntas con Resortes");
    default:
        return Aviso("El Número de la Junta no puede ser mayor que " + n + "\n",
                     "Acciones Nodales");
    }
}

bool CuentaJuntas(Cuenta cuenta) {
    return cuenta == Cuenta::Desplazadas || cuenta == Cuenta::Restringidas ||
           cuenta == Cuenta::Resortes || cuenta == Cuenta::Acciones;
}

// The concrete types up to `hasta` with no width or depth take 0.3 x 0.5.
void ValoresTipo(VigaActual& v, long hasta) {
    for (long i = 1; i <= hasta; ++i) {
        if (v.B1(i) == 0) v.B1(i) = 0.3;
        if (v.T1(i) == 0) v.T1(i) = 0.5;
    }
}

// A load in whole kgf: one the model's 32 bits cannot hold is error 6.
Veredicto Carga32(double valor) {
    try {
        CI(valor);
    } catch (const ErrorTrevalo& e) {
        return Rechazar(MensajeFalla(e));
    }
    return Aceptar();
}

} // namespace

bool EsCarga(const ColumnaCarga& columna) {
    return std::holds_alternative<Arreglo2<std::int32_t> VigaActual::*>(columna.valores);
}

void EdicionViga::Preparar() {
    VigaActual& v = viga_;
    if (v.VigaNueva && v.NT <= 0) {
        v.NT = 1;
        ReiniciarArreglosViga(v);
    }
    v.TramoMarcado.Redim(v.NT);
    if (v.NTipos == 0) {
        v.NTipos = 1;
        Preservar(std::max<long>(v.NT, 1), v.B1, v.T1);
        Preservar(std::max<long>(v.Designacion.Ubound(), 1), v.Designacion);
        for (long i = 1; i <= v.NT; ++i) {
            v.B1(i) = 0.3;
            v.T1(i) = 0.5;
        }
    }
    if (v.OpcionConcreto == 0) ValoresTipo(v, std::min<long>(v.NTipos, v.B1.Ubound()));
    for (long i = 1; i <= std::min<long>(v.NT, v.VT.Ubound()); ++i)
        if (v.VT(i) == 0) v.VT(i) = 1.0;
    Preservar(v.NT, v.FMayorTramo);
    for (long i = 1; i <= v.NT; ++i) v.FMayorTramo(i) = v.FMayoracion;
    for (long j = 1; j <= std::min<long>(v.NT + 1, v.HC.Ubound()); ++j) {
        bool apoyada = false;
        for (long k = 1; k <= v.NJRest; ++k) apoyada |= En(v.R1, k) == j && En(v.Apoyo, k) != 3;
        for (long k = 1; k <= v.NJRes; ++k) apoyada |= En(v.R10, k) == j && En(v.SV10, k) != 0;
        if (!apoyada) v.LIzq(j) = v.LDer(j) = v.HC(j) = 0.0;
    }
}

long EdicionViga::Valor(Cuenta cuenta) const {
    const VigaActual& v = viga_;
    switch (cuenta) {
    case Cuenta::Tramos:
        return v.NT;
    case Cuenta::Desplazadas:
        return v.NJDesp;
    case Cuenta::Restringidas:
        return v.NJRest;
    case Cuenta::Resortes:
        return v.NJRes;
    case Cuenta::Acciones:
        return v.NAcc;
    default:
        return v.NTipos;
    }
}

std::optional<std::pair<long, Pregunta>> EdicionViga::TramoSinLongitud() const {
    for (long t = 1; t <= viga_.NT; ++t)
        if (En(viga_.LT, t) == 0)
            return std::pair{t, Aviso("¡No pueden existir Tramos con Longitud igual a Cero (0)!",
                                      "Longitud de los Tramos")};
    return std::nullopt;
}

long EdicionViga::Filas(Rejilla rejilla) const {
    const VigaActual& v = viga_;
    switch (rejilla) {
    case Rejilla::NombresEje:
    case Rejilla::Acotamientos:
        return std::max<long>(v.NT + 1, 0);
    case Rejilla::Desplazadas:
        return v.NJDesp;
    case Rejilla::Restringidas:
        return v.NJRest;
    case Rejilla::Resortes:
        return v.NJRes;
    case Rejilla::TiposConcreto:
    case Rejilla::TiposMetalicos:
        return v.NTipos;
    case Rejilla::Acciones:
        return v.NAcc;
    default:
        return std::max<long>(v.NT, 0);
    }
}

std::variant<double, std::string> EdicionViga::Leer(Rejilla rejilla, long r, int c) const {
    const VigaActual& v = viga_;
    // Column c of the lists given, in their order.
    const auto de = [r, c](const auto&... listas) {
        double valor = 0;
        int i = 0;
        ((valor = ++i == c ? static_cast<double>(En(listas, r)) : valor), ...);
        return valor;
    };
    switch (rejilla) {
    case Rejilla::NombresEje:
        return En(v.NombreEje, r);
    case Rejilla::Longitudes:
        return de(v.LT);
    case Rejilla::Desplazadas:
        return de(v.R3, v.XX, v.YY);
    case Rejilla::Restringidas:
        return de(v.R1, v.Apoyo);
    case Rejilla::Resortes:
        return de(v.R10, v.SH10, v.SV10, v.SM10);
    case Rejilla::TiposConcreto:
        return de(v.B1, v.T1);
    case Rejilla::TipoTramoConcreto:
    case Rejilla::TipoTramoMetalico:
        return de(v.VT);
    case Rejilla::TiposMetalicos:
        if (c == 1) return En(v.Designacion, r);
        return En(c == 2 ? v.B1 : v.T1, r);
    case Rejilla::TramosCargados:
        return En(v.TramoMarcado, r) ? 1.0 : 0.0;
    case Rejilla::Acciones:
        return de(v.R2, v.QC1, v.QC2, v.QC3);
    case Rejilla::Acotamientos:
        return de(v.LIzq, v.LDer, v.HC);
    }
    return 0.0;
}

std::string EdicionViga::RotuloTramo(long tramo) const {
    return En(viga_.NombreEje, tramo) + " - " + En(viga_.NombreEje, tramo + 1);
}

Veredicto EdicionViga::CambiarCuenta(Cuenta cuenta, long valor) {
    VigaActual& v = viga_;
    if (cuenta == Cuenta::Tramos) {
        if (valor <= 0 || valor > MaximoTramos) return Ignorar();
        v.NT = static_cast<std::int16_t>(valor);
        RedimensionarViga(v);
        for (long i = 1; i <= v.NT; ++i)
            if (v.VT(i) == 0) v.VT(i) = 1.0;
        return Aceptar();
    }
    if (CuentaJuntas(cuenta) && valor > v.NT + 1) return Rechazar(AvisoJuntas(cuenta, v.NT + 1));
    std::int16_t n = 0;
    try {
        n = Entero<std::int16_t>(valor);
    } catch (const ErrorTrevalo& e) { // a count the model cannot hold: error 6, never a wrap
        return Rechazar(MensajeFalla(e));
    }
    switch (cuenta) {
    case Cuenta::Desplazadas:
        v.NJDesp = n;
        Preservar(n, v.R3, v.XX, v.YY);
        break;
    case Cuenta::Restringidas:
        v.NJRest = n;
        Preservar(n, v.R1, v.Apoyo);
        for (long i = 1; i <= n; ++i)
            if (v.Apoyo(i) == 0) v.Apoyo(i) = ApoyoFijo;
        break;
    case Cuenta::Resortes:
        v.NJRes = n;
        Preservar(n, v.R10, v.SH10, v.SV10, v.SM10);
        break;
    case Cuenta::Acciones:
        v.NAcc = n;
        Preservar(n, v.R2, v.QC1, v.QC2, v.QC3);
        break;
    case Cuenta::TiposConcreto:
        Tipos(n);
        // Designations follow the joints on this page, not the types (types beyond have
        // none, while the list still covers every type so that the beam can be saved).
        v.Designacion.RedimPreserve(std::max<long>(v.NT + 1, v.NTipos));
        ValoresTipo(v, v.NTipos);
        break;
    default:
        Tipos(n);
        v.Designacion.RedimPreserve(v.NTipos);
        break;
    }
    return v.NTipos != n && !CuentaJuntas(cuenta) ? Aceptar(static_cast<double>(v.NTipos))
                                                  : Aceptar();
}

// The count of types: at least one, the spans of a type beyond it on type 1.
void EdicionViga::Tipos(long valor) {
    VigaActual& v = viga_;
    v.NTipos = static_cast<std::int16_t>(valor);
    if (valor == 0) {
        v.NTipos = 1;
        v.VT.Redim(v.NT);
        for (long i = 1; i <= v.NT; ++i) v.VT(i) = 1.0;
    }
    for (long i = 1; i <= v.NT; ++i)
        if (v.VT(i) > v.NTipos) v.VT(i) = 1.0;
    Preservar(v.NTipos, v.B1, v.T1);
}

Veredicto EdicionViga::CambiarCelda(Rejilla rejilla, long fila, int columna,
                                    const std::string& texto, std::optional<double> numero) {
    try {
        return Celda(rejilla, fila, columna, texto, numero);
    } catch (const ErrorTrevalo& e) {
        return Rechazar(MensajeError(e));
    }
}

std::optional<Veredicto> EdicionViga::Junta(Arreglo<std::int16_t>& lista, long fila, double valor,
                                            const char* titulo) {
    const long tope = viga_.NT + 1;
    if (valor > tope)
        return Rechazar(
            Aviso("El Número de la Junta no puede ser mayor que " + std::to_string(tope) + "    ",
                  titulo));
    lista(fila) = static_cast<std::int16_t>(CI(valor));
    return std::nullopt;
}

Veredicto EdicionViga::TipoTramo(long fila, double valor) {
    VigaActual& v = viga_;
    if (valor > v.NTipos) {
        v.VT(fila) = v.NTipos;
        return Aceptar(static_cast<double>(v.NTipos));
    }
    if (valor == 0) return Rechazar();
    v.VT(fila) = valor;
    return Aceptar();
}

Veredicto EdicionViga::Celda(Rejilla rejilla, long r, int c, const std::string& texto,
                             std::optional<double> numero) {
    VigaActual& v = viga_;
    const bool esTexto =
        rejilla == Rejilla::NombresEje || (rejilla == Rejilla::TiposMetalicos && c == 1);
    const bool resorte = rejilla == Rejilla::Resortes && c >= 2;
    if (!esTexto && !numero && !resorte) return Rechazar();
    const double x = numero.value_or(0.0);
    std::optional<Veredicto> rechazo;
    switch (rejilla) {
    case Rejilla::NombresEje:
        v.NombreEje(r) = texto;
        break;
    case Rejilla::Longitudes:
        v.LT(r) = x;
        break;
    case Rejilla::Desplazadas:
        if (c == 1)
            rechazo = Junta(v.R3, r, x, "Juntas Desplazadas");
        else
            (c == 2 ? v.XX : v.YY)(r) = x;
        break;
    case Rejilla::Restringidas:
        if (c == 1) {
            rechazo = Junta(v.R1, r, x, "Juntas Desplazadas");
        } else if (x < 1 || x > 4) { // beeps and becomes a fixed support
            v.Apoyo(r) = ApoyoFijo;
            return {true, 1.0, std::nullopt, true};
        } else {
            v.Apoyo(r) = static_cast<std::int16_t>(x);
        }
        break;
    case Rejilla::Resortes:
        if (c == 1) {
            rechazo = Junta(v.R10, r, x, "Juntas Desplazadas");
            break;
        }
        (c == 2 ? v.SH10 : c == 3 ? v.SV10 : v.SM10)(r) = x;
        if (!numero) return Aceptar(0.0); // an emptied spring cell is a spring of zero
        break;
    case Rejilla::TiposConcreto:
        (c == 1 ? v.B1 : v.T1)(r) = x;
        break;
    case Rejilla::TipoTramoConcreto:
    case Rejilla::TipoTramoMetalico:
        return TipoTramo(r, x);
    case Rejilla::TiposMetalicos:
        if (c == 1)
            v.Designacion(r) = texto;
        else
            (c == 2 ? v.B1 : v.T1)(r) = x;
        break;
    case Rejilla::Acciones:
        if (c == 1)
            rechazo = Junta(v.R2, r, x, "Acciones Nodales");
        else
            (c == 2 ? v.QC1 : c == 3 ? v.QC2 : v.QC3)(r) = x;
        break;
    case Rejilla::Acotamientos:
        (c == 1 ? v.LIzq : c == 2 ? v.LDer : v.HC)(r) = x;
        break;
    case Rejilla::TramosCargados:
        Marcar(r, x != 0);
        break;
    }
    return rechazo ? *rechazo : Aceptar();
}

Veredicto EdicionViga::ValorBloque(Rejilla rejilla, double valor) const {
    if (rejilla != Rejilla::TipoTramoConcreto && rejilla != Rejilla::TipoTramoMetalico)
        return Aceptar();
    const auto tipo = static_cast<double>(CI(valor));
    if (tipo == 0) return Ignorar();
    if (tipo > viga_.NTipos)
        return Rechazar(Aviso("El Tipo de Viga no puede ser mayor que " +
                                  std::to_string(viga_.NTipos) + "      ",
                              "Tipos de Viga"));
    return Aceptar(tipo);
}

void EdicionViga::ColocarApoyo(long fila, std::int16_t tipo) {
    viga_.Apoyo(fila) = tipo;
}

void EdicionViga::Material(bool concreto) {
    viga_.OpcionConcreto = concreto ? 0 : 1;
}

Veredicto EdicionViga::Factor(double valor) {
    const bool fuera = valor <= 0 || valor > 5;
    const double factor = fuera ? 1.5 : valor;
    viga_.FMayoracion = factor;
    Preservar(viga_.NT, viga_.FMayorTramo);
    for (long i = 1; i <= viga_.NT; ++i) viga_.FMayorTramo(i) = factor;
    return fuera ? Aceptar(factor) : Aceptar();
}

void EdicionViga::Marcar(long tramo, bool marcado) {
    viga_.TramoMarcado(tramo) = marcado;
}

void EdicionViga::MarcarTramos(long desde, long hasta) {
    for (long t = desde; t <= std::min<long>(hasta, viga_.NT); ++t) viga_.TramoMarcado(t) = true;
}

void EdicionViga::DesmarcarTodos() {
    viga_.TramoMarcado.Redim(viga_.NT);
}

std::optional<Arreglo<std::int16_t>> EdicionViga::TramosCarga() const {
    Arreglo<std::int16_t> tramos(viga_.NT);
    bool alguno = false;
    for (long t = 1; t <= viga_.NT; ++t) {
        tramos(t) = En(viga_.TramoMarcado, t) ? 1 : 0;
        alguno |= tramos(t) == 1;
    }
    if (!alguno) return std::nullopt;
    return tramos;
}

void EdicionViga::EliminarCargas() {
    trevalo::EliminarCargas(viga_);
}

Veredicto EdicionViga::RevisarCarga(const EntradaCarga& carga) const {
    if (const auto* unica = std::get_if<CargaPorTramo>(&carga)) return Carga32(unica->valor);
    const FilasCarga& lista = std::get<FilasCarga>(carga);
    if (static_cast<long>(lista.filas.size()) > lista.lista.limite)
        return Rechazar(MensajeFalla(ErrorTrevalo::SubindiceFueraDeIntervalo()));
    for (const std::vector<double>& fila : lista.filas)
        for (std::size_t c = 0; c < lista.lista.columnas.size(); ++c)
            if (Veredicto v = ValorCarga(lista.lista.columnas[c], fila.at(c)); !v.Aceptado)
                return v;
    return Aceptar();
}

Veredicto EdicionViga::AplicarCarga(const Arreglo<std::int16_t>& tramos,
                                    const EntradaCarga& carga) {
    Veredicto veredicto = RevisarCarga(carga);
    if (veredicto.Aceptado) std::visit([&](const auto& c) { Escribir(tramos, c); }, carga);
    return veredicto;
}

void EdicionViga::Escribir(const Arreglo<std::int16_t>& tramos, const CargaPorTramo& carga) {
    const auto valor = static_cast<std::int32_t>(CI(carga.valor));
    for (long t = 1; t <= tramos.Ubound(); ++t) {
        if (tramos(t) != 1) continue;
        (viga_.*carga.campo)(t) = valor;
        if (carga.la) viga_.la5(t) = *carga.la;
        if (carga.gravedad) viga_.Gravedad(t) = *carga.gravedad;
    }
}

Veredicto EdicionViga::ValorCarga(const ColumnaCarga& columna, std::optional<double> numero) const {
    return numero && EsCarga(columna) ? Carga32(*numero) : Aceptar();
}

void EdicionViga::Escribir(const Arreglo<std::int16_t>& tramos, const FilasCarga& carga) {
    const ListaCargas& lista = carga.lista;
    const auto n = static_cast<long>(carga.filas.size());
    for (long t = 1; t <= tramos.Ubound(); ++t) {
        if (tramos(t) != 1) continue;
        (viga_.*lista.cantidad)(t) = static_cast<std::int16_t>(n);
        for (long r = 1; r <= n; ++r)
            for (std::size_t c = 0; c < lista.columnas.size(); ++c)
                std::visit(
                    [&](auto valores) {
                        auto& celda = (viga_.*valores)(t, r);
                        celda = static_cast<std::remove_reference_t<decltype(celda)>>(
                            carga.filas[static_cast<std::size_t>(r - 1)][c]);
                    },
                    lista.columnas[c].valores);
    }
}

Veredicto EdicionViga::CapturarPerfil(const ListaPerfiles& lista, long fila, long tipo) {
    try {
        if (!trevalo::CapturarPerfil(lista, fila, tipo, viga_)) return Rechazar();
    } catch (const ErrorTrevalo& e) {
        return Rechazar(MensajeError(e));
    }
    return Aceptar();
}

} // namespace trevalo
