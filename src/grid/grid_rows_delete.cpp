// Deleting a line: its free rows go with it, and the links of the rows that stay
// are closed up behind it.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

void Zuro_frmDispatch_Dispatch::DTFlexDispatch_BeforeDelete(int& nRow, bool& /*bCancel*/) {
    auto& global = host_.global;
    platform::RunHandled(global, "Zuro_frmDispatch_Dispatch - DTFlexDispatch_BeforeDelete: ", [&] {
        auto& grid = DTFlexDispatch;
        auto number = [&](int nAt, int nCol) { return global.ToNumber(grid.GetCell(nAt, nCol)); };

        if (!global.GetOCGEnabled()) {
            CheckScheme(nRow, true, grid);
            for (const auto& [nCol, szValue] :
                 {std::pair{colFreeItem, "0"}, std::pair{colFreeRow, "0"}, std::pair{colItemCheck, ""},
                  std::pair{colSplCatSerial, ""}, std::pair{colSchemeID, "0"}, std::pair{colSplCategoryScheme, "0"},
                  std::pair{colSplCatDiscPercent, "0"}, std::pair{colSplCatDiscAmount, "0"},
                  std::pair{colSplCatSchemeID, "0"}, std::pair{colSplCatCode, ""}})
                grid.SetCell(nRow, nCol, szValue);
            return;
        }
        if (grid.IsBlankRow(nRow)) return;

        if (number(nRow, colFreeItem) == 0) {
            const std::string szSerial = grid.GetCell(nRow, colSerialNo);
            int nAt = 1;
            while (nAt <= grid.GridRows()) {
                const bool bItsFreeRow = number(nAt, colOCGItem) == 0 && number(nAt, colFreeItem) == 1 &&
                                         grid.GetCell(nAt, colItemCheck) == szSerial;
                if (!bItsFreeRow) {
                    ++nAt;
                    continue;
                }
                if (nMode != mode::NewDispatch) CheckForMultipleUOM(nRow);
                grid.RemoveRow(nAt);
                // The row being deleted moves up with the rest when a free row above
                // it goes; the grid deletes the row this number names.
                if (nAt < nRow) --nRow;
            }
            AdjustRow(platform::CLng(number(nRow, colItemCheck)));
        } else {
            // The free row's link is taken as a row number here, as it always was.
            const double dLinked = number(nRow, colItemCheck);
            if (dLinked >= 1 && dLinked <= grid.GridRows()) grid.SetCell(static_cast<int>(dLinked), colPrevQty, "");
        }
    });
}

void Zuro_frmDispatch_Dispatch::DTFlexDispatch_AfterDelete() {
    Handled("DTFlexDispatch_AfterDelete", [&] {
        auto& grid = DTFlexDispatch;
        DTFlexDispatch_RowColChange(grid.GridRow(), grid.GridCol());
        if (grid.GridRows() == 1 && grid.IsBlankRow(1)) {
            ResetSchemeMemory();
            szSchemeCustomer = txtCustomer.Tag;
            dtSchemeDate = DTDispatchDate.Value;
        }
    });
}

// The next free link value: one above the highest numeric link in the grid.
void Zuro_frmDispatch_Dispatch::GetMaxSchemeGridID(long& nNext) {
    Handled("GetMaxSchemeGridID", [&] {
        auto& grid = DTFlexDispatch;
        double dHighest = 0;
        for (int nRow = 1; nRow <= grid.GridRows(); ++nRow)
            dHighest = std::max(dHighest, host_.global.ToNumber(grid.GetCell(nRow, colItemCheck)));
        nNext = platform::CLng(dHighest) + 1;
    });
}

// Closes the gap a removed link leaves: every link above it comes down by one.
void Zuro_frmDispatch_Dispatch::AdjustRow(long nRemoved) {
    Handled("AdjustRow", [&] {
        auto& grid = DTFlexDispatch;
        for (int nRow = 1; nRow <= grid.GridRows(); ++nRow) {
            const double dLink = host_.global.ToNumber(grid.GetCell(nRow, colItemCheck));
            if (dLink > static_cast<double>(nRemoved))
                grid.SetCell(nRow, colItemCheck, platform::NumberToText(dLink - 1));
        }
    });
}

}  // namespace screen
