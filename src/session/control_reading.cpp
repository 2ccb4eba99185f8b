#include "session/control_reading.h"

#include <fmt/format.h>

#include "platform/convert.h"
#include "platform/grid.h"
#include "session/script_parser.h"

namespace session {

using platform::ControlKind;

std::string Join(const std::vector<std::string>& parts, const std::string& separator) {
    std::string joined;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i) joined += separator;
        joined += parts[i];
    }
    return joined;
}

const char* KindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox: return "TextBox";
        case ControlKind::Label: return "Label";
        case ControlKind::ComboBox: return "ComboBox";
        case ControlKind::ListBox: return "ListBox";
        case ControlKind::ListView: return "ListView";
        case ControlKind::DatePicker: return "DatePicker";
        case ControlKind::CommandButton: return "CommandButton";
        case ControlKind::Frame: return "Frame";
        case ControlKind::CheckBox: return "CheckBox";
        case ControlKind::Grid: return "Grid";
    }
    return "Control";
}

std::optional<std::string> ControlText(const platform::Control& control) {
    switch (control.Kind()) {
        case ControlKind::TextBox: return static_cast<const platform::TextBox&>(control).Text();
        case ControlKind::ComboBox: return static_cast<const platform::ComboBox&>(control).Text();
        case ControlKind::ListBox: {
            // A list box shows its selected entry as its text.
            const auto& list = static_cast<const platform::ListBox&>(control);
            return list.ListIndex() < 0 ? std::string() : list.List(list.ListIndex());
        }
        case ControlKind::DatePicker:
            return platform::DateToIso(static_cast<const platform::DatePicker&>(control).Value);
        default: return std::nullopt;
    }
}

std::optional<std::string> ControlCaption(const platform::Control& control) {
    switch (control.Kind()) {
        case ControlKind::Label: return static_cast<const platform::Label&>(control).Caption;
        case ControlKind::Frame: return static_cast<const platform::Frame&>(control).Caption;
        case ControlKind::CommandButton: return static_cast<const platform::CommandButton&>(control).Caption;
        case ControlKind::CheckBox: return static_cast<const platform::CheckBox&>(control).Caption;
        default: return std::nullopt;
    }
}

std::optional<std::vector<std::string>> ControlEntries(const platform::Control& control) {
    std::vector<std::string> entries;
    switch (control.Kind()) {
        case ControlKind::ListView: {
            const auto& view = static_cast<const platform::ListView&>(control);
            for (int i = 1; i <= view.Count(); ++i) {
                const auto& item = view.Item(i);
                entries.push_back(item.Text.empty() ? item.SubItem(1) : item.Text);
            }
            return entries;
        }
        case ControlKind::ListBox:
        case ControlKind::ComboBox:
            for (const auto& entry : static_cast<const platform::ListControl&>(control).Entries())
                entries.push_back(entry.text);
            return entries;
        default: return std::nullopt;
    }
}

std::optional<std::vector<int>> CheckedRows(const platform::Control& control) {
    std::vector<int> rows;
    switch (control.Kind()) {
        case ControlKind::ListView: {
            const auto& view = static_cast<const platform::ListView&>(control);
            for (int i = 1; i <= view.Count(); ++i)
                if (view.Item(i).Checked) rows.push_back(i);
            return rows;
        }
        case ControlKind::ListBox: {
            // A list box without check boxes counts its selected entry as ticked.
            const auto& list = static_cast<const platform::ListBox&>(control);
            for (int i = 0; i < list.ListCount(); ++i)
                if (list.Selected(i)) rows.push_back(i + 1);
            return rows;
        }
        default: return std::nullopt;
    }
}

namespace {

std::string StateLine(const platform::Control& control) {
    std::string line = fmt::format("{} {}", control.FullName(), KindName(control.Kind()));
    if (auto text = ControlText(control)) line += " text " + Quote(*text);
    if (auto caption = ControlCaption(control)) line += " caption " + Quote(*caption);
    line += " tag " + Quote(control.Tag);
    line += fmt::format(" visible {} enabled {}", control.Visible, control.Enabled);
    if (control.Kind() == ControlKind::TextBox && static_cast<const platform::TextBox&>(control).Locked)
        line += " locked";
    if (control.Kind() == ControlKind::CheckBox)
        line += fmt::format(" value {}", static_cast<const platform::CheckBox&>(control).Value());
    if (control.Kind() == ControlKind::Grid) {
        const auto& grid = static_cast<const platform::DTFlex&>(control);
        line += fmt::format(" rows {} cell {},{}", grid.GridRows(), grid.GridRow(), grid.GridCol());
    }
    return line;
}

// The columns first, as "heading" width; the rows' fields follow in that order.
void AddListViewLines(const platform::ListView& view, std::vector<std::string>& lines) {
    if (!view.ColumnHeaders.empty()) {
        std::string line = fmt::format("  view {} check boxes {} columns", view.View, view.CheckBoxes);
        for (const auto& column : view.ColumnHeaders)
            line += fmt::format(" | {} {}", Quote(column.Text), platform::NumberToText(column.Width));
        lines.push_back(line);
    }
    for (int i = 1; i <= view.Count(); ++i) {
        const auto& item = view.Item(i);
        std::string line = fmt::format("  {} [{}] {}", i, item.Checked ? 'x' : ' ', Quote(item.Text));
        for (const auto& sub : item.SubItems) line += " | " + Quote(sub.text);
        if (item.Selected) line += " (selected)";
        lines.push_back(line);
    }
}

void AddListLines(const platform::ListControl& list, bool withTicks, std::vector<std::string>& lines) {
    const auto& entries = list.Entries();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        std::string line = fmt::format("  {}", list.Kind() == ControlKind::ComboBox ? i : i + 1);
        if (withTicks) line += entries[i].selected ? " [x]" : " [ ]";
        line += " " + Quote(entries[i].text);
        if (static_cast<int>(i) == list.ListIndex()) line += " (selected)";
        lines.push_back(line);
    }
}

}  // namespace

std::vector<std::string> DescribeControl(const platform::Control& control) {
    std::vector<std::string> lines{StateLine(control)};
    switch (control.Kind()) {
        case ControlKind::ListView: AddListViewLines(static_cast<const platform::ListView&>(control), lines); break;
        case ControlKind::ListBox: {
            const auto& list = static_cast<const platform::ListBox&>(control);
            AddListLines(list, list.CheckBoxes, lines);
            break;
        }
        case ControlKind::ComboBox:
            AddListLines(static_cast<const platform::ListControl&>(control), false, lines);
            break;
        default: break;
    }
    return lines;
}

}  // namespace session
