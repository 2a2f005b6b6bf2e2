#include "ProyectoPrueba.h"

#include <tuple>

namespace trevalo::prueba {

namespace fs = std::filesystem;

void ProyectoPrueba::SetUp() {
    const std::string archivo = dir_ / "Proyecto.trv";
    fs::copy_file(fs::path(TREVALO_RUTA_PROGRAMA) / "Imagen" / "ImagenViga.kvl", archivo);
    estado_.BDProyecto.emplace(BaseDatos::Abrir(archivo));
    AbrirRsGeneralViga(estado_, ConsultaListaVigas);
}

void ProyectoPrueba::Guardar(VigaActual& v) {
    v.VigaNueva = true;
    ASSERT_NO_THROW(SalvarViga(estado_, v));
}

void ProyectoPrueba::Posicionar(const std::string& nombre) {
    auto& rs = *estado_.RsGeneralViga;
    for (rs.MoveFirst(); !rs.AlFinal(); rs.MoveNext())
        if (rs.Campo("NombreViga").Texto() == nombre) return;
    FAIL() << "no row for " << nombre;
}

VigaActual ProyectoPrueba::Cargar(const std::string& nombre) {
    VigaActual v;
    v.NombreVigaActual = nombre;
    EXPECT_NO_THROW(LeerViga(estado_, v));
    return v;
}

namespace {

double Real(std::mt19937& azar, double a, double b) {
    return std::uniform_real_distribution<double>(a, b)(azar);
}
long Entero(std::mt19937& azar, long a, long b) {
    return std::uniform_int_distribution<long>(a, b)(azar);
}
std::string Texto(std::mt19937& azar) {
    static const char* const piezas[] = {"A", "b", "ñ", "Ñ", "é", "ü", "'", "\"", " ", "7", "-"};
    std::string r;
    for (long i = Entero(azar, 0, 6); i > 0; --i) r += piezas[Entero(azar, 0, 10)];
    return r;
}

// Kinds of joint, chosen per joint: what it gets and whether that carries it vertically.
enum class Clase { Libre, Fijo, RodilloX, RodilloY, Empotrado, ResorteV, ResorteSinV };

} // namespace

VigaActual VigaAleatoria(std::mt19937& azar, const std::string& nombre, bool lleno,
                         std::set<long>& conApoyo) {
    const auto real = [&azar](double a, double b) { return Real(azar, a, b); };
    const auto entero = [&azar](long a, long b) { return Entero(azar, a, b); };
    const auto filas = [&](long max) {
        return Filas(static_cast<std::size_t>(lleno ? max : entero(0, max)));
    };
    VigaActual v = VigaDeTramos(std::vector<double>(static_cast<std::size_t>(entero(1, 6))));
    v.NombreVigaActual = nombre;
    v.OpcionConcreto = static_cast<std::uint8_t>(entero(0, 1));
    v.OpcionCarga = static_cast<std::uint8_t>(entero(0, 3));
    v.FMayoracion = real(1, 2);
    v.FMayoracionTC = real(0, 2);
    Filas tipos(static_cast<std::size_t>(entero(1, 4)));
    for (auto& t : tipos) t = {real(0.01, 300), real(0.01, 90000)};
    PonerTipos(v, tipos);
    for (long k = 1; k <= v.NTipos; ++k) v.Designacion(k) = Texto(azar);
    for (long t = 1; t <= v.NT; ++t) {
        v.LT(t) = real(0.5, 12);
        v.VT(t) = static_cast<double>(entero(1, v.NTipos));
    }

    Filas apoyos, resortes, desplazadas, acciones;
    conApoyo.clear();
    const Apoyos apoyo[] = {ApoyoFijo, ApoyoFijo, RodilloEnX, RodilloEnY, Empotramiento};
    for (long j = 1; j <= v.NT + 1; ++j) {
        const double junta = static_cast<double>(j);
        v.NombreEje(j) = Texto(azar);
        v.LDer(j) = real(0.05, 0.6);
        v.LIzq(j) = real(0.05, 0.6);
        v.HC(j) = real(0.2, 1.2);
        auto c = static_cast<Clase>(entero(0, 6));
        if (lleno && j <= 2) c = j == 1 ? Clase::ResorteV : Clase::Fijo; // every table has rows
        if (c == Clase::Fijo || c == Clase::RodilloX || c == Clase::Empotrado ||
            c == Clase::ResorteV)
            conApoyo.insert(j);
        if (c >= Clase::Fijo && c <= Clase::Empotrado)
            apoyos.push_back({junta, double(apoyo[static_cast<int>(c)])});
        else if (c == Clase::ResorteV || c == Clase::ResorteSinV)
            resortes.push_back(
                {junta, real(0, 1e6), c == Clase::ResorteV ? real(1, 1e7) : 0.0, real(0, 1e5)});
        if (lleno || entero(0, 3) == 0)
            desplazadas.push_back({junta, real(-0.5, 0.5), real(-2, 2)});
        if (lleno || entero(0, 2) == 0)
            acciones.push_back({junta, real(-5000, 5000), real(-5000, 5000), real(-5000, 5000)});
    }
    PonerApoyos(v, apoyos);
    PonerResortes(v, resortes);
    PonerDesplazadas(v, desplazadas);
    PonerAcciones(v, acciones);

    // Point loads at a length from the left end, partial loads at two lengths from the ends.
    const auto carga = [&] { return static_cast<double>(entero(-20000, 20000)); };
    for (long t = 1; t <= v.NT; ++t) {
        const double l = v.LT(t);
        v.Gravedad(t) = static_cast<std::uint8_t>(entero(0, 1));
        PonerCargas(v, t, 1, {{carga()}});
        PonerCargas(v, t, 4, {{carga()}});
        PonerCargas(v, t, 5, {{carga(), real(0, l)}});
        Filas puntuales = filas(MaxCargas10);
        for (auto& f : puntuales) f = {carga(), real(0, l)};
        PonerCargas(v, t, 2, puntuales);
        for (const auto& [tipo, max] :
             {std::pair{3, MaxCargas10}, {6, MaxCargas5}, {7, MaxCargas5}}) {
            Filas parciales = filas(max);
            for (auto& f : parciales) f = {carga(), real(0, l / 2), real(0, l / 2)};
            PonerCargas(v, t, tipo, parciales);
        }
        Filas trapecios = filas(MaxCargas5);
        for (auto& f : trapecios) f = {carga(), carga(), real(0, l / 2), real(0, l / 2)};
        PonerCargas(v, t, 8, trapecios);
    }
    return v;
}

VigaActual TrasGuardar(VigaActual v, const std::set<long>& conApoyo) {
    v.LongTotal = 0;
    for (long t = 1; t <= v.NT; ++t) {
        v.LongTotal += v.LT(t);
        v.FMayorTramo(t) = v.FMayoracion;
        v.TramoMarcado(t) = false;
    }
    for (long j = 1; j <= v.NT + 1; ++j) {
        if (conApoyo.count(j)) continue;
        v.LDer(j) = 0;
        v.LIzq(j) = 0;
        v.HC(j) = 0;
    }
    v.VigaNueva = false;
    return v;
}

Tablas Volcar(BaseDatos& bd, const std::string& nombre) {
    static const std::pair<const char*, const char*> tablas[] = {
        {"GeneralViga", "NombreViga"}, {"Tramos", "Tramo"},          {"Juntas", "Numero"},
        {"JuntasDesplazadas", "R3"},   {"JuntasRestringidas", "R1"}, {"JuntasResortes", "R10"},
        {"TiposVigas", "Tipo"},        {"CargasTramos", "Tramo"},    {"AccionesNodales", "R2"},
    };
    Tablas r;
    for (const auto& [tabla, clave] : tablas) {
        const std::string orden = std::string(" ORDER BY NombreViga, ") + clave;
        auto rs = nombre.empty() ? bd.AbrirRecordset(std::string("SELECT * FROM ") + tabla + orden)
                                 : bd.AbrirRecordset(std::string("SELECT * FROM ") + tabla +
                                                         " WHERE NombreViga=?" + orden,
                                                     {nombre});
        auto& filas = r[tabla];
        for (; !rs.AlFinal(); rs.MoveNext()) {
            std::vector<Valor> fila;
            for (const auto& c : rs.Columnas()) fila.push_back(rs.Campo(c));
            filas.push_back(std::move(fila));
        }
    }
    return r;
}

std::size_t Columna(BaseDatos& bd, const std::string& tabla, const std::string& columna) {
    const auto columnas = bd.AbrirRecordset(tabla).Columnas();
    for (std::size_t i = 0; i < columnas.size(); ++i)
        if (columnas[i] == columna) return i;
    ADD_FAILURE() << "no column " << columna << " in " << tabla;
    return 0;
}

// Grouped by the table each field is stored in, so that a failure names the table.
#define GRUPO(tabla, ...)                                                                          \
    {                                                                                              \
        auto f = [](const VigaActual& v) { return std::tie(__VA_ARGS__); };                        \
        EXPECT_TRUE(f(a) == f(b)) << tabla;                                                        \
    }
void ExpectVigasIguales(const VigaActual& a, const VigaActual& b) {
    EXPECT_NEAR(a.LongTotal, b.LongTotal, 1e-9);
    GRUPO("GeneralViga", v.NombreVigaActual, v.NT, v.OpcionConcreto, v.OpcionCarga, v.FMayoracion,
          v.FMayoracionTC);
    GRUPO("Tramos", v.LT, v.VT, v.FMayorTramo, v.TramoMarcado);
    GRUPO("Juntas", v.NombreEje, v.LDer, v.LIzq, v.HC);
    GRUPO("JuntasDesplazadas", v.NJDesp, v.R3, v.XX, v.YY);
    GRUPO("JuntasRestringidas", v.NJRest, v.R1, v.Apoyo);
    GRUPO("JuntasResortes", v.NJRes, v.R10, v.SH10, v.SV10, v.SM10);
    GRUPO("TiposVigas", v.NTipos, v.B1, v.T1, v.Designacion);
    GRUPO("CargasTramos", v.W1, v.Gravedad, v.CantW2, v.P, v.LP, v.CantW3, v.W3_, v.La3_, v.Lb3_,
          v.W4, v.W5, v.la5, v.CantW6, v.W6_, v.La6_, v.Lb6_, v.CantW7, v.W7_, v.La7_, v.Lb7_,
          v.CantW8, v.WIzq8_, v.WDer8_, v.La8_, v.Lb8_);
    GRUPO("AccionesNodales", v.NAcc, v.R2, v.QC1, v.QC2, v.QC3);
}
#undef GRUPO

} // namespace trevalo::prueba
