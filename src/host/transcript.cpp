#include "host/transcript.h"

#include <utility>

namespace host {

std::string QuoteText(const std::string& text) {
    std::string quoted = "\"";
    for (char c : text) {
        switch (c) {
            case '"': quoted += "\\\""; break;
            case '\\': quoted += "\\\\"; break;
            case '\t': quoted += "\\t"; break;
            default: quoted += c;
        }
    }
    return quoted + "\"";
}

void Transcript::Line(const std::string& line) {
    lines_.push_back(line);
    if (onLine) onLine(line);
}

void Transcript::Status(const std::string& text, int flag) {
    lastStatus_ = {flag, text};
    hasStatus_ = true;
    Line("status " + std::to_string(flag) + " " + text);
}

void Transcript::Message(int buttons, const std::string& text, const std::string& answer) {
    messages_.push_back(text);
    Line("message " + std::to_string(buttons) + " " + QuoteText(text) + " -> " + answer);
}

void Transcript::Dialog(const std::string& name, const std::string& detail, const std::string& answer) {
    Line(name + (detail.empty() ? "" : " " + detail) + " -> " + answer);
}

void Transcript::Numbered(long number) {
    numbered_.push_back(number);
    Line("numbered " + std::to_string(number));
}

void Transcript::Focus(const std::string& control) { Line("focus " + control); }

void Transcript::Error(long number, const std::string& text) {
    ++errorCount_;
    Line("error " + std::to_string(number) + " " + text);
}

void Transcript::Print(const std::string& detail) {
    prints_.push_back(detail);
    Line("print " + detail);
}
void Transcript::Sql(const std::string& text) { Line("sql " + text); }
void Transcript::Proc(const std::string& text) { Line("proc " + text); }

std::vector<std::string> Transcript::TakeMessages() { return std::exchange(messages_, {}); }
std::vector<long> Transcript::TakeNumbered() { return std::exchange(numbered_, {}); }
std::vector<std::string> Transcript::TakePrints() { return std::exchange(prints_, {}); }

}  // namespace host
