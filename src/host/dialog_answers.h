// The user's answers to dialogs, queued ahead by the session (`answer DIALOG
// VALUE...`) and used in order, one queue a kind of dialog. A dialog with nothing
// queued takes its default.
#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace host {

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

private:
    std::map<std::string, std::deque<std::vector<std::string>>> queues_;
};

}  // namespace host
