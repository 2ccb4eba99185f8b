// The plain controls: naming, focus, and the write events of text boxes and check
// boxes. The list controls live in controls_lists.cpp and controls_listview.cpp.
#include "platform/controls.h"

#include "platform/runtime_error.h"

namespace platform {

Control::Control(FocusScope& scope, ControlKind kind, std::string name, int index)
    : scope_(scope), kind_(kind), name_(std::move(name)), index_(index) {}

std::string Control::FullName() const {
    if (index_ < 0) return name_;
    return name_ + "(" + std::to_string(index_) + ")";
}

bool Control::CanTakeFocus() const {
    // Labels and frames never hold focus in the runtime; the focus goes past them.
    if (kind_ == ControlKind::Label || kind_ == ControlKind::Frame) return false;
    for (const Control* c = this; c != nullptr; c = c->Container)
        if (!c->Visible || !c->Enabled) return false;
    return true;
}

void Control::SetFocus() {
    if (!CanTakeFocus()) throw RuntimeError(err::InvalidCall);
    if (HasFocus()) return;
    scope_.MoveFocus(*this);
}

bool Control::HasFocus() const { return scope_.ActiveControl() == this; }

void CheckBox::SetValue(int value) {
    if (value < 0 || value > 2) throw RuntimeError(err::InvalidPropertyValue);
    if (value == value_) return;
    value_ = value;
    Click.Raise();
}

void TextBox::SetText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    // The runtime puts the caret at the start of a text written by the program.
    SelStart = 0;
    SelLength = 0;
    Change.Raise();
}

}  // namespace platform
