// The beam JSON: reading as the store reads a beam, names without regard to case, the
// messages for bad documents, and a write-read round trip.

#include <gtest/gtest.h>

#include <string>

#include "VerificaError.h"
#include "app/tools/VigaJson.h"

namespace trevalo::calc {
namespace {

using Json = nlohmann::ordered_json;

// Two spans: the rows are given out of order on purpose, and the names in mixed case; the
// settings row has every column, with values away from the defaults.
Json DosTramos() {
    return Json::parse(R"({
    "generalproyecto": {"Proyecto":"Edificio A","Propietario":"","Fecha":"03/02/2024",
        "Calculista":"Ing. Pérez","Comentario":"","Cliente":"","PPV":false,"DEFCOR":true,
        "FC":280,"FY":4200,"D8":0.06,"PesoConcreto":2400,"CFormaConcreto":1.2,
        "ModuloAcero":2100000,"PesoAcero":7850,"CFormaAcero":0,"OpcionEstribos":true},
    "GENERALVIGA": {"NombreViga":"V-1","nt":2,"OpcionConcreto":0,"OpcionCarga":1,
        "FMayoracionTC":1.4,"FMayoracion":1.6},
    "Tramos": [{"Tramo":2,"LT":3.5,"VT":2},{"tramo":1,"lt":5,"vt":1}],
    "Juntas": [{"Numero":1,"NombreEje":"A","LDer":0.1,"LIzq":0.2,"HC":0.4},
        {"Numero":3,"NombreEje":"C","LDer":0.3,"LIzq":0.3,"HC":0.6},
        {"Numero":2,"NombreEje":"B","LDer":0.15,"LIzq":0.15,"HC":0.5}],
    "JuntasRestringidas": [{"R1":3,"Apoyo":3},{"R1":1,"Apoyo":4}],
    "JuntasResortes": [{"R10":2,"SH10":0,"SV10":50000,"SM10":0}],
    "JuntasDesplazadas": [{"R3":2,"XX":0.1,"YY":-0.2}],
    "TiposVigas": [{"Tipo":2,"B1":null,"T1":-1,"Designacion":"sin medidas"},
        {"Tipo":1,"B1":0.25,"T1":0.6,"Designacion":"V 25x60"}],
    "CargasTramos": [
        {"Tramo":1,"W1":1200,"Gravedad":0,"CantW2":2,"P1":3000,"LP1":1.5,"P2":-500,"LP2":4,
         "P3":"ignorada","CantW3":0,"W4":0,"W5":0,"la5":0,"CantW6":1,"W6_1":800,"La6_1":0,
         "Lb6_1":2,"CantW7":0,"CantW8":1,"WIzq8_1":100,"WDer8_1":300,"La8_1":1,"Lb8_1":4},
        {"Tramo":2,"W1":900,"Gravedad":1,"CantW2":0,"CantW3":1,"W3_1":400,"La3_1":0.5,
         "Lb3_1":3,"W4":250,"W5":150,"la5":1.25,"CantW6":0,"CantW7":1,"W7_1":600,"La7_1":0,
         "Lb7_1":3.5,"CantW8":0}],
    "AccionesNodales": [{"R2":2,"QC1":1000,"QC2":-2000,"QC3":300}]})");
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

TEST(VigaJsonLectura, TablasCompletasYAusentes) {
    Leida l = Leer(DosTramos());
    const VigaActual& v = l.v;
    EXPECT_TRUE(l.p.DEFCOR);
    // Spans in the order of Tramo; every span takes the beam's load factor.
    EXPECT_EQ(v.LT(1), 5);
    EXPECT_EQ(v.LongTotal, 8.5);
    EXPECT_EQ(v.FMayorTramo(2), 1.6);
    EXPECT_EQ(v.NombreEje(2), "B");
    // Lists ordered by their joint number.
    ASSERT_EQ(v.NJRest, 2);
    EXPECT_EQ(v.R1(1), 1);
    EXPECT_EQ(v.Apoyo(1), Empotramiento);
    EXPECT_EQ(v.SV10(1), 50000);
    EXPECT_EQ(v.YY(1), -0.2);
    EXPECT_EQ(v.QC2(1), -2000);
    // A type without usable dimensions on a concrete beam takes 0.3 x 0.5.
    EXPECT_EQ(v.Designacion(1), "V 25x60");
    EXPECT_EQ(v.B1(2), 0.3);
    EXPECT_EQ(v.T1(2), 0.5);
    // Loads: slots up to their counts; P3 beyond CantW2 is not read.
    EXPECT_EQ(v.LP(1, 2), 4);
    EXPECT_EQ(v.P(1, 3), 0);
    EXPECT_EQ(v.WDer8_(1, 1), 300);
    EXPECT_EQ(v.Lb7_(2, 1), 3.5);

    Json d;
    d["GeneralProyecto"] = DosTramos()["generalproyecto"];
    // No header: the default beam.
    l = Leer(d);
    EXPECT_EQ(l.v.NT, 1);
    EXPECT_EQ(l.v.LT(1), 4);
    // A header alone: spans of no length, FMayorTramo 0, default joints and one default type.
    d["GeneralViga"] = DosTramos()["GENERALVIGA"];
    l = Leer(d);
    EXPECT_EQ(l.v.LT(2), 0);
    EXPECT_EQ(l.v.FMayorTramo(1), 0);
    EXPECT_EQ(l.v.LDer(3), 0.15);
    EXPECT_EQ(l.v.NTipos, 1);
    EXPECT_EQ(l.v.NJRest, 0);
    // A steel beam's default type has no dimensions.
    d["GeneralViga"]["OpcionConcreto"] = 1;
    EXPECT_EQ(Leer(d).v.B1(1), 0);
}

// A bad document, or a change of the good one: "/Tabla/fila/Columna=valor" (a JSON pointer;
// no value removes the column).
struct CasoMalo {
    std::string texto;
    long numero;
    const char* mensaje;
};

Json Cambiado(const std::string& cambio) {
    Json d = DosTramos();
    const auto igual = cambio.find('=');
    const Json::json_pointer ruta(cambio.substr(0, igual));
    if (igual + 1 == cambio.size())
        d[ruta.parent_pointer()].erase(ruta.back());
    else
        d[ruta] = Json::parse(cambio.substr(igual + 1));
    return d;
}

class VigaJsonErrores : public ::testing::TestWithParam<CasoMalo> {};

TEST_P(VigaJsonErrores, MensajeClaro) {
    const CasoMalo& k = GetParam();
    ProyectoActual p;
    VigaActual v;
    if (k.texto.rfind('/', 0) == 0)
        EXPECT_TREVALO_ERROR(LeerVigaJson(Cambiado(k.texto), p, v), k.numero, k.mensaje);
    else
        EXPECT_TREVALO_ERROR(LeerVigaJsonTexto(k.texto, p, v), k.numero, k.mensaje);
}

INSTANTIATE_TEST_SUITE_P(
    Casos, VigaJsonErrores,
    ::testing::Values(
        CasoMalo{"{\"GeneralProyecto\": {\n  \"FC\": 210,,\n}}", ErrFormatoNoReconocido,
                 "El texto no es un JSON válido: error de sintaxis en la línea 2, columna 13."},
        CasoMalo{"", ErrFormatoNoReconocido,
                 "El texto no es un JSON válido: error de sintaxis en la línea 1, columna 1."},
        CasoMalo{"[1, 2]", ErrFormatoNoReconocido,
                 "El documento debe ser un objeto cuyos miembros son las tablas del proyecto."},
        CasoMalo{"{\"GeneralProyecto\": {}}", ErrNoEnColeccion,
                 "La columna \"Proyecto\" de la tabla \"GeneralProyecto\" no existe."},
        CasoMalo{"{}", ErrSinRegistroActual, "La tabla \"GeneralProyecto\" no tiene su fila."},
        CasoMalo{"/Tramos=3", ErrFormatoNoReconocido,
                 "La tabla \"Tramos\" debe ser una lista de filas."},
        CasoMalo{"/Tramos=[1]", ErrFormatoNoReconocido,
                 "La fila 1 de la tabla \"Tramos\" debe ser un objeto con sus columnas."},
        CasoMalo{"/GENERALVIGA=[]", ErrFormatoNoReconocido,
                 "La tabla \"GeneralViga\" debe ser un objeto con sus columnas."},
        CasoMalo{"/Tramos/0/LT=", ErrNoEnColeccion,
                 "La columna \"LT\" de la tabla \"Tramos\" (fila 1) no existe."},
        CasoMalo{"/generalproyecto/FC=\"210\"", ErrTiposNoCoinciden,
                 "La columna \"FC\" de la tabla \"GeneralProyecto\" debe ser un número."},
        CasoMalo{"/Juntas/0/NombreEje=1", ErrTiposNoCoinciden,
                 "La columna \"NombreEje\" de la tabla \"Juntas\" (fila 1) debe ser un texto."},
        CasoMalo{"/Tramos/0/VT=null", ErrUsoNull,
                 "La columna \"VT\" de la tabla \"Tramos\" (fila 1) es nula."},
        CasoMalo{"/GENERALVIGA/OpcionConcreto=256", ErrDesbordamiento,
                 "La columna \"OpcionConcreto\" de la tabla \"GeneralViga\" no cabe en su tipo "
                 "de número entero."},
        CasoMalo{"/GENERALVIGA/nt=-1", ErrSubindice,
                 "La columna \"NT\" de la tabla \"GeneralViga\" no puede ser negativa."},
        CasoMalo{"/GENERALVIGA/nt=3", ErrSinRegistroActual,
                 "La tabla \"Tramos\" tiene 2 filas y la viga necesita 3."}),
    [](const auto& info) { return "caso" + std::to_string(info.index); });

TEST(VigaJsonErrores, ArchivoAusente) {
    ProyectoActual p;
    VigaActual v;
    EXPECT_TREVALO_ERROR(LeerVigaJsonArchivo("/no/existe/viga.json", p, v), ErrArchivoNoEncontrado,
                         "No se puede abrir el archivo \"/no/existe/viga.json\".");
}

TEST(VigaJsonEscritura, IdaYVuelta) {
    const Leida original = Leer(DosTramos());
    const Json escrito = EscribirVigaJson(original.p, original.v);
    // The file's names, and only the slots up to the counts.
    EXPECT_TRUE(escrito.contains("Juntasrestringidas"));
    EXPECT_FALSE(escrito["CargasTramos"][0].contains("P3"));
    Leida vuelta;
    LeerVigaJsonTexto(escrito.dump(), vuelta.p, vuelta.v);
    EXPECT_EQ(EscribirVigaJson(vuelta.p, vuelta.v), escrito);
    EXPECT_TRUE(vuelta.v.WIzq8_ == original.v.WIzq8_);
    EXPECT_EQ(vuelta.p.D8, original.p.D8);
}

} // namespace
} // namespace trevalo::calc
