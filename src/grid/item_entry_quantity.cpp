// An ended edit of the unit or the quantity: the unit chosen in column 4 and the quantity
// typed in column 6. A quantity is one number in the row's unit, or, on a row of
// multiple units (unit 0), an expression of counts such as "2*0*5".
#include "grid/item_entry_cells.h"
#include "grid/item_entry_steps.h"
#include "grid/row_model/grid_columns.h"

namespace grid {

namespace {
constexpr const char* kSyntaxRefusal = "Either the syntax is incorrect or multiple UOM's are not valid for this item.";
}  // namespace

void ItemEntryEdit::UnitChosen() {
    // A unit must come from the list; a typed one keeps the cell open, and the
    // edit still runs the common tail.
    if (form_.lstUOM.ListIndex() == -1 && form_.bUOMTyped) Refuse("Invalid UOM Selected");
    form_.bUOMTyped = false;
}

bool ItemEntryEdit::QuantityEntered() {
    double dBaseQty = 0;
    if (!QuantitySyntaxAccepted(dBaseQty)) return false;
    // A row of an item with no stock takes 0 without complaint.
    if (!(dBaseQty > 0) && !form_.bNoStockRow) {
        Refuse("Invalid Quantity.");
        return false;
    }
    if (CellValue(grid_, nRow_, colFreeItem) != 0) return true;
    if (host_.global.GetOCGEnabled() && !grid_.GetCell(nRow_, colItemCheck).empty()) DropFreeRowsOfPrimary();
    SetCellNumber(grid_, nRow_, colPrevQty, CellValue(grid_, nRow_, colQuantity));
    return true;
}

bool ItemEntryEdit::QuantitySyntaxAccepted(double& dBaseQty) {
    auto& global = host_.global;
    const std::string szCode = grid_.GetCell(nRow_, colItemCode);
    const std::string szQuantity = grid_.GetCell(nRow_, colQuantity);
    bool bAccepted = false;
    if (CellValue(grid_, nRow_, colUOMID) == 0) {
        int nParts = 0;
        double dChecked = 0;
        bAccepted = global.ValidateUOMQuantity(szCode, szQuantity, nParts, dChecked);
        if (bAccepted) dBaseQty = global.ConvertToDisplayUOM(platform::Trim(szCode), platform::Trim(szQuantity));
    } else {
        // One unit takes one number: "2*3" is no product here.
        bAccepted = szQuantity.find('*') == std::string::npos;
        if (bAccepted)
            dBaseQty = platform::ToNumber(platform::Value(szQuantity)) *
                       global.ConvertToBaseUOM(szCode, static_cast<long>(CellValue(grid_, nRow_, colUOMID)));
    }
    form_.bQtySyntaxError = !bAccepted;
    if (!bAccepted) Refuse(kSyntaxRefusal);
    return bAccepted;
}

void ItemEntryEdit::DropFreeRowsOfPrimary() {
    const std::string szSerial = platform::Trim(grid_.GetCell(nRow_, colSerialNo));
    for (int nFree = 1; nFree <= grid_.GridRows();) {
        const bool bOwnFreeRow =
            CellValue(grid_, nFree, colFreeItem) == 1 && platform::Trim(grid_.GetCell(nFree, colItemCheck)) == szSerial;
        if (!bOwnFreeRow) {
            ++nFree;
            continue;
        }
        // A new note has no shared links to cut loose.
        if (form_.nMode != screen::mode::NewDispatch) form_.CheckForMultipleUOM(nRow_);
        grid_.RemoveRow(nFree);  // the rows below move up: stay on the number
    }
}

}  // namespace grid
