// The results of a procedure call: a procedure that writes before it reads answers
// first with row counts, and the set that matters comes after them.
#pragma once

#include "platform/database.h"

namespace host {

// From the recordset's current result on: the first result with rows; else the
// last one that has columns; else the last one. The answer starts at that result
// and keeps those after it; nullptr for no recordset. The caller's recordset is
// left where it stood.
platform::RecordsetPtr FirstResultWithRows(const platform::RecordsetPtr& recordset);

}  // namespace host
