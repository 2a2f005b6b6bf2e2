// Steel beam types: loading a table for a family picture and capturing a row into a type.

#include <gtest/gtest.h>

#include "comun/Aserciones.h"
#include "comun/Carpeta.h"
#include "comun/Vigas.h"
#include "profiles/ListaPerfiles.h"
#include "profiles/TablaPerfiles.h"

namespace trevalo {
namespace {

using F = FamiliaPerfil;

class ListaDePerfiles : public ::testing::Test {
  protected:
    // A table of the family with rows (designation, area, inertia about X-X); other fields 0.
    std::string Tabla(F familia,
                      const std::vector<std::tuple<std::string, double, double>>& filas) {
        const std::string ruta =
            RutaTablaNueva(carpeta.Ruta(), familia, "T" + std::to_string(++n_) + ".pfl");
        CrearTablaPerfiles(TREVALO_RUTA_PROGRAMA, familia, ruta);
        const DatosFamilia& f = Familia(familia);
        TablaPerfiles t{"Prueba", 2530, {}};
        for (const auto& [nombre, area, inercia] : filas) {
            FilaPerfil fila{0, nombre, std::vector<double>(f.Campos.size(), 0.0)};
            for (std::size_t i = 0; i < f.Campos.size(); ++i) {
                if (f.Campos[i] == "Area") fila.Valores[i] = area;
                if (f.Campos[i] == f.CampoInercia) fila.Valores[i] = inercia;
                if (f.Campos[i] == "InerciaY") fila.Valores[i] = -1; // never taken
            }
            t.Filas.push_back(fila);
        }
        SalvarTablaPerfiles(ruta, familia, t);
        return ruta;
    }

    // A beam of n types, all of no dimensions.
    static VigaActual VigaConTipos(long n) {
        VigaActual v;
        prueba::PonerTipos(v, prueba::Filas(static_cast<std::size_t>(n), {0, 0}));
        return v;
    }

    prueba::CarpetaTemporal carpeta;
    int n_ = 0;
};

TEST_F(ListaDePerfiles, PrefijoYFactorPorFigura) {
    struct Caso {
        int item;
        F familia;
        std::string prefijo;
        double factor;
    };
    const Caso casos[] = {{1, F::DobleTee, "1 ", 1},       {2, F::DobleTee, "2 ", 2},
                          {3, F::SeccionU, "1 ", 1},       {4, F::SeccionU, "2 ", 2},
                          {5, F::SeccionU, "2 ", 2},       {6, F::TuboCuadrado, "1 ", 1},
                          {7, F::TuboRectangular, "1 ", 1}};
    for (const Caso& c : casos) {
        ListaPerfiles lista;
        CargarListaPerfiles(Tabla(c.familia, {{"P 1", 10.25, 300.5}, {"P 2", 20, 400}}), c.item,
                            lista);
        SCOPED_TRACE(c.item);
        EXPECT_EQ(lista.ListaFamilia, c.item);
        ASSERT_EQ(lista.ListaPerfilesN, 2);
        EXPECT_EQ(lista.ListaDesignacion(1), c.prefijo + "P 1");
        EXPECT_DOUBLE_EQ(lista.ListaArea(1), 10.25 * c.factor);
        EXPECT_DOUBLE_EQ(lista.ListaInercia(1), 300.5 * c.factor);
        EXPECT_DOUBLE_EQ(lista.ListaInercia(2), 400 * c.factor);
    }
    EXPECT_EQ(ItemLista(7).Texto, "Perfil Tubular Rectangular ");
}

TEST_F(ListaDePerfiles, CapturaPasaPorElTextoDeDosDecimales) {
    ListaPerfiles lista;
    CargarListaPerfiles(Tabla(F::SeccionU, {{"C", 10.125, 1234.5678}}), 4, lista);
    VigaActual viga = VigaConTipos(1);
    CapturarPerfil(lista, 1, 1, viga);
    EXPECT_DOUBLE_EQ(viga.B1(1), 20.25);   // 20.25 exactly
    EXPECT_DOUBLE_EQ(viga.T1(1), 2469.14); // 2469.1356 shown as 2469.14
    CargarListaPerfiles(Tabla(F::SeccionU, {{"C", 0.125, 0.005}}), 3, lista);
    CapturarPerfil(lista, 1, 1, viga);
    EXPECT_DOUBLE_EQ(viga.B1(1), 0.13); // half away from zero
    EXPECT_DOUBLE_EQ(viga.T1(1), 0.01);
}

TEST_F(ListaDePerfiles, TablaVaciaSoloPita) {
    ListaPerfiles lista;
    CargarListaPerfiles(Tabla(F::TuboCuadrado, {}), 6, lista);
    EXPECT_EQ(lista.ListaPerfilesN, 0);
    EXPECT_EQ(lista.ListaFamilia, 6);
    VigaActual viga = VigaConTipos(1);
    EXPECT_FALSE(CapturarPerfil(lista, 1, 1, viga));
    EXPECT_EQ(viga.Designacion(1), "");
}

TEST_F(ListaDePerfiles, FilaOTipoFueraDeLaListaEsError9) {
    ListaPerfiles lista;
    CargarListaPerfiles(Tabla(F::DobleTee, {{"I", 1, 2}}), 1, lista);
    VigaActual viga = VigaConTipos(2);
    EXPECT_TREVALO_ERROR(CapturarPerfil(lista, 2, 1, viga), 9,
                         "El subíndice está fuera del intervalo");
    EXPECT_TREVALO_ERROR(CapturarPerfil(lista, 1, 3, viga), 9,
                         "El subíndice está fuera del intervalo");
    EXPECT_EQ(viga.B1(1), 0);
}

} // namespace
} // namespace trevalo
