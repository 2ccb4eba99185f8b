// What the user does to the controls: focus, typing, keys, clicks, ticks, choices
// from lists and date pickers, and picks from the type-ahead list.
#include <fmt/format.h>

#include "platform/convert.h"
#include "platform/grid.h"
#include "session/control_reading.h"
#include "session/key_press.h"
#include "session/script_error.h"
#include "session/script_words.h"
#include "session/session.h"
#include "session/verbs.h"

namespace session {
namespace {

using platform::ControlKind;

ScriptError WrongKind(const ScriptCommand& command, const platform::Control& control, const char* wanted) {
    return ScriptError(command.line, fmt::format("{} is a {}; {} needs {}", control.FullName(),
                                                 KindName(control.Kind()), command.Verb(), wanted));
}

// A row number of the command that must lie between first and last.
int RowWithin(const ScriptCommand& command, std::size_t n, int first, int last, const platform::Control& control) {
    long row = IntegerWord(command, n, "the row");
    if (row < first || row > last)
        throw ActionRefused(last < first ? fmt::format("{} has no rows", control.FullName())
                                         : fmt::format("{} has rows {} to {}", control.FullName(), first, last));
    return static_cast<int>(row);
}

void Focus(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 1, 1, "a control");
    session.GiveFocus(command, session.ControlArgument(command, 1));
}

void Type(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "a control and the text in quotes");
    auto& control = session.ControlArgument(command, 1);
    const std::string& text = command.Argument(2);
    if (control.Kind() == ControlKind::TextBox) {
        auto& box = static_cast<platform::TextBox&>(control);
        session.GiveFocus(command, box);
        if (box.Locked) throw ActionRefused(fmt::format("{} is locked", box.FullName()));
        // Typed over, the same text still raises Change once.
        if (box.Text() == text)
            box.Change.Raise();
        else
            box.SetText(text);
    } else if (control.Kind() == ControlKind::ComboBox) {
        auto& combo = static_cast<platform::ComboBox&>(control);
        session.GiveFocus(command, combo);
        if (combo.Locked || combo.Style == 2) throw ActionRefused(fmt::format("{} takes no typing", combo.FullName()));
        if (combo.Text() == text)
            combo.Change.Raise();
        else
            combo.SetText(text);
    } else {
        throw WrongKind(command, control, "a text box or a combo box");
    }
}

void Key(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 3, "a control, a key code and a shift state");
    auto& control = session.ControlArgument(command, 1);
    int keyCode = static_cast<int>(IntegerWord(command, 2, "the key code"));
    int shift = command.ArgumentCount() == 3 ? static_cast<int>(IntegerWord(command, 3, "the shift state")) : 0;
    session.GiveFocus(command, control);
    auto& form = session.Form(command);
    if (control.Kind() == ControlKind::Grid)
        PressGridKey(form, static_cast<platform::DTFlex&>(control), keyCode, shift);
    else
        PressKey(form, control, keyCode, shift);
}

// Labels and frames take a click without taking focus, when the user can see them.
void RequireReachable(const platform::Control& control) {
    for (const platform::Control* c = &control; c != nullptr; c = c->Container)
        if (!c->Visible || !c->Enabled)
            throw ActionRefused(fmt::format("{} cannot be clicked: {} is {}", control.FullName(), c->FullName(),
                                            c->Visible ? "disabled" : "hidden"));
}

void Click(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 1, 1, "a control");
    auto& control = session.ControlArgument(command, 1);
    if (control.Kind() == ControlKind::Label || control.Kind() == ControlKind::Frame) {
        RequireReachable(control);
        control.Click.Raise();
        return;
    }
    session.GiveFocus(command, control);
    if (control.Kind() == ControlKind::CheckBox) {
        auto& box = static_cast<platform::CheckBox&>(control);
        box.SetValue(box.Value() == 1 ? 0 : 1);  // raises Click
        return;
    }
    control.Click.Raise();
}

void DoubleClick(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 1, 1, "a control");
    auto& control = session.ControlArgument(command, 1);
    session.GiveFocus(command, control);
    control.DblClick.Raise();
}

