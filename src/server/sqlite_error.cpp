#include "server/sqlite_error.h"

#include "platform/runtime_error.h"

namespace server {

void ThrowSqliteError(sqlite3* database) {
    throw platform::RuntimeError(platform::err::DatabaseError, sqlite3_errmsg(database));
}

void ThrowSqliteError(int code) { throw platform::RuntimeError(platform::err::DatabaseError, sqlite3_errstr(code)); }

}  // namespace server
