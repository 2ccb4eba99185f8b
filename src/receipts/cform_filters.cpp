// The filters above the invoice list: the two customer combos kept on the same
// customer, the date range that refuses to stand upside down, and the two form boxes
// whose Enter leads on to the list.
#include "platform/key_codes.h"
#include "receipts/zuro_frm_cform_dispatch.h"

namespace receipts {

namespace keys = platform::keys;

namespace {
constexpr int kBack = keys::ShiftMask;
}  // namespace

bool Zuro_frmCForm_Dispatch::CheckDateRange(platform::DatePicker& box) {
    // While one box's refusal sends focus back, the other box lets it pass.
    if (bRefusingRange_) return true;
    auto& global = host_.global;
    if (global.ToDateOnly(dtFromDate.Value).serial <= global.ToDateOnly(dtToDate.Value).serial) return true;
    global.ShowStatus("From date cannot be greater than to date", 1);
    bRefusingRange_ = true;
    global.SetFocusTo(box);
    bRefusingRange_ = false;
    return false;
}

void Zuro_frmCForm_Dispatch::DateEnter(platform::DatePicker& box, int& KeyCode, int Shift, platform::Control& behind,
                                       platform::Control& ahead) {
    if (KeyCode != keys::Enter) return;
    if (Shift != host_.global.GetShiftMask() && Shift != kBack) return;
    if (!CheckDateRange(box)) {
        KeyCode = 0;
        return;
    }
    host_.global.HandleEnterAdvance(Shift, behind, ahead);
}

void Zuro_frmCForm_Dispatch::dtFromDate_KeyDown(int& KeyCode, int Shift) {
    Handled("dtFromDate_KeyDown", [&] { DateEnter(dtFromDate, KeyCode, Shift, cboCustomerID, dtToDate); });
}

void Zuro_frmCForm_Dispatch::dtToDate_KeyDown(int& KeyCode, int Shift) {
    Handled("dtToDate_KeyDown", [&] { DateEnter(dtToDate, KeyCode, Shift, dtFromDate, chkForm1); });
}

void Zuro_frmCForm_Dispatch::dtFromDate_LostFocus() {
    Handled("dtFromDate_LostFocus", [&] { CheckDateRange(dtFromDate); });
}

void Zuro_frmCForm_Dispatch::dtToDate_LostFocus() {
    Handled("dtToDate_LostFocus", [&] { CheckDateRange(dtToDate); });
}

void Zuro_frmCForm_Dispatch::chkForm1_KeyDown(int& KeyCode, int Shift) {
    Handled("chkForm1_KeyDown", [&] {
        if (KeyCode != keys::Enter) return;
        if (Shift == host_.global.GetShiftMask())
            host_.global.SetFocusTo(chkForm2);
        else if (Shift == kBack)
            host_.global.SetFocusTo(dtToDate);
    });
}

void Zuro_frmCForm_Dispatch::chkForm2_KeyDown(int& KeyCode, int Shift) {
    Handled("chkForm2_KeyDown", [&] {
        if (KeyCode != keys::Enter) return;
        if (Shift == host_.global.GetShiftMask())
            cmdRefresh_Click();
        else if (Shift == kBack)
            host_.global.SetFocusTo(chkForm1);
    });
}

void Zuro_frmCForm_Dispatch::cboCustomer_KeyPress(int& KeyAscii) {
    Handled("cboCustomer_KeyPress", [&] {
        if (KeyAscii != keys::Enter) host_.global.ComboAutoComplete(cboCustomer, KeyAscii);
    });
}

void Zuro_frmCForm_Dispatch::cboCustomerID_KeyPress(int& KeyAscii) {
    Handled("cboCustomerID_KeyPress", [&] {
        if (KeyAscii != keys::Enter) host_.global.ComboAutoComplete(cboCustomerID, KeyAscii);
    });
}

void Zuro_frmCForm_Dispatch::CustomerEnter(platform::ComboBox& box, platform::ComboBox& other, bool bByName,
                                           int& KeyCode, int Shift, platform::Control& behind,
                                           platform::Control& ahead) {
    if (KeyCode != keys::Enter) return;
    if (Shift != host_.global.GetShiftMask() && Shift != kBack) return;
    auto& global = host_.global;
    global.ComboFindExact(box);
    if (box.ListIndex() == 0) {
        other.SetListIndex(0);
    } else {
        other.SetText(bByName ? global.LookupCode("Customer", "CustomerID", "Company_Name", box.Text())
                              : global.LookupName("Customer", "CustomerID", "Company_Name", box.Text()));
        global.ComboFindExact(other);
    }
    global.HandleEnterAdvance(Shift, behind, ahead);
}

void Zuro_frmCForm_Dispatch::cboCustomer_KeyDown(int& KeyCode, int Shift) {
    Handled("cboCustomer_KeyDown",
            [&] { CustomerEnter(cboCustomer, cboCustomerID, true, KeyCode, Shift, cboCustomer, cboCustomerID); });
}

void Zuro_frmCForm_Dispatch::cboCustomerID_KeyDown(int& KeyCode, int Shift) {
    Handled("cboCustomerID_KeyDown",
            [&] { CustomerEnter(cboCustomerID, cboCustomer, false, KeyCode, Shift, cboCustomer, dtFromDate); });
}

}  // namespace receipts
