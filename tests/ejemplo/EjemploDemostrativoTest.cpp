// The sample project as the build leaves it in the program's folder: every beam opens and
// solves to finite results whose reactions balance the loads (totals added up by hand from
// the recipes in data/ejemplo/vigas), and the project shows every feature of a beam.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <map>
#include <set>

#include "analysis/AnalisisVigasP.h"
#include "comun/Aserciones.h"
#include "comun/Carpeta.h"
#include "store/BaseDatos.h"

namespace fs = std::filesystem;
using namespace trevalo;
using namespace trevalo::prueba;

namespace {

const std::string Imagen = std::string(TREVALO_RUTA_PROGRAMA) + "/Imagen";
const std::string Ejemplo = Imagen + "/Ejemplo Demostrativo.trv";

struct VigaResuelta {
    VigaActual viga;
    ResultadosViga resultados;
};

// Loads and solves every beam of a copy of the sample project, in list order.
std::map<std::string, VigaResuelta> ResolverEjemplo(const std::string& copia) {
    fs::copy_file(Ejemplo, copia);
    EstadoProyecto estado;
    estado.BDProyecto = BaseDatos::Abrir(copia);
    AbrirRsGeneralViga(estado, ConsultaListaVigas);
    std::map<std::string, VigaResuelta> vigas;
    for (Recordset& rs = *estado.RsGeneralViga; !rs.AlFinal(); rs.MoveNext()) {
        const std::string nombre = rs.Campo("NombreViga").Texto();
        VigaResuelta& v = vigas[nombre];
        v.viga.NombreVigaActual = nombre;
        EXPECT_NO_THROW(LeerViga(estado, v.viga)) << nombre;
        ProyectoActual proyecto;
        AnalizarViga(LectorGeneralProyecto(*estado.BDProyecto), proyecto, v.viga, v.resultados);
    }
    return vigas;
}

class EjemploDemostrativo : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        ASSERT_TRUE(fs::is_regular_file(Ejemplo)) << "build the data targets first";
        CarpetaTemporal tmp;
        vigas_ = new std::map<std::string, VigaResuelta>(ResolverEjemplo(tmp / "Ejemplo.trv"));
    }
    static void TearDownTestSuite() {
        delete vigas_;
        vigas_ = nullptr;
    }
    static const VigaResuelta& Viga(const std::string& nombre) {
        const auto it = vigas_->find(nombre);
        if (it == vigas_->end()) throw std::runtime_error("no está la viga " + nombre);
        return it->second;
    }

    static std::map<std::string, VigaResuelta>* vigas_;
};
std::map<std::string, VigaResuelta>* EjemploDemostrativo::vigas_ = nullptr;

double Suma(const Arreglo<double>& a, long n) {
    double s = 0;
    for (long j = 1; j <= n; ++j) s += a(j);
    return s;
}

bool TodoFinito(const ResultadosViga& r) {
    for (long j = 1; j <= r.NJuntas; ++j)
        for (double v : {r.DespX(j), r.DespY(j), r.GiroZ(j), r.ReacV(j), r.ReacH(j), r.ReacM(j)})
            if (!std::isfinite(v)) return false;
    for (long t = 1; t < r.NJuntas; ++t)
        for (double v : {r.CorI(t), r.CorJ(t), r.MomI(t), r.MomJ(t), r.AxiI(t), r.AxiJ(t)})
            if (!std::isfinite(v)) return false;
    return true;
}

// Total vertical load of each beam in kgf, own weight included (kgf/m whole, ties to even):
//   V-101: (2800+450)*5 + (2800+450)*6 + 4500 + (2400+375)*4.5 + 1200*2     = 55137.5
//   V-201: (350+42)*15 + 300*3/2 + (200+400)/2*7.5                           =  8580
//   V-102: (1500+312)*5.8 + 900*4/2 + 800                                    = 13109.6
//   V-001: 1200*10 + 30000 + 60000 + 30000                                   = 132000
//   V-401: (1800+1250)*8 + 32000 + 28000 + (1200+800)*6 + 2400*(6-1.5)       = 107200
struct CasoEquilibrio {
    const char* nombre;
    double cargaTotal;
};
class Equilibrio : public EjemploDemostrativo,
                   public ::testing::WithParamInterface<CasoEquilibrio> {};

TEST_P(Equilibrio, ReaccionesIgualanLasCargas) {
    const VigaResuelta& v = Viga(GetParam().nombre);
    ASSERT_EQ(v.resultados.NJuntas, v.viga.NT + 1);
    EXPECT_TRUE(TodoFinito(v.resultados));
    EXPECT_CERCA(Suma(v.resultados.ReacV, v.resultados.NJuntas), GetParam().cargaTotal, 1e-6);
}

INSTANTIATE_TEST_SUITE_P(Vigas, Equilibrio,
                         ::testing::Values(CasoEquilibrio{"V-101 Entrepiso Eje B", 55137.5},
                                           CasoEquilibrio{"V-201 Techo Galpón IPE 300", 8580},
                                           CasoEquilibrio{"V-102 Balcón en Volado", 13109.6},
                                           CasoEquilibrio{"V-001 Fundación sobre Suelo Elástico",
                                                          132000},
                                           CasoEquilibrio{"V-401 Viga de Transferencia", 107200}));

