#include "host/dialog_answers.h"

#include <stdexcept>

#include "host/other_group_items_answer.h"
#include "host/setting_catalog.h"

namespace host {
namespace {

std::string CountProblem(const std::string& dialog, const std::vector<std::string>& values, std::size_t wanted,
                         const std::string& what) {
    if (values.size() == wanted) return {};
    return dialog + " takes " + what + ", not " + std::to_string(values.size()) + " values";
}

}  // namespace

std::string DialogAnswers::Problem(const std::string& dialog, const std::vector<std::string>& values) {
    if (dialog == "AskMessage") {
        if (auto problem = CountProblem(dialog, values, 1, "one button code"); !problem.empty()) return problem;
        long code = 0;
        if (!ParseInteger(values[0], code) || code < 1 || code > 7)
            return "AskMessage takes a button code from 1 to 7 (1 ok, 2 cancel, 6 yes, 7 no), not \"" + values[0] +
                   "\"";
        return {};
    }
    if (dialog == "InputPassword" || dialog == "InputBoxE")
        return CountProblem(dialog, values, 1, "one text or cancel");
    if (dialog == "SelectFreeItem") return CountProblem(dialog, values, 1, "one item code or none");
    if (dialog == "SelectDocument") return CountProblem(dialog, values, 1, "one document reference");
    if (dialog == "SelectScheme") {
        if (auto problem = CountProblem(dialog, values, 1, "one scheme ID or none"); !problem.empty()) return problem;
        long id = 0;
        if (values[0] != "none" && !ParseInteger(values[0], id))
            return "SelectScheme takes a scheme ID or none, not \"" + values[0] + "\"";
        return {};
    }
    if (dialog == "ConfirmSaveOnExit") {
        if (auto problem = CountProblem(dialog, values, 1, "true or false"); !problem.empty()) return problem;
        if (values[0] != "true" && values[0] != "false")
            return "ConfirmSaveOnExit takes true or false, not \"" + values[0] + "\"";
        return {};
    }
    if (dialog == "ShowMemoDialog") {
        // Three memo texts and the button; a lone button leaves the memos as they are.
        if (values.size() != 4 && values.size() != 1) return "ShowMemoDialog takes three texts and then ok or cancel";
        if (values.back() != "ok" && values.back() != "cancel")
            return "ShowMemoDialog ends with ok or cancel, not \"" + values.back() + "\"";
        return {};
    }
    if (dialog == "ShowDocumentInfoDialog") {
        std::string problem;
        ReadOtherGroupItemsAnswer(values, problem);
        return problem;
    }
    return "unknown dialog \"" + dialog + "\"";
}

void DialogAnswers::Queue(const std::string& dialog, std::vector<std::string> values) {
    if (auto problem = Problem(dialog, values); !problem.empty()) throw std::invalid_argument(problem);
    queues_[dialog].push_back(std::move(values));
}

std::optional<std::vector<std::string>> DialogAnswers::Next(const std::string& dialog) {
    auto it = queues_.find(dialog);
    if (it == queues_.end() || it->second.empty()) return std::nullopt;
    auto values = std::move(it->second.front());
    it->second.pop_front();
    return values;
}

std::optional<std::vector<std::string>> DialogAnswers::Reply(const DialogQuestion& question) {
    if (auto queued = Next(question.kind)) return queued;
    if (asker) return asker(question);
    return std::nullopt;
}

bool DialogAnswers::Pending(const std::string& dialog) const {
    auto it = queues_.find(dialog);
    return it != queues_.end() && !it->second.empty();
}

}  // namespace host
