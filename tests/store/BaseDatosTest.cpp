// The beam store over a project made from the installation's template: round trips,
// the copy's kept differences, names of any text, one transaction per write, bad rows.

#include "ProyectoPrueba.h"

#include "comun/Aserciones.h"

namespace trevalo::prueba {
namespace {

class Almacen : public ProyectoPrueba {};

TEST_F(Almacen, CadaColumnaSobreviveSalvarYLeer) {
    std::mt19937 azar(20261121);
    for (int i = 0; i < 40; ++i) {
        std::set<long> conApoyo;
        auto v = VigaAleatoria(azar, "Viga " + std::to_string(i), i % 4 == 0, conApoyo);
        SCOPED_TRACE(v.NombreVigaActual);
        Guardar(v);
        ExpectVigasIguales(Cargar(v.NombreVigaActual), TrasGuardar(v, conApoyo));
    }
    EXPECT_EQ(estado_.RsGeneralViga->RecordCount(), 40);
}

TEST_F(Almacen, SalvarSobreLaFilaActual) {
    std::mt19937 azar(11);
    std::set<long> conApoyo;
    auto otra = VigaAleatoria(azar, "Otra", false, conApoyo);
    Guardar(otra);
    auto v = VigaAleatoria(azar, "Doble", false, conApoyo);
    Guardar(v);
    const auto primera = Volcar(*estado_.BDProyecto);
    Posicionar("Doble");
    ASSERT_NO_THROW(SalvarViga(estado_, v));
    EXPECT_EQ(Volcar(*estado_.BDProyecto), primera); // twice gives identical tables
    EXPECT_EQ(estado_.RsGeneralViga->RecordCount(), 2);

    // One more span and the other concrete option: the header row follows.
    v.NT = static_cast<std::int16_t>(v.NT + 1);
    RedimensionarViga(v);
    v.LT(v.NT) = 2.5;
    v.VT(v.NT) = 1;
    v.OpcionConcreto = static_cast<std::uint8_t>(1 - v.OpcionConcreto); // B1, T1 stay numbers
    Posicionar("Doble");
    ASSERT_NO_THROW(SalvarViga(estado_, v));
    EXPECT_EQ(estado_.RsGeneralViga->Campo("NT").Entero(), v.NT);
    ExpectVigasIguales(Cargar("Doble"), TrasGuardar(v, conApoyo));
}

TEST_F(Almacen, CopiarVigaSoloDifiereEnLoQueSeConserva) {
    std::mt19937 azar(5);
    std::set<long> conApoyo;
    auto v = VigaAleatoria(azar, "Original", true, conApoyo);
    // A joint without support: the copy keeps the dimensions that the save drops.
    ASSERT_LT(conApoyo.size(), static_cast<std::size_t>(v.NT + 1));
    Guardar(v);
    v.VigaNueva = true; // the copy ignores and keeps it
    estado_.NombreCopiaViga = "Copia";
    ASSERT_NO_THROW(CopiarViga(estado_, v));
    EXPECT_TRUE(v.VigaNueva);
    EXPECT_EQ(estado_.RsGeneralViga->RecordCount(), 2);

    BaseDatos& bd = *estado_.BDProyecto;
    auto esperado = Volcar(bd, "Original");
    for (auto& [tabla, filas] : esperado)
        for (auto& fila : filas) fila[0] = Valor("Copia");
    // Every joint keeps its dimensions in the copy.
    for (long j = 1; j <= v.NT + 1; ++j) {
        auto& fila = esperado["Juntas"][static_cast<std::size_t>(j - 1)];
        fila[Columna(bd, "Juntas", "LDer")] = Valor(v.LDer(j));
        fila[Columna(bd, "Juntas", "LIzq")] = Valor(v.LIzq(j));
        fila[Columna(bd, "Juntas", "HC")] = Valor(v.HC(j));
    }
    // The partial uniform loads carry the point loads of the same slot.
    for (long t = 1; t <= v.NT; ++t)
        for (long k = 1; k <= v.CantW3(t); ++k)
            esperado["CargasTramos"][static_cast<std::size_t>(t - 1)]
                    [Columna(bd, "CargasTramos", "W3_" + std::to_string(k))] = Valor(v.P(t, k));
    EXPECT_EQ(Volcar(bd, "Copia"), esperado);
    EXPECT_NE(v.P(1, 1), v.W3_(1, 1)); // the difference is visible in this beam
}

TEST_F(Almacen, NombresConCualquierTextoNoDananOtrasVigas) {
    std::mt19937 azar(3);
    std::set<long> conApoyo;
    auto otra = VigaAleatoria(azar, "Otra", false, conApoyo);
    Guardar(otra);
    BaseDatos& bd = *estado_.BDProyecto;
    const auto intacta = Volcar(bd, "Otra");
    const std::string nombres[] = {"x\"; DROP TABLE Tramos; --", "O'Brien \"la grande\" ñandú",
                                   "Viga 'Ñ' \\ % _ ; */"};
    for (const auto& nombre : nombres) {
        SCOPED_TRACE(nombre);
        std::set<long> apoyos;
        auto v = VigaAleatoria(azar, nombre, false, apoyos);
        Guardar(v);
        ExpectVigasIguales(Cargar(nombre), TrasGuardar(v, apoyos));
        EXPECT_TRUE(ExisteViga(bd, nombre));

        estado_.NombreCopiaViga = nombre + " (copia)";
        ASSERT_NO_THROW(CopiarViga(estado_, v));
        EXPECT_EQ(Volcar(bd, nombre + " (copia)").at("Tramos").size(),
                  static_cast<std::size_t>(v.NT));

        Posicionar(nombre);
        estado_.NombreRenombrar = nombre + "\"2";
        RenombrarViga(estado_);
        EXPECT_FALSE(ExisteViga(bd, nombre));
        auto renombrada = Cargar(nombre + "\"2");
        renombrada.NombreVigaActual = nombre;
        ExpectVigasIguales(renombrada, TrasGuardar(v, apoyos));

        estado_.RsGeneralViga->Requery();
        Posicionar(nombre + "\"2");
        EliminarViga(estado_, nombre + "\"2");
        for (const auto& [tabla, filas] : Volcar(bd, nombre + "\"2"))
            EXPECT_TRUE(filas.empty()) << tabla;
        EXPECT_EQ(Volcar(bd, "Otra"), intacta);
        estado_.RsGeneralViga->Requery();
    }
    EXPECT_EQ(estado_.RsGeneralViga->RecordCount(), 1 + 3); // Otra and the three copies
}

TEST_F(Almacen, MayusculasYMinusculasSonUnSoloNombre) {
    std::mt19937 azar(4);
    std::set<long> conApoyo;
    auto v = VigaAleatoria(azar, "viga ñ", false, conApoyo);
    Guardar(v);
    BaseDatos& bd = *estado_.BDProyecto;
    EXPECT_TRUE(ExisteViga(bd, "VIGA Ñ"));
    EXPECT_TRUE(ExisteViga(bd, "Viga Ñ"));
    EXPECT_FALSE(ExisteViga(bd, "viga n"));
    EXPECT_FALSE(ExisteViga(bd, "viga ñ "));
    auto leida = Cargar("VIGA Ñ");
    EXPECT_EQ(leida.LT, v.LT);
    EXPECT_EQ(leida.NombreEje, v.NombreEje);

    estado_.NombreCopiaViga = "VIGA Ñ";
    ASSERT_NO_THROW(CopiarViga(estado_, v));
    const auto todo = Volcar(bd);
    ASSERT_EQ(todo.at("GeneralViga").size(), 1u);
    EXPECT_EQ(todo.at("GeneralViga")[0][0], Valor("VIGA Ñ"));
    EXPECT_EQ(todo.at("Tramos").size(), static_cast<std::size_t>(v.NT));
}

TEST_F(Almacen, UnFalloAMitadDeSalvarDejaLaVigaComoEstaba) {
    std::mt19937 azar(8);
    std::set<long> conApoyo;
    auto v = VigaAleatoria(azar, "Intacta", false, conApoyo);
    Guardar(v);
    BaseDatos& bd = *estado_.BDProyecto;
    const auto antes = Volcar(bd);
    // The fourth table of the save refuses every new row.
    bd.EjecutarGuion("CREATE TRIGGER Falla BEFORE INSERT ON JuntasRestringidas "
                     "BEGIN SELECT RAISE(ABORT, 'fallo inyectado'); END;");

    std::set<long> otros;
    auto cambiada = VigaAleatoria(azar, "Intacta", true, otros); // restrains joint 2
    Posicionar("Intacta");
    EXPECT_TREVALO_ERROR(SalvarViga(estado_, cambiada), 1811, "fallo inyectado...    ");
    EXPECT_EQ(Volcar(bd), antes);
    EXPECT_EQ(estado_.RsGeneralViga->Campo("NT").Entero(), v.NT); // the list shows the file
    EXPECT_EQ(estado_.RsGeneralViga->Campo("NombreViga").Texto(), "Intacta");

    // A new beam that fails leaves no row behind, in the file or in the list.
    cambiada.NombreVigaActual = "Nueva";
    cambiada.VigaNueva = true;
    EXPECT_TREVALO_ERROR(SalvarViga(estado_, cambiada), 1811, "fallo inyectado...    ");
    EXPECT_TRUE(cambiada.VigaNueva);
    EXPECT_EQ(Volcar(bd), antes);
    EXPECT_EQ(estado_.RsGeneralViga->RecordCount(), 1);
    EXPECT_EQ(estado_.RsGeneralViga->Campo("NombreViga").Texto(), "Intacta");

    estado_.NombreCopiaViga = "Intacta";
    EXPECT_TREVALO_ERROR(CopiarViga(estado_, cambiada), 1811, "fallo inyectado...    ");
    EXPECT_EQ(Volcar(bd), antes);
}

TEST_F(Almacen, UnNombreAusenteDaLaVigaPorDefectoSinMensaje) {
    VigaActual esperada;
    esperada.NombreVigaActual = "Nadie";
    NuevaVigaDefecto(esperada);
    ExpectVigasIguales(Cargar("Nadie"), esperada);
}

struct CasoTipo {
    int opcionConcreto;
    const char* b1; // SQL literal
    double esperadoB1;
};

TEST_F(Almacen, UnTipoSinDimensionTomaLaDelConcreto) {
    const CasoTipo casos[] = {
        {0, "NULL", 0.3}, {0, "0", 0.3}, {0, "0.45", 0.45}, {1, "NULL", 0.0}, {1, "12.5", 12.5}};
    BaseDatos& bd = *estado_.BDProyecto;
    for (const auto& c : casos) {
        SCOPED_TRACE(c.b1);
        bd.Ejecutar("DELETE FROM GeneralViga");
        bd.Ejecutar("DELETE FROM TiposVigas");
        bd.Ejecutar("INSERT INTO GeneralViga VALUES ('T', 1, ?, 0, 0, 1.5)", {c.opcionConcreto});
        bd.Ejecutar(std::string("INSERT INTO TiposVigas VALUES ('T', 1, ") + c.b1 + ", NULL, 'x')");
        const auto v = Cargar("T");
        EXPECT_EQ(v.B1(1), c.esperadoB1);
        EXPECT_EQ(v.T1(1), c.opcionConcreto == 0 ? 0.5 : 0.0);
    }
}

struct CasoDanado {
    const char* descripcion;
    const char* sql; // damage done to a saved beam named 'D'
    long numero;
};

TEST_F(Almacen, DatosDanadosDanElMensajeYLaVigaPorDefecto) {
    const CasoDanado casos[] = {
        {"span row missing", "DELETE FROM Tramos WHERE Tramo=2", ErrSinRegistroActual},
        {"null axis name", "UPDATE Juntas SET NombreEje=NULL", ErrUsoNull},
        {"text in a number", "UPDATE Tramos SET LT='largo'", ErrTiposNoCoinciden},
        {"count beyond slots", "UPDATE CargasTramos SET CantW6=6", ErrSubindice},
        {"count of a missing slot", "UPDATE CargasTramos SET CantW2=CantW2+1", ErrUsoNull},
        {"type beyond 16 bits", "UPDATE GeneralViga SET NT=40000", ErrDesbordamiento},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.descripcion);
        estado_.BDProyecto->Ejecutar("DELETE FROM GeneralViga");
        auto v = VigaDeTramos({3, 3, 3});
        v.NombreVigaActual = "D";
        v.Designacion(1) = "x";
        for (long t = 1; t <= 3; ++t) {
            v.CantW2(t) = 2;
            v.CantW6(t) = 5;
        }
        estado_.RsGeneralViga->Requery();
        Guardar(v);
        estado_.BDProyecto->Ejecutar(c.sql);
        VigaActual leida;
        leida.NombreVigaActual = "D";
        EXPECT_TREVALO_ERROR(LeerViga(estado_, leida), c.numero,
                             "Hay un Error en los Datos de la Viga: D...    ");
        VigaActual defecto;
        defecto.NombreVigaActual = "D";
        NuevaVigaDefecto(defecto);
        defecto.FMayoracionTC = leida.FMayoracionTC; // left as they were by the default beam
        defecto.LongTotal = leida.LongTotal;
        ExpectVigasIguales(leida, defecto);
    }
}

TEST_F(Almacen, LosDatosGeneralesVanYVuelven) {
    BaseDatos& bd = *estado_.BDProyecto;
    ProyectoActual p;
    EXPECT_TREVALO_ERROR(LeerGeneralProyecto(bd, p), ErrSinRegistroActual,
                         "No hay ningún registro activo.");
    p.Proyecto = "Edificio \"Los Álamos\"";
    p.Propietario = "Inversiones O'Higgins";
    p.ProyFecha = "21/11/2026";
    p.Calculista = "Ing. Núñez";
    p.Comentario = "Losa de entrepiso";
    p.Cliente = "Cliente";
    p.PPV = false;
    p.DEFCOR = p.OpcionEstribos = true;
    std::tie(p.FC, p.FY, p.D8, p.PesoConcreto, p.CFormaConcreto, p.ModuloAcero, p.PesoAcero,
             p.CFormaAcero) = std::make_tuple(280, 4200.5, 0.06, 2400, 1.2, 2039000, 7800, 2.4);
    SalvarGeneralProyecto(bd, p);
    SalvarGeneralProyecto(bd, p); // replaced, not added
    EXPECT_EQ(bd.AbrirRecordset("GeneralProyecto").RecordCount(), 1);
    ProyectoActual leido;
    LectorGeneralProyecto(bd)(leido);
    auto campos = [](const ProyectoActual& x) {
        return std::tie(x.Proyecto, x.Propietario, x.ProyFecha, x.Calculista, x.Comentario,
                        x.Cliente, x.PPV, x.DEFCOR, x.FC, x.FY, x.D8, x.PesoConcreto,
                        x.CFormaConcreto, x.ModuloAcero, x.PesoAcero, x.CFormaAcero,
                        x.OpcionEstribos);
    };
    EXPECT_TRUE(campos(leido) == campos(p));
}

TEST_F(Almacen, LaListaDeVigasVaEnOrdenDeNombre) {
    for (const char* n : {"Viga 2", "azotea", "Ñandú", "nivel 3", "Árbol"}) {
        VigaActual v;
        v.NombreVigaActual = n;
        NuevaVigaDefecto(v);
        Guardar(v);
    }
    AbrirRsGeneralViga(estado_, ConsultaListaVigas);
    auto& rs = *estado_.RsGeneralViga;
    EXPECT_EQ(rs.AbsolutePosition(), 0);
    std::vector<std::string> orden;
    for (; !rs.AlFinal(); rs.MoveNext()) orden.push_back(rs.Campo("NombreViga").Texto());
    EXPECT_EQ(orden, (std::vector<std::string>{"Árbol", "azotea", "nivel 3", "Ñandú", "Viga 2"}));
}

} // namespace
} // namespace trevalo::prueba
