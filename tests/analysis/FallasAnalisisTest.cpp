// Input that the beam editor should have stopped but that reaches the analysis anyway: each
// fault raises the program's error with its classic number and text, and leaves no results
// that could be shown as if the run had worked.

#include <cmath>
#include <functional>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "analysis/AnalisisPrueba.h"
#include "analysis/AnalisisVigasP.h"
#include "comun/Aserciones.h"

namespace trevalo {
namespace {

using namespace prueba;

struct Falla {
    std::string nombre;
    std::function<void(VigaActual&, ProyectoActual&)> romper;
    long numero;
    std::string texto;
};

void PrintTo(const Falla& f, std::ostream* os) {
    *os << f.nombre;
}

const std::string kDiv = "División por cero";
const std::string kSub = "El subíndice está fuera del intervalo";
const std::string kDes = "Desbordamiento";
const double kInf = std::numeric_limits<double>::infinity();

// Steel type 1 of 50 cm2 and 8000 cm4 under the given ModuloAcero.
void Acero(VigaActual& v, ProyectoActual& p, double modulo) {
    v.OpcionConcreto = 1;
    v.B1(1) = 50;
    v.T1(1) = 8000;
    p.ModuloAcero = modulo;
}

// A fault made by one list of joints on the beam.
std::function<void(VigaActual&, ProyectoActual&)> Lista(void (*poner)(VigaActual&, const Filas&),
                                                        Filas filas) {
    return [=](VigaActual& v, ProyectoActual&) { poner(v, filas); };
}

// The beam has joints 1 to 4; support kind 1 is pinned.
std::vector<Falla> Fallas() {
    return {
        {"TramoSinLongitud", [](auto& v, auto&) { v.LT(2) = 0; }, 11, kDiv},
        {"JuntaSobreLaVecina", Lista(PonerDesplazadas, {{2, -4, 0}}), 11, kDiv},
        {"ApoyoMasAlla", Lista(PonerApoyos, {{1, 1}, {5, 1}}), 9, kSub},
        {"ApoyoEnJuntaCero", Lista(PonerApoyos, {{0, 1}, {3, 1}}), 9, kSub},
        {"AccionMasAlla", Lista(PonerAcciones, {{5, 0, 100, 0}}), 9, kSub},
        {"ResorteMasAlla", Lista(PonerResortes, {{5, 0, 100, 0}}), 9, kSub},
        {"DesplazadaMasAlla", Lista(PonerDesplazadas, {{5, 0.1, 0}}), 9, kSub},
        // 1.5 rounds to 2 (ties to even), a type the beam does not have.
        {"TipoRedondeadoInexistente", [](auto& v, auto&) { v.VT(1) = 1.5; }, 9, kSub},
        {"ResistenciaNegativa", [](auto&, auto& p) { p.FC = -210; }, 5,
         "Argumento o llamada a procedimiento no válida"},
        {"ConcretoSinResistenciaConCortante",
         [](auto&, auto& p) {
             p.FC = 0;
             p.DEFCOR = true;
         },
         11, kDiv},
        {"AceroSinModuloConCortante",
         [](auto& v, auto& p) {
             Acero(v, p, 0);
             p.DEFCOR = true;
         },
         11, kDiv},
        {"ModuloInfinito", [](auto& v, auto& p) { Acero(v, p, 1e306); }, 6, kDes},
        // Values no solve can use, stopped before the system is formed.
        {"SinTramos", [](auto& v, auto&) { v.NT = 0; }, 9, kSub},
        {"TramosNegativos", [](auto& v, auto&) { v.NT = -3; }, 9, kSub},
        {"LongitudNoNumero", [](auto& v, auto&) { v.LT(2) = std::nan(""); }, 6, kDes},
        {"PosicionInfinita",
         [](auto& v, auto&) {
             PonerCargas(v, 1, 2, {{100, kInf}});
         },
         6, kDes},
        {"PesoNoNumero", [](auto&, auto& p) { p.PesoConcreto = std::nan(""); }, 6, kDes},
        // A vertical bar (CosX = 0) cannot place a load along its horizontal projection.
        {"CargaEnBarraVertical",
         [](auto& v, auto&) {
             PonerDesplazadas(v, {{2, -4, 3}});
             PonerCargas(v, 1, 2, {{100, 0}});
         },
         11, kDiv},
    };
}

class FallasAnalisis : public ::testing::TestWithParam<Falla> {};

TEST_P(FallasAnalisis, ErrorYResultadosVacios) {
    const Falla& falla = GetParam();
    VigaActual v = VigaDeTramos({4, 5, 3});
    ProyectoActual p = ProyectoPrueba();
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}, {4, RodilloEnX}});
    for (long t = 1; t <= v.NT; ++t) v.W1(t) = 1000;
    // Results of an earlier good run must not survive the failed one.
    ResultadosViga r;
    AnalizarViga({}, p, v, r);
    ASSERT_EQ(r.NJuntas, 4);

    falla.romper(v, p);
    EXPECT_TREVALO_ERROR(AnalizarViga({}, p, v, r), falla.numero, falla.texto);
    EXPECT_EQ(r.NJuntas, 0);
    EXPECT_EQ(r.MomI.Ubound(), 0);
    EXPECT_EQ(r.ReacV.Ubound(), 0);
}

INSTANTIATE_TEST_SUITE_P(Entradas, FallasAnalisis, ::testing::ValuesIn(Fallas()),
                         [](const auto& info) { return info.param.nombre; });

// Step 1 reads the settings at every run; a failure there clears the results as well.
TEST(LecturaProyecto, CadaCorridaLeeLosAjustes) {
    VigaActual v = VigaDeTramos({4});
    PonerApoyos(v, {{1, ApoyoFijo}, {2, ApoyoFijo}});
    ProyectoActual p = ProyectoPrueba();
    int lecturas = 0;
    const LectorProyecto lector = [&](ProyectoActual& q) {
        ++lecturas;
        q.PPV = true; // own weight 0.3 x 0.5 x 2500 = 375 kgf/m
    };
    ResultadosViga r;
    AnalizarViga(lector, p, v, r);
    AnalizarViga(lector, p, v, r);
    EXPECT_EQ(lecturas, 2);
    EXPECT_DOUBLE_EQ(r.ReacV(1), 375 * 4 / 2.0);

    const LectorProyecto roto = [](ProyectoActual&) {
        throw ErrorTrevalo(3024, "No se encontró el archivo");
    };
    EXPECT_TREVALO_ERROR(AnalizarViga(roto, p, v, r), 3024, "No se encontró el archivo");
    EXPECT_EQ(r.NJuntas, 0);
}

// Without supports the pivots fall to 1e-20 and the solve goes through without a message,
// as it always did: the numbers are huge but finite.
TEST(LecturaProyecto, MecanismoSinMensaje) {
    VigaActual v = VigaDeTramos({4, 4});
    ProyectoActual p = ProyectoPrueba();
    for (long t = 1; t <= v.NT; ++t) v.W1(t) = 1000;
    ResultadosViga r;
    AnalizarViga({}, p, v, r);
    EXPECT_GT(std::fabs(r.DespY(2)), 1e10);
}

} // namespace
} // namespace trevalo
