#pragma once
// "No" written in the corner of a grid, over the column of row numbers.

class QTableView;

namespace trevalo {

void EsquinaNo(QTableView& grid);

} // namespace trevalo
