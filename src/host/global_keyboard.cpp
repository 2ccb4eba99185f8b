// Focus, the Enter key, list views and combo boxes, and the host's open forms.
#include "host/main_form.h"
#include "host/plain_global.h"
#include "platform/convert.h"
#include "platform/key_codes.h"

namespace host {

namespace keys = platform::keys;

namespace {

bool StartsWithIgnoringCase(const std::string& text, const std::string& prefix) {
    return text.size() >= prefix.size() && platform::UCase(text.substr(0, prefix.size())) == platform::UCase(prefix);
}

}  // namespace

void PlainGlobal::SetFocusTo(platform::Control& control) { SafeFocus(control); }

void PlainGlobal::HandleEnterAdvance(int shift, platform::Control& behind, platform::Control& ahead) {
    SafeFocus(shift == keys::ShiftMask ? behind : ahead);
}

// The first Enter in a box stays there as a new line; a second one straight after,
// with nothing typed between, moves on.
int PlainGlobal::AddressEnterStep(int& keyCode) {
    if (keyCode != keys::Enter) {
        addressEnterPending_ = false;
        return 0;
    }
    const platform::Control* box = nullptr;
    std::string text;
    if (!state_.openForms.empty()) box = state_.openForms.back()->ActiveControl();
    if (box && box->Kind() == platform::ControlKind::TextBox) text = static_cast<const platform::TextBox*>(box)->Text();

    if (addressEnterPending_ && box == addressBox_ && text == addressText_) {
        addressEnterPending_ = false;
        keyCode = 0;  // the second Enter is not a second new line
        return 1;
    }
    addressEnterPending_ = true;
    addressBox_ = box;
    addressText_ = text;
    return 0;
}

// Enter takes the entry the list stands on (the first when none is selected) as
// the user's choice: the screen simulates Enter so that a batch-tracked row takes
// its batch without a key press, and that needs an answer of "moved".
bool PlainGlobal::MoveListSelection(platform::ListView& list, int keyCode) {
    int count = list.Count();
    if (count == 0) return false;
    int from = list.SelectedIndex();
    if (keyCode == keys::Enter) {
        if (from < 1) list.Select(1);
        return true;
    }
    int to = from;
    switch (keyCode) {
        case keys::Up: to = from > 1 ? from - 1 : from; break;
        case keys::Down: to = from < count ? from + 1 : from; break;
        case keys::Home: to = 1; break;
        case keys::End: to = count; break;
        default: return false;
    }
    if (to == from || to < 1) return false;
    list.Select(to);
    return true;
}

// A match takes the entry's own spelling; no match leaves the index at -1 and the
// typed text in the box.
void PlainGlobal::ComboFindExact(platform::ComboBox& combo) {
    std::string typed = combo.Text();
    std::string wanted = platform::UCase(typed);
    int found = -1;
    for (int i = 0; i < combo.ListCount() && found < 0; ++i)
        if (platform::UCase(combo.List(i)) == wanted) found = i;
    combo.SetListIndex(found);
    if (found < 0) combo.SetText(typed);
}

// The combo shows the first entry that begins with what the user has typed so far;
// the rest of the entry counts as selected, so the next key goes on from the typed
// part, not from the entry's end.
void PlainGlobal::ComboAutoComplete(platform::ComboBox& combo, int& keyAscii) {
    bool printable = keyAscii >= ' ' && keyAscii < 256 && keyAscii != 127;
    if (!printable && keyAscii != keys::Backspace) return;
    if (&combo != completingCombo_ || combo.Text() != completionShown_) completionTyped_ = combo.Text();
    completingCombo_ = &combo;

    if (keyAscii == keys::Backspace) {
        if (!completionTyped_.empty()) completionTyped_.pop_back();
    } else {
        completionTyped_ += static_cast<char>(keyAscii);
    }
    keyAscii = 0;

    int found = -1;
    if (!completionTyped_.empty())
        for (int i = 0; i < combo.ListCount() && found < 0; ++i)
            if (StartsWithIgnoringCase(combo.List(i), completionTyped_)) found = i;
    combo.SetListIndex(found);
    combo.SetText(found >= 0 ? combo.List(found) : completionTyped_);
    completionShown_ = combo.Text();
}

void PlainGlobal::SetDropDownWidth(platform::ComboBox& combo, int width) {
    state_.appliedStyles.push_back("dropdown " + combo.FullName() + " " + std::to_string(width));
}

void PlainGlobal::SetDropDownWidth(const std::vector<platform::Control*>& controls, int width) {
    const platform::Control* previous = nullptr;
    for (platform::Control* control : controls) {
        if (previous) {
            control->Top = previous->Top;
            control->Left = previous->Left + previous->Width + width;
        }
        previous = control;
    }
    state_.appliedStyles.push_back("row of " + std::to_string(controls.size()) + " " + std::to_string(width));
}

// The rows' text field is added in the order the table gives them; the condition
// begins with "And " and is appended as it stands.
void PlainGlobal::FillComboBox(const std::string& table, const std::string&, const std::string& textField,
                               platform::ComboBox& combo, int, int, const std::string& condition) {
    auto rs = state_.connection->Execute("Select " + textField + " From " + table + " Where 1 = 1 " + condition);
    for (; rs && rs->IsOpen() && !rs->Eof(); rs->MoveNext()) combo.AddItem(platform::ToText(rs->Fields(0)));
}

host_services::HostedForm* PlainGlobal::FindOpenForm(const std::string& formName, int) {
    for (auto it = state_.openForms.rbegin(); it != state_.openForms.rend(); ++it)
        if (platform::UCase((*it)->FormName()) == platform::UCase(formName)) return *it;
    return nullptr;
}

}  // namespace host
