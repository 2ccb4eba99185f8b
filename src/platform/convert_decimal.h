// A number as the runtime saw it when it turned it into text: at most 15 significant
// decimal digits. Rounding for Format and Round is done on these digits, so that a
// figure typed as 2.675 rounds as 2.675 and not as its binary neighbour.
#pragma once

#include <cstdint>
#include <string>

namespace platform::detail {

struct DecimalDigits {
    bool negative = false;
    // Significant digits without leading or trailing zeros; empty for zero.
    std::string digits;
    // Where the decimal point stands: the value is 0.<digits> x 10^pointPosition.
    int pointPosition = 0;

    bool IsZero() const { return digits.empty(); }

    // The digits before the point ("" when the value is below 1).
    std::string IntegerDigits() const;
    // Exactly `count` digits after the point, cut (not rounded).
    std::string FractionDigits(int count) const;
    double ToDouble() const;
};

// Up to 15 significant digits of a double, correctly rounded. Infinities and NaN are
// not numbers the runtime could hold; callers deal with them first.
DecimalDigits DigitsOf(double value);
// All the digits of an integer.
DecimalDigits DigitsOf(std::int64_t value);

enum class TieRule { AwayFromZero, ToEven };
// Keeps `decimals` digits after the point (a negative count rounds left of it).
DecimalDigits RoundDigits(DecimalDigits number, int decimals, TieRule tie);
// Keeps `count` significant digits.
DecimalDigits RoundSignificant(DecimalDigits number, int count, TieRule tie);

}  // namespace platform::detail
