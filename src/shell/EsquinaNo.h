#pragma once
// The corner of a grid over its column of row headers carries the caption of that column:
// "No" over row numbers, as every list of the program heads its numbers, or what the rows
// stand for ("Tramo", "Tipo", "Junta"). The row headers' column is widened to hold it;
// the caption is also the corner's accessible name.

#include <QString>

class QTableView;

namespace trevalo {

void EsquinaNo(QTableView& grid, const QString& rotulo = QStringLiteral("No"));

} // namespace trevalo
