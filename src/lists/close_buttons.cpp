// The two Close buttons: the list page's closes the screen; the entry page's takes a
// viewed note back to the list in Mode 4 and closes the screen otherwise.
#include "parties/party_boxes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::cmdClose_Click(int Index) {
    Handled("cmdClose_Click", [&] {
        if (Index != 1 || nMode != mode::View) {
            Close();
            return;
        }
        auto& global = host_.global;
        objLink->SetCaption(host_.messages.GetLabel("View Dispatch"));
        SetFrame(1);
        DTFlexDispatch.ClearGrid();
        frameRemarks.Visible = false;
        Frame3.Visible = false;
        Frame1(0).Visible = true;
        parties::CustomerBox(*this, global).TabStop = true;
        cmdClose(0).TabStop = true;
        cmdContinue.TabStop = true;
        cmdRefresh_Click();
        cmdGo_Click();
    });
}

void Zuro_frmDispatch_Dispatch::cmdClose_LostFocus(int Index) {
    Handled("cmdClose_LostFocus", [&] {
        if (Index == 0) {
            parties::CustomerBox(*this, host_.global).TabStop = true;
            txtref.TabStop = false;
        } else if (Index == 1 && nMode != mode::NewDispatch) {
            txtCustomer.TabStop = false;
            txtCustomerID.TabStop = false;
        }
    });
}

}  // namespace screen
