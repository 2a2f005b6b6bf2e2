#pragma once
// The steel beam types' side of the profile tables: the last table loaded for one of the
// seven family pictures, kept for the whole run, and the capture of one of its rows into a
// beam type. A steel beam type holds the area in cm2 in B1 and the inertia in cm4 in T1.

#include <cstdint>
#include <string>

#include "model/Arreglo.h"
#include "model/Viga.h"
#include "profiles/FamiliasPerfil.h"

namespace trevalo {

// The seven pictures of the steel beam types dialog, 1 to 7: single and paired double tees,
// single and two kinds of paired channels, square tube, rectangular tube.
struct ItemFamilia {
    std::string Texto; // shown as it stands, trailing blank included
    FamiliaPerfil Familia;
    std::string Prefijo; // "1 " single, "2 " paired, before each row's designation
    double Factor;       // 2 for a paired section, on area and inertia alike
};
inline constexpr int NumeroItemsFamilia = 7;
const ItemFamilia& ItemLista(int item); // item 1..7

struct ListaPerfiles {
    std::int16_t ListaPerfilesN = 0;
    Arreglo<std::string> ListaDesignacion; // prefix + Designacion
    Arreglo<double> ListaArea;             // cm2, factor applied
    Arreglo<double> ListaInercia;          // cm4, factor applied
    std::uint8_t ListaFamilia = 0;         // item of the last load; 0 before any
};

// Loads the table at `ruta` for picture `item` (1..7), replacing the lists. The inertia is
// InerciaX, or Inercia for the square tube. A file of another family raises the engine's
// error at the first field it lacks (3265); the lists are then as they were.
void CargarListaPerfiles(const std::string& ruta, int item, ListaPerfiles& lista);

// The two numbers of row `fila` as the dialog's grid shows them: two decimals.
double AreaMostrada(const ListaPerfiles& lista, long fila);
double InerciaMostrada(const ListaPerfiles& lista, long fila);

// Captures row `fila` of the lists into beam type k: Designacion(k) the trimmed row text
// (its "1 " or "2 " kept), B1(k) the area and T1(k) the inertia as shown, rounded to two
// decimals. Raises 9 for a row or type beyond the lists. Returns false, capturing nothing,
// when the list is empty (the dialog beeps).
bool CapturarPerfil(const ListaPerfiles& lista, long fila, long k, VigaActual& viga);

// The question asked before a capture, under "Capturar Sección de Perfil Metálico".
std::string MensajeCapturaPerfil(const ListaPerfiles& lista, long fila, long k);

} // namespace trevalo
