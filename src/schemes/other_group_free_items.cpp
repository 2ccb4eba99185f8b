// Free items of another category group, added by hand through the host's dialog:
// the standing ones go out to the dialog as a table, and the rows the user settled
// on come back through LoadOCGFreeItems. Such a row carries colOCGItem 1 and
// colFreeItem 1, and is found again by its serial.
#include "grid/batches_list_columns.h"
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;
namespace field = host_services::ocg_field;

namespace {

// The grid column of each table field: 0 to 3 text, 4 to 11 numbers.
constexpr int kFieldColumns[field::Count] = {colItemCode,    colItemName,       colBatch,   colUOM,
                                             colQuantity,    colBatchCode,      colUOMID,   colBatchTrack,
                                             colPriceOption, colTrackInventory, colFreeRow, colSerialNo};

std::string NumberField(const platform::Value& value) { return platform::NumberToText(platform::ToNumber(value)); }

// The stock list's entry of the batch: for free stock the entry must be a free one
// as well; the batch text matches without regard to case. The first match is selected.
void SelectBatchEntry(platform::ListView& list, const std::string& szYes, const std::string& szBatch, bool bFreeStock) {
    const std::string szWanted = platform::UCase(szBatch);
    for (int nItem = 1; nItem <= list.Count(); ++nItem) {
        const platform::ListItem& entry = list.Item(nItem);
        if (bFreeStock && entry.SubItem(kSubFree) != szYes) continue;
        if (platform::UCase(entry.Text) != szWanted) continue;
        list.Select(nItem);
        return;
    }
}

}  // namespace

platform::VariantTable Zuro_frmDispatch_Dispatch::ClubOCGFreeItems() {
    platform::VariantTable vItems;
    platform::RunHandled(host_.global, "Dispatch - ClubOCGFreeItems: ", [&] {
        auto& grid = DTFlexDispatch;
        auto isOCGRow = [&](int nRow) { return host_.global.ToNumber(grid.GetCell(nRow, colOCGItem)) == 1; };

        bool bFound = false;
        for (int nRow = 1; nRow <= grid.GridRows() && !bFound; ++nRow) bFound = isOCGRow(nRow);
        if (!bFound) return;

        // One slot more than the rows found: the table grows ahead of each row it
        // takes, and its last slot stays unwritten.
        const int nRows = grid.GridRows();
        platform::VariantTable vTable(field::Last, 0);
        long nEntry = 0;
        for (int nRow = 1; nRow <= nRows; ++nRow) {
            if (!isOCGRow(nRow)) continue;
            vTable.RedimPreserve(nEntry + 1);
            for (int nField = 0; nField < field::Count; ++nField) {
                const std::string szCell = grid.GetCell(nRow, kFieldColumns[nField]);
                vTable.At(nField, nEntry) = nField <= field::LastText ? platform::Value(szCell)
                                                                      : platform::Value(host_.global.ToNumber(szCell));
            }
            ++nEntry;
        }
        vItems = std::move(vTable);
    });
    return vItems;
}

void Zuro_frmDispatch_Dispatch::DeleteExistingOCGItems(const platform::VariantTable& vItems) {
    platform::RunHandled(host_.global, "Dispatch - DeleteExistingOCGItems: ", [&] {
        auto& grid = DTFlexDispatch;
        for (int nRow = grid.GridRows(); nRow >= 1; --nRow) {
            if (host_.global.ToNumber(grid.GetCell(nRow, colOCGItem)) != 1) continue;
            const double dSerial = host_.global.ToNumber(grid.GetCell(nRow, colSerialNo));
            bool bKept = false;
            for (long nEntry = 0; nEntry <= vItems.UBound(1) && !bKept; ++nEntry) {
                const double dEntrySerial = platform::ToNumber(vItems.At(nEntry, field::SerialNo));
                bKept = dEntrySerial != 0 && dEntrySerial == dSerial;
            }
            if (!bKept) grid.RemoveRow(nRow);
        }
    });
}

void Zuro_frmDispatch_Dispatch::LoadOCGFreeItems(const platform::VariantTable& vItems, long nReturnSerial) {
    platform::RunHandled(host_.global, "Dispatch - LoadOCGFreeItems: ", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        DeleteExistingOCGItems(vItems);
        FrameAvailable.Visible = true;

        // The dialog hands its table over with a spare last slot, which is not read.
        for (long nEntry = 0; nEntry <= vItems.UBound(1) - 1; ++nEntry) {
            auto value = [&](int nField) -> const platform::Value& { return vItems.At(nEntry, nField); };
            int nRow = static_cast<int>(getRowNumber(platform::CLng(platform::ToNumber(value(field::SerialNo)))));
            if (nRow == 0) {
                if (!grid.IsBlankRow(grid.GridRows())) grid.SetGridRows(grid.GridRows() + 1);
                nRow = grid.GridRows();
                grid.SetCell(nRow, 0, std::to_string(nRow));
            }

            for (int nField = 0; nField <= field::LastText; ++nField)
                grid.SetCell(nRow, kFieldColumns[nField], platform::ToText(value(nField)));
            grid.SetCell(nRow, colSalePrice, "0");
            for (int nField = field::LastText + 1; nField < field::SerialNo; ++nField)
                grid.SetCell(nRow, kFieldColumns[nField], NumberField(value(nField)));
            grid.SetCell(nRow, colFreeItem, "1");
            grid.SetCell(nRow, colOCGItem, "1");

            if (global.ToNumber(grid.GetCell(nRow, colSerialNo)) == 0) {
                long nSerialRow = nRow;
                std::int16_t iResetAll = 0, bToSet = 0;
                Add_Unique_Serial(nSerialRow, iResetAll, bToSet);
            }

            grid.SetGridRow(nRow);
            grid.SetGridCol(colQuantity);
            // The edit is raised for the last row of the grid, whichever row was written.
            bool bCancel = false;
            DTFlexDispatch_AfterColUpdate(grid.GridRows(), colQuantity, bCancel);

            SelectBatchEntry(lstAvailable, host_.messages.GetYesText(), platform::ToText(value(field::Batch)),
                             platform::ToNumber(value(field::FreeRow)) == 1);

            int nKey = platform::keys::Enter;
            DTFlexDispatch_KeyCode(nKey, global.GetShiftMask());
        }

        // These modes leave no blank entry row under the lines.
        if ((nMode == mode::FromSalesConfirmation || nMode == mode::FromPurchaseOrder || nMode == mode::FromAlert) &&
            grid.IsBlankRow(grid.GridRows()))
            grid.SetGridRows(grid.GridRows() - 1);

        int nRow = static_cast<int>(getRowNumber(nReturnSerial));
        if (nRow == 0) {
            if (!grid.IsBlankRow(grid.GridRows())) {
                grid.SetGridRows(grid.GridRows() + 1);
                grid.SetCell(grid.GridRows(), 0, std::to_string(grid.GridRows()));
            }
            nRow = grid.GridRows();
        }
        grid.SetGridRow(nRow);
        grid.SetGridCol(global.GetGridEditColumnValue());
    });
}

}  // namespace screen
