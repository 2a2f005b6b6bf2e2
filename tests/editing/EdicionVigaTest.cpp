#include "editing/EdicionViga.h"

#include <gtest/gtest.h>

#include <variant>

#include "comun/Vigas.h"

namespace trevalo {
namespace {

// A three-span concrete beam: lengths 4, 5, 6; two types; supports at joints 1 and 4.
VigaActual TresTramos() {
    VigaActual v = prueba::VigaDeTramos({4, 5, 6});
    prueba::PonerTipos(v, {{0.25, 0.6}, {0.3, 0.7}});
    prueba::PonerApoyos(v, {{1, ApoyoFijo}, {4, RodilloEnX}});
    v.VT(2) = v.VT(3) = 2;
    v.FMayoracion = 1.4;
    return v;
}

struct CasoCuenta {
    Cuenta cuenta;
    long valor;
    bool aceptado;
    long queda;         // the count the box shows afterwards
    const char* texto;  // the message, or nullptr
    const char* titulo; // its title
};

class Cuentas : public testing::TestWithParam<CasoCuenta> {};

TEST_P(Cuentas, LimitesYMensajes) {
    const CasoCuenta& caso = GetParam();
    VigaActual v = TresTramos();
    const VigaActual antes = v;
    EdicionViga edicion(v);
    const Veredicto r = edicion.CambiarCuenta(caso.cuenta, caso.valor);
    EXPECT_EQ(r.Aceptado, caso.aceptado);
    EXPECT_EQ(edicion.Valor(caso.cuenta), caso.queda);
    EXPECT_FALSE(r.Pitido);
    if (caso.texto) {
        ASSERT_TRUE(r.Aviso);
        EXPECT_EQ(r.Aviso->Texto, caso.texto);
        EXPECT_EQ(r.Aviso->Titulo, caso.titulo);
        EXPECT_EQ(r.Aviso->Icono, IconoMensaje::Advertencia);
    } else {
        EXPECT_FALSE(r.Aviso);
    }
    if (!caso.aceptado) {
        EXPECT_EQ(v, antes); // a refusal changes nothing
    }
}

INSTANTIATE_TEST_SUITE_P(
    EdicionViga, Cuentas,
    testing::Values(
        CasoCuenta{Cuenta::Tramos, 5, true, 5, nullptr, nullptr},
        CasoCuenta{Cuenta::Tramos, 1000, true, 1000, nullptr, nullptr},
        CasoCuenta{Cuenta::Tramos, 0, false, 3, nullptr, nullptr},
        CasoCuenta{Cuenta::Tramos, 1001, false, 3, nullptr, nullptr},
        CasoCuenta{Cuenta::Desplazadas, 4, true, 4, nullptr, nullptr},
        CasoCuenta{Cuenta::Desplazadas, 5, false, 0,
                   "El Número de Juntas Desplazadas no puede ser mayor que 4    ",
                   "Juntas Desplazadas"},
        CasoCuenta{Cuenta::Restringidas, 5, false, 2, "El Número de Juntas ser mayor que 4    ",
                   "Juntas Totalmente restringidas"},
        CasoCuenta{Cuenta::Resortes, 5, false, 0, "El Número de Juntas ser mayor que 4    ",
                   "Juntas con Resortes"},
        CasoCuenta{Cuenta::Acciones, 5, false, 0,
                   "El Número de la Junta no puede ser mayor que 4    \n", "Acciones Nodales"},
        CasoCuenta{Cuenta::Acciones, 4, true, 4, nullptr, nullptr},
        CasoCuenta{Cuenta::TiposConcreto, 0, true, 1, nullptr, nullptr},
        CasoCuenta{Cuenta::TiposMetalicos, 7, true, 7, nullptr, nullptr},
        // Types have no joint limit; beyond a 16-bit count the model overflows (error 6).
        CasoCuenta{Cuenta::TiposConcreto, 40000, false, 2, "Desbordamiento    ",
                   "Error Número: 6"}));

TEST(EdicionViga, LasCuentasRedimensionanYLlenanLosDefectos) {
    VigaActual v = TresTramos();
    EdicionViga edicion(v);

    edicion.CambiarCuenta(Cuenta::Tramos, 5);
    EXPECT_EQ(v.LT.Ubound(), 5);
    EXPECT_EQ(v.NombreEje.Ubound(), 6);
    EXPECT_EQ(v.LT(3), 6.0); // the spans that stay keep their lengths
    EXPECT_EQ(v.VT(4), 1.0); // a new span is of type 1
    EXPECT_EQ(v.VT(2), 2.0);
    edicion.CambiarCuenta(Cuenta::Restringidas, 4);
    EXPECT_EQ(v.Apoyo(2), RodilloEnX);
    EXPECT_EQ(v.Apoyo(3), ApoyoFijo); // a new restraint is a fixed support
    EXPECT_EQ(v.Apoyo(4), ApoyoFijo);

    edicion.CambiarCuenta(Cuenta::Resortes, 2);
    EXPECT_EQ(v.SM10.Ubound(), 2);

    edicion.CambiarCuenta(Cuenta::Tramos, 2); // reducing prunes no restraint
    EXPECT_EQ(v.R1(2), 4);
    EXPECT_EQ(v.NJRest, 4);
}

TEST(EdicionViga, CuentaDeTipos) {
    VigaActual v = TresTramos();
    EdicionViga edicion(v);
    // Concrete: new types 0.3 x 0.5, designations over the joints rather than the types.
    EXPECT_FALSE(edicion.CambiarCuenta(Cuenta::TiposConcreto, 3).Valor);
    EXPECT_EQ(v.B1(3), 0.3);
    EXPECT_EQ(v.T1(3), 0.5);
    EXPECT_EQ(v.B1(1), 0.25);
    EXPECT_EQ(v.Designacion.Ubound(), 4);
    // Fewer types: the spans of a type beyond them go to type 1.
    edicion.CambiarCuenta(Cuenta::TiposConcreto, 1);
    EXPECT_EQ(v.VT(2), 1.0);
    EXPECT_EQ(v.VT(3), 1.0);
    // None: one, shown as such, every span of type 1.
    v.VT(1) = 0;
    EXPECT_EQ(edicion.CambiarCuenta(Cuenta::TiposConcreto, 0).Valor, 1.0);
    EXPECT_EQ(v.VT(1), 1.0);
    // Steel: designations follow the types, no default section.
    edicion.CambiarCuenta(Cuenta::TiposMetalicos, 2);
    EXPECT_EQ(v.Designacion.Ubound(), 2);
    EXPECT_EQ(v.B1(2), 0.0);
}

// The model's list a cell writes, read at row 2 after the edit.
using Campo = std::variant<std::monostate, Arreglo<double> VigaActual::*,
                           Arreglo<std::int16_t> VigaActual::*>;

struct CasoCelda {
    Rejilla rejilla;
    int columna;
    std::optional<double> numero; // nothing for an emptied cell
    bool aceptado;
    std::optional<double> valor; // the value the cell keeps when not the one entered
    bool pitido;
    const char* aviso;  // the message, or nullptr
    const char* titulo; // its title
    Campo campo;
};

class Celdas : public testing::TestWithParam<CasoCelda> {};

TEST_P(Celdas, ReglasDeCadaRejilla) {
    const CasoCelda& caso = GetParam();
    VigaActual v = TresTramos();
    EdicionViga edicion(v);
    for (Cuenta c : {Cuenta::Desplazadas, Cuenta::Resortes, Cuenta::Acciones, Cuenta::Restringidas})
        edicion.CambiarCuenta(c, 3);
    const VigaActual antes = v;
    const Veredicto r = edicion.CambiarCelda(caso.rejilla, 2, caso.columna, "", caso.numero);
    EXPECT_EQ(r.Aceptado, caso.aceptado);
    EXPECT_EQ(r.Valor, caso.valor);
    EXPECT_EQ(r.Pitido, caso.pitido);
    EXPECT_EQ(r.Aviso.has_value(), caso.aviso != nullptr);
    if (caso.aviso && r.Aviso) {
        EXPECT_EQ(r.Aviso->Texto, caso.aviso);
        EXPECT_EQ(r.Aviso->Titulo, caso.titulo);
    }
    if (!caso.aceptado) {
        EXPECT_EQ(v, antes);
    }
    const auto leido = [&](auto lista) -> std::optional<double> {
        if constexpr (std::is_same_v<decltype(lista), std::monostate>)
            return std::nullopt;
        else
            return static_cast<double>((v.*lista)(2));
    };
    if (const auto x = std::visit(leido, caso.campo)) {
        EXPECT_EQ(*x, caso.valor.value_or(caso.numero.value_or(0)));
    }
}

constexpr const char* JuntaMayor = "El Número de la Junta no puede ser mayor que 4    ";
using R = Rejilla;
using V = VigaActual;

INSTANTIATE_TEST_SUITE_P(
    EdicionViga, Celdas,
    testing::Values(
        // A length of zero is the page's test, not the cell's.
        CasoCelda{R::Longitudes, 1, 0.0, true, {}, false, nullptr, nullptr, &V::LT},
        CasoCelda{R::Longitudes, 1, {}, false, {}, true, nullptr, nullptr, {}},
        CasoCelda{R::Desplazadas, 1, 4.0, true, {}, false, nullptr, nullptr, &V::R3},
        CasoCelda{R::Desplazadas, 1, 5.0, false, {}, false, JuntaMayor, "Juntas Desplazadas", {}},
        CasoCelda{R::Desplazadas, 3, -0.02, true, {}, false, nullptr, nullptr, &V::YY},
        // The restraints and springs keep the displaced joints' title, on purpose.
        CasoCelda{R::Restringidas, 1, 5.0, false, {}, false, JuntaMayor, "Juntas Desplazadas", {}},
        CasoCelda{R::Restringidas, 2, 4.0, true, {}, false, nullptr, nullptr, &V::Apoyo},
        CasoCelda{R::Restringidas, 2, 5.0, true, 1.0, true, nullptr, nullptr, &V::Apoyo},
        CasoCelda{R::Restringidas, 2, 0.0, true, 1.0, true, nullptr, nullptr, &V::Apoyo},
        CasoCelda{R::Resortes, 1, 9.0, false, {}, false, JuntaMayor, "Juntas Desplazadas", {}},
        CasoCelda{R::Resortes, 3, {}, true, 0.0, false, nullptr, nullptr, &V::SV10},
        CasoCelda{R::Resortes, 4, -800.0, true, {}, false, nullptr, nullptr, &V::SM10},
        CasoCelda{R::TiposConcreto, 2, 0.45, true, {}, false, nullptr, nullptr, &V::T1},
        // A span type beyond the types silently becomes the last; 0 beeps.
        CasoCelda{R::TipoTramoConcreto, 1, 7.0, true, 2.0, false, nullptr, nullptr, &V::VT},
        CasoCelda{R::TipoTramoMetalico, 1, 0.0, false, {}, true, nullptr, nullptr, {}},
        CasoCelda{R::TiposMetalicos, 3, 8356.0, true, {}, false, nullptr, nullptr, &V::T1},
        CasoCelda{R::Acciones, 1, 5.0, false, {}, false, JuntaMayor, "Acciones Nodales", {}},
        CasoCelda{R::Acciones, 3, -1200.0, true, {}, false, nullptr, nullptr, &V::QC2},
        CasoCelda{R::Acotamientos, 3, 0.6, true, {}, false, nullptr, nullptr, &V::HC},
        // A joint number the model cannot hold is the overflow error.
        CasoCelda{R::Desplazadas, 1, -1e12, false, {}, false, "Desbordamiento", "Error: 6", {}}));

// What each list shows, read from the beam's own fields: rows, cells, span captions; a slot
// beyond a list shorter than its count reads zero.
TEST(EdicionViga, LoQueMuestraCadaLista) {
    VigaActual v = TresTramos();
    v.NombreEje(2) = "B";
    v.NJDesp = 2;
    v.R3.Redim(1);
    const EdicionViga edicion(v);
    using R = Rejilla;
    const auto numero = [&](R r, long f, int c) { return std::get<double>(edicion.Leer(r, f, c)); };
    EXPECT_EQ(edicion.Filas(R::Longitudes), 3);
    EXPECT_EQ(edicion.Filas(R::Acotamientos), 4);
    EXPECT_EQ(edicion.Filas(R::TiposMetalicos), 2);
    EXPECT_EQ(edicion.Filas(R::Desplazadas), 2);
    EXPECT_EQ(numero(R::Longitudes, 2, 1), 5.0);
    EXPECT_EQ(numero(R::TiposConcreto, 1, 2), 0.6);
    EXPECT_EQ(numero(R::TiposMetalicos, 2, 3), 0.7);
    EXPECT_EQ(numero(R::Restringidas, 2, 1), 4.0);
    EXPECT_EQ(numero(R::Restringidas, 2, 2), static_cast<double>(RodilloEnX));
    EXPECT_EQ(numero(R::TipoTramoMetalico, 3, 1), 2.0);
    EXPECT_EQ(numero(R::Desplazadas, 2, 1), 0.0);
    EXPECT_EQ(std::get<std::string>(edicion.Leer(R::NombresEje, 2, 1)), "B");
    EXPECT_EQ(edicion.RotuloTramo(2), "B - " + v.NombreEje(3));
}

// The spans' page is not left while a span has no length: the first such span, with its message.
TEST(EdicionViga, TramoSinLongitud) {
    VigaActual v = TresTramos();
    EXPECT_FALSE(EdicionViga(v).TramoSinLongitud());
    v.LT(2) = v.LT(3) = 0;
    const auto sin = EdicionViga(v).TramoSinLongitud();
    ASSERT_TRUE(sin);
    EXPECT_EQ(sin->first, 2);
    EXPECT_EQ(sin->second.Texto, "¡No pueden existir Tramos con Longitud igual a Cero (0)!");
    EXPECT_EQ(sin->second.Titulo, "Longitud de los Tramos");
}

TEST(EdicionViga, CeldasDeTexto) {
    VigaActual v = TresTramos();
    EdicionViga edicion(v);
    EXPECT_TRUE(edicion.CambiarCelda(Rejilla::NombresEje, 4, 1, "D", {}).Aceptado);
    EXPECT_EQ(v.NombreEje(4), "D");
    EXPECT_TRUE(edicion.CambiarCelda(Rejilla::TiposMetalicos, 1, 1, "1 W8X31", {}).Aceptado);
    EXPECT_EQ(v.Designacion(1), "1 W8X31");
}

TEST(EdicionViga, ValorDeUnBloque) {
    VigaActual v = TresTramos();
    const EdicionViga edicion(v);
    EXPECT_EQ(edicion.ValorBloque(Rejilla::TipoTramoConcreto, 1.5).Valor, 2.0); // ties to even
    EXPECT_EQ(edicion.ValorBloque(Rejilla::TipoTramoMetalico, 2.5).Valor, 2.0);
    const Veredicto cero = edicion.ValorBloque(Rejilla::TipoTramoConcreto, 0.4);
    EXPECT_FALSE(cero.Aceptado);
    EXPECT_FALSE(cero.Aviso);
    EXPECT_FALSE(cero.Pitido);
    const Veredicto mayor = edicion.ValorBloque(Rejilla::TipoTramoConcreto, 7);
    ASSERT_TRUE(mayor.Aviso);
    EXPECT_EQ(mayor.Aviso->Texto, "El Tipo de Viga no puede ser mayor que 2      ");
    EXPECT_EQ(mayor.Aviso->Titulo, "Tipos de Viga");
    EXPECT_TRUE(edicion.ValorBloque(Rejilla::Longitudes, 7).Aceptado);
}

TEST(EdicionViga, FactorDeMayoracion) {
    for (const auto& [entrado, queda] : {std::pair{2.0, 2.0}, {5.0, 5.0}, {6.0, 1.5}, {0.0, 1.5}}) {
        VigaActual v = TresTramos();
        const Veredicto r = EdicionViga(v).Factor(entrado);
        EXPECT_EQ(r.Valor.has_value(), entrado != queda) << entrado;
        EXPECT_EQ(v.FMayoracion, queda);
        EXPECT_EQ(v.FMayorTramo.Ubound(), 3);
        EXPECT_EQ(v.FMayorTramo(3), queda);
    }
}

TEST(EdicionViga, PrepararLlenaLosDefectosDelEditor) {
    VigaActual v = TresTramos();
    v.NTipos = 0;
    v.VT(3) = 0;
    v.NJRes = 1;
    v.R10.Redim(1);
    v.SV10.Redim(1);
    v.R10(1) = 2;
    v.SV10(1) = 1000; // joint 2 stands on a vertical spring
    v.NJRest = 3;
    v.R1.RedimPreserve(3);
    v.Apoyo.RedimPreserve(3);
    v.R1(3) = 3;
    v.Apoyo(3) = RodilloEnY; // joint 3 is held only across
    for (long j = 1; j <= 4; ++j) v.HC(j) = 0.5;
    v.TramoMarcado(2) = true;
    EdicionViga(v).Preparar();
    EXPECT_EQ(v.NTipos, 1);
    EXPECT_EQ(v.B1(1), 0.3);
    EXPECT_EQ(v.T1(1), 0.5);
    EXPECT_EQ(v.VT(3), 1.0);
    EXPECT_EQ(v.FMayorTramo(2), 1.4);
    EXPECT_FALSE(v.TramoMarcado(2));
    EXPECT_EQ(v.HC(1), 0.5);
    EXPECT_EQ(v.HC(2), 0.5);
    EXPECT_EQ(v.HC(3), 0.0);
    EXPECT_EQ(v.HC(4), 0.5);

    VigaActual nueva;
    nueva.VigaNueva = true;
    EdicionViga(nueva).Preparar();
    EXPECT_EQ(nueva.NT, 1);
    EXPECT_EQ(nueva.LT.Ubound(), 1);
}

TEST(EdicionViga, MarcasDeLosTramos) {
    VigaActual v = TresTramos();
    EdicionViga edicion(v);
    EXPECT_FALSE(edicion.TramosCarga());
    edicion.MarcarTramos(2, 9); // beyond the spans is ignored
    edicion.Marcar(3, false);
    const auto tramos = edicion.TramosCarga();
    ASSERT_TRUE(tramos);
    EXPECT_EQ(tramos->Ubound(), 3);
    EXPECT_EQ((*tramos)(1), 0);
    EXPECT_EQ((*tramos)(2), 1);
    EXPECT_EQ((*tramos)(3), 0);
    edicion.DesmarcarTodos();
    EXPECT_FALSE(edicion.TramosCarga());
}

Arreglo<std::int16_t> Marcados(std::initializer_list<std::int16_t> marcas) {
    Arreglo<std::int16_t> a(static_cast<long>(marcas.size()));
    long i = 0;
    for (std::int16_t m : marcas) a(++i) = m;
    return a;
}

const ListaCargas Parciales{
    &VigaActual::CantW3,
    {{"(Kgf)", &VigaActual::W3_}, {"La (m)", &VigaActual::La3_}, {"Lb (m)", &VigaActual::Lb3_}},
    MaxCargas10};

// What a load dialog checks before it closes, and the apply refuses alike with nothing
// written: a load beyond 32 bits is error 6 (a position is not a load), a list beyond the
// slots of a span the subscript error.
TEST(EdicionViga, CargasRechazadas) {
    const std::vector<std::vector<double>> once(11, {1, 1, 1});
    const struct {
        EntradaCarga carga;
        const char* titulo; // nullptr: accepted
    } casos[] = {
        {CargaPorTramo{&VigaActual::W4, 3e9, {}, {}}, "Error Número: 6"},
        {CargaPorTramo{&VigaActual::W1, -2147483648.0, {}, {}}, nullptr},
        {CargaPorTramo{&VigaActual::W5, 2147483647.4, 2, {}}, nullptr},
        {FilasCarga{Parciales, {{1, 2, 3}, {2147483648.0, 1, 2}}}, "Error Número: 6"},
        {FilasCarga{Parciales, {{1, 2147483648.0, 3}}}, nullptr},
        {FilasCarga{Parciales, once}, "Error Número: 9"},
        {FilasCarga{Parciales, {once.begin(), once.end() - 1}}, nullptr},
    };
    for (const auto& caso : casos) {
        VigaActual v = TresTramos();
        const VigaActual antes = v;
        EdicionViga edicion(v);
        const Veredicto revision = edicion.RevisarCarga(caso.carga);
        EXPECT_EQ(v, antes);
        const Veredicto aplicada = edicion.AplicarCarga(Marcados({1, 1, 1}), caso.carga);
        EXPECT_EQ(revision.Aceptado, !caso.titulo);
        EXPECT_EQ(aplicada.Aceptado, !caso.titulo);
        EXPECT_EQ(aplicada.Aviso, revision.Aviso);
        if (!caso.titulo) continue;
        EXPECT_EQ(revision.Aviso->Titulo, caso.titulo);
        EXPECT_EQ(v, antes);
    }
}

TEST(EdicionViga, CargaDeUnValorPorTramo) {
    VigaActual v = TresTramos();
    EdicionViga edicion(v);
    ASSERT_TRUE(
        edicion.AplicarCarga(Marcados({1, 0, 1}), CargaPorTramo{&VigaActual::W5, -2.5, 1.2, {}})
            .Aceptado);
    EXPECT_EQ(v.W5(1), -2); // ties to even
    EXPECT_EQ(v.W5(2), 0);
    EXPECT_EQ(v.la5(3), 1.2);
    edicion.AplicarCarga(Marcados({0, 1, 0}), CargaPorTramo{&VigaActual::W1, 1500.5, {}, 1});
    EXPECT_EQ(v.W1(2), 1500);
    EXPECT_EQ(v.Gravedad(2), 1);
    EXPECT_EQ(v.la5(2), 0.0);
}

TEST(EdicionViga, ListaDeCargasPorTramo) {
    VigaActual v = TresTramos();
    EdicionViga edicion(v);
    EXPECT_TRUE(EsCarga(Parciales.columnas[0]));
    EXPECT_FALSE(EsCarga(Parciales.columnas[1]));
    EXPECT_EQ(edicion.ValorCarga(Parciales.columnas[0], 2147483648.0).Aviso->Titulo,
              "Error Número: 6");
    EXPECT_TRUE(edicion.ValorCarga(Parciales.columnas[1], 2147483648.0).Aceptado);

    ASSERT_TRUE(edicion
                    .AplicarCarga(Marcados({1, 1, 0}),
                                  FilasCarga{Parciales, {{-300, 0.5, 1.5}, {200, 2, 4}}})
                    .Aceptado);
    EXPECT_EQ(v.CantW3(1), 2);
    EXPECT_EQ(v.CantW3(2), 2);
    EXPECT_EQ(v.CantW3(3), 0);
    EXPECT_EQ(v.W3_(2, 1), -300);
    EXPECT_EQ(v.Lb3_(2, 2), 4.0);
    // A count of 0 empties the list.
    edicion.AplicarCarga(Marcados({1, 0, 0}), FilasCarga{Parciales, {}});
    EXPECT_EQ(v.CantW3(1), 0);
}

} // namespace
} // namespace trevalo
