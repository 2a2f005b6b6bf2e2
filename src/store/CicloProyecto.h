#pragma once
// The life of a project file: create from the template, open, modify, save as, delete; and
// the questions around the copy, rename and delete of a beam.
//
// A project is a ".trv" file; NombreProyecto (its file title) alone says which project is
// current, and its path is CarpetaProyecto + "/" + NombreProyecto, the folder being the one
// the project was opened or saved in (RutaProyectos for a new project). The logic talks to
// the screens and files through PlataformaProyecto, so that the windows plug in their dialogs
// and tests plug in scripted answers.
//
// Settled behaviour kept as users know it:
//  - a new project is always copied into RutaProyectos, whatever folder the dialog chose,
//    while the exists test and the delete before it go to the folder chosen;
//  - save as copies the file but leaves the open database handle on the old file;
//  - deleting a file whose title equals the current project's (case and blanks aside)
//    clears the current project, whatever its folder.
//
// Nothing is written to a project that could not be opened: a project is chosen only when
// its file opens as a project, and when a file fails later (moved, damaged, a template that
// cannot be copied) the error is shown and no project is left current, with no database
// handle, so that no window can write into the project that was open before. A failing
// delete before a copy is ignored; the delete of EliminarProyecto shows its error and stops.
// A cancelled file dialog ends an operation with nothing changed.

#include <functional>
#include <string>

#include "platform/motor/MotorDatos.h"
#include "store/CarpetasPrograma.h"
#include "store/Dialogos.h"
#include "store/EstadoProyecto.h"

namespace trevalo {

// Filter of every project file dialog; filter index 1, file name preset empty.
inline constexpr const char* FiltroProyectos = "Trevalo (*.trv)|*.trv";

// What the lifecycle asks of the screens and the files: its questions and file dialogs go
// through `dialogos`. File and database operations raise ErrorTrevalo on failure.
class PlataformaProyecto {
  public:
    explicit PlataformaProyecto(Dialogos& d) : dialogos(d) {}
    virtual ~PlataformaProyecto() = default;
    Dialogos& dialogos;

    virtual bool ExisteArchivo(const std::string& ruta) = 0;
    virtual void CopiarArchivo(const std::string& origen, const std::string& destino) = 0;
    virtual void BorrarArchivo(const std::string& ruta) = 0;
    // Opens the project database for shared reading and writing. The lifecycle puts the
    // handle in BDProyecto, replacing the one held, which is never closed by the program.
    virtual BaseDatos AbrirBaseDatos(const std::string& ruta) = 0;
    // Shows the general data dialog modally; `proyectoNuevo` while it is shown.
    virtual void MostrarDatosGenerales(bool proyectoNuevo) = 0;
    // Shows the project window modally; it opens the database itself. False when the window
    // could not open the project (it has said why) and so did not show.
    virtual bool MostrarVigasProyecto() = 0;
    virtual void ColocarTituloMenu(const std::string& titulo) = 0;
    virtual void HabilitarSalvarComo(bool habilitado) = 0;
    virtual void PunteroEspera(bool espera) = 0;
    // A project file at `ruta` became the current project (opened, created or saved as).
    virtual void RecordarProyecto(const std::string& /*ruta*/) {}
};

// The file and database operations on the disk, for the windows to build on. Errors: 53 "No se
// encontró el archivo" for a missing source, 70 "Permiso denegado" when the system refuses, 75
// "Error de acceso a la ruta o el archivo" otherwise. A copy replaces its destination.
class PlataformaProyectoDisco : public PlataformaProyecto {
  public:
    using PlataformaProyecto::PlataformaProyecto;
    bool ExisteArchivo(const std::string& ruta) override;
    void CopiarArchivo(const std::string& origen, const std::string& destino) override;
    void BorrarArchivo(const std::string& ruta) override;
    BaseDatos AbrirBaseDatos(const std::string& ruta) override;
};

// The same file operations for callers without a platform, with the same errors.
bool ExisteArchivoDisco(const std::string& ruta);
void CopiarArchivoDisco(const std::string& origen, const std::string& destino);
void BorrarArchivoDisco(const std::string& ruta);

// "Trevalo 6.0  Proyecto: [" + nombre + "]" (two blanks before "Proyecto").
std::string TituloMenu(const std::string& nombreProyecto);

// The path of the current project: its folder (RutaProyectos when none is kept) + "/" +
// NombreProyecto.
std::string RutaProyectoActual(const CarpetasPrograma& carpetas, const EstadoProyecto& estado);

// Makes the project file at `ruta` the current project, as a file chosen in "Abrir un
// Proyecto Existente" does, once it opens as a project (it is not kept open). A file that is
// missing or not a project shows the store's error and leaves no project current. True when
// the project was chosen.
bool AbrirProyectoRuta(const std::string& ruta, EstadoProyecto& estado,
                       PlataformaProyecto& plataforma);

// No project current: no name, folder, database handle or beam list; the title says so and
// "save as" is disabled.
void SinProyecto(EstadoProyecto& estado, PlataformaProyecto& plataforma);

// The main menu's commands.
void CrearNuevoProyecto(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                        PlataformaProyecto& plataforma);
void AbrirProyecto(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                   PlataformaProyecto& plataforma);
void ModificarProyecto(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                       PlataformaProyecto& plataforma);
void AnalizarVigas(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                   PlataformaProyecto& plataforma);
void SalvarComoProyecto(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                        PlataformaProyecto& plataforma);
void EliminarProyecto(const CarpetasPrograma& carpetas, EstadoProyecto& estado,
                      PlataformaProyecto& plataforma);

// The questions around a beam. The two dialogs of a name ask through `dialogos` alone.
// `existe` is the engine's search for a name among the beams of the project, which ignores
// case. Each returns true when the operation may go on; an empty name returns false with no
// message (the dialog puts the focus back in its box).
using BuscarViga = std::function<bool(const std::string& nombre)>;

// The search among the beams of the open project (ExisteViga on BDProyecto; error 91 while
// none is open).
BuscarViga BuscarEnProyecto(EstadoProyecto& estado);

// " Aceptar " of "Salvar Como...": `leerSeleccionada` moves to the beam selected in the
// project window, loads it and gives its name. On yes, NombreCopiaViga takes the trimmed
// name and the answer is true; the caller then copies the beam.
bool AceptarSalvarComoViga(const std::string& texto, const BuscarViga& existe,
                           const std::function<std::string()>& leerSeleccionada,
                           EstadoProyecto& estado, Dialogos& dialogos);

// " Aceptar " of "Renombrar Vigas" for the beam `actual`. On yes, NombreRenombrar takes the
// trimmed name and the answer is true; the caller then renames the beam. A name
// that differs from a taken one only in case is taken.
bool AceptarRenombrarViga(const std::string& texto, const std::string& actual,
                          const BuscarViga& existe, EstadoProyecto& estado, Dialogos& dialogos);

// The two questions before the beam `nombre` is deleted; true when both were answered yes.
bool ConfirmarEliminarViga(const std::string& nombre, EstadoProyecto& estado, Dialogos& dialogos);

} // namespace trevalo
