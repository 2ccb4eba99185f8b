// The two halves of the runtime's Format: number patterns and date patterns. Which
// one a pattern is depends on the pattern, not on the value: a pattern with date
// letters formats a number as a date, as the runtime did.
#pragma once

#include <string>
#include <string_view>

#include "platform/convert_decimal.h"
#include "platform/value.h"

namespace platform::detail {

// True when the pattern has a date or time letter outside quotes and escapes.
bool IsDatePattern(std::string_view pattern);

// A number through a pattern of up to three sections "positive;negative;zero".
std::string FormatNumberPattern(const DecimalDigits& number, std::string_view pattern);

// A date through a pattern of d, m, y, h, n, s and the other date letters.
std::string FormatDatePattern(Date date, std::string_view pattern);

// Walks a pattern, handing every escaped (\x) or quoted ("...") character to
// `literal` and every other character to `plain` with its position.
template <class Literal, class Plain>
void WalkPattern(std::string_view pattern, Literal&& literal, Plain&& plain) {
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char c = pattern[i];
        if (c == '\\') {
            if (i + 1 < pattern.size()) literal(pattern[++i]);
        } else if (c == '"') {
            for (++i; i < pattern.size() && pattern[i] != '"'; ++i) literal(pattern[i]);
        } else {
            i = plain(i);
        }
    }
}

}  // namespace platform::detail
