// The commands of the `dispatch` tool, each returning its exit status.
#pragma once

#include <optional>
#include <string>

namespace app {

struct SessionCommand {
    std::string script;
    std::optional<std::string> database;
    bool traceSql = false;
    std::optional<std::string> printFolder;
};

// Runs a session script: 0 passed, 1 a check failed, 2 the script (or the command) is wrong.
int RunSession(const SessionCommand& command);

// Writes the demo database to a file: 0 written, 1 refused or failed.
int WriteDemoDatabase(const std::string& file, bool force);

}  // namespace app
