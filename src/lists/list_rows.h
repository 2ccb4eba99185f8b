// What the two lists of pending documents share: the colour of a customer's header
// row, and the procedure's answer they read, which must be there.
#pragma once

#include "platform/database.h"
#include "platform/runtime_error.h"

namespace screen::lists {

// Blue in the list's colour order (blue, green, red).
inline constexpr long kHeaderColour = 0xff0000;

inline platform::Recordset& Answer(const platform::RecordsetPtr& result) {
    if (!result) throw platform::RuntimeError(platform::err::ObjectNotSet);
    return *result;
}

}  // namespace screen::lists
