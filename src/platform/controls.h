// The forms runtime's controls, as plain state with their events. A text box's
// Text is what is shown, its Tag the key of what was chosen. Writes that raised an
// event in the runtime raise it here too (a program's write to a text box raises
// Change, a write to a list's index raises Click); writes that did not, do not.
#pragma once

#include <string>
#include <vector>

#include "platform/event.h"
#include "platform/value.h"

namespace platform {

class Control;

// The form side of focus: which control is active, and the move between two.
class FocusScope {
public:
    virtual ~FocusScope() = default;
    virtual Control* ActiveControl() const = 0;
    // Moves focus: LostFocus of the control that had it, then GotFocus of the new one.
    virtual void MoveFocus(Control& to) = 0;
};

enum class ControlKind {
    TextBox,
    Label,
    ComboBox,
    ListBox,
    ListView,
    DatePicker,
    CommandButton,
    Frame,
    CheckBox,
    Grid
};

class Control {
public:
    Control(FocusScope& scope, ControlKind kind, std::string name, int index = -1);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    ControlKind Kind() const { return kind_; }
    const std::string& Name() const { return name_; }
    int Index() const { return index_; }  // -1 when the control is not in an array
    std::string FullName() const;         // "cmdClose(1)", "txtCustomer"

    bool Visible = true;
    bool Enabled = true;
    bool TabStop = true;
    int TabIndex = 0;
    double Top = 0, Left = 0, Width = 0, Height = 0;
    std::string Tag;
    Control* Container = nullptr;  // the frame the control lies in; nullptr for the form

    // True when the control can hold focus (labels and frames never do) and it and
    // every frame around it are visible and enabled.
    bool CanTakeFocus() const;
    // Run-time error 5 when the control cannot take focus, as the runtime did.
    void SetFocus();
    bool HasFocus() const;

    Event<> GotFocus, LostFocus, Click, DblClick;
    Event<int&, int> KeyDown, KeyUp;  // KeyCode by reference (0 swallows it), Shift
    Event<int&> KeyPress;             // KeyAscii by reference

protected:
    FocusScope& scope_;

private:
    ControlKind kind_;
    std::string name_;
    int index_;
};

class Label : public Control {
public:
    Label(FocusScope& scope, std::string name, int index = -1)
        : Control(scope, ControlKind::Label, std::move(name), index) {
        TabStop = false;
    }
    std::string Caption;
};

class Frame : public Control {
public:
    Frame(FocusScope& scope, std::string name, int index = -1)
        : Control(scope, ControlKind::Frame, std::move(name), index) {
        TabStop = false;
    }
    std::string Caption;
};

class CommandButton : public Control {
public:
    CommandButton(FocusScope& scope, std::string name, int index = -1)
        : Control(scope, ControlKind::CommandButton, std::move(name), index) {}
    std::string Caption;
};

class CheckBox : public Control {
public:
    CheckBox(FocusScope& scope, std::string name, int index = -1)
        : Control(scope, ControlKind::CheckBox, std::move(name), index) {}
    std::string Caption;
    int Value() const { return value_; }
    void SetValue(int value);  // 0 unchecked, 1 checked, 2 grey; a change raises Click
private:
    int value_ = 0;
};

class TextBox : public Control {
public:
    TextBox(FocusScope& scope, std::string name, int index = -1)
        : Control(scope, ControlKind::TextBox, std::move(name), index) {}
    const std::string& Text() const { return text_; }
    void SetText(std::string text);  // raises Change when the text differs
    bool Locked = false;
    bool MultiLine = false;
    int SelStart = 0, SelLength = 0;
    void SelectAll() {
        SelStart = 0;
        SelLength = static_cast<int>(text_.size());
    }
    Event<> Change;

private:
    std::string text_;
};

struct ListEntry {
    std::string text;
    long itemData = 0;
    bool selected = false;  // the tick of a list box with check boxes
};

// The part a combo box and a list box share: entries, the index, the Click on a move.
class ListControl : public Control {
public:
    using Control::Control;
    void AddItem(std::string text, long itemData = 0);
    void RemoveItem(int index);
    void Clear();
    int ListCount() const { return static_cast<int>(entries_.size()); }
    const std::string& List(int index) const;  // -1 reads as ""; error 381 elsewhere outside the list
    long ItemData(int index) const;
    int ListIndex() const { return listIndex_; }
    void SetListIndex(int index);  // -1 to ListCount-1, else error 380; a change raises Click
    const std::vector<ListEntry>& Entries() const { return entries_; }

protected:
    virtual void OnIndexChanged() {}
    std::vector<ListEntry> entries_;
    int listIndex_ = -1;
};

class ComboBox : public ListControl {
public:
    ComboBox(FocusScope& scope, std::string name, int index = -1)
        : ListControl(scope, ControlKind::ComboBox, std::move(name), index) {}
    const std::string& Text() const { return text_; }
    void SetText(std::string text);  // the index stays; raises Change when it differs
    bool Locked = false;
    int Style = 0;  // 0 drop-down combo, 2 drop-down list
    Event<> Change, DropDown;

protected:
    void OnIndexChanged() override;

private:
    std::string text_;
};

class ListBox : public ListControl {
public:
    ListBox(FocusScope& scope, std::string name, int index = -1)
        : ListControl(scope, ControlKind::ListBox, std::move(name), index) {}
    bool Selected(int index) const;
    void SetSelected(int index, bool selected);  // raises ItemCheck on a list with check boxes
    bool CheckBoxes = false;
    Event<int> ItemCheck;  // the entry's index
};

struct ListSubItem {
    std::string text;
    std::string tag;
};

struct ListItem {
    std::string Text;
    std::string Key;
    std::string Tag;
    std::vector<ListSubItem> SubItems;  // SubItems[0] is sub-item 1
    bool Checked = false;
    bool Selected = false;
    bool Bold = false;
    long ForeColor = 0;

