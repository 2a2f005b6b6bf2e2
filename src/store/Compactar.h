#pragma once
// Compaction and repair of project files through the database engine.
//
// The engine writes a compacted copy of the file under a temporary name, the copy's
// integrity is checked, and the copy is renamed over the file in one step: at no moment does
// the data live only in the temporary file, and a file the engine cannot read is left as it
// was.
//
// Errors: the engine's (26 "file is not a database", 11 "database disk image is malformed",
// 14 cannot open ...) for a file it cannot compact; 11 when the copy fails its integrity
// check; the file error of the failed step (70 permission, else 75 "Error de acceso a la ruta
// o el archivo") when the copy cannot take the file's place. In every case the file is untouched
// and the temporary file is gone.

#include <string>

namespace trevalo {

// The temporary file of a run over the folder `carpeta`: the folder's path followed directly
// by "DatosKorvel.mdb", with no separator between, so that for a folder ".../Proyectos" it
// lies beside the folder as ".../ProyectosDatosKorvel.mdb".
std::string TemporalCompactar(const std::string& carpeta);

// Compacts the database file `ruta` by way of `temporal`. An older file at `temporal`, left
// by a run that crashed, is deleted first and never reused. The file must not be open.
void CompactarArchivo(const std::string& ruta, const std::string& temporal);

} // namespace trevalo
