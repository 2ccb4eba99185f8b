// The list page's period: the from-date never after the to-date nor before the
// company's opening day, and Enter in the to-date lists the period afresh.
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace keys = platform::keys;

void Zuro_frmDispatch_Dispatch::dtFromDate_LostFocus() {
    Handled("dtFromDate_LostFocus", [&] {
        auto& global = host_.global;
        if (dtFromDate.Value.serial > dtToDate.Value.serial) dtFromDate.Value = dtToDate.Value;
        if (dtFromDate.Value.serial < global.GetOpeningDate().serial) {
            global.ShowStatus("From Date cannot be less than opening date", 1);
            dtFromDate.Value = dtServerDate;
        }
    });
}

void Zuro_frmDispatch_Dispatch::dtToDate_LostFocus() {
    Handled("dtToDate_LostFocus", [&] {
        if (dtToDate.Value.serial < dtFromDate.Value.serial) dtToDate.Value = dtFromDate.Value;
    });
}

void Zuro_frmDispatch_Dispatch::dtFromDate_KeyDown(int& KeyCode, int Shift) {
    Handled("dtFromDate_KeyDown", [&] {
        auto& global = host_.global;
        if (nMode == mode::NewDispatch || KeyCode != keys::Enter) return;
        if (Shift == keys::ShiftMask) {
            if (global.GetCustomerNameFirst())
                txtCustomer.SetFocus();
            else
                txtCustomerID.SetFocus();
        } else if (Shift == global.GetShiftMask()) {
            dtToDate.SetFocus();
        }
    });
}

// Enter lists the period as it stands: the to-date is set right only when it loses
// focus afterwards.
void Zuro_frmDispatch_Dispatch::dtToDate_KeyDown(int& KeyCode, int Shift) {
    Handled("dtToDate_KeyDown", [&] {
        auto& global = host_.global;
        if (KeyCode != keys::Enter) return;
        if (Shift == keys::ShiftMask) {
            dtFromDate.SetFocus();
            return;
        }
        if (Shift != global.GetShiftMask()) return;
        global.ShowStatus("Loading Pending Orders...", 0);
        ListPendingDocuments();
        global.ShowStatus("Loading Pending Orders... Done", 0);
        bool bDocLookUp = false;
        if (nMode == mode::View || nMode == mode::Cancel) {
            global.ShowStatus("Loading Dispatch...", 0);
            ListDispatch(bDocLookUp);
            global.ShowStatus("Loading Dispatch...done", 0);
        } else if (nMode == mode::Amendment) {
            global.ShowStatus("Loading Dispatches...", 0);
            ListDispatch(bDocLookUp);
            global.ShowStatus("Loading Dispatches... Done", 0);
        }
        if (lstSO.Count() > 0)
            lstSO.SetFocus();
        else
            cmdContinue.SetFocus();
    });
}

}  // namespace screen
