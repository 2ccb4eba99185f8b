#include "host/main_form.h"

#include <algorithm>

#include "host/plain_tools.h"

namespace host {

void SafeFocus(platform::Control& control) {
    if (control.CanTakeFocus() && !control.HasFocus()) control.SetFocus();
}

void PlainLink::SetFocus() { state_.transcript.Focus("frame"); }

std::shared_ptr<host_services::HostLink> PlainMainForm::GiveMeNewLink() {
    auto link = std::make_shared<PlainLink>(state_, nextHwnd_);
    nextHwnd_ += 0x10;
    lastLink_ = link;
    return link;
}

void PlainMainForm::CaptureChildObj(host_services::HostedForm& form) {
    // The form becomes the active child: last in the list.
    std::erase(state_.openForms, &form);
    state_.openForms.push_back(&form);
}

void PlainMainForm::LeaveChildObj(host_services::HostedForm& form) { std::erase(state_.openForms, &form); }

void PlainMainForm::FocusTo(platform::Control& control) { SafeFocus(control); }

bool PlainMainForm::InputBoxE(const std::string& prompt, const std::string& title, std::string& text) {
    return AskForText(state_, "InputBoxE", prompt, title, text);
}

}  // namespace host
