#pragma once
// A project of the drawing program as the export tests read it.

#include <string>

#include "output/ExportarCAD.h"
#include "store/BaseDatos.h"

namespace trevalo::prueba {

// Every row of the beam tables of the project at `ruta` whose Nombre is not `excepto`, in the
// order of the file: what an export of `excepto` must leave byte for byte.
inline std::string VolcadoCAD(const std::string& ruta, const std::string& excepto) {
    BaseDatos cad = BaseDatos::Abrir(ruta);
    std::string texto;
    for (const char* tabla : TablasVigaCAD)
        for (auto rs = cad.AbrirRecordset(std::string("SELECT * FROM ") + tabla +
                                              " WHERE Nombre<>? ORDER BY rowid",
                                          {excepto});
             !rs.AlFinal(); rs.MoveNext())
            for (const auto& c : rs.Columnas()) texto += rs.Campo(c).Texto() + "|";
    return texto;
}

} // namespace trevalo::prueba
