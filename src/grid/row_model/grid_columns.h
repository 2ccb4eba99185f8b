// The dispatch grid's columns. Every value of a line, shown or not, is text in a
// cell addressed by these numbers; only the first six are shown.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace grid {

enum GridColumn : int {
    colItemCode = 1,
    colItemName = 2,
    colBatch = 3,
    colUOM = 4,
    colSalePrice = 5,
    colQuantity = 6,
    colBatchRequired = 7,
    colAvailableQty = 8,
    colBatchTrack = 9,
    colPriceOption = 10,
    colOriginalPrice = 11,
    colTrackInventory = 12,
    colSchemeID = 13,
    colSchemeName = 14,
    colFreeItem = 15,
    colPromptMessage = 16,
    colItemCheck = 17,
    colPrimaryItemCode = 18,
    colFreeRow = 19,
    colBatchSelection = 20,
    colStoredBatch = 21,
    colStoredQty = 22,
    colStoredRow = 23,
    colStoredExpiry = 24,
    colStoredPKD = 25,
    colBatchCode = 26,
    colUOMID = 27,
    colUOMDesc = 28,
    colOCGItem = 29,
    colSerialNo = 30,
    colPrevQty = 31,
    colSplCatSerial = 32,
    colSplCatSchemeID = 33,
    colSplCatSchemeIndicator = 34,
    colSplCategoryScheme = 35,
    colSplCatDiscPercent = 36,
    colSplCatDiscAmount = 37,
    colSplCatCode = 38,
    colFreeItmIgnored = 39,
    colSchemeCustID = 40,
    colSchemeInvDate = 41,
    colMultiSchemeDetail = 42,
    colMultiSpecialCatSchemeDetail = 43,
};

inline constexpr int kGridColumnCount = 43;

// How a column lines up; Default keeps the grid's own.
enum class ColumnAlign { Default, Left, Right };

struct ColumnDefinition {
    GridColumn column;
    std::string_view name;                    // the column's name in the program
    std::optional<std::string_view> heading;  // none: the heading is never written
    int width;
    ColumnAlign align;
};

// The column table, in column order.
const std::array<ColumnDefinition, kGridColumnCount>& ColumnTable();

}  // namespace grid
