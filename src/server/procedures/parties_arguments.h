// The literal arguments of a table function call, held to the count the function
// declares and converted as the server converted them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/value.h"

namespace server::parties {

class TableFunctionArguments {
public:
    // The server refuses a call with fewer or more arguments than declared.
    TableFunctionArguments(std::string function, const std::vector<platform::Value>& arguments, std::size_t declared);

    long long Int(std::size_t index) const;     // Null reads 0
    std::string Text(std::size_t index) const;  // Null reads ''

private:
    std::string function_;
    const std::vector<platform::Value>& arguments_;
};

}  // namespace server::parties
