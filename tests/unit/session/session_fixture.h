// Runs scripts through the session runner against FakeScreen and keeps what came out.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "fake_screen.h"
#include "session/session_runner.h"

namespace session::testing {

struct Outcome {
    int status = -1;
    std::string out, err;
};

class SessionTest : public ::testing::Test {
protected:
    Outcome Run(const std::string& script, bool traceSql = false) {
        std::ostringstream out, err;
        SessionOptions options;
        options.traceSql = traceSql;
        options.makeOpener = [this] { return MakeFakeOpener(openings); };
        int status = SessionRunner(out, err, std::move(options)).Run(script);
        return {status, out.str(), err.str()};
    }
    FakeScreen& Screen() { return *openings.Last(); }

    FakeOpenings openings;
};

// The first lines of most scripts: an empty database and the fake screen open.
inline const std::string kOpen = "database empty\nopen dispatch 2 2026-11-22\n";

inline ::testing::Matcher<const std::string&> HasLine(const std::string& line) {
    return ::testing::HasSubstr("\n" + line + "\n");
}

inline std::size_t CountOf(const std::string& text, const std::string& needle) {
    std::size_t count = 0;
    for (auto pos = text.find(needle); pos != std::string::npos; pos = text.find(needle, pos + 1)) ++count;
    return count;
}

}  // namespace session::testing
