// The two ways a line of a session script goes wrong.
#pragma once

#include <stdexcept>
#include <string>

namespace session {

// The script itself is wrong (bad quoting, unknown verb or control, bad arguments):
// the run stops at this line.
class ScriptError : public std::runtime_error {
public:
    ScriptError(int line, const std::string& reason) : std::runtime_error(reason), line_(line) {}
    int Line() const { return line_; }

private:
    int line_;
};

// The screen does not allow what the line asks (a disabled button, a row that is not
// there): no user could do it, so it is reported as a failure and the script goes on.
class ActionRefused : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace session
