#include "host/other_group_items_answer.h"

#include "host/setting_catalog.h"
#include "platform/convert.h"

namespace host {

OtherGroupItemsAnswer ReadOtherGroupItemsAnswer(const std::vector<std::string>& words, std::string& problem) {
    OtherGroupItemsAnswer answer;
    problem.clear();
    const std::string prefix = "ShowDocumentInfoDialog ";
    if (words.empty() || (words.back() != "ok" && words.back() != "cancel")) {
        problem = prefix + "ends with ok or cancel";
        return answer;
    }
    answer.accepted = words.back() == "ok";
    const std::size_t end = words.size() - 1;
    for (std::size_t at = 0; at < end && problem.empty();) {
        const std::string& clause = words[at];
        if (clause == "drop") {
            long serial = 0;
            if (at + 1 >= end) {
                problem = prefix + "drop takes a row's serial or all";
            } else if (words[at + 1] == "all") {
                answer.dropAll = true;
            } else if (!ParseInteger(words[at + 1], serial) || serial <= 0) {
                problem = prefix + "drop takes a row's serial or all, not \"" + words[at + 1] + "\"";
            } else {
                answer.droppedSerials.push_back(serial);
            }
            at += 2;
        } else if (clause == "add" || clause == "add-free") {
            if (at + 3 >= end) {
                problem = prefix + clause + " takes an item code, a batch and a quantity";
            } else if (!platform::IsNumericText(words[at + 3]) || platform::Val(words[at + 3]) <= 0) {
                problem = prefix + clause + " takes a quantity above 0, not \"" + words[at + 3] + "\"";
            } else {
                answer.added.push_back(
                    {words[at + 1], words[at + 2], platform::Val(words[at + 3]), clause == "add-free"});
            }
            at += 4;
        } else {
            problem = prefix + "takes drop, add or add-free clauses and then ok or cancel, not \"" + clause + "\"";
        }
    }
    return answer;
}

}  // namespace host
