#include "host/settings.h"

#include <ini.h>

#include <stdexcept>

#include "host/setting_catalog.h"
#include "platform/convert.h"

namespace host {

Settings::Settings() {
    for (const auto& setting : SettingCatalog()) values_[setting.name] = setting.defaultValue;
}

std::string Settings::Problem(const std::string& name, const std::string& value) {
    const SettingInfo* setting = FindSetting(name);
    if (!setting) return "unknown setting \"" + name + "\"";
    return SettingValueProblem(*setting, value);
}

void Settings::Set(const std::string& name, const std::string& value) {
    if (auto problem = Problem(name, value); !problem.empty()) throw std::invalid_argument(problem);
    values_[FindSetting(name)->name] = value;
}

bool Settings::Has(const std::string& name) const { return FindSetting(name) != nullptr; }

std::string Settings::Text(const std::string& name) const {
    const SettingInfo* setting = FindSetting(name);
    if (!setting) return {};
    return values_.at(setting->name);
}

bool Settings::Boolean(const std::string& name) const {
    bool value = false;
    return ParseBoolean(Text(name), value) && value;
}

long Settings::Integer(const std::string& name) const {
    long value = 0;
    return ParseInteger(Text(name), value) ? value : 0;
}

namespace {

struct FileReading {
    std::map<std::string, std::string> staged;
    std::string problem;
};

int TakeIniLine(void* user, const char* section, const char* name, const char* value) {
    auto& reading = *static_cast<FileReading*>(user);
    if (platform::LCase(section) != "settings") return 1;
    if (auto problem = Settings::Problem(name, value); !problem.empty()) {
        reading.problem = problem;
        return 0;
    }
    reading.staged[FindSetting(name)->name] = value;
    return 1;
}

}  // namespace

bool Settings::LoadFile(const std::string& path) {
    FileReading reading;
    int result = ini_parse(path.c_str(), TakeIniLine, &reading);
    if (result < 0) {
        loadError_ = "cannot read settings file " + path;
        return false;
    }
    if (result > 0) {
        loadError_ = path + " line " + std::to_string(result) + ": " +
                     (reading.problem.empty() ? std::string("not a NAME = VALUE line") : reading.problem);
        return false;
    }
    for (auto& [name, value] : reading.staged) values_[name] = value;
    loadError_.clear();
    return true;
}

}  // namespace host
