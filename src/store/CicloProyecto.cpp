#include "store/CicloProyecto.h"

#include <filesystem>

#include "model/Errores.h"
#include "store/BaseDatos.h"
#include "store/Nombres.h"

namespace trevalo {

namespace {

const std::string TituloCrear = "Crear Nuevo Proyecto";
const std::string TituloEliminar = "Eliminado Proyectos";

// The pointer goes back to normal however an operation ends.
class PunteroNormalAlSalir {
  public:
    explicit PunteroNormalAlSalir(PlataformaProyecto& p) : plataforma_(p) {}
    ~PunteroNormalAlSalir() { plataforma_.PunteroEspera(false); }
    PunteroNormalAlSalir(const PunteroNormalAlSalir&) = delete;
    PunteroNormalAlSalir& operator=(const PunteroNormalAlSalir&) = delete;

  private:
    PlataformaProyecto& plataforma_;
};

// Runs a delete whose failure the menu operations ignore: the copy that follows tells.
template <typename Paso> void Ignorando(Paso paso) {
    try {
        paso();
    } catch (const ErrorTrevalo&) {
        // The next step runs on, as users of the menu know it.
    }
}

// Runs a step that opens or makes the project file. A failure is shown as the store's error
// and leaves no project current, so that nothing writes into the one open before. False
// when the step failed.
template <typename Paso>
bool SinFallar(EstadoProyecto& estado, PlataformaProyecto& plataforma, Paso paso) {
    try {
        paso();
        return true;
    } catch (const ErrorTrevalo& e) {
        plataforma.PunteroEspera(false);
        plataforma.dialogos.Mensaje(MensajeError(e));
        SinProyecto(estado, plataforma);
        return false;
    }
}

int Preguntar(EstadoProyecto& estado, Dialogos& dialogos, const Pregunta& pregunta) {
    estado.Mensaje = pregunta.Texto;
    estado.Respuesta = dialogos.Mensaje(pregunta);
    return estado.Respuesta;
}

// A project file dialog: FiltroProyectos, filter 1, no name, starting in RutaProyectos.
ArchivoElegido PedirProyecto(const std::string& titulo, ModoDialogo modo,
                             const CarpetasPrograma& carpetas, PlataformaProyecto& plataforma) {
    return plataforma.dialogos.Archivo(
        {titulo, modo, FiltroProyectos, 1, carpetas.RutaProyectos, ""});
}

Pregunta SiNo(std::string texto, std::string titulo, IconoMensaje icono, int defecto) {
    return {std::move(texto), std::move(titulo), BotonesMensaje::SiNo, icono, defecto};
}

Pregunta Aviso(std::string texto, std::string titulo) {
    return {std::move(texto), std::move(titulo), BotonesMensaje::Aceptar, IconoMensaje::Advertencia,
            1};
}

Pregunta PreguntaReemplazar(const std::string& titulo) {
    return SiNo("Proyecto: " + titulo + " ya Existe...    \n¿Desea Reemplazarlo?    ", TituloCrear,
                IconoMensaje::Advertencia, 2);
}

// The file at `ruta` is the current project from now on.
void Elegir(const std::string& ruta, EstadoProyecto& estado, PlataformaProyecto& plataforma) {
    const std::filesystem::path archivo(ruta);
    estado.NombreProyecto = archivo.filename().string();
    estado.CarpetaProyecto = archivo.parent_path().string();
    plataforma.ColocarTituloMenu(TituloMenu(estado.NombreProyecto));
    plataforma.HabilitarSalvarComo(true);
    plataforma.RecordarProyecto(ruta);
}

// When no project is current, asks for one with the given title; false on cancel.
bool HayProyectoOElegir(const std::string& titulo, const CarpetasPrograma& carpetas,
                        EstadoProyecto& estado, PlataformaProyecto& plataforma) {
    if (!Recortado(estado.NombreProyecto).empty()) return true;
    const ArchivoElegido archivo = PedirProyecto(titulo, ModoDialogo::Abrir, carpetas, plataforma);
    if (archivo.Cancelado) return false;
    return AbrirProyectoRuta(archivo.FileName, estado, plataforma);
}

} // namespace

bool ExisteArchivoDisco(const std::string& ruta) {
    std::error_code ec;
    return std::filesystem::is_regular_file(ruta, ec);
}

void CopiarArchivoDisco(const std::string& origen, const std::string& destino) {
    std::error_code ec;
    if (!ExisteArchivoDisco(origen))
        throw ErrorArchivo(std::make_error_code(std::errc::no_such_file_or_directory));
    std::filesystem::copy_file(origen, destino, std::filesystem::copy_options::overwrite_existing,
                               ec);
    if (ec) throw ErrorArchivo(ec);
}

void BorrarArchivoDisco(const std::string& ruta) {
    std::error_code ec;
    if (!ExisteArchivoDisco(ruta))
        throw ErrorArchivo(std::make_error_code(std::errc::no_such_file_or_directory));
    std::filesystem::remove(ruta, ec);
    if (ec) throw ErrorArchivo(ec);
}

bool PlataformaProyectoDisco::ExisteArchivo(const std::string& ruta) {
    return ExisteArchivoDisco(ruta);
}

void PlataformaProyectoDisco::CopiarArchivo(const std::string& origen, const std::string& destino) {
    CopiarArchivoDisco(origen, destino);
}

void PlataformaProyectoDisco::BorrarArchivo(const std::string& ruta) {
    BorrarArchivoDisco(ruta);
}

BaseDatos PlataformaProyectoDisco::AbrirBaseDatos(const std::string& ruta) {
    return BaseDatos::Abrir(ruta);
}

std::string TituloMenu(const std::string& nombreProyecto) {
    return "Trevalo 6.0  Proyecto: [" + nombreProyecto + "]";
}

std::string RutaProyectoActual(const CarpetasPrograma& carpetas, const EstadoProyecto& estado) {
    const std::string& carpeta =
        estado.CarpetaProyecto.empty() ? carpetas.RutaProyectos : estado.CarpetaProyecto;
    return carpeta + "/" + estado.NombreProyecto;
}

bool AbrirProyectoRuta(const std::string& ruta, EstadoProyecto& estado,
                       PlataformaProyecto& plataforma) {
    plataforma.PunteroEspera(true);
    const bool abre = SinFallar(estado, plataforma, [&] {
        EstadoProyecto prueba;
        AbrirProyectoArchivo(ruta, prueba);
    });
    if (abre) {
        // The database of the former project is let go; the windows open the new one when
        // they need it.
        estado.BDProyecto.reset();
        estado.RsGeneralViga.reset();
        Elegir(ruta, estado, plataforma);
    }
    plataforma.PunteroEspera(false);
    return abre;
}

void SinProyecto(EstadoProyecto& estado, PlataformaProyecto& plataforma) {
    estado.NombreProyecto.clear();
    estado.CarpetaProyecto.clear();
    estado.BDProyecto.reset();
    estado.RsGeneralViga.reset();
    plataforma.ColocarTituloMenu(TituloMenu(estado.NombreProyecto));
    plataforma.HabilitarSalvarComo(false);
}

void CrearNuevoProyecto(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                        PlataformaProyecto& plataforma) {
    PunteroNormalAlSalir puntero(plataforma);
    const ArchivoElegido archivo =
        PedirProyecto("Crear un Nuevo Proyecto", ModoDialogo::Salvar, carpetas, plataforma);
    if (archivo.Cancelado) return;

    if (plataforma.ExisteArchivo(archivo.FileName)) {
        if (Preguntar(estado, plataforma.dialogos, PreguntaReemplazar(archivo.FileTitle)) !=
            RespuestaSi)
            return;
        const Pregunta segura =
            SiNo("Proyecto: " + archivo.FileTitle + "    \n\n¿Esta Seguro de Reemplazarlo?    ",
                 TituloCrear, IconoMensaje::Advertencia, 1);
        if (Preguntar(estado, plataforma.dialogos, segura) != RespuestaSi) return;
        Ignorando([&] { plataforma.BorrarArchivo(archivo.FileName); });
    }

    plataforma.PunteroEspera(true);
    // Always into RutaProyectos, whatever folder the dialog chose: kept, users rely on
    // finding every project there.
    const std::string plantilla = carpetas.RutaPrograma + "/Imagen/ImagenViga.kvl";
    const std::string ruta = carpetas.RutaProyectos + "/" + archivo.FileTitle;
    std::optional<BaseDatos> base;
    const bool creado = SinFallar(estado, plataforma, [&] {
        try {
            plataforma.CopiarArchivo(plantilla, ruta);
        } catch (const ErrorTrevalo& e) {
            // The message names the file at fault: the template when it is missing.
            const bool falta = e.Numero() == ErrArchivoNoEncontrado;
            throw ErrorTrevalo(e.Numero(), e.Descripcion() + ": " + (falta ? plantilla : ruta));
        }
        base = plataforma.AbrirBaseDatos(ruta);
    });
    if (!creado) return;
    estado.BDProyecto = std::move(base);
    estado.RsGeneralViga.reset();
    Elegir(ruta, estado, plataforma);
    estado.ProyectoNuevo = true;
    plataforma.MostrarDatosGenerales(true);
    estado.ProyectoNuevo = false;
}

void AbrirProyecto(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                   PlataformaProyecto& plataforma) {
    PunteroNormalAlSalir puntero(plataforma);
    const ArchivoElegido archivo =
        PedirProyecto("Abrir un Proyecto Existente", ModoDialogo::Abrir, carpetas, plataforma);
    if (archivo.Cancelado) return;
    AbrirProyectoRuta(archivo.FileName, estado, plataforma);
}

void ModificarProyecto(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                       PlataformaProyecto& plataforma) {
    PunteroNormalAlSalir puntero(plataforma);
    if (!HayProyectoOElegir("Modificar los Datos Generales del Proyecto", carpetas, estado,
                            plataforma))
        return;
    const bool abierto = SinFallar(estado, plataforma, [&] {
        estado.BDProyecto = plataforma.AbrirBaseDatos(RutaProyectoActual(carpetas, estado));
    });
    if (!abierto) return;
    estado.ProyectoNuevo = false;
    plataforma.MostrarDatosGenerales(false);
}

void AnalizarVigas(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                   PlataformaProyecto& plataforma) {
    PunteroNormalAlSalir puntero(plataforma);
    if (!HayProyectoOElegir("Analizar las Vigas del Proyecto", carpetas, estado, plataforma))
        return;
    estado.ProyectoNuevo = false;
    plataforma.PunteroEspera(true);
    if (!plataforma.MostrarVigasProyecto()) SinProyecto(estado, plataforma);
}

void SalvarComoProyecto(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                        PlataformaProyecto& plataforma) {
    PunteroNormalAlSalir puntero(plataforma);
    const ArchivoElegido archivo = PedirProyecto("Salvar el Proyecto Actual con otro Nombre",
                                                 ModoDialogo::Salvar, carpetas, plataforma);
    if (archivo.Cancelado) return;

    // One question only, under the title of creating: kept as users know it.
    if (plataforma.ExisteArchivo(archivo.FileName)) {
        if (Preguntar(estado, plataforma.dialogos, PreguntaReemplazar(archivo.FileTitle)) !=
            RespuestaSi)
            return;
        Ignorando([&] { plataforma.BorrarArchivo(archivo.FileName); });
    }

    plataforma.PunteroEspera(true);
    try {
        plataforma.CopiarArchivo(RutaProyectoActual(carpetas, estado), archivo.FileName);
    } catch (const ErrorTrevalo& e) {
        // No copy: the project open stays the current one.
        plataforma.PunteroEspera(false);
        plataforma.dialogos.Mensaje(MensajeError(e));
        return;
    }
    // The open database stays on the old file; from now on the project is the copy.
    Elegir(archivo.FileName, estado, plataforma);
}

void EliminarProyecto(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                      PlataformaProyecto& plataforma) {
    PunteroNormalAlSalir puntero(plataforma);
    const ArchivoElegido archivo =
        PedirProyecto("Eliminar Proyecto de Vigas", ModoDialogo::Abrir, carpetas, plataforma);
    if (archivo.Cancelado) return;

    const Pregunta primera =
        SiNo("Eliminar el Proyecto: " + archivo.FileTitle + "...    \n\n¿Esta Usted Seguro?",
             TituloEliminar, IconoMensaje::Advertencia, 2);
    if (Preguntar(estado, plataforma.dialogos, primera) != RespuestaSi) return;
    const Pregunta segunda =
        SiNo(archivo.FileTitle + "...    \n\n¿Esta Usted Seguro de Eliminarlo?      ",
             TituloEliminar, IconoMensaje::Advertencia, 1);
    if (Preguntar(estado, plataforma.dialogos, segunda) != RespuestaSi) return;

    try {
        plataforma.BorrarArchivo(archivo.FileName);
    } catch (const ErrorTrevalo& e) {
        plataforma.dialogos.Mensaje(
            Aviso(e.Descripcion() + "      ", "Error Número: " + std::to_string(e.Numero())));
        return;
    }

    // By title only: a file of the same name in another folder also clears the current
    // project, kept on purpose.
    if (Mayusculas(Recortado(archivo.FileTitle)) == Mayusculas(Recortado(estado.NombreProyecto))) {
        SinProyecto(estado, plataforma);
    }
}

BuscarViga BuscarEnProyecto(EstadoProyecto& estado) {
    return [&estado](const std::string& nombre) {
        return ExisteViga(ProyectoAbierto(estado), nombre);
    };
}

bool AceptarSalvarComoViga(const std::string& texto, const BuscarViga& existe,
                           const std::function<std::string()>& leerSeleccionada,
                           EstadoProyecto& estado, Dialogos& dialogos) {
    const std::string nombre = Recortado(texto);
    if (nombre.empty()) return false;
    if (existe(nombre)) {
        Preguntar(
            estado, dialogos,
            Aviso("La Viga: " + nombre + "       \nLa Viga ya Existe en el Proyecto...        ",
                  "Creando Nueva Viga"));
        return false;
    }
    const std::string origen = leerSeleccionada();
    const Pregunta pregunta =
        SiNo("Salvar Como (Crear) la Viga: " + nombre +
                 "       \nA Partir de la Viga Seleccionada: " + origen + "       \n\n",
             "Salvar Como", IconoMensaje::Pregunta, 1);
    if (Preguntar(estado, dialogos, pregunta) != RespuestaSi) return false;
    estado.NombreCopiaViga = nombre;
    return true;
}

bool AceptarRenombrarViga(const std::string& texto, const std::string& actual,
                          const BuscarViga& existe, EstadoProyecto& estado, Dialogos& dialogos) {
    const std::string nombre = Recortado(texto);
    if (nombre.empty()) return false;
    if (existe(nombre)) {
        Preguntar(estado, dialogos,
                  Aviso("Nombre: " + nombre +
                            "       \nEste Nombre ya Existe en las Vigas del Proyecto...       \n",
                        "Renombrar"));
        return false;
    }
    const Pregunta pregunta = SiNo("Renombrar la Viga: " + actual + "   Por el Nombre: " + nombre +
                                       "       \n\nEsta Usted Seguro?       \n",
                                   "Renombrar", IconoMensaje::Pregunta, 1);
    if (Preguntar(estado, dialogos, pregunta) != RespuestaSi) return false;
    estado.NombreRenombrar = nombre;
    return true;
}

bool ConfirmarEliminarViga(const std::string& nombre, EstadoProyecto& estado, Dialogos& dialogos) {
    const std::string titulo = "Eliminando Vigas del Proyecto";
    const Pregunta primera =
        SiNo("Viga: " + nombre +
                 "\nLa Viga Seleccionada Será Eliminada!       \n¿Esta Usted Seguro?    ",
             titulo, IconoMensaje::Advertencia, 2);
    if (Preguntar(estado, dialogos, primera) != RespuestaSi) return false;
    const Pregunta segunda = SiNo("Viga: " + nombre + "\n¿Esta Seguro de Eliminar la Viga?    ",
                                  titulo, IconoMensaje::Advertencia, 1);
    return Preguntar(estado, dialogos, segunda) == RespuestaSi;
}

} // namespace trevalo
