// A stored date as the runtime's CDate takes it: a date, a date text or a day number;
// anything else is a type mismatch.
#pragma once

#include "platform/convert.h"
#include "platform/runtime_error.h"

namespace screen {

inline platform::Date StoredDate(const platform::Value& value) {
    if (value.kind() == platform::Value::Kind::Date) return value.AsDate();
    if (value.IsNumeric()) return platform::Date{platform::ToNumber(value)};
    if (auto date = platform::ParseIsoDate(platform::ToText(value))) return *date;
    throw platform::RuntimeError(platform::err::TypeMismatch);
}

}  // namespace screen
