// Runs a session script: each command echoed, run, and what the screen did printed
// as it happens; script errors to the error stream. The result is the exit status:
// 0 every check held, 1 a check failed, 2 the script is wrong.
#pragma once

#include <ostream>
#include <string_view>

#include "session/session_options.h"

namespace session {

class SessionRunner {
public:
    SessionRunner(std::ostream& out, std::ostream& err, SessionOptions options = {});
    int Run(std::string_view scriptText);

private:
    std::ostream& out_;
    std::ostream& err_;
    SessionOptions options_;
};

}  // namespace session
