// What a host that drives a screen with user events sees of it: its controls by
// name, its grid, its fields as text, its routines, and the form's own events.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/event.h"
#include "platform/grid.h"
#include "screen/host_services/hosted_form.h"
#include "screen/routine_table.h"

namespace screen {

class ScreenForm : public host_services::HostedForm {
public:
    // nullptr when the form has no such control.
    virtual platform::Control* FindControl(const std::string& name, int index = -1) = 0;
    // Every control of the form, for a host that draws it.
    virtual std::vector<platform::Control*> Controls() const = 0;
    // The grid of the screen; nullptr when it has none.
    virtual platform::DTFlex* Grid() = 0;
    // A screen field written as text; nothing when the form has no such field.
    virtual std::optional<std::string> FieldText(const std::string& name) const = 0;
    // A host holding the form object writes one of its public text fields; false when
    // the form has no such field that a host may write.
    virtual bool SetFieldText(const std::string& /*name*/, const std::string& /*text*/) { return false; }
    virtual const RoutineTable& Routines() const = 0;
    // The form previews every key before the control that has focus.
    virtual bool KeyPreview() const = 0;
    virtual void Form_KeyDown(int& KeyCode, int Shift) = 0;
    // The user closes the screen: QueryUnload may refuse (true = cancelled); when it
    // does not, Unload runs.
    virtual bool Close() = 0;
    virtual bool IsLoaded() const = 0;

    // Raised each time focus moves, with the control that took it.
    platform::Event<platform::Control&> FocusMoved;

protected:
    // Focus moves as the runtime moved it: the form notes the control that takes it,
    // hosts hear of it, the old control loses it, and the new one gets it unless a
    // LostFocus handler has sent focus elsewhere already.
    void TakeFocus(platform::Control*& activeControl, platform::Control& to) {
        if (activeControl == &to) return;
        platform::Control* previous = activeControl;
        activeControl = &to;
        FocusMoved.Raise(to);
        if (previous) previous->LostFocus.Raise();
        if (activeControl == &to) to.GotFocus.Raise();
    }
};

}  // namespace screen
