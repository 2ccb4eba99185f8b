// The count by repeated subtraction, in strides. Every value the counting can see is
// a decimal of at most 15 significant digits (the snap makes it so), which lets us
// say in advance where long runs of steps go and take them in one move:
//
//  - Common grid: the dividend and the divider sit on one decimal grid G and the
//    dividend has at most 15 digits on it. Then every step that leaves at least one
//    more divider is exact: the double subtraction is within 2^-51 of what is left,
//    below half a unit of its 15th digit, so the snap gives the decimal difference
//    back. All of those steps are one integer division.
//  - Finer divider: the divider has digits below the dividend's 15-digit grid g. In
//    one decade of the dividend every step then takes the divider rounded to g, as
//    long as the divider's part below g is further from half a g than the double
//    arithmetic's error. Those steps too are one integer division per decade.
//
// The few steps left between strides, at the end and at a decade's bottom, are taken
// one by one exactly as the counting takes them.
#include "schemes/scheme_arithmetic_quotient.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/convert.h"
#include "platform/convert_decimal.h"
#include "platform/runtime_error.h"

namespace schemes {

namespace {

// The quotient is snapped too: beyond 10^15 its text keeps 15 digits, so the count
// stands still at 10^15 + 1.
constexpr double kQuotientCeiling = 1e15 + 1;
constexpr std::int64_t kFifteenDigits = 1'000'000'000'000'000;  // 10^15
// Strides stay well inside the range of normal doubles, where the error bounds hold.
constexpr double kSmallestStrideValue = 1e-280;
constexpr double kLargestStrideValue = 1e280;

double AddToCount(double quotient, double steps) { return std::min(quotient + steps, kQuotientCeiling); }

// A positive snapped value as mantissa x 10^exponent, the mantissa of at most 15 digits.
struct Decimal {
    std::int64_t mantissa;
    int exponent;
};

Decimal DecimalOf(double value) {
    const platform::detail::DecimalDigits digits = platform::detail::DigitsOf(value);
    return {std::stoll(digits.digits), digits.pointPosition - static_cast<int>(digits.digits.size())};
}

double DoubleOf(std::int64_t mantissa, int exponent) {
    platform::detail::DecimalDigits number = platform::detail::DigitsOf(mantissa);
    number.pointPosition += exponent;
    return number.ToDouble();
}

// mantissa x 10^shift, or nothing when that reaches 10^15.
std::optional<std::int64_t> ScaleUp(std::int64_t mantissa, int shift) {
    for (int i = 0; i < shift; ++i) {
        if (mantissa >= kFifteenDigits) return std::nullopt;
        mantissa *= 10;
    }
    if (mantissa >= kFifteenDigits) return std::nullopt;
    return mantissa;
}

std::int64_t PowerOfTen(int n) {
    std::int64_t p = 1;
    for (int i = 0; i < n; ++i) p *= 10;
    return p;
}

struct Stride {
    double steps;
    double left;  // what is left of the dividend after them
};

// Common grid: all steps while at least two dividers are left.
std::optional<Stride> StrideOnCommonGrid(double dividend, double divider) {
    const Decimal d = DecimalOf(dividend), v = DecimalOf(divider);
    const int grid = std::min(d.exponent, v.exponent);
    const auto md = ScaleUp(d.mantissa, d.exponent - grid), mv = ScaleUp(v.mantissa, v.exponent - grid);
    if (!md || !mv || *md < 2 * *mv) return std::nullopt;
    const std::int64_t steps = (*md - 2 * *mv) / *mv + 1;
    return Stride{static_cast<double>(steps), DoubleOf(*md - steps * *mv, grid)};
}

// Finer divider: all steps that stay inside the dividend's decade.
std::optional<Stride> StrideInDecade(double dividend, double divider) {
    const Decimal d = DecimalOf(dividend), v = DecimalOf(divider);
    const int digitsOfD = static_cast<int>(std::to_string(d.mantissa).size());
    const int decade = d.exponent + digitsOfD - 1;  // 10^decade <= dividend < 10^(decade+1)
    const int grid = decade - 14;                   // the dividend's 15-digit grid g
    const int below = grid - v.exponent;            // the divider's digits below g
    if (below <= 0 || below > 18) return std::nullopt;

    const std::int64_t unit = PowerOfTen(below);
    const std::int64_t whole = v.mantissa / unit, part = v.mantissa % unit;
    // The double subtraction errs by at most 2^-52 of the dividend; in units of g:
    const double noise = std::ldexp(dividend, -52) / std::pow(10.0, grid) * 1.01 + 1e-9;
    const double fraction = static_cast<double>(part) / static_cast<double>(unit);
    if (std::fabs(fraction - 0.5) <= noise) return std::nullopt;
    const std::int64_t step = whole + (fraction > 0.5 ? 1 : 0);
    if (step == 0) return std::nullopt;  // the divider rounds away: the counting is stuck

    const auto md = ScaleUp(d.mantissa, d.exponent - grid);
    if (!md) return std::nullopt;
    // Keep one g above the decade's bottom, so that the difference before its snap is
    // still in the decade.
    const std::int64_t bottom = PowerOfTen(14) + 1;
    if (*md - bottom < step) return std::nullopt;
    const std::int64_t steps = (*md - bottom) / step;
    return Stride{static_cast<double>(steps), DoubleOf(*md - steps * step, grid)};
}

std::optional<Stride> NextStride(double dividend, double divider) {
    if (divider < kSmallestStrideValue || dividend > kLargestStrideValue) return std::nullopt;
    if (auto stride = StrideOnCommonGrid(dividend, divider)) return stride;
    return StrideInDecade(dividend, divider);
}

}  // namespace

double SnapThroughText(double value) { return platform::CDbl(platform::Value(platform::NumberToText(value))); }

double CountBySubtraction(double dividend, double divider) {
    const double step = SnapThroughText(divider);
    double left = SnapThroughText(dividend);
    double quotient = 0;
    if (!(step <= left)) return quotient;
    // Counting by a divider of 0 (or below) would never end. Every caller tests the
    // divider for 0 first and takes its other path, so none meets this refusal; it
    // stands so that a future caller gets error 5 instead of a hung screen.
    if (step <= 0) throw platform::RuntimeError(platform::err::InvalidCall);

    while (step <= left) {
        if (const auto stride = NextStride(left, step)) {
            quotient = AddToCount(quotient, stride->steps);
            left = stride->left;
            continue;
        }
        const double next = SnapThroughText(left - step);
        if (next == left) throw platform::RuntimeError(platform::err::InvalidCall);
        left = next;
        quotient = SnapThroughText(quotient) + 1;
    }
    return quotient;
}

}  // namespace schemes
