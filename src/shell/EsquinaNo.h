#pragma once
// The corner of a grid over its column of row numbers reads "No", as every list of the
// program heads its numbers; the row numbers' column is widened to hold it.

class QTableView;

namespace trevalo {

void EsquinaNo(QTableView& grid);

} // namespace trevalo
