// The settings file Tapiz.kvl: its bytes as written, the ranges on reading, the defaults.

#include <gtest/gtest.h>

#include <filesystem>

#include "comun/Aserciones.h"
#include "comun/Carpeta.h"
#include "store/Tapiz.h"

namespace fs = std::filesystem;
using namespace trevalo;
using namespace trevalo::prueba;

namespace {

class ArchivoTapiz : public ::testing::Test {
  protected:
    void SetUp() override {
        carpetas.RutaBase = tmp.Ruta();
        EscribirArchivo(tmp / "Tapices/TapizKorvel.jpg", "jpg");
        ruta = tmp / "Tapiz.kvl";
    }

    // A file of ten records of `relleno` with the wallpaper path set to an existing file.
    std::string ArchivoValido(unsigned char relleno) const {
        std::string bytes(1280, static_cast<char>(relleno));
        const std::string imagen = tmp / "Tapices/TapizKorvel.jpg";
        bytes[0] = static_cast<char>(imagen.size());
        bytes[1] = 0;
        bytes.replace(2, imagen.size(), imagen);
        return bytes;
    }

    CarpetaTemporal tmp;
    CarpetasPrograma carpetas;
    std::string ruta;
};

TEST_F(ArchivoTapiz, ArchivoNuevoByteAByte) {
    ConfiguracionTapiz tapiz;
    const std::string imagen = LeerTapiz(carpetas, tapiz);

    const std::string camino = tmp / "Tapices/TapizKorvel.jpg";
    ASSERT_LT(camino.size(), 126u);
    // Written by hand: 16-bit length and the path, then at each record's start the value,
    // little-endian; 16 bits each but for the 32-bit background colour in record 7.
    std::string esperado(9 * 128 + 2, '\0');
    esperado[0] = static_cast<char>(camino.size());
    esperado.replace(2, camino.size(), camino);
    esperado[5 * 128] = 4;                       // record 6, font index 4
    esperado[6 * 128] = static_cast<char>(0xFF); // record 7, 0xD6F4FF
    esperado[6 * 128 + 1] = static_cast<char>(0xF4);
    esperado[6 * 128 + 2] = static_cast<char>(0xD6);
    EXPECT_EQ(LeerArchivo(ruta), esperado);

    EXPECT_EQ(imagen, camino);
    EXPECT_EQ(tapiz.TapizArchivo, camino);
    // In memory the values other than the path stay as read from the empty file: index 0
    // is in range here; the background 0 is not.
    EXPECT_EQ(tapiz.TipLetra, 0);
    EXPECT_EQ(tapiz.TipFondo, 0xD6F4FF);
}

TEST_F(ArchivoTapiz, ValoresPorDefectoConservanElRestoDeCadaRegistro) {
    std::string viejo(1300, static_cast<char>(0xAA));
    viejo[0] = 3; // a path "\xAA\xAA\xAA" that names no file
    viejo[1] = 0;
    EscribirArchivo(ruta, viejo);

    ConfiguracionTapiz tapiz;
    LeerTapiz(carpetas, tapiz);

    const std::string nuevo = LeerArchivo(ruta);
    ASSERT_EQ(nuevo.size(), 1300u);
    const std::string camino = tmp / "Tapices/TapizKorvel.jpg";
    EXPECT_EQ(nuevo.substr(2, camino.size()), camino);
    EXPECT_EQ(nuevo.substr(2 + camino.size(), 126 - camino.size()),
              std::string(126 - camino.size(), static_cast<char>(0xAA)));
    const int anchos[] = {2, 2, 2, 2, 2, 4, 2, 2, 2};
    for (int r = 2; r <= 10; ++r) {
        const std::size_t inicio = static_cast<std::size_t>(r - 1) * 128;
        const std::size_t ancho = static_cast<std::size_t>(anchos[r - 2]);
        EXPECT_EQ(nuevo.substr(inicio + ancho, 128 - ancho),
                  std::string(128 - ancho, static_cast<char>(0xAA)))
            << "registro " << r;
    }
    EXPECT_EQ(nuevo.substr(1280), std::string(20, static_cast<char>(0xAA)));
    // The values other than the path stay in memory as read, ranges applied.
    EXPECT_EQ(tapiz.TapizVertical, 0); // 0xAAAA is out of range
    EXPECT_EQ(tapiz.TipFondo, static_cast<std::int32_t>(0xAAAAAAAA));
}

// One record set to a value; what the reader keeps after the ranges, the file left as it was.
struct CasoRango {
    int registro;
    int ancho;
    std::uint32_t almacenado;
    std::int64_t leido;
};
class RangosTapiz : public ArchivoTapiz, public ::testing::WithParamInterface<CasoRango> {};

std::int64_t Campo(const ConfiguracionTapiz& t, int registro) {
    const std::int64_t campos[] = {t.TapizVertical, t.TapizHorizontal, t.TapizAjustar,
                                   t.TapizEfecto,   t.TipLetra,        t.TipFondo,
                                   t.TipTexto,      t.TipCentrado,     t.TipTradicional};
    return campos[registro - 2];
}

TEST_P(RangosTapiz, AlLeer) {
    const CasoRango& c = GetParam();
    std::string bytes = ArchivoValido(0);
    for (int i = 0; i < c.ancho; ++i)
        bytes[static_cast<std::size_t>((c.registro - 1) * 128 + i)] =
            static_cast<char>((c.almacenado >> (8 * i)) & 0xFF);
    EscribirArchivo(ruta, bytes);

    ConfiguracionTapiz tapiz;
    LeerTapiz(carpetas, tapiz);
    EXPECT_EQ(Campo(tapiz, c.registro), c.leido);
    EXPECT_EQ(LeerArchivo(ruta), bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Registros, RangosTapiz,
    ::testing::Values(CasoRango{2, 2, 2, 2}, CasoRango{2, 2, 3, 0}, CasoRango{3, 2, 0x0100, 0},
                      CasoRango{4, 2, 0xFFFF, -1}, CasoRango{5, 1, 27, 27}, CasoRango{5, 1, 200, 0},
                      CasoRango{6, 1, 7, 7}, CasoRango{6, 1, 8, 4}, CasoRango{7, 4, 0, 0xD6F4FF},
                      CasoRango{8, 4, 0x123456, 0x123456}, CasoRango{9, 2, 0xFFFF, -1}));

TEST_F(ArchivoTapiz, ArchivoCortoLargoOBasuraSeLeeEnSusRangos) {
    std::string basura(5000, '\0');
    for (std::size_t i = 0; i < basura.size(); ++i) basura[i] = static_cast<char>(i * 131 + 7);
    for (const std::string& bytes :
         {std::string(), std::string("\x05"), std::string(3, '\xFF'), std::string(1300, '\xFF'),
          ArchivoValido(0xFF) + std::string(100000, 'x'), basura}) {
        EscribirArchivo(ruta, bytes);
        ConfiguracionTapiz tapiz;
        LeerTapiz(carpetas, tapiz);
        EXPECT_GE(tapiz.TapizVertical, 0);
        EXPECT_LE(tapiz.TapizVertical, 2);
        EXPECT_GE(tapiz.TapizHorizontal, 0);
        EXPECT_LE(tapiz.TapizHorizontal, 2);
        EXPECT_LE(tapiz.TapizEfecto, 27);
        EXPECT_LE(tapiz.TipLetra, 7);
        EXPECT_NE(tapiz.TipFondo, 0);
        EXPECT_EQ(tapiz.TapizArchivo, tmp / "Tapices/TapizKorvel.jpg") << bytes.size();
    }
}

TEST_F(ArchivoTapiz, ArchivoAusenteNace) {
    // Only the wallpaper is missing here: the defaults are written, no picture is given.
    fs::remove(tmp / "Tapices/TapizKorvel.jpg");
    ConfiguracionTapiz tapiz;
    EXPECT_EQ(LeerTapiz(carpetas, tapiz), "");
    EXPECT_EQ(fs::file_size(ruta), 9u * 128 + 2);
    EXPECT_EQ(tapiz.TapizArchivo, tmp / "Tapices/TapizKorvel.jpg");
}

TEST_F(ArchivoTapiz, EscrituraDelDialogoSeLeeIgual) {
    ConfiguracionTapiz escrito;
    escrito.TapizArchivo = tmp / "Tapices/Mio.jpg";
    escrito.TapizVertical = 2;
    escrito.TapizHorizontal = 1;
    escrito.TapizAjustar = -1;
    escrito.TapizEfecto = 27;
    escrito.TipLetra = 7;
    escrito.TipFondo = 0xFFE1F0;
    escrito.TipTexto = 0x0000FF;
    escrito.TipCentrado = -1;
    escrito.TipTradicional = 1;
    EscribirRegistrosTapiz(ruta, escrito, AnchosTapizDialogo);

    const std::string bytes = LeerArchivo(ruta);
    EXPECT_EQ(bytes.size(), 9u * 128 + 2);
    EXPECT_EQ(bytes.substr(128, 2), std::string("\x02\x00", 2)); // one byte, then zero
    EXPECT_EQ(bytes.substr(7 * 128, 4), std::string("\xFF\x00\x00\x00", 4));

    const ConfiguracionTapiz leido = LeerRegistrosTapiz(ruta);
    EXPECT_EQ(leido.TapizArchivo, escrito.TapizArchivo);
    for (int r = 2; r <= 10; ++r) EXPECT_EQ(Campo(leido, r), Campo(escrito, r)) << r;
}

TEST_F(ArchivoTapiz, RutaDeMasDe126BytesNoCabe) {
    ConfiguracionTapiz t;
    t.TapizArchivo = std::string(126, 'a');
    EXPECT_NO_THROW(EscribirRegistrosTapiz(ruta, t, AnchosTapizDefecto));
    EXPECT_EQ(LeerRegistrosTapiz(ruta).TapizArchivo, t.TapizArchivo);
    t.TapizArchivo.push_back('b');
    EXPECT_TREVALO_ERROR(EscribirRegistrosTapiz(ruta, t, AnchosTapizDefecto), ErrLongitudRegistro,
                         "Longitud de registro incorrecta");
}

struct CasoToolTip {
    std::uint8_t letra;
    std::int32_t fondo;
    std::int16_t tradicional;
    int puntos;
    std::int32_t fondoAplicado;
    int estilo;
};
class ToolTip : public ::testing::TestWithParam<CasoToolTip> {};

TEST_P(ToolTip, AspectoAplicado) {
    const CasoToolTip& c = GetParam();
    ConfiguracionTapiz t;
    t.TipLetra = c.letra;
    t.TipFondo = c.fondo;
    t.TipTradicional = c.tradicional;
    t.TipCentrado = -1;
    t.TipTexto = 0x00FF00;
    const EstiloToolTip e = ConfigurarToolTip(t);
    EXPECT_EQ(e.Puntos, c.puntos);
    EXPECT_EQ(e.Fondo, c.fondoAplicado);
    EXPECT_EQ(e.Estilo, c.estilo);
    EXPECT_TRUE(e.Centrado);
    EXPECT_EQ(e.Texto, 0x00FF00);
    EXPECT_EQ(e.Fuente, "Arial");
}

// Index 0 reads in range at start-up but shows as 10 points here.
INSTANTIATE_TEST_SUITE_P(Letras, ToolTip,
                         ::testing::Values(CasoToolTip{0, 0, 0, 10, 0xD6F4FF, 1},
                                           CasoToolTip{1, 0xE1E1FF, 1, 7, 0xE1E1FF, 0},
                                           CasoToolTip{7, 5, -1, 14, 5, 0},
                                           CasoToolTip{9, 5, 0, 10, 5, 1}));

} // namespace
