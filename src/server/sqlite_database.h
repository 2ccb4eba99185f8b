// One open SQLite database file: the handle, its settings and the running of
// statements with bound values into materialised results.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <sqlite3.h>

#include "platform/database.h"
#include "server/statement_cache.h"

namespace server {

struct DatabaseOptions {
    int busyTimeoutMs = 5000;  // how long a writer waits for another's lock
    bool create = false;       // make the file when it is not there
};

class SqliteDatabase {
public:
    SqliteDatabase(const std::string& path, const DatabaseOptions& options);
    ~SqliteDatabase();
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;

    sqlite3* Handle() const { return handle_; }
    const std::string& Path() const { return path_; }

    // Runs one statement with its "?" parameters bound in order. A query answers
    // with its rows; any other statement with rowsAffected.
    platform::ResultSet Run(const std::string& sql, const std::vector<platform::Value>& bind = {});

    // Runs every statement of the text. The result is the last one that had
    // columns, else the last one.
    platform::ResultSet RunAll(const std::string& sql);

    // Runs a script of statements, answering nothing (schema and data scripts).
    void Exec(const std::string& script);

    bool InTransaction() const { return sqlite3_get_autocommit(handle_) == 0; }
    long long LastInsertId() const { return sqlite3_last_insert_rowid(handle_); }
    long long TotalChanges() const { return sqlite3_total_changes64(handle_); }

private:
    platform::ResultSet Step(sqlite3_stmt* statement, const std::vector<platform::Value>& bind);

    std::string path_;
    sqlite3* handle_ = nullptr;
    std::unique_ptr<StatementCache> cache_;
};

}  // namespace server
