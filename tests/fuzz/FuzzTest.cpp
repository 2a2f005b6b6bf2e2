// Damaged beam documents and project files through the program's own entry points: load,
// solve, station table, the four views, and now and then the report of the beam. Whatever the
// damage, each step either works or raises the program's error; anything else (another
// exception, a step that takes seconds) is a failure, and a project file is never changed by
// reading it.
//
// Seeded and bounded: TREVALO_FUZZ_SEMILLA picks the cases (default 1) and
// TREVALO_FUZZ_SEGUNDOS the time they may take (default 15). Case n of a seed is always the
// same case, so a failure is told by seed and number and replayed by scripts/fuzz.

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <limits>
#include <random>

#include "analysis/AnalisisVigasP.h"
#include "app/tools/VigaJson.h"
#include "comun/AplicacionQt.h"
#include "comun/Carpeta.h"
#include "comun/DialogosGuion.h"
#include "design/TablaDiseno.h"
#include "drawing/GeometriaPlot.h"
#include "drawing/LienzoGrabador.h"
#include "drawing/OperacionesVista.h"
#include "drawing/Ploteos.h"
#include "output/PasosPrograma.h"
#include "store/BaseDatos.h"
#include "store/CicloProyecto.h"

namespace trevalo {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;
using Reloj = std::chrono::steady_clock;

constexpr double kLento = 10;    // seconds: a case this slow counts as a hang
constexpr int kCadaInforme = 20; // one project case in so many makes the report of its beam

long Ambiente(const char* nombre, long defecto) {
    const char* v = std::getenv(nombre);
    return v && *v ? std::strtol(v, nullptr, 10) : defecto;
}

struct Falla {
    std::string caso;
    std::string danos;
    std::string que;
};

// --- The steps of the program a damaged beam goes through -----------------------------------

// Runs one step: the program's error is an answer, anything else a failure.
void Paso(std::string& que, const char* nombre, const std::function<void()>& paso) {
    try {
        paso();
    } catch (const ErrorTrevalo&) {
    } catch (const std::exception& e) {
        que += std::string(nombre) + ": " + typeid(e).name() + " " + e.what() + "; ";
    } catch (...) {
        que += std::string(nombre) + ": excepción desconocida; ";
    }
}

// Solve, station tables and the four views of the beam as loaded.
void Recorrer(ProyectoActual& p, VigaActual& v, std::string& que) {
    ResultadosViga r;
    Paso(que, "resolver", [&] { AnalizarViga({}, p, v, r); });
    Paso(que, "estaciones", [&] {
        GeometriaJuntas g;
        GeometriaPlot(v, g);
        ResumenAcero hoja, cad;
        TablaDiseno(p, v, r, g.XPlot, g.YPlot, 2, hoja);
        DisenoParaCAD(p, v, r, g.XPlot, g.YPlot, 2, cad);
    });
    for (int vista = 1; vista <= 4; ++vista)
        Paso(que, "vista", [&] {
            EstadoPloteos e;
            ReiniciarVista(e);
            ElegirPestana(e, vista);
            // The windows show no result view of a solve that failed.
            if (r.NJuntas == 0) e.VerDiagramas = e.VerDiseno = e.VerReacciones = false;
            LienzoGrabador lienzo(1000, 600);
            PlotearViga(lienzo, e, p, v, r);
        });
}

// --- Hostile values --------------------------------------------------------------------------

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

std::vector<Json> ValoresJson() {
    return {-1,    0,       -0.5,   0.5,        1e308,   -1e308,        99999999,
            32767, 32768,   -32769, 2147483648, 1e-300,  kNaN,          kInf,
            -kInf, "texto", "",     true,       nullptr, Json::array(), Json::object()};
}

std::vector<Valor> ValoresBase() {
    const Valor::Binario bytes{0, 255};
    return {Valor(-1),    Valor(0),       Valor(-0.5),
            Valor(1e308), Valor(-1e308),  Valor(99999999.0),
            Valor(32768), Valor(-32769),  Valor(std::int64_t{1} << 40),
            Valor(kInf),  Valor("texto"), Valor(""),
            Valor(),      Valor(bytes)};
}

// A hostile value as the failure report tells it.
std::string Texto(const Valor& v) {
    if (v.EsNulo()) return "NULL";
    if (std::holds_alternative<Valor::Binario>(v.Crudo())) return "binario";
    return v.Texto();
}

template <typename T> const T& Uno(std::mt19937_64& azar, const std::vector<T>& lista) {
    return lista[std::uniform_int_distribution<std::size_t>(0, lista.size() - 1)(azar)];
}

long Hasta(std::mt19937_64& azar, long n) { // 0..n-1
    return std::uniform_int_distribution<long>(0, n - 1)(azar);
}

// --- Beam documents --------------------------------------------------------------------------

// One damage to the document, told in `danos`.
void DanarDocumento(std::mt19937_64& azar, Json& doc, std::string& danos) {
    auto tabla = doc.begin();
    std::advance(tabla, Hasta(azar, static_cast<long>(doc.size())));
    const std::string nombre = tabla.key();
    Json& t = tabla.value();
    const long forma = Hasta(azar, 10);
    if (forma == 0) {
        danos += "sin tabla " + nombre + "; ";
        doc.erase(nombre);
        return;
    }
    if (forma == 1) {
        t = Uno(azar, ValoresJson());
        danos += "tabla " + nombre + " = " + t.dump() + "; ";
        return;
    }
    Json* fila = &t;
    std::string donde = nombre;
    if (t.is_array()) {
        if (t.empty()) return;
        const long i = Hasta(azar, static_cast<long>(t.size()));
        if (forma == 2) {
            danos += nombre + " sin fila " + std::to_string(i + 1) + "; ";
            t.erase(static_cast<std::size_t>(i));
            return;
        }
        if (forma == 3) {
            danos += nombre + " fila " + std::to_string(i + 1) + " repetida; ";
            t.push_back(t[static_cast<std::size_t>(i)]);
            return;
        }
        fila = &t[static_cast<std::size_t>(i)];
        donde += "[" + std::to_string(i + 1) + "]";
    }
    if (!fila->is_object() || fila->empty()) return;
    auto columna = fila->begin();
    std::advance(columna, Hasta(azar, static_cast<long>(fila->size())));
    const std::string col = columna.key();
    if (forma == 4) {
        danos += donde + " sin " + col + "; ";
        fila->erase(col);
        return;
    }
    columna.value() = Uno(azar, ValoresJson());
    danos += donde + "." + col + " = " + columna.value().dump() + "; ";
}

std::vector<Json> Documentos() {
    std::vector<Json> docs;
    for (const auto& e : fs::directory_iterator(TREVALO_FUENTE "/data/ejemplo/vigas"))
        docs.push_back(Json::parse(prueba::LeerArchivo(e.path().string())));
    std::sort(docs.begin(), docs.end(), [](const Json& a, const Json& b) {
        return a["GeneralViga"]["NombreViga"] < b["GeneralViga"]["NombreViga"];
    });
    return docs;
}

void CasoDocumento(std::mt19937_64& azar, const std::vector<Json>& docs, Falla& f) {
    Json doc = Uno(azar, docs);
    for (long n = Hasta(azar, 3) + 1; n > 0; --n) DanarDocumento(azar, doc, f.danos);
    ProyectoActual p;
    VigaActual v;
    bool leida = false;
    if (Hasta(azar, 4) == 0) { // the text itself cut short or with a byte changed
        std::string texto = doc.dump();
        const auto pos = static_cast<std::size_t>(Hasta(azar, static_cast<long>(texto.size())));
        if (Hasta(azar, 2) == 0) {
            texto.resize(pos);
            f.danos += "texto cortado en " + std::to_string(pos) + "; ";
        } else {
            texto[pos] = static_cast<char>(Hasta(azar, 256));
            f.danos += "byte " + std::to_string(pos) + " cambiado; ";
        }
        Paso(f.que, "leer", [&] {
            calc::LeerVigaJsonTexto(texto, p, v);
            leida = true;
        });
    } else {
        Paso(f.que, "leer", [&] {
            calc::LeerVigaJson(doc, p, v);
            leida = true;
        });
    }
    if (leida) Recorrer(p, v, f.que);
}

// --- Project files ---------------------------------------------------------------------------

struct Esquema {
    std::vector<std::pair<std::string, std::vector<std::string>>> tablas; // name, columns
    std::vector<std::string> vigas;
};

Esquema LeerEsquema(const std::string& ruta) {
    Esquema e;
    BaseDatos bd = BaseDatos::Abrir(ruta);
    for (auto rs = bd.AbrirRecordset("SELECT name FROM sqlite_master WHERE type='table' AND "
                                     "name NOT LIKE 'sqlite%' ORDER BY name");
         !rs.AlFinal(); rs.MoveNext()) {
        const std::string tabla = rs.Campo("name").Texto();
        std::vector<std::string> columnas;
        for (auto c = bd.AbrirRecordset("SELECT name FROM pragma_table_info(?)", {tabla});
             !c.AlFinal(); c.MoveNext())
            columnas.push_back(c.Campo("name").Texto());
        e.tablas.emplace_back(tabla, columnas);
    }
    for (auto rs = bd.AbrirRecordset("SELECT NombreViga FROM GeneralViga ORDER BY NombreViga");
         !rs.AlFinal(); rs.MoveNext())
        e.vigas.push_back(rs.Campo("NombreViga").Texto());
    return e;
}

// The rowid of one row of the table, of the beam's rows when `viga` is given; 0 if none.
std::int64_t Fila(std::mt19937_64& azar, BaseDatos& bd, const std::string& tabla,
                  const std::string* viga) {
    std::vector<std::int64_t> filas;
    for (auto rs = viga ? bd.AbrirRecordset("SELECT rowid AS r FROM " + tabla +
                                                " WHERE NombreViga=? ORDER BY rowid",
                                            {*viga})
                        : bd.AbrirRecordset("SELECT rowid AS r FROM " + tabla + " ORDER BY rowid");
         !rs.AlFinal(); rs.MoveNext())
        filas.push_back(rs.Campo("r").Entero());
    return filas.empty() ? 0 : Uno(azar, filas);
}

// One damage to the file through the engine, mostly on the rows of the beam to be read.
void DanarProyecto(std::mt19937_64& azar, const Esquema& e, const std::string& ruta,
                   const std::string& viga, std::string& danos) {
    const auto& [tabla, columnas] = Uno(azar, e.tablas);
    const bool deViga =
        std::find(columnas.begin(), columnas.end(), "NombreViga") != columnas.end() &&
        Hasta(azar, 4) != 0;
    try {
        BaseDatos bd = BaseDatos::Abrir(ruta);
        const std::string filas =
            " WHERE rowid=" + std::to_string(Fila(azar, bd, tabla, deViga ? &viga : nullptr));
        const std::string columna = Uno(azar, columnas);
        Parametros enlaces;
        std::string sql;
        switch (Hasta(azar, 8)) {
        case 0:
            sql = "DROP TABLE " + tabla;
            break;
        case 1:
            sql = "DELETE FROM " + tabla + filas;
            break;
        case 2:
            sql = "INSERT INTO " + tabla + " SELECT * FROM " + tabla + filas;
            break;
        case 3:
            sql = "ALTER TABLE " + tabla + " DROP COLUMN " + columna;
            break;
        default:
            sql = "UPDATE " + tabla + " SET " + columna + "=?" + filas;
            enlaces.push_back(Uno(azar, ValoresBase()));
        }
        bd.Ejecutar(sql, enlaces);
        danos += sql + (enlaces.empty() ? "" : " [" + Texto(enlaces[0]) + "]") + "; ";
    } catch (const ErrorTrevalo&) {
        // A damage the engine refuses (a table already gone, a key repeated, the last column)
        // is no damage.
    }
}

// The file cut short or with bytes overwritten.
void DanarBytes(std::mt19937_64& azar, const std::string& ruta, std::string& danos) {
    std::string bytes = prueba::LeerArchivo(ruta);
    const auto pos = static_cast<std::size_t>(Hasta(azar, static_cast<long>(bytes.size())));
    if (Hasta(azar, 2) == 0) {
        bytes.resize(pos);
        danos += "archivo cortado en " + std::to_string(pos) + "; ";
    } else {
        for (std::size_t i = pos; i < std::min(bytes.size(), pos + 16); ++i)
            bytes[i] = static_cast<char>(Hasta(azar, 256));
        danos += "bytes desde " + std::to_string(pos) + " cambiados; ";
    }
    prueba::EscribirArchivo(ruta, bytes);
}

// The report of the one beam, as the print window fills it.
void Informe(EstadoProyecto& estado, ProyectoActual& p, VigaActual& v, const std::string& viga,
             const std::string& carpeta, std::string& que) {
    Paso(que, "informe", [&] {
        ResultadosViga r;
        EstadoPloteos vista;
        ModeloInforme modelo{estado, p, v, r, vista};
        prueba::DialogosGuion dialogos;
        const std::string ruta = carpeta + "/Informe.kvl";
        CopiarArchivoDisco(TREVALO_RUTA_PROGRAMA "/Imagen/Temporal.kvl", ruta);
        LlenarImpreDatos(ruta, FilaGeneralesDe(p, "fuzz", "6.0"), {viga}, {1, 1, 1},
                         PasosPrograma(modelo, dialogos));
    });
}

void CasoProyecto(std::mt19937_64& azar, const Esquema& esquema, const std::string& carpeta,
                  long numero, Falla& f) {
    const std::string ruta = carpeta + "/Obra.trv";
    CopiarArchivoDisco(TREVALO_RUTA_PROGRAMA "/Imagen/Ejemplo Demostrativo.trv", ruta);
    const std::string viga = Uno(azar, esquema.vigas);
    f.danos = viga + ": ";
    for (long n = Hasta(azar, 3) + 1; n > 0; --n) DanarProyecto(azar, esquema, ruta, viga, f.danos);
    if (Hasta(azar, 6) == 0) DanarBytes(azar, ruta, f.danos);
    const std::string antes = prueba::LeerArchivo(ruta);
    {
        EstadoProyecto estado;
        ProyectoActual p;
        VigaActual v;
        v.NombreVigaActual = viga;
        bool leida = false;
        Paso(f.que, "abrir", [&] {
            AbrirProyectoArchivo(ruta, estado);
            LeerGeneralProyecto(*estado.BDProyecto, p);
        });
        if (estado.BDProyecto)
            Paso(f.que, "leer", [&] {
                LeerViga(estado, v);
                leida = true;
            });
        if (leida) Recorrer(p, v, f.que);
        if (leida && numero % kCadaInforme == 0) Informe(estado, p, v, viga, carpeta, f.que);
    }
    if (prueba::LeerArchivo(ruta) != antes) f.que += "el archivo cambió al leerlo; ";
}

// --- The run ---------------------------------------------------------------------------------

TEST(Fuzz, NingunDanoTerminaNiDetieneElPrograma) {
    prueba::AsegurarAplicacionQt();
    const long semilla = Ambiente("TREVALO_FUZZ_SEMILLA", 1);
    const double segundos = static_cast<double>(Ambiente("TREVALO_FUZZ_SEGUNDOS", 15));
    prueba::CarpetaTemporal carpeta;
    const std::vector<Json> docs = Documentos();
    const Esquema esquema = LeerEsquema(TREVALO_RUTA_PROGRAMA "/Imagen/Ejemplo Demostrativo.trv");
    ASSERT_EQ(docs.size(), 6u);
    ASSERT_EQ(esquema.vigas.size(), 6u);

    std::vector<Falla> fallas;
    long casos[2] = {0, 0};
    const auto inicio = Reloj::now();
    const auto transcurrido = [](Reloj::time_point desde) {
        return std::chrono::duration<double>(Reloj::now() - desde).count();
    };
    for (long n = 1; transcurrido(inicio) < segundos; ++n) {
        // Case n of the seed: its own generator, so that no case depends on another.
        std::mt19937_64 azar(static_cast<std::uint64_t>(semilla) * 1000003u +
                             static_cast<std::uint64_t>(n));
        const bool proyecto = n % 3 == 0;
        Falla f{"semilla " + std::to_string(semilla) + " caso " + std::to_string(n), "", ""};
        const auto desde = Reloj::now();
        if (proyecto)
            CasoProyecto(azar, esquema, carpeta.Ruta(), n / 3, f);
        else
            CasoDocumento(azar, docs, f);
        ++casos[proyecto];
        if (transcurrido(desde) > kLento)
            f.que += "tardó " + std::to_string(transcurrido(desde)) + " s; ";
        if (!f.que.empty()) fallas.push_back(f);
    }
    std::cout << "Semilla " << semilla << ": " << casos[0] << " documentos y " << casos[1]
              << " proyectos dañados, " << fallas.size() << " fallas.\n";
    EXPECT_GT(casos[0] + casos[1], 0);
    for (const Falla& f : fallas) ADD_FAILURE() << f.caso << ": " << f.danos << "-> " << f.que;
}

} // namespace
} // namespace trevalo
