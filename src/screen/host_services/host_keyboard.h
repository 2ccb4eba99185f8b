// The host's keyboard and list helpers: focus, the Enter walk, the common short
// cuts, the key-event shift mask, combo boxes, list views and the grid's codes.
#pragma once

#include <string>
#include <vector>

#include "platform/controls.h"
#include "screen/host_services/hosted_form.h"

namespace host_services {

class HostKeyboard {
public:
    virtual ~HostKeyboard() = default;

    // The host's common short cuts of a screen (help and the like); a key it takes
    // comes back as 0.
    virtual void HandleFormShortcut(HostedForm& form, int& keyCode, int shift) = 0;
    // The short cuts of the form's active date picker (a day on, a day back, the
    // working date); a key it takes comes back as 0.
    virtual void HandleDateShortcut(HostedForm& form, int& keyCode, int shift) = 0;
    // The short cut that clears a look-up box's choice; a key it takes comes back as 0.
    virtual void HandleLookupShortcut(platform::Control& control, int& keyCode, int shift) = 0;
    // The Shift value of a key event that means plain forward movement; every key
    // handler compares its Shift with it.
    virtual int GetShiftMask() = 0;
    // The grid's alignment code for a left-aligned column.
    virtual int GetAlignLeft() = 0;
    // The grid's alignment code for a right-aligned column.
    virtual int GetAlignRight() = 0;
    // The grid's alignment code for a centred column.
    virtual int GetAlignCentre() = 0;
    // The grid's edit style for the columns the user may type into.
    virtual int GetGridEditColumnValue() = 0;

    // Moves focus to the control; harmless when the control cannot take it.
    virtual void SetFocusTo(platform::Control& control) = 0;
    // Enter in a field: focus goes ahead, or behind when the key's Shift asks for it.
    virtual void HandleEnterAdvance(int shift, platform::Control& behind, platform::Control& ahead) = 0;
    // Counts Enter keys in a multi-line box: 0 the key stays in the box, 1 on to the
    // next field, 2 back to the previous one.
    virtual int AddressEnterStep(int& keyCode) = 0;
    // Takes a combo's drop-down flag in its click event and clears it.
    virtual void NoteComboClick(bool& dropped) = 0;
    // Walks the list's selection by the key; true when the selection moved. Enter
    // takes the entry the list stands on (the first when none is chosen) and counts
    // as moved, so that a caller reads that entry as the user's choice.
    virtual bool MoveListSelection(platform::ListView& list, int keyCode) = 0;
    // Selects the combo's entry equal to its text; index -1 when there is none.
    virtual void ComboFindExact(platform::ComboBox& combo) = 0;
    // Type-ahead in a combo: the typed key extends the text to the first entry that
    // begins with it; a key it takes comes back as 0.
    virtual void ComboAutoComplete(platform::ComboBox& combo, int& keyAscii) = 0;
    // Sets the width of the combo's drop-down list.
    virtual void SetDropDownWidth(platform::ComboBox& combo, int width) = 0;
    // Given a list of controls, lays them in one row at the first one's top: each
    // after the one before it, the width apart.
    virtual void SetDropDownWidth(const std::vector<platform::Control*>& controls, int width) = 0;
    // Adds to the combo the text field of the table's rows that meet the condition,
    // which begins with "And " and is appended as it stands. The two option words are
    // the host's; the form passes 0 and 0.
    virtual void FillComboBox(const std::string& table, const std::string& valueField, const std::string& textField,
                              platform::ComboBox& combo, int hostOptionA, int hostOptionB,
                              const std::string& condition) = 0;
    // The shared switch that holds off a list's click handler while the program
    // itself moves the list's index.
    virtual bool GetListGuard() = 0;
    // Sets the shared switch GetListGuard answers.
    virtual void SetListGuard(bool holdClicks) = 0;
};

}  // namespace host_services
