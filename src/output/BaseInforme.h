#pragma once
// The report database (Trabajo/Temporal.mdb): table Generales with its one row and table
// Graficos with one PNG per row. The schema comes from the template; nothing here creates
// a table.
//
// Errors: the engine's own number and text (14 for a file that cannot be opened, 1 for a
// missing table ...), raised as ErrorTrevalo.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "output/ContenidoInforme.h"

namespace trevalo {

// Reads the whole report: the row of Generales (empty fields if there is none) and the
// pictures sorted by Numero, whatever order the rows were stored in.
ContenidoInforme LeerBaseInforme(const std::string& ruta);

// The fill of the report database as one transaction: nothing reaches the file unless
// Confirmar is called; a writer destroyed before that leaves the file as it was.
class EscrituraBaseInforme {
  public:
    explicit EscrituraBaseInforme(const std::string& ruta);
    ~EscrituraBaseInforme();
    EscrituraBaseInforme(const EscrituraBaseInforme&) = delete;
    EscrituraBaseInforme& operator=(const EscrituraBaseInforme&) = delete;

    // Empties Generales and adds the one row.
    void EscribirGenerales(const FilaGenerales& fila);
    void VaciarGraficos();
    void AgregarGrafico(std::int16_t numero, const std::vector<std::uint8_t>& png);
    void Confirmar();

  private:
    struct Estado;
    std::unique_ptr<Estado> estado_;
};

} // namespace trevalo
