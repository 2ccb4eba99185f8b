// Taking the special category schemes off the note before they are worked out
// again, finding a free row the user deleted, and reverting one scheme on request.
#include <vector>

#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "schemes/scheme_grid.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;
using schemes::CellNumber;
using schemes::LineCount;

namespace {
// The special category marks of a line, back to none. colSplCategoryScheme stays
// at 1: a later walk finds the line again and clears it again, without harm.
void ClearSplCatCells(platform::DTFlex& grid, int nRow, bool bWithCustomerAndDate) {
    grid.SetCell(nRow, colSplCatDiscPercent, "0");
    grid.SetCell(nRow, colSplCatDiscAmount, "0");
    for (int nCol : {colSplCatSchemeID, colSplCatSchemeIndicator, colSplCatSerial, colSplCatCode})
        grid.SetCell(nRow, nCol, "");
    if (!bWithCustomerAndDate) return;
    grid.SetCell(nRow, colSchemeCustID, "");
    grid.SetCell(nRow, colSchemeInvDate, "");
}

// Removes the rows by the numbers they had before the first removal, in ascending
// order: each removal moves the later rows up, so the second falls one row lower
// than collected, the third two, and so on. A number past the end removes nothing.
void RemoveCollectedRows(platform::DTFlex& grid, const std::vector<int>& vRows) {
    for (int nRow : vRows)
        if (nRow <= grid.GridRows()) grid.RemoveRow(nRow);
}
}  // namespace

// The free rows of this pass: free, with no link back to a primary, and not another
// category group's.
void Zuro_frmDispatch_Dispatch::ClearDispatchFreeItemSch() {
    platform::RunHandled(host_.global, "Dispatch - ClearDispatchFreeItemSch: ", [&] {
        auto& grid = DTFlexDispatch;
        std::vector<int> vRows;
        for (int nRow = 1; nRow <= grid.GridRows(); ++nRow)
            if (CellNumber(grid, nRow, colFreeItem) == 1 && grid.GetCell(nRow, colItemCheck).empty() &&
                CellNumber(grid, nRow, colOCGItem) != 1)
                vRows.push_back(nRow);
        RemoveCollectedRows(grid, vRows);
    });
}

void Zuro_frmDispatch_Dispatch::RevertAllSpecialCatScheme(platform::DTFlex& DTFlexProducts) {
    platform::RunHandled(host_.global, "Invoice : RevertSplCatScheme : ", [&] {
        auto& grid = DTFlexProducts;
        std::vector<int> vPrimary, vFree;
        const int nRows = LineCount(grid);
        for (int nRow = 1; nRow <= nRows; ++nRow) {
            if (CellNumber(grid, nRow, colSplCategoryScheme) != 1) continue;
            (CellNumber(grid, nRow, colFreeItem) != 1 ? vPrimary : vFree).push_back(nRow);
        }
        for (int nRow : vPrimary)
            if (nRow >= 1 && nRow <= grid.GridRows()) ClearSplCatCells(grid, nRow, true);
        // From the bottom up, so that the numbers stay good.
        for (auto it = vFree.rbegin(); it != vFree.rend(); ++it) grid.RemoveRow(*it);
    });
}

void Zuro_frmDispatch_Dispatch::RevertSplCatScheme(long nSchemeID, long /*nSchemeType*/, long nSplCatCode,
                                                   const std::string& szAlternateMessage,
                                                   platform::DTFlex& DTFlexProducts) {
    platform::RunHandled(host_.global, "Invoice : RevertSplCatScheme : ", [&] {
        auto& grid = DTFlexProducts;
        if (!szAlternateMessage.empty()) {
            if (IsAppliedSplScheme(nSchemeID, nSplCatCode, grid))
                host_.messages.AskMessage(szAlternateMessage, host_services::msgbox::Information);
        } else {
            host_.messages.AskMessage("The applied [Special Category] scheme will be recalculated",
                                      host_services::msgbox::Information);
        }

        std::vector<int> vPrimary, vFree;
        const int nRows = LineCount(grid);
        for (int nRow = 1; nRow <= nRows; ++nRow) {
            if (CellNumber(grid, nRow, colSplCatSchemeID) != static_cast<double>(nSchemeID) ||
                CellNumber(grid, nRow, colSplCategoryScheme) != 1 ||
                CellNumber(grid, nRow, colSplCatCode) != static_cast<double>(nSplCatCode))
                continue;
            (CellNumber(grid, nRow, colFreeItem) != 1 ? vPrimary : vFree).push_back(nRow);
        }
        for (int nRow : vPrimary) {
            if (nRow < 1 || nRow > grid.GridRows()) continue;
            ClearSplCatCells(grid, nRow, false);
            long nAt = nRow;
            ComputeAmount(nAt, &grid);
        }
        RemoveCollectedRows(grid, vFree);
    });
}

// Whether the scheme stands on any line of the category.
bool Zuro_frmDispatch_Dispatch::IsAppliedSplScheme(long nSplSchemeID, long nSplCatCode,
                                                   platform::DTFlex& DTFlexProducts) {
    bool bApplied = false;
    platform::RunHandled(host_.global, "Invoice : IsAppliedSplScheme - ", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexProducts;
        global.LookupValue(global.GetConnection(),
                           "Select SchemeType From Schemes Where SchemeID =" + std::to_string(nSplSchemeID));
        const int nRows = LineCount(grid);
        for (int nRow = 1; nRow <= nRows; ++nRow) {
            const std::string szSchemes = grid.GetCell(nRow, colSplCatSchemeID);
            if (szSchemes.empty() || global.ToNumber(szSchemes) <= 0) continue;
            if (CellNumber(grid, nRow, colSplCatCode) != static_cast<double>(nSplCatCode)) continue;
            for (const auto& szScheme : platform::Split(szSchemes, ","))
                if (platform::Val(szScheme) == static_cast<double>(nSplSchemeID)) {
                    bApplied = true;
                    return;
                }
        }
    });
    return bApplied;
}

// True when a line still points at a special category free row that has gone; the
// grid's cell moves to that line.
bool Zuro_frmDispatch_Dispatch::SplCatFreeItemDeleted(bool& bResult) {
    bResult = false;
    platform::RunHandled(host_.global, "Invoice  : SplCatFreeItemDeleted - ", [&] {
        auto& grid = DTFlexDispatch;
        const int nRows = LineCount(grid);
        for (int nRow = 1; nRow <= nRows; ++nRow) {
            if (CellNumber(grid, nRow, colFreeItem) != 0) continue;
            bSplCatFreeMissing = false;
            for (const auto& szSerial : platform::Split(grid.GetCell(nRow, colSplCatSerial), ",")) {
                const double dSerial = platform::ToNumber(platform::Value(szSerial));
                if (dSerial <= 0 || getRowNumber(platform::CLng(dSerial)) != 0) continue;
                bFreeItemMissing = true;
                host_.global.ShowStatus("Free Item Not found.", 1);
                grid.SetGridCol(colQuantity);
                grid.SetGridRow(nRow);
                grid.RefreshGrid();
                bSplCatFreeMissing = true;
                bResult = true;
                return;
            }
        }
    });
    return bResult;
}

}  // namespace screen
