// The tail of an ended edit, run by every column that gets this far: the stock of an
// item without batches, the checks of a quantity against stock, the warning of an
// ignored free item, and the row's serial.
#include <cstdint>

#include "grid/batches_list_columns.h"
#include "grid/item_entry_cells.h"
#include "grid/item_entry_steps.h"
#include "grid/row_model/grid_columns.h"

namespace grid {

namespace {
constexpr const char* kAboveStock = "Quantity should not be greater than available stock";
constexpr const char* kFreeItemIgnored = "Free SKU is not available/Selected. You cannot save this Dispatch.";
}  // namespace

void ItemEntryEdit::CommonTail(int nCol) {
    const std::string szCode = grid_.GetCell(nRow_, colItemCode);
    // Stock that is neither batched nor priced by batch is one figure for the item.
    if (CellValue(grid_, nRow_, colBatchTrack) == 0 && CellValue(grid_, nRow_, colPriceOption) == 0)
        SetCellNumber(grid_, nRow_, colAvailableQty, form_.GetTotalBookStock(szCode));

    if (nCol == colQuantity && !QuantityChecksPassed()) return;

    if (CellValue(grid_, nRow_, colFreeItmIgnored) == 1) {
        // A warning only: the edit stands, but the note cannot be saved so.
        form_.bQtyRefused = true;
        host_.global.ShowStatus(kFreeItemIgnored, 1);
    }

    const std::string szSerial = platform::Trim(grid_.GetCell(nRow_, colSerialNo));
    if (szSerial.empty() || platform::Val(szSerial) == 0) {
        long nSerialRow = nRow_;
        std::int16_t iResetAll = 0, bToSet = 0;
        form_.Add_Unique_Serial(nSerialRow, iResetAll, bToSet);
    }
}

bool ItemEntryEdit::QuantityChecksPassed() {
    const std::string szCode = grid_.GetCell(nRow_, colItemCode);
    const std::string szQuantity = grid_.GetCell(nRow_, colQuantity);
    if (szCode.empty()) {
        Refuse("Invalid Item.");
        return false;
    }
    double dBaseQty = 0;
    if (!QuantitySyntaxAccepted(dBaseQty)) return false;
    if (CellValue(grid_, nRow_, colUOMID) != 0) {
        const std::string szTrimmed = platform::Trim(szQuantity);
        if (szTrimmed.empty() || platform::Val(szTrimmed) < 0) {
            Refuse("Invalid Quantity");
            return false;
        }
    }
    // Goods of a category that keeps no stock are never checked.
    if (CellValue(grid_, nRow_, colTrackInventory) == 0) return false;
    // A free row's goods were weighed by its scheme.
    if (CellValue(grid_, nRow_, colFreeItem) == 1) return true;

    if (!QuantityWithinStock(szCode, szQuantity)) {
        form_.bQtyRefused = true;
        Refuse(kAboveStock);
        return false;
    }
    form_.bQtyRefused = false;
    return true;
}

bool ItemEntryEdit::QuantityWithinStock(const std::string& szCode, const std::string& szQuantity) {
    auto& global = host_.global;
    auto& list = form_.lstAvailable;
    const bool bMultiUnit = CellValue(grid_, nRow_, colUOMID) == 0;

    if (form_.nMode == screen::mode::Amendment) {
        const double dQty = bMultiUnit ? global.ConvertToDisplayUOM(szCode, szQuantity) : platform::Val(szQuantity);
        // With the batch list up the selected entry rules, in the list's own unit;
        // without it, what is free plus what this note already holds.
        if (form_.FrameAvailable.Visible)
            return list.Count() > 0 && list.SelectedIndex() > 0 && SelectedEntryQuantity() >= dQty;
        return CellValue(grid_, nRow_, colAvailableQty) + CellValue(grid_, nRow_, colStoredQty) >=
               dQty * form_.dUOMRate;
    }

    if ((form_.nBatchTrack == 1 || form_.nPriceOption == 1) && CellValue(grid_, nRow_, colAvailableQty) == 0 &&
        list.Count() > 0 && list.SelectedIndex() > 0)
        SetCellNumber(grid_, nRow_, colAvailableQty, SelectedEntryQuantity() * form_.dUOMRate);
    form_.dUOMRate = global.ConvertToBaseUOM(szCode, static_cast<long>(CellValue(grid_, nRow_, colUOMID)));
    return CellValue(grid_, nRow_, colAvailableQty) >= platform::Val(szQuantity) * form_.dUOMRate;
}

double ItemEntryEdit::SelectedEntryQuantity() const {
    const auto& list = form_.lstAvailable;
    return platform::Val(list.Item(list.SelectedIndex()).SubItem(kSubQuantity));
}

}  // namespace grid
