// The beam JSON: reading as the store reads a beam, names without regard to case, the
// messages for bad documents, and a write-read round trip.

#include <gtest/gtest.h>

#include <string>

#include "VerificaError.h"
#include "app/tools/VigaJson.h"

namespace trevalo::calc {
namespace {

using Json = nlohmann::ordered_json;

// Settings row with every column, values away from the defaults.
Json Proyecto() {
    return Json::parse(R"({"Proyecto":"Edificio A","Propietario":"","Fecha":"03/02/2024",
        "Calculista":"Ing. Pérez","Comentario":"","Cliente":"","PPV":false,"DEFCOR":true,
        "FC":280,"FY":4200,"D8":0.06,"PesoConcreto":2400,"CFormaConcreto":1.2,
        "ModuloAcero":2100000,"PesoAcero":7850,"CFormaAcero":0,"OpcionEstribos":true})");
}

// Two spans: the rows are given out of order on purpose, and the names in mixed case.
Json DosTramos() {
    Json d;
    d["generalproyecto"] = Proyecto();
    d["GENERALVIGA"] = Json::parse(R"({"NombreViga":"V-1","nt":2,"OpcionConcreto":0,
        "OpcionCarga":1,"FMayoracionTC":1.4,"FMayoracion":1.6})");
    d["Tramos"] = Json::parse(R"([{"Tramo":2,"LT":3.5,"VT":2},{"tramo":1,"lt":5,"vt":1}])");
    d["Juntas"] = Json::parse(R"([
        {"Numero":1,"NombreEje":"A","LDer":0.1,"LIzq":0.2,"HC":0.4},
        {"Numero":3,"NombreEje":"C","LDer":0.3,"LIzq":0.3,"HC":0.6},
        {"Numero":2,"NombreEje":"B","LDer":0.15,"LIzq":0.15,"HC":0.5}])");
    d["JuntasRestringidas"] = Json::parse(R"([{"R1":3,"Apoyo":3},{"R1":1,"Apoyo":4}])");
    d["JuntasResortes"] = Json::parse(R"([{"R10":2,"SH10":0,"SV10":50000,"SM10":0}])");
    d["JuntasDesplazadas"] = Json::parse(R"([{"R3":2,"XX":0.1,"YY":-0.2}])");
    d["TiposVigas"] = Json::parse(R"([{"Tipo":2,"B1":null,"T1":-1,"Designacion":"sin medidas"},
        {"Tipo":1,"B1":0.25,"T1":0.6,"Designacion":"V 25x60"}])");
    d["CargasTramos"] = Json::parse(R"([
        {"Tramo":1,"W1":1200,"Gravedad":0,"CantW2":2,"P1":3000,"LP1":1.5,"P2":-500,"LP2":4,
         "P3":"ignorada","CantW3":0,"W4":0,"W5":0,"la5":0,"CantW6":1,"W6_1":800,"La6_1":0,
         "Lb6_1":2,"CantW7":0,"CantW8":1,"WIzq8_1":100,"WDer8_1":300,"La8_1":1,"Lb8_1":4},
        {"Tramo":2,"W1":900,"Gravedad":1,"CantW2":0,"CantW3":1,"W3_1":400,"La3_1":0.5,
         "Lb3_1":3,"W4":250,"W5":150,"la5":1.25,"CantW6":0,"CantW7":1,"W7_1":600,"La7_1":0,
         "Lb7_1":3.5,"CantW8":0}])");
    d["AccionesNodales"] = Json::parse(R"([{"R2":2,"QC1":1000,"QC2":-2000,"QC3":300}])");
    return d;
}

struct Leida {
    ProyectoActual p;
    VigaActual v;
};

Leida Leer(const Json& d) {
    Leida l;
    LeerVigaJson(d, l.p, l.v);
    return l;
}

