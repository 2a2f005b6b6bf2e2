// Start-up: the data folder tree, the copies of the installation's files, the wallpaper
// check and the number separators.

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "comun/Carpeta.h"
#include "store/CarpetasPrograma.h"

namespace fs = std::filesystem;
using namespace trevalo;
using namespace trevalo::prueba;

namespace {

const std::string Datos = "/Korvel Software/Trevalo 6.0";

// Files the start-up copies, relative to the data folder, and their sources in the program.
struct Copia {
    std::string origen;
    std::string destino;
};
const std::vector<Copia> Copias = {
    {"Imagen/Ejemplo Demostrativo.trv", "Proyectos/Ejemplo Demostrativo.trv"},
    {"Imagen/A_Tabla.pfl", "Perfiles/A_Tabla.pfl"},
    {"Imagen/U_Perfiles Laminados.pfl", "Perfiles/U_Perfiles Laminados.pfl"},
    {"Imagen/TapizKorvel.jpg", "Tapices/TapizKorvel.jpg"},
};

// A program folder as the installation leaves it, a home folder and a documents folder.
class Inicio : public ::testing::Test {
  protected:
    void SetUp() override {
        for (const Copia& c : Copias) EscribirArchivo(tmp / c.origen, "origen de " + c.origen);
        EscribirArchivo(tmp / "Imagen/TapizKorvel.jpg", std::string(1000, 'j'));
        EscribirArchivo(tmp / "Imagen/ImagenViga.kvl", "plantilla");
        EscribirArchivo(tmp / "Imagen/Temporal.kvl", "informe limpio");
        EscribirArchivo(tmp / "Imagen/notas.txt", "no es una tabla");
        fs::create_directories(tmp / "casa");
        fs::create_directories(tmp / "docs");
        entorno.RutaAplicacion = tmp.Ruta() + "/";
        entorno.CarpetaPersonal = tmp / "casa";
        entorno.CarpetaDocumentos = tmp / "docs";
    }

    std::string Base() const { return tmp / "casa" + Datos; }

