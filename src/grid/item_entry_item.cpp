// An ended edit of the item: an item typed by code (column 1) or by name (column 2).
// The other column of the pair is looked up, the item must belong to the note's
// group, and a sold row takes the item's flags and price.
#include "grid/item_entry_cells.h"
#include "grid/item_entry_steps.h"
#include "grid/row_model/grid_columns.h"

namespace grid {

namespace {
constexpr long kItemOutsideGroup = 13;
}  // namespace

bool ItemEntryEdit::ItemEntered(int nCol) {
    auto& global = host_.global;
    const std::string szCode = grid_.GetCell(nRow_, colItemCode);
    const std::string szName = grid_.GetCell(nRow_, colItemName);
    const bool byCode = nCol == colItemCode;

    // An emptied item cell gives up the row; the edit itself is not refused.
    if ((byCode ? szCode : szName).empty()) {
        form_.ClearItemDetails(nRow_);
        global.ShowStatus(byCode ? "Invalid Item Code has been entered." : "Invalid Item Name has been entered.", 1);
        return false;
    }

    const bool bFreeRow = CellValue(grid_, nRow_, colFreeRow) == 1;
    std::string szFound;
    bool bRestricted = false;
    if (byCode) {
        form_.szGroupID = form_.GetGroupID();
        szFound = global.LookupName("Items", "Product_Code", "ProductName", szCode);
        bRestricted = !form_.szGroupID.empty() && !bFreeRow;
    } else {
        szFound = global.LookupCode("Items", "Product_Code", "ProductName", szName);
        // The name column asks the group box's tag, not szGroupID: the two columns
        // have always tested the group each in its own way.
        const std::string& szTag = form_.txtCategory.Tag;
        bRestricted = szTag != "-1" && szTag != "0" && !szFound.empty() && !bFreeRow;
    }
    if (bRestricted && !ItemInDispatchGroup(byCode ? szCode : szFound)) return false;

    // An item not found keeps the cell open, yet the row goes on as for any item:
    // the other column takes the empty look-up and the edit runs the common tail.
    if (szFound.empty()) Refuse("Invalid Item selected");

    const int nOtherCol = byCode ? colItemName : colItemCode;
    // A different item has no unit yet; LoadItemUOM gives it its own.
    if (grid_.GetCell(nRow_, nOtherCol) != szFound) grid_.SetCell(nRow_, colUOMID, "");
    grid_.SetCell(nRow_, nOtherCol, szFound);

    if (CellValue(grid_, nRow_, colFreeItem) == 0) form_.GetItemPrice(byCode ? szCode : szFound, nRow_);
    return true;
}

bool ItemEntryEdit::ItemInDispatchGroup(const std::string& szCode) {
    auto& global = host_.global;
    long nDSType = 0;
    form_.DSTypeCatMapped(form_.GetSalesmanID(), nDSType);
    platform::RecordsetPtr result =
        nDSType > 0
            ? global.RunProcedure("sp_CheckItemExists_DSType", {{platform::Value(nDSType), platform::adtype::Integer},
                                                                {platform::Value(szCode), platform::adtype::VarChar}})
            : global.RunProcedure("sp_CheckItemExists_QAX",
                                  {{platform::Value(form_.szGroupID), platform::adtype::VarChar},
                                   {platform::Value(szCode), platform::adtype::VarChar}});
    result = global.NextRecordset(result);
    if (!result) throw platform::RuntimeError(platform::err::ObjectNotSet);
    const bool bExists = global.ToNumber(result->Fields(0)) != 0;
    result->Close();
    if (!bExists) {
        global.ShowNumberedMessage(kItemOutsideGroup, 1, {});
        bCancel_ = true;
    }
    return bExists;
}

void ItemEntryEdit::Refuse(const std::string& text) {
    host_.global.ShowStatus(text, 1);
    bCancel_ = true;
}

}  // namespace grid
