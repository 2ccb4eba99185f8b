#include "server/schema.h"

#include <regex>
#include <sstream>

namespace server {

namespace {

// Dates are text so that they sort and compare as the server compared them; a date
// stored without its time ('2024-05-01') would sort before midnight of that day
// ('2024-05-01 00:00:00') and fall out of every day range, so the form is enforced.
constexpr const char* kDateTimePattern = "'[0-9][0-9][0-9][0-9]-[01][0-9]-[0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-5][0-9]'";

std::string CheckFor(const std::string& column, const std::string& type) {
    if (type == "DATETIME") return " CHECK (" + column + " GLOB " + kDateTimePattern + ")";
    return " CHECK (" + column + " IN (0, 1))";
}

}  // namespace

std::string WithTypeChecks(const std::string& script) {
    // A column definition stands on its own line: indent, name, type.
    static const std::regex columnLine(R"(^(\s+)([A-Za-z_][A-Za-z0-9_]*) (DATETIME|BIT)\b)");
    std::istringstream lines(script);
    std::string out;
    std::string line;
    while (std::getline(lines, line)) {
        std::smatch match;
        if (std::regex_search(line, match, columnLine)) {
            const std::size_t typeEnd = static_cast<std::size_t>(match.position(0) + match.length(0));
            line.insert(typeEnd, CheckFor(match[2].str(), match[3].str()));
        }
        out += line;
        out += '\n';
    }
    return out;
}

std::string SchemaScript() {
    return WithTypeChecks(schema_part::Items() + schema_part::Parties() + schema_part::Documents() +
                          schema_part::Accounts() + schema_part::Schemes() + schema_part::Application());
}

}  // namespace server
