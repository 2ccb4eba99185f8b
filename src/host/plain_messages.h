// The host's text service: captions from the label table, message boxes answered
// from the session's queue, the host's fixed texts.
#pragma once

#include <string>
#include <vector>

#include "host/host_state.h"
#include "host/labels.h"
#include "screen/host_services/host_messages.h"

namespace host {

class PlainMessages : public host_services::HostMessages {
public:
    explicit PlainMessages(HostState& state) : state_(state), labels_(*state.connection) {}

    std::string GetLabel(const std::string& baseText, const std::string& kind = "Label",
                         const std::string& product = "Kelvo", int hostOption = -1) override;
    std::string GetBaseLabel(const std::string& shownText, const std::string& kind = "Label",
                             const std::string& product = "Kelvo", int hostOption = -1) override;
    void TranslateForm(host_services::HostedForm& form) override;
    void TranslateLoadedForm(host_services::HostedForm& form) override;
    int AskMessage(const std::string& text, int buttons, const std::string& title = {},
                   const std::string& helpFile = {}, long helpContext = 0) override;
    bool ConfirmSaveOnExit(bool askOnExit) override;
    std::string FormatMessage(const std::string& templateText, const std::vector<std::string>& values) override;

    std::string GetStatusCancelledText() override { return GetLabel("Cancelled"); }
    std::string GetStatusAmendedText() override { return GetLabel("Amended"); }
    std::string GetStatusClosedText() override { return GetLabel("Closed"); }
    std::string GetStatusInvoicedText() override { return GetLabel("Invoiced"); }
    std::string GetStatusPendingText() override { return GetLabel("Pending"); }
    // Not a caption: the tag that marks a customer's header row in a list.
    std::string GetHeaderRowMarker() override { return "HEADER"; }
    std::string GetAllCustomersText() override { return GetLabel("ALL CUSTOMERS"); }
    std::string GetYesText() override { return GetLabel("Yes"); }
    // Stands in the unit column of a row whose quantity is a multi-unit expression;
    // the same word as the multi-unit entry of the unit list.
    std::string GetBaseUOMText() override { return GetLabel("Multiple"); }
    std::string GetBatchColumnText(int n) override;

    // The text of a numbered message; "Message N not found" when the table has none.
    std::string NumberedText(long number);

private:
    HostState& state_;
    LabelBook labels_;
};

// The answer a message box gives when nobody presses a button: ok for a plain
// message, yes where yes is offered, retry for retry/cancel.
int DefaultAnswer(int buttons);

}  // namespace host
