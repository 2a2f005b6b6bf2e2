// What every command of trevalo-calc refuses: the exit code (2 for a bad command line, 1 for
// a file or a beam that cannot be used), nothing on the standard output, the message at the
// start of the error stream, and the files involved left byte for byte as they were.

#include "CalcPrueba.h"
#include "app/tools/VigaJson.h"
#include "comun/Proyecto.h"

namespace trevalo::calc {
namespace {

using namespace trevalo::prueba;

// A default beam under load as a document, the same with a span of no length and with a
// type it lacks; a text, a broken document, a database of another kind; a project of one
// beam and an empty one; a Jet file cut short.
class Rechazos : public ConCarpeta {
  protected:
    void SetUp() override {
        VigaActual v;
        NuevaVigaDefecto(v);
        v.W1(1) = 2000;
        EscribirArchivo(Ruta("viga.json"), EscribirVigaJson({}, v).dump());
        v.LT(1) = 0;
        EscribirArchivo(Ruta("cero.json"), EscribirVigaJson({}, v).dump());
        v.LT(1) = 4;
        v.VT(1) = 3;
        EscribirArchivo(Ruta("tipo3.json"), EscribirVigaJson({}, v).dump());
        EscribirArchivo(Ruta("texto.trv"), "no soy un proyecto, sino un texto de prueba");
        EscribirArchivo(Ruta("malo.json"), "{ \"GeneralViga\": ");
        BaseDatos::Crear(Ruta("otra.trv")).EjecutarGuion("CREATE TABLE Otra (A TEXT);");
        CrearProyecto(Ruta("Obra.trv"), {VigaPrueba("V-1", 0)}, {});
        CrearProyecto(Ruta("Vacio.trv"), {}, {});
        const std::string jet = LeerArchivo(TREVALO_DATOS_PRUEBA "/jet/testV1997.mdb");
        EscribirArchivo(Ruta("corto.mdb"), jet.substr(0, 8192));
        EscribirArchivo(Ruta("mitad.mdb"), jet.substr(0, jet.size() / 2));
    }
    // "@" stands for the folder.
    std::string Sustituir(std::string s) const {
        for (auto p = s.find('@'); p != std::string::npos; p = s.find('@', p + 1))
            s.replace(p, 1, tmp.Ruta());
        return s;
    }
};

TEST_F(Rechazos, CodigoMensajeYArchivosIntactos) {
    // The words of the command line separated by "|"; the start of the message.
    const std::tuple<std::string, int, std::string> casos[] = {
        {"dibujar|@/viga.json|--vista|1", 2, "Uso: trevalo-calc dibujar"}, // no output
        {"dibujar|@/viga.json|--vista|5|-o|@/x.png", 2, "Uso: trevalo-calc dibujar"},
        {"dibujar|@/viga.json|--vista|1|--ancho|0x|-o|@/x.png", 2, "Uso: trevalo-calc dibujar"},
        {"dibujar|@/Obra.trv|--vista|1|-o|@/x.png", 2, "Uso: trevalo-calc dibujar"}, // no beam
        {"dibujar|@/viga.json|--vista|1|-o|@/x.png|--otra", 2, "Uso: trevalo-calc dibujar"},
        {"dibujar|@/nada.json|--vista|1|-o|@/x.png", 1, "Error 53: "},
        {"dibujar|@/nada.trv|--viga|V|--vista|1|-o|@/x.png", 1, "Error 53: "},
        {"diseno", 2, ""},
        {"diseno|@/viga.json|--estaciones|2.5", 2, ""},
        {"diseno|@/nada.json", 1, ""},
        {"diseno|@/Obra.trv", 2, ""}, // a project needs --viga
        {"resolver", 2, "Uso: trevalo-calc resolver"},
        {"resolver|@/nada.json", 1, "Error 53: No se puede abrir el archivo"},
        {"resolver|@/malo.json", 1, "Error 3343: El texto no es un JSON válido"},
        {"resolver|@/cero.json", 1, "Error 11: "},
        {"resolver|@/tipo3.json", 1, "Error 9: El subíndice está fuera del intervalo"},
        {"resolver|@/viga.json|--estaciones|0", 2,
         "El valor de --estaciones debe ser un número entero de 1 a 1000."},
        {"resolver|@/viga.json|--estaciones", 2, "El valor de --estaciones"},
        {"resolver|@/viga.json|--rapido", 2, "Argumento no reconocido: \"--rapido\"."},
        {"resolver|@/Obra.trv|--viga|Nadie", 1,
         "Error 3265: La viga no existe en el proyecto: Nadie\n"},
        {"vigas|@/nada.trv", 1, "No existe el archivo: @/nada.trv"},
        {"vigas|@/texto.trv", 1, "El archivo no es un proyecto de vigas: @/texto.trv"},
        {"vigas|@/Obra.trv|--todo|x", 2, "Opción desconocida: --todo"},
        {"vigas|@/Obra.trv|otro", 2, "Número de argumentos incorrecto."},
        {"exportar|@/otra.trv|--viga|a", 1, "El archivo no es un proyecto de vigas: @/otra.trv"},
        {"exportar|@/Obra.trv|--viga|Viga 1", 1, "La viga no existe en el proyecto: Viga 1"},
        {"exportar|@/Obra.trv", 2, "Uso: trevalo-calc exportar"},
        {"importar|@/Obra.trv|@/malo.json", 1, ""},
        {"importar|@/Obra.trv|@/nada.json", 1, ""},
        {"importar|@/texto.trv|@/malo.json", 1, "El archivo no es un proyecto de vigas"},
        {"informe|@/Vacio.trv|-o|@/r.pdf", 1, "El proyecto no tiene vigas: @/Vacio.trv\n"},
        {"informe|@/Obra.trv|--viga|V-9|-o|@/r.pdf", 1, "No existe la viga V-9 en el proyecto.\n"},
        {"informe|@/falta.trv|-o|@/r.pdf", 1, "No existe el proyecto: @/falta.trv\n"},
        {"informe|@/Obra.trv|--viga|V-1|-o|@/no hay/r.pdf", 1,
         "Escribiendo el informe: @/no hay/r.pdf\nError: 75\nError de acceso a la ruta o el "
         "archivo: "
         "@/no hay/r.pdf\n"},
        {"informe|@/Obra.trv|-o|@/r.doc", 2,
         "El archivo de salida debe terminar en .pdf, .htm, .xlsx o .rtf: @/r.doc\n"},
        {"informe|@/Obra.trv", 2, "Falta el proyecto o el archivo de salida (-o).\n"},
        {"seccion|--d|300|--tw|8|--bf|150", 2, "Uso:"},
        {"seccion|--d|3x|--tw|8|--bf|150|--tf|12", 2, "Uso:"},
        {"seccion|--d|300|--tw|8|--bf|150|--tx|12", 2, "Uso:"},
        {"seccion|--d|300|--tw|8|--bf|0|--tf|12", 1, "Nada que calcular"},
        {"perfiles", 2, ""},
        {"perfiles|@/Tabla.pfl", 1, "El nombre \"Tabla.pfl\" no es el de una tabla de perfiles"},
        {"perfiles|@/no/U_Canales.pfl", 1, "Error "},
        {"importar-jet|solo-uno.mdb", 2, ""},
        {"importar-jet|@/no.mdb|@/nuevo.trv", 1,
         "Error 53: No se encontró el archivo \"@/no.mdb\".\n"},
        {"importar-jet|@/texto.trv|@/nuevo.trv", 1, "Error 3343: "},
        {"importar-jet|@/corto.mdb|@/nuevo.trv", 1, "Error "},
        {"importar-jet|@/mitad.mdb|@/nuevo.trv", 1, "Error "},
    };
    const std::string vigilados[] = {"Obra.trv", "Vacio.trv", "texto.trv", "otra.trv", "viga.json"};
    std::vector<std::string> antes;
    for (const auto& v : vigilados) antes.push_back(LeerArchivo(Ruta(v)));
    for (const auto& [linea, codigo, mensaje] : casos) {
        SCOPED_TRACE(linea);
        Argumentos args;
        std::istringstream partes(Sustituir(linea));
        for (std::string a; std::getline(partes, a, '|');) args.push_back(a);
        const Salida r = Calc(args);
        EXPECT_EQ(r.codigo, codigo);
        EXPECT_EQ(r.salida, "");
        EXPECT_FALSE(r.errores.empty());
        EXPECT_EQ(r.errores.rfind(Sustituir(mensaje), 0), 0u) << r.errores;
    }
    for (std::size_t i = 0; i < std::size(vigilados); ++i)
        EXPECT_EQ(LeerArchivo(Ruta(vigilados[i])), antes[i]) << vigilados[i];
    for (const char* nuevo : {"x.png", "r.pdf", "nada.trv", "nuevo.trv", "no hay"})
        EXPECT_FALSE(std::filesystem::exists(Ruta(nuevo))) << nuevo;
}

// --help and --version answer on the standard output with exit code 0, as such tools do;
// no command, or either of them with more words, is a bad command line.
TEST(Calc, AyudaYVersion) {
    const std::tuple<Argumentos, int, std::string, std::string> casos[] = {
        {{"--help"}, 0, "Uso: trevalo-calc ORDEN ...\nÓrdenes:\n  trevalo-calc resolver ", ""},
        {{"-h"}, 0, "Uso: trevalo-calc ORDEN", ""},
        {{"--version"}, 0, "trevalo-calc 6.0\n", ""},
        {{}, 2, "", "Uso: trevalo-calc ORDEN"},
        {{"--version", "x"}, 2, "", "Uso: trevalo-calc ORDEN"},
        {{"--ayuda"}, 2, "", "Uso: trevalo-calc ORDEN"},
    };
    for (const auto& [args, codigo, salida, errores] : casos) {
        const Salida r = Calc(args);
        SCOPED_TRACE(r.salida + r.errores);
        EXPECT_EQ(r.codigo, codigo);
        EXPECT_EQ(r.salida.rfind(salida, 0), 0u);
        EXPECT_EQ(r.errores.rfind(errores, 0), 0u);
        EXPECT_EQ(r.salida.empty(), salida.empty());
        EXPECT_EQ(r.errores.empty(), errores.empty());
    }
    EXPECT_NE(Calc({"--help"}).salida.find("  trevalo-calc --version"), std::string::npos);
}

} // namespace
} // namespace trevalo::calc
