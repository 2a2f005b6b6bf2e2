// The export to the drawing program's project, table by table against values worked by hand:
// stirrup spacings rounded ties to even (d / 2 = 0.225 gives 0.22), seismic ends of two
// depths, a negative centre length on a short deep span; the settled behaviour of the form's
// path; targets that must be left as they were.

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <ctime>
#include <filesystem>

#include "analysis/AnalisisVigasP.h"
#include "comun/Aserciones.h"
#include "comun/Carpeta.h"
#include "comun/DialogosGuion.h"
#include "comun/Proyecto.h"
#include "comun/ProyectoCAD.h"
#include "drawing/GeometriaPlot.h"
#include "output/ExportarCAD.h"
#include "store/CicloProyecto.h"

namespace trevalo {
namespace {

using namespace prueba;
namespace fs = std::filesystem;

// Two spans of 5 m (0.30 x 0.50) and 1 m (0.25 x 0.60), columns 0.30 wide at the inner joint
// and half that at the ends, supported at every joint, a uniform load on both.
VigaActual VigaCorta(const std::string& nombre) {
    VigaActual v = VigaDeTramos({5.0, 1.0});
    v.NombreVigaActual = nombre;
    PonerTipos(v, {{0.30, 0.50}, {0.25, 0.60}});
    v.VT(2) = 2;
    PonerApoyos(v, {{1, ApoyoFijo}, {2, RodilloEnX}, {3, RodilloEnX}});
    const double izq[] = {0, 0.15, 0.15}, der[] = {0.15, 0.15, 0}, hc[] = {0.4, 0.45, 0.5};
    for (long j = 1; j <= 3; ++j) {
        v.LIzq(j) = izq[j - 1];
        v.LDer(j) = der[j - 1];
        v.HC(j) = hc[j - 1];
        v.NombreEje(j) = std::string(1, char('A' + j - 1));
    }
    v.W1(1) = v.W1(2) = 2000;
    return v;
}

VigaActual VigaAcero(const std::string& nombre) {
    VigaActual v = VigaPrueba(nombre, 0);
    v.OpcionConcreto = 1;
    PonerTipos(v, {{53.8, 8360}});
    return v;
}

class ExportarCADTest : public testing::Test {
  protected:
    // The project "Obra.trv" with the beams given, open as the project window holds it.
    void Abrir(const std::vector<VigaActual>& vigas, bool sismico = false) {
        ProyectoActual ajustes = AjustesPrueba();
        ajustes.Cliente = "Cliente \"de\" prueba";
        ajustes.OpcionEstribos = sismico;
        CrearProyecto(carpetas.RutaProyectos + "/Obra.trv", vigas, ajustes);
        estado.NombreProyecto = "Obra.trv";
        AbrirProyectoArchivo(RutaProyectoActual(carpetas, estado), estado);
        LeerGeneralProyecto(*estado.BDProyecto, proyecto);
        lista.emplace(estado.BDProyecto->AbrirRecordset(ConsultaListaConcreto));
        // The grid: every beam of the project window's list, in its order.
        for (auto& rs = *estado.RsGeneralViga; !rs.AlFinal(); rs.MoveNext())
            filas.push_back({false, rs.Campo("NombreViga").Texto()});
    }

    // Marks the rows given (from 1) and exports with `activa` the grid's active row.
    long Exportar(std::initializer_list<int> marcadas, int activa, OpcionesCAD opciones = {}) {
        for (auto& f : filas) f.Marcada = false;
        for (int r : marcadas) filas[static_cast<std::size_t>(r - 1)].Marcada = true;
        ModeloCAD modelo{estado, proyecto, viga, resultados, vista, *lista};
        PasosCAD pasos{[this](bool v) { panel.push_back(v); },
                       [this](double p) { progreso.push_back(p); }};
        return ExportarCAD70(modelo, d, carpetas, filas, activa, opciones, pasos);
    }

    // Answers: the target chosen, then Yes to the question before appending.
    void Elegir(const std::string& ruta) {
        d.archivos.push_back({false, ruta, fs::path(ruta).filename().string()});
        d.respuestas.push_back(RespuestaSi);
    }

