// How a session is run: what the command line gives the runner.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace session {

class ScreenOpener;

struct SessionOptions {
    // The database used when the script names none (`--db FILE`); a fresh copy of the
    // demo database when not given.
    std::optional<std::string> databaseFile;
    // Every statement and procedure the screen sends, in the transcript.
    bool traceSql = false;
    // Where printed documents are written; the session's private folder when not given.
    std::optional<std::string> printFolder;
    // Makes the screens that `open` opens; the dispatch class when not given.
    std::function<std::unique_ptr<ScreenOpener>()> makeOpener;
};

// The exit statuses of a session.
inline constexpr int ExitPassed = 0;
inline constexpr int ExitExpectFailed = 1;
inline constexpr int ExitScriptWrong = 2;

}  // namespace session
