// cmdSave: the one button that ends the work on a screen. Its chain of checks runs in
// a fixed order, and the first that refuses shows its message, puts focus on what is
// wrong and ends the click; which complaint the clerk sees first is part of the screen.
// Modes 1, 2, 3, 6 and 7 then save, Mode 5 cancels and Mode 4 prints.
#include "grid/row_model/grid_columns.h"
#include "parties/party_boxes.h"
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

namespace {
constexpr const char* kHealthCareSwitch =
    "Select Isnull(sum(flag),1) from tbl_Zuro_ConfigAbstract Where ScreenCode = 'ValidateHealthCareItem'";
constexpr long kSalesmanRefusal = 55, kBeatRefusal = 56, kNotMapped = 35, kItemOutsideGroup = 13;

// The grid's rows without the blank one for entry at its end.
long RowsBeforeTheEntryRow(const platform::DTFlex& grid) {
    const int nRows = grid.GridRows();
    return nRows > 0 && grid.IsBlankRow(nRows) ? nRows - 1 : nRows;
}
}  // namespace

void Zuro_frmDispatch_Dispatch::cmdSave_Click() {
    auto& global = host_.global;
    platform::RunHandledInTransaction(
        global, "Dispatch: cmdSave_Click - ", global.GetConnection(), bInTransaction, [&] {
            auto& grid = DTFlexDispatch;
            platform::TextBox& customerBox = parties::CustomerBox(*this, global);
            auto refuse = [&](const std::string& text, platform::Control& control) {
                global.ShowStatus(text, 1);
                global.SetFocusTo(control);
            };
            auto refuseNumbered = [&](long number, platform::Control& control) {
                global.ShowNumberedMessage(number, 1, {});
                global.SetFocusTo(control);
            };

            if ((nMode == mode::FromSalesConfirmation || nMode == mode::NewDispatch || nMode == mode::Amendment) &&
                DSTypeNotMapped(txtCategory.Text())) {
                txtSalesman.SetFocus();
                return;
            }

            if (nMode == mode::FromSalesConfirmation || nMode == mode::NewDispatch || nMode == mode::FromAlert ||
                nMode == mode::Amendment) {
                const long nCheck =
                    platform::CLng(global.ToNumber(global.LookupValue(global.GetConnection(), kHealthCareSwitch)));
                if (nCheck > 0) {
                    const bool bFromDocuments = nMode == mode::FromSalesConfirmation || nMode == mode::FromAlert;
                    if (!ValidateHealthCareItems(bFromDocuments ? szCustomerCode : txtCustomerID.Text())) return;
                }
            }

            // The schemes are always worked out afresh before a note is kept.
            if (nMode != mode::View) {
                cmdApplyScheme_Click();
                if (!bSchemesApplied) {
                    cmdSave.SetFocus();
                    return;
                }
            }

            bool bDeleted = false;
            if (SplCatFreeItemDeleted(bDeleted)) {
                cmdSave.SetFocus();
                return;
            }

            if (nMode != mode::NewDispatch && !IsTradeCustomer(szCustomerCode)) {
                refuse("Select an existing Trade Customer", txtCustomerID);
                return;
            }

            if (nMode == mode::Cancel) {
                CancelDispatch();
                return;
            }
            if (nMode == mode::View) {
                PrintViewedDispatch();
                return;
            }

            long nRows = RowsBeforeTheEntryRow(grid);
            bAskOnExit = false;

            if (bFlushRow) {
                grid.SetGridCol(colItemCode);
                int nKey = platform::keys::Enter;
                DTFlexDispatch_KeyCode(nKey, 0);
            }
            if (!grid.CommitEdit()) return;

            if (!DayMayStillBePosted()) {
                DTDispatchDate.SetFocus();
                return;
            }

            if (nMode == mode::NewDispatch || nMode == mode::Amendment) {
                if (txtCustomer.Tag.empty()) {
                    global.ShowStatus("Select a customer from the list", 1);
                    global.SetFocusTo(customerBox);
                    return;
                }
                if (platform::Trim(txtBillingAddress.Text()).empty() ||
                    platform::Trim(txtShippingAddress.Text()).empty())
                    LoadCustomerAdd();
                szEnteredCustomerCode = global.LookupCode("Customer", "CustomerID", "Company_Name", txtCustomer.Text());
            }

            if ((cbodocumenttype.ListCount() >= 2 && cbodocumenttype.ListIndex() == 0) ||
                cbodocumenttype.ListIndex() == -1) {
                refuse("Select an existing DocumentType", cbodocumenttype);
                return;
            }
            if (platform::Trim(txtDocReference.Text()).empty()) {
                refuse("Document Number cannot be Null", txtDocReference);
                return;
            }

            if (nRows <= 0) {
                global.ShowStatus("No Item details provided, cannot save", 1);
                grid.SetGridRow(1);
                grid.SetGridCol(colItemName);
                return;
            }
            bool bUnitsValid = false;
            ValidateUOM(nRows, bUnitsValid);
            if (!bUnitsValid) return;
            for (int r = 1; r <= nRows; ++r) {
                if (platform::Trim(grid.GetCell(r, colItemCode)).empty()) {
                    global.ShowStatus("Invalid Item selected", 1);
                    grid.SetGridRow(r);
                    grid.SetGridCol(colItemName);
                    return;
                }
            }

            if (!bAllCategories) {
                if (GetSalesmanID() < 1) return refuseNumbered(kSalesmanRefusal, txtSalesman);
                if (GetBeatID() < 1) return refuseNumbered(kBeatRefusal, txtBeat);
                if (!ValidSalesman()) return refuseNumbered(kSalesmanRefusal, txtSalesman);
                if (!ValidBeat()) return refuseNumbered(kBeatRefusal, txtBeat);
                if (!SalesmanBeatAndCustomerMapped()) return refuseNumbered(kNotMapped, cmdSave);
                if (!LinesSoldByTheGroup()) return refuseNumbered(kItemOutsideGroup, cmdSave);
            }

            if (!ValidateQty(RowsBeforeTheEntryRow(grid))) return;

            // Row 0 is read too, as it always was.
            for (int r = 0; r <= grid.GridRows(); ++r) {
                if (global.ToNumber(grid.GetCell(r, colFreeItmIgnored)) != 1) continue;
                bQtyRefused = true;
                global.ShowStatus("Free Item Not selected", 1);
                grid.SetFocus();
                grid.SetGridCol(colSalePrice);
                grid.SetGridRow(r);
                return;
            }
            for (int r = 0; r <= grid.GridRows(); ++r) {
                if (global.ToNumber(grid.GetCell(r, colFreeItem)) != 0) continue;
                for (const auto& szSerial : platform::Split(grid.GetCell(r, colItemCheck), ",")) {
                    if (!(platform::Val(szSerial) > 0)) continue;
                    if (getRowNumber(static_cast<long>(platform::Int(platform::Val(szSerial)))) != 0) continue;
                    global.ShowStatus("Free Item Not found.", 1);
                    grid.SetGridCol(colQuantity);
                    grid.SetGridRow(r);
                    grid.SetFocus();
                    return;
                }
            }

            grid.SetGridCol(colSalePrice);
            if (!SaveDispatch()) return;

            if (nMode == mode::NewDispatch || nMode == mode::Amendment) {
                customerBox.SetFocus();
            } else {
                InitValues();
                if (nMode == mode::FromSalesConfirmation) customerBox.SetFocus();
            }
            SetTabStop(1);
            bAskOnExit = false;
        });
}

void Zuro_frmDispatch_Dispatch::cmdSave_KeyDown(int& KeyCode, int Shift) {
    Handled("cmdSave_KeyDown", [&] {
        if (nMode != mode::View && KeyCode == platform::keys::Enter && Shift == platform::keys::ShiftMask)
            DTFlexDispatch.SetFocus();
    });
}

}  // namespace screen
