// Counts kept in the model's integer types, and any exception as the program's error.

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <vector>

#include "comun/Aserciones.h"
#include "model/Conversiones.h"

using namespace trevalo;

TEST(Conversiones, CuentasEnSuTipo) {
    EXPECT_EQ(CI16(32767.4), 32767);
    EXPECT_EQ(CI16(-32768), -32768);
    EXPECT_EQ(CI16(-2.5), -2);
    EXPECT_TREVALO_ERROR(CI16(32767.5), 6, "Desbordamiento"); // ties to even: 32768
    EXPECT_TREVALO_ERROR(CI16(-32768.6), 6, "Desbordamiento");
    EXPECT_TREVALO_ERROR(CI16(std::numeric_limits<double>::infinity()), 6, "Desbordamiento");
    EXPECT_EQ(Entero<std::int16_t>(-32768), -32768);
    EXPECT_EQ(Entero<std::uint8_t>(255), 255);
    EXPECT_TREVALO_ERROR(Entero<std::int16_t>(32768), 6, "Desbordamiento");
    EXPECT_TREVALO_ERROR(Entero<std::uint8_t>(-1), 6, "Desbordamiento");
    EXPECT_TREVALO_ERROR(Entero<std::int32_t>(1LL << 31), 6, "Desbordamiento");
}

TEST(Conversiones, CualquierExcepcionComoErrorDelPrograma) {
    const auto como = [](auto lanzar) {
        try {
            lanzar();
        } catch (...) {
            return ErrorDeExcepcion(std::current_exception());
        }
        return ErrorTrevalo(0, "");
    };
    struct Caso {
        ErrorTrevalo error;
        long numero;
        const char* texto;
    };
    const Caso casos[] = {
        {como([] { throw ErrorTrevalo::DivisionPorCero(); }), 11, "División por cero"},
        {como([] { throw std::bad_alloc(); }), 7, "Memoria insuficiente"},
        {como([] { std::vector<int>().reserve(static_cast<std::size_t>(-1)); }), 6,
         "Desbordamiento"},
        {como([] { throw std::runtime_error("sin nombre"); }), 51, "Error interno: sin nombre"},
        {como([] { throw 3; }), 51, "Error interno"},
    };
    for (const Caso& c : casos) {
        EXPECT_EQ(c.error.Numero(), c.numero) << c.texto;
        EXPECT_EQ(c.error.Descripcion(), c.texto);
    }
}
