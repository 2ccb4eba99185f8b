// Filling the list page again: the refresh button, and the pending documents of the
// mode for the customer the filter names.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
bool FromConfirmation(long nMode) { return nMode == mode::FromSalesConfirmation || nMode == mode::FromAlert; }
bool StoredNotes(long nMode) { return nMode == mode::View || nMode == mode::Cancel || nMode == mode::Amendment; }
}  // namespace

void Zuro_frmDispatch_Dispatch::ListPendingDocuments() {
    if (txtCustomer.Tag == "%") {
        if (FromConfirmation(nMode)) ListAllSOAbstract();
        if (nMode == mode::FromPurchaseOrder) ListAllPOAbstract();
    } else {
        // For one customer both lists are asked for, whatever the mode: the orders'
        // list comes last and is the one that stands.
        ListSpecifiedSOAbstract(szCustomerCode);
        ListSpecifiedPOAbstract(szCustomerCode);
    }
}

void Zuro_frmDispatch_Dispatch::cmdRefresh_Click() {
    Handled("cmdRefresh_Click", [&] {
        auto& global = host_.global;
        const std::string szID = txtCustomerID.Text();
        if (szID != "%" && platform::UCase(szID) != platform::UCase(host_.messages.GetAllCustomersText()) &&
            !IsTradeCustomer(szID)) {
            global.ShowStatus("Select an existing Trade Customer", 1);
            txtCustomerID.SetFocus();
            return;
        }
        global.ShowStatus(nMode == mode::Amendment ? "Loading Dispatches..." : "Loading Pending Orders...", 0);
        ListPendingDocuments();
        if (StoredNotes(nMode)) {
            bool bDocLookUp = false;
            ListDispatch(bDocLookUp);
            global.ShowStatus("Loading Dispatches... Done", 0);
        } else {
            global.ShowStatus("Loading Pending Orders...Done", 0);
        }
        lstSO.SetFocus();
    });
}

void Zuro_frmDispatch_Dispatch::InitValues() {
    Handled("InitValues", [&] { cmdRefresh_Click(); });
}

}  // namespace screen
