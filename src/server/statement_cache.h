// Prepared statements kept by their text. The screen sends the same few statements
// over and over (look-ups per key, per cell), so preparing each once pays.
#pragma once

#include <cstddef>
#include <list>
#include <string>
#include <unordered_map>
#include <utility>

#include <sqlite3.h>

namespace server {

class StatementCache {
public:
    StatementCache(sqlite3* database, std::size_t capacity);
    ~StatementCache();
    StatementCache(const StatementCache&) = delete;
    StatementCache& operator=(const StatementCache&) = delete;

    // The prepared statement of a text that holds exactly one statement, reset and
    // with no bindings. Statements with text left over are not cached; for those
    // tail is set and the caller owns (and finalizes) what comes back.
    struct Prepared {
        sqlite3_stmt* statement = nullptr;
        bool owned = false;  // the caller must finalize it
        std::string tail;    // text after the first statement, blanks trimmed
    };
    Prepared Prepare(const std::string& sql);

    // Finalizes every kept statement.
    void Clear();
    std::size_t Size() const { return order_.size(); }

private:
    using Entry = std::pair<std::string, sqlite3_stmt*>;
    sqlite3* database_;
    std::size_t capacity_;
    std::list<Entry> order_;  // most recently used first
    std::unordered_map<std::string, std::list<Entry>::iterator> index_;
};

}  // namespace server
