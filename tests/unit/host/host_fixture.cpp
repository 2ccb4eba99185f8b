#include "host_fixture.h"


#include "server/database_files.h"
#include "support/scratch_files.h"
#include "server/schema.h"

namespace host_test {

TempPath::TempPath(const std::string& suffix) {
    path_ = test_support::ScratchPath("host", suffix);
}

TempPath::~TempPath() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
    std::filesystem::remove(path_ + "-wal", ignored);
    std::filesystem::remove(path_ + "-shm", ignored);
}

HostTest::HostTest()
    : database(server::CreateDatabaseFromScripts(file.str(), {server::SchemaScript()})),
      connection(std::make_shared<platform::RecordingConnection>(database)),
      host(std::make_unique<host::PlainHost>(connection, settings, transcript, answers)) {}

void HostTest::Sql(const std::string& script) { database->ExecuteScript(script); }

std::vector<std::string> HostTest::Statements() const {
    std::vector<std::string> statements;
    for (const auto& call : connection->Calls())
        if (call.kind == platform::RecordedCall::Kind::Statement) statements.push_back(call.text);
    return statements;
}

}  // namespace host_test
