// Status lines, messages, the error log, the host's look and its common short cuts.
#include "host/plain_global.h"
#include "platform/convert.h"
#include "platform/key_codes.h"

namespace host {
namespace {

namespace keys = platform::keys;

std::string Joined(const host_services::HostGlobal::StyleArray& style) {
    std::string text;
    for (const auto& part : style) text += (text.empty() ? "" : ",") + part;
    return text;
}

}  // namespace

void PlainGlobal::ShowStatus(const std::string& text, int mustNotice) { state_.transcript.Status(text, mustNotice); }

void PlainGlobal::ShowNumberedMessage(long number, int, const std::vector<std::string>& arguments) {
    std::string text = messages_.FormatMessage(messages_.NumberedText(number), arguments);
    state_.transcript.Numbered(number);
    // A numbered message is a box with only an OK button: nothing to answer.
    state_.transcript.Message(host_services::msgbox::Information, text, "1");
}

std::string PlainGlobal::GetReadyMessage() { return state_.settings.Text("GetReadyMessage"); }

void PlainGlobal::ReportError(const std::string& description, long number) {
    state_.transcript.Error(number, description);
}

std::string PlainGlobal::GetFormIcon() { return state_.settings.Text("GetFormIcon"); }

void PlainGlobal::ApplyFormStyle(host_services::HostedForm& form, const StyleArray& header, const StyleArray& body) {
    state_.appliedStyles.push_back("form " + form.FormName() + " header=" + Joined(header) + " body=" + Joined(body));
}

void PlainGlobal::ApplyFormStyle(host_services::HostLink& link, const StyleArray& header, const StyleArray& body) {
    state_.appliedStyles.push_back("frame " + std::to_string(link.hwnd()) + " header=" + Joined(header) +
                                   " body=" + Joined(body));
}

void PlainGlobal::ApplyGridStyle(platform::Control& grid) {
    state_.appliedStyles.push_back("grid " + grid.FullName() + " header=" + Joined(GetGridHeaderFont()) +
                                   " body=" + Joined(GetGridBodyFont()));
}

std::string PlainGlobal::GetFormShortcutText() { return state_.settings.Text("GetFormShortcutText"); }
std::string PlainGlobal::GetFormCloseShortcutText() { return state_.settings.Text("GetFormCloseShortcutText"); }

// F1 opens the help of the form's frame.
void PlainGlobal::HandleFormShortcut(host_services::HostedForm& form, int& keyCode, int shift) {
    if (keyCode != keys::F1 || shift != keys::NoShift) return;
    state_.transcript.Dialog("Help", form.FormName(), "ok");
    keyCode = 0;
}

// On a date picker: + and - step a day, Ctrl+T goes to the working date.
void PlainGlobal::HandleDateShortcut(host_services::HostedForm& form, int& keyCode, int shift) {
    platform::Control* active = form.ActiveControl();
    if (!active || active->Kind() != platform::ControlKind::DatePicker) return;
    auto& picker = static_cast<platform::DatePicker&>(*active);
    platform::Date wanted = picker.Value;
    if (keyCode == keys::PadPlus && shift == keys::NoShift)
        wanted.serial += 1;
    else if (keyCode == keys::PadMinus && shift == keys::NoShift)
        wanted.serial -= 1;
    else if (keyCode == keys::T && shift == keys::CtrlMask)
        wanted = platform::DateOnly(state_.serverDate);
    else
        return;
    keyCode = 0;
    if (wanted.serial < picker.MinDate.serial || wanted.serial > picker.MaxDate.serial || wanted == picker.Value)
        return;
    picker.Value = wanted;
    picker.Change.Raise();
}

// Ctrl+Delete in a look-up box clears the choice: text and key.
void PlainGlobal::HandleLookupShortcut(platform::Control& control, int& keyCode, int shift) {
    if (keyCode != keys::Delete || shift != keys::CtrlMask) return;
    if (control.Kind() != platform::ControlKind::TextBox || !control.HasFocus()) return;
    auto& box = static_cast<platform::TextBox&>(control);
    if (box.Locked) return;
    keyCode = 0;
    box.Tag.clear();
    box.SetText("");
}

}  // namespace host
