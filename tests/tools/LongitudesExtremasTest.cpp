// Span lengths that a typo or a damaged file brings, through every command that solves and
// paints: a negative span has no stations and the rest of the beam goes on; a span whose
// stations do not fit their 16-bit count is error 6, at once. Nothing ends the tool.

#include <nlohmann/json.hpp>

#include "CalcPrueba.h"
#include "app/tools/VigaJson.h"
#include "comun/AplicacionQt.h"
#include "comun/Proyecto.h"

namespace trevalo::calc {
namespace {

using namespace trevalo::prueba;
using Json = nlohmann::ordered_json;

// Report beam 1 (spans of 5 and 5.5 m) with the length of its first span replaced, as a
// document and as a project.
class LongitudesExtremas : public ConCarpeta {
  protected:
    void SetUp() override { AsegurarAplicacionQt(); } // the views paint with fonts
    void Escribir(double longitud) {
        VigaActual v = VigaPrueba("V-1", 1);
        v.LT(1) = longitud;
        EscribirArchivo(Ruta("viga.json"), EscribirVigaJson(AjustesPrueba(), v).dump());
        CrearProyecto(Ruta("Obra.trv"), {v}, AjustesPrueba());
    }
    // The command for the document and for the project.
    std::vector<Argumentos> Ordenes(const Argumentos& orden) const {
        Argumentos json = orden, trv = orden;
        json.insert(json.begin() + 1, Ruta("viga.json"));
        trv.insert(trv.begin() + 1, Ruta("Obra.trv"));
        trv.insert(trv.begin() + 2, {"--viga", "V-1"});
        return {json, trv};
    }
};

std::string Linea(const Argumentos& args) {
    std::string linea;
    for (const std::string& a : args) linea += a + " ";
    return linea;
}

std::vector<Argumentos> Comandos() {
    std::vector<Argumentos> c = {{"resolver", "--estaciones", "2"}, {"diseno"}};
    for (const char* vista : {"1", "2", "3", "4"})
        c.push_back({"dibujar", "--vista", vista, "--reporte", "-o", "x.png"});
    return c;
}

TEST_F(LongitudesExtremas, TramoNegativoSinEstaciones) {
    Escribir(-1);
    for (const Argumentos& comando : Comandos())
        for (Argumentos args : Ordenes(comando)) {
            if (args[0] == "dibujar") args.back() = Ruta("x.png");
            SCOPED_TRACE(Linea(args));
            const Salida r = Calc(args);
            ASSERT_EQ(r.codigo, 0) << r.errores;
            if (args[0] == "dibujar") {
                EXPECT_TRUE(std::filesystem::exists(Ruta("x.png")));
                continue;
            }
            const Json d = Json::parse(r.salida);
            const Json& tramos = d.contains("Tramos") ? d["Tramos"] : d["tramos"];
            const char* estaciones = d.contains("Tramos") ? "Estaciones" : "estaciones";
            ASSERT_EQ(tramos.size(), 2u);
            EXPECT_TRUE(tramos[0][estaciones].empty());
            EXPECT_EQ(tramos[1][estaciones].size(), 12u); // 5.5 m at 2 a metre
        }
}

TEST_F(LongitudesExtremas, EstacionesMasAllaDeSuCuentaSonDesbordamiento) {
    // 99,999,999 m at 2 stations a metre on the design sheet, 10 on the diagrams: far beyond
    // 32767 stations. The elevation of such a beam has a scale of zero pixels a metre.
    Escribir(99999999);
    for (const Argumentos& comando : Comandos())
        for (Argumentos args : Ordenes(comando)) {
            if (args[0] == "dibujar") args.back() = Ruta("x.png");
            SCOPED_TRACE(Linea(args));
            const Salida r = Calc(args);
            EXPECT_EQ(r.codigo, 1);
            EXPECT_EQ(r.errores, "Error 6: Desbordamiento\n");
            EXPECT_EQ(r.salida, "");
        }
}

} // namespace
} // namespace trevalo::calc
