// The arguments of a routine called by name, as the caller wrote them. A wrong
// count, or a word where a number belongs, is refused before the routine runs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "platform/convert.h"
#include "screen/routine_table.h"

namespace screen {

class RoutineArguments {
public:
    RoutineArguments(const RoutineCall& call, std::size_t count) : RoutineArguments(call, count, count) {}
    RoutineArguments(const RoutineCall& call, std::size_t least, std::size_t most) : call_(call) {
        const std::size_t given = call.arguments.size();
        if (given < least || given > most)
            throw std::invalid_argument("takes " + Expected(least, most) + ", was given " + std::to_string(given));
    }

    bool Has(std::size_t i) const { return i < call_.arguments.size(); }
    const std::string& Text(std::size_t i) const { return call_.arguments.at(i); }
    double Real(std::size_t i) const {
        const std::string& text = Text(i);
        if (!platform::IsNumericText(text))
            throw std::invalid_argument("argument " + std::to_string(i + 1) + " must be a number, was \"" + text + "\"");
        return platform::ToNumber(platform::Value(text));
    }
    // A 32-bit whole number, rounded as the runtime rounded.
    long Number(std::size_t i) const { return platform::CLng(Real(i)); }
    // A 16-bit whole number.
    std::int16_t Integer(std::size_t i) const { return platform::CInt(Real(i)); }
    // "True", "False", or a number (not 0 is true).
    bool Boolean(std::size_t i) const {
        const std::string word = platform::UCase(Text(i));
        if (word == "TRUE") return true;
        if (word == "FALSE") return false;
        return Real(i) != 0;
    }

private:
    static std::string Expected(std::size_t least, std::size_t most) {
        if (least == most) return least == 1 ? "1 argument" : std::to_string(least) + " arguments";
        return std::to_string(least) + " to " + std::to_string(most) + " arguments";
    }
    const RoutineCall& call_;
};

}  // namespace screen
