// The text of a session script: one command a line, words separated by blanks,
// double quotes around a word with blanks (\" a quote, \\ a backslash, \t a tab),
// blank lines and lines starting with '#' ignored.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace session {

struct ScriptCommand {
    int line = 0;                    // from 1
    std::vector<std::string> words;  // words[0] is the verb
    std::string source;              // the line as written, without outer blanks

    const std::string& Verb() const { return words.front(); }
    std::size_t ArgumentCount() const { return words.size() - 1; }
    // Argument n counts from 1.
    const std::string& Argument(std::size_t n) const { return words.at(n); }
};

// Throws ScriptError with the line number on bad quoting.
std::vector<ScriptCommand> ParseScript(std::string_view text);

// The words of one line (no comment handling); throws ScriptError for `line`.
std::vector<std::string> SplitWords(std::string_view line, int lineNumber);

// A text written back the way a script would quote it: "a \"b\"".
std::string Quote(std::string_view text);

}  // namespace session