TEST(VigaJsonLectura, TablasCompletas) {
    const Leida l = Leer(DosTramos());
    EXPECT_EQ(l.p.ProyFecha, "03/02/2024");
    EXPECT_EQ(l.p.Calculista, "Ing. Pérez");
    EXPECT_FALSE(l.p.PPV);
    EXPECT_TRUE(l.p.DEFCOR);
    EXPECT_TRUE(l.p.OpcionEstribos);
    EXPECT_EQ(l.p.D8, 0.06);
    EXPECT_EQ(l.p.CFormaConcreto, 1.2);

    const VigaActual& v = l.v;
    EXPECT_EQ(v.NombreVigaActual, "V-1");
    EXPECT_EQ(v.NT, 2);
    EXPECT_EQ(v.OpcionCarga, 1);
    // Spans in the order of Tramo; every span takes the beam's load factor.
    EXPECT_EQ(v.LT(1), 5);
    EXPECT_EQ(v.LT(2), 3.5);
    EXPECT_EQ(v.VT(2), 2);
    EXPECT_EQ(v.LongTotal, 8.5);
    EXPECT_EQ(v.FMayorTramo(1), 1.6);
    EXPECT_EQ(v.FMayorTramo(2), 1.6);
    EXPECT_EQ(v.NombreEje(2), "B");
    EXPECT_EQ(v.HC(3), 0.6);
    // Lists ordered by their joint number.
    ASSERT_EQ(v.NJRest, 2);
    EXPECT_EQ(v.R1(1), 1);
    EXPECT_EQ(v.Apoyo(1), Empotramiento);
    EXPECT_EQ(v.R1(2), 3);
    EXPECT_EQ(v.NJRes, 1);
    EXPECT_EQ(v.SV10(1), 50000);
    EXPECT_EQ(v.NJDesp, 1);
    EXPECT_EQ(v.YY(1), -0.2);
    EXPECT_EQ(v.NAcc, 1);
    EXPECT_EQ(v.QC2(1), -2000);
    // A type without usable dimensions on a concrete beam takes 0.3 x 0.5.
    ASSERT_EQ(v.NTipos, 2);
    EXPECT_EQ(v.Designacion(1), "V 25x60");
    EXPECT_EQ(v.B1(1), 0.25);
    EXPECT_EQ(v.B1(2), 0.3);
    EXPECT_EQ(v.T1(2), 0.5);
    // Loads: slots up to their counts; P3 beyond CantW2 is not read.
    EXPECT_EQ(v.CantW2(1), 2);
    EXPECT_EQ(v.P(1, 2), -500);
    EXPECT_EQ(v.LP(1, 2), 4);
    EXPECT_EQ(v.P(1, 3), 0);
    EXPECT_EQ(v.W6_(1, 1), 800);
    EXPECT_EQ(v.WDer8_(1, 1), 300);
    EXPECT_EQ(v.Gravedad(2), 1);
    EXPECT_EQ(v.Lb3_(2, 1), 3);
    EXPECT_EQ(v.la5(2), 1.25);
    EXPECT_EQ(v.Lb7_(2, 1), 3.5);
}

TEST(VigaJsonLectura, TablasAusentes) {
    Json d;
    d["GeneralProyecto"] = Proyecto();
    // No header: the default beam.
    Leida l = Leer(d);
    EXPECT_EQ(l.v.NT, 1);
    EXPECT_EQ(l.v.LT(1), 4);
    EXPECT_EQ(l.v.NJRest, 2);
    // A header alone: spans of no length, FMayorTramo 0, default joints and one default type.
    d["GeneralViga"] = DosTramos()["GENERALVIGA"];
    l = Leer(d);
    EXPECT_EQ(l.v.NT, 2);
    EXPECT_EQ(l.v.LT(2), 0);
    EXPECT_EQ(l.v.FMayorTramo(1), 0);
    EXPECT_EQ(l.v.LDer(3), 0.15);
    EXPECT_EQ(l.v.HC(1), 0.5);
    EXPECT_EQ(l.v.NombreEje(1), "");
    EXPECT_EQ(l.v.NTipos, 1);
    EXPECT_EQ(l.v.B1(1), 0.3);
    EXPECT_EQ(l.v.NJRest, 0);
    EXPECT_EQ(l.v.W1(2), 0);
    // A steel beam's default type has no dimensions.
    d["GeneralViga"]["OpcionConcreto"] = 1;
    l = Leer(d);
    EXPECT_EQ(l.v.B1(1), 0);
    EXPECT_EQ(l.v.T1(1), 0);
}