    Recordset Leer(const std::string& sql, const Parametros& p = {}) {
        return BaseDatos::Abrir(destino).AbrirRecordset(sql, p);
    }

    long Cuenta(const std::string& tabla, const std::string& nombre) {
        return Leer("SELECT * FROM " + tabla + " WHERE Nombre=?", {nombre}).RecordCount();
    }

    // The steel of the beam as the design walk of the export gives it after its analysis.
    ResumenAcero AceroDe(VigaActual v, bool sismico = false) {
        ProyectoActual p = AjustesPrueba();
        p.OpcionEstribos = sismico;
        ResultadosViga r;
        AnalizarViga({}, p, v, r);
        GeometriaJuntas g;
        GeometriaPlot(v, g);
        ResumenAcero a;
        DisenoParaCAD(p, v, r, g.XPlot, g.YPlot, 2, a);
        return a;
    }

    CarpetaTemporal tmp;
    CarpetasPrograma carpetas{"6.0",
                              TREVALO_RUTA_PROGRAMA,
                              tmp / "Korvel Software/Trevalo 6.0",
                              "",
                              tmp.Ruta(),
                              "",
                              "",
                              '.',
                              ','};
    std::string destino = tmp / "Obra.Cad";
    EstadoProyecto estado;
    ProyectoActual proyecto;
    VigaActual viga;
    ResultadosViga resultados;
    EstadoPloteos vista;
    std::optional<Recordset> lista;
    std::vector<FilaCAD> filas;
    DialogosGuion d;
    std::vector<bool> panel;
    std::vector<double> progreso;
};

std::string Hoy() {
    const std::time_t t = std::time(nullptr);
    char texto[16];
    std::strftime(texto, sizeof texto, "%d/%m/%Y", std::localtime(&t));
    return texto;
}

TEST_F(ExportarCADTest, NewProjectHoldsTheProjectRowAndEveryTableOfTheBeam) {
    const std::string nombre = "V-1 \"a\" 'ñ'";
    Abrir({VigaCorta(nombre), VigaPrueba("V-2", 1)});
    vista.EstacionesDiseno = 2;
    d.archivos.push_back({false, destino, "Obra.Cad"});
    d.respuestas = {RespuestaSi};
    EXPECT_EQ(Exportar({1}, 1, {true, false}), 1);

    const DialogoArchivo esperado{"Crear Nuevo Proyecto en Korvel-CAD Estructural 8.0",
                                  ModoDialogo::Salvar,
                                  "Korvel-Cad|*.Cad",
                                  1,
                                  tmp / "Korvel Software/Korvel-CAD8/Proyectos",
                                  tmp / "Obra.cad",
                                  false};
    EXPECT_EQ(d.dialogosArchivo, std::vector<DialogoArchivo>{esperado});
    const std::vector<Pregunta> preguntas{
        {"Obra.Cad       \nAnexar las Vigas Seleccionadas a Korvel-CAD Estructural?       ",
         "Exportar a Korvel-CAD Estructural 8.0", BotonesMensaje::SiNo, IconoMensaje::Pregunta, 1},
        {"Se Exportaron (1) Viga(s) con Éxito a Korvel-CAD Estructural8.0!        \n",
         "Exportar a Korvel-CAD Estructural 8.0", BotonesMensaje::Aceptar,
         IconoMensaje::Informacion, 1}};
    EXPECT_EQ(d.preguntas, preguntas);
    EXPECT_EQ(panel, (std::vector<bool>{true, false}));
    EXPECT_EQ(progreso, (std::vector<double>{50, 100}));

    auto p = Leer("SELECT * FROM Proyecto");
    ASSERT_EQ(p.RecordCount(), 1);
    const std::vector<std::pair<const char*, Valor>> proyectoEsperado{
        {"Proyecto", "Edificio de prueba"},
        {"Cliente", "Cliente \"de\" prueba"},
        {"Propietario", "Propietario de prueba"},
        {"Responsable", "Calculista de prueba"},
        {"Fecha", Hoy()},
        {"FC", 210.0},
        {"FY", 4200.0},
        {"RVigas", 0.025},
        {"RColumnas", 0.025},
        {"DVigas", 0.05},
        {"NormaSolape", 1},
        {"RVigasR", 0.04},
        {"OpcionDiametro", 0},
        {"OpcionEspesor", 1},
        {"ValorDatum", 0},
        {"NMAX", 0},
        {"LMax", 12}};
    for (const auto& [campo, valor] : proyectoEsperado) EXPECT_EQ(p.Campo(campo), valor) << campo;

    auto datos = Leer("SELECT * FROM VigaDatos");
    ASSERT_EQ(datos.RecordCount(), 1);
    const std::vector<std::pair<const char*, Valor>> datosEsperados{{"Nombre", nombre},
                                                                    {"NT", 2},
                                                                    {"EscViga", 50},
                                                                    {"EscCorte", 20},
                                                                    {"EscPlano", 50},
                                                                    {"Nivel", ""},
                                                                    {"Portico", ""},
                                                                    {"Repeticiones", 0},
                                                                    {"NodoSismico", 0},
                                                                    {"SepD", 0},
                                                                    {"OpcionRecubrimiento", 0},
                                                                    {"OpcionNervio", 0},
                                                                    {"SepN", 0},
                                                                    {"DiametroN", "3/8\""},
                                                                    {"B", 0.3},
                                                                    {"H", 0.5},
                                                                    {"Nervios", 1},
                                                                    {"Ramas", 1},
                                                                    {"ESolape", 1}};
    for (const auto& [campo, valor] : datosEsperados) EXPECT_EQ(datos.Campo(campo), valor) << campo;

    // Spans: length and the size of each span's own type.
    const double tramos[2][3] = {{5.0, 0.30, 0.50}, {1.0, 0.25, 0.60}};
    auto rt = Leer("SELECT * FROM VigaTramos WHERE Nombre=? ORDER BY Numero", {nombre});
    ASSERT_EQ(rt.RecordCount(), 2);
    for (int t = 0; t < 2; rt.MoveNext(), ++t) {
        EXPECT_EQ(rt.Campo("Numero").Entero(), t + 1);
        EXPECT_DOUBLE_EQ(rt.Campo("L").Doble(), tramos[t][0]);
        EXPECT_DOUBLE_EQ(rt.Campo("B").Doble(), tramos[t][1]);
        EXPECT_DOUBLE_EQ(rt.Campo("H").Doble(), tramos[t][2]);
        EXPECT_EQ(rt.Campo("Delta").Entero(), 0);
    }

    // Axes on beams: a beam support wherever a column has width.
    const double ejes[3][4] = {
        {0, 0.15, 0.15, 0.4}, {0.15, 0.15, 0.30, 0.45}, {0.15, 0, 0.15, 0.5}};
    auto re = Leer("SELECT * FROM VigaEjes WHERE Nombre=? ORDER BY Numero", {nombre});
    ASSERT_EQ(re.RecordCount(), 3);
    for (int j = 0; j < 3; re.MoveNext(), ++j) {
        EXPECT_EQ(re.Campo("Eje").Texto(), std::string(1, char('A' + j)));
        EXPECT_EQ(re.Campo("OpcionColInf").Entero(), 0);
        EXPECT_DOUBLE_EQ(re.Campo("LIzqInf").Doble(), ejes[j][0]);
        EXPECT_DOUBLE_EQ(re.Campo("LDerInf").Doble(), ejes[j][1]);
        EXPECT_DOUBLE_EQ(re.Campo("B").Doble(), ejes[j][2]);
        EXPECT_DOUBLE_EQ(re.Campo("H").Doble(), ejes[j][3]);
        EXPECT_EQ(re.Campo("OpcionViga").Entero(), 1);
        for (const char* cero : {"OpcionColSup", "LIzqSup", "LDerSup", "AlineacionV"})
            EXPECT_EQ(re.Campo(cero).Entero(), 0) << cero;
    }

    const ResumenAcero a = AceroDe(VigaCorta(nombre));
    auto rr = Leer("SELECT * FROM VigaRefTeorico WHERE Nombre=? ORDER BY Tramo", {nombre});
    ASSERT_EQ(rr.RecordCount(), 2);
    for (long t = 1; t <= 2; rr.MoveNext(), ++t) {
        EXPECT_EQ(rr.Campo("Numero").Entero(), 0);
        EXPECT_EQ(rr.Campo("AsSupIzquierda").Doble(), a.AsSupIzquierda(t));
        EXPECT_EQ(rr.Campo("AsSupCentro").Doble(), a.AsSupCentro(t));
        EXPECT_EQ(rr.Campo("AsSupDerecha").Doble(), a.AsSupDerecha(t));
        EXPECT_EQ(rr.Campo("AsInfIzquierda").Doble(), a.AsInfIzquierda(t));
        EXPECT_EQ(rr.Campo("AsInfCentro").Doble(), a.AsInfCentro(t));
        EXPECT_EQ(rr.Campo("AsInfDerecha").Doble(), a.AsInfDerecha(t));
    }
    EXPECT_GT(a.AsInfIzquierda(1) + a.AsSupDerecha(1), 0); // the beam carries steel

    // The model is back on the beam named last, the list where it stood.
    EXPECT_EQ(viga.NombreVigaActual, nombre);
    EXPECT_EQ(lista->AbsolutePosition(), 0);
}

// d = h - D8; spacings rounded to 2 decimals, ties to even; seismic ends over 2 h. Span 2:
// d = 0.6 - 0.05 is 0.54999... in doubles, so d / 2 rounds to 0.27 and d / 4 to 0.14.
TEST_F(ExportarCADTest, StirrupsOfBothLayouts) {
    struct Caso {
        bool sismico;
        double filas[2][6]; // Izq, Centro, Der, DistIzq, DistCentro, DistDer
    };
    const Caso casos[] = {
        {false, {{0.22, 0.22, 0.22, 0, 4.7, 0}, {0.27, 0.27, 0.27, 0, 0.7, 0}}},
        {true, {{0.11, 0.22, 0.11, 1.0, 2.7, 1.0}, {0.14, 0.27, 0.14, 1.2, -1.7, 1.2}}},
    };
    for (const Caso& c : casos) {
        CarpetaTemporal otra;
        carpetas.RutaProyectos = otra.Ruta();
        destino = otra / "Obra.Cad";
        filas.clear();
        Abrir({VigaCorta("V-1")}, c.sismico);
        Elegir(destino);
        ASSERT_EQ(Exportar({1}, 1), 1);
        EXPECT_EQ(Leer("SELECT * FROM VigaDatos").Campo("NodoSismico").Logico(), c.sismico);
        auto rs = Leer("SELECT * FROM VigaEstribos ORDER BY Tramo");
        ASSERT_EQ(rs.RecordCount(), 2);
        for (int t = 0; t < 2; rs.MoveNext(), ++t) {
            const char* campos[] = {"ESeparacionIzq", "ESeparacionCentro", "ESeparacionDer",
                                    "DistIzq",        "DistCentro",        "DistDer"};
            for (int k = 0; k < 6; ++k)
                EXPECT_NEAR(rs.Campo(campos[k]).Doble(), c.filas[t][k], 1e-12)
                    << (c.sismico ? "seismic " : "") << campos[k] << " span " << t + 1;
            for (const char* ramas : {"ERamasIzq", "ERamasCentro", "ERamasDer"})
                EXPECT_EQ(rs.Campo(ramas).Entero(), 2);
            for (const char* diametro : {"DiametroL", "DiametroC", "DiametroR"})
                EXPECT_EQ(rs.Campo(diametro).Texto(), "3/8\"");
        }
    }
}

// Appending: the target made from the template when missing, Proyecto left empty; on
// columns; a second export of a beam replaces its rows and leaves the others byte for byte.
TEST_F(ExportarCADTest, AppendReplacesOnlyTheBeamExported) {
    Abrir({VigaCorta("V-1"), VigaPrueba("V-2", 2)});
    Elegir(destino);
    ASSERT_EQ(Exportar({2}, 2, {false, true}), 1);
    EXPECT_EQ(d.dialogosArchivo.at(0).Titulo, "Abrir un Proyecto en Korvel-CAD Estructural 8.0");
    EXPECT_EQ(d.dialogosArchivo.at(0).Modo, ModoDialogo::Abrir);
    EXPECT_TRUE(d.dialogosArchivo.at(0).CrearSiFalta);
    EXPECT_EQ(Leer("SELECT * FROM Proyecto").RecordCount(), 0);
    auto ejes = Leer("SELECT * FROM VigaEjes WHERE Nombre='V-2'");
    for (; !ejes.AlFinal(); ejes.MoveNext()) {
        EXPECT_EQ(ejes.Campo("OpcionColInf").Entero(), 1);
        EXPECT_EQ(ejes.Campo("OpcionViga").Entero(), 0);
    }
    Elegir(destino);
    ASSERT_EQ(Exportar({1}, 1), 1);
    const std::string otras = VolcadoCAD(destino, "V-1");
    const long tramos = Cuenta("VigaTramos", "V-1");
    Elegir(destino);
    ASSERT_EQ(Exportar({1}, 1), 1);
    EXPECT_EQ(VolcadoCAD(destino, "V-1"), otras);
    EXPECT_EQ(Cuenta("VigaTramos", "V-1"), tramos);
    EXPECT_EQ(Cuenta("VigaRefTeorico", "V-1"), 2);
    EXPECT_EQ(Cuenta("VigaDatos", "V-1"), 1);
}

// Settled: the steel of the active row, under its name, for every marked row.
TEST_F(ExportarCADTest, ActiveRowDecidesTheTheoreticalSteel) {
    Abrir({VigaCorta("V-1"), VigaCorta("V-2")});
    Elegir(destino);
    ASSERT_EQ(Exportar({1, 2}, 1), 2);
    EXPECT_EQ(Cuenta("VigaDatos", "V-1"), 1);
    EXPECT_EQ(Cuenta("VigaDatos", "V-2"), 1);
    EXPECT_EQ(Cuenta("VigaRefTeorico", "V-1"), 4); // repeated
    EXPECT_EQ(Cuenta("VigaRefTeorico", "V-2"), 0);
    EXPECT_EQ(viga.NombreVigaActual, "V-1");
}

// Settled: grid positions used on the concrete list. Rows A (steel), B, C: row 1 exports B
// while the clearing goes to A; row 3 lies beyond the two concrete beams.
TEST_F(ExportarCADTest, GridPositionsAreTakenOnTheConcreteList) {
    Abrir({VigaAcero("A"), VigaCorta("B"), VigaCorta("C")});
    fs::copy_file(carpetas.RutaPrograma + "/Imagen/ImagenCAD8.kvl", destino);
    BaseDatos::Abrir(destino).Ejecutar("INSERT INTO VigaCortes (Nombre) VALUES ('a')");
    Elegir(destino);
    ASSERT_EQ(Exportar({1}, 2), 1);
    EXPECT_EQ(Cuenta("VigaCortes", "A"), 0); // cleared by the grid's name, case ignored
    EXPECT_EQ(Cuenta("VigaDatos", "A"), 0);
    EXPECT_EQ(Cuenta("VigaDatos", "B"), 1);

    const std::string antes = LeerArchivo(destino);
    Elegir(destino);
    EXPECT_TREVALO_ERROR(Exportar({3}, 3), ErrSinRegistroActual, "No hay ningún registro activo.");
    EXPECT_EQ(LeerArchivo(destino), antes);
    EXPECT_EQ(panel.back(), false);
}

// The dialogs: Cancel ends with nothing written; a new project over an existing file asks,
// No shows the dialog again; No to the question before appending stops.
TEST_F(ExportarCADTest, CancelAndNoLeaveEverythingAsItWas) {
    Abrir({VigaCorta("V-1")});
    EXPECT_EQ(Exportar({1}, 1, {true, false}), 0);
    EXPECT_EQ(Exportar({1}, 1), 0);
    EXPECT_EQ(d.dialogosArchivo.size(), 2u);
    EXPECT_TRUE(d.preguntas.empty());
    EXPECT_FALSE(fs::exists(destino));

    EscribirArchivo(destino, "antes");
    d.archivos = {{false, destino, "Obra.Cad"}, {false, destino, "Obra.Cad"}};
    d.respuestas = {RespuestaNo, RespuestaSi, RespuestaNo};
    EXPECT_EQ(Exportar({1}, 1, {true, false}), 0);
    EXPECT_EQ(d.dialogosArchivo.size(), 4u);
    const Pregunta reemplazar{
        "El Proyecto: Obra.Cad  Ya Existe...       \n¿Desea Usted Reemplazarlo?        \n",
        "Crear Proyecto en Korvel-CAD Estructural", BotonesMensaje::SiNo, IconoMensaje::Advertencia,
        2};
    ASSERT_EQ(d.preguntas.size(), 3u);
    EXPECT_EQ(d.preguntas[0], reemplazar);
    EXPECT_EQ(d.preguntas[1], reemplazar);
    // Replaced by the template; No to appending leaves it empty.
    EXPECT_EQ(LeerArchivo(destino), LeerArchivo(carpetas.RutaPrograma + "/Imagen/ImagenCAD8.kvl"));
    EXPECT_TRUE(panel.empty());
}

// A target that is not the drawing program's project, or is read-only, is refused before
// anything is written.
TEST_F(ExportarCADTest, RefusedTargetsStayAsTheyWere) {
    Abrir({VigaCorta("V-1")});
    const std::string texto = tmp / "Texto.Cad", ajeno = tmp / "Ajeno.Cad",
                      soloLectura = tmp / "Fijo.Cad";
    EscribirArchivo(texto, "no es una base de datos");
    fs::copy_file(carpetas.RutaPrograma + "/Imagen/ImagenViga.kvl", ajeno);
    fs::copy_file(carpetas.RutaPrograma + "/Imagen/ImagenCAD8.kvl", soloLectura);
    ::chmod(soloLectura.c_str(), 0444);
    const std::string noEs = "El archivo no es un proyecto de Korvel-CAD Estructural 8.0: ";
    struct Caso {
        std::string ruta;
        bool nuevo;
        long numero;
        std::string texto;
    };
    const Caso casos[] = {
        {ajeno, false, ErrFormatoNoReconocido, noEs + ajeno},
        {soloLectura, false, ErrPermisoDenegado, "El archivo es de sólo lectura: " + soloLectura},
        {soloLectura, true, ErrPermisoDenegado, "El archivo es de sólo lectura: " + soloLectura},
    };
    for (const Caso& c : casos) {
        const std::string antes = LeerArchivo(c.ruta);
        d.archivos = {{false, c.ruta, fs::path(c.ruta).filename().string()}};
        d.respuestas = {RespuestaSi, RespuestaSi};
        EXPECT_TREVALO_ERROR(Exportar({1}, 1, {c.nuevo, false}), c.numero, c.texto);
        EXPECT_EQ(LeerArchivo(c.ruta), antes) << c.ruta;
    }
    d.archivos = {{false, texto, "Texto.Cad"}};
    d.respuestas = {RespuestaSi};
    try {
        Exportar({1}, 1);
        ADD_FAILURE() << "a text file taken as a target";
    } catch (const ErrorTrevalo& e) {
        EXPECT_EQ(e.Numero(), ErrFormatoNoReconocido);
        EXPECT_EQ(e.Descripcion().rfind(noEs + texto + " (", 0), 0u) << e.Descripcion();
    }
    EXPECT_EQ(LeerArchivo(texto), "no es una base de datos");
}

} // namespace
} // namespace trevalo
