// Every SQLite failure reaches the screen as the one run-time error of the
// database, with SQLite's own description.
#pragma once

#include <sqlite3.h>

namespace server {

[[noreturn]] void ThrowSqliteError(sqlite3* database);
// For a failure that left no message on the handle (opening, backup).
[[noreturn]] void ThrowSqliteError(int code);

}  // namespace server
