// Reading the arguments of a command: numbers as the user types them, dates,
// booleans, control names. A word that does not fit is a ScriptError of its line.
#pragma once

#include <string>

#include "platform/value.h"
#include "session/script_parser.h"

namespace session {

struct ControlName {
    std::string name;
    int index = -1;  // -1 when the control is not in an array

    std::string FullName() const;  // "cmdClose(1)"
};

// Throws ScriptError unless the command has between min and max arguments.
void RequireArguments(const ScriptCommand& command, std::size_t min, std::size_t max, const char* usage);

long IntegerWord(const ScriptCommand& command, std::size_t n, const char* what);
bool BooleanWord(const ScriptCommand& command, std::size_t n);
platform::Date DateWord(const ScriptCommand& command, std::size_t n);
ControlName ControlWord(const ScriptCommand& command, std::size_t n);

}  // namespace session
