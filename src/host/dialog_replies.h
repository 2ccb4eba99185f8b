// How a dialog's answer is taken: from the session's queue when one is waiting, else
// from the person at the screen, else the dialog's default, with the transcript
// saying which.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/dialog_answers.h"

namespace host {

struct DialogReply {
    std::vector<std::string> values;  // empty when the default was taken
    bool byDefault = true;
    // The answer as the transcript shows it, "(default)" added when no answer was queued.
    std::string Shown(const std::string& answer) const { return byDefault ? answer + " (default)" : answer; }
};

inline DialogReply TakeReply(DialogAnswers& answers, const DialogQuestion& question) {
    if (auto values = answers.Reply(question)) return {std::move(*values), false};
    return {};
}

}  // namespace host
