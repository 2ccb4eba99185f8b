// The stock list lstAvailable: one entry per batch (or per free and saleable stock
// of an item without batches). Its columns by position, as the list was laid out:
// the entry's text is the batch, sub-items 1 to 12 follow.
#pragma once

#include <string>

#include "platform/convert.h"

namespace grid {

// Indexes into ColumnHeaders.
inline constexpr int kListBatchColumn = 0;
inline constexpr int kListExpiryColumn = 1;
inline constexpr int kListPriceColumn = 2;
inline constexpr int kListQuantityColumn = 3;
inline constexpr int kListPKDColumn = 4;
inline constexpr int kListRemarksColumn = 5;

// Sub-items of an entry.
inline constexpr int kSubExpiry = 1;
inline constexpr int kSubPrice = 2;
inline constexpr int kSubQuantity = 3;
inline constexpr int kSubPKD = 4;
inline constexpr int kSubFree = 5;
inline constexpr int kSubTaxSuffered = 6;
inline constexpr int kSubECP = 7;
inline constexpr int kSubPTS = 8;
inline constexpr int kSubPTR = 9;
inline constexpr int kSubSpecialPrice = 10;
inline constexpr int kSubApplicableOn = 11;
inline constexpr int kSubPartOfPercentage = 12;

// Prices are shown in the host's money format, quantities in its plain one.
inline constexpr int kPriceFormatKind = 0;
inline constexpr int kQuantityFormatKind = -1;

// A date of the stock list, as month and year; a cell's date text is read first.
inline std::string MonthYear(const platform::Value& date) {
    if (date.kind() == platform::Value::Kind::Text)
        if (auto parsed = platform::ParseIsoDate(date.AsText())) return platform::Format(*parsed, "MM/YYYY");
    return platform::Format(date, "MM/YYYY");
}

}  // namespace grid
