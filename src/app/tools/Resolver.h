#pragma once
// Solving a beam and describing the results as JSON, shared by every command that solves
// (a beam read from JSON, a beam read from a project).
//
// The document: "Viga" (name), "ResultadosViga" with the result fields by name (each list
// the slots 1..n in order, service values: m, rad, kgf, kgf-m), and "Tramos": per span its
// true length "L", horizontal length "dX" and the stations of the design table at the given
// number per metre of horizontal span, each with "x" (m along the bar from the left joint),
// "M", "V" (service), "Mu", "Vu" (factored) and, for a concrete beam, "AsSup", "AsInf" (cm2),
// "Excede" and "Estribos" (the stirrup text). A concrete beam also has "Resumen", the six
// summary lists of the design sheet (cm2, slots 1..NT).

#include <iosfwd>

#include <nlohmann/json.hpp>

#include "design/TablaDiseno.h"
#include "model/Viga.h"

namespace trevalo::calc {

inline constexpr long EstacionesPorDefecto = 10;

// Solves with the given settings and describes the results. Raises the program's error of
// the analysis or of the design.
nlohmann::ordered_json ResolverYDescribir(ProyectoActual& proyecto, VigaActual& viga,
                                          long estacionesPorMetro);

// The same, printed on `salida`; an error goes to `errores` as "Error N: text". Returns the
// exit code: 0, or 1 on an error.
int ImprimirResolucion(ProyectoActual& proyecto, VigaActual& viga, long estacionesPorMetro,
                       std::ostream& salida, std::ostream& errores);

// One station: "x", "M", "V", "Mu", "Vu" and, for a concrete beam, "AsSup", "AsInf",
// "Excede", "Estribos".
nlohmann::ordered_json DescribirEstacion(const EstacionDiseno& e, bool concreto);

// Reads the value of "--estaciones": a whole number from 1 to 1000; false otherwise.
bool LeerEstaciones(const std::string& texto, long& estaciones);

} // namespace trevalo::calc
