// The life of projects driven by scripted answers: dialogs and message boxes are a fake,
// the files are real ones in a temporary folder.

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <vector>

#include "comun/Carpeta.h"
#include "comun/DialogosGuion.h"
#include "store/CicloProyecto.h"

namespace fs = std::filesystem;
using namespace trevalo;
using namespace trevalo::prueba;

namespace {

class PlataformaGuionada : public PlataformaProyectoDisco {
  public:
    using PlataformaProyectoDisco::PlataformaProyectoDisco;
    std::vector<std::string> basesAbiertas;
    std::vector<bool> datosGenerales; // ProyectoNuevo of each showing of DatosG
    int ventanasProyecto = 0;
    bool abreVentana = true; // whether the project window opens its project
    std::vector<std::string> recordados;
    std::string titulo = "sin titulo";
    bool salvarComo = false;
    bool espera = false;

    BaseDatos AbrirBaseDatos(const std::string& ruta) override {
        basesAbiertas.push_back(ruta);
        return PlataformaProyectoDisco::AbrirBaseDatos(ruta);
    }
    void MostrarDatosGenerales(bool nuevo) override { datosGenerales.push_back(nuevo); }
    bool MostrarVigasProyecto() override {
        ventanasProyecto += abreVentana;
        return abreVentana;
    }
    void RecordarProyecto(const std::string& ruta) override { recordados.push_back(ruta); }
    void ColocarTituloMenu(const std::string& t) override { titulo = t; }
    void HabilitarSalvarComo(bool h) override { salvarComo = h; }
    void PunteroEspera(bool e) override { espera = e; }
};

class Ciclo : public ::testing::Test {
  protected:
    void SetUp() override {
        carpetas.RutaPrograma = tmp / "programa";
        carpetas.RutaProyectos = tmp / "proyectos";
        fs::create_directories(tmp / "programa/Imagen");
        BaseDatos::Crear(Plantilla()).EjecutarGuion("CREATE TABLE GeneralViga (NombreViga TEXT)");
        vacio = LeerArchivo(Plantilla());
        fs::create_directories(carpetas.RutaProyectos);
        fs::create_directories(tmp / "otra");
    }

    std::string Plantilla() const { return tmp / "programa/Imagen/ImagenViga.kvl"; }

    // A project of the installation's template at `ruta`.
    static void Proyecto(const std::string& ruta) {
        fs::copy_file(TREVALO_RUTA_PROGRAMA "/Imagen/ImagenViga.kvl", ruta);
    }

    // No project is current, and nothing is left to write into the one before.
    void EsperarSinProyecto() const {
        EXPECT_EQ(estado.NombreProyecto, "");
        EXPECT_EQ(estado.CarpetaProyecto, "");
        EXPECT_FALSE(estado.BDProyecto);
        EXPECT_FALSE(estado.RsGeneralViga);
        EXPECT_EQ(p.titulo, "Trevalo 6.0  Proyecto: []");
        EXPECT_FALSE(p.salvarComo);
        EXPECT_FALSE(p.espera);
    }

    static Pregunta Error(long numero, const std::string& texto) {
        return {texto, "Error: " + std::to_string(numero), BotonesMensaje::Aceptar,
                IconoMensaje::Advertencia, 1};
    }

    ArchivoElegido En(const std::string& carpeta, const std::string& nombre) const {
        return {false, tmp / (carpeta + "/" + nombre), nombre};
    }

