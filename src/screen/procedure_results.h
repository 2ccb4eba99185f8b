// Reading a procedure's answer as the screen always did: a result that is missing
// or closed is "no recordset"; a result with no row gives no field.
#pragma once

#include "platform/database.h"

namespace screen {

inline bool HasRecordset(const platform::RecordsetPtr& result) { return result && result->IsOpen(); }

// The first row's field (by position 0, or by name), or nullptr when there is no row.
inline const platform::Value* FirstRowField(const platform::RecordsetPtr& result, const char* field = nullptr) {
    if (!HasRecordset(result) || result->Eof()) return nullptr;
    return field ? &result->Fields(field) : &result->Fields(0);
}

}  // namespace screen
