// The entry page of a stored note that is only looked at (Mode 4) or cancelled
// (Mode 5): nothing on it can be changed, and cmdSave prints or cancels.
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr int kLastLockedColumn = 11;
}  // namespace

void Zuro_frmDispatch_Dispatch::HandleControls() {
    Handled("HandleControls", [&] {
        auto& messages = host_.messages;
        Frame3.Visible = true;
        Frame4.Enabled = false;
        if (szDocStatusText == messages.GetStatusCancelledText() || nMode == mode::Cancel) {
            frameRemarks.Visible = true;
            txtRemarks.Visible = true;
        }
        txtBillingAddress.Enabled = false;
        txtShippingAddress.Enabled = false;
        DTFlexDispatch.EditStyle = 0;
        DTFlexDispatch.AllowAddRows = false;
        DTFlexDispatch.AllowDeleteRows = false;
        for (int col = 1; col <= kLastLockedColumn; ++col) DTFlexDispatch.SetColLocked(col, true);
        FrameAvailable.Visible = false;
        cmdChange.Visible = false;
        cmdSave.Visible = true;
        if (nMode == mode::View) {
            cmdSave.Caption = messages.GetLabel("&Print");
        } else if (nMode == mode::Cancel) {
            cmdSave.Left = 6950;
            cmdSave.Width = 1400;
            cmdMemo.Left = 5800;
            cmdSave.Caption = messages.GetLabel("&Cancel Dispatch");
        }
        cmdClose(1).SetFocus();
    });
}

}  // namespace screen