    CarpetaTemporal tmp;
    CarpetasPrograma carpetas;
    EstadoProyecto estado;
    prueba::DialogosGuion d;
    PlataformaGuionada p{d};
    std::string vacio; // the bytes of the empty project
};

const std::string TituloCrear = "Crear Nuevo Proyecto";

TEST_F(Ciclo, CrearSobreArchivoExistentePreguntaDosVecesYLoReemplaza) {
    EscribirArchivo(tmp / "proyectos/Edificio.trv", "vigas del usuario");
    estado.BDProyecto = BaseDatos::Abrir(Plantilla()); // the handle held until now
    d.archivos = {En("proyectos", "Edificio.trv")};
    d.respuestas = {RespuestaSi, RespuestaSi};

    CrearNuevoProyecto(carpetas, estado, p);

    ASSERT_EQ(d.preguntas.size(), 2u);
    EXPECT_EQ(d.preguntas[0],
              (Pregunta{"Proyecto: Edificio.trv ya Existe...    \n¿Desea Reemplazarlo?    ",
                        TituloCrear, BotonesMensaje::SiNo, IconoMensaje::Advertencia, 2}));
    EXPECT_EQ(d.preguntas[1],
              (Pregunta{"Proyecto: Edificio.trv    \n\n¿Esta Seguro de Reemplazarlo?    ",
                        TituloCrear, BotonesMensaje::SiNo, IconoMensaje::Advertencia, 1}));
    EXPECT_EQ(LeerArchivo(tmp / "proyectos/Edificio.trv"), vacio);
    EXPECT_EQ(p.titulo, "Trevalo 6.0  Proyecto: [Edificio.trv]");
    ASSERT_TRUE(estado.BDProyecto); // the old handle is replaced by the new file's
    EXPECT_EQ(estado.BDProyecto->Ruta(), tmp / "proyectos/Edificio.trv");
    EXPECT_EQ(p.datosGenerales, std::vector<bool>{true});
    EXPECT_TRUE(p.salvarComo);
    EXPECT_FALSE(p.espera);
    EXPECT_EQ(p.recordados, std::vector<std::string>{tmp / "proyectos/Edificio.trv"});
}

// A "no" to either question leaves the file and the state as they were.
TEST_F(Ciclo, CrearConUnNoDejaTodoIgual) {
    EscribirArchivo(tmp / "proyectos/Edificio.trv", "vigas del usuario");
    estado.NombreProyecto = "Anterior.trv";
    for (const std::vector<int>& guion :
         {std::vector<int>{RespuestaNo}, std::vector<int>{RespuestaSi, RespuestaNo}}) {
        d.preguntas.clear();
        d.archivos = {En("proyectos", "Edificio.trv")};
        d.respuestas = {guion.begin(), guion.end()};
        CrearNuevoProyecto(carpetas, estado, p);
        EXPECT_EQ(d.preguntas.size(), guion.size());
    }
    EXPECT_EQ(LeerArchivo(tmp / "proyectos/Edificio.trv"), "vigas del usuario");
    EXPECT_EQ(estado.NombreProyecto, "Anterior.trv");
    EXPECT_TRUE(p.basesAbiertas.empty());
    EXPECT_FALSE(p.espera);
}

TEST_F(Ciclo, CrearEnOtraCarpetaCopiaEnProyectos) {
    EscribirArchivo(tmp / "otra/Puente.trv", "ajeno");
    d.archivos = {En("otra", "Puente.trv")};
    d.respuestas = {RespuestaSi, RespuestaSi};

    CrearNuevoProyecto(carpetas, estado, p);

    // The exists test and the delete went to the folder chosen; the copy to RutaProyectos.
    EXPECT_FALSE(fs::exists(tmp / "otra/Puente.trv"));
    EXPECT_EQ(LeerArchivo(tmp / "proyectos/Puente.trv"), vacio);
    EXPECT_EQ(p.basesAbiertas, std::vector<std::string>{tmp / "proyectos/Puente.trv"});
}

TEST_F(Ciclo, CancelarNoCambiaNada) {
    estado.NombreProyecto = "Actual.trv";
    using Operacion = void (*)(const CarpetasPrograma&, EstadoProyecto&, PlataformaProyecto&);
    for (Operacion op :
         {&CrearNuevoProyecto, &AbrirProyecto, &SalvarComoProyecto, &EliminarProyecto}) {
        op(carpetas, estado, p);
        EXPECT_FALSE(p.espera);
    }
    EXPECT_EQ(estado.NombreProyecto, "Actual.trv");
    EXPECT_EQ(p.titulo, "sin titulo");
    EXPECT_TRUE(d.preguntas.empty());
    EXPECT_EQ(d.dialogosArchivo.size(), 4u);
}

TEST_F(Ciclo, AbrirEligeElArchivoEnSuCarpetaSinDejarloAbierto) {
    Proyecto(tmp / "otra/Galpon.trv");
    estado.BDProyecto = BaseDatos::Abrir(Plantilla()); // the former project's handle
    d.archivos = {En("otra", "Galpon.trv")};
    AbrirProyecto(carpetas, estado, p);
    EXPECT_EQ(estado.NombreProyecto, "Galpon.trv");
    EXPECT_EQ(RutaProyectoActual(carpetas, estado), tmp / "otra/Galpon.trv");
    EXPECT_FALSE(estado.BDProyecto); // let go; the windows open the new one
    EXPECT_TRUE(p.basesAbiertas.empty());
    EXPECT_TRUE(p.salvarComo);
    EXPECT_EQ(p.titulo, "Trevalo 6.0  Proyecto: [Galpon.trv]");
    EXPECT_EQ(p.recordados, std::vector<std::string>{tmp / "otra/Galpon.trv"});
    EXPECT_FALSE(p.espera);
    EXPECT_TRUE(d.preguntas.empty());
}

// A file that is missing or not a project: the store's error, and no project current, the
// former one's handle dropped. By the dialog, by path, and when a menu command asks.
TEST_F(Ciclo, AbrirUnArchivoQueNoEsProyectoLoDiceYNoDejaProyecto) {
    EscribirArchivo(tmp / "otra/Notas.trv", "no es un proyecto");
    const std::string falta = tmp / "otra/Falta.trv", notas = tmp / "otra/Notas.trv";
    const Pregunta noExiste = Error(53, "No existe el archivo: " + falta);
    const Pregunta noEs = Error(3343, "El archivo no es un proyecto de vigas: " + notas +
                                          " (file is not a database)");
    using Abrir = std::function<void()>;
    const std::tuple<Abrir, Pregunta, int> casos[] = {
        {[&] {
             d.archivos = {En("otra", "Falta.trv")};
             AbrirProyecto(carpetas, estado, p);
         },
         noExiste, 1},
        {[&] { EXPECT_FALSE(AbrirProyectoRuta(notas, estado, p)); }, noEs, 0},
        {[&] {
             estado.NombreProyecto.clear();
             d.archivos = {En("otra", "Notas.trv")};
             AnalizarVigas(carpetas, estado, p);
         },
         noEs, 1},
    };
    for (const auto& [abrir, mensaje, dialogos] : casos) {
        estado.NombreProyecto = "Anterior.trv";
        estado.BDProyecto = BaseDatos::Abrir(Plantilla());
        p.salvarComo = true;
        d.preguntas.clear();
        d.dialogosArchivo.clear();
        abrir();
        EXPECT_EQ(d.dialogosArchivo.size(), static_cast<std::size_t>(dialogos));
        ASSERT_EQ(d.preguntas.size(), 1u);
        EXPECT_EQ(d.preguntas[0], mensaje);
        EsperarSinProyecto();
    }
    EXPECT_EQ(p.ventanasProyecto, 0);
    EXPECT_TRUE(p.recordados.empty());
    EXPECT_EQ(LeerArchivo(Plantilla()), vacio);
}

TEST_F(Ciclo, ModificarYAnalizarPidenProyectoSoloSiNoHay) {
    Proyecto(tmp / "proyectos/Casa.trv");
    estado.NombreProyecto = "   ";
    d.archivos = {En("proyectos", "Casa.trv")};
    ModificarProyecto(carpetas, estado, p);
    const DialogoArchivo modificar{"Modificar los Datos Generales del Proyecto",
                                   ModoDialogo::Abrir,
                                   "Trevalo (*.trv)|*.trv",
                                   1,
                                   tmp / "proyectos",
                                   ""};
    EXPECT_EQ(d.dialogosArchivo, std::vector<DialogoArchivo>{modificar});
    EXPECT_EQ(p.basesAbiertas, std::vector<std::string>{tmp / "proyectos/Casa.trv"});
    EXPECT_EQ(p.datosGenerales, std::vector<bool>{false});

    AnalizarVigas(carpetas, estado, p); // a project now: no dialog
    EXPECT_EQ(d.dialogosArchivo.size(), 1u);
    EXPECT_EQ(p.ventanasProyecto, 1);
    EXPECT_EQ(p.basesAbiertas.size(), 1u); // the project window opens it itself

    estado.NombreProyecto.clear();
    AnalizarVigas(carpetas, estado, p); // cancelled: no window
    EXPECT_EQ(d.dialogosArchivo.size(), 2u);
    EXPECT_EQ(p.ventanasProyecto, 1);
    EXPECT_TRUE(d.preguntas.empty());
}

// The project chosen has gone (moved, deleted) by the time a window needs it: the error, no
// window, and no project current, so that nothing is written into the project open before.
TEST_F(Ciclo, UnProyectoQueYaNoAbreNoDejaEscribirEnElAnterior) {
    for (const bool modificar : {true, false}) {
        estado.NombreProyecto = "Movido.trv";
        estado.BDProyecto = BaseDatos::Abrir(Plantilla()); // the former project
        p.salvarComo = true;
        p.abreVentana = false; // the window cannot open the file
        d.preguntas.clear();
        if (modificar)
            ModificarProyecto(carpetas, estado, p);
        else
            AnalizarVigas(carpetas, estado, p);
        EXPECT_EQ(d.preguntas.size(), modificar ? 1u : 0u); // the window tells by itself
        EsperarSinProyecto();
    }
    EXPECT_TRUE(p.datosGenerales.empty());
    EXPECT_EQ(p.ventanasProyecto, 0);
    EXPECT_EQ(LeerArchivo(Plantilla()), vacio);
}

TEST_F(Ciclo, SalvarComoConservaLaBaseAnterior) {
    fs::copy_file(Plantilla(), tmp / "proyectos/Viejo.trv");
    EscribirArchivo(tmp / "otra/Nuevo.trv", "se pierde");
    estado.NombreProyecto = "Viejo.trv";
    ModificarProyecto(carpetas, estado, p); // opens the old file, no dialog
    d.archivos = {En("otra", "Nuevo.trv")};
    d.respuestas = {RespuestaSi};

    SalvarComoProyecto(carpetas, estado, p);

    ASSERT_EQ(d.preguntas.size(), 1u); // one question only, under the title of creating
    EXPECT_EQ(d.preguntas[0].Titulo, TituloCrear);
    EXPECT_EQ(d.preguntas[0].Texto,
              "Proyecto: Nuevo.trv ya Existe...    \n¿Desea Reemplazarlo?    ");
    EXPECT_EQ(LeerArchivo(tmp / "otra/Nuevo.trv"), vacio);
    EXPECT_EQ(LeerArchivo(tmp / "proyectos/Viejo.trv"), vacio);
    EXPECT_EQ(estado.NombreProyecto, "Nuevo.trv");
    EXPECT_EQ(p.titulo, "Trevalo 6.0  Proyecto: [Nuevo.trv]");
    // The handle stays on the old file, and the project is now the copy, where it was saved.
    EXPECT_EQ(p.basesAbiertas, std::vector<std::string>{tmp / "proyectos/Viejo.trv"});
    ASSERT_TRUE(estado.BDProyecto);
    EXPECT_EQ(estado.BDProyecto->Ruta(), tmp / "proyectos/Viejo.trv");
    EXPECT_EQ(RutaProyectoActual(carpetas, estado), tmp / "otra/Nuevo.trv");
    EXPECT_EQ(p.recordados, std::vector<std::string>{tmp / "otra/Nuevo.trv"});
}

// The current project is cleared when the deleted file has its title, in any folder and
// in any case (Spanish letters included); the current file itself is left alone.
struct CasoEliminar {
    const char* carpeta;
    const char* archivo;
    const char* actual;
    bool limpia;
};
class EliminarTitulo : public Ciclo, public ::testing::WithParamInterface<CasoEliminar> {};

TEST_P(EliminarTitulo, LimpiaSoloElProyectoDelMismoTitulo) {
    const CasoEliminar& c = GetParam();
    EscribirArchivo(tmp / "proyectos/Torre.trv", "actual");
    EscribirArchivo(tmp / (std::string(c.carpeta) + "/" + c.archivo), "x");
    estado.NombreProyecto = c.actual;
    p.salvarComo = true;
    d.archivos = {En(c.carpeta, c.archivo)};
    d.respuestas = {RespuestaSi, RespuestaSi};

    EliminarProyecto(carpetas, estado, p);

    EXPECT_FALSE(fs::exists(tmp / (std::string(c.carpeta) + "/" + c.archivo)));
    EXPECT_EQ(LeerArchivo(tmp / "proyectos/Torre.trv"), "actual");
    EXPECT_EQ(estado.NombreProyecto, c.limpia ? "" : c.actual);
    EXPECT_EQ(p.titulo, c.limpia ? "Trevalo 6.0  Proyecto: []" : "sin titulo");
    EXPECT_EQ(p.salvarComo, !c.limpia);
}

INSTANTIATE_TEST_SUITE_P(
    Casos, EliminarTitulo,
    ::testing::Values(CasoEliminar{"otra", "TORRE.trv", "Torre.trv", true},
                      CasoEliminar{"otra", "ampliación ñandú.trv", " AMPLIACIÓN ÑANDÚ.TRV", true},
                      CasoEliminar{"proyectos", "Otro.trv", "Torre.trv", false}));

// Delete asks twice, No the default of the first question; a file that has gone by then is
// told and the project stays current.
TEST_F(Ciclo, EliminarQueFallaMuestraElErrorYNoLimpia) {
    estado.NombreProyecto = "Perdido.trv";
    d.archivos = {En("proyectos", "Perdido.trv")}; // no such file
    d.respuestas = {RespuestaSi, RespuestaSi};
    EliminarProyecto(carpetas, estado, p);
    ASSERT_EQ(d.preguntas.size(), 3u);
    EXPECT_EQ(
        d.preguntas[0],
        (Pregunta{"Eliminar el Proyecto: Perdido.trv...    \n\n¿Esta Usted Seguro?",
                  "Eliminado Proyectos", BotonesMensaje::SiNo, IconoMensaje::Advertencia, 2}));
    EXPECT_EQ(
        d.preguntas[1],
        (Pregunta{"Perdido.trv...    \n\n¿Esta Usted Seguro de Eliminarlo?      ",
                  "Eliminado Proyectos", BotonesMensaje::SiNo, IconoMensaje::Advertencia, 1}));
    EXPECT_EQ(d.preguntas[2], (Pregunta{"No se encontró el archivo      ", "Error Número: 53",
                                        BotonesMensaje::Aceptar, IconoMensaje::Advertencia, 1}));
    EXPECT_EQ(estado.NombreProyecto, "Perdido.trv");
}

// A template that cannot be copied: the error names it, the general data are not shown (they
// would be written into the project open before), and no project is current.
TEST_F(Ciclo, PlantillaQueNoSeCopiaNoDejaEscribirEnElAnterior) {
    Proyecto(tmp / "proyectos/Anterior.trv");
    const std::string anterior = LeerArchivo(tmp / "proyectos/Anterior.trv");
    estado.NombreProyecto = "Anterior.trv";
    estado.BDProyecto = BaseDatos::Abrir(tmp / "proyectos/Anterior.trv");
    p.salvarComo = true;
    fs::remove(Plantilla());
    d.archivos = {En("proyectos", "Sin.trv")};
    CrearNuevoProyecto(carpetas, estado, p);
    EXPECT_FALSE(fs::exists(tmp / "proyectos/Sin.trv"));
    EXPECT_EQ(d.preguntas,
              std::vector<Pregunta>{Error(53, "No se encontró el archivo: " + Plantilla())});
    EXPECT_TRUE(p.datosGenerales.empty());
    EXPECT_TRUE(p.basesAbiertas.empty());
    EsperarSinProyecto();
    EXPECT_EQ(LeerArchivo(tmp / "proyectos/Anterior.trv"), anterior);
}

// The questions around a beam; the project's names are searched ignoring case.
class PreguntasViga : public Ciclo {
  protected:
    BuscarViga existe = [](const std::string& n) { return n == "V-1" || n == "v-1"; };
    int lecturas = 0;
    std::function<std::string()> leer = [this] {
        ++lecturas;
        return std::string("V-1");
    };
};

TEST_F(PreguntasViga, SalvarComo) {
    EXPECT_FALSE(AceptarSalvarComoViga("   ", existe, leer, estado, d));
    EXPECT_TRUE(d.preguntas.empty());

    // A name taken, in any case, is told before the selected beam is read.
    EXPECT_FALSE(AceptarSalvarComoViga(" v-1 ", existe, leer, estado, d));
    EXPECT_EQ(d.preguntas.size(), 1u);
    EXPECT_EQ(lecturas, 0);

    d.respuestas = {RespuestaNo, RespuestaSi};
    EXPECT_FALSE(AceptarSalvarComoViga("V-2 ", existe, leer, estado, d));
    EXPECT_TRUE(estado.NombreCopiaViga.empty());
    EXPECT_TRUE(AceptarSalvarComoViga("V-2 ", existe, leer, estado, d));
    EXPECT_NE(d.preguntas.back().Texto.find("Seleccionada: V-1"), std::string::npos);
    EXPECT_EQ(estado.NombreCopiaViga, "V-2");
    EXPECT_EQ(lecturas, 2);
}

TEST_F(PreguntasViga, Eliminar) {
    d.respuestas = {RespuestaSi, RespuestaNo, RespuestaSi, RespuestaSi};
    EXPECT_FALSE(ConfirmarEliminarViga("V-1", estado, d));
    EXPECT_TRUE(ConfirmarEliminarViga("V-1", estado, d));
    ASSERT_EQ(d.preguntas.size(), 4u);
    EXPECT_EQ(d.preguntas[0],
              (Pregunta{"Viga: V-1\nLa Viga Seleccionada Será Eliminada!       \n¿Esta Usted "
                        "Seguro?    ",
                        "Eliminando Vigas del Proyecto", BotonesMensaje::SiNo,
                        IconoMensaje::Advertencia, 2}));
    EXPECT_EQ(d.preguntas[1], (Pregunta{"Viga: V-1\n¿Esta Seguro de Eliminar la Viga?    ",
                                        "Eliminando Vigas del Proyecto", BotonesMensaje::SiNo,
                                        IconoMensaje::Advertencia, 1}));
    EXPECT_EQ(estado.Respuesta, RespuestaSi);
}

} // namespace
