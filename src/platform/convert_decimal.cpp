#include "platform/convert_decimal.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace platform::detail {
namespace {

void StripZeros(DecimalDigits& number) {
    std::size_t first = number.digits.find_first_not_of('0');
    if (first == std::string::npos) {
        number.digits.clear();
        number.pointPosition = 0;
        return;
    }
    number.digits.erase(0, first);
    number.pointPosition -= static_cast<int>(first);
    number.digits.erase(number.digits.find_last_not_of('0') + 1);
}

// Keeps the first `keep` digits, rounding on the ones dropped.
DecimalDigits KeepDigits(DecimalDigits number, int keep, TieRule tie) {
    const int length = static_cast<int>(number.digits.size());
    if (keep >= length) return number;
    if (keep < 0) {
        number.digits.clear();
        number.pointPosition = 0;
        return number;
    }
    const char first = number.digits[static_cast<std::size_t>(keep)];
    const bool moreAfterFirst =
        number.digits.find_first_not_of('0', static_cast<std::size_t>(keep) + 1) != std::string::npos;
    bool up = first > '5' || (first == '5' && moreAfterFirst);
    if (first == '5' && !moreAfterFirst) {
        if (tie == TieRule::AwayFromZero) {
            up = true;
        } else {
            const char last = keep > 0 ? number.digits[static_cast<std::size_t>(keep) - 1] : '0';
            up = (last - '0') % 2 == 1;
        }
    }
    number.digits.resize(static_cast<std::size_t>(keep));
    if (up) {
        int i = keep - 1;
        while (i >= 0 && number.digits[static_cast<std::size_t>(i)] == '9') {
            number.digits[static_cast<std::size_t>(i)] = '0';
            --i;
        }
        if (i >= 0) {
            ++number.digits[static_cast<std::size_t>(i)];
        } else {
            number.digits.insert(number.digits.begin(), '1');
            ++number.pointPosition;
        }
    }
    StripZeros(number);
    return number;
}

}  // namespace

std::string DecimalDigits::IntegerDigits() const {
    if (pointPosition <= 0) return {};
    std::string result = digits.substr(0, static_cast<std::size_t>(pointPosition));
    result.append(static_cast<std::size_t>(pointPosition) - result.size(), '0');
    return result;
}

std::string DecimalDigits::FractionDigits(int count) const {
    std::string result;
    for (int i = 0; i < count; ++i) {
        const int index = pointPosition + i;
        result += index >= 0 && index < static_cast<int>(digits.size()) ? digits[static_cast<std::size_t>(index)] : '0';
    }
    return result;
}

double DecimalDigits::ToDouble() const {
    if (IsZero()) return negative ? -0.0 : 0.0;
    std::string text = (negative ? "-0." : "0.") + digits + "e" + std::to_string(pointPosition);
    return std::strtod(text.c_str(), nullptr);
}

DecimalDigits DigitsOf(double value) {
    DecimalDigits number;
    number.negative = std::signbit(value);
    if (value == 0.0) return number;
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.14e", std::fabs(value));
    // buffer: d.dddddddddddddde[+-]XX
    const std::string text(buffer);
    const std::size_t e = text.find('e');
    number.digits = text.substr(0, 1) + text.substr(2, e - 2);
    number.pointPosition = std::atoi(text.c_str() + e + 1) + 1;
    StripZeros(number);
    return number;
}

DecimalDigits DigitsOf(std::int64_t value) {
    DecimalDigits number;
    number.negative = value < 0;
    // Through unsigned so that the most negative value has a magnitude.
    std::uint64_t magnitude = value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    number.digits = std::to_string(magnitude);
    number.pointPosition = static_cast<int>(number.digits.size());
    StripZeros(number);
    return number;
}

DecimalDigits RoundDigits(DecimalDigits number, int decimals, TieRule tie) {
    if (number.IsZero()) return number;
    const int keep = number.pointPosition + decimals;
    return KeepDigits(std::move(number), keep, tie);
}

DecimalDigits RoundSignificant(DecimalDigits number, int count, TieRule tie) {
    return KeepDigits(std::move(number), count, tie);
}

}  // namespace platform::detail
