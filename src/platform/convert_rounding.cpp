// Rounding and narrowing as the runtime did them.
#include <cmath>
#include <limits>

#include "platform/convert.h"
#include "platform/convert_decimal.h"
#include "platform/runtime_error.h"

namespace platform {

// Round works on the number's 15-digit decimal form, so that a figure that reads as
// a tie (2.675, 0.125) is one, whatever its binary neighbour is.
double RoundHalfEven(double value, int decimals) {
    if (decimals < 0) throw RuntimeError(err::InvalidCall);
    if (!std::isfinite(value)) return value;
    return detail::RoundDigits(detail::DigitsOf(value), decimals, detail::TieRule::ToEven).ToDouble();
}

namespace {

// CInt and CLng round the exact binary value to the nearest integer, a tie to the
// even one (the processor's own rounding), then check the range.
template <class Integer>
Integer NarrowRounded(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Integer>::max())))
        throw RuntimeError(err::Overflow);
    return static_cast<Integer>(rounded);
}

}  // namespace

std::int16_t CInt(double value) { return NarrowRounded<std::int16_t>(value); }
std::int32_t CLng(double value) { return NarrowRounded<std::int32_t>(value); }

double Int(double value) { return std::floor(value); }
double Fix(double value) { return std::trunc(value); }

}  // namespace platform
