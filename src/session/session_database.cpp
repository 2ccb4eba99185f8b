#include "session/session_database.h"

#include <filesystem>
#include <stdexcept>

#include "server/database_files.h"
#include "server/embedded_connection.h"

namespace session {

SessionDatabase::SessionDatabase(platform::PrivateFolder& folder, std::optional<std::string> defaultFile)
    : folder_(folder) {
    if (defaultFile) {
        source_ = Source::File;
        file_ = *defaultFile;
    }
}

SessionDatabase::~SessionDatabase() = default;

void SessionDatabase::Choose(const std::string& what) {
    if (chosen_) throw std::invalid_argument("the session has chosen its database already");
    if (connection_)
        throw std::invalid_argument(
            "the database is in use already: `database` comes before the first line that needs it");
    if (what == "demo") {
        source_ = Source::Demo;
    } else if (what == "empty") {
        source_ = Source::Empty;
    } else {
        if (!std::filesystem::is_regular_file(what))
            throw std::invalid_argument("no database file " + what + " (demo and empty make fresh ones)");
        source_ = Source::File;
        file_ = what;
    }
    chosen_ = true;
}

void SessionDatabase::Open() {
    try {
        if (source_ == Source::File) {
            if (!std::filesystem::is_regular_file(file_)) throw std::runtime_error("there is no such file");
            connection_ = server::OpenEmbedded(file_);
            return;
        }
        // A fresh database made for this session alone: the run changes nothing
        // that outlives it.
        auto path = (folder_.Path() / "session.db").string();
        connection_ = server::CreateDatabase(path, source_ == Source::Demo);
    } catch (const std::exception& e) {
        const char* what = source_ == Source::Demo    ? "the demo database"
                           : source_ == Source::Empty ? "an empty database"
                                                      : nullptr;
        throw std::runtime_error(what ? std::string("cannot make ") + what + ": " + e.what()
                                      : "cannot open the database " + file_ + ": " + e.what());
    }
}

platform::ConnectionPtr SessionDatabase::Connection() {
    if (!connection_) Open();
    return connection_;
}

platform::ResultSet SessionDatabase::ExecuteNative(const std::string& sql) {
    if (!connection_) Open();
    return connection_->ExecuteNative(sql);
}

}  // namespace session
