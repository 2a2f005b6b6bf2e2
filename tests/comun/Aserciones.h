#pragma once
// The assertions every test folder shares: the program's error with its number and text, and
// a value within a relative tolerance of the expected one.

#include <gtest/gtest.h>

#include <cmath>

#include "model/Errores.h"

#define EXPECT_TREVALO_ERROR(sentencia, numero, texto)                                             \
    do {                                                                                           \
        try {                                                                                      \
            (void)(sentencia);                                                                     \
            ADD_FAILURE() << "no error raised by " #sentencia;                                     \
        } catch (const ::trevalo::ErrorTrevalo& e) {                                               \
            EXPECT_EQ(e.Numero(), (numero));                                                       \
            EXPECT_EQ(e.Descripcion(), (texto));                                                   \
        }                                                                                          \
    } while (false)

namespace trevalo::prueba {

// |obtenido - esperado| <= rel |esperado|; an expected zero must be met exactly.
inline ::testing::AssertionResult Cerca(const char* expresion, const char* esperada, const char*,
                                        double obtenido, double esperado, double rel) {
    if (std::fabs(obtenido - esperado) <= rel * std::fabs(esperado))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << expresion << " is " << obtenido << ", " << esperada << " is " << esperado
           << ": they differ by " << std::fabs(obtenido - esperado) << ", more than " << rel
           << " of it";
}

} // namespace trevalo::prueba

#define EXPECT_CERCA(obtenido, esperado, rel)                                                      \
    EXPECT_PRED_FORMAT3(::trevalo::prueba::Cerca, obtenido, esperado, rel)
