#include <filesystem>
#include <iostream>
#include <system_error>

#include "commands.h"
#include "server/database_files.h"

namespace app {
namespace {

namespace fs = std::filesystem;

// A database file travels with its journal files; a stale journal next to a new
// file would be replayed into it.
void RemoveWithJournals(const fs::path& file) {
    std::error_code ignored;
    for (const char* suffix : {"", "-wal", "-shm", "-journal"}) fs::remove(file.string() + suffix, ignored);
}

}  // namespace

int WriteDemoDatabase(const std::string& file, bool force) {
    const fs::path target(file);
    if (fs::exists(target) && !fs::is_regular_file(target)) {
        std::cerr << "dispatch: " << file << " is not a file\n";
        return 1;
    }
    if (fs::exists(target) && !force) {
        std::cerr << "dispatch: " << file << " exists; --force replaces it\n";
        return 1;
    }

    // Made under a name of its own and moved into place at the end, so that a
    // failure leaves the file that was there as it was.
    const fs::path partial = target.string() + ".partial";
    RemoveWithJournals(partial);
    try {
        server::CreateDatabase(partial.string(), true);  // closed again at once
    } catch (const std::exception& e) {
        RemoveWithJournals(partial);
        std::cerr << "dispatch: cannot make the demo database: " << e.what() << "\n";
        return 1;
    }

    std::error_code error;
    RemoveWithJournals(target);
    fs::rename(partial, target, error);
    if (error) {
        RemoveWithJournals(partial);
        std::cerr << "dispatch: cannot write " << file << ": " << error.message() << "\n";
        return 1;
    }
    std::cout << "demo database written to " << file << "\n";
    return 0;
}

}  // namespace app
