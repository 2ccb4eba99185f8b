#include "server_test_support.h"

#include <ctime>

#include <gtest/gtest.h>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/database_files.h"
#include "server/sqlite_values.h"
#include "support/scratch_files.h"

namespace server::testkit {

namespace {

std::string ValueText(const platform::Value& value) {
    using Kind = platform::Value::Kind;
    switch (value.kind()) {
        case Kind::Empty: return "EMPTY";
        case Kind::Null: return "NULL";
        case Kind::Date: return "D:" + DateTimeText(value.AsDate());
        case Kind::Double: return platform::NumberToText(value.AsDouble()) + "r";
        default: return platform::ToText(value);
    }
}

}  // namespace

std::string RowsText(const platform::ResultSet& result) {
    std::string out;
    for (std::size_t r = 0; r < result.rows.size(); ++r) {
        if (r) out += ';';
        for (std::size_t c = 0; c < result.rows[r].size(); ++c) {
            if (c) out += '|';
            out += ValueText(result.rows[r][c]);
        }
    }
    return out;
}

std::string RowsText(const platform::RecordsetPtr& recordset) { return RowsText(recordset->Current()); }

std::string Refusal(const std::function<void()>& action, long number) {
    try {
        action();
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.Number(), number) << error.Description();
        return error.Description();
    }
    return "(no error)";
}

DemoDatabase::DemoDatabase() : path_(test_support::ScratchPath("demo", ".db")), db_(CreateDatabase(path_, true)) {}

platform::Date DemoDatabase::Today() { return platform::DateOnly(LocalNow()); }

platform::Date LocalNow() {
    std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return platform::DateTime(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                              local.tm_sec);
}

}  // namespace server::testkit
