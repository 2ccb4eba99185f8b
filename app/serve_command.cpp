#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "commands.h"
#include "web/screen_server.h"

namespace app {
namespace {

web::ScreenServer* running = nullptr;

void StopOnSignal(int) {
    if (running != nullptr) running->Stop();
}

// The demo database the server keeps when it is given none: made on the first
// start, kept after, so that what clerks saved is there the next time.
std::string DemoDatabase(const std::string& dataFolder) {
    std::filesystem::create_directories(dataFolder);
    std::string file = (std::filesystem::path(dataFolder) / "demo.db").string();
    if (!std::filesystem::exists(file) && WriteDemoDatabase(file, false) != 0)
        throw std::runtime_error("cannot make the demo database in " + dataFolder);
    return file;
}

}  // namespace

std::string DefaultDataFolder() {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data != '\0')
        return (std::filesystem::path(data) / "dispatch").string();
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0')
        return (std::filesystem::path(home) / ".local" / "share" / "dispatch").string();
    return "dispatch-data";
}

int Serve(const ServeCommand& command) {
    web::ServerSetup setup;
    try {
        setup.databaseFile = command.database ? *command.database : DemoDatabase(command.dataFolder);
        if (!std::filesystem::is_regular_file(setup.databaseFile)) {
            std::cerr << "dispatch: no database file " << setup.databaseFile << "\n";
            return 1;
        }
        setup.printFolder = command.printFolder ? *command.printFolder
                                                : (std::filesystem::path(command.dataFolder) / "printed").string();
        std::filesystem::create_directories(setup.printFolder);
    } catch (const std::exception& e) {
        std::cerr << "dispatch: " << e.what() << "\n";
        return 1;
    }
    if (command.settingsFile && !setup.settings.LoadFile(*command.settingsFile)) {
        std::cerr << "dispatch: cannot read the settings " << *command.settingsFile << ": "
                  << setup.settings.LoadError() << "\n";
        return 1;
    }
    setup.idleLimit = std::chrono::milliseconds(static_cast<long long>(command.idleMinutes * 60'000));
    if (command.logRequests) setup.log = &std::cerr;

    auto colon = command.listen.rfind(':');
    if (colon == std::string::npos) {
        std::cerr << "dispatch: --listen takes ADDRESS:PORT, not " << command.listen << "\n";
        return 1;
    }
    const std::string address = command.listen.substr(0, colon);
    int port = 0;
    try {
        port = std::stoi(command.listen.substr(colon + 1));
    } catch (const std::exception&) {
        std::cerr << "dispatch: --listen takes ADDRESS:PORT, not " << command.listen << "\n";
        return 1;
    }

    web::ScreenServer server(std::move(setup));
    try {
        port = server.Bind(address, port);
    } catch (const std::exception& e) {
        std::cerr << "dispatch: " << e.what() << "\n";
        return 1;
    }
    running = &server;
    std::signal(SIGINT, StopOnSignal);
    std::signal(SIGTERM, StopOnSignal);
    std::cout << "The dispatch screen is at http://" << address << ":" << port << "/ (database "
              << (command.database ? *command.database : "the demo database") << ")" << std::endl;
    server.Serve();
    running = nullptr;
    return 0;
}

}  // namespace app
