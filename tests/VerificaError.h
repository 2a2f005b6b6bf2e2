#pragma once
// Checks that a statement raises the program's error with the given number and text.

#include <gtest/gtest.h>

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
