// The keys of the two customer boxes. Enter accepts only a customer chosen from
// the list (its key stands in the box's Tag); on the entry page it then narrows
// and fills the other parties.
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace keys = platform::keys;

namespace {
constexpr const char* kSelectExisting = "Select an existing Customer.";
}  // namespace

// The part of Enter that both boxes share. nSource is 1 for the name box and 2 for
// the code box; pressKey runs the box's own key-press handler by hand.
static void CustomerEnter(Zuro_frmDispatch_Dispatch& form, host_services::HostServices& host, platform::TextBox& box,
                          void (Zuro_frmDispatch_Dispatch::*pressKey)(int&)) {
    auto& global = host.global;
    const bool onEntryPage = box.Container != &form.Frame1(1);
    if (box.Tag.empty()) {
        global.ShowStatus(kSelectExisting, 1);
        box.SetFocus();
        form.GetSalesmanID();
        if (box.Tag.empty()) form.LoadPreviousValues();
        form.ClearCustomer();
        return;
    }
    form.LoadCustomerAdd();
    global.ShowStatus(global.GetReadyMessage(), 0);
    if (onEntryPage && box.Visible) {
        form.bAllCategories = false;
        int key = keys::Enter;
        (form.*pressKey)(key);
        const bool bEmptyParties = form.txtSalesman.Text().empty() && form.txtBeat.Text().empty();
        const bool salesmanOrBeat = !form.txtSalesman.Text().empty() || !form.txtBeat.Text().empty();
        if (box.Tag == form.szPrevCustomerCode && box.Text() == form.szPrevCustomerName && salesmanOrBeat) {
            form.txtCategory.SetFocus();
            return;
        }
        if (bEmptyParties)
            form.LoadDefaultBeatSalesman();
        else if (!form.txtSalesman.Text().empty())
            form.LoadBeat();
        else
            form.LoadSalesman();
        if (!form.txtSalesman.Text().empty()) form.LoadCategoryGroup(3);
        if (form.DSTypeNotMapped(form.txtCategory.Text())) {
            global.SetFocusTo(form.txtSalesman);
            return;
        }
        form.LoadPreviousValues();
        platform::TextBox& customerBox = global.GetCustomerNameFirst() ? form.txtCustomer : form.txtCustomerID;
        for (platform::TextBox* field : {&form.txtSalesman, &form.txtBeat, &customerBox, &form.txtCategory}) {
            if (field->Text().empty()) {
                field->SetFocus();
                break;
            }
        }
    }
    switch (form.nMode) {
        case mode::Amendment:
            if (!onEntryPage) {
                form.lstSO.SetFocus();
            } else {
                form.txtCategory.SetFocus();
                if (!box.Tag.empty()) form.LoadCustomerAdd();
            }
            break;
        case mode::NewDispatch:
            if (!box.Text().empty() && form.txtSalesman.Tag.empty()) form.txtSalesman.SetFocus();
            if (!box.Tag.empty()) form.LoadCustomerAdd();
            break;
        default: form.lstSO.SetFocus(); break;
    }
}

static void CustomerBack(Zuro_frmDispatch_Dispatch& form, host_services::HostServices& host, platform::TextBox& box) {
    if (box.Container == &form.Frame1(1)) return;
    host.global.SetFocusTo(form.txtSalesman);
    if (box.Text().empty()) form.ClearCustomer();
}

void Zuro_frmDispatch_Dispatch::txtCustomer_KeyDown(int& KeyCode, int Shift) {
    Handled("txtCustomer_KeyDown", [&] {
        nLastKeyShift = Shift;
        if (objCustomerList && objCustomerList->GetVisible()) objCustomerList->ListKeyDown(KeyCode, Shift, 1);
        if (txtCustomer.Container != &Frame1(1) && txtCustomer.Visible) {
            nCustomerEntrySource = 1;
            HandleCtrlF7(KeyCode, Shift);
        }
        if (KeyCode != keys::Enter) return;
        if (Shift == host_.global.GetShiftMask())
            CustomerEnter(*this, host_, txtCustomer, &Zuro_frmDispatch_Dispatch::txtCustomer_KeyPress);
        else if (Shift == keys::ShiftMask)
            CustomerBack(*this, host_, txtCustomer);
    });
}

