#include "session/grid_text.h"

#include <fmt/format.h>

#include "session/control_reading.h"

namespace session {

std::vector<std::string> GridLines(const platform::DTFlex& grid, const std::vector<int>& columns) {
    std::vector<std::string> lines;
    for (int row = 0; row <= grid.GridRows(); ++row) {
        std::vector<std::string> cells;
        for (int col : columns) cells.push_back(grid.GetCell(row, col));
        lines.push_back(fmt::format("row {}: {}", row, Join(cells, "|")));
    }
    return lines;
}

}  // namespace session
