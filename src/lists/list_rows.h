// What the document lists share: the colour of a customer's header row, the period
// their procedures are asked for, and the answer they read, which must be there.
#pragma once

#include <optional>
#include <string>

#include "platform/controls.h"
#include "platform/database.h"
#include "platform/runtime_error.h"
#include "screen/host_services/host_global.h"

namespace screen::lists {

// Blue in the list's colour order (blue, green, red).
inline constexpr long kHeaderColour = 0xff0000;

// The list's procedure for the period of the two date boxes, from the first moment of
// the from-day to the last of the to-day, for one customer when one is named, with
// whatever further parameters the procedure takes after the period.
inline platform::RecordsetPtr RunForPeriod(host_services::HostGlobal& global, const std::string& procedure,
                                           const platform::DatePicker& from, const platform::DatePicker& to,
                                           const std::optional<std::string>& customer = std::nullopt,
                                           const platform::ParameterList& after = {}) {
    using platform::adtype::Date;
    platform::ParameterList parameters;
    if (customer) parameters.push_back({*customer, platform::adtype::VarChar});
    parameters.push_back({global.DayStart(from), Date});
    parameters.push_back({global.DayEnd(to), Date});
    parameters.insert(parameters.end(), after.begin(), after.end());
    return global.RunProcedure(procedure, parameters);
}

inline platform::Recordset& Answer(const platform::RecordsetPtr& result) {
    if (!result) throw platform::RuntimeError(platform::err::ObjectNotSet);
    return *result;
}

}  // namespace screen::lists
