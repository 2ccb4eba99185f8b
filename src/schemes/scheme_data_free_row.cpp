// The free row a scheme adds under the lines: linked to its primary by serial, in
// the free item's own sales unit, priced at nothing, and then put through the same
// quantity step as a typed line so that it takes its batches.
//
// The SKU evaluation makes the same row with its own small differences (SkuFreeRow):
// the link to every primary serial, the cell moved to the price before the Enter,
// and the detail string written after it.
//
// No handler of its own: a failure belongs to the scheme routine that asked for the
// row, which stops with the rows made so far left in the grid.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

// A free row's batch tracking, price option and inventory tracking, as the item
// master holds them (properties 9, 10 and 12).
void Zuro_frmDispatch_Dispatch::WriteItemPropertyCells(int nRow, const std::string& szItemCode) {
    for (const auto& [nProperty, nColumn] :
         {std::pair{9L, colBatchTrack}, std::pair{10L, colPriceOption}, std::pair{12L, colTrackInventory}}) {
        long nValue = 0;
        GetItemProperty(szItemCode, nProperty, nValue);
        DTFlexDispatch.SetCell(nRow, nColumn, std::to_string(nValue));
    }
}

long Zuro_frmDispatch_Dispatch::MakeSchemeFreeRow(long nPrimaryRow, long nSchemeID, long nSlabID,
                                                  const std::string& szFreeCode, double fFree,
                                                  std::string& szNewSerials, const SkuFreeRow* pSkuRow) {
    auto& global = host_.global;
    auto& grid = DTFlexDispatch;
    const int nPrimary = static_cast<int>(nPrimaryRow);

    if (!grid.IsBlankRow(grid.GridRows())) grid.SetGridRows(grid.GridRows() + 1);
    const int nFreeRow = grid.GridRows();
    {
        long nSerialRow = nFreeRow;
        std::int16_t iResetAll = 0, bToSet = 0;
        Add_Unique_Serial(nSerialRow, iResetAll, bToSet);
    }

    grid.SetCell(nFreeRow, colItemCheck,
                 pSkuRow ? pSkuRow->szPrimarySerials
                         : platform::NumberToText(global.ToNumber(grid.GetCell(nPrimary, colSerialNo))));

    if (objItemList) objItemList->SetEnabled(true);
    grid.SetCell(nFreeRow, colItemCode, szFreeCode);
    grid.SetCell(nFreeRow, colItemName, global.LookupName("Items", "Product_Code", "ProductName", szFreeCode));
    if (objItemList) objItemList->SetEnabled(false);

    long nUOM = platform::CLng(global.ToNumber(global.LookupValue(
        global.GetConnection(), "Select UOM From Items Where Product_Code = N'" + szFreeCode + "'")));
    const std::string szUOMDescription = global.GetUOMDescription(szFreeCode, nUOM);
    // The scheme counts free goods in base units; the row shows them in the item's
    // sales unit, unrounded.
    fFree = fFree / global.ConvertToBaseUOM(szFreeCode, nUOM);

    grid.SetCell(nFreeRow, colUOMID, platform::NumberToText(static_cast<double>(nUOM)));
    grid.SetCell(nFreeRow, colUOMDesc, szUOMDescription);
    grid.SetCell(nFreeRow, 0, std::to_string(grid.GridRows()));
    grid.SetCell(nFreeRow, colFreeItem, "1");
    grid.SetCell(nFreeRow, colUOM, szUOMDescription);
    grid.SetCell(nFreeRow, colQuantity, platform::NumberToText(fFree));
    grid.SetCell(nFreeRow, colFreeRow, "1");

    szNewSerials += grid.GetCell(nFreeRow, colSerialNo) + ",";

    if (!pSkuRow) grid.SetCell(nFreeRow, colMultiSchemeDetail, MultiSchemeDetail(nSchemeID, nSlabID));
    grid.SetCell(nFreeRow, colSalePrice, "0");

    WriteItemPropertyCells(nFreeRow, szFreeCode);
    grid.SetCell(nFreeRow, colPrimaryItemCode, grid.GetCell(nPrimary, colItemCode));

    // The free quantity goes through the quantity step like a typed one: that is
    // what allocates its batches.
    bool bCancel = false;
    DTFlexDispatch_AfterColUpdate(nFreeRow, colQuantity, bCancel);

    grid.SetGridRow(nFreeRow);
    grid.SetGridCol(colQuantity);
    int nKey = platform::keys::Enter;
    if (!pSkuRow) {
        DTFlexDispatch_KeyCode(nKey, global.GetShiftMask());
        return nFreeRow;
    }
    // Moving to the quantity may have moved the grid on; the Enter belongs to the free row.
    if (grid.GridRow() != nFreeRow) grid.SetGridRow(nFreeRow);
    grid.SetGridCol(colSalePrice);
    DTFlexDispatch_KeyCode(nKey, 0);
    grid.SetCell(nFreeRow, colMultiSchemeDetail, MultiSchemeDetail(nSchemeID, nSlabID));
    return nFreeRow;
}

}  // namespace screen
