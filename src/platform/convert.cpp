#include "platform/convert.h"

#include <cmath>
#include <string>

#include "platform/convert_decimal.h"
#include "platform/convert_parse.h"
#include "platform/runtime_error.h"

namespace platform {

namespace {

// Beyond this range of decimal exponents the runtime switched to E notation.
constexpr int kSmallestFixedExponent = -4;
constexpr int kLargestFixedExponent = 14;

std::string ScientificText(const detail::DecimalDigits& number) {
    const int exponent = number.pointPosition - 1;
    std::string text = number.digits.substr(0, 1);
    if (number.digits.size() > 1) text += "." + number.digits.substr(1);
    std::string exponentDigits = std::to_string(std::abs(exponent));
    if (exponentDigits.size() < 2) exponentDigits.insert(0, "0");
    return text + (exponent < 0 ? "E-" : "E+") + exponentDigits;
}

std::string FixedText(const detail::DecimalDigits& number) {
    std::string text = number.IntegerDigits();
    if (text.empty()) text = "0";
    const int fractionLength = static_cast<int>(number.digits.size()) - number.pointPosition;
    if (fractionLength > 0) text += "." + number.FractionDigits(fractionLength);
    return text;
}

}  // namespace

std::string NumberToText(double value) {
    if (std::isnan(value)) return "-1.#IND";
    if (std::isinf(value)) return value < 0 ? "-1.#INF" : "1.#INF";
    const detail::DecimalDigits number = detail::DigitsOf(value);
    if (number.IsZero()) return "0";
    const int exponent = number.pointPosition - 1;
    const bool fixed = exponent >= kSmallestFixedExponent && exponent <= kLargestFixedExponent;
    return (number.negative ? "-" : "") + (fixed ? FixedText(number) : ScientificText(number));
}

std::string ToText(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Empty:
        case Value::Kind::Null: return {};
        case Value::Kind::Integer: return std::to_string(value.AsInteger());
        case Value::Kind::Double: return NumberToText(value.AsDouble());
        case Value::Kind::Text: return value.AsText();
        case Value::Kind::Date: return DateToText(value.AsDate());
        case Value::Kind::Boolean: return value.AsBoolean() ? "True" : "False";
    }
    return {};
}

namespace {
// The runtime's True is -1.
double BooleanNumber(bool b) { return b ? -1.0 : 0.0; }
}  // namespace

double ToNumber(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Empty:
        case Value::Kind::Null: return 0.0;
        // A text that is a number too large to hold raises error 6 rather than
        // passing for 0: the figure is wrong, not absent.
        case Value::Kind::Text: return detail::ParseWholeNumber(value.AsText()).value_or(0.0);
        default: return CDbl(value);
    }
}

bool IsNumericText(std::string_view text) {
    try {
        return detail::ParseWholeNumber(text).has_value();
    } catch (const RuntimeError&) {
        return true;  // a number, only too large to hold
    }
}

bool IsNumeric(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Empty:
        case Value::Kind::Integer:
        case Value::Kind::Double:
        case Value::Kind::Boolean: return true;
        case Value::Kind::Text: return IsNumericText(value.AsText());
        case Value::Kind::Null:
        case Value::Kind::Date: return false;
    }
    return false;
}

double CDbl(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Empty: return 0.0;
        case Value::Kind::Null: throw RuntimeError(94);
        case Value::Kind::Integer: return static_cast<double>(value.AsInteger());
        case Value::Kind::Double: return value.AsDouble();
        case Value::Kind::Text: {
            const auto number = detail::ParseWholeNumber(value.AsText());
            if (!number) throw RuntimeError(err::TypeMismatch);
            return *number;
        }
        case Value::Kind::Date: return value.AsDate().serial;
        case Value::Kind::Boolean: return BooleanNumber(value.AsBoolean());
    }
    throw RuntimeError(err::TypeMismatch);
}

double Val(std::string_view text) { return detail::ParseLeadingNumber(text); }

}  // namespace platform
