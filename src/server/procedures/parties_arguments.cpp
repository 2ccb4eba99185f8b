#include "server/procedures/parties_arguments.h"

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/procedure_arguments.h"
#include "server/procedures/parties_procedures.h"

namespace server::parties {

TableFunctionArguments::TableFunctionArguments(std::string function, const std::vector<platform::Value>& arguments,
                                               std::size_t declared)
    : function_(std::move(function)), arguments_(arguments) {
    if (arguments.size() < declared)
        throw platform::RuntimeError(
            platform::err::DatabaseError,
            "An insufficient number of arguments were supplied for the procedure or function dbo." + function_ + ".");
    if (arguments.size() > declared)
        throw platform::RuntimeError(platform::err::DatabaseError,
                                     "Procedure or function dbo." + function_ + " has too many arguments.");
}

long long TableFunctionArguments::Int(std::size_t index) const {
    const platform::Value value = ToServerInt(arguments_.at(index));
    return value.IsNull() || value.IsEmpty() ? 0 : value.AsInteger();
}

std::string TableFunctionArguments::Text(std::size_t index) const {
    return platform::ToText(ToServerText(arguments_.at(index)));
}

std::vector<long long> GroupIDList(const std::string& list) {
    std::vector<long long> ids;
    for (const auto& element : platform::Split(list, ",")) {
        const std::string trimmed = platform::Trim(element);
        if (!platform::IsNumericText(trimmed)) continue;
        ids.push_back(static_cast<long long>(platform::ToNumber(platform::Value(trimmed))));
    }
    return ids;
}

}  // namespace server::parties