    CarpetaTemporal tmp;
    EntornoInicio entorno;
    CarpetasPrograma carpetas;
};

TEST_F(Inicio, PrimerInicioCreaCarpetasYCopiaArchivos) {
    DatosUsuario(entorno, carpetas);

    EXPECT_EQ(carpetas.VersionPrograma, "6.0");
    EXPECT_EQ(carpetas.RutaPrograma, tmp.Ruta());
    EXPECT_EQ(carpetas.RutaBase, Base());
    EXPECT_EQ(carpetas.RutaProyectos, Base() + "/Proyectos");
    for (const char* sub : {"Proyectos", "Perfiles", "Tapices", "ReportesExportados", "Trabajo"})
        EXPECT_TRUE(fs::is_directory(Base() + "/" + sub)) << sub;
    for (const Copia& c : Copias)
        EXPECT_EQ(LeerArchivo(Base() + "/" + c.destino), LeerArchivo(tmp / c.origen)) << c.destino;
    EXPECT_EQ(LeerArchivo(Base() + "/Trabajo/Temporal.mdb"), "informe limpio");
    // Only the sample, the tables and the wallpaper travel: no template, no other file.
    EXPECT_FALSE(fs::exists(Base() + "/Proyectos/ImagenViga.kvl"));
    EXPECT_FALSE(fs::exists(Base() + "/Perfiles/notas.txt"));
    EXPECT_EQ(std::distance(fs::directory_iterator(Base() + "/Perfiles"), fs::directory_iterator()),
              2);
}

TEST_F(Inicio, SegundoInicioSoloRenuevaTemporal) {
    DatosUsuario(entorno, carpetas);
    // The user changes every copied file (the wallpaper within 10 bytes) and the report
    // database; only the report database comes back clean.
    for (const Copia& c : Copias) EscribirArchivo(Base() + "/" + c.destino, "cambiado");
    EscribirArchivo(Base() + "/Tapices/TapizKorvel.jpg", std::string(995, 'u'));
    EscribirArchivo(Base() + "/Trabajo/Temporal.mdb", "informe viejo con graficos");

    CarpetasPrograma segunda;
    DatosUsuario(entorno, segunda);

    for (const Copia& c : Copias) {
        if (c.destino == "Tapices/TapizKorvel.jpg") continue;
        EXPECT_EQ(LeerArchivo(Base() + "/" + c.destino), "cambiado") << c.destino;
    }
    EXPECT_EQ(LeerArchivo(Base() + "/Tapices/TapizKorvel.jpg"), std::string(995, 'u'));
    EXPECT_EQ(LeerArchivo(Base() + "/Trabajo/Temporal.mdb"), "informe limpio");
    EXPECT_EQ(segunda.RutaProyectos, carpetas.RutaProyectos);

    fs::remove(Base() + "/Perfiles/A_Tabla.pfl"); // a deleted table comes back
    DatosUsuario(entorno, segunda);
    EXPECT_EQ(LeerArchivo(Base() + "/Perfiles/A_Tabla.pfl"), "origen de Imagen/A_Tabla.pfl");
}

// The wallpaper of the program is 1000 bytes; a user's file of another size under the same
// name is put back only beyond 10 bytes of difference.
struct CasoTapiz {
    std::size_t tamano;
    bool restaurado;
};
class TapizReemplazado : public Inicio, public ::testing::WithParamInterface<CasoTapiz> {};

TEST_P(TapizReemplazado, SeRestauraSoloMasAllaDeDiezBytes) {
    DatosUsuario(entorno, carpetas);
    const std::string propio(GetParam().tamano, 'p');
    EscribirArchivo(Base() + "/Tapices/TapizKorvel.jpg", propio);
    EscribirArchivo(Base() + "/Tapices/Otro.jpg", "x");

    DatosUsuario(entorno, carpetas);

    const std::string esperado = GetParam().restaurado ? std::string(1000, 'j') : propio;
    EXPECT_EQ(LeerArchivo(Base() + "/Tapices/TapizKorvel.jpg"), esperado);
    EXPECT_EQ(LeerArchivo(Base() + "/Tapices/Otro.jpg"), "x");
}

INSTANTIATE_TEST_SUITE_P(Tamanos, TapizReemplazado,
                         ::testing::Values(CasoTapiz{989, true}, CasoTapiz{990, false},
                                           CasoTapiz{1010, false}, CasoTapiz{1011, true}));

// A home folder that is a plain file (nothing can be made below it) or is unknown.
TEST_F(Inicio, SinCarpetaPersonalUsaDocumentos) {
    const std::string base = tmp / "docs" + Datos;
    EscribirArchivo(tmp / "casa.txt", "archivo");
    for (const std::string& personal : {tmp / "casa.txt", std::string()}) {
        SCOPED_TRACE(personal);
        fs::remove_all(base);
        entorno.CarpetaPersonal = personal;
        DatosUsuario(entorno, carpetas);
        EXPECT_EQ(carpetas.RutaBase, base);
        EXPECT_EQ(carpetas.RutaProyectos, base + "/Proyectos");
        EXPECT_TRUE(fs::is_regular_file(base + "/Proyectos/Ejemplo Demostrativo.trv"));
        EXPECT_TRUE(fs::is_regular_file(base + "/Trabajo/Temporal.mdb"));
    }
}

TEST_F(Inicio, SinArchivosDeInstalacionNoFalla) {
    fs::remove_all(tmp / "Imagen");
    DatosUsuario(entorno, carpetas);
    EXPECT_TRUE(fs::is_directory(Base() + "/Trabajo"));
    EXPECT_FALSE(fs::exists(Base() + "/Trabajo/Temporal.mdb"));
}

// Number formats given by their separators, as a machine's locale would carry them.
template <typename C> class Puntuacion : public std::numpunct<C> {
  public:
    Puntuacion(C decimal, C miles) : decimal_(decimal), miles_(miles) {}

  protected:
    C do_decimal_point() const override { return decimal_; }
    C do_thousands_sep() const override { return miles_; }
    std::string do_grouping() const override { return "\3"; }

  private:
    C decimal_, miles_;
};

struct CasoSeparadores {
    wchar_t decimal, miles;
    char esperadoDecimal, esperadoMiles;
};
class Separadores : public ::testing::TestWithParam<CasoSeparadores> {};

TEST_P(Separadores, DelFormatoDeLaMaquina) {
    const CasoSeparadores& c = GetParam();
    const std::locale local(std::locale::classic(), new Puntuacion<wchar_t>(c.decimal, c.miles));
    char decimal = 0, miles = 0;
    SeparadoresNumericos(local, decimal, miles);
    EXPECT_EQ(decimal, c.esperadoDecimal);
    EXPECT_EQ(miles, c.esperadoMiles);
}

INSTANTIATE_TEST_SUITE_P(Formatos, Separadores,
                         ::testing::Values(CasoSeparadores{L'.', L',', '.', ','},
                                           CasoSeparadores{L',', L'\u202F', ',', ' '},
                                           CasoSeparadores{L'.', L'\u2019', '.', ','}));

TEST_F(Inicio, SeparadoresPasanALasCarpetas) {
    entorno.Local = std::locale(std::locale::classic(), new Puntuacion<wchar_t>(L',', L'.'));
    DatosUsuario(entorno, carpetas);
    EXPECT_EQ(carpetas.SeparadorDecimal, ',');
    EXPECT_EQ(carpetas.SeparadorMiles, '.');
}

TEST(CarpetaInstalacion, EsShareTrevaloJuntoAlBinDelEjecutable) {
    const std::pair<const char*, const char*> casos[] = {
        {"/usr/bin", "/usr/share/trevalo"},
        {"/opt/trevalo/bin/", "/opt/trevalo/share/trevalo"},
        {"/home/ana/trevalo/build/bin", "/home/ana/trevalo/build/share/trevalo"},
    };
    for (const auto& [bin, carpeta] : casos) EXPECT_EQ(CarpetaInstalacion(bin), carpeta) << bin;
}

} // namespace