TEST_F(EjemploDemostrativo, VoladoComoEnLaMano) {
    // Back span 4 m and cantilever 1.8 m, w = 1500 + 312 kgf/m, a triangle of 900 kgf/m
    // peak on the back span and 800 kgf at the tip. By statics:
    //   support moment  -(1812 * 1.8^2 / 2 + 800 * 1.8)       = -4375.44 kgf-m
    //   left reaction   (1812*4*2 + 1800*2 - 4375.44) / 4      =  3430.14 kgf
    //   middle reaction 13109.6 - 3430.14                      =  9679.46 kgf
    const ResultadosViga& r = Viga("V-102 Balcón en Volado").resultados;
    EXPECT_NEAR(r.MomI(2), -4375.44, 1e-6);
    EXPECT_NEAR(r.MomJ(1), -4375.44, 1e-6);
    EXPECT_NEAR(r.MomJ(2), 0, 1e-6);
    EXPECT_NEAR(r.ReacV(1), 3430.14, 1e-6);
    EXPECT_NEAR(r.ReacV(2), 9679.46, 1e-6);
    EXPECT_EQ(r.ReacV(3), 0);
    EXPECT_GT(r.DespY(3), 0); // the tip goes down
}

TEST_F(EjemploDemostrativo, FundacionSimetricaSobreResortes) {
    // Loads and the two column moments (clockwise at 1, anticlockwise at 5) mirror each
    // other about the middle, so the soil reactions do too; nothing pushes along the axis.
    // Each spring's reaction is its stiffness times its settlement.
    const ResultadosViga& r = Viga("V-001 Fundación sobre Suelo Elástico").resultados;
    EXPECT_CERCA(r.ReacV(1), r.ReacV(5), 1e-6);
    EXPECT_CERCA(r.ReacV(2), r.ReacV(4), 1e-6);
    const double rigidez[] = {3.0e6, 6.0e6, 6.0e6, 6.0e6, 3.0e6};
    for (long j = 1; j <= 5; ++j) {
        EXPECT_CERCA(r.ReacV(j), rigidez[j - 1] * r.DespY(j), 1e-6) << j;
        EXPECT_EQ(r.ReacH(j), 0) << j;
    }
    // The soil pushes up between the columns: hogging there, sagging under the middle one.
    EXPECT_LT(r.MomJ(1), 0);
    EXPECT_GT(r.MomJ(2), 0);
}

TEST_F(EjemploDemostrativo, RampaConJuntaDesplazada) {
    // The ramp carries its load on a true length between the projected 6 m and the sloped
    // sqrt(6^2 + 1.2^2) = 6.1188 m: 14125 + 2450 * [6, 6.1188] kgf; the thrust of the
    // inclined span is taken by the fixed end and the pin in equal and opposite parts.
    const VigaResuelta& v = Viga("V-301 Rampa Estacionamiento");
    EXPECT_TRUE(TodoFinito(v.resultados));
    const double total = Suma(v.resultados.ReacV, v.resultados.NJuntas);
    EXPECT_GE(total, 14125 + 2450 * 6.0 - 1e-6);
    EXPECT_LE(total, 14125 + 2450 * std::hypot(6.0, 1.2) + 1e-6);
    EXPECT_NEAR(v.resultados.ReacH(1) + v.resultados.ReacH(3), 0, 1e-6);
    EXPECT_NE(v.resultados.ReacM(1), 0); // fixed in the wall
}

TEST_F(EjemploDemostrativo, MuestraCadaRasgoDeUnaViga) {
    std::set<int> tiposCarga, apoyos;
    bool concreto = false, acero = false, resortes = false, desplazada = false, acciones = false,
         volado = false;
    for (const auto& [nombre, r] : *vigas_) {
        const VigaActual& v = r.viga;
        (v.OpcionConcreto == 0 ? concreto : acero) = true;
        resortes |= v.NJRes > 0;
        desplazada |= v.NJDesp > 0;
        acciones |= v.NAcc > 0;
        for (long k = 1; k <= v.NJRest; ++k) apoyos.insert(v.Apoyo(k));
        std::set<long> sostenidas;
        for (long k = 1; k <= v.NJRest; ++k) sostenidas.insert(v.R1(k));
        for (long k = 1; k <= v.NJRes; ++k) sostenidas.insert(v.R10(k));
        volado |= !sostenidas.count(1) || !sostenidas.count(v.NT + 1);
        for (long t = 1; t <= v.NT; ++t) {
            const int presentes[] = {v.W1(t) != 0,    v.CantW2(t) > 0, v.CantW3(t) > 0,
                                     v.W4(t) != 0,    v.W5(t) != 0,    v.CantW6(t) > 0,
                                     v.CantW7(t) > 0, v.CantW8(t) > 0};
            for (int tipo = 1; tipo <= 8; ++tipo)
                if (presentes[tipo - 1]) tiposCarga.insert(tipo);
        }
    }
    EXPECT_EQ(tiposCarga, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(apoyos, (std::set<int>{1, 2, 3, 4}));
    EXPECT_TRUE(concreto && acero && resortes && desplazada && acciones && volado);

    const VigaActual& ipe = Viga("V-201 Techo Galpón IPE 300").viga;
    EXPECT_NE(ipe.OpcionConcreto, 0);
    EXPECT_EQ(ipe.B1(1), 53.81); // cm2
    EXPECT_EQ(ipe.T1(1), 8356);  // cm4
    EXPECT_EQ(ipe.Designacion(1), "IPE 300");
}

} // namespace
