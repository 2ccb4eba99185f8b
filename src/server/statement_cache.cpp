#include "server/statement_cache.h"

#include "server/sqlite_error.h"

namespace server {
namespace {

std::string TrimmedTail(const char* tail) {
    std::string text = tail ? tail : "";
    auto first = text.find_first_not_of(" \t\r\n;");
    return first == std::string::npos ? std::string() : text.substr(first);
}

}  // namespace

StatementCache::StatementCache(sqlite3* database, std::size_t capacity) : database_(database), capacity_(capacity) {}

StatementCache::~StatementCache() { Clear(); }

StatementCache::Prepared StatementCache::Prepare(const std::string& sql) {
    if (auto found = index_.find(sql); found != index_.end()) {
        order_.splice(order_.begin(), order_, found->second);
        sqlite3_stmt* statement = found->second->second;
        sqlite3_reset(statement);
        sqlite3_clear_bindings(statement);
        return {statement, false, {}};
    }

    sqlite3_stmt* statement = nullptr;
    const char* tail = nullptr;
    if (sqlite3_prepare_v2(database_, sql.c_str(), static_cast<int>(sql.size()) + 1, &statement, &tail) != SQLITE_OK)
        ThrowSqliteError(database_);
    std::string rest = TrimmedTail(tail);
    // A text of only blanks or a comment prepares to no statement at all.
    if (statement == nullptr || !rest.empty()) return {statement, true, std::move(rest)};

    if (order_.size() >= capacity_) {
        sqlite3_finalize(order_.back().second);
        index_.erase(order_.back().first);
        order_.pop_back();
    }
    order_.emplace_front(sql, statement);
    index_[sql] = order_.begin();
    return {statement, false, {}};
}

void StatementCache::Clear() {
    for (auto& entry : order_) sqlite3_finalize(entry.second);
    order_.clear();
    index_.clear();
}

}  // namespace server
