// The variant every database value arrives in, as the old runtime had it:
// Empty (never assigned), Null (no value in the database), and the plain kinds.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace platform {

// A date is a day number counted from 1899-12-30, the time of day as the fraction.
struct Date {
    double serial = 0.0;
    friend bool operator==(const Date&, const Date&) = default;
};

class Value {
public:
    enum class Kind { Empty, Null, Integer, Double, Text, Date, Boolean };

    Value() = default;
    static Value Null() {
        Value v;
        v.data_ = NullTag{};
        return v;
    }
    Value(int n) : data_(std::int64_t{n}) {}
    Value(long n) : data_(std::int64_t{n}) {}
    Value(long long n) : data_(std::int64_t{n}) {}
    Value(double d) : data_(d) {}
    Value(bool b) : data_(b) {}
    Value(Date d) : data_(d) {}
    Value(std::string s) : data_(std::move(s)) {}
    Value(const char* s) : data_(std::string(s)) {}

    Kind kind() const { return static_cast<Kind>(data_.index()); }
    bool IsNull() const { return kind() == Kind::Null; }
    bool IsEmpty() const { return kind() == Kind::Empty; }
    bool IsNumeric() const { return kind() == Kind::Integer || kind() == Kind::Double || kind() == Kind::Boolean; }

    std::int64_t AsInteger() const { return std::get<std::int64_t>(data_); }
    double AsDouble() const { return std::get<double>(data_); }
    const std::string& AsText() const { return std::get<std::string>(data_); }
    Date AsDate() const { return std::get<Date>(data_); }
    bool AsBoolean() const { return std::get<bool>(data_); }

    friend bool operator==(const Value&, const Value&) = default;

private:
    struct EmptyTag {
        friend bool operator==(EmptyTag, EmptyTag) { return true; }
    };
    struct NullTag {
        friend bool operator==(NullTag, NullTag) { return true; }
    };
    // The order of the alternatives is the order of Kind.
    std::variant<EmptyTag, NullTag, std::int64_t, double, std::string, Date, bool> data_;
};

}  // namespace platform
