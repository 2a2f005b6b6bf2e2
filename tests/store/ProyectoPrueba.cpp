#include "ProyectoPrueba.h"

#include <unistd.h>

namespace trevalo::prueba {

namespace fs = std::filesystem;

void ProyectoPrueba::SetUp() {
    dir_ = fs::temp_directory_path() /
           ("trevalo_store_" + std::to_string(::getpid()) + "_" +
            ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
    archivo_ = dir_ / "Proyecto.trv";
    fs::copy_file(fs::path(TREVALO_RUTA_PROGRAMA) / "Imagen" / "ImagenViga.kvl", archivo_);
    estado_.BDProyecto.emplace(BaseDatos::Abrir(archivo_.string()));
    AbrirRsGeneralViga(estado_, ConsultaListaVigas);
    avisar_ = [this](const std::string& texto, const std::string& titulo) {
        avisos_.push_back({texto, titulo});
    };
}

void ProyectoPrueba::TearDown() {
    estado_ = EstadoProyecto{};
    fs::remove_all(dir_);
}

void ProyectoPrueba::Guardar(VigaActual& v) {
    v.VigaNueva = true;
    ASSERT_TRUE(SalvarViga(estado_, v, avisar_));
    ASSERT_TRUE(avisos_.empty()) << avisos_.front().texto;
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
    EXPECT_TRUE(LeerViga(estado_, v, avisar_));
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
    VigaActual v;
    v.NombreVigaActual = nombre;
    v.NT = static_cast<std::int16_t>(Entero(azar, 1, 6));
    ReiniciarArreglosViga(v);
    v.OpcionConcreto = static_cast<std::uint8_t>(Entero(azar, 0, 1));
    v.OpcionCarga = static_cast<std::uint8_t>(Entero(azar, 0, 3));
    v.FMayoracion = Real(azar, 1, 2);
    v.FMayoracionTC = Real(azar, 0, 2);

    v.NTipos = static_cast<std::int16_t>(Entero(azar, 1, 4));
    v.B1.Redim(v.NTipos);
    v.T1.Redim(v.NTipos);
    v.Designacion.Redim(v.NTipos);
    for (long k = 1; k <= v.NTipos; ++k) {
        v.B1(k) = Real(azar, 0.01, 300);
        v.T1(k) = Real(azar, 0.01, 90000);
        v.Designacion(k) = Texto(azar);
    }
    for (long t = 1; t <= v.NT; ++t) {
        v.LT(t) = Real(azar, 0.5, 12);
        v.VT(t) = static_cast<double>(Entero(azar, 1, v.NTipos));
    }

    conApoyo.clear();
    std::vector<Clase> clases;
    for (long j = 1; j <= v.NT + 1; ++j) {
        v.NombreEje(j) = Texto(azar);
        v.LDer(j) = Real(azar, 0.05, 0.6);
        v.LIzq(j) = Real(azar, 0.05, 0.6);
        v.HC(j) = Real(azar, 0.2, 1.2);
        auto c = static_cast<Clase>(Entero(azar, 0, 6));
        if (lleno && j <= 2) c = j == 1 ? Clase::ResorteV : Clase::Fijo; // every table has rows
        clases.push_back(c);
        if (c == Clase::Fijo || c == Clase::RodilloX || c == Clase::Empotrado ||
            c == Clase::ResorteV)
            conApoyo.insert(j);
    }
    const Apoyos apoyo[] = {ApoyoFijo, ApoyoFijo, RodilloEnX, RodilloEnY, Empotramiento};
    for (long j = 1; j <= v.NT + 1; ++j) {
        const auto c = clases[static_cast<std::size_t>(j - 1)];
        if (c >= Clase::Fijo && c <= Clase::Empotrado) {
            v.NJRest++;
            v.R1.RedimPreserve(v.NJRest);
            v.Apoyo.RedimPreserve(v.NJRest);
            v.R1(v.NJRest) = static_cast<std::int16_t>(j);
            v.Apoyo(v.NJRest) = apoyo[static_cast<int>(c)];
        } else if (c == Clase::ResorteV || c == Clase::ResorteSinV) {
            v.NJRes++;
            for (auto* a : {&v.SH10, &v.SV10, &v.SM10}) a->RedimPreserve(v.NJRes);
            v.R10.RedimPreserve(v.NJRes);
            v.R10(v.NJRes) = static_cast<std::int16_t>(j);
            v.SH10(v.NJRes) = Real(azar, 0, 1e6);
            v.SV10(v.NJRes) = c == Clase::ResorteV ? Real(azar, 1, 1e7) : 0.0;
            v.SM10(v.NJRes) = Real(azar, 0, 1e5);
        }
        if (lleno || Entero(azar, 0, 3) == 0) {
            v.NJDesp++;
            v.R3.RedimPreserve(v.NJDesp);
            for (auto* a : {&v.XX, &v.YY}) a->RedimPreserve(v.NJDesp);
            v.R3(v.NJDesp) = static_cast<std::int16_t>(j);
            v.XX(v.NJDesp) = Real(azar, -0.5, 0.5);
            v.YY(v.NJDesp) = Real(azar, -2, 2);
        }
        if (lleno || Entero(azar, 0, 2) == 0) {
            v.NAcc++;
            v.R2.RedimPreserve(v.NAcc);
            for (auto* a : {&v.QC1, &v.QC2, &v.QC3}) a->RedimPreserve(v.NAcc);
            v.R2(v.NAcc) = static_cast<std::int16_t>(j);
            v.QC1(v.NAcc) = Real(azar, -5000, 5000);
            v.QC2(v.NAcc) = Real(azar, -5000, 5000);
            v.QC3(v.NAcc) = Real(azar, -5000, 5000);
        }
    }

    auto carga = [&] { return static_cast<std::int32_t>(Entero(azar, -20000, 20000)); };
    auto cuenta = [&](long max) {
        return static_cast<std::int16_t>(lleno ? max : Entero(azar, 0, max));
    };
    for (long t = 1; t <= v.NT; ++t) {
        const double l = v.LT(t);
        v.W1(t) = carga();
        v.Gravedad(t) = static_cast<std::uint8_t>(Entero(azar, 0, 1));
        v.W4(t) = carga();
        v.W5(t) = carga();
        v.la5(t) = Real(azar, 0, l);
        v.CantW2(t) = cuenta(MaxCargas10);
        for (long k = 1; k <= v.CantW2(t); ++k) {
            v.P(t, k) = carga();
            v.LP(t, k) = Real(azar, 0, l);
        }
        v.CantW3(t) = cuenta(MaxCargas10);
        for (long k = 1; k <= v.CantW3(t); ++k) {
            v.W3_(t, k) = carga();
            v.La3_(t, k) = Real(azar, 0, l / 2);
            v.Lb3_(t, k) = Real(azar, 0, l / 2);
        }
        v.CantW6(t) = cuenta(MaxCargas5);
        for (long k = 1; k <= v.CantW6(t); ++k) {
            v.W6_(t, k) = carga();
            v.La6_(t, k) = Real(azar, 0, l / 2);
            v.Lb6_(t, k) = Real(azar, 0, l / 2);
        }
        v.CantW7(t) = cuenta(MaxCargas5);
        for (long k = 1; k <= v.CantW7(t); ++k) {
            v.W7_(t, k) = carga();
            v.La7_(t, k) = Real(azar, 0, l / 2);
            v.Lb7_(t, k) = Real(azar, 0, l / 2);
        }
        v.CantW8(t) = cuenta(MaxCargas5);
        for (long k = 1; k <= v.CantW8(t); ++k) {
            v.WIzq8_(t, k) = carga();
            v.WDer8_(t, k) = carga();
            v.La8_(t, k) = Real(azar, 0, l / 2);
            v.Lb8_(t, k) = Real(azar, 0, l / 2);
        }
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

#define IGUAL(campo) EXPECT_TRUE(a.campo == b.campo) << #campo
void ExpectVigasIguales(const VigaActual& a, const VigaActual& b) {
    IGUAL(NombreVigaActual);
    IGUAL(NT);
    IGUAL(OpcionConcreto);
    IGUAL(OpcionCarga);
    IGUAL(FMayoracion);
    IGUAL(FMayoracionTC);
    EXPECT_NEAR(a.LongTotal, b.LongTotal, 1e-9);
    IGUAL(LT);
    IGUAL(VT);
    IGUAL(FMayorTramo);
    IGUAL(TramoMarcado);
    IGUAL(NombreEje);
    IGUAL(LDer);
    IGUAL(LIzq);
    IGUAL(HC);
    IGUAL(NJDesp);
    IGUAL(R3);
    IGUAL(XX);
    IGUAL(YY);
    IGUAL(NJRest);
    IGUAL(R1);
    IGUAL(Apoyo);
    IGUAL(NJRes);
    IGUAL(R10);
    IGUAL(SH10);
    IGUAL(SV10);
    IGUAL(SM10);
    IGUAL(NTipos);
    IGUAL(B1);
    IGUAL(T1);
    IGUAL(Designacion);
    IGUAL(W1);
    IGUAL(Gravedad);
    IGUAL(CantW2);
    IGUAL(P);
    IGUAL(LP);
    IGUAL(CantW3);
    IGUAL(W3_);
    IGUAL(La3_);
    IGUAL(Lb3_);
    IGUAL(W4);
    IGUAL(W5);
    IGUAL(la5);
    IGUAL(CantW6);
    IGUAL(W6_);
    IGUAL(La6_);
    IGUAL(Lb6_);
    IGUAL(CantW7);
    IGUAL(W7_);
    IGUAL(La7_);
    IGUAL(Lb7_);
    IGUAL(CantW8);
    IGUAL(WIzq8_);
    IGUAL(WDer8_);
    IGUAL(La8_);
    IGUAL(Lb8_);
    IGUAL(NAcc);
    IGUAL(R2);
    IGUAL(QC1);
    IGUAL(QC2);
    IGUAL(QC3);
}
#undef IGUAL

} // namespace trevalo::prueba
