// What the screen does after a note has been stored: a fresh note in the same mode,
// or, after an amendment or a cancellation, back to the list of stored notes.
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr int kDispatchTransactionType = 5;
}

void Zuro_frmDispatch_Dispatch::CleanUp() {
    Handled("Cleanup", [&] {
        auto& messages = host_.messages;
        for (platform::TextBox* box : {&txtBillingAddress, &txtShippingAddress, &txtref}) box->SetText("");

        // The program writes the customer boxes; no type-ahead list may open for it.
        if (objCustomerList) objCustomerList->SetEnabled(true);
        for (platform::TextBox* box : {&txtCustomer, &txtCustomerID}) {
            if (nMode == mode::NewDispatch) {
                box->SetText("");
                box->Tag.clear();
            } else {
                box->SetText(messages.GetAllCustomersText());
                box->Tag = "%";
            }
        }
        if (objCustomerList) objCustomerList->SetEnabled(false);
        SelectActiveText();
        lblCustomerId.Caption = messages.GetLabel("Customer ID:", "Label", "Kelvo", -1);

        DTFlexDispatch.ClearGrid();
        GetNewDispatchID();
        SetDocumentReference(kDispatchTransactionType);
        bAllCategories = false;
        ResetSchemeMemory();
        bFlushRow = false;
        szPrevCustomerCode = txtCustomer.Tag;
        dtPrevDispatchDate = DTDispatchDate.Value;
    });
}

void Zuro_frmDispatch_Dispatch::InitAfterAmendment(const std::string& szDispatchID) {
    Handled("InitAfterAmendment", [&] {
        auto& messages = host_.messages;
        SetFrame(1);
        // The customer ID box serves the list page as its customer filter.
        txtCustomerID.Container = &Frame1(0);
        if (objCustomerList) objCustomerList->SetEnabled(true);
        for (platform::TextBox* box : {&txtCustomerID, &txtCustomer}) {
            box->SetText(messages.GetAllCustomersText());
            box->Tag = "%";
        }
        if (objCustomerList) objCustomerList->SetEnabled(false);
        SelectActiveText();
        txtCustomerID.Top = lblFields(4).Top - 10;
        txtCustomerID.Left = dtFromDate.Left;
        txtCustomerID.Height = txtCustomer.Height;
        cmdRefresh_Click();
        host_.global.SetFocusTo(lstSO);
        if (nMode == mode::Amendment)
            host_.global.ShowStatus(messages.FormatMessage("DispatchID = {0} has been Amended", {szDispatchID}), 0);
    });
}

}  // namespace screen
