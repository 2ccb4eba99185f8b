// The parameters of a procedure call as the procedure sees them. They arrive as the
// screen sent them, a value and a type code each; the connection library first made
// the value into that type, and the server then converted it to the type the
// procedure declared. Both steps are kept, with the server's refusals.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/database.h"

namespace server {

// The connection library's step: the value made into the parameter's type code
// (3 rounds a number half to even, 200 writes a number as text ...). A value that
// cannot be made into the type raises error 3421.
platform::Value CoerceToParameterType(const platform::Parameter& parameter);

// The server's step: a value converted to a declared type. Null stays Null.
platform::Value ToServerInt(const platform::Value& value);       // '12' -> 12, 12.7 -> 12, '' -> 0
platform::Value ToServerFloat(const platform::Value& value);     // '12.5' -> 12.5, '' -> 0
platform::Value ToServerText(const platform::Value& value);      // 12 -> '12', a date -> 'YYYY-MM-DD HH:MM:SS'
platform::Value ToServerDateTime(const platform::Value& value);  // a date or date text -> 'YYYY-MM-DD HH:MM:SS'
platform::Value ToServerBit(const platform::Value& value);       // any number but 0 -> 1

class ProcedureArguments {
public:
    // declaredNames ("@ItemCode", ...) only serve the server's messages.
    ProcedureArguments(std::string procedure, const platform::ParameterList& parameters,
                       std::vector<std::string> declaredNames = {});

    std::size_t Count() const { return values_.size(); }
    bool Supplied(std::size_t index) const { return index < values_.size(); }
    // The server refused a call with more arguments than the procedure declared.
    void ExpectAtMost(std::size_t count) const;

    // The argument converted to the declared type. A missing one raises the server's
    // error; the second forms stand for a parameter declared with a default.
    platform::Value Int(std::size_t index) const;
    platform::Value Float(std::size_t index) const;
    platform::Value Text(std::size_t index) const;
    platform::Value DateTime(std::size_t index) const;
    platform::Value Bit(std::size_t index) const;
    platform::Value Int(std::size_t index, platform::Value byDefault) const;
    platform::Value Float(std::size_t index, platform::Value byDefault) const;
    platform::Value Text(std::size_t index, platform::Value byDefault) const;
    platform::Value DateTime(std::size_t index, platform::Value byDefault) const;

    // The same as plain values, Null giving the fallback.
    long long IntOr(std::size_t index, long long fallback) const;
    double FloatOr(std::size_t index, double fallback) const;
    std::string TextOr(std::size_t index, const std::string& fallback) const;

private:
    const platform::Value& Required(std::size_t index) const;

    std::string procedure_;
    std::vector<platform::Value> values_;
    std::vector<std::string> declaredNames_;
};

}  // namespace server
