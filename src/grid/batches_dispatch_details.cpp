// The stock list of the row in hand: filled for its item, then the entry of the
// row's batch, price and free marker selected. In an amendment the list also gives
// back what this note already holds, so that the note may keep it.
#include "grid/batches_list_columns.h"
#include "grid/item_entry_cells.h"
#include "grid/row_model/grid_columns.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::DispatchBatchDetails(const std::string& szItemCode, const std::string& szBatch,
                                                     const std::string& szPrice, long nBatchTrack, long nPriceOption,
                                                     long /*nStoredRow*/, const std::string& /*szStoredBatch*/) {
    Handled("DispatchBatchDetails", [&] {
        auto& global = host_.global;
        auto& list = lstAvailable;
        auto& grid = DTFlexDispatch;
        const bool bAmending = nMode == mode::Amendment;

        szBatchItemCode = szItemCode;
        SetGridMode(list, nPriceOption, nBatchTrack, szItemCode);
        long nVirtual = 0;
        const long nTrackPKD = GetItemBatchFlags(szItemCode, nVirtual);
        LoadBatchStock(list, szItemCode, nBatchTrack, nPriceOption, nCustomerCategory, "", nVirtual, nTrackPKD,
                       dUOMRate, 1);

        const int row = grid.GridRow();
        const double dRowStoredQty = grid::CellValue(grid, row, grid::colStoredQty);
        const std::string szStoredExpiry = grid.GetCell(row, grid::colStoredExpiry);
        const std::string szStoredPKD = grid.GetCell(row, grid::colStoredPKD);
        const long nBatchCode = static_cast<long>(grid::CellValue(grid, row, grid::colBatchCode));
        const bool bFreeRow = grid::CellValue(grid, row, grid::colFreeRow) == 1;
        const std::string szFreeMark = bFreeRow ? host_.messages.GetYesText() : "";
        const std::string szPriceText =
            platform::Format(platform::Value(szPrice), global.GetNumberFormat(grid::kPriceFormatKind));
        const double dPrice = platform::Val(szPrice);
        auto shownWidth = [&](int column) { return list.ColumnHeaders.at(static_cast<std::size_t>(column)).Width > 0; };

        // The walk leaves nIndex on the entry it stopped at: the match, or the last
        // entry when none matched.
        int nIndex = 0;
        if (nBatchTrack != 0) {
            bool bMatched = false;
            for (int i = 1; i <= list.Count() && !bMatched; ++i) {
                nIndex = i;
                const platform::ListItem& entry = list.Item(i);
                if (platform::LCase(entry.Text) != platform::LCase(szBatch)) continue;
                const bool bSameFree = entry.SubItem(grid::kSubFree) == szFreeMark;
                if (bAmending && shownWidth(grid::kListBatchColumn)) {
                    if (!bSameFree) continue;
                    bMatched = true;
                    PreserveOriginalQty(szBatch, grid::MonthYear(platform::Value(szStoredExpiry)),
                                        grid::MonthYear(platform::Value(szStoredPKD)), dPrice, dRowStoredQty);
                } else if (bAmending) {
                    const bool bSamePrice =
                        !shownWidth(grid::kListPriceColumn) || entry.SubItem(grid::kSubPrice) == szPriceText;
                    if (!bSamePrice || !bSameFree) continue;
                    bMatched = true;
                    AddUnBatchQty(szBatch, dPrice, dRowStoredQty, bFreeRow ? 1 : 0);
                } else if (nPriceOption == 1) {
                    bMatched = dPrice == platform::Val(entry.SubItem(grid::kSubPrice)) && bSameFree;
                } else {
                    bMatched = bSameFree;
                }
            }
            // A batch the stock no longer shows (spent, or expired since) comes back
            // for the line of the note that holds it.
            if (bAmending && !bMatched) {
                if (!szBatch.empty()) AddBatchInfo(szBatch, dRowStoredQty, dPrice, nBatchCode);
            } else if (nIndex > 0) {
                list.Select(nIndex);
            }
        } else if (nPriceOption == 0 && bAmending) {
            // At most a saleable and a free entry: the row's kind takes back its own.
            int nChosen = 0;
            for (int i : {2, 1})
                if (nChosen == 0 && i <= list.Count() && list.Item(i).SubItem(grid::kSubFree) == szFreeMark)
                    nChosen = i;
            if (nChosen > 0) {
                list.Select(nChosen);
                platform::ListItem& entry = list.Item(nChosen);
                entry.SetSubItem(grid::kSubQuantity,
                                 platform::Format(platform::Val(entry.SubItem(grid::kSubQuantity)) +
                                                      grid::DivideByRate(dRowStoredQty, dUOMRate),
                                                  global.GetNumberFormat(grid::kQuantityFormatKind)));
            } else {
                AddUnBatchInfo(dRowStoredQty, dPrice, "", "", szFreeMark);
            }
        } else {
            bool bFound = false;
            if (dRowStoredQty > 0 || bFreeRow) {
                for (int i = 1; i <= list.Count() && !bFound; ++i) {
                    nIndex = i;
                    bFound = list.Item(i).SubItem(grid::kSubPrice) == szPriceText;
                }
                if (nMode != mode::FromSalesConfirmation) {
                    if (bFound)
                        AddUnBatchQty("Null", dPrice, dRowStoredQty, bFreeRow ? 1 : 0);
                    else
                        AddUnBatchInfo(dRowStoredQty, dPrice, "", "", "");
                }
            }
            if (nIndex > 0) list.Select(nIndex);
            if (szBatch.empty() && !bFound) {
                const int nByPrice = list.FindItem(szPriceText);
                if (nByPrice > 0) list.Select(nByPrice);
            }
            if (list.Count() > 0 && list.SelectedIndex() == 0) list.Select(1);
        }

        if (bAmending) {
            for (int i = 1; i <= list.Count(); ++i) {
                const platform::ListItem& entry = list.Item(i);
                if (entry.SubItem(grid::kSubPrice) == szPriceText && entry.SubItem(grid::kSubFree) == szFreeMark) {
                    list.Select(i);
                    break;
                }
            }
        } else {
            // A row the list has served before starts on the first saleable entry.
            if (grid::CellValue(grid, row, grid::colBatchSelection) == 1) {
                const std::string szYes = host_.messages.GetYesText();
                for (int i = 1; i <= list.Count(); ++i) {
                    if (list.Item(i).SubItem(grid::kSubFree) != szYes) {
                        list.Select(i);
                        break;
                    }
                }
            }
            grid.SetCell(row, grid::colBatchSelection, "1");
        }
        objBatchEntry = list.SelectedIndex();
    });
}

}  // namespace screen