    // Sub-items from 1, as the runtime numbers them; reading past the end gives "".
    std::string SubItem(int index) const;
    void SetSubItem(int index, std::string text);
    std::string SubItemTag(int index) const;
    void SetSubItemTag(int index, std::string tag);
};

struct ColumnHeader {
    std::string Text;
    double Width = 0;
    int Alignment = 0;
};

class ListView : public Control {
public:
    ListView(FocusScope& scope, std::string name, int index = -1)
        : Control(scope, ControlKind::ListView, std::move(name), index) {}

    std::vector<ColumnHeader> ColumnHeaders;
    int View = 3;  // 3 report view
    bool CheckBoxes = false;
    bool FullRowSelect = true;

    // Items from 1, as the runtime numbers them.
    ListItem& Add(std::string text = {});
    ListItem& Item(int index);  // error 35600 outside the list
    const ListItem& Item(int index) const;
    int Count() const { return static_cast<int>(items_.size()); }
    void Remove(int index);
    void Clear();
    // The selected item's index, 0 for none; selecting one clears the others.
    int SelectedIndex() const;
    void Select(int index);
    // The first item whose text equals the text; 0 for none.
    int FindItem(const std::string& text) const;

    // The user ticked or unticked an item (by index), clicked one.
    Event<int> ItemCheck, ItemClick;

private:
    std::vector<ListItem> items_;
};

class DatePicker : public Control {
public:
    DatePicker(FocusScope& scope, std::string name, int index = -1)
        : Control(scope, ControlKind::DatePicker, std::move(name), index) {}
    Date Value{};
    // The picker's own range: 1601-01-01 to 9999-12-31.
    Date MinDate = Date{-109205};
    Date MaxDate = Date{2958465};
    std::string CustomFormat;
    Event<> Change;  // the user changed the date
};

}  // namespace platform
