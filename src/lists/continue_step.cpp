// cmdContinue: from the list page to the entry page. It refuses what cannot go on —
// nothing ticked, a stored note closed to change, a document type or category group
// switched off — each time with the list page as it stood; then it loads the ticked
// document and sets the entry page up for the mode.
#include "grid/row_model/grid_columns.h"
#include "parties/party_boxes.h"
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace keys = platform::keys;

namespace {
constexpr int kDispatchTransaction = 5;
constexpr int kInformationButton = 64;
constexpr long kGroupSwitchedOff = 58;
constexpr int kConfirmationGroups = 1, kDispatchGroups = 2;
constexpr int kDocumentTypeSubItem = 9;

bool FromConfirmation(long nMode) { return nMode == mode::FromSalesConfirmation || nMode == mode::FromAlert; }
}  // namespace

void Zuro_frmDispatch_Dispatch::cmdContinue_Click() {
    Handled("cmdContinue_Click", [&] {
        auto& global = host_.global;
        auto& messages = host_.messages;
        platform::TextBox& customerBox = parties::CustomerBox(*this, global);
        auto focusListWithRows = [&] {
            if (lstSO.Count() > 0) lstSO.SetFocus();
        };

        if (txtCustomer.Tag.empty()) {
            messages.AskMessage("Select an existing customer.", kInformationButton);
            lstSO.Clear();
            customerBox.SetFocus();
            return;
        }

        if (nMode == mode::Cancel) {
            if (!Validate()) {
                global.ShowStatus("You have to select a dispatch to continue", 1);
                return;
            }
            bool bValid = false;
            ValidDispatch(platform::CLng(global.ToNumber(platform::Value(szDocNumbers))), bValid);
            if (!bValid) {
                global.ShowStatus("You cannot cancel this dispatch", 1);
                return;
            }
        } else if (nMode == mode::Amendment) {
            if (!Validate()) {
                global.ShowStatus("You have to select a dispatch to Amend", 1);
                focusListWithRows();
                return;
            }
            bool bValid = false;
            ValidDispatch(platform::CLng(global.ToNumber(platform::Value(szDocNumbers))), bValid);
            if (!bValid) {
                global.ShowStatus("You cannot Amend this dispatch", 1);
                focusListWithRows();
                return;
            }
            ValidateDispatch(kDispatchGroups, bValid);
            if (!bValid) {
                global.ShowNumberedMessage(kGroupSwitchedOff, 1, {});
                focusListWithRows();
                return;
            }
        } else if (FromConfirmation(nMode)) {
            bool bValid = false;
            ValidateDispatch(kConfirmationGroups, bValid);
            if (!bValid) {
                global.ShowNumberedMessage(kGroupSwitchedOff, 1, {});
                focusListWithRows();
                return;
            }
        } else {
            global.ShowStatus(global.GetReadyMessage(), 0);
        }

        // A stored note of Mode 7 carries the document type it was made under.
        const int nSelected = lstSO.SelectedIndex();
        const std::string szDocType = nSelected > 0 ? lstSO.Item(nSelected).SubItem(kDocumentTypeSubItem) : "";
        if (!szDocType.empty()) {
            const double dActive = global.ToNumber(global.LookupValue(
                global.GetConnection(), "Select Active From TransactionDocNumber Where DocumentType=N'" + szDocType +
                                            "' And  TransactionType=" + std::to_string(kDispatchTransaction)));
            if (dActive == 0) {
                global.ShowStatus(
                    messages.FormatMessage(
                        "The DocumentType {0} Is not Active. Pls Activate the DocumentType to Continue", {szDocType}),
                    1);
                return;
            }
        }

        InitAutolist();

        if (!Validate()) {
            if (FromConfirmation(nMode)) {
                global.ShowStatus("You have to select the sales confirmation to continue", 1);
                return;
            }
            if (nMode == mode::FromPurchaseOrder) {
                global.ShowStatus("You have to Select the Purchase Order to continue", 1);
                return;
            }
            if (nMode == mode::View || nMode == mode::Cancel) {
                global.ShowStatus("You have to select the Dispatch to continue", 1);
                return;
            }
            // Nothing ticked is allowed here: the list page stays.
            SetFrame(1);
            SetTabStop(1);
            if (lstSO.Count() > 0)
                lstSO.SetFocus();
            else
                customerBox.SetFocus();
        } else {
            global.ShowStatus(global.GetReadyMessage(), 0);
            txtBillingAddress.SetText("");
            txtShippingAddress.SetText("");
            txtref.SetText("");
            DTFlexDispatch.ClearGrid();
            SetFrame(2);
            if (nMode != mode::View && nMode != mode::Cancel) SetDocumentReference(kDispatchTransaction);
            SetTabStop(2);
            LoadTickedDocument();
        }

        if (nMode == mode::Amendment) {
            txtCustomer.Visible = true;
            txtCustomer.SetFocus();
            RepositionAutolist();
        }

        if (nMode == mode::Cancel)
            cmdSave.SetFocus();
        else if (nMode == mode::View)
            cmdClose(1).SetFocus();
        else if (nMode == mode::FromSalesConfirmation || bAllCategories)
            DTFlexDispatch.SetFocus();
        else if (txtSalesman.Enabled)
            global.SetFocusTo(txtSalesman);

        // The amended note's SKU schemes as they were stored, for the scheme pass to
        // compare with.
        if (!global.GetOCGEnabled() && nMode == mode::Amendment) arrPrevSKU = PopulateItemArray(nPrevSKUCount);
    });
}

void Zuro_frmDispatch_Dispatch::LoadTickedDocument() {
    const long nDocument = platform::CLng(host_.global.ToNumber(platform::Value(szDocNumbers)));
    switch (nMode) {
        case mode::View:
        case mode::Cancel:
            LoadDispatchInfo(nDocument);
            HandleControls();
            return;
        case mode::FromSalesConfirmation:
        case mode::FromAlert:
        case mode::FromPurchaseOrder:
            LoadCustomerInfo();
            nCustomerCategory = GetCustomerCategory(szCustomerCode);
            if (nMode == mode::FromPurchaseOrder) {
                ShowNotFound(szPONumbers);
                LoadPOItems();
            } else {
                LoadItemDetails();
            }
            GetNewDispatchID();
            LoadDocumentTypes(kDispatchTransaction);
            DTFlexDispatch.SetCellEdit(-1);
            DTFlexDispatch.SetGridCol(grid::colQuantity);
            return;
        case mode::Amendment:
            LoadDocumentTypes(kDispatchTransaction);
            LoadDispatchInfo(nDocument);
            LoadCustomerInfo();
            LoadolddispDate(nDocument);
            szCustomerCode = txtCustomerID.Text();
            nCustomerCategory = GetCustomerCategory(szCustomerCode);
            return;
        default: return;
    }
}

void Zuro_frmDispatch_Dispatch::cmdContinue_KeyDown(int& KeyCode, int Shift) {
    Handled("cmdContinue_KeyDown", [&] {
        if (KeyCode != keys::Enter || Shift != keys::ShiftMask) return;
        if (lstSO.Count() > 0)
            lstSO.SetFocus();
        else
            dtToDate.SetFocus();
    });
}

}  // namespace screen
