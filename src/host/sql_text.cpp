#include "host/sql_text.h"

#include <cstdio>

#include "platform/convert.h"

namespace host {

std::string EscapeSqlQuotes(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (char c : text) {
        escaped += c;
        if (c == '\'') escaped += '\'';
    }
    return escaped;
}

std::string SqlText(std::string_view text) { return "N'" + EscapeSqlQuotes(text) + "'"; }

std::string SqlDate(platform::Date date) {
    auto parts = platform::SplitDate(date);
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "'%04d-%02d-%02d %02d:%02d:%02d'", parts.year, parts.month, parts.day,
                  parts.hour, parts.minute, parts.second);
    return buffer;
}

std::string SqlNumber(double value) { return platform::NumberToText(value); }

}  // namespace host
