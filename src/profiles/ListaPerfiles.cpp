#include "profiles/ListaPerfiles.h"

#include <cassert>
#include <cstdlib>

#include "model/Conversiones.h"
#include "model/Redondeo.h"
#include "profiles/Recorte.h"
#include "profiles/TablaPerfiles.h"

namespace trevalo {

namespace {

// A grid cell of two decimals read back as a number: the value as the user sees it.
double ComoSeMuestra(double valor) {
    return std::strtod(Formato(valor, "0.00").c_str(), nullptr);
}

} // namespace

const ItemFamilia& ItemLista(int item) {
    static const ItemFamilia items[NumeroItemsFamilia] = {
        {"Perfil Doble Tee", FamiliaPerfil::DobleTee, "1 ", 1},
        {"Perfil Doble Tee", FamiliaPerfil::DobleTee, "2 ", 2},
        {"Perfil en U", FamiliaPerfil::SeccionU, "1 ", 1},
        {"Perfil en U", FamiliaPerfil::SeccionU, "2 ", 2},
        {"Perfil en U", FamiliaPerfil::SeccionU, "2 ", 2},
        {"Perfil Tubular Cuadrado", FamiliaPerfil::TuboCuadrado, "1 ", 1},
        {"Perfil Tubular Rectangular ", FamiliaPerfil::TuboRectangular, "1 ", 1},
    };
    assert(item >= 1 && item <= NumeroItemsFamilia);
    return items[item - 1];
}

void CargarListaPerfiles(const std::string& ruta, int item, ListaPerfiles& lista) {
    const ItemFamilia& it = ItemLista(item);
    const TablaPerfiles tabla = LeerTablaPerfiles(ruta, it.Familia);
    const std::string& inercia = Familia(it.Familia).CampoInercia;

    ListaPerfiles nueva;
    nueva.ListaFamilia = static_cast<std::uint8_t>(item);
    nueva.ListaPerfilesN = Entero<std::int16_t>(static_cast<long long>(tabla.Filas.size()));
    const long n = nueva.ListaPerfilesN;
    nueva.ListaDesignacion.Redim(n);
    nueva.ListaArea.Redim(n);
    nueva.ListaInercia.Redim(n);
    for (long r = 1; r <= n; ++r) {
        const FilaPerfil& fila = tabla.Filas[static_cast<std::size_t>(r - 1)];
        nueva.ListaDesignacion(r) = it.Prefijo + fila.Designacion;
        nueva.ListaArea(r) = ValorCampo(it.Familia, fila, "Area") * it.Factor;
        nueva.ListaInercia(r) = ValorCampo(it.Familia, fila, inercia) * it.Factor;
    }
    lista = std::move(nueva);
}

double AreaMostrada(const ListaPerfiles& lista, long fila) {
    return ComoSeMuestra(lista.ListaArea(fila));
}

double InerciaMostrada(const ListaPerfiles& lista, long fila) {
    return ComoSeMuestra(lista.ListaInercia(fila));
}

bool CapturarPerfil(const ListaPerfiles& lista, long fila, long k, VigaActual& viga) {
    if (lista.ListaPerfilesN == 0) return false;
    const std::string texto = Recortar(lista.ListaDesignacion(fila));
    const double area = AreaMostrada(lista, fila);
    const double inercia = InerciaMostrada(lista, fila);
    viga.Designacion(k) = texto;
    viga.B1(k) = area;
    viga.T1(k) = inercia;
    return true;
}

std::string MensajeCapturaPerfil(const ListaPerfiles& lista, long fila, long k) {
    return "Designación: " + lista.ListaDesignacion(fila) + "    \n" +
           "Capturar este Perfil como la Viga Tipo: " + std::to_string(k) + "?       \n";
}

} // namespace trevalo
