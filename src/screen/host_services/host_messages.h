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
    // The caption the installed language gives the base text; the base text when
    // none. The form passes "Label", "Kelvo" and -1 as the host's lookup words.
    virtual std::string GetLabel(const std::string& baseText, const std::string& kind = "Label",
                                 const std::string& product = "Kelvo", int hostOption = -1) = 0;
    // The reverse of GetLabel: the base text of a shown caption.
    virtual std::string GetBaseLabel(const std::string& shownText, const std::string& kind = "Label",
                                     const std::string& product = "Kelvo", int hostOption = -1) = 0;
    // Takes every caption of the form through GetLabel; the form calls it when it
    // has initialised.
    virtual void TranslateForm(HostedForm& form) = 0;
    // The same when the form loads.
    virtual void TranslateLoadedForm(HostedForm& form) = 0;
    // A message box with the standard buttons; the standard answer (msgbox above).
    virtual int AskMessage(const std::string& text, int buttons, const std::string& title = {},
                           const std::string& helpFile = {}, long helpContext = 0) = 0;
    // Asks whether the lines on the screen should be saved before it closes; true
    // means the user wants to stay and save.
    virtual bool ConfirmSaveOnExit(bool askOnExit) = 0;
    // Replaces {0}, {1} ... in the template.
    virtual std::string FormatMessage(const std::string& templateText, const std::vector<std::string>& values) = 0;

    // The fixed texts the lists and the grid show; first the status words of a
    // document in the look-up lists.
    virtual std::string GetStatusCancelledText() = 0;
    virtual std::string GetStatusAmendedText() = 0;
    virtual std::string GetStatusClosedText() = 0;
    virtual std::string GetStatusInvoicedText() = 0;
    virtual std::string GetStatusPendingText() = 0;
    // The tag that marks a customer's header row in the document list.
    virtual std::string GetHeaderRowMarker() = 0;
    // The text that stands for all customers.
    virtual std::string GetAllCustomersText() = 0;
    // The word a batch list shows for yes (a free batch).
    virtual std::string GetYesText() = 0;
    // The word in a row's unit column when its quantity is typed in several units.
    virtual std::string GetBaseUOMText() = 0;
    // The name of the price a batch's price applies on, n from 1 to 5.
    virtual std::string GetBatchColumnText(int n) = 0;
};

}  // namespace host_services
