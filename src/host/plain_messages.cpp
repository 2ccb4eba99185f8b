#include "host/plain_messages.h"

#include "host/dialog_replies.h"
#include "host/setting_catalog.h"
#include "platform/convert.h"

namespace host {

int DefaultAnswer(int buttons) {
    using namespace host_services::msgbox;
    switch (buttons & 0x0F) {
        case 1: return AnswerOk;   // ok, cancel
        case 2: return 3;          // abort, retry, ignore: abort
        case 3:                    // yes, no, cancel
        case 4: return AnswerYes;  // yes, no
        case 5: return 4;          // retry, cancel: retry
        default: return AnswerOk;  // ok only
    }
}

std::string PlainMessages::GetLabel(const std::string& baseText, const std::string& kind, const std::string&, int) {
    return labels_.Caption(baseText, kind);
}

std::string PlainMessages::GetBaseLabel(const std::string& shownText, const std::string& kind, const std::string&,
                                        int) {
    return labels_.BaseText(shownText, kind);
}

// The screen takes every caption through GetLabel as it sets it; what is left for
// the host is to note that the form asked.
void PlainMessages::TranslateForm(host_services::HostedForm& form) {
    state_.appliedStyles.push_back("translate " + form.FormName());
}

void PlainMessages::TranslateLoadedForm(host_services::HostedForm& form) {
    state_.appliedStyles.push_back("translate loaded " + form.FormName());
}

int PlainMessages::AskMessage(const std::string& text, int buttons, const std::string& title, const std::string&,
                              long) {
    DialogReply reply = TakeReply(state_.answers, {"AskMessage", text, title, buttons, {}, false});
    long answer = DefaultAnswer(buttons);
    if (!reply.byDefault) ParseInteger(reply.values[0], answer);
    state_.transcript.Message(buttons, text, reply.Shown(std::to_string(answer)));
    return static_cast<int>(answer);
}

bool PlainMessages::ConfirmSaveOnExit(bool askOnExit) {
    std::string question = askOnExit ? "The lines have been changed. Do you want to save them before closing?"
                                     : "Do you want to save the lines before closing?";
    DialogReply reply = TakeReply(state_.answers, {"ConfirmSaveOnExit", question, {}, 0, {}, false});
    bool stay = reply.byDefault || reply.values[0] == "true";
    state_.transcript.Dialog("ConfirmSaveOnExit", QuoteText(question), reply.Shown(stay ? "true" : "false"));
    return stay;
}

std::string PlainMessages::FormatMessage(const std::string& templateText, const std::vector<std::string>& values) {
    std::string text;
    for (std::size_t i = 0; i < templateText.size(); ++i) {
        if (templateText[i] == '{') {
            auto close = templateText.find('}', i);
            if (close != std::string::npos) {
                long index = -1;
                if (ParseInteger(templateText.substr(i + 1, close - i - 1), index) && index >= 0 &&
                    static_cast<std::size_t>(index) < values.size()) {
                    text += values[static_cast<std::size_t>(index)];
                    i = close;
                    continue;
                }
            }
        }
        text += templateText[i];
    }
    return text;
}

std::string PlainMessages::GetBatchColumnText(int n) {
    // What a batch's price applies on, by ApplicableOn 1 to 4 and 6.
    static const char* const texts[] = {"PTS", "PTR", "ECP", "Company Price", "MRP"};
    if (n < 1 || n > 5) return {};
    return GetLabel(texts[n - 1]);
}

std::string PlainMessages::NumberedText(long number) {
    auto rs = state_.connection->Execute("Select Message From ErrorMessages Where ErrorID = " + std::to_string(number));
    if (!rs || !rs->IsOpen() || rs->Eof() || rs->Fields(0).IsNull())
        return "Message " + std::to_string(number) + " not found";
    return platform::ToText(rs->Fields(0));
}

}  // namespace host
