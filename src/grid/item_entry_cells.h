// Reading a line's cells as the screen always read them: a cell that holds a number
// counts by the leading number of its text, so an empty cell is 0.
#pragma once

#include <string>

#include "platform/convert.h"
#include "platform/grid.h"
#include "platform/runtime_error.h"

namespace grid {

inline double CellValue(const platform::DTFlex& grid, int row, int col) {
    return platform::Val(grid.GetCell(row, col));
}

inline void SetCellNumber(platform::DTFlex& grid, int row, int col, double value) {
    grid.SetCell(row, col, platform::NumberToText(value));
}

// Row units and base units differ by the unit's rate; a rate of 0 means no unit was
// loaded, and dividing by it stops the routine as the runtime did.
inline double DivideByRate(double value, double rate) {
    if (rate == 0) throw platform::RuntimeError(platform::err::DivisionByZero);
    return value / rate;
}

}  // namespace grid
