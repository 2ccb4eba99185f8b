#include "server/procedure_arguments.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/sqlite_values.h"

namespace server {
namespace {

using Kind = platform::Value::Kind;

[[noreturn]] void ThrowServer(const std::string& message) {
    throw platform::RuntimeError(platform::err::DatabaseError, message);
}

[[noreturn]] void ThrowWrongType() {
    throw platform::RuntimeError(3421, "Application uses a value of the wrong type for the current operation.");
}

bool Absent(const platform::Value& value) { return value.IsNull() || value.IsEmpty(); }

std::string Trimmed(const std::string& text) {
    auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) return {};
    auto last = text.find_last_not_of(" \t\r\n");
    return text.substr(first, last - first + 1);
}

platform::Value CheckedInt(double value) {
    double whole = std::trunc(value);
    if (whole < std::numeric_limits<std::int32_t>::min() || whole > std::numeric_limits<std::int32_t>::max())
        ThrowServer("Arithmetic overflow error converting expression to data type int.");
    return static_cast<long long>(whole);
}

// The server reads a number out of text strictly: blanks around it, nothing else.
std::optional<double> StrictNumber(const std::string& text) {
    std::string trimmed = Trimmed(text);
    if (trimmed.empty()) return 0.0;
    const char* begin = trimmed.c_str();
    char* end = nullptr;
    double value = std::strtod(begin, &end);
    if (end != begin + trimmed.size() || !std::isfinite(value)) return std::nullopt;
    // strtod reads "inf", "nan" and hex floats, which the server does not.
    for (char c : trimmed)
        if (!std::isdigit(static_cast<unsigned char>(c)) && c != '.' && c != '-' && c != '+' && c != 'e' && c != 'E')
            return std::nullopt;
    return value;
}

}  // namespace

platform::Value CoerceToParameterType(const platform::Parameter& parameter) {
    const platform::Value& value = parameter.value;
    if (Absent(value)) return platform::Value::Null();
    const bool text = value.kind() == Kind::Text;
    auto number = [&]() -> double {
        if (value.kind() == Kind::Date) return value.AsDate().serial;
        if (value.kind() == Kind::Boolean) return value.AsBoolean() ? -1.0 : 0.0;
        if (text && !platform::IsNumericText(value.AsText())) ThrowWrongType();
        return platform::ToNumber(value);
    };
    switch (parameter.type) {
        case platform::adtype::Integer: return static_cast<long long>(platform::CLng(number()));
        case platform::adtype::Double: return number();
        case platform::adtype::Boolean: return number() != 0.0;
        case platform::adtype::Date: {
            if (value.kind() == Kind::Date) return value;
            if (text) {
                if (auto date = platform::ParseIsoDate(Trimmed(value.AsText()))) return *date;
                ThrowWrongType();
            }
            return platform::Date{number()};
        }
        case platform::adtype::VarChar:
            if (value.kind() == Kind::Date) return DateTimeText(value.AsDate());
            return platform::ToText(value);
        default: return value;
    }
}

platform::Value ToServerInt(const platform::Value& value) {
    switch (value.kind()) {
        case Kind::Empty:
        case Kind::Null: return platform::Value::Null();
        case Kind::Integer: return CheckedInt(static_cast<double>(value.AsInteger()));
        case Kind::Double: return CheckedInt(value.AsDouble());
        case Kind::Boolean: return value.AsBoolean() ? 1 : 0;
        case Kind::Date:
            ThrowServer(
                "Implicit conversion from data type datetime to int is not allowed. Use the CONVERT function to run "
                "this query.");
        case Kind::Text: {
            std::string trimmed = Trimmed(value.AsText());
            if (trimmed.empty()) return 0;
            long long whole = 0;
            const char* begin = trimmed.c_str() + (trimmed[0] == '+' ? 1 : 0);
            auto [end, ec] = std::from_chars(begin, trimmed.c_str() + trimmed.size(), whole);
            if (ec == std::errc::result_out_of_range)
                ThrowServer("The conversion of the varchar value '" + value.AsText() + "' overflowed an int column.");
            if (ec != std::errc() || end != trimmed.c_str() + trimmed.size())
                ThrowServer("Conversion failed when converting the varchar value '" + value.AsText() +
                            "' to data type int.");
            return CheckedInt(static_cast<double>(whole));
        }
    }
    return platform::Value::Null();
}

platform::Value ToServerFloat(const platform::Value& value) {
    switch (value.kind()) {
        case Kind::Empty:
        case Kind::Null: return platform::Value::Null();
        case Kind::Integer: return static_cast<double>(value.AsInteger());
        case Kind::Double: return value.AsDouble();
        case Kind::Boolean: return value.AsBoolean() ? 1.0 : 0.0;
        case Kind::Date:
            ThrowServer(
                "Implicit conversion from data type datetime to float is not allowed. Use the CONVERT function to run "
                "this query.");
        case Kind::Text:
            if (auto number = StrictNumber(value.AsText())) return *number;
            ThrowServer("Error converting data type varchar to float.");
    }
    return platform::Value::Null();
}

