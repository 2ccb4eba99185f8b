// An in-memory SQLite database for the schema and demo data tests, driven straight
// through the C API so that these tests do not depend on the server's connection.
#pragma once

#include <sqlite3.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace schema_test {

class TestDb {
public:
    TestDb() {
        if (sqlite3_open(":memory:", &db_) != SQLITE_OK) throw std::runtime_error("cannot open an in-memory database");
        Exec("PRAGMA foreign_keys = ON;");
    }
    ~TestDb() { sqlite3_close(db_); }
    TestDb(const TestDb&) = delete;
    TestDb& operator=(const TestDb&) = delete;

    // Runs a script; the error message, or "" when every statement went through.
    std::string Exec(const std::string& sql) {
        char* error = nullptr;
        if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &error) == SQLITE_OK) return "";
        std::string message = error ? error : "unknown error";
        sqlite3_free(error);
        return message.empty() ? "unknown error" : message;
    }

    // Every row of a query, each field as text; NULL reads "NULL".
    std::vector<std::vector<std::string>> Rows(const std::string& sql) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(std::string("bad query: ") + sqlite3_errmsg(db_) + " in " + sql);
        std::vector<std::vector<std::string>> rows;
        int step;
        while ((step = sqlite3_step(statement)) == SQLITE_ROW) {
            std::vector<std::string> row;
            for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                const unsigned char* text = sqlite3_column_text(statement, i);
                row.emplace_back(text ? reinterpret_cast<const char*>(text) : "NULL");
            }
            rows.push_back(std::move(row));
        }
        const std::string error = sqlite3_errmsg(db_);
        sqlite3_finalize(statement);
        if (step != SQLITE_DONE) throw std::runtime_error("query failed: " + error + " in " + sql);
        return rows;
    }

    // The first field of the first row as text; "<no row>" when there is none.
    std::string Text(const std::string& sql) {
        const auto rows = Rows(sql);
        return rows.empty() || rows.front().empty() ? "<no row>" : rows.front().front();
    }
    long long Integer(const std::string& sql) { return std::stoll(Text(sql)); }
    double Real(const std::string& sql) { return std::stod(Text(sql)); }

    // The rows of PRAGMA foreign_key_check, one "table rowid parent" text each.
    std::vector<std::string> ForeignKeyViolations() {
        std::vector<std::string> out;
        for (const auto& row : Rows("PRAGMA foreign_key_check"))
            out.push_back(row.at(0) + " row " + row.at(1) + " -> " + row.at(2));
        return out;
    }

private:
    sqlite3* db_ = nullptr;
};

}  // namespace schema_test
