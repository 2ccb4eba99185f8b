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

struct ServeCommand {
    std::optional<std::string> database;
    std::string listen = "127.0.0.1:8080";
    std::optional<std::string> printFolder;
    std::optional<std::string> settingsFile;
    double idleMinutes = 30;
    std::string dataFolder;  // where the demo database and printed notes are kept
    bool logRequests = false;
};

// Serves the clerk's screen until stopped: 0 stopped, 1 it could not start.
int Serve(const ServeCommand& command);

// The folder the server keeps its demo database in when it is given none.
std::string DefaultDataFolder();

// Writes the demo database to a file: 0 written, 1 refused or failed.
int WriteDemoDatabase(const std::string& file, bool force);

}  // namespace app