platform::Value ToServerText(const platform::Value& value) {
    switch (value.kind()) {
        case Kind::Empty:
        case Kind::Null: return platform::Value::Null();
        case Kind::Date: return DateTimeText(value.AsDate());
        case Kind::Boolean: return value.AsBoolean() ? "1" : "0";
        case Kind::Text: return value;
        default: return platform::ToText(value);
    }
}

platform::Value ToServerDateTime(const platform::Value& value) {
    switch (value.kind()) {
        case Kind::Empty:
        case Kind::Null: return platform::Value::Null();
        case Kind::Date: return DateTimeText(value.AsDate());
        case Kind::Integer:
        case Kind::Double: return DateTimeText(platform::Date{platform::ToNumber(value)});
        case Kind::Boolean:
            ThrowServer(
                "Implicit conversion from data type bit to datetime is not allowed. Use the CONVERT function to run "
                "this query.");
        case Kind::Text: {
            std::string trimmed = Trimmed(value.AsText());
            // The server's empty date is the first of its calendar.
            if (trimmed.empty()) return "1900-01-01 00:00:00";
            if (auto date = platform::ParseIsoDate(trimmed)) return DateTimeText(*date);
            ThrowServer("Conversion failed when converting date and/or time from character string.");
        }
    }
    return platform::Value::Null();
}

platform::Value ToServerBit(const platform::Value& value) {
    switch (value.kind()) {
        case Kind::Empty:
        case Kind::Null: return platform::Value::Null();
        case Kind::Boolean: return value.AsBoolean() ? 1 : 0;
        case Kind::Integer: return value.AsInteger() != 0 ? 1 : 0;
        case Kind::Double: return value.AsDouble() != 0.0 ? 1 : 0;
        case Kind::Date:
            ThrowServer(
                "Implicit conversion from data type datetime to bit is not allowed. Use the CONVERT function to run "
                "this query.");
        case Kind::Text: {
            std::string trimmed = platform::UCase(Trimmed(value.AsText()));
            if (trimmed == "TRUE") return 1;
            if (trimmed == "FALSE") return 0;
            if (auto number = StrictNumber(trimmed); number && !trimmed.empty()) return *number != 0.0 ? 1 : 0;
            ThrowServer("Conversion failed when converting the varchar value '" + value.AsText() +
                        "' to data type bit.");
        }
    }
    return platform::Value::Null();
}

ProcedureArguments::ProcedureArguments(std::string procedure, const platform::ParameterList& parameters,
                                       std::vector<std::string> declaredNames)
    : procedure_(std::move(procedure)), declaredNames_(std::move(declaredNames)) {
    values_.reserve(parameters.size());
    for (const auto& parameter : parameters) values_.push_back(CoerceToParameterType(parameter));
}

void ProcedureArguments::ExpectAtMost(std::size_t count) const {
    if (values_.size() > count) ThrowServer("Procedure or function " + procedure_ + " has too many arguments.");
}

const platform::Value& ProcedureArguments::Required(std::size_t index) const {
    if (index >= values_.size()) {
        std::string name = index < declaredNames_.size() ? declaredNames_[index] : "@" + std::to_string(index + 1);
        ThrowServer("Procedure or function '" + procedure_ + "' expects parameter '" + name +
                    "', which was not supplied.");
    }
    return values_[index];
}

platform::Value ProcedureArguments::Int(std::size_t index) const { return ToServerInt(Required(index)); }
platform::Value ProcedureArguments::Float(std::size_t index) const { return ToServerFloat(Required(index)); }
platform::Value ProcedureArguments::Text(std::size_t index) const { return ToServerText(Required(index)); }
platform::Value ProcedureArguments::DateTime(std::size_t index) const { return ToServerDateTime(Required(index)); }
platform::Value ProcedureArguments::Bit(std::size_t index) const { return ToServerBit(Required(index)); }

platform::Value ProcedureArguments::Int(std::size_t index, platform::Value byDefault) const {
    return Supplied(index) ? Int(index) : ToServerInt(byDefault);
}
platform::Value ProcedureArguments::Float(std::size_t index, platform::Value byDefault) const {
    return Supplied(index) ? Float(index) : ToServerFloat(byDefault);
}
platform::Value ProcedureArguments::Text(std::size_t index, platform::Value byDefault) const {
    return Supplied(index) ? Text(index) : ToServerText(byDefault);
}
platform::Value ProcedureArguments::DateTime(std::size_t index, platform::Value byDefault) const {
    return Supplied(index) ? DateTime(index) : ToServerDateTime(byDefault);
}

long long ProcedureArguments::IntOr(std::size_t index, long long fallback) const {
    platform::Value value = Int(index, platform::Value::Null());
    return value.IsNull() ? fallback : value.AsInteger();
}

double ProcedureArguments::FloatOr(std::size_t index, double fallback) const {
    platform::Value value = Float(index, platform::Value::Null());
    return value.IsNull() ? fallback : value.AsDouble();
}

std::string ProcedureArguments::TextOr(std::size_t index, const std::string& fallback) const {
    platform::Value value = Text(index, platform::Value::Null());
    return value.IsNull() ? fallback : value.AsText();
}

}  // namespace server
