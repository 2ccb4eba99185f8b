// How the database's values cross between SQLite and the platform's variant. Dates
// are stored as 'YYYY-MM-DD HH:MM:SS' text, so that they sort and compare as text
// and read back as dates wherever a column is declared as one.
#pragma once

#include <string>
#include <string_view>

#include <sqlite3.h>

#include "platform/value.h"

namespace server {

// The one text form of a date-time in the database.
std::string DateTimeText(platform::Date date);

// Binds a value to the 1-based parameter. Empty and Null bind as NULL, a date as its
// text, a boolean as 1 or 0.
void BindValue(sqlite3_stmt* statement, int index, const platform::Value& value);

// The value of a column of the current row. declaredType is the column's declared
// type (null for an expression): DATETIME and DATE columns give dates, BIT columns
// integers.
platform::Value ColumnValue(sqlite3_stmt* statement, int column, const char* declaredType);

// True for exactly "YYYY-MM-DD HH:MM:SS".
bool LooksLikeDateTimeText(std::string_view text);

}  // namespace server
