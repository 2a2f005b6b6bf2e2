#pragma once
// The two beams of the reference pictures.

#include "comun/Vigas.h"

namespace trevalo::prueba {

// Three concrete spans with every support kind, a vertical spring, every load kind and the
// three joint actions; axes A to D.
inline VigaActual VigaCompleta() {
    auto v = VigaDeTramos({5, 6, 4});
    v.NombreVigaActual = "V-101 Completa";
    const char* ejes[] = {"A", "B", "C", "D"};
    for (long j = 1; j <= 4; ++j) v.NombreEje(j) = ejes[j - 1];
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}, {3, RodilloEnY}, {4, Empotramiento}});
    PonerResortes(v, {{3, 0, 5000, 0}});
    PonerCargas(v, {{1, 1, {{1500}}},
                    {1, 2, {{3000, 2.0}}},
                    {1, 3, {{800, 3.0, 4.5}}},
                    {2, 4, {{2000}}},
                    {2, 5, {{1000, 1.5}}},
                    {2, 6, {{1200, 0.5, 2.5}}},
                    {2, 7, {{900, 3.0, 5.5}}},
                    {2, 8, {{500, 1500, 1.0, 5.0}}},
                    {3, 1, {{1000}}},
                    {3, 2, {{-2000, 2.0}}},
                    {3, 8, {{700, 700, 0.5, 3.5}}}});
    PonerAcciones(v, {{2, 5000, 0, 0}, {3, -3000, 4000, 2000}});
    return v;
}

// Two steel spans, the middle joint lifted 0.5 m, horizontal and rotational springs.
inline VigaActual VigaAceroInclinada() {
    auto v = VigaDeTramos({4, 4}, 28.5, 1940);
    v.NombreVigaActual = "VA-2 Inclinada";
    v.OpcionConcreto = 1;
    v.Designacion(1) = "IPE 200";
    PonerDesplazadas(v, {{2, 0, 0.5}});
    PonerApoyos(v, {{1, ApoyoFijo}, {3, RodilloEnX}});
    PonerResortes(v, {{2, 1000, 0, 2000}});
    PonerCargas(v, {{1, 1, {{800}}}, {2, 1, {{800}}}, {2, 2, {{1500, 1.0}}}});
    v.Gravedad(1) = 1;
    PonerAcciones(v, {{2, 0, -1000, -500}});
    return v;
}

} // namespace trevalo::prueba
