// Moving onto a row and leaving the grid at either end: the row's units and batch
// list are loaded, a row whose item has no stock at all is stopped at once, and the
// status line keeps the stock in view.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

void Zuro_frmDispatch_Dispatch::DTFlexDispatch_RowColChange(int nRow, int nCol) {
    Handled("DTFlexDispatch_RowColChange", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        bNoStockRow = false;
        // A row the grid does not have (an emptied grid) has no item either.
        if (nRow < 1 || nRow > grid.GridRows()) return;
        auto cell = [&](int nColumn) { return grid.GetCell(nRow, nColumn); };
        auto number = [&](int nColumn) { return global.ToNumber(cell(nColumn)); };
        const std::string szItemCode = cell(colItemCode);
        if (szItemCode.empty()) return;

        nPriceOption = platform::CLng(number(colPriceOption));
        nBatchTrack = platform::CLng(number(colBatchTrack));

        if (nCol <= colQuantity) {
            LoadItemUOM(szItemCode, nRow);
            nPriceOption = platform::CLng(number(colPriceOption));
            nBatchTrack = platform::CLng(number(colBatchTrack));
            szExpiryText = cell(colStoredExpiry);
            szPKDText = cell(colStoredPKD);
            dStoredQty = number(colStoredQty);

            const bool bFreeItem = number(colFreeItem) == 1;
            const std::string szPrice = bFreeItem ? "" : platform::NumberToText(number(colSalePrice));
            const bool bAmendment = nMode == mode::Amendment;
            DispatchBatchDetails(szItemCode, cell(colBatch), szPrice, nBatchTrack, nPriceOption,
                                 bAmendment ? platform::CLng(number(colStoredRow)) : 0,
                                 bAmendment ? cell(colStoredBatch) : "");

            // An item the amended note already holds is never refused for stock here:
            // its own quantity is part of what it may take.
            bool bTestStock = true;
            if (bAmendment) {
                const double dHeld = global.ToNumber(global.LookupValue(
                    global.GetConnection(),
                    "Select count(*) from DispatchDetail where Dispatchid=" + std::to_string(nDispatchID) +
                        " and Product_code=N'" + szItemCode + "'"));
                bTestStock = dHeld <= 0;
            }
            if (bTestStock && GetTotalBookStock(szItemCode) == 0) {
                FrameAvailable.Visible = false;
                cmdChange.Visible = false;
                global.ShowStatus("No stock available", 1);
                bNoStockRow = true;
                if (!bFreeItem)
                    grid.SetCell(nRow, colQuantity, cell(colUOM) == host_.messages.GetBaseUOMText() ? "0*0*0" : "0");
                grid.SetGridCol(colItemName);
                return;
            }
            FrameAvailable.Visible = true;
            cmdChange.Visible = true;

            const bool bShowStatus =
                bAmendment ? !bQtySyntaxError && !bQtyRefused : !bQtySyntaxError && !bQtyRefused && dUOMRate != 0;
            if (bShowStatus) ShowBatchStockStatus(nRow, nCol);
        }

        if (platform::Trim(cell(colItemName)).empty()) {
            FrameAvailable.Visible = false;
            cmdChange.Visible = false;
        }

        // A batch-tracked row without a batch takes the list's selected entry as if the
        // user had pressed Enter there.
        if (FrameAvailable.Visible && lstAvailable.Count() > 0 && cell(colBatch).empty() && !grid.IsBlankRow(nRow) &&
            number(colBatchTrack) == 1) {
            int nKey = platform::keys::Enter;
            DTFlexDispatch_KeyCode(nKey, global.GetShiftMask());
        }
    });
}

void Zuro_frmDispatch_Dispatch::DTFlexDispatch_AtLastRow() {
    Handled("DTFlexDispatch_AtLastRow", [&] {
        auto& grid = DTFlexDispatch;
        if (grid.GridRows() == 1 && platform::Trim(grid.GetCell(1, colItemName)).empty()) {
            host_.global.ShowStatus("No items selected, cannot proceed, click close to quit", 1);
        } else if (cmdSave.Enabled) {
            cmdSave.SetFocus();
        }
    });
}

void Zuro_frmDispatch_Dispatch::DTFlexDispatch_AtFirstRow() {
    Handled("DTFlexDispatch_AtFirstRow", [&] { txtShippingAddress.SetFocus(); });
}

std::string Zuro_frmDispatch_Dispatch::GetCustomerForScheme() {
    std::string szCustomer;
    Handled("GetCustomerForScheme",
            [&] { szCustomer = nMode == mode::FromSalesConfirmation ? lblCustomerId.Caption : txtCustomer.Tag; });
    return szCustomer;
}

}  // namespace screen
