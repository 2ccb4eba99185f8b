// The grid as `show grid` prints it.
#pragma once

#include <string>
#include <vector>

#include "platform/grid.h"

namespace session {

// The heading row and every data row: "row N: a|b|c" with the given columns.
std::vector<std::string> GridLines(const platform::DTFlex& grid, const std::vector<int>& columns);

}  // namespace session
