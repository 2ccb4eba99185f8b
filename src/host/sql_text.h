// Pieces of statements in the server dialect that the host writes itself. Every
// value that came from a user or a table goes through these before it stands in a
// statement.
#pragma once

#include <string>
#include <string_view>

#include "platform/value.h"

namespace host {

// Doubles every single quote, so the text can stand inside '...'.
std::string EscapeSqlQuotes(std::string_view text);
// A Unicode text literal: N'...' with the quotes doubled.
std::string SqlText(std::string_view text);
// A date literal the embedded server compares as text: 'YYYY-MM-DD HH:MM:SS'.
std::string SqlDate(platform::Date date);
// A number as a literal; whole numbers without a decimal point.
std::string SqlNumber(double value);

}  // namespace host
