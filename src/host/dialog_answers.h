// The user's answers to dialogs, queued ahead by the session (`answer DIALOG
// VALUE...`) and used in order, one queue a kind of dialog. A dialog with nothing
// queued takes its default.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace host {

// What a dialog puts before the user: its kind, its text and title, the buttons of a
// message box, the entries it offers to choose from, and whether what is typed is
// masked.
struct DialogQuestion {
    std::string kind;
    std::string text;
    std::string title;
    int buttons = 0;
    std::vector<std::string> choices;
    bool masked = false;
};

class DialogAnswers {
public:
    // Dialog kinds: "AskMessage", "InputPassword", "InputBoxE", "SelectFreeItem",
    // "SelectScheme", "SelectDocument", "ConfirmSaveOnExit", "ShowMemoDialog",
    // "ShowDocumentInfoDialog" (host/other_group_items_answer.h).
    // An unknown kind, or values the dialog could never give back, is refused with
    // std::invalid_argument and nothing is queued.
    void Queue(const std::string& dialog, std::vector<std::string> values);
    // Why Queue would refuse; empty when it would take the answer.
    static std::string Problem(const std::string& dialog, const std::vector<std::string>& values);
    std::optional<std::vector<std::string>> Next(const std::string& dialog);
    bool Pending(const std::string& dialog) const;

    // Asked for the answer when none is queued: a person answering at a screen. It
    // answers nothing when the dialog is to take its default.
    std::function<std::optional<std::vector<std::string>>(const DialogQuestion&)> asker;
    // The queued answer, else the asker's, else nothing.
    std::optional<std::vector<std::string>> Reply(const DialogQuestion& question);

private:
    std::map<std::string, std::deque<std::vector<std::string>>> queues_;
};

}  // namespace host
