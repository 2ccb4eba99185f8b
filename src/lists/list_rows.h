// What the two lists of pending documents share: the colour of a customer's header
// row, the period their procedures are asked for, and the answer they read, which
// must be there.
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
// the from-day to the last of the to-day, for one customer when one is named.
inline platform::RecordsetPtr RunForPeriod(host_services::HostGlobal& global, const std::string& procedure,
                                           const platform::DatePicker& from, const platform::DatePicker& to,
                                           const std::optional<std::string>& customer = std::nullopt) {
    using platform::adtype::Date;
    const platform::Date dtFrom = global.DayStart(from);
    const platform::Date dtTo = global.DayEnd(to);
    if (customer)
        return global.RunProcedure(procedure, {{*customer, platform::adtype::VarChar}, {dtFrom, Date}, {dtTo, Date}});
    return global.RunProcedure(procedure, {{dtFrom, Date}, {dtTo, Date}});
}

inline platform::Recordset& Answer(const platform::RecordsetPtr& result) {
    if (!result) throw platform::RuntimeError(platform::err::ObjectNotSet);
    return *result;
}

}  // namespace screen::lists
