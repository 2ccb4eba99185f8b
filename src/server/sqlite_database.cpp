#include "server/sqlite_database.h"

#include <optional>

#include "platform/runtime_error.h"
#include "server/sqlite_error.h"
#include "server/sqlite_values.h"

namespace server {
namespace {

constexpr std::size_t kCachedStatements = 256;

// Leaves a statement reset and unbound however its run ended, so that a cached
// statement never holds a read lock or a stale value.
class ResetGuard {
public:
    explicit ResetGuard(sqlite3_stmt* statement) : statement_(statement) {}
    ~ResetGuard() {
        sqlite3_reset(statement_);
        sqlite3_clear_bindings(statement_);
    }
    ResetGuard(const ResetGuard&) = delete;
    ResetGuard& operator=(const ResetGuard&) = delete;

private:
    sqlite3_stmt* statement_;
};

struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using OwnedStatement = std::unique_ptr<sqlite3_stmt, Finalizer>;

}  // namespace

SqliteDatabase::SqliteDatabase(const std::string& path, const DatabaseOptions& options) : path_(path) {
    int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_FULLMUTEX | (options.create ? SQLITE_OPEN_CREATE : 0);
    int code = sqlite3_open_v2(path.c_str(), &handle_, flags, nullptr);
    if (code != SQLITE_OK) {
        std::string message = handle_ ? sqlite3_errmsg(handle_) : sqlite3_errstr(code);
        sqlite3_close(handle_);
        handle_ = nullptr;
        throw platform::RuntimeError(platform::err::DatabaseError, message + ": " + path);
    }
    sqlite3_extended_result_codes(handle_, 1);
    sqlite3_busy_timeout(handle_, options.busyTimeoutMs);
    cache_ = std::make_unique<StatementCache>(handle_, kCachedStatements);
    try {
        // WAL lets readers go on while one clerk saves; the busy timeout makes a
        // second writer wait for the first instead of failing at once. The rows of
        // table functions pass through temporary tables, which cost little in memory.
        Exec("PRAGMA journal_mode=WAL; PRAGMA foreign_keys=ON; PRAGMA temp_store=MEMORY;");
    } catch (...) {
        cache_.reset();
        sqlite3_close(handle_);
        throw;
    }
}

SqliteDatabase::~SqliteDatabase() {
    cache_.reset();
    sqlite3_close(handle_);
}

platform::ResultSet SqliteDatabase::Run(const std::string& sql, const std::vector<platform::Value>& bind) {
    auto prepared = cache_->Prepare(sql);
    OwnedStatement owned(prepared.owned ? prepared.statement : nullptr);
    if (!prepared.tail.empty())
        throw platform::RuntimeError(platform::err::DatabaseError,
                                     "Only one statement may be run here; found more after: " + prepared.tail);
    if (prepared.statement == nullptr) return {};
    return Step(prepared.statement, bind);
}

platform::ResultSet SqliteDatabase::RunAll(const std::string& sql) {
    platform::ResultSet last;
    std::string rest = sql;
    while (!rest.empty()) {
        auto prepared = cache_->Prepare(rest);
        OwnedStatement owned(prepared.owned ? prepared.statement : nullptr);
        if (prepared.statement != nullptr) {
            platform::ResultSet result = Step(prepared.statement, {});
            if (!result.columns.empty() || last.columns.empty()) last = std::move(result);
        }
        rest = prepared.tail;
    }
    return last;
}

void SqliteDatabase::Exec(const std::string& script) {
    char* error = nullptr;
    if (sqlite3_exec(handle_, script.c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
        std::string message = error ? error : sqlite3_errmsg(handle_);
        sqlite3_free(error);
        throw platform::RuntimeError(platform::err::DatabaseError, message);
    }
}

platform::ResultSet SqliteDatabase::Step(sqlite3_stmt* statement, const std::vector<platform::Value>& bind) {
    ResetGuard guard(statement);
    const int expected = sqlite3_bind_parameter_count(statement);
    if (expected != static_cast<int>(bind.size()))
        throw platform::RuntimeError(platform::err::DatabaseError, "The statement takes " + std::to_string(expected) +
                                                                       " value(s), " + std::to_string(bind.size()) +
                                                                       " given: " + sqlite3_sql(statement));
    for (std::size_t i = 0; i < bind.size(); ++i) BindValue(statement, static_cast<int>(i) + 1, bind[i]);

    platform::ResultSet result;
    const long long changesBefore = TotalChanges();
    // The columns are read after the first step: a statement prepared before a
    // change of schema is prepared again inside sqlite3_step, and what it said
    // about its columns before then is gone.
    int columns = -1;
    std::vector<std::optional<std::string>> declared;
    for (;;) {
        int code = sqlite3_step(statement);
        if (code != SQLITE_ROW && code != SQLITE_DONE) ThrowSqliteError(handle_);
        if (columns < 0) {
            columns = sqlite3_column_count(statement);
            for (int c = 0; c < columns; ++c) {
                result.columns.emplace_back(sqlite3_column_name(statement, c));
                const char* type = sqlite3_column_decltype(statement, c);
                declared.push_back(type ? std::optional<std::string>(type) : std::nullopt);
            }
        }
        if (code == SQLITE_DONE) break;
        std::vector<platform::Value> row;
        row.reserve(static_cast<std::size_t>(columns));
        for (int c = 0; c < columns; ++c) {
            const auto& type = declared[static_cast<std::size_t>(c)];
            row.push_back(ColumnValue(statement, c, type ? type->c_str() : nullptr));
        }
        result.rows.push_back(std::move(row));
    }
    // sqlite3_changes keeps the count of the last INSERT, UPDATE or DELETE, so a
    // statement that changed nothing (or was not one of those) reports 0 itself.
    if (columns == 0)
        result.rowsAffected = TotalChanges() == changesBefore ? 0 : static_cast<long>(sqlite3_changes64(handle_));
    return result;
}

}  // namespace server
