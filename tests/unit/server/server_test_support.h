// Shared by the server's tests: the demo database of today's date in a scratch file,
// and results written as text for comparison.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <tuple>  // the tests compare neighbouring values as one tuple

#include "platform/database.h"
#include "platform/runtime_error.h"
#include "server/embedded_connection.h"
#include "server/procedure_registry.h"

namespace server::testkit {

// Rows as "a|b;c|d": Null as NULL, dates as 'YYYY-MM-DD HH:MM:SS' with a D: prefix.
std::string RowsText(const platform::ResultSet& result);
std::string RowsText(const platform::RecordsetPtr& recordset);  // its first result

// The description of the error the action raises, which must carry the number given
// (any other error fails the test); "(no error)" when it goes through.
std::string Refusal(const std::function<void()>& action, long number = platform::err::DatabaseError);

// The local date and time, to the second.
platform::Date LocalNow();

// A fresh demo database dated from today in a scratch file, through the default
// registry; other connections to Path() may bring their own.
class DemoDatabase : public ::testing::Test {
public:
    DemoDatabase();

    EmbeddedConnection& db() { return *db_; }
    const std::string& Path() const { return path_; }
    // SQLite's own query, as RowsText gives it.
    std::string Text(const std::string& sql) { return RowsText(db_->ExecuteNative(sql)); }
    static platform::Date Today();

private:
    std::string path_;
    std::shared_ptr<EmbeddedConnection> db_;
};

}  // namespace server::testkit
