// The host's text service: labels, message boxes, formatted messages, fixed texts.
#pragma once

#include <string>
#include <vector>

#include "screen/host_services/hosted_form.h"

namespace host_services {

// Standard message box buttons and answers.
namespace msgbox {
inline constexpr int OkOnly = 0;
inline constexpr int Information = 64;
inline constexpr int YesNoCancelQuestionSecond = 291;
inline constexpr int YesNoQuestionSecond = 292;
inline constexpr int AnswerOk = 1;
inline constexpr int AnswerCancel = 2;
inline constexpr int AnswerYes = 6;
inline constexpr int AnswerNo = 7;
}  // namespace msgbox

class HostMessages {
public:
    virtual ~HostMessages() = default;
    // The caption the installed language gives the base text; the base text when none.
    virtual std::string GetLabel(const std::string& baseText, const std::string& kind = "Label",
                                 const std::string& product = "Kelvo", int flag = -1) = 0;
    virtual std::string GetBaseLabel(const std::string& shownText, const std::string& kind = "Label",
                                     const std::string& product = "Kelvo", int flag = -1) = 0;
    virtual void TranslateForm(HostedForm& form) = 0;
    virtual void TranslateLoadedForm(HostedForm& form) = 0;
    virtual int AskMessage(const std::string& text, int buttons, const std::string& title = {},
                           const std::string& helpFile = {}, long helpContext = 0) = 0;
    // Asks whether the lines on the screen should be saved before it closes; true
    // means the user wants to stay and save.
    virtual bool ConfirmSaveOnExit(bool askOnExit) = 0;
    // Replaces {0}, {1} ... in the template.
    virtual std::string FormatMessage(const std::string& templateText, const std::vector<std::string>& values) = 0;

    virtual std::string GetStatusCancelledText() = 0;
    virtual std::string GetStatusAmendedText() = 0;
    virtual std::string GetStatusClosedText() = 0;
    virtual std::string GetStatusInvoicedText() = 0;
    virtual std::string GetStatusPendingText() = 0;
    virtual std::string GetHeaderRowMarker() = 0;
    virtual std::string GetAllCustomersText() = 0;
    virtual std::string GetYesText() = 0;
    virtual std::string GetBaseUOMText() = 0;
    // n from 1 to 5.
    virtual std::string GetBatchColumnText(int n) = 0;
};

}  // namespace host_services
