#include "output/ExportarCAD.h"

#include <ctime>
#include <filesystem>
#include <utility>

#include "analysis/AnalisisVigasP.h"
#include "drawing/GeometriaPlot.h"
#include "model/Redondeo.h"
#include "store/BaseDatos.h"
#include "store/CicloProyecto.h"
#include "store/Nombres.h"

namespace trevalo {

const char* const TablasVigaCAD[13] = {"VigaAuxiliares",
                                       "VigaCortes",
                                       "VigaDatos",
                                       "VigaEjes",
                                       "VigaEstribos",
                                       "VigaIguales",
                                       "VigaParamento",
                                       "VigaRefTeorico",
                                       "VigaRefuerzoEjeInferior",
                                       "VigaRefuerzoEjeSuperior",
                                       "VigaRefuerzoTramoInferior",
                                       "VigaRefuerzoTramoSuperior",
                                       "VigaTramos"};

namespace {

// The bar size the drawing program starts every stirrup and rib with.
const std::string Diametro38 = "3/8\"";

using Campos = std::vector<std::pair<const char*, Valor>>;

// One new row of `tabla`, every value a bound parameter.
void Agregar(BaseDatos& bd, const std::string& tabla, const Campos& campos) {
    std::string nombres, marcas;
    Parametros valores;
    for (const auto& [campo, valor] : campos) {
        if (!valores.empty()) {
            nombres += ", ";
            marcas += ", ";
        }
        nombres += campo;
        marcas += "?";
        valores.push_back(valor);
    }
    bd.Ejecutar("INSERT INTO " + tabla + " (" + nombres + ") VALUES (" + marcas + ")", valores);
}

// Two decimals, ties to the even digit (the stirrup spacings as the drawing program reads).
double Redondear2(double valor) {
    return static_cast<double>(CI(valor * 100)) / 100.0;
}

std::string Hoy() {
    const std::time_t ahora = std::time(nullptr);
    std::tm local{};
    localtime_r(&ahora, &local);
    char texto[16];
    std::strftime(texto, sizeof texto, "%d/%m/%Y", &local);
    return texto;
}

// The stirrups of span t: closer spacing over two depths at each end when seismic.
Campos EstribosTramo(const VigaActual& v, const ProyectoActual& p, long t) {
    const double h = v.T1(CI(v.VT(t)));
    const double d = h - p.D8;
    const bool sismico = p.OpcionEstribos;
    const double libre = v.LT(t) - (v.LDer(t) + v.LIzq(t + 1));
    const double extremo = sismico ? Redondear2(d / 4) : Redondear2(d / 2);
    const double dist = sismico ? 2 * h : 0.0;
    return {{"Nombre", v.NombreVigaActual},
            {"Tramo", t},
            {"ESeparacionIzq", extremo},
            {"ERamasIzq", 2},
            {"ESeparacionCentro", Redondear2(d / 2)},
            {"ERamasCentro", 2},
            {"ESeparacionDer", extremo},
            {"ERamasDer", 2},
            {"DistIzq", dist},
            {"DistCentro", sismico ? libre - 4 * h : libre},
            {"DistDer", dist},
            {"DiametroL", Diametro38},
            {"DiametroC", Diametro38},
            {"DiametroR", Diametro38}};
}

// Nothing is written to a file whose read-only mark is set.
void ExigirEscritura(const std::string& ruta) {
    namespace fs = std::filesystem;
    std::error_code ec;
    const fs::perms permisos = fs::status(ruta, ec).permissions();
    if (!ec && (permisos & fs::perms::owner_write) == fs::perms::none)
        throw ErrorTrevalo(ErrPermisoDenegado, "El archivo es de sólo lectura: " + ruta);
}

BaseDatos AbrirProyectoCAD(const std::string& ruta) {
    ExigirEscritura(ruta);
    std::vector<std::string> tablas{"Proyecto"};
    tablas.insert(tablas.end(), std::begin(TablasVigaCAD), std::end(TablasVigaCAD));
    return AbrirBaseConTablas(ruta, tablas,
                              "El archivo no es un proyecto de Korvel-CAD Estructural 8.0: ");
}

Pregunta PreguntaReemplazar(const std::string& titulo) {
    return {"El Proyecto: " + titulo +
                "  Ya Existe...       \n¿Desea Usted Reemplazarlo?        \n",
            "Crear Proyecto en Korvel-CAD Estructural", BotonesMensaje::SiNo,
            IconoMensaje::Advertencia, 2};
}

Pregunta PreguntaAnexar(const std::string& titulo) {
    return {titulo + "       \nAnexar las Vigas Seleccionadas a Korvel-CAD Estructural?       ",
            TituloExportarCAD, BotonesMensaje::SiNo, IconoMensaje::Pregunta, 1};
}

Pregunta MensajeExportadas(long cuenta) {
    return {"Se Exportaron (" + std::to_string(cuenta) +
                ") Viga(s) con Éxito a Korvel-CAD Estructural8.0!        \n",
            TituloExportarCAD, BotonesMensaje::Aceptar, IconoMensaje::Informacion, 1};
}

// Steps 2 and 3 of the export: the target chosen, made from the template when new or missing.
// Cancelled: nothing chosen.
ArchivoElegido ElegirDestino(const ModeloCAD& m, Dialogos& dialogos,
                             const CarpetasPrograma& carpetas, bool nuevo) {
    const std::string proyecto = RutaProyectoActual(carpetas, m.estado);
    const std::string plantilla = carpetas.RutaPrograma + "/Imagen/ImagenCAD8.kvl";
    DialogoArchivo dialogo;
    dialogo.Modo = nuevo ? ModoDialogo::Salvar : ModoDialogo::Abrir;
    dialogo.Titulo = nuevo ? "Crear Nuevo Proyecto en Korvel-CAD Estructural 8.0"
                           : "Abrir un Proyecto en Korvel-CAD Estructural 8.0";
    dialogo.Filtro = FiltroProyectosCAD;
    dialogo.Carpeta = CarpetaProyectosCAD(carpetas);
    dialogo.Nombre =
        proyecto.substr(0, proyecto.size() - std::min<std::size_t>(3, proyecto.size())) + "cad";
    dialogo.CrearSiFalta = !nuevo;
    for (;;) {
        ArchivoElegido elegido = dialogos.Archivo(dialogo);
        if (elegido.Cancelado) return elegido;
        if (!ExisteArchivoDisco(elegido.FileName)) {
            CopiarArchivoDisco(plantilla, elegido.FileName);
            return elegido;
        }
        if (!nuevo) return elegido;
        if (dialogos.Mensaje(PreguntaReemplazar(elegido.FileTitle)) == RespuestaSi) {
            ExigirEscritura(elegido.FileName);
            CopiarArchivoDisco(plantilla, elegido.FileName);
            return elegido;
        }
    }
}

// Step 6: the project's row and empty tables of a new project.
void IniciarProyectoCAD(BaseDatos& cad, const ProyectoActual& proyecto) {
    Transaccion transaccion(cad);
    cad.Ejecutar("DELETE FROM Proyecto");
    EscribirProyectoCAD(cad, proyecto, Hoy());
    for (const char* tabla : TablasVigaCAD) cad.Ejecutar(std::string("DELETE FROM ") + tabla);
    transaccion.Confirmar();
}

// Step 8 for the marked row r, in one transaction.
void ExportarFila(ModeloCAD& m, BaseDatos& cad, const FilaCAD& fila, long r, int filaActiva,
                  bool sobreColumnas) {
    Transaccion transaccion(cad);
    LimpieRegistrosViga(cad, Recortado(fila.Nombre));
    m.listaConcreto.AbsolutePosition(r - 1);
    m.viga.NombreVigaActual = m.listaConcreto.Campo("NombreViga").Texto();
    LeerViga(m.estado, m.viga);
    AnalizarViga(LectorGeneralProyecto(*m.estado.BDProyecto), m.proyecto, m.viga, m.resultados);
    EscribirVigaCAD(cad, m.viga, m.proyecto, sobreColumnas);
    // The steel is that of the beam of the active row, with the results in memory.
    Recordset& lista = ListaVigasAbierta(m.estado);
    lista.AbsolutePosition(filaActiva - 1);
    m.viga.NombreVigaActual = lista.Campo("NombreViga").Texto();
    LeerViga(m.estado, m.viga);
    GeometriaPlot(m.viga, m.vista);
    ResumenAcero acero;
    DisenoParaCAD(m.proyecto, m.viga, m.resultados, m.vista.XPlot, m.vista.YPlot,
                  m.vista.EstacionesDiseno, acero);
    EscribirRefTeorico(cad, m.viga.NombreVigaActual, m.viga.NT, acero);
    transaccion.Confirmar();
}

// Step 10, on every way out once the target is open: the list of concrete beams back where it
// stood and the beam named in the model read again; errors ignored.
struct RestaurarModelo {
    ModeloCAD& m;
    long posicion;
    ~RestaurarModelo() {
        try {
            if (posicion >= 0) m.listaConcreto.AbsolutePosition(posicion);
            LeerViga(m.estado, m.viga);
        } catch (const ErrorTrevalo&) {
        }
    }
};

// The progress panel hidden however the writing ends.
struct OcultarPanel {
    const PasosCAD& pasos;
    ~OcultarPanel() {
        if (pasos.Panel) pasos.Panel(false);
    }
};

// The names of the beams to export as GeneralViga stores them: those named, or every
// concrete beam.
std::vector<std::string> VigasConcreto(BaseDatos& bd, const std::vector<std::string>& nombres) {
    std::vector<std::string> vigas;
    if (nombres.empty())
        for (auto rs = bd.AbrirRecordset(ConsultaListaConcreto); !rs.AlFinal(); rs.MoveNext())
            vigas.push_back(rs.Campo("NombreViga").Texto());
    for (const std::string& nombre : nombres) {
        vigas.push_back(NombreVigaGuardado(bd, nombre));
        if (bd.AbrirRecordset("SELECT OpcionConcreto FROM GeneralViga WHERE NombreViga=?",
                              {vigas.back()})
                .Campo("OpcionConcreto")
                .Logico())
            throw ErrorTrevalo(ErrLlamadaNoValida,
                               "La viga es de acero; sólo las vigas de concreto se exportan a "
                               "Korvel-CAD Estructural 8.0: " +
                                   vigas.back());
    }
    return vigas;
}

// One beam with the steel of its own analysis, under its own name.
void ExportarVigaPropia(EstadoProyecto& estado, ProyectoActual& proyecto, BaseDatos& cad,
                        const std::string& nombre, bool sobreColumnas, double estaciones) {
    VigaActual viga;
    viga.NombreVigaActual = nombre;
    LeerViga(estado, viga);
    ResultadosViga resultados;
    AnalizarViga(LectorGeneralProyecto(*estado.BDProyecto), proyecto, viga, resultados);
    LimpieRegistrosViga(cad, nombre);
    EscribirVigaCAD(cad, viga, proyecto, sobreColumnas);
    GeometriaJuntas geometria;
    GeometriaPlot(viga, geometria);
    ResumenAcero acero;
    DisenoParaCAD(proyecto, viga, resultados, geometria.XPlot, geometria.YPlot, estaciones, acero);
    EscribirRefTeorico(cad, nombre, viga.NT, acero);
}

// A new project in the making beside its target: removed unless it took the target's place.
struct ProyectoEnCurso {
    std::string ruta;
    ~ProyectoEnCurso() {
        std::error_code ec;
        if (!ruta.empty()) std::filesystem::remove(ruta, ec);
    }
};

} // namespace

std::string CarpetaProyectosCAD(const CarpetasPrograma& carpetas) {
    return std::filesystem::path(carpetas.RutaBase).parent_path().string() +
           "/Korvel-CAD8/Proyectos";
}

void LimpieRegistrosViga(BaseDatos& cad, const std::string& nombre) {
    for (const char* tabla : TablasVigaCAD)
        cad.Ejecutar(std::string("DELETE FROM ") + tabla + " WHERE Nombre=? COLLATE ESPANOL",
                     {nombre});
}

void EscribirProyectoCAD(BaseDatos& cad, const ProyectoActual& p, const std::string& fecha) {
    Agregar(cad, "Proyecto",
            {{"Proyecto", p.Proyecto},
             {"Cliente", p.Cliente},
             {"Propietario", p.Propietario},
             {"Responsable", p.Calculista},
             {"Fecha", fecha},
             {"FC", p.FC},
             {"FY", p.FY},
             {"RVigas", 0.025},
             {"RColumnas", 0.025},
             {"DVigas", 0.05},
             {"NormaSolape", true},
             {"RVigasR", 0.04}, // 0.05 is written first and replaced at once
             {"OpcionDiametro", 0},
             {"OpcionEspesor", true},
             {"ValorDatum", 0},
             {"NMAX", 0},
             {"LMax", 12}});
}

void EscribirVigaCAD(BaseDatos& cad, const VigaActual& v, const ProyectoActual& p,
                     bool sobreColumnas) {
    const std::string& nombre = v.NombreVigaActual;
    Agregar(cad, "VigaDatos",
            {{"Nombre", nombre},
             {"NT", v.NT},
             {"EscViga", 50},
             {"EscCorte", 20},
             {"EscPlano", 50},
             {"Nivel", ""},
             {"Portico", ""},
             {"Repeticiones", 0},
             {"NodoSismico", p.OpcionEstribos},
             {"SepD", 0},
             {"OpcionRecubrimiento", false},
             {"OpcionNervio", 0},
             {"SepN", 0},
             {"DiametroN", Diametro38},
             {"B", 0.3},
             {"H", 0.5},
             {"Nervios", 1},
             {"Ramas", true},
             {"ESolape", true}});
    for (long t = 1; t <= v.NT; ++t) {
        const long tipo = CI(v.VT(t));
        Agregar(cad, "VigaTramos",
                {{"Nombre", nombre},
                 {"Numero", t},
                 {"L", v.LT(t)},
                 {"B", v.B1(tipo)},
                 {"H", v.T1(tipo)},
                 {"Delta", 0}});
    }
    for (long j = 1; j <= v.NT + 1; ++j) {
        const double ancho = v.LIzq(j) + v.LDer(j);
        Agregar(cad, "VigaEjes",
                {{"Nombre", nombre},
                 {"Numero", j},
                 {"Eje", v.NombreEje(j)},
                 {"OpcionColInf", sobreColumnas},
                 {"LIzqInf", v.LIzq(j)},
                 {"LDerInf", v.LDer(j)},
                 {"OpcionColSup", false},
                 {"LIzqSup", 0},
                 {"LDerSup", 0},
                 {"OpcionViga", !sobreColumnas && ancho > 0},
                 {"B", ancho},
                 {"H", v.HC(j)},
                 {"AlineacionV", 0}});
    }
    for (long t = 1; t <= v.NT; ++t) Agregar(cad, "VigaEstribos", EstribosTramo(v, p, t));
}

void EscribirRefTeorico(BaseDatos& cad, const std::string& nombre, std::int16_t nt,
                        const ResumenAcero& a) {
    for (long t = 1; t <= nt; ++t)
        Agregar(cad, "VigaRefTeorico",
                {{"Nombre", nombre},
                 {"Numero", 0},
                 {"Tramo", t},
                 {"AsSupIzquierda", a.AsSupIzquierda(t)},
                 {"AsSupCentro", a.AsSupCentro(t)},
                 {"AsSupDerecha", a.AsSupDerecha(t)},
                 {"AsInfIzquierda", a.AsInfIzquierda(t)},
                 {"AsInfCentro", a.AsInfCentro(t)},
                 {"AsInfDerecha", a.AsInfDerecha(t)}});
}

long ExportarCAD70(ModeloCAD& m, Dialogos& dialogos, const CarpetasPrograma& carpetas,
                   const std::vector<FilaCAD>& filas, int filaActiva, const OpcionesCAD& opciones,
                   const PasosCAD& pasos) {
    const long posicion = m.listaConcreto.AlFinal() ? -1 : m.listaConcreto.AbsolutePosition();
    const ArchivoElegido destino = ElegirDestino(m, dialogos, carpetas, opciones.NuevoProyecto);
    if (destino.Cancelado) return 0;
    if (dialogos.Mensaje(PreguntaAnexar(destino.FileTitle)) != RespuestaSi) return 0;
    BaseDatos cad = AbrirProyectoCAD(destino.FileName);
    const RestaurarModelo restaurar{m, posicion};
    if (opciones.NuevoProyecto) IniciarProyectoCAD(cad, m.proyecto);
    const double paso = 100.0 / static_cast<double>(filas.size());
    double valor = paso;
    long cuenta = 0;
    {
        const OcultarPanel ocultar{pasos};
        if (pasos.Panel) pasos.Panel(true);
        for (std::size_t i = 0; i < filas.size(); ++i) {
            if (pasos.Progreso) pasos.Progreso(valor);
            valor += paso;
            if (!filas[i].Marcada) continue;
            ExportarFila(m, cad, filas[i], static_cast<long>(i + 1), filaActiva,
                         opciones.SobreColumnas);
            ++cuenta;
        }
    }
    dialogos.Mensaje(MensajeExportadas(cuenta));
    return cuenta;
}

std::vector<std::string> ExportarVigasCAD(EstadoProyecto& estado, ProyectoActual& proyecto,
                                          const std::vector<std::string>& nombres,
                                          const std::string& destino, const std::string& plantilla,
                                          const OpcionesCAD& opciones, double estacionesPorMetro,
                                          const std::function<void(const std::string&)>& progreso) {
    const std::vector<std::string> vigas = VigasConcreto(*estado.BDProyecto, nombres);
    const bool existe = ExisteArchivoDisco(destino);
    if (existe) AbrirProyectoCAD(destino);
    ProyectoEnCurso nuevo;
    if (opciones.NuevoProyecto || !existe) {
        nuevo.ruta = destino + ".nuevo";
        CopiarArchivoDisco(plantilla, nuevo.ruta);
    }
    {
        BaseDatos cad = AbrirProyectoCAD(nuevo.ruta.empty() ? destino : nuevo.ruta);
        Transaccion transaccion(cad);
        if (opciones.NuevoProyecto) EscribirProyectoCAD(cad, proyecto, Hoy());
        for (const std::string& nombre : vigas) {
            if (progreso) progreso(nombre);
            ExportarVigaPropia(estado, proyecto, cad, nombre, opciones.SobreColumnas,
                               estacionesPorMetro);
        }
        transaccion.Confirmar();
    }
    if (!nuevo.ruta.empty()) {
        std::error_code ec;
        std::filesystem::rename(nuevo.ruta, destino, ec);
        if (ec) throw ErrorArchivo(ec);
        nuevo.ruta.clear();
    }
    return vigas;
}

} // namespace trevalo
