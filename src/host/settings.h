// The host's settings, by the name of the operation that reads each one
// ("GetCustomerNameFirst", "GetPrintOnSaveMode", "AdministratorPassword",
// "CloseDayOpen", ...). Every setting has a default; a settings file or the
// session's `setting` verb overrides it.
#pragma once

#include <map>
#include <string>

namespace host {

class Settings {
public:
    Settings();  // the defaults
    void Set(const std::string& name, const std::string& value);
    bool Has(const std::string& name) const;
    std::string Text(const std::string& name) const;  // "" for an unknown name
    bool Boolean(const std::string& name) const;      // "true"/"1"/"-1" are true
    long Integer(const std::string& name) const;
    // Reads NAME = VALUE lines of section [Settings] of an ini file; false when the
    // file cannot be read.
    bool LoadFile(const std::string& path);
    const std::map<std::string, std::string>& All() const { return values_; }

private:
    std::map<std::string, std::string> values_;
};

}  // namespace host
