// The report database after a fill: Generales, the running Numero across beams, the
// pictures each beam gets, the choice of one beam, the progress and the one transaction.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "BaseTemporal.h"
#include "comun/Aserciones.h"
#include "output/BaseInforme.h"
#include "output/LlenarImpreDatos.h"
#include "platform/motor/MotorDatos.h"

namespace trevalo {
namespace {

// A walk that records what was asked of it; each picture is a few bytes naming the beam
// and the view, so that the stored rows can be traced back.
struct Recorrido {
    std::vector<std::string> pasos;
    std::vector<std::pair<std::string, double>> progreso;
    std::vector<bool> panel;
    std::string viga;
    std::string fallaEn; // the beam whose painting raises

    PasosInforme Pasos() {
        PasosInforme p;
        p.CargarViga = [this](const std::string& n) {
            viga = n;
            pasos.push_back("cargar " + n);
            return std::optional<Pregunta>();
        };
        p.Analizar = [this] {
            pasos.push_back("analizar " + viga);
            return std::optional<Pregunta>();
        };
        p.Preparar = [this](VistaInforme v) -> TrabajoGrafico {
            const std::string marca = viga + "/" + std::to_string(static_cast<int>(v));
            const bool falla = viga == fallaEn;
            return [this, marca, falla] {
                if (falla) throw ErrorTrevalo(11, "División por cero");
                pasos.push_back("pintar " + marca);
                return GraficoPintado{nullptr, {marca.begin(), marca.end()}, std::nullopt};
            };
        };
        p.Panel = [this](bool visible) { panel.push_back(visible); };
        p.Progreso = [this](const std::string& e, double v) { progreso.emplace_back(e, v); };
        return p;
    }
};

FilaGenerales Generales() {
    FilaGenerales g;
    g.Usuario = "Ing. Núñez";
    g.Version = "6.0";
    g.Proyecto = "Edificio Ñandú";
    g.Propietario = "Constructora O'Higgins \"S.A.\"";
    g.Calculista = "María José Peña";
    g.FC = 280;
    g.FY = 4200;
    g.D8 = 0.06;
    return g;
}

std::string Texto(const std::vector<std::uint8_t>& b) {
    return {b.begin(), b.end()};
}

class FillTest : public BaseTemporalTest {};

TEST_F(FillTest, GeneralesHoldsExactlyOneRowWithEveryField) {
    Recorrido r;
    LlenarImpreDatos(ruta, Generales(), {"V-1"}, {}, r.Pasos());
    LlenarImpreDatos(ruta, Generales(), {"V-1"}, {}, r.Pasos());
    EXPECT_EQ(BaseDatos::Abrir(ruta).AbrirRecordset("Generales").RecordCount(), 1);
    const auto c = LeerBaseInforme(ruta);
    EXPECT_EQ(c.Generales.TiTulo, "ANALISIS Y DISEÑO DE VIGAS CONTINUAS");
    EXPECT_EQ(c.Generales.Usuario, "Ing. Núñez");
    EXPECT_EQ(c.Generales.Version, "6.0");
    EXPECT_EQ(c.Generales.Proyecto, "Edificio Ñandú");
    EXPECT_EQ(c.Generales.Propietario, "Constructora O'Higgins \"S.A.\"");
    EXPECT_EQ(c.Generales.Calculista, "María José Peña");
    EXPECT_DOUBLE_EQ(c.Generales.FC, 280);
    EXPECT_DOUBLE_EQ(c.Generales.FY, 4200);
    EXPECT_DOUBLE_EQ(c.Generales.D8, 0.06);
}

struct CasoNumeros {
    std::uint8_t diagramas, reacciones;
    std::vector<std::string> graficos; // beam/view of Numero 1, 2, 3 ...
};

class NumerosTest : public BaseTemporalTest, public testing::WithParamInterface<CasoNumeros> {};

// Views: 0 design sheet, 1 diagrams, 2 reactions.
INSTANTIATE_TEST_SUITE_P(
    Opciones, NumerosTest,
    testing::Values(CasoNumeros{0, 0, {"A/0", "B/0", "C/0"}},
                    CasoNumeros{0, 1, {"A/0", "B/0", "C/0"}}, // reactions alone add nothing
                    CasoNumeros{1, 0, {"A/0", "A/1", "B/0", "B/1", "C/0", "C/1"}},
                    CasoNumeros{
                        1, 1, {"A/0", "A/1", "A/2", "B/0", "B/1", "B/2", "C/0", "C/1", "C/2"}}));

TEST_P(NumerosTest, NumeroRunsAcrossBeamsInListOrder) {
    Recorrido r;
    LlenarImpreDatos(ruta, Generales(), {"A", "B", "C"},
                     {0, GetParam().diagramas, GetParam().reacciones}, r.Pasos());
    const auto c = LeerBaseInforme(ruta);
    ASSERT_EQ(c.Graficos.size(), GetParam().graficos.size());
    for (std::size_t k = 0; k < c.Graficos.size(); ++k) {
        EXPECT_EQ(c.Graficos[k].Numero, static_cast<std::int16_t>(k + 1));
        EXPECT_EQ(Texto(c.Graficos[k].Grafico), GetParam().graficos[k]);
    }
}

TEST_F(FillTest, EachBeamIsLoadedAndSolvedOnceBeforeItsPictures) {
    Recorrido r;
    LlenarImpreDatos(ruta, Generales(), {"A", "B"}, {0, 1, 1}, r.Pasos());
    const std::vector<std::string> esperado = {
        "cargar A", "analizar A", "pintar A/0", "pintar A/1", "pintar A/2",
        "cargar B", "analizar B", "pintar B/0", "pintar B/1", "pintar B/2"};
    EXPECT_EQ(r.pasos, esperado);
}

TEST_F(FillTest, ProgressShowsEachNameWithTheBarGrowingByItsShare) {
    Recorrido r;
    LlenarImpreDatos(ruta, Generales(), {"V 1", "Viga \"ñ\" 2", "x'3", "4"}, {}, r.Pasos());
    ASSERT_EQ(r.progreso.size(), 4u);
    const char* nombres[] = {"V 1", "Viga \"ñ\" 2", "x'3", "4"};
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_EQ(r.progreso[k].first, std::string("Exportando la Viga: ") + nombres[k]);
        EXPECT_DOUBLE_EQ(r.progreso[k].second, 25.0 * static_cast<double>(k + 1));
    }
    EXPECT_EQ(r.panel, (std::vector<bool>{true, false}));
}

TEST_F(FillTest, OneChosenBeamGetsNumbersFromOneAndNoProgressAndMustBeInTheList) {
    Recorrido r;
    LlenarImpreDatos(ruta, Generales(), {"A", "B", "C"}, {2, 1, 0}, r.Pasos());
    const auto c = LeerBaseInforme(ruta);
    ASSERT_EQ(c.Graficos.size(), 2u);
    EXPECT_EQ(c.Graficos[0].Numero, 1);
    EXPECT_EQ(Texto(c.Graficos[0].Grafico), "B/0");
    EXPECT_EQ(Texto(c.Graficos[1].Grafico), "B/1");
    EXPECT_TRUE(r.progreso.empty());
    EXPECT_EQ(r.pasos.front(), "cargar B");
    // A number beyond the list is a subscript out of range.
    EXPECT_TREVALO_ERROR(LlenarImpreDatos(ruta, Generales(), {"A", "B"}, {3, 0, 0}, r.Pasos()), 9,
                         "El subíndice está fuera del intervalo");
}

TEST_F(FillTest, AFailureMidwayLeavesTheLastReportAsItWas) {
    Recorrido bueno;
    LlenarImpreDatos(ruta, Generales(), {"A", "B"}, {0, 1, 0}, bueno.Pasos());
    const auto antes = LeerBaseInforme(ruta);

    Recorrido malo;
    malo.fallaEn = "Y";
    auto otros = Generales();
    otros.Proyecto = "Otro";
    EXPECT_TREVALO_ERROR(LlenarImpreDatos(ruta, otros, {"X", "Y", "Z"}, {0, 1, 1}, malo.Pasos()),
                         11, "División por cero");
    EXPECT_EQ(malo.panel, (std::vector<bool>{true, false}));
    const auto despues = LeerBaseInforme(ruta);
    EXPECT_EQ(despues.Generales.Proyecto, "Edificio Ñandú");
    ASSERT_EQ(despues.Graficos.size(), antes.Graficos.size());
    for (std::size_t k = 0; k < antes.Graficos.size(); ++k)
        EXPECT_EQ(despues.Graficos[k].Grafico, antes.Graficos[k].Grafico);
}

TEST_F(FillTest, ReadingSortsPicturesByNumeroWhateverTheStoredOrder) {
    auto bd = BaseDatos::Abrir(ruta);
    for (int n : {3, 1, 2}) {
        const std::string b = "g" + std::to_string(n);
        bd.Ejecutar("INSERT INTO Graficos (Numero, Grafico) VALUES (?, ?)",
                    {n, Valor::Binario(b.begin(), b.end())});
    }
    const auto c = LeerBaseInforme(ruta);
    ASSERT_EQ(c.Graficos.size(), 3u);
    for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(c.Graficos[static_cast<std::size_t>(k)].Numero, k + 1);
        EXPECT_EQ(Texto(c.Graficos[static_cast<std::size_t>(k)].Grafico),
                  "g" + std::to_string(k + 1));
    }
}

TEST_F(FillTest, AMissingDatabaseIsTheEnginesError) {
    std::filesystem::remove(ruta);
    Recorrido r;
    try {
        LlenarImpreDatos(ruta, Generales(), {"A"}, {}, r.Pasos());
        ADD_FAILURE() << "no error";
    } catch (const ErrorTrevalo& e) {
        EXPECT_EQ(e.Numero(), 14); // the engine's "unable to open database file"
    }
    EXPECT_FALSE(std::filesystem::exists(ruta));
}

} // namespace
} // namespace trevalo
