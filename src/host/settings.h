// The host's settings, by the name of the operation that reads each one
// ("GetCustomerNameFirst", "GetPrintOnSaveMode", "AdministratorPassword",
// "GetCloseDayMode", ...). Every setting has a default; a settings file or the
// session's `setting` verb overrides it.
#pragma once

#include <map>
#include <string>

namespace host {

class Settings {
public:
    Settings();  // the defaults
    // Names match without regard to case. An unknown name, or a value the setting
    // cannot take (a word for a number, "maybe" for a switch), is refused with
    // std::invalid_argument and the setting keeps its value.
    void Set(const std::string& name, const std::string& value);
    // Why Set would refuse the pair; empty when it would take it.
    static std::string Problem(const std::string& name, const std::string& value);
    bool Has(const std::string& name) const;
    std::string Text(const std::string& name) const;  // "" for an unknown name
    bool Boolean(const std::string& name) const;      // "true"/"1"/"-1" are true
    long Integer(const std::string& name) const;
    // Reads NAME = VALUE lines of section [Settings] of an ini file; false when the
    // file cannot be read. A file with a bad line changes nothing and is refused as
    // a whole; LoadError() then says where and why.
    bool LoadFile(const std::string& path);
    const std::string& LoadError() const { return loadError_; }
    const std::map<std::string, std::string>& All() const { return values_; }

private:
    std::map<std::string, std::string> values_;
    std::string loadError_;
};

}  // namespace host