struct CasoMalo {
    const char* nombre;
    std::string texto; // the document, or a change applied to DosTramos as "tabla|json"
    long numero;
    const char* mensaje;
};

// Applies "Tabla/indice/columna=valor" (indice -1 for single-row tables; an empty value
// removes the column) to the good document.
Json Cambiado(const std::string& cambio) {
    Json d = DosTramos();
    const auto barra1 = cambio.find('/'), barra2 = cambio.find('/', barra1 + 1),
               igual = cambio.find('=');
    const std::string tabla = cambio.substr(0, barra1);
    const int indice = std::stoi(cambio.substr(barra1 + 1, barra2 - barra1 - 1));
    const std::string columna = cambio.substr(barra2 + 1, igual - barra2 - 1);
    const std::string valor = cambio.substr(igual + 1);
    Json& fila = indice < 0 ? d[tabla] : d[tabla][static_cast<std::size_t>(indice)];
    if (valor.empty())
        fila.erase(columna);
    else
        fila[columna] = Json::parse(valor);
    return d;
}

class VigaJsonErrores : public ::testing::TestWithParam<CasoMalo> {};

TEST_P(VigaJsonErrores, MensajeClaro) {
    const CasoMalo& k = GetParam();
    ProyectoActual p;
    VigaActual v;
    if (k.texto.find('=') != std::string::npos && k.texto.front() != '{')
        EXPECT_TREVALO_ERROR(LeerVigaJson(Cambiado(k.texto), p, v), k.numero, k.mensaje);
    else
        EXPECT_TREVALO_ERROR(LeerVigaJsonTexto(k.texto, p, v), k.numero, k.mensaje);
}

INSTANTIATE_TEST_SUITE_P(
    Casos, VigaJsonErrores,
    ::testing::Values(
        CasoMalo{"sintaxis", "{\"GeneralProyecto\": {\n  \"FC\": 210,,\n}}", ErrJsonNoValido,
                 "El texto no es un JSON válido: error de sintaxis en la línea 2, columna 13."},
        CasoMalo{"vacio", "", ErrJsonNoValido,
                 "El texto no es un JSON válido: error de sintaxis en la línea 1, columna 1."},
        CasoMalo{"no objeto", "[1, 2]", ErrJsonNoValido,
                 "El documento debe ser un objeto cuyos miembros son las tablas del proyecto."},
        CasoMalo{"proyecto sin columnas", "{\"GeneralProyecto\": {}}", ErrFaltaColumna,
                 "La columna \"Proyecto\" de la tabla \"GeneralProyecto\" no existe."},
        CasoMalo{"sin proyecto", "{}", ErrFaltaFila,
                 "La tabla \"GeneralProyecto\" no tiene su fila."},
        CasoMalo{"falta columna", "Tramos/0/LT=", ErrFaltaColumna,
                 "La columna \"LT\" de la tabla \"Tramos\" (fila 1) no existe."},
        CasoMalo{"falta columna de carga", "CargasTramos/0/LP2=", ErrFaltaColumna,
                 "La columna \"LP2\" de la tabla \"CargasTramos\" (fila 1) no existe."},
        CasoMalo{"texto por numero", "generalproyecto/-1/FC=\"210\"", ErrTiposNoCoinciden,
                 "La columna \"FC\" de la tabla \"GeneralProyecto\" debe ser un número."},
        CasoMalo{"numero por texto", "Juntas/0/NombreEje=1", ErrTiposNoCoinciden,
                 "La columna \"NombreEje\" de la tabla \"Juntas\" (fila 1) debe ser un texto."},
        CasoMalo{"nulo", "Tramos/0/VT=null", ErrUsoNull,
                 "La columna \"VT\" de la tabla \"Tramos\" (fila 1) es nula."},
        CasoMalo{"designacion nula", "TiposVigas/1/Designacion=null", ErrUsoNull,
                 "La columna \"Designacion\" de la tabla \"TiposVigas\" (fila 2) es nula."},
        CasoMalo{"entero grande", "GENERALVIGA/-1/OpcionConcreto=256", ErrDesbordamiento,
                 "La columna \"OpcionConcreto\" de la tabla \"GeneralViga\" no cabe en su tipo "
                 "de número entero."},
        CasoMalo{"carga enorme", "CargasTramos/1/W1=1e12", ErrDesbordamiento,
                 "La columna \"W1\" de la tabla \"CargasTramos\" (fila 2) no cabe en su tipo de "
                 "número entero."},
        CasoMalo{"tramos negativos", "GENERALVIGA/-1/nt=-1", ErrSubindice,
                 "La columna \"NT\" de la tabla \"GeneralViga\" no puede ser negativa."},
        CasoMalo{"faltan tramos", "GENERALVIGA/-1/nt=3", ErrFaltaFila,
                 "La tabla \"Tramos\" tiene 2 filas y la viga necesita 3."}),
    [](const auto& info) { return "caso" + std::to_string(info.index); });

