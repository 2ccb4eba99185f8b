// A row's unit of measure. The item master says how many base units one unit of the
// item holds; stock, schemes and batches count in base units while the grid shows
// the row's unit, and the price follows the unit through colOriginalPrice.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr int kMultipleUnits = 0;  // item data and place of lstUOM's multi-unit entry

double CellNumber(const platform::DTFlex& flex, long row, int col) {
    return platform::ToNumber(platform::Value(flex.GetCell(static_cast<int>(row), col)));
}
}  // namespace

void Zuro_frmDispatch_Dispatch::LoadItemUOM(const std::string& szItemCode, long nRow) {
    Handled("LoadItemUOM", [&] {
        auto& global = host_.global;
        auto& flex = DTFlexDispatch;
        const int row = static_cast<int>(nRow);
        lstUOM.Clear();
        if (global.LookupName("Items", "Product_Code", "ProductName", szItemCode).empty()) return;

        const std::string szOldUOM = flex.GetCell(row, grid::colUOMID);
        const bool bNewRow = (nMode == mode::NewDispatch || nMode == mode::Amendment) && szOldUOM.empty();

        auto rs = global.NextRecordset(
            global.RunProcedure("sp_get_item_uom", {{platform::Value(szItemCode), platform::adtype::VarChar}}));
        if (!rs) throw platform::RuntimeError(platform::err::ObjectNotSet);
        lstUOM.AddItem(host_.messages.GetLabel("Multiple", "Label", "Kelvo"), kMultipleUnits);

        // The first row is the item's sales unit; the ladder after it lists that
        // unit again in its place.
        const long nDefaultUOM = platform::CLng(global.ToNumber(rs->Fields(0)));
        const std::string szDefaultUOM = global.ToText(rs->Fields(1));
        dUOMRate = global.ToNumber(rs->Fields(2));
        rs->MoveNext();

        std::string szLadder;
        for (; !rs->Eof(); rs->MoveNext()) {
            const long nUOM = platform::CLng(global.ToNumber(rs->Fields(0)));
            const std::string szUOM = global.ToText(rs->Fields(1));
            lstUOM.AddItem(szUOM, nUOM);
            szLadder += szUOM + "=" + global.ToText(rs->Fields(2)) + " ";
            if (szOldUOM.empty() && nUOM == nDefaultUOM) {
                flex.SetCell(row, grid::colUOMID, platform::NumberToText(static_cast<double>(nUOM)));
                flex.SetCell(row, grid::colUOM, szDefaultUOM);
            }
        }
        rs->Close();

        if (!szOldUOM.empty()) {
            dUOMRate = global.ConvertToBaseUOM(szItemCode, platform::CLng(platform::Val(szOldUOM)));
        } else {
            flex.SetCell(row, grid::colUOMDesc, szLadder);
        }
        if (bNewRow && (lstUOM.ListCount() == 0 || nDefaultUOM == 0)) {
            flex.SetCell(row, grid::colUOMID, "0");
            flex.SetCell(row, grid::colUOM, host_.messages.GetBaseUOMText());
        }
        // Free goods stay at price 0 whatever the unit.
        if (CellNumber(flex, nRow, grid::colFreeItem) == 0 && CellNumber(flex, nRow, grid::colFreeRow) == 0)
            flex.SetCell(row, grid::colSalePrice,
                         platform::NumberToText(platform::Val(flex.GetCell(row, grid::colOriginalPrice)) * dUOMRate));
    });
}

void Zuro_frmDispatch_Dispatch::ApplyUOMChange(bool bFocusGrid) {
    Handled("ApplyUOMChange", [&] {
        const int row = DTFlexDispatch.GridRow();
        const std::string szItemCode = DTFlexDispatch.GetCell(row, grid::colItemCode);
        const long nUOM = lstUOM.ItemData(lstUOM.ListIndex());
        dUOMRate = host_.global.ConvertToBaseUOM(szItemCode, nUOM);
        DTFlexDispatch.SetCell(row, grid::colUOMID, platform::NumberToText(static_cast<double>(nUOM)));
        if (bFocusGrid) host_.global.SetFocusTo(DTFlexDispatch);
    });
}

// The slash keys in the quantity cell step the row to the next unit of the list,
// and from the last back to the multi-unit entry.
void Zuro_frmDispatch_Dispatch::CycleUOM() {
    Handled("CycleUOM", [&] {
        auto& global = host_.global;
        if (lstUOM.ListCount() <= 1) return;
        const int row = DTFlexDispatch.GridRow();
        const int nPlace =
            global.ComputeUOMIndex(lstUOM, platform::CLng(CellNumber(DTFlexDispatch, row, grid::colUOMID)));
        const int nNext = nPlace < lstUOM.ListCount() - 1 ? nPlace + 1 : kMultipleUnits;

        // Under the guard the list's click only takes the unit's rate.
        global.SetListGuard(true);
        try {
            DTFlexDispatch.SetCell(row, grid::colUOM, lstUOM.List(nNext));
            DTFlexDispatch.SetCell(row, grid::colUOMID,
                                   platform::NumberToText(static_cast<double>(lstUOM.ItemData(nNext))));
            lstUOM.SetListIndex(nNext);
        } catch (...) {
            global.SetListGuard(false);
            throw;
        }
        global.SetListGuard(false);

        // The rate has changed: price and stock list follow the row's new unit.
        DTFlexDispatch_RowColChange(row, grid::colQuantity);
    });
}

// Before a save: every multi-unit quantity of rows 1 to nRows must be well formed.
void Zuro_frmDispatch_Dispatch::ValidateUOM(long nRows, bool& bValid) {
    Handled("ValidateUOM", [&] {
        bValid = true;
        for (long nRow = 1; nRow <= nRows; ++nRow) {
            if (CellNumber(DTFlexDispatch, nRow, grid::colUOMID) != 0) continue;
            int nParts = 0;
            double dBaseQty = 0;
            if (!host_.global.ValidateUOMQuantity(DTFlexDispatch.GetCell(static_cast<int>(nRow), grid::colItemCode),
                                                  DTFlexDispatch.GetCell(static_cast<int>(nRow), grid::colQuantity),
                                                  nParts, dBaseQty)) {
                bValid = false;
                return;
            }
        }
    });
}

// Before nRow's free rows go, a primary that shared them with nRow is cut loose: it
// takes a link value of its own.
void Zuro_frmDispatch_Dispatch::CheckForMultipleUOM(long nRow) {
    Handled("CheckForMultipleUOM", [&] {
        const std::string szLink = DTFlexDispatch.GetCell(static_cast<int>(nRow), grid::colItemCheck);
        for (int nLine = 1; nLine <= DTFlexDispatch.GridRows(); ++nLine) {
            if (nLine == nRow || CellNumber(DTFlexDispatch, nLine, grid::colFreeItem) != 0) continue;
            if (DTFlexDispatch.GetCell(nLine, grid::colItemCheck) != szLink) continue;
            long nNext = 0;
            GetMaxSchemeGridID(nNext);
            DTFlexDispatch.SetCell(nLine, grid::colItemCheck, platform::NumberToText(static_cast<double>(nNext)));
        }
    });
}

}  // namespace screen
