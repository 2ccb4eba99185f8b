// The settings the plain host knows, each with its kind and default. A name is
// that of the host operation that reads it, so that a session writes
// `setting GetOCGEnabled true` and the screen's call reads the same entry.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host {

enum class SettingKind { Boolean, Integer, Text, Date };

struct SettingInfo {
    std::string name;
    SettingKind kind;
    std::string defaultValue;
};

const std::vector<SettingInfo>& SettingCatalog();
// Matches without regard to case (settings files are written by hand); nullptr
// for a name the host does not know.
const SettingInfo* FindSetting(std::string_view name);
// Why the value cannot stand for the setting; empty when it can.
std::string SettingValueProblem(const SettingInfo& setting, const std::string& value);

// Booleans are written true/false, yes/no, 1/0 or -1 (all bits set) for true.
bool ParseBoolean(std::string_view text, bool& value);
bool ParseInteger(std::string_view text, long& value);

}  // namespace host
