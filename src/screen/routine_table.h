// The screen's routines by name, for a host that holds the form object and calls
// them late-bound (the session driver's `call`). Arguments arrive as the user wrote
// them; a routine gives its result and the by-reference arguments it set, or refuses
// words that do not fit it before it runs.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/value.h"

namespace screen {

// The caller's words do not fit the routine (too few, too many, a word where a
// number belongs): the caller's mistake, raised before the routine runs. A run-time
// error inside the routine is the routine's own and never this.
class RoutineRefused : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct RoutineCall {
    std::vector<std::string> arguments;
    std::optional<platform::Value> result;                      // set by functions
    std::vector<std::pair<std::string, platform::Value>> outs;  // by-reference arguments, by name
};

class RoutineTable {
public:
    using Routine = std::function<void(RoutineCall&)>;
    void Add(std::string name, Routine routine) { routines_[std::move(name)] = std::move(routine); }
    const Routine* Find(const std::string& name) const {
        auto it = routines_.find(name);
        return it == routines_.end() ? nullptr : &it->second;
    }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (auto& [name, routine] : routines_) names.push_back(name);
        return names;
    }

private:
    std::map<std::string, Routine> routines_;
};

}  // namespace screen
