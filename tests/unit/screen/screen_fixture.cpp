#include "screen_fixture.h"

#include <filesystem>

#include "server/database_files.h"
#include "support/scratch_files.h"

namespace screen_test {

namespace {
namespace fs = std::filesystem;

// The demo database is made once for the whole run; each test works on a copy.
const std::string& DemoDatabase() {
    static const std::string path = [] {
        const std::string file = test_support::ScratchPath("demo", ".db");
        server::CreateDatabase(file, true);
        return file;
    }();
    return path;
}

std::string FreshCopy() {
    const std::string file = test_support::ScratchPath("screen", ".db");
    server::CopyDatabase(DemoDatabase(), file);
    return file;
}
}  // namespace

ScreenTest::ScreenTest() : path(FreshCopy()) {
    database = server::OpenEmbedded(path);
    UseConnection(database);
}

ScreenTest::~ScreenTest() {
    component.reset();
    host.reset();
    database.reset();
    for (const char* suffix : {"", "-wal", "-shm"}) fs::remove(path + suffix);
}

void ScreenTest::UseConnection(platform::ConnectionPtr connection) {
    component.reset();
    host = std::make_unique<host::PlainHost>(std::move(connection), settings, transcript, answers);
    host->SetServerDate(Today());
    component = std::make_unique<screen::Zuro_clsDispatch>(host->Services());
}

}  // namespace screen_test
