// Shared by the server's tests: a scratch folder, a small database of the
// application's own shape, and results written as text for comparison.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "platform/database.h"
#include "server/embedded_connection.h"
#include "server/procedure_registry.h"

namespace server::testkit {

// A fresh folder, removed with everything in it at the end of the test.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    std::string File(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

// Customers, items, batches, dispatches and the rest, a few rows each, with the
// column types and collations of the real schema where they matter.
std::string SmallSchema();

// A new database with SmallSchema at path, opened with the given registry.
std::shared_ptr<EmbeddedConnection> MakeSmallDatabase(const std::string& path, const ProcedureRegistry& registry,
                                                      int busyTimeoutMs = 5000);

// Rows as "a|b;c|d": Null as NULL, dates as 'YYYY-MM-DD HH:MM:SS' with a D: prefix.
std::string RowsText(const platform::ResultSet& result);
std::string RowsText(const platform::RecordsetPtr& recordset);  // its first result

// The description of the database error the action raises (any other error fails the
// test); "(no error)" when it goes through.
std::string Refusal(const std::function<void()>& action);

// The local date and time, to the second.
platform::Date LocalNow();

}  // namespace server::testkit
