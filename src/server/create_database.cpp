// Kept apart from the other database files: only this one needs the schema and the
// demo data, so a program that merely opens databases does not carry them.
#include <chrono>
#include <ctime>

#include "platform/convert.h"
#include "server/database_files.h"
#include "server/demo_data.h"
#include "server/schema.h"

namespace server {
namespace {

platform::Date Today() {
    std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
    localtime_r(&now, &local);
    return platform::DateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

}  // namespace

std::shared_ptr<EmbeddedConnection> CreateDatabase(const std::string& path, bool withDemoData) {
    std::vector<std::string> scripts{SchemaScript()};
    if (withDemoData) scripts.push_back(DemoDataScript(Today()));
    return CreateDatabaseFromScripts(path, scripts);
}

}  // namespace server
