#include "session/script_words.h"

#include <fmt/format.h>
#include <cctype>
#include <charconv>
#include <optional>

#include "platform/convert.h"
#include "session/script_error.h"
#include "session/today.h"

namespace session {
namespace {

bool ParseLong(const std::string& text, long& value) {
    const char* first = text.data();
    const char* last = text.data() + text.size();
    if (first != last && *first == '+') ++first;
    auto [end, error] = std::from_chars(first, last, value);
    return error == std::errc{} && end == last && first != last;
}

}  // namespace

std::string ControlName::FullName() const { return index < 0 ? name : fmt::format("{}({})", name, index); }

void RequireArguments(const ScriptCommand& command, std::size_t min, std::size_t max, const char* usage) {
    std::size_t count = command.ArgumentCount();
    if (count < min || count > max) throw ScriptError(command.line, fmt::format("{} takes {}", command.Verb(), usage));
}

long IntegerWord(const ScriptCommand& command, std::size_t n, const char* what) {
    long value = 0;
    if (!ParseLong(command.Argument(n), value))
        throw ScriptError(command.line,
                          fmt::format("{} must be a whole number, not {}", what, Quote(command.Argument(n))));
    return value;
}

bool BooleanWord(const ScriptCommand& command, std::size_t n) {
    const std::string& word = command.Argument(n);
    if (word == "true") return true;
    if (word == "false") return false;
    throw ScriptError(command.line, fmt::format("expected true or false, not {}", Quote(word)));
}

// "T", "T-12", "T+3": today on this machine and days from it, the day the demo
// database counts its dates from.
static std::optional<platform::Date> DayFromToday(const std::string& word) {
    if (word.empty() || word[0] != 'T') return std::nullopt;
    if (word.size() == 1) return Today();
    const std::string digits = word.substr(2);
    long days = 0;
    if ((word[1] != '-' && word[1] != '+') || digits.empty() || digits.size() > 5 ||
        digits.find_first_not_of("0123456789") != std::string::npos || !ParseLong(digits, days))
        return std::nullopt;
    return platform::Date{Today().serial + (word[1] == '-' ? -days : days)};
}

platform::Date DateWord(const ScriptCommand& command, std::size_t n) {
    const std::string& word = command.Argument(n);
    if (auto day = DayFromToday(word)) return *day;
    // The day and time parts must be complete: a partial date is a typing slip.
    bool shaped = word.size() == 10 || (word.size() == 19 && (word[10] == 'T' || word[10] == ' '));
    auto date = shaped ? platform::ParseIsoDate(word) : std::nullopt;
    if (!date)
        throw ScriptError(command.line,
                          fmt::format("a date is written YYYY-MM-DD or YYYY-MM-DDTHH:MM:SS, or T, T-N, T+N "
                                      "for days from today, not {}",
                                      Quote(word)));
    return *date;
}

ControlName ControlWord(const ScriptCommand& command, std::size_t n) {
    const std::string& word = command.Argument(n);
    auto bad = [&] {
        return ScriptError(
            command.line,
            fmt::format("{} is not a control name (a name, or a name and an index: cmdClose(1))", Quote(word)));
    };
    if (word.empty() || !std::isalpha(static_cast<unsigned char>(word.front()))) throw bad();
    std::size_t open = word.find('(');
    std::string name = word.substr(0, open);
    for (char c : name)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '_') throw bad();
    if (open == std::string::npos) return {name, -1};

    long index = 0;
    if (word.back() != ')' || !ParseLong(word.substr(open + 1, word.size() - open - 2), index) || index < 0)
        throw bad();
    return {name, static_cast<int>(index)};
}

}  // namespace session
