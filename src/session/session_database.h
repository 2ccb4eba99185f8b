// The database of a session: a fresh private copy of the demo database, a fresh
// empty one, or a file used as it stands. It is opened on first use, so a
// `database` line may come anywhere before the first line that needs it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/database.h"
#include "platform/private_folder.h"

namespace server {
class EmbeddedConnection;
}

namespace session {

class SessionDatabase {
public:
    SessionDatabase(platform::PrivateFolder& folder, std::optional<std::string> defaultFile);
    ~SessionDatabase();

    // `database demo`, `database empty` or `database FILE`. Throws std::invalid_argument
    // with the reason when a database is already in use or the file is not there.
    void Choose(const std::string& what);
    bool InUse() const { return connection_ != nullptr; }

    // The connection, the database opened first when it is not yet. Throws
    // std::runtime_error with the reason when it cannot be made or opened.
    platform::ConnectionPtr Connection();
    // Runs a statement of SQLite's own dialect, outside the screen.
    platform::ResultSet ExecuteNative(const std::string& sql);

private:
    enum class Source { Demo, Empty, File };
    void Open();

    platform::PrivateFolder& folder_;
    Source source_ = Source::Demo;
    std::string file_;
    bool chosen_ = false;
    std::shared_ptr<server::EmbeddedConnection> connection_;
};

}  // namespace session
