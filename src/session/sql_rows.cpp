#include "session/sql_rows.h"

#include "platform/convert.h"
#include "session/control_reading.h"

namespace session {

std::vector<std::string> RowTexts(const platform::ResultSet& result) {
    std::vector<std::string> rows;
    for (const auto& row : result.rows) {
        std::vector<std::string> fields;
        for (const auto& value : row) fields.push_back(platform::ToText(value));
        rows.push_back(Join(fields, "|"));
    }
    return rows;
}

std::string RowsText(const platform::ResultSet& result) { return Join(RowTexts(result), ";"); }

}  // namespace session
