#include "web/form_state.h"

#include <algorithm>

#include "platform/convert.h"
#include "session/control_reading.h"

namespace web {
namespace {

using nlohmann::json;
using platform::ControlKind;

double Pixels(double twips) { return std::round(twips / kTwipsPerPixel); }

json EntriesOf(const platform::ListControl& list) {
    json entries = json::array();
    for (const auto& entry : list.Entries()) entries.push_back(entry.text);
    return entries;
}

json ListViewState(const platform::ListView& view) {
    json columns = json::array();
    for (const auto& column : view.ColumnHeaders)
        columns.push_back({{"text", column.Text}, {"width", Pixels(column.Width)}});
    json items = json::array();
    for (int i = 1; i <= view.Count(); ++i) {
        const auto& item = view.Item(i);
        json subItems = json::array();
        for (const auto& sub : item.SubItems) subItems.push_back(sub.text);
        items.push_back({{"text", item.Text},
                         {"subItems", subItems},
                         {"checked", item.Checked},
                         {"selected", item.Selected},
                         {"bold", item.Bold}});
    }
    return {{"checkBoxes", view.CheckBoxes}, {"columns", columns}, {"items", items}};
}

json GridState(const platform::DTFlex& grid) {
    const int cols = grid.VisibleCols > 0 ? std::min(grid.VisibleCols, grid.GridCols()) : grid.GridCols();
    json headings = json::array(), widths = json::array(), locked = json::array();
    for (int c = 1; c <= cols; ++c) {
        headings.push_back(grid.GetCell(0, c));
        widths.push_back(Pixels(grid.ColWidth(c)));
        locked.push_back(grid.ColLocked(c));
    }
    json cells = json::array();
    for (int r = 1; r <= grid.GridRows(); ++r) {
        json row = json::array();
        for (int c = 1; c <= cols; ++c) row.push_back(grid.GetCell(r, c));
        cells.push_back(std::move(row));
    }
    return {{"rows", grid.GridRows()},    {"cols", cols},          {"headings", headings},
            {"widths", widths},           {"locked", locked},      {"cells", cells},
            {"row", grid.GridRow()},      {"col", grid.GridCol()}, {"editing", grid.Editing()},
            {"editText", grid.EditText()}};
}

void AddContents(json& state, const platform::Control& control) {
    switch (control.Kind()) {
        case ControlKind::Label:
        case ControlKind::Frame:
        case ControlKind::CommandButton: state["caption"] = *session::ControlCaption(control); break;
        case ControlKind::CheckBox: {
            const auto& box = static_cast<const platform::CheckBox&>(control);
            state["caption"] = box.Caption;
            state["value"] = box.Value();
            break;
        }
        case ControlKind::TextBox: {
            const auto& box = static_cast<const platform::TextBox&>(control);
            state["text"] = box.Text();
            state["locked"] = box.Locked;
            state["multiLine"] = box.MultiLine;
            break;
        }
        case ControlKind::ComboBox: {
            const auto& combo = static_cast<const platform::ComboBox&>(control);
            state["text"] = combo.Text();
            state["locked"] = combo.Locked;
            state["style"] = combo.Style;
            state["entries"] = EntriesOf(combo);
            state["listIndex"] = combo.ListIndex();
            break;
        }
        case ControlKind::ListBox: {
            const auto& list = static_cast<const platform::ListBox&>(control);
            state["entries"] = EntriesOf(list);
            state["listIndex"] = list.ListIndex();
            state["checkBoxes"] = list.CheckBoxes;
            json selected = json::array();
            for (const auto& entry : list.Entries()) selected.push_back(entry.selected);
            state["selected"] = selected;
            break;
        }
        case ControlKind::ListView: state.update(ListViewState(static_cast<const platform::ListView&>(control))); break;
        case ControlKind::DatePicker:
            state["value"] =
                platform::DateToIso(platform::DateOnly(static_cast<const platform::DatePicker&>(control).Value));
            break;
        case ControlKind::Grid: state["grid"] = GridState(static_cast<const platform::DTFlex&>(control)); break;
    }
}

int Depth(const platform::Control& control) {
    int depth = 0;
    for (const auto* frame = control.Container; frame != nullptr; frame = frame->Container) ++depth;
    return depth;
}

json TypeAheadState(const session::Session& session) {
    auto* host = session.MadeHost();
    auto* list = host ? host->VisibleList() : nullptr;
    if (list == nullptr) return nullptr;
    const auto* box = list->Box();
    return {{"under", box ? json(box->FullName()) : json(nullptr)},
            {"rows", list->RowTexts()},
            {"selected", list->SelectedRow()}};
}

json DialogState(const host::DialogQuestion* question) {
    if (question == nullptr) return nullptr;
    return {{"kind", question->kind},       {"text", question->text},       {"title", question->title},
            {"buttons", question->buttons}, {"choices", question->choices}, {"masked", question->masked}};
}

json PrintsState(const std::vector<std::string>& prints) {
    json list = json::array();
    for (std::size_t i = 0; i < prints.size(); ++i) list.push_back({{"n", i + 1}, {"name", prints[i]}});
    return list;
}

}  // namespace

json ControlState(const platform::Control& control) {
    json state = {{"id", control.FullName()},
                  {"name", control.Name()},
                  {"index", control.Index()},
                  {"kind", session::KindName(control.Kind())},
                  {"container", control.Container ? json(control.Container->FullName()) : json(nullptr)},
                  {"left", Pixels(control.Left)},
                  {"top", Pixels(control.Top)},
                  {"width", Pixels(control.Width)},
                  {"height", Pixels(control.Height)},
                  {"visible", control.Visible},
                  {"enabled", control.Enabled},
                  {"tabIndex", control.TabIndex}};
    AddContents(state, control);
    return state;
}

json FormState(const session::Session& session, const host::DialogQuestion* question, const CallLines& call) {
    json state;
    screen::ScreenForm* form = session.OpenScreen();
    const auto* host = session.MadeHost();
    state["screen"] = form && form->FormName().find("CForm") != std::string::npos ? "cform" : "dispatch";
    state["caption"] = host ? host->FrameCaption() : std::string();
    state["open"] = form != nullptr;
    json controls = json::array();
    if (form != nullptr) {
        std::vector<platform::Control*> all = form->Controls();
        // Containers come before what they hold; otherwise the form's tab order.
        std::stable_sort(all.begin(), all.end(), [](const platform::Control* a, const platform::Control* b) {
            return std::pair(Depth(*a), a->TabIndex) < std::pair(Depth(*b), b->TabIndex);
        });
        for (const auto* control : all) controls.push_back(ControlState(*control));
        const auto* active = form->ActiveControl();
        state["focus"] = active ? json(active->FullName()) : json(nullptr);
    } else {
        state["focus"] = nullptr;
    }
    state["controls"] = std::move(controls);
    state["typeAhead"] = TypeAheadState(session);
    state["dialog"] = DialogState(question);
    const auto* status = session.transcript.LastStatus();
    state["status"] = status ? json{{"text", status->text}, {"flag", status->flag}} : json{{"text", ""}, {"flag", 0}};
    state["lines"] = call.lines;
    state["prints"] = PrintsState(call.prints);
    return state;
}

}  // namespace web
