#include "server/sqlite_values.h"

#include <cctype>
#include <cstdio>
#include <string>

#include "platform/convert.h"

namespace server {
namespace {

std::string Upper(const char* text) {
    std::string out = text ? text : "";
    for (char& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return out;
}

bool IsDateType(const std::string& declared) {
    return declared.find("DATE") != std::string::npos || declared.find("TIME") != std::string::npos;
}

platform::Value TextValue(std::string text, const char* declaredType) {
    const std::string declared = Upper(declaredType);
    if (IsDateType(declared) || (declaredType == nullptr && LooksLikeDateTimeText(text))) {
        // An expression over a date column (Max(DispatchDate), getdate()) has no
        // declared type; its text form still says what it is.
        if (auto date = platform::ParseIsoDate(text)) return *date;
    }
    if (declared == "BIT" && platform::IsNumericText(text))
        return static_cast<long long>(platform::ToNumber(text) != 0);
    return text;
}

}  // namespace

std::string DateTimeText(platform::Date date) {
    const platform::DateParts p = platform::SplitDate(date);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", p.year, p.month, p.day, p.hour, p.minute,
                  p.second);
    return text;
}

bool LooksLikeDateTimeText(std::string_view text) {
    static constexpr std::string_view shape = "dddd-dd-dd dd:dd:dd";
    if (text.size() != shape.size()) return false;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        bool digit = std::isdigit(static_cast<unsigned char>(text[i])) != 0;
        if (shape[i] == 'd' ? !digit : text[i] != shape[i]) return false;
    }
    return true;
}

void BindValue(sqlite3_stmt* statement, int index, const platform::Value& value) {
    using Kind = platform::Value::Kind;
    switch (value.kind()) {
        case Kind::Empty:
        case Kind::Null: sqlite3_bind_null(statement, index); break;
        case Kind::Integer: sqlite3_bind_int64(statement, index, value.AsInteger()); break;
        case Kind::Double: sqlite3_bind_double(statement, index, value.AsDouble()); break;
        case Kind::Boolean: sqlite3_bind_int64(statement, index, value.AsBoolean() ? 1 : 0); break;
        case Kind::Text:
            sqlite3_bind_text(statement, index, value.AsText().data(), static_cast<int>(value.AsText().size()),
                              SQLITE_TRANSIENT);
            break;
        case Kind::Date: {
            std::string text = DateTimeText(value.AsDate());
            sqlite3_bind_text(statement, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
            break;
        }
    }
}

platform::Value ColumnValue(sqlite3_stmt* statement, int column, const char* declaredType) {
    switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER: return static_cast<long long>(sqlite3_column_int64(statement, column));
        case SQLITE_FLOAT: return sqlite3_column_double(statement, column);
        case SQLITE_NULL: return platform::Value::Null();
        default: {
            const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
            std::string text(bytes ? bytes : "", static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
            return TextValue(std::move(text), declaredType);
        }
    }
}

}  // namespace server
