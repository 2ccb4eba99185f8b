// What the row takes from the stock list's selected entry, and the stock line the
// status bar shows while the list is up.
#include "grid/batches_list_columns.h"
#include "grid/item_entry_cells.h"
#include "grid/row_model/grid_columns.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::TakeFromBatchEntry(long nRow, long nCol) {
    Handled("TakeFromBatchEntry", [&] {
        if (objBatchEntry < 1 || objBatchEntry > lstAvailable.Count()) return;  // no entry selected
        const platform::ListItem& entry = lstAvailable.Item(objBatchEntry);
        auto& grid = DTFlexDispatch;
        const int row = static_cast<int>(nRow);
        const bool bFreeStock = entry.SubItem(grid::kSubFree) == host_.messages.GetYesText();
        const std::string szEntryPrice = entry.SubItemTag(grid::kSubPrice);
        auto takeEntryPrice = [&] {
            grid.SetCell(row, grid::colSalePrice, szEntryPrice);
            grid::SetCellNumber(grid, row, grid::colOriginalPrice,
                                grid::DivideByRate(platform::Val(szEntryPrice), dUOMRate));
        };

        grid::SetCellNumber(grid, row, grid::colAvailableQty,
                            platform::Val(entry.SubItem(grid::kSubQuantity)) * dUOMRate);
        grid.SetCell(row, grid::colFreeRow, bFreeStock ? "1" : "0");
        if (nBatchTrack == 1) grid.SetCell(row, grid::colBatch, entry.Text);
        if (nPriceOption == 1) {
            if (grid::CellValue(grid, row, grid::colFreeItem) == 1)
                grid.SetCell(row, grid::colSalePrice, "0");
            else
                takeEntryPrice();
        }
        // Free stock is given, never sold.
        if (bFreeStock) {
            grid.SetCell(row, grid::colSalePrice, "0");
            return;
        }
        if (nPriceOption != 1 && grid::CellValue(grid, row, grid::colFreeItem) == 0) {
            if (nCol == grid::colQuantity)
                takeEntryPrice();
            else
                grid::SetCellNumber(grid, row, grid::colSalePrice, grid::CellValue(grid, row, grid::colOriginalPrice));
        }
    });
}

void Zuro_frmDispatch_Dispatch::ShowBatchStockStatus(long nRow, long nCol) {
    Handled("ShowBatchStockStatus", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        const int row = static_cast<int>(nRow);
        std::string szStatus;
        if (nBatchTrack == 1 && nCol != grid::colSalePrice && nCol != grid::colQuantity)
            szStatus = host_.messages.FormatMessage("Batch: {0}, ", {grid.GetCell(row, grid::colBatch)});
        // An amendment may keep what the note already holds on top of the stock.
        double dTotal = GetTotalBookStock(grid.GetCell(row, grid::colItemCode));
        if (nMode == mode::Amendment) dTotal += dStoredQty;
        szStatus += host_.messages.FormatMessage("Total: {0}",
                                                 {platform::Format(grid::DivideByRate(dTotal, dUOMRate),
                                                                   global.GetNumberFormat(grid::kQuantityFormatKind))});
        global.ShowStatus(szStatus, 0);
    });
}

}  // namespace screen
