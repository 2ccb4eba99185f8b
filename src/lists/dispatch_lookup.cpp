// Mode 4's look-up of stored notes by a range of document numbers: its boxes laid in
// the filter's row, Enter from the first box to the second and on to Go.
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace keys = platform::keys;

namespace {
constexpr int kRowGap = 200;
}  // namespace

void Zuro_frmDispatch_Dispatch::AlignDocLookUp() {
    Handled("AlignDocLookUp", [&] {
        const std::vector<platform::Control*> vMoved = {
            &lblFields(14), &txtDocID,    &txtDocIDTo,    &lblFields(0), &dtFromDate,   &lblFields(1), &dtToDate,
            &lblFields(2),  &txtCustomer, &txtCustomerID, &cmdRefresh,   &lblFields(3), &lblFields(4), &cmdGo};
        host_.global.SetDropDownWidth(vMoved, kRowGap);
        const std::vector<platform::Control*> vShown = {&txtDocID, &lblFields(14), &txtDocIDTo, &lblFields(3), &cmdGo};
        for (platform::Control* shown : vShown) shown->Visible = true;
    });
}

void Zuro_frmDispatch_Dispatch::cmdGo_Click() {
    Handled("cmdGo_Click", [&] {
        if (!txtDocID.Text().empty() || !txtDocIDTo.Text().empty()) {
            bool bDocLookUp = true;
            ListDispatch(bDocLookUp);
        }
        lstSO.SetFocus();
    });
}

void Zuro_frmDispatch_Dispatch::txtDocID_GotFocus() {
    Handled("txtDocID_GotFocus", [&] { txtDocID.SelectAll(); });
}

// The range's end starts as its beginning, so that one number looks up one note.
void Zuro_frmDispatch_Dispatch::txtDocIDTo_GotFocus() {
    Handled("txtDocIDTo_GotFocus", [&] {
        txtDocIDTo.SetText(txtDocID.Text());
        txtDocIDTo.SelectAll();
    });
}

void Zuro_frmDispatch_Dispatch::txtDocID_KeyDown(int& KeyCode, int Shift) {
    Handled("txtDocID_KeyDown", [&] {
        if (KeyCode == keys::Enter && Shift == host_.global.GetShiftMask()) txtDocIDTo.SetFocus();
    });
}

void Zuro_frmDispatch_Dispatch::txtDocIDTo_KeyDown(int& KeyCode, int Shift) {
    Handled("txtDocIDTo_KeyDown", [&] {
        if (KeyCode != keys::Enter) return;
        if (Shift == keys::ShiftMask)
            txtDocID.SetFocus();
        else if (Shift == host_.global.GetShiftMask())
            cmdGo_Click();
    });
}

}  // namespace screen
