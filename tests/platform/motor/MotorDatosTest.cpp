// The database engine: name collation, recordset movement and writes, transactions, errors.

#include <gtest/gtest.h>

#include "comun/Aserciones.h"
#include "comun/Carpeta.h"
#include "platform/motor/MotorDatos.h"

namespace trevalo {
namespace {

class MotorDatos : public ::testing::Test {
  protected:
    void SetUp() override {
        bd_.emplace(BaseDatos::Crear(dir_ / "prueba.db"));
        bd_->EjecutarGuion("CREATE TABLE Nombres (Nombre TEXT, N INTEGER, X REAL DEFAULT 7.5);");
    }
    void Poner(const std::vector<std::string>& nombres) {
        long n = 1;
        for (const auto& s : nombres)
            bd_->Ejecutar("INSERT INTO Nombres VALUES (?,?,?)", {s, n++, 0.0});
    }
    std::vector<std::string> Leer(const std::string& sql, const Parametros& p = {}) {
        auto rs = bd_->AbrirRecordset(sql, p);
        std::vector<std::string> r;
        for (; !rs.AlFinal(); rs.MoveNext()) r.push_back(rs.Campo("Nombre").Texto());
        return r;
    }

    prueba::CarpetaTemporal dir_; // outlives the open database
    std::optional<BaseDatos> bd_;
};

struct CasoNombres {
    const char* a;
    const char* b;
    bool iguales;
};

TEST_F(MotorDatos, LaColacionIgualaMayusculasYGuardaAcentos) {
    const CasoNombres casos[] = {
        {"viga ñ", "VIGA Ñ", true}, {"á", "Á", true},           {"é", "É", true},
        {"ü", "Ü", true},           {"Viga 1", "VIGA 1", true}, {"a", "á", false},
        {"n", "ñ", false},          {"u", "ü", false},          {"viga", "viga ", false},
        {"Viga1", "Viga 1", false},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(std::string(c.a) + " / " + c.b);
        bd_->Ejecutar("DELETE FROM Nombres");
        Poner({c.a});
        EXPECT_EQ(Leer("SELECT * FROM Nombres WHERE Nombre=? COLLATE ESPANOL", {c.b}).size(),
                  c.iguales ? 1u : 0u);
    }
}

TEST_F(MotorDatos, ElOrdenEsElDelAlfabetoEspanol) {
    Poner({"ñandú", "Oso", "nube", "Árbol", "avión", "Zeta", "NZ"});
    EXPECT_EQ(Leer("SELECT * FROM Nombres ORDER BY Nombre COLLATE ESPANOL"),
              (std::vector<std::string>{"Árbol", "avión", "nube", "NZ", "ñandú", "Oso", "Zeta"}));
}

TEST_F(MotorDatos, UnNombreConComillasViajaComoParametro) {
    const std::string raro = "x\"; DROP TABLE Nombres; --'";
    Poner({raro, "otra"});
    EXPECT_EQ(Leer("SELECT * FROM Nombres WHERE Nombre=?", {raro}), std::vector<std::string>{raro});
    EXPECT_EQ(bd_->Ejecutar("DELETE FROM Nombres WHERE Nombre=?", {raro}), 1);
    EXPECT_EQ(Leer("Nombres"), std::vector<std::string>{"otra"});
}

TEST_F(MotorDatos, ElRecordsetSeMueveComoUnDynasetYVacioNoTieneRegistroActivo) {
    auto vacio = bd_->AbrirRecordset("Nombres");
    EXPECT_EQ(vacio.RecordCount(), 0);
    EXPECT_TRUE(vacio.AlFinal());
    EXPECT_TRUE(vacio.AlPrincipio());
    EXPECT_TREVALO_ERROR(vacio.MoveFirst(), ErrSinRegistroActual, "No hay ningún registro activo.");
    EXPECT_TREVALO_ERROR(vacio.Edit(), ErrSinRegistroActual, "No hay ningún registro activo.");

    Poner({"c", "a", "b"});
    auto rs = bd_->AbrirRecordset("SELECT * FROM Nombres ORDER BY Nombre");
    EXPECT_EQ(rs.RecordCount(), 3);
    EXPECT_EQ(rs.AbsolutePosition(), 0);
    EXPECT_EQ(rs.Campo("nombre").Texto(), "a"); // column names without regard to case
    rs.MoveLast();
    EXPECT_EQ(rs.Campo("NOMBRE").Texto(), "c");
    EXPECT_EQ(rs.AbsolutePosition(), 2);
    rs.AbsolutePosition(1);
    EXPECT_EQ(rs.Campo("Nombre").Texto(), "b");
    rs.MoveNext();
    rs.MoveNext();
    EXPECT_TRUE(rs.AlFinal());
    EXPECT_EQ(rs.AbsolutePosition(), -1);
    EXPECT_TREVALO_ERROR(rs.Campo("Nombre"), ErrSinRegistroActual,
                         "No hay ningún registro activo.");
    EXPECT_TREVALO_ERROR(rs.MoveNext(), ErrSinRegistroActual, "No hay ningún registro activo.");
    EXPECT_TREVALO_ERROR(rs.AbsolutePosition(3), ErrSinRegistroActual,
                         "No hay ningún registro activo.");
    rs.MoveFirst();
    EXPECT_TREVALO_ERROR(rs.Campo("Apellido"), ErrNoEnColeccion,
                         "Elemento no encontrado en esta colección.");
    EXPECT_TREVALO_ERROR(rs.Campo("Nombre", Valor("z")), ErrUpdateSinEdit,
                         "Update o CancelUpdate sin AddNew o Edit.");
}

TEST_F(MotorDatos, AddNewAnadeAlFinalDeUnaTablaYNoAUnaConsultaCompuesta) {
    Poner({"b", "d"});
    auto rs = bd_->AbrirRecordset("SELECT * FROM Nombres ORDER BY Nombre");
    rs.AddNew();
    rs.Campo("Nombre", Valor("a"));
    rs.Campo("N", Valor(9));
    EXPECT_EQ(rs.Campo("Nombre").Texto(), "a"); // the row being written
    rs.Update();
    EXPECT_EQ(rs.Campo("Nombre").Texto(), "b"); // the position did not move
    EXPECT_EQ(rs.RecordCount(), 3);
    rs.MoveLast();
    EXPECT_EQ(rs.Campo("Nombre").Texto(), "a");   // appended, not sorted in
    EXPECT_DOUBLE_EQ(rs.Campo("X").Doble(), 7.5); // the column's default
    EXPECT_EQ(Leer("SELECT * FROM Nombres ORDER BY Nombre"),
              (std::vector<std::string>{"a", "b", "d"}));
    rs.Requery();
    EXPECT_EQ(rs.Campo("Nombre").Texto(), "a");

    // A query of computed columns takes no new row.
    auto compuesta = bd_->AbrirRecordset("SELECT Nombre, N * 2 AS Doble FROM Nombres ORDER BY N");
    EXPECT_EQ(compuesta.Campo("Doble").Entero(), 2);
    EXPECT_TREVALO_ERROR(
        compuesta.AddNew(), ErrSoloLectura,
        "No se puede actualizar. La base de datos o el objeto es de sólo lectura.");
}

TEST_F(MotorDatos, EditYDeleteEscribenEnElArchivo) {
    Poner({"a", "b", "c"});
    auto rs = bd_->AbrirRecordset("SELECT * FROM Nombres WHERE N >= ? ORDER BY N", {1});
    rs.AbsolutePosition(1);
    rs.Edit();
    rs.Campo("N", Valor(20));
    rs.Update();
    EXPECT_EQ(rs.Campo("N").Entero(), 20);
    EXPECT_EQ(bd_->AbrirRecordset("SELECT * FROM Nombres WHERE Nombre='b'").Campo("N").Entero(),
              20);

    rs.Delete();
    EXPECT_TREVALO_ERROR(rs.Campo("Nombre"), ErrSinRegistroActual,
                         "No hay ningún registro activo.");
    EXPECT_EQ(rs.RecordCount(), 2);
    rs.MoveNext(); // the row after the deleted one
    EXPECT_EQ(rs.Campo("Nombre").Texto(), "c");
    EXPECT_EQ(Leer("SELECT * FROM Nombres ORDER BY N"), (std::vector<std::string>{"a", "c"}));

    rs.Edit();
    rs.Campo("N", Valor(30));
    rs.CancelUpdate();
    EXPECT_EQ(rs.Campo("N").Entero(), 3);
}

TEST_F(MotorDatos, RefrescarVuelveAlArchivoSinReordenar) {
    Poner({"b", "c"});
    auto rs = bd_->AbrirRecordset("SELECT * FROM Nombres ORDER BY Nombre");
    rs.AddNew();
    rs.Campo("Nombre", Valor("a")); // appended last, after "c"
    rs.Update();
    {
        Transaccion t(*bd_);
        rs.AbsolutePosition(1);
        rs.Edit();
        rs.Campo("N", Valor(99));
        rs.Update();
        rs.AddNew();
        rs.Campo("Nombre", Valor("d"));
        rs.Update();
        EXPECT_EQ(rs.RecordCount(), 4);
    } // taken back
    rs.Refrescar();
    EXPECT_EQ(rs.RecordCount(), 3);
    EXPECT_EQ(rs.AbsolutePosition(), 1);
    EXPECT_EQ(rs.Campo("Nombre").Texto(), "c");
    EXPECT_EQ(rs.Campo("N").Entero(), 2);
    rs.MoveNext();
    EXPECT_EQ(rs.Campo("Nombre").Texto(), "a"); // still last: no requery happened
}

TEST_F(MotorDatos, UnaTransaccionSinConfirmarDejaElArchivoComoEstaba) {
    Poner({"a"});
    const std::string antes = prueba::LeerArchivo(bd_->Ruta());
    try {
        Transaccion t(*bd_);
        bd_->Ejecutar("DELETE FROM Nombres");
        bd_->Ejecutar("INSERT INTO Nombres (Nombre) VALUES ('b')");
        bd_->Ejecutar("INSERT INTO NoExiste VALUES (1)");
        t.Confirmar();
        FAIL() << "the third statement must fail";
    } catch (const ErrorTrevalo& e) {
        EXPECT_EQ(e.Numero(), 1);
        EXPECT_EQ(e.Descripcion(), "no such table: NoExiste");
    }
    EXPECT_EQ(Leer("Nombres"), std::vector<std::string>{"a"});
    EXPECT_TRUE(prueba::LeerArchivo(bd_->Ruta()) == antes); // not even the change counter
    {
        Transaccion fuera(*bd_);
        {
            Transaccion dentro(*bd_);
            bd_->Ejecutar("INSERT INTO Nombres (Nombre) VALUES ('b')");
            dentro.Confirmar();
        }
        {
            Transaccion anulada(*bd_);
            bd_->Ejecutar("INSERT INTO Nombres (Nombre) VALUES ('c')");
        }
        fuera.Confirmar();
    }
    auto otra = BaseDatos::Abrir(bd_->Ruta()); // what another connection sees on disk
    auto rs = otra.AbrirRecordset("SELECT * FROM Nombres ORDER BY Nombre");
    EXPECT_EQ(rs.RecordCount(), 2);
    rs.MoveLast();
    EXPECT_EQ(rs.Campo("Nombre").Texto(), "b");
}

TEST_F(MotorDatos, LosErroresDelMotorConservanNumeroYTexto) {
    EXPECT_TREVALO_ERROR(BaseDatos::Abrir(dir_ / "no_existe.trv"), 14,
                         "unable to open database file");
    const auto texto = dir_ / "texto.trv";
    prueba::EscribirArchivo(texto, "Esto no es una base de datos, sino un texto bastante largo.\n" +
                                       std::string(200, 'x'));
    EXPECT_TREVALO_ERROR(BaseDatos::Abrir(texto), 26, "file is not a database");
    EXPECT_TREVALO_ERROR(bd_->Ejecutar("DELETE FROM Tramos"), 1, "no such table: Tramos");
}

struct CasoValor {
    Valor valor;
    const char* conversion;
    long error; // 0: none
    double esperado;
};

double Convertir(const Valor& v, const std::string& c) {
    if (c == "Doble") return v.Doble();
    if (c == "Entero16") return v.Entero16();
    if (c == "Entero32") return v.Entero32();
    if (c == "Byte") return v.Byte();
    return v.Logico() ? 1 : 0;
}

TEST(Valor, ConvierteComoLasVariablesDelPrograma) {
    const CasoValor casos[] = {
        {Valor(2.5), "Entero16", 0, 2},
        {Valor(3.5), "Entero16", 0, 4},
        {Valor(-2.5), "Entero32", 0, -2},
        {Valor(32767), "Entero16", 0, 32767},
        {Valor(32768), "Entero16", 6, 0},
        {Valor(256), "Byte", 6, 0},
        {Valor(-1), "Byte", 6, 0},
        {Valor("12.25"), "Doble", 0, 12.25},
        {Valor(" 7 "), "Entero16", 0, 7},
        {Valor("siete"), "Doble", 13, 0},
        {Valor(), "Doble", 94, 0},
        {Valor(), "Logico", 94, 0},
        {Valor(-1), "Logico", 0, 1},
        {Valor(0), "Logico", 0, 0},
        {Valor(Valor::Binario{1, 2}), "Doble", 13, 0},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.conversion);
        long error = 0;
        double obtenido = 0;
        try {
            obtenido = Convertir(c.valor, c.conversion);
        } catch (const ErrorTrevalo& e) {
            error = e.Numero();
        }
        EXPECT_EQ(error, c.error);
        EXPECT_DOUBLE_EQ(obtenido, c.esperado);
    }
    EXPECT_EQ(Valor(0.1).Texto(), "0.1");
    EXPECT_EQ(Valor(42).Texto(), "42");
}

TEST_F(MotorDatos, LosValoresVuelvenConSuTipo) {
    bd_->EjecutarGuion("CREATE TABLE Todo (T TEXT, I INTEGER, R REAL, B BLOB);");
    const Valor::Binario bytes{0, 255, 10, 13};
    auto rs = bd_->AbrirRecordset("Todo");
    rs.AddNew();
    rs.Campo("T", Valor("ñ\"'"));
    rs.Campo("I", Valor(std::int64_t{-5000000000}));
    rs.Campo("R", Valor(0.1));
    rs.Campo("B", Valor(bytes));
    rs.Update();
    auto otra = bd_->AbrirRecordset("Todo");
    EXPECT_EQ(otra.Campo("T"), Valor("ñ\"'"));
    EXPECT_EQ(otra.Campo("I"), Valor(std::int64_t{-5000000000}));
    EXPECT_EQ(otra.Campo("R"), Valor(0.1));
    EXPECT_EQ(otra.Campo("B").Bytes(), bytes);
}

} // namespace
} // namespace trevalo
