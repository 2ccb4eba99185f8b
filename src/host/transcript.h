// What the plain host saw the screen do, one line an event, in order: status
// lines, message boxes and dialogs with their answers, numbered messages, focus
// moves, error reports, printed documents. The session driver prints the lines and
// checks against the last of each kind.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace host {

// A text as a session script writes it: in double quotes, with \" \\ and \t.
std::string QuoteText(const std::string& text);

struct StatusLine {
    int flag = 0;
    std::string text;
};

class Transcript {
public:
    // Every line as it is added (the session driver prints them as they come).
    std::function<void(const std::string&)> onLine;

    void Status(const std::string& text, int flag);                                 // "status FLAG TEXT"
    void Message(int buttons, const std::string& text, const std::string& answer);  // "message B \"T\" -> A"
    // "NAME DETAIL -> ANSWER"; the dialog's name stands where a message box has "message".
    void Dialog(const std::string& name, const std::string& detail, const std::string& answer);
    void Numbered(long number);                        // "numbered N"
    void Focus(const std::string& control);            // "focus CONTROL"
    void Error(long number, const std::string& text);  // "error N TEXT"
    void Print(const std::string& detail);             // "print ..."
    void Sql(const std::string& text);                 // "sql ..." (tracing)
    void Proc(const std::string& text);                // "proc ..." (tracing)
    void Line(const std::string& line);

    const std::vector<std::string>& Lines() const { return lines_; }
    const StatusLine* LastStatus() const { return hasStatus_ ? &lastStatus_ : nullptr; }
    int ErrorCount() const { return errorCount_; }
    // Message texts and numbers shown since the last Take; taking empties them.
    std::vector<std::string> TakeMessages();
    std::vector<long> TakeNumbered();
    // The details of documents printed since the last Take.
    std::vector<std::string> TakePrints();

private:
    std::vector<std::string> lines_;
    StatusLine lastStatus_;
    bool hasStatus_ = false;
    int errorCount_ = 0;
    std::vector<std::string> messages_;
    std::vector<long> numbered_;
    std::vector<std::string> prints_;
};

}  // namespace host
