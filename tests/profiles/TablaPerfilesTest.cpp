// Profile table files: names by family, creation from the templates, save and reload.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "comun/Aserciones.h"
#include "comun/Carpeta.h"
#include "platform/motor/MotorDatos.h"
#include "profiles/TablaPerfiles.h"

namespace trevalo {
namespace {

using F = FamiliaPerfil;

TEST(NombresDeTablas, ReglaDelPrefijo) {
    struct Caso {
        F familia;
        std::string titulo, esperado;
    };
    const Caso casos[] = {
        {F::DobleTee, "Acerias.pfl", "DobleTee_Acerias.pfl"},
        {F::DobleTee, "dobletee_acerias.pfl", "dobletee_acerias.pfl"}, // any case: kept
        {F::DobleTee, "DOBLETEE_X", "DOBLETEE_X"},                     // no extension added
        {F::DobleTee, "DobleTee.pfl", "DobleTee_DobleTee.pfl"},        // 9 characters compared
        {F::DobleTee, "  DobleTee_X.pfl", "  DobleTee_X.pfl"},         // tested trimmed, kept
        {F::SeccionU, "U", "U_U"}, // one letter differs from "U_"
        {F::SeccionU, "u_canal.pfl", "u_canal.pfl"},
        {F::SeccionU, "Uconal.pfl", "U_Uconal.pfl"},
        {F::TuboCuadrado, "cuadrada_x.pfl", "cuadrada_x.pfl"},
        {F::TuboCuadrado, "Tubos.pfl", "Cuadrada_Tubos.pfl"},
        {F::TuboRectangular, "Rectangular.pfl", "Rectangular_Rectangular.pfl"},
        {F::TuboRectangular, "RECTANGULAR_R.pfl", "RECTANGULAR_R.pfl"},
    };
    for (const Caso& c : casos) EXPECT_EQ(TituloConPrefijo(c.familia, c.titulo), c.esperado);
}

TEST(NombresDeTablas, PatronPideUnCaracterTrasElPrefijo) {
    struct Caso {
        F familia;
        std::string nombre;
        bool coincide;
    };
    const Caso casos[] = {
        {F::DobleTee, "DobleTee_.pfl", false},
        {F::DobleTee, "DobleTee_A.pfl", true},
        {F::DobleTee, "dobletee_a.PFL", true},
        {F::DobleTee, "DobleTee_A", false},
        {F::DobleTee, "DobleTee_A.plf", false},
        {F::SeccionU, "U_.pfl", false},
        {F::SeccionU, "U_1.pfl", true},
        {F::SeccionU, "DobleTee_A.pfl", false},
        {F::TuboCuadrado, "Cuadrada_SHS.pfl", true},
        {F::TuboRectangular, "Cuadrada_SHS.pfl", false},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(CoincidePatron(c.familia, c.nombre), c.coincide) << c.nombre;
}

FilaPerfil Fila(F familia, const std::string& nombre, double base) {
    FilaPerfil f{0, nombre, {}};
    for (std::size_t i = 0; i < Familia(familia).Campos.size(); ++i) f.Valores.push_back(base + i);
    return f;
}

class ArchivosDeTablas : public ::testing::Test {
  protected:
    std::string Nueva(F familia, const std::string& titulo) {
        const std::string ruta = RutaTablaNueva(carpeta.Ruta(), familia, titulo);
        CrearTablaPerfiles(TREVALO_RUTA_PROGRAMA, familia, ruta);
        return ruta;
    }
    prueba::CarpetaTemporal carpeta;
};

TEST_F(ArchivosDeTablas, CadaPlantillaNaceVaciaYGuardaSusCampos) {
    for (F familia : TodasLasFamilias) {
        const std::string ruta = Nueva(familia, "Prueba.pfl");
        const TablaPerfiles vacia = LeerTablaPerfiles(ruta, familia);
        EXPECT_EQ(vacia.DescripcionTabla, "");
        EXPECT_TRUE(vacia.Filas.empty());

        const TablaPerfiles tabla{"  Fabricante  ", 2530, {Fila(familia, " A 1 ", 1.5)}};
        ASSERT_TRUE(SalvarTablaPerfiles(ruta, familia, tabla));
        const TablaPerfiles leida = LeerTablaPerfiles(ruta, familia);
        EXPECT_EQ(leida.DescripcionTabla, "Fabricante");
        EXPECT_EQ(leida.ResistenciaFY, 2530);
        ASSERT_EQ(leida.Filas.size(), 1u);
        EXPECT_EQ(leida.Filas[0].Numero, 1);
        EXPECT_EQ(leida.Filas[0].Designacion, "A 1");
        EXPECT_EQ(leida.Filas[0].Valores, tabla.Filas[0].Valores);
    }
}

// A new table goes to the tables folder under its family's name, over any table there; the
// template must be there.
TEST_F(ArchivosDeTablas, NuevaVaALaCarpetaDeTablasYReemplazaLaExistente) {
    const std::string ruta = Nueva(F::SeccionU, "U");
    EXPECT_EQ(ruta, carpeta / "U_U");
    SalvarTablaPerfiles(ruta, F::SeccionU, {"Vieja", 1, {Fila(F::SeccionU, "A", 1)}});
    CrearTablaPerfiles(TREVALO_RUTA_PROGRAMA, F::SeccionU, ruta);
    EXPECT_TRUE(LeerTablaPerfiles(ruta, F::SeccionU).Filas.empty());
    EXPECT_TREVALO_ERROR(CrearTablaPerfiles(carpeta.Ruta(), F::DobleTee, carpeta / "A"),
                         ErrArchivoNoEncontrado, "No se encontró el archivo");
}

TEST_F(ArchivosDeTablas, SalvarRenumeraDesdeElLugarDeLaFila) {
    const std::string ruta = Nueva(F::TuboCuadrado, "T.pfl");
    TablaPerfiles tabla{"Tubos",
                        3515,
                        {Fila(F::TuboCuadrado, "A", 10), Fila(F::TuboCuadrado, "B", 20),
                         Fila(F::TuboCuadrado, "C", 30)}};
    SalvarTablaPerfiles(ruta, F::TuboCuadrado, tabla);
    tabla = LeerTablaPerfiles(ruta, F::TuboCuadrado);
    tabla.Filas.erase(tabla.Filas.begin() + 1); // the grid deleted row 2
    SalvarTablaPerfiles(ruta, F::TuboCuadrado, tabla);

    const TablaPerfiles leida = LeerTablaPerfiles(ruta, F::TuboCuadrado);
    ASSERT_EQ(leida.Filas.size(), 2u);
    EXPECT_EQ(leida.Filas[0].Numero, 1);
    EXPECT_EQ(leida.Filas[1].Numero, 2);
    EXPECT_EQ(leida.Filas[1].Designacion, "C");
    EXPECT_EQ(ValorCampo(F::TuboCuadrado, leida.Filas[1], "Inercia"), 33);
}

TEST_F(ArchivosDeTablas, LecturaEnOrdenDeNumero) {
    const std::string ruta = Nueva(F::TuboRectangular, "R.pfl");
    BaseDatos bd = BaseDatos::Abrir(ruta);
    for (int n : {3, 1, 2})
        bd.Ejecutar("INSERT INTO DatosPerfil (Numero, Designacion, Area) VALUES (?, ?, ?)",
                    {n, "R" + std::to_string(n), n * 1.5});
    const TablaPerfiles leida = LeerTablaPerfiles(ruta, F::TuboRectangular);
    ASSERT_EQ(leida.Filas.size(), 3u);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(leida.Filas[static_cast<std::size_t>(i)].Numero, i + 1);
        EXPECT_EQ(leida.Filas[static_cast<std::size_t>(i)].Designacion,
                  "R" + std::to_string(i + 1));
    }
    // Fields left Null read as 0, as the grid shows them.
    EXPECT_EQ(ValorCampo(F::TuboRectangular, leida.Filas[0], "InerciaY"), 0);
    EXPECT_EQ(leida.ResistenciaFY, 0); // no GeneralPerfil row yet
}

// Without a description nothing is written; a table without rows keeps its general row.
TEST_F(ArchivosDeTablas, SinDescripcionNoSeEscribeNadaYSinFilasQuedaLaGeneral) {
    const std::string ruta = Nueva(F::SeccionU, "A.pfl");
    SalvarTablaPerfiles(ruta, F::SeccionU, {"Canales", 2530, {Fila(F::SeccionU, "C 1", 1)}});
    EXPECT_FALSE(SalvarTablaPerfiles(ruta, F::SeccionU, {"    ", 1, {}}));
    const TablaPerfiles leida = LeerTablaPerfiles(ruta, F::SeccionU);
    EXPECT_EQ(leida.DescripcionTabla, "Canales");
    EXPECT_EQ(leida.Filas.size(), 1u);
    SalvarTablaPerfiles(ruta, F::SeccionU, {"Otra", 2400, {}});
    BaseDatos bd = BaseDatos::Abrir(ruta);
    EXPECT_EQ(bd.AbrirRecordset("GeneralPerfil").RecordCount(), 1);
    EXPECT_EQ(bd.AbrirRecordset("DatosPerfil").RecordCount(), 0);
}

// A channel file saved as a double tee fails at the first field it lacks, after both
// deletes have run: the file must be as it was.
TEST_F(ArchivosDeTablas, FallaEnMedioDelGuardadoDejaElArchivoComoEstaba) {
    const std::string ruta = Nueva(F::SeccionU, "A.pfl");
    const TablaPerfiles original{
        "Canales", 2530, {Fila(F::SeccionU, "C 1", 1), Fila(F::SeccionU, "C 2", 2)}};
    SalvarTablaPerfiles(ruta, F::SeccionU, original);
    EXPECT_TREVALO_ERROR(
        SalvarTablaPerfiles(ruta, F::DobleTee, {"Otra", 1, {Fila(F::DobleTee, "I", 5)}}),
        ErrNoEnColeccion, "Elemento no encontrado en esta colección.");
    const TablaPerfiles leida = LeerTablaPerfiles(ruta, F::SeccionU);
    EXPECT_EQ(leida.DescripcionTabla, "Canales");
    ASSERT_EQ(leida.Filas.size(), 2u);
    EXPECT_EQ(leida.Filas[1].Valores, original.Filas[1].Valores);
}

TEST_F(ArchivosDeTablas, ArchivoDanadoEsErrorDelProgramaYQuedaComoEstaba) {
    // Each damage to a saved table of two rows, and the number of the error it gives (0: the
    // engine's own, whatever it is).
    const std::pair<const char*, long> danos[] = {
        {"DROP TABLE DatosPerfil", 0},
        {"DROP TABLE GeneralPerfil", 0},
        {"UPDATE DatosPerfil SET Designacion=X'00FF'", ErrTiposNoCoinciden},
        {"UPDATE DatosPerfil SET Numero=40000", ErrDesbordamiento},
        {"UPDATE DatosPerfil SET Numero='uno'", ErrTiposNoCoinciden},
        {"UPDATE GeneralPerfil SET ResistenciaFY=1e12", ErrDesbordamiento},
        {"ALTER TABLE DatosPerfil DROP COLUMN Designacion", ErrNoEnColeccion},
        {"", 0}, // the file cut in half
    };
    for (const auto& [sql, numero] : danos) {
        const std::string ruta = Nueva(F::SeccionU, "Danada.pfl");
        SalvarTablaPerfiles(ruta, F::SeccionU,
                            {"T", 1, {Fila(F::SeccionU, "A", 1), Fila(F::SeccionU, "B", 2)}});
        if (*sql)
            BaseDatos::Abrir(ruta).Ejecutar(sql);
        else
            prueba::EscribirArchivo(ruta, prueba::LeerArchivo(ruta).substr(0, 3000));
        const std::string antes = prueba::LeerArchivo(ruta);
        try {
            LeerTablaPerfiles(ruta, F::SeccionU);
            ADD_FAILURE() << "sin error: " << sql;
        } catch (const ErrorTrevalo& e) {
            EXPECT_TRUE(numero == 0 || e.Numero() == numero) << sql << ": " << e.Numero();
            EXPECT_FALSE(e.Descripcion().empty());
        }
        EXPECT_EQ(prueba::LeerArchivo(ruta), antes) << sql;
    }
}

TEST_F(ArchivosDeTablas, ArchivoInexistenteEsErrorDelMotor) {
    try {
        LeerTablaPerfiles(carpeta / "DobleTee_No.pfl", F::DobleTee);
        ADD_FAILURE() << "no error";
    } catch (const ErrorTrevalo& e) {
        EXPECT_EQ(e.Numero() & 0xff, 14); // the engine's "unable to open"
    }
}

TEST_F(ArchivosDeTablas, ListaSoloLasDeLaFamilia) {
    for (const char* n : {"DobleTee_.pfl", "DobleTee_B.pfl", "dobletee_a.pfl", "U_C.pfl",
                          "DobleTee_D", "Cuadrada_E.pfl"})
        std::ofstream(carpeta / n) << "x";
    EXPECT_EQ(TablasDeFamilia(carpeta.Ruta(), F::DobleTee),
              (std::vector<std::string>{"DobleTee_B.pfl", "dobletee_a.pfl"}));
    EXPECT_EQ(TablasDeFamilia(carpeta.Ruta(), F::SeccionU), std::vector<std::string>{"U_C.pfl"});
}

} // namespace
} // namespace trevalo
