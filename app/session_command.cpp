#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "commands.h"
#include "session/session_options.h"
#include "session/session_runner.h"

namespace app {

int RunSession(const SessionCommand& command) {
    std::ifstream file(command.script, std::ios::binary);
    if (!file || std::filesystem::is_directory(command.script)) {
        std::cerr << "dispatch: cannot read the script " << command.script << "\n";
        return session::ExitScriptWrong;
    }
    std::ostringstream text;
    text << file.rdbuf();

    if (command.database && !std::filesystem::is_regular_file(*command.database)) {
        std::cerr << "dispatch: no database file " << *command.database << "\n";
        return session::ExitScriptWrong;
    }
    if (command.printFolder && !std::filesystem::is_directory(*command.printFolder)) {
        std::cerr << "dispatch: no folder " << *command.printFolder << " for printed notes\n";
        return session::ExitScriptWrong;
    }

    session::SessionOptions options;
    options.databaseFile = command.database;
    options.traceSql = command.traceSql;
    options.printFolder = command.printFolder;
    session::SessionRunner runner(std::cout, std::cerr, std::move(options));
    return runner.Run(text.str());
}

}  // namespace app