TEST(VigaJsonFormas, TablaYFilaMalFormadas) {
    ProyectoActual p;
    VigaActual v;
    Json d = DosTramos();
    d["Tramos"] = 3;
    EXPECT_TREVALO_ERROR(LeerVigaJson(d, p, v), ErrJsonNoValido,
                         "La tabla \"Tramos\" debe ser una lista de filas.");
    d["Tramos"] = Json::array({1});
    EXPECT_TREVALO_ERROR(LeerVigaJson(d, p, v), ErrJsonNoValido,
                         "La fila 1 de la tabla \"Tramos\" debe ser un objeto con sus columnas.");
    d = DosTramos();
    d["GENERALVIGA"] = Json::array();
    EXPECT_TREVALO_ERROR(LeerVigaJson(d, p, v), ErrJsonNoValido,
                         "La tabla \"GeneralViga\" debe ser un objeto con sus columnas.");
    EXPECT_TREVALO_ERROR(LeerVigaJsonArchivo("/no/existe/viga.json", p, v), ErrArchivoNoEncontrado,
                         "No se puede abrir el archivo \"/no/existe/viga.json\".");
}

TEST(VigaJsonEscritura, IdaYVuelta) {
    const Leida original = Leer(DosTramos());
    const Json escrito = EscribirVigaJson(original.p, original.v);
    // The written document uses the file's names and only the slots up to the counts.
    EXPECT_TRUE(escrito.contains("Juntasrestringidas"));
    EXPECT_EQ(escrito["CargasTramos"][0]["P2"], -500);
    EXPECT_FALSE(escrito["CargasTramos"][0].contains("P3"));
    EXPECT_EQ(escrito["GeneralProyecto"]["Fecha"], "03/02/2024");
    EXPECT_EQ(escrito["Tramos"][1]["NombreViga"], "V-1");

    Leida vuelta;
    LeerVigaJsonTexto(escrito.dump(), vuelta.p, vuelta.v);
    EXPECT_EQ(EscribirVigaJson(vuelta.p, vuelta.v), escrito);
    EXPECT_TRUE(vuelta.v.LT == original.v.LT);
    EXPECT_TRUE(vuelta.v.WIzq8_ == original.v.WIzq8_);
    EXPECT_TRUE(vuelta.v.B1 == original.v.B1);
    EXPECT_EQ(vuelta.p.D8, original.p.D8);
}

} // namespace
} // namespace trevalo::calc
