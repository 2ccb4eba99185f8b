// Every key in the grid: copy and paste of lines, the locked free rows, the scheme
// view on Space, the unit change on slash, switching between code and name look-up,
// the item list, and walking the batch list from the price and quantity cells.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

namespace {
namespace keys = platform::keys;

// The keys that only move about: all a free row lets through.
bool IsMovingKey(int nKey) {
    return nKey == keys::Right || nKey == keys::Enter || nKey == keys::Left || nKey == keys::Up || nKey == keys::Down;
}
}  // namespace

void Zuro_frmDispatch_Dispatch::DTFlexDispatch_KeyCode(int& KeyCode, int Shift) {
    Handled("DTFlexDispatch_KeyCode", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        bListArmed = 0;

        if (KeyCode == keys::V && Shift == keys::CtrlMask) {
            RequireObject(objItemList).SetEnabled(true);
            PasteGridItems(grid);
            RequireObject(objItemList).SetEnabled(false);
            return;
        }
        if (KeyCode == keys::C && Shift == keys::CtrlMask) {
            CopyGridItems(grid);
            return;
        }
        if (KeyCode == keys::C && Shift == keys::CtrlShiftMask) return;

        const int nRow = grid.GridRow();
        auto cell = [&](int nCol) { return grid.GetCell(nRow, nCol); };
        auto number = [&](int nCol) { return global.ToNumber(cell(nCol)); };

        // A free row is the scheme's: it cannot be typed in.
        if ((number(colOCGItem) == 1 || number(colFreeItem) == 1) && !IsMovingKey(KeyCode)) KeyCode = 0;

        const int nCol = grid.GridCol();
        const std::string szCustomer = GetCustomerForScheme();

        if (KeyCode == keys::Space && nCol == colQuantity) {
            bSchemeViewKey = true;
            const double dTyped = platform::Val(grid.EditText());
            if (number(colQuantity) == 0 && dTyped != 0) {
                grid.SetCell(nRow, colQuantity, platform::NumberToText(dTyped));
                bool bCancel = false;
                DTFlexDispatch_AfterColUpdate(nRow, colQuantity, bCancel);
            }
            const std::string szItemCode = cell(colItemCode);
            // Only an amendment has a stored note whose own schemes count.
            const long nStoredDispatch = nMode == mode::Amendment ? nDispatchID : 0;
            if (number(colQuantity) != 0) {
                const double dTotal = GetTotalQtyAmountForItem(szItemCode);
                host_.tools.ShowItemSchemes(szItemCode, DTDispatchDate.Value, szCustomer, {dTotal}, nStoredDispatch);
            } else {
                host_.tools.ShowItemSchemes(szItemCode, DTDispatchDate.Value, szCustomer, {}, nStoredDispatch);
            }
            bSchemeViewKey = false;
        }

        if (nCol == colQuantity && number(colOCGItem) == 0 && (KeyCode == keys::PadSlash || KeyCode == keys::Slash)) {
            CycleUOM();
            grid.SetCell(nRow, colPrevQty, "");
            KeyCode = 0;  // the slash changes the unit; it never lands in the quantity
        }

        nPriceOption = platform::CLng(number(colPriceOption));
        nBatchTrack = platform::CLng(number(colBatchTrack));

        // Look up by code or by name without typing anything first.
        if (KeyCode == keys::Right && nCol == colItemCode && cell(colItemCode).empty()) grid.SetGridCol(colItemName);
        if (KeyCode == keys::Left && nCol == colItemName && cell(colItemName).empty()) grid.SetGridCol(colItemCode);

        bListArmed = 1;
        if (objItemList && objItemList->GetVisible()) objItemList->ListKeyDown(KeyCode, Shift, 0);

        dStoredQty = number(colStoredQty);

        if (FrameAvailable.Visible && (nCol == colSalePrice || nCol == colQuantity)) {
            if (!bQtyRefused) ShowBatchStockStatus(nRow, nCol);
            if (global.MoveListSelection(lstAvailable, KeyCode)) {
                objBatchEntry = lstAvailable.SelectedIndex();
                TakeFromBatchEntry(nRow, nCol);
            }
        }
        if (!FrameAvailable.Visible && dUOMRate != 0 && !bQtyRefused) {
            const double dTotal = (GetTotalBookStock(cell(colItemCode)) + dStoredQty) / dUOMRate;
            global.ShowStatus(
                host_.messages.FormatMessage("Total: {0}",
                                             {platform::Format(platform::Value(dTotal), global.GetNumberFormat(-1))}),
                0);
        }

        if (KeyCode == keys::Escape) cmdChange.Visible = false;
    });
}

void Zuro_frmDispatch_Dispatch::DTFlexDispatch_Change(int nCol) {
    Handled("DTFlexDispatch_Change", [&] {
        if ((nCol == colItemCode || nCol == colItemName) && bListArmed == 1) SetAutolistOption(nCol);
        if (nCol == colUOM) {
            bUOMTyped = true;
            return;
        }
        bAskOnExit = true;
    });
}

}  // namespace screen
