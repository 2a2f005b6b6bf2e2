#pragma once
// Helpers of the store tests: a fresh project copied from the installation's template,
// random beams that say by construction which joints carry a vertical support, a dump of
// every table, and a field-by-field comparison of beams.

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "comun/Carpeta.h"
#include "comun/Vigas.h"
#include "store/BaseDatos.h"

namespace trevalo::prueba {

// A project file copied from Imagen/ImagenViga.kvl into a folder of its own, open, with
// the beam list open.
class ProyectoPrueba : public ::testing::Test {
  protected:
    void SetUp() override;

    // Saves a beam as new under its name.
    void Guardar(VigaActual& v);
    // Moves the beam list to the row of that name (exact text).
    void Posicionar(const std::string& nombre);
    VigaActual Cargar(const std::string& nombre);

    CarpetaTemporal dir_; // outlives the open project
    EstadoProyecto estado_;
};

// A beam with random spans, joints, supports, springs, displaced joints, types, loads of
// every kind and joint actions; slots beyond the counts are zero. `lleno` fills every
// slot and gives every joint a displacement and an action. `conApoyo` receives the joints that
// carry a vertical support.
VigaActual VigaAleatoria(std::mt19937& azar, const std::string& nombre, bool lleno,
                         std::set<long>& conApoyo);

// What LeerViga gives back for a beam saved by SalvarViga: the joints without a vertical
// support lose their dimensions, FMayorTramo is the beam's factor, no span is marked and
// LongTotal is the sum of the spans.
VigaActual TrasGuardar(VigaActual v, const std::set<long>& conApoyo);

// Every row of every table of a beam (or of all beams), in key order, without the row id.
using Tablas = std::map<std::string, std::vector<std::vector<Valor>>>;
Tablas Volcar(BaseDatos& bd, const std::string& nombre = {});
// The index of a column in the rows of a table's dump.
std::size_t Columna(BaseDatos& bd, const std::string& tabla, const std::string& columna);

void ExpectVigasIguales(const VigaActual& a, const VigaActual& b);

} // namespace trevalo::prueba
