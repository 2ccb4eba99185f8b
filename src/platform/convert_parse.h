// Reading numbers out of text, the two ways the runtime did: Val's lenient leading
// number, and the strict whole-text number of IsNumeric and CDbl.
#pragma once

#include <optional>
#include <string_view>

namespace platform::detail {

// The number a whole text stands for (blanks around it, a sign, ',' grouping in the
// integer part, one point, an exponent of E or D, or an &H/&O number), or nothing.
// A number too large for a double raises error 6.
std::optional<double> ParseWholeNumber(std::string_view text);

// Val: the leading number of a text with every blank, tab and line feed removed.
// A number too large raises error 6.
double ParseLeadingNumber(std::string_view text);

}  // namespace platform::detail
