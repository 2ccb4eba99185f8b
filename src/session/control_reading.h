// What a user reads off a control: its text, caption, list entries and ticks, in
// the shape the session's checks compare them. Nothing when the control has no such
// thing (a label has no text, a button no entries).
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"

namespace session {

std::optional<std::string> ControlText(const platform::Control& control);
std::optional<std::string> ControlCaption(const platform::Control& control);
// A list view's rows (each its text, or its first sub-item when the text is empty),
// a list box's or a combo box's entries.
std::optional<std::vector<std::string>> ControlEntries(const platform::Control& control);
// The ticked rows of a list view or a list box, from 1.
std::optional<std::vector<int>> CheckedRows(const platform::Control& control);

// The lines `show CONTROL` prints: the control's state, then one line an entry.
std::vector<std::string> DescribeControl(const platform::Control& control);

const char* KindName(platform::ControlKind kind);

std::string Join(const std::vector<std::string>& parts, const std::string& separator);

}  // namespace session