void Zuro_frmDispatch_Dispatch::txtCustomerID_KeyDown(int& KeyCode, int Shift) {
    Handled("txtCustomerID_KeyDown", [&] {
        nLastKeyShift = Shift;
        if (objCustomerList && objCustomerList->GetVisible()) objCustomerList->ListKeyDown(KeyCode, Shift, 1);
        if (txtCustomerID.Container != &Frame1(1) && txtCustomerID.Visible) {
            nCustomerEntrySource = 2;
            HandleCtrlF7(KeyCode, Shift);
        }
        if (KeyCode != keys::Enter) return;
        if (Shift == host_.global.GetShiftMask())
            CustomerEnter(*this, host_, txtCustomerID, &Zuro_frmDispatch_Dispatch::txtCustomerID_KeyPress);
        else if (Shift == keys::ShiftMask)
            CustomerBack(*this, host_, txtCustomerID);
    });
}

void Zuro_frmDispatch_Dispatch::txtCustomer_KeyPress(int& KeyAscii) {
    Handled("txtCustomer_KeyPress", [&] {
        if (KeyAscii != keys::Enter) return;
        auto& list = RequireObject(objCustomerList);
        list.SetEnabled(true);
        if (txtCustomer.Tag.empty()) {
            host_.global.ShowStatus(kSelectExisting, 1);
        } else if (txtCustomer.Tag == "%" && nMode != mode::NewDispatch) {
            txtCustomerID.SetText(txtCustomer.Text());
            txtCustomerID.Tag = txtCustomer.Tag;
        } else {
            szCustomerCode = host_.global.LookupCode("Customer", "CustomerID", "Company_Name", txtCustomer.Text());
            txtCustomerID.SetText(szCustomerCode);
            txtCustomerID.Tag = szCustomerCode;
            ShowCustomerCredit(txtCustomer.Text(), false);
        }
        list.SetEnabled(false);
    });
}

// The code box acts on Enter only when the key that brought it was not plain:
// the asymmetry with the name box is the screen's own.
void Zuro_frmDispatch_Dispatch::txtCustomerID_KeyPress(int& KeyAscii) {
    Handled("txtCustomerID_KeyPress", [&] {
        if (KeyAscii != keys::Enter || nLastKeyShift == host_.global.GetShiftMask()) return;
        auto& list = RequireObject(objCustomerList);
        list.SetEnabled(true);
        if (txtCustomerID.Tag.empty()) {
            host_.global.ShowStatus(kSelectExisting, 1);
        } else if (txtCustomerID.Tag == "%" && nMode != mode::NewDispatch && nMode != mode::Amendment) {
            txtCustomer.SetText(txtCustomerID.Text());
            txtCustomer.Tag = txtCustomerID.Tag;
        } else {
            szCustomerCode = txtCustomerID.Text();
            const std::string name = host_.global.LookupName("Customer", "CustomerID", "Company_Name", szCustomerCode);
            txtCustomer.SetText(txtCustomerID.Tag == "%" ? host_.messages.GetLabel("ALL CUSTOMERS") : name);
            txtCustomer.Tag = txtCustomerID.Tag;
        }
        list.SetEnabled(false);
    });
}

void Zuro_frmDispatch_Dispatch::txtCustomer_LostFocus() {
    Handled("txtCustomer_LostFocus", [&] {
        if (txtCustomer.Text().empty()) txtCustomerID.SetText("");
    });
}

void Zuro_frmDispatch_Dispatch::txtCustomerID_LostFocus() {
    Handled("txtCustomerID_LostFocus", [&] {
        if (txtCustomerID.Text().empty()) txtCustomer.SetText("");
    });
}

}  // namespace screen