// A tick already in the wanted state is left alone: the user sees it and does not click.
void SetTick(Session& session, const ScriptCommand& command, bool ticked) {
    RequireArguments(command, 2, 2, "a list and a row number from 1");
    auto& control = session.ControlArgument(command, 1);
    if (control.Kind() == ControlKind::ListView) {
        auto& view = static_cast<platform::ListView&>(control);
        int row = RowWithin(command, 2, 1, view.Count(), view);
        session.GiveFocus(command, view);
        if (!view.CheckBoxes) throw ActionRefused(fmt::format("{} shows no check boxes", view.FullName()));
        if (view.Item(row).Checked == ticked) return;
        view.Item(row).Checked = ticked;
        view.ItemCheck.Raise(row);
    } else if (control.Kind() == ControlKind::ListBox) {
        auto& list = static_cast<platform::ListBox&>(control);
        int row = RowWithin(command, 2, 1, list.ListCount(), list);
        session.GiveFocus(command, list);
        if (list.Selected(row - 1) == ticked) return;
        list.SetSelected(row - 1, ticked);
    } else {
        throw WrongKind(command, control, "a list view or a list box");
    }
}

void Tick(Session& session, const ScriptCommand& command) { SetTick(session, command, true); }
void Untick(Session& session, const ScriptCommand& command) { SetTick(session, command, false); }

void Select(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "a list and a row (from 1) or a combo box and an entry (from 0)");
    auto& control = session.ControlArgument(command, 1);
    if (control.Kind() == ControlKind::ListView) {
        auto& view = static_cast<platform::ListView&>(control);
        int row = RowWithin(command, 2, 1, view.Count(), view);
        session.GiveFocus(command, view);
        view.Select(row);
        view.ItemClick.Raise(row);
        view.Click.Raise();
        return;
    }
    if (control.Kind() != ControlKind::ListBox && control.Kind() != ControlKind::ComboBox)
        throw WrongKind(command, control, "a list view, a list box or a combo box");
    auto& list = static_cast<platform::ListControl&>(control);
    bool combo = control.Kind() == ControlKind::ComboBox;
    int index = combo ? RowWithin(command, 2, 0, list.ListCount() - 1, list)
                      : RowWithin(command, 2, 1, list.ListCount(), list) - 1;
    session.GiveFocus(command, list);
    // A click on the entry that is chosen already still raises Click.
    if (list.ListIndex() == index)
        list.Click.Raise();
    else
        list.SetListIndex(index);
}

void SetDate(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "a date picker and a date");
    auto& control = session.ControlArgument(command, 1);
    if (control.Kind() != ControlKind::DatePicker) throw WrongKind(command, control, "a date picker");
    auto& picker = static_cast<platform::DatePicker&>(control);
    platform::Date date = DateWord(command, 2);
    if (date.serial < picker.MinDate.serial || date.serial > picker.MaxDate.serial)
        throw ActionRefused(fmt::format("{} takes dates from {} to {}", picker.FullName(),
                                        platform::DateToIso(picker.MinDate), platform::DateToIso(picker.MaxDate)));
    session.GiveFocus(command, picker);
    picker.Value = date;
    picker.Change.Raise();
}

void Pick(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 1, 1, "a row of the open list, from 1");
    session.Form(command);
    auto* list = session.Host(command).VisibleList();
    if (list == nullptr) throw ActionRefused("no type-ahead list is open");
    int rows = static_cast<int>(list->RowTexts().size());
    long row = IntegerWord(command, 1, "the row");
    if (row < 1 || row > rows) throw ActionRefused(fmt::format("the open list has {} rows", rows));
    list->Pick(static_cast<int>(row));
}

}  // namespace

void AddUserVerbs(VerbTable& verbs) {
    verbs["focus"] = Focus;
    verbs["type"] = Type;
    verbs["key"] = Key;
    verbs["click"] = Click;
    verbs["dblclick"] = DoubleClick;
    verbs["tick"] = Tick;
    verbs["untick"] = Untick;
    verbs["select"] = Select;
    verbs["date"] = SetDate;
    verbs["pick"] = Pick;
}

}  // namespace session
