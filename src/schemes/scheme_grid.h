// Small readings of the grid every scheme pass makes: the count of lines without
// the blank entry row, and a cell as a number the way the host reads it.
#pragma once

#include <string>

#include "platform/convert.h"
#include "platform/grid.h"

namespace schemes {

// The rows that hold lines: all of them, less the blank last row.
inline int LineCount(const platform::DTFlex& grid) {
    const int nRows = grid.GridRows();
    return grid.IsBlankRow(nRows) ? nRows - 1 : nRows;
}

// A cell read as a number; an empty or non-numeric cell reads 0.
inline double CellNumber(const platform::DTFlex& grid, int nRow, int nCol) {
    return platform::ToNumber(platform::Value(grid.GetCell(nRow, nCol)));
}

// A row a scheme created: colFreeItem or colFreeRow reads 1.
inline bool IsSchemeMark(const platform::DTFlex& grid, int nRow, int nCol) { return CellNumber(grid, nRow, nCol) == 1; }

}  // namespace schemes
