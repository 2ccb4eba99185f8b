// The rows of a query as the session writes them: fields joined with `|`, rows
// with `;` for `expect sql`, one line a row for `sql`.
#pragma once

#include <string>
#include <vector>

#include "platform/database.h"

namespace session {

std::vector<std::string> RowTexts(const platform::ResultSet& result);  // "a|b" each
std::string RowsText(const platform::ResultSet& result);               // "a|b;c|d"

}  // namespace session
