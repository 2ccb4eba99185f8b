#include "session/script_parser.h"

#include "host/transcript.h"

#include "session/script_error.h"

namespace session {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && (IsBlank(text.front()) || text.front() == '\r')) text.remove_prefix(1);
    while (!text.empty() && (IsBlank(text.back()) || text.back() == '\r')) text.remove_suffix(1);
    return text;
}

// Reads a quoted word starting at the opening quote; leaves `pos` after the closing one.
std::string ReadQuoted(std::string_view line, std::size_t& pos, int lineNumber) {
    std::string word;
    ++pos;  // the opening quote
    while (pos < line.size()) {
        char c = line[pos++];
        if (c == '"') {
            if (pos < line.size() && !IsBlank(line[pos]))
                throw ScriptError(lineNumber, "a closing quote must be followed by a blank or the end of the line");
            return word;
        }
        if (c != '\\') {
            word += c;
            continue;
        }
        if (pos >= line.size()) break;
        char escaped = line[pos++];
        switch (escaped) {
            case '"': word += '"'; break;
            case '\\': word += '\\'; break;
            case 't': word += '\t'; break;
            default:
                throw ScriptError(lineNumber, std::string("unknown escape \\") + escaped +
                                                  " in quotes (only \\\", \\\\ and \\t are known)");
        }
    }
    throw ScriptError(lineNumber, "unterminated quote");
}

}  // namespace

std::vector<std::string> SplitWords(std::string_view line, int lineNumber) {
    std::vector<std::string> words;
    std::size_t pos = 0;
    while (true) {
        while (pos < line.size() && IsBlank(line[pos])) ++pos;
        if (pos >= line.size()) break;
        if (line[pos] == '"') {
            words.push_back(ReadQuoted(line, pos, lineNumber));
            continue;
        }
        std::size_t start = pos;
        while (pos < line.size() && !IsBlank(line[pos])) {
            if (line[pos] == '"') throw ScriptError(lineNumber, "a quote inside a word; quote the whole word");
            ++pos;
        }
        words.emplace_back(line.substr(start, pos - start));
    }
    return words;
}

std::vector<ScriptCommand> ParseScript(std::string_view text) {
    std::vector<ScriptCommand> commands;
    int lineNumber = 0;
    while (!text.empty()) {
        std::size_t end = text.find('\n');
        std::string_view raw = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        ++lineNumber;

        std::string_view line = TrimBlanks(raw);
        if (line.empty() || line.front() == '#') continue;
        commands.push_back({lineNumber, SplitWords(line, lineNumber), std::string(line)});
    }
    return commands;
}

std::string Quote(std::string_view text) { return host::QuoteText(std::string(text)); }

}  // namespace session
