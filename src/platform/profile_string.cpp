#include "platform/profile_string.h"

#include <ini.h>

#include <optional>

#include "platform/convert.h"

namespace platform {
namespace {

struct Lookup {
    std::string section;
    std::string key;
    std::optional<std::string> found;
};

int TakeLine(void* user, const char* section, const char* name, const char* value) {
    auto& lookup = *static_cast<Lookup*>(user);
    // The first occurrence counts, as the old reader stopped at it.
    if (!lookup.found && UCase(section) == lookup.section && UCase(name) == lookup.key) lookup.found = value;
    return 1;
}

}  // namespace

std::string GetPrivateProfileString(const std::string& section, const std::string& key, const std::string& byDefault,
                                    std::size_t size, const std::string& file) {
    Lookup lookup{UCase(section), UCase(key), std::nullopt};
    // A file that cannot be opened, or a line the reader does not understand, leaves
    // what was found before it; the old reader was as forgiving.
    ini_parse(file.c_str(), TakeLine, &lookup);
    std::string value = lookup.found.value_or(byDefault);
    if (size == 0) return {};
    if (value.size() > size - 1) value.resize(size - 1);
    return value;
}

}  // namespace platform
