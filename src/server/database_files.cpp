#include "server/database_files.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <thread>

#include <sqlite3.h>

#include "platform/runtime_error.h"
#include "server/sqlite_error.h"

namespace server {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Refuse(const std::string& message) {
    throw platform::RuntimeError(platform::err::DatabaseError, message);
}

bool MissingOrEmpty(const std::string& path) {
    std::error_code error;
    if (!fs::exists(path, error)) return true;
    return fs::is_regular_file(path, error) && fs::file_size(path, error) == 0;
}

void RequireExisting(const std::string& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) Refuse("The database file '" + path + "' does not exist.");
}

void RequireNew(const std::string& path) {
    if (!MissingOrEmpty(path)) Refuse("The database file '" + path + "' exists already; it is left as it is.");
}

// The file and the companions SQLite keeps next to it.
void RemoveDatabaseFiles(const std::string& path) {
    std::error_code ignored;
    for (const char* suffix : {"", "-wal", "-shm", "-journal"}) fs::remove(path + suffix, ignored);
}

struct HandleCloser {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
};
using Handle = std::unique_ptr<sqlite3, HandleCloser>;

Handle OpenRaw(const std::string& path, int flags) {
    sqlite3* raw = nullptr;
    int code = sqlite3_open_v2(path.c_str(), &raw, flags, nullptr);
    Handle handle(raw);
    if (code != SQLITE_OK) Refuse(std::string(raw ? sqlite3_errmsg(raw) : sqlite3_errstr(code)) + ": " + path);
    sqlite3_busy_timeout(raw, 5000);
    return handle;
}

void Backup(sqlite3* source, sqlite3* destination) {
    sqlite3_backup* backup = sqlite3_backup_init(destination, "main", source, "main");
    if (!backup) ThrowSqliteError(destination);
    int code = SQLITE_OK;
    // All pages in one step; a writer holding the source only makes it wait.
    for (int attempt = 0; attempt < 100; ++attempt) {
        code = sqlite3_backup_step(backup, -1);
        if (code != SQLITE_BUSY && code != SQLITE_LOCKED) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    sqlite3_backup_finish(backup);
    if (code != SQLITE_DONE) ThrowSqliteError(code);
}

// Read straight off a handle, so that a file can be checked without being changed.
bool SaysDispatch(sqlite3* handle) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle, "SELECT Value FROM SchemaInfo WHERE Name = 'Application'", -1, &statement,
                           nullptr) != SQLITE_OK) {
        sqlite3_finalize(statement);
        return false;  // no such table, or not a database at all
    }
    bool ours = false;
    if (sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_type(statement, 0) == SQLITE_TEXT) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        ours = std::string(text) == "Dispatch" && sqlite3_step(statement) == SQLITE_DONE;
    }
    sqlite3_finalize(statement);
    return ours;
}

}  // namespace

bool IsDispatchDatabase(EmbeddedConnection& connection) { return SaysDispatch(connection.Database().Handle()); }

std::shared_ptr<EmbeddedConnection> OpenEmbedded(const std::string& path, const EmbeddedConnection::Options& options) {
    RequireExisting(path);
    std::shared_ptr<EmbeddedConnection> connection;
    try {
        EmbeddedConnection::Options existing = options;
        existing.create = false;
        connection = std::make_shared<EmbeddedConnection>(path, existing);
    } catch (const platform::RuntimeError& error) {
        Refuse("'" + path + "' is not a dispatch database (" + error.Description() + ").");
    }
    if (!IsDispatchDatabase(*connection)) Refuse("'" + path + "' is not a dispatch database.");
    return connection;
}

std::shared_ptr<EmbeddedConnection> OpenEmbedded(const std::string& path) {
    return OpenEmbedded(path, EmbeddedConnection::Options{});
}

platform::ConnectionPtr OpenDatabase(const std::string& path) { return OpenEmbedded(path); }

std::shared_ptr<EmbeddedConnection> CreateDatabaseFromScripts(const std::string& path,
                                                              const std::vector<std::string>& scripts) {
    RequireNew(path);
    try {
        EmbeddedConnection::Options options;
        options.create = true;
        auto connection = std::make_shared<EmbeddedConnection>(path, options);
        connection->ExecuteScript("BEGIN IMMEDIATE");
        try {
            for (const auto& script : scripts) connection->ExecuteScript(script);
            if (!IsDispatchDatabase(*connection))
                Refuse("The scripts did not make a dispatch database: SchemaInfo lacks ('Application', 'Dispatch').");
            connection->ExecuteScript("COMMIT");
        } catch (...) {
            if (connection->InTransaction()) connection->ExecuteScript("ROLLBACK");
            throw;
        }
        return connection;
    } catch (...) {
        RemoveDatabaseFiles(path);
        throw;
    }
}

void CopyDatabase(const std::string& from, const std::string& to) {
    RequireExisting(from);
    Handle source = OpenRaw(from, SQLITE_OPEN_READONLY);
    if (!SaysDispatch(source.get())) Refuse("'" + from + "' is not a dispatch database.");
    RequireNew(to);
    try {
        Handle destination = OpenRaw(to, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        Backup(source.get(), destination.get());
        char* error = nullptr;
        if (sqlite3_exec(destination.get(), "PRAGMA journal_mode=WAL", nullptr, nullptr, &error) != SQLITE_OK) {
            std::string message = error ? error : "journal mode";
            sqlite3_free(error);
            Refuse(message);
        }
    } catch (...) {
        RemoveDatabaseFiles(to);
        throw;
    }
}

}  // namespace server
